#include "credit/frmHistorial.h"

#include "runtime/Conversion.h"
#include "shell/common/Common.h"
#include "shell/controles/CamposDeTexto.h"
#include "shell/dialogos/Dialogos.h"

#include <QGuiApplication>
#include <QScreen>

using namespace shell;

namespace credito {

frmHistorial::frmHistorial()
    : DialogoDeLinea(QStringLiteral("Historial crediticio"), 8400, 1980) {
    setObjectName(QStringLiteral("frmHistorial"));
    adoClasificacion = new store::Adodc(this);
    adoClasificacion->setObjectName(QStringLiteral("adoClasificacion"));
    adoClasificacion->setRecordSource(QStringLiteral("Select * From Clasificacion"));

    // Each field under its caption, left to right.
    etiqueta(QStringLiteral("Fecha"), 120, 90, 1300);
    txtHFecha = campo<CajaTexto>(QStringLiteral("txtHFecha"), 120, 360, 1300);
    txtHFecha->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    etiqueta(QStringLiteral("Descripción del artículo"), 1540, 90, 3480);
    txtHDescripcion = campo<CajaTexto>(QStringLiteral("txtHDescripcion"), 1540, 360, 3480);
    etiqueta(QStringLiteral("Valor"), 5140, 90, 1200);
    txtHValor = campo<CajaTexto>(QStringLiteral("txtHValor"), 5140, 360, 1200);
    txtHValor->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    txtHValor->setText(QStringLiteral("0.00"));
    etiqueta(QStringLiteral("Clasificacion"), 6460, 90, 1580);
    dcClasificacion = campo<ComboDatos>(QStringLiteral("dcClasificacion"), 6460, 360, 1580, 315);
    dcClasificacion->setRowSource(adoClasificacion);
    dcClasificacion->setListField(QStringLiteral("Descripcion"));
    dcClasificacion->setBoundColumn(QStringLiteral("ClasificacionID"));

    crearBoton(0, QStringLiteral("&Aceptar"), 120);
    crearBoton(1, QStringLiteral("&Cancelar"), 1440);

    for (CajaTexto* caja : {txtHFecha, txtHDescripcion, txtHValor})
        SeleccionarTodoAlEntrar(caja);
    FechaAlSalir(txtHFecha);
    NumeroAlSalir(txtHValor);
    txtHValor->alValidar([this] { txtHValor_Validate(); });

    // By design the dialog stands in the middle of the display, wherever its caller is.
    if (const QScreen* pantalla = QGuiApplication::primaryScreen())
        move(pantalla->availableGeometry().center() - rect().center());
}

void frmHistorial::Form_Load() {
    AjustarPantalla();
    adoClasificacion->Refresh();
    if (!Common::Parametros.Vacio(1)) {
        txtHFecha->setText(runtime::TextoDe(Common::Parametros(1)));
        txtHDescripcion->setText(runtime::TextoDe(Common::Parametros(2)));
        txtHValor->setText(runtime::TextoDe(Common::Parametros(3)));
        // (4) isn't read: the list finds the text of its key.
        dcClasificacion->setBoundText(runtime::TextoDe(Common::Parametros(5)));
    }
}

// A value of 0 or less is told, and focus moves on all the same.
void frmHistorial::txtHValor_Validate() {
    if (runtime::Val(txtHValor->Text()) <= 0)
        Common::MostrarMensaje(lblTitulo->text(), QStringLiteral("No es posible operar el valor indicado."),
                               *this);
}

void frmHistorial::cmdBoton_Click(int Index) {
    const QString boton = cmdBoton[Index]->text();
    if (boton == QLatin1String("&Aceptar")) {
        Common::Parametros.ReDim(5);
        Common::Parametros(1) = txtHFecha->Text();
        Common::Parametros(2) = txtHDescripcion->Text();
        Common::Parametros(3) = txtHValor->Text();
        Common::Parametros(4) = dcClasificacion->Text();
        Common::Parametros(5) = dcClasificacion->BoundText();
        Unload();
    } else if (boton == QLatin1String("&Cancelar")) {
        Anular();
    }
}

} // namespace credito
