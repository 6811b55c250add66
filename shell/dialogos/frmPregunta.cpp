#include "shell/dialogos/frmPregunta.h"

#include "shell/common/Common.h"
#include "shell/common/Twips.h"
#include "shell/dialogos/AjusteDeDialogo.h"

namespace shell {

frmPregunta::frmPregunta()
    : Marco(QStringLiteral("Título de la forma"), 6885, 2250) {
    setObjectName(QStringLiteral("frmPregunta"));
    cmdClose->hide();

    lblPregunta = new QLabel(fraMain);
    lblPregunta->setObjectName(QStringLiteral("lblPregunta"));
    lblPregunta->setTextFormat(Qt::PlainText);
    lblPregunta->setWordWrap(true);
    lblPregunta->setAlignment(Qt::AlignCenter);
    colocar(lblPregunta, 120, 120, 6375, 810);

    crearBoton(0, QStringLiteral("Aceptar"), 120);
    crearBoton(1, QStringLiteral("Cancelar"), 1440);
}

void frmPregunta::Form_Load() {
    AjustarDialogo(*this);
    Common::RespuestaDialogo = QStringLiteral("Cancelar");
}

void frmPregunta::cmdBoton_Click(int Index) {
    const QString caption = cmdBoton[Index]->text();
    if (caption == QLatin1String("Aceptar")) {
        Common::RespuestaDialogo = QStringLiteral("Aceptar");
        Unload();
    } else if (caption == QLatin1String("Cancelar")) {
        Common::RespuestaDialogo = QStringLiteral("Cancelar");
        Unload();
    }
}

} // namespace shell
