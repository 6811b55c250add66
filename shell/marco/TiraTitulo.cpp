#include "shell/marco/TiraTitulo.h"

#include <QMouseEvent>

namespace shell {

TiraTitulo::TiraTitulo(QWidget* parent)
    : QLabel(parent) {
    setMouseTracking(true);
    setAutoFillBackground(true);
    setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void TiraTitulo::mouseMoveEvent(QMouseEvent* evento) {
    const QPointF p = evento->position();
    if (evento->buttons() != Qt::LeftButton) {
        origen_ = p;
        return;
    }
    QWidget* ventana = window();
    ventana->move(ventana->pos() + (p - origen_).toPoint());
}

} // namespace shell
