#pragma once

#include "goods/DocumentoDeProveedor.h"

namespace pagos {

// What the store pays its suppliers: a document of one supplier paying a list of that supplier's
// goods-in notes, each for an amount the clerk types. A note's open balance is never stored: it is
// what vwSaldosXNotaIngreso leaves of the note's value once its payable lines are taken off, so paying
// part of a note leaves the rest for a later document, and deleting a document raises its notes'
// balances again.
//
// It is the goods-in note's twin (DocumentoDeProveedor) and says only what differs: its table and
// words, six columns, the notes picked from the open balances with the amount asked for (a cancelled
// prompt on Insert pays the note in full), line keys that wait for a supplier, a data control read on
// loading, and a refused deletion told by the driver's text alone. Its "Modificar", and its "Cancelar"
// after a save that failed past its Update, read the goods-in note's key column, which its row lacks,
// and stop the program: a saved document can't be changed.
class frmDocumentos : public mercaderia::DocumentoDeProveedor {
    Q_OBJECT
public:
    frmDocumentos();

    store::Adodc* ado;
    shell::CajaTexto* txtNumeroDocumento;

    // Enter and the double click: the amount of the line asked for again.
    void fgDetalle_DblClick();

protected:
    void Form_Load() override;
    void ConfigurarGrilla() override;
    void Mostrar() override { MostrarDocumento(); }
    bool GuardarDocumento() override;
    void EliminarDocumento() override;

private:
    void MostrarDocumento();
    // Insert: an open note of the supplier picked, at the amount typed or its whole balance.
    void fgDetalle_Insertar();
    // The amount prompt over Parametros(5): "Aceptar" with an amount above 0 puts it there as "#0.00";
    // an amount of 0 or less is told and false returned; any other answer leaves Parametros(5).
    bool PedirMonto();
};

} // namespace pagos
