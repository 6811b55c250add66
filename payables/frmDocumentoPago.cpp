#include "payables/frmDocumentoPago.h"

#include "runtime/Conversion.h"
#include "runtime/Formato.h"
#include "shell/common/Common.h"
#include "shell/controles/CamposDeTexto.h"
#include "shell/dialogos/Dialogos.h"

using namespace shell;

namespace pagos {

frmDocumentoPago::frmDocumentoPago()
    : DialogoDeLinea(QStringLiteral("Abono a factura de proveedor"), 5400, 2640) {
    setObjectName(QStringLiteral("frmDocumentoPago"));
    etiqueta(QStringLiteral("Descripción de la factura"), 120, 120, 4800);
    lblDescripcion = campo<QLabel>(QStringLiteral("lblDescripcion"), 120, 390, 4920);
    lblDescripcion->setText(QStringLiteral("Descripción de la factura"));
    lblDescripcion->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    lblDescripcion->setMargin(2);

    etiqueta(QStringLiteral("No. Cheque"), 120, 810, 1800);
    txtChequeNumero = campo<CajaTexto>(QStringLiteral("txtChequeNumero"), 120, 1080, 2000);
    txtChequeNumero->setText(QStringLiteral("0"));
    etiqueta(QStringLiteral("Valor"), 3040, 810, 1800);
    txtValor = campo<CajaTexto>(QStringLiteral("txtValor"), 3040, 1080, 2000);
    txtValor->setText(QStringLiteral("0.00"));
    for (CajaTexto* caja : {txtChequeNumero, txtValor}) {
        caja->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        SeleccionarTodoAlEntrar(caja);
    }
    txtChequeNumero->alValidar([this] { txtChequeNumero_Validate(); });
    NumeroAlSalir(txtValor);

    crearBoton(0, QStringLiteral("&Aceptar"), 120);
    crearBoton(1, QStringLiteral("&Cancelar"), 1440);
}

// Whether Parametros(1) came with something decides nothing here.
void frmDocumentoPago::Form_Load() {
    AjustarPantalla();
}

void frmDocumentoPago::txtChequeNumero_Validate() {
    txtChequeNumero->setText(runtime::Format(runtime::Val(txtChequeNumero->Text()), QStringLiteral("#")));
}

void frmDocumentoPago::cmdBoton_Click(int Index) {
    const QString boton = cmdBoton[Index]->text();
    if (boton == QLatin1String("&Aceptar")) {
        if (runtime::Val(txtValor->Text()) <= 0)
            Common::MostrarMensaje(lblTitulo->text(),
                                   QStringLiteral("El valor del abono debe ser ingresado."), *this);
        else
            Unload();
    } else if (boton == QLatin1String("&Cancelar")) {
        Anular();
    }
}

} // namespace pagos
