#pragma once

#include <QtGlobal>

// Screen lengths are given in twips, 1,440 to the inch: 15 to a pixel at 96 dpi.
namespace shell {

constexpr double kTwipsPorPixel = 15.0;

inline int px(double twips) {
    return qRound(twips / kTwipsPorPixel);
}

inline double twips(int pixeles) {
    return pixeles * kTwipsPorPixel;
}

} // namespace shell

#include <QWidget>

namespace shell {

// A control's place and size in twips, as the screens give them.
inline void colocar(QWidget* control, double left, double top, double ancho, double alto) {
    control->setGeometry(px(left), px(top), px(ancho), px(alto));
}
inline double leftTw(const QWidget* c) {
    return twips(c->x());
}
inline double topTw(const QWidget* c) {
    return twips(c->y());
}
inline double anchoTw(const QWidget* c) {
    return twips(c->width());
}
inline double altoTw(const QWidget* c) {
    return twips(c->height());
}

} // namespace shell
