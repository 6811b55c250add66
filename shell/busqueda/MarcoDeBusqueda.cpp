#include "shell/busqueda/MarcoDeBusqueda.h"

#include "shell/common/Twips.h"
#include "shell/marco/Marco.h"

namespace shell {

namespace {

void pintarFondo(QWidget* control, const QColor& color) {
    QPalette p = control->palette();
    p.setColor(QPalette::Window, color);
    p.setColor(QPalette::Button, color);
    control->setPalette(p);
    control->setAutoFillBackground(true);
}

} // namespace

void AjustarTituloYBarra(Marco& pantalla) {
    const double W = pantalla.Width(), H = pantalla.Height();
    QLabel* titulo = pantalla.lblTitulo;
    QPushButton* cierre = pantalla.cmdClose;
    titulo->setText(titulo->text() + QLatin1Char(' '));
    titulo->resize(px(W - anchoTw(cierre)), titulo->height());
    cierre->resize(cierre->width(), titulo->height());
    cierre->move(px(W - anchoTw(cierre)), cierre->y());
    colocar(pantalla.fraBarra, 0, H - altoTw(pantalla.fraBarra) - 20, W - 20, altoTw(pantalla.fraBarra));
    pintarFondo(pantalla.fraBarra, Marco::kColorBarra);
    for (QPushButton* boton : std::as_const(pantalla.cmdBoton))
        if (boton) pintarFondo(boton, Marco::kColorBarra);
}

} // namespace shell
