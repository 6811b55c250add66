#include "shell/dialogos/Dialogos.h"

#include "runtime/Texto.h"
#include "shell/common/Common.h"
#include "shell/dialogos/frmIngresoTexto.h"
#include "shell/dialogos/frmMensaje.h"
#include "shell/dialogos/frmOpcion.h"
#include "shell/dialogos/frmPregunta.h"

#include <functional>

namespace Common {

namespace {

// The frame the four procedures share. Touching the dialog loads it, so its load handler has run
// before it is filled. There is one placement only: nothing keeps the dialog on the display.
template <class Dialogo>
void mostrarDialogo(shell::Formulario& Pantalla, bool conRespuesta, const QString& Titulo,
                    const std::function<void(Dialogo&)>& llenar) {
    AtenuarTitulo(Pantalla);
    if (conRespuesta) RespuestaDialogo = QStringLiteral("Cancelar");
    Dialogo& dialogo = Common::Pantalla<Dialogo>();
    dialogo.lblTitulo->setText(Titulo + QLatin1Char(' '));
    dialogo.setWindowTitle(Titulo); // unseen on a frameless window, but what the desktop lists it by
    if (llenar) llenar(dialogo);
    dialogo.Move(Pantalla.Left() + 400, Pantalla.Top() + 400);
    dialogo.ShowModal();
}

} // namespace

void MostrarMensaje(const QString& Titulo, const QString& Mensaje, shell::Formulario& Pantalla) {
    mostrarDialogo<shell::frmMensaje>(Pantalla, false, Titulo,
                                      [&](shell::frmMensaje& d) { d.lblMensaje->setText(Mensaje); });
    ResaltarTitulo(Pantalla);
}

QString Preguntar(const QString& Titulo, const QString& Pregunta, shell::Formulario& Pantalla) {
    mostrarDialogo<shell::frmPregunta>(Pantalla, true, Titulo, [&](shell::frmPregunta& d) {
        d.lblPregunta->setText(QChar(191) + Pregunta + QChar(63));
    });
    const QString respuesta = RespuestaDialogo;
    ResaltarTitulo(Pantalla);
    return respuesta;
}

QString ElegirOpcion(const QString& Titulo, shell::Formulario& Pantalla) {
    // The options were read from Parametros by the dialog's load.
    mostrarDialogo<shell::frmOpcion>(Pantalla, true, Titulo, {});
    const QString respuesta = RespuestaDialogo;
    ResaltarTitulo(Pantalla);
    return respuesta;
}

QString PedirTexto(const QString& Titulo, const QString& Pregunta, shell::Formulario& Pantalla,
                   const QString& Valor) {
    mostrarDialogo<shell::frmIngresoTexto>(Pantalla, true, Titulo, [&](shell::frmIngresoTexto& d) {
        d.lblPregunta->setText(Pregunta);
        d.txtTexto->setText(runtime::Trim(QLatin1Char(' ') + Valor));
    });
    const QString respuesta = RespuestaDialogo;
    ResaltarTitulo(Pantalla);
    return respuesta;
}

} // namespace Common
