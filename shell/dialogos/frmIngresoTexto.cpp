#include "shell/dialogos/frmIngresoTexto.h"

#include "runtime/Texto.h"
#include "shell/common/Common.h"
#include "shell/common/Twips.h"
#include "shell/dialogos/AjusteDeDialogo.h"

#include <QKeyEvent>

namespace shell {

frmIngresoTexto::frmIngresoTexto()
    : Marco(QStringLiteral("Título de la forma"), 6885, 2340) {
    setObjectName(QStringLiteral("frmIngresoTexto"));
    cmdClose->hide();

    lblPregunta = new QLabel(fraMain);
    lblPregunta->setObjectName(QStringLiteral("lblPregunta"));
    lblPregunta->setTextFormat(Qt::PlainText);
    lblPregunta->setWordWrap(true);
    lblPregunta->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    colocar(lblPregunta, 120, 120, 6375, 540);

    // Created before the buttons, so it comes first in the tab order and has the focus on showing.
    txtTexto = new QLineEdit(fraMain);
    txtTexto->setObjectName(QStringLiteral("txtTexto"));
    colocar(txtTexto, 120, 720, 6375, 315);

    crearBoton(0, QStringLiteral("Aceptar"), 120);
    crearBoton(1, QStringLiteral("Cancelar"), 1440);
}

void frmIngresoTexto::Form_Load() {
    AjustarDialogo(*this);
    Common::RespuestaDialogo = QStringLiteral("Cancelar");
    Common::TextoSeleccionado.clear();
}

void frmIngresoTexto::cmdBoton_Click(int Index) {
    const QString caption = cmdBoton[Index]->text();
    if (caption == QLatin1String("Aceptar")) {
        Common::RespuestaDialogo = QStringLiteral("Aceptar");
        Common::TextoSeleccionado = runtime::Trim(txtTexto->text());
        Unload();
    } else if (caption == QLatin1String("Cancelar")) {
        Common::RespuestaDialogo = QStringLiteral("Cancelar");
        Unload();
    }
}

void frmIngresoTexto::txtTexto_GotFocus() {
    txtTexto->selectAll();
}

// "Aceptar" is the default button and "Cancelar" the cancel button: Enter and Escape reach here from
// any control that doesn't take them itself (a focused button presses itself on Enter).
void frmIngresoTexto::keyPressEvent(QKeyEvent* evento) {
    switch (evento->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        cmdBoton[0]->click();
        return;
    case Qt::Key_Escape:
        cmdBoton[1]->click();
        return;
    default:
        Marco::keyPressEvent(evento);
    }
}

bool frmIngresoTexto::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto == txtTexto && evento->type() == QEvent::FocusIn)
        Common::Manejar([this] { txtTexto_GotFocus(); });
    return Marco::eventFilter(objeto, evento);
}

} // namespace shell
