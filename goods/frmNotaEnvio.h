#pragma once

#include "shell/controles/ArregloDeOpciones.h"
#include "shell/controles/CajaTexto.h"
#include "shell/controles/GrillaDetalle.h"
#include "shell/controles/SelectorFecha.h"
#include "shell/marco/PantallaRegistro.h"
#include "store/Adodc.h"

#include <QLabel>

namespace mercaderia {

// The delivery note: the goods sold on one document leave the store for the customer's address. The
// document is a credit application, an invoice or a receipt (optTipo(0), (1), (2)); its number is
// typed in txtNumeroDocumento, or found with F2 among the documents that still have articles pending,
// and leaving the field lists every pending article with all its pending quantity. The grid can't be
// edited: a note delivers everything the document still has pending, as the views give it.
//
// Nothing is posted: the note is its row and its lines, and the pending quantities and the stock fall
// through the views alone. The class is written in three files:
//   frmNotaEnvio.cpp             the bar: search, add, the modify that ends the program, save, cancel;
//                                the note shown from its search row
//   frmNotaEnvio_documento.cpp   the origin options, F2, the lookup on leaving the number, the total
//   frmNotaEnvio_diseno.cpp      the layout and the grid's columns
class frmNotaEnvio : public shell::PantallaRegistro {
    Q_OBJECT
public:
    frmNotaEnvio();

    bool Editando = false;
    long SolicitudID = 0;
    long FacturaID = 0;
    long ReciboID = 0;

    store::Adodc* adoNota;
    shell::CajaTexto* txtNumeroNota;
    shell::SelectorFecha* dpFecha;
    shell::ArregloDeOpciones* optTipo;
    shell::CajaTexto* txtNumeroDocumento;
    shell::CajaTexto* txtNombreCliente;
    shell::CajaTexto* txtDireccion;
    shell::GrillaDetalle* fgDetalle;
    QLabel* lblSaldo;
    shell::CajaTextoMultilinea* txtObservaciones;

    void optTipo_Click(int Index);
    void txtNumeroDocumento_KeyDown(int KeyCode, int Shift);
    void txtNumeroDocumento_Validate();

protected:
    void Form_Load() override;
    void cmdBoton_Click(int Index) override;

private:
    // frmNotaEnvio.cpp
    void Buscar();
    void Agregar();
    void Modificar();
    void Guardar();
    void Cancelar();
    void MostrarNota();
    bool GuardarNota();

    // frmNotaEnvio_documento.cpp
    void ActualizarTotalArticulos();
    // The grid's blank row goes once rows have been added after it.
    void QuitarFilaEnBlanco();

    // frmNotaEnvio_diseno.cpp
    void Disenar();
    void PrepararGrilla();
};

} // namespace mercaderia
