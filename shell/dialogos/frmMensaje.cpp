#include "shell/dialogos/frmMensaje.h"

#include "shell/common/Twips.h"

namespace shell {

frmMensaje::frmMensaje()
    : Marco(QStringLiteral("Título de la forma"), 6885, 1590) {
    setObjectName(QStringLiteral("frmMensaje"));
    fraBarra->hide();
    cmdClose->setToolTip(QStringLiteral("Cerrar esta ventana"));

    lblMensaje = new QLabel(fraMain);
    lblMensaje->setObjectName(QStringLiteral("lblMensaje"));
    // The driver's text of a failure may hold anything; it is shown as it stands, never as markup.
    lblMensaje->setTextFormat(Qt::PlainText);
    lblMensaje->setWordWrap(true);
    lblMensaje->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    // Three lines of its own font and no more: a fourth is cut off whole, not half shown.
    const double alto = twips(3 * lblMensaje->fontMetrics().lineSpacing());
    colocar(lblMensaje, 120, 120, 6375, alto);
    setHeight(altoTw(lblTitulo) + 120 + 120 + alto + 120 + 120);
}

void frmMensaje::Form_Load() {
    const double W = Width(), H = Height();
    lblTitulo->setText(lblTitulo->text() + QLatin1Char(' '));
    lblTitulo->resize(px(W), lblTitulo->height());
    cmdClose->resize(cmdClose->width(), px(altoTw(lblTitulo) - 30));
    cmdClose->move(px(W - anchoTw(cmdClose)), cmdClose->y());
    const double arriba = altoTw(lblTitulo) + 120;
    colocar(fraMain, 120, arriba, W - 270, H - arriba - 120);
}

} // namespace shell
