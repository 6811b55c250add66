#pragma once

#include "shell/controles/CajaTexto.h"
#include "shell/marco/DialogoDeLinea.h"

#include <QLabel>

namespace pagos {

// One instalment against a supplier's invoice: a description, a cheque number and an amount. No
// screen opens it yet (payable documents ask for their amounts with a text prompt), and it hands
// nothing back: "&Aceptar" only insists on an amount above 0 before it closes, so a caller would read
// the two fields before that. "&Cancelar" and the close box leave Parametros with one empty element.
class frmDocumentoPago : public shell::DialogoDeLinea {
    Q_OBJECT
public:
    frmDocumentoPago();

    QLabel* lblDescripcion;
    shell::CajaTexto* txtChequeNumero;
    shell::CajaTexto* txtValor;

    // Leaving the cheque number: its numeric value through "#", so 0 and a text that isn't a number
    // leave it empty.
    void txtChequeNumero_Validate();

protected:
    void Form_Load() override;
    void cmdBoton_Click(int Index) override;
};

} // namespace pagos
