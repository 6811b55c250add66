#pragma once

#include "goods/DocumentoDeProveedor.h"

namespace mercaderia {

// Goods coming in from a supplier: a numbered note with its supplier, date, reference text and the
// articles received, each with its quantity and unit cost. A line may describe an article that doesn't
// exist yet ("*" in its first cell): it is created, through CrearArticulo, when the note is saved.
// Nothing else is written: stock comes from the views, and an existing article keeps its cost and
// margins whatever cost a line carries. Written in two files:
//   frmNotaIngreso.cpp         the note shown, saved and deleted
//   frmNotaIngreso_lineas.cpp  the grid's thirteen columns and the lines through frmNotaIngresoArticulo
// What it shares with the payable document is in DocumentoDeProveedor.
class frmNotaIngreso : public DocumentoDeProveedor {
    Q_OBJECT
public:
    frmNotaIngreso();

    store::Adodc* adoIngreso;
    shell::CajaTexto* txtNumeroIngreso;

    // Enter and the double click: the line through the dialog; its total cell isn't worked out again.
    void fgDetalle_DblClick();

protected:
    void ConfigurarGrilla() override;
    void Mostrar() override { MostrarIngreso(); }
    bool GuardarDocumento() override { return GuardarIngreso(); }
    void EliminarDocumento() override { EliminarIngreso(); }

private:
    void MostrarIngreso();
    bool GuardarIngreso();
    void EliminarIngreso();
    // Insert: a new line through the dialog, its total cost worked out.
    void fgDetalle_Insertar();
    void AbrirLinea();
};

} // namespace mercaderia
