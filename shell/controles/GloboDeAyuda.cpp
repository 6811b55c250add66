#include "shell/controles/GloboDeAyuda.h"

#include "shell/common/CustomToolTip.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>

namespace shell {

namespace {

// The frame of the balloon, the stock dark grey brush.
const QColor kMarco(64, 64, 64);
// Where the window stands from the pointer.
const QPoint kDesdeElPuntero(-2, 20);
// The corner ellipses of the body, 15 x 15.
constexpr qreal kRadioEsquina = 7.5;

} // namespace

GloboDeAyuda::GloboDeAyuda(QWidget& control, const QString& texto, QWidget& pantalla)
    : QWidget(&pantalla, Qt::ToolTip | Qt::FramelessWindowHint)
    , control_(&control)
    , texto_(texto) {
    setObjectName(QStringLiteral("GloboDeAyuda"));
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    QFont letra(QStringLiteral("Tahoma"));
    letra.setPixelSize(13);
    letra.setWeight(QFont::Normal);
    setFont(letra);
    setPalette(QToolTip::palette());
    control.installEventFilter(this);
}

QString GloboDeAyuda::textoAMostrar() const {
    QString texto = texto_;
    return texto.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

QSize GloboDeAyuda::sizeHint() const {
    const QRect medida = QFontMetrics(font()).boundingRect(QRect(), Qt::AlignLeft, textoAMostrar());
    return {medida.width() + 2 * kMargen, medida.height() + kAltoCola + 2 * kMargen};
}

QRect GloboDeAyuda::rectanguloDelTexto() const {
    return rect().adjusted(kMargen, kAltoCola + kMargen, -kMargen, -kMargen);
}

void GloboDeAyuda::MostrarEn(const QPoint& puntero) {
    resize(sizeHint());
    move(puntero + kDesdeElPuntero);
    show();
}

void GloboDeAyuda::PintarGlobo() {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    // Drawn on the pixels' centres, so that the one-pixel frame stands inside the window.
    const QRectF r = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    // The tail, its point at the top, standing on the body from 8 to 16 pixels from the left.
    QPainterPath cola;
    cola.moveTo(r.left() + kMargen, r.top());
    cola.lineTo(r.left() + kMargen, r.top() + kAltoCola);
    cola.lineTo(r.left() + 2 * kMargen, r.top() + kAltoCola);
    cola.closeSubpath();
    QPainterPath cuerpo;
    cuerpo.addRoundedRect(r.adjusted(0, kAltoCola, 0, 0), kRadioEsquina, kRadioEsquina);
    p.setPen(QPen(kMarco, 1));
    p.setBrush(palette().color(QPalette::ToolTipBase));
    p.drawPath(cuerpo.united(cola));

    const QString texto = textoAMostrar();
    const QRect area = rectanguloDelTexto();
    p.setPen(palette().color(QPalette::Midlight));
    p.drawText(area, Qt::AlignLeft | Qt::AlignVCenter, texto);
    p.setPen(palette().color(QPalette::ToolTipText));
    p.drawText(area.translated(-1, -1), Qt::AlignLeft | Qt::AlignVCenter, texto);
}

bool GloboDeAyuda::event(QEvent* evento) {
    return Common::CustomToolTip(*this, evento);
}

bool GloboDeAyuda::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto != control_) return false;
    switch (evento->type()) {
    case QEvent::ToolTip:
        MostrarEn(static_cast<QHelpEvent*>(evento)->globalPos());
        return true; // in place of the platform's hint
    case QEvent::Leave:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::Hide:
        hide();
        break;
    default:
        break;
    }
    return false;
}

} // namespace shell
