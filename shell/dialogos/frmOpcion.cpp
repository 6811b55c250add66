#include "shell/dialogos/frmOpcion.h"

#include "runtime/Conversion.h"
#include "runtime/Texto.h"
#include "shell/common/Common.h"
#include "shell/common/Twips.h"

namespace shell {

namespace {

constexpr double kDerecha = 180; // what fraMain and the window leave right of and below their contents

} // namespace

frmOpcion::frmOpcion()
    : Marco(QStringLiteral("Título de la forma"), 4800, 1485) {
    setObjectName(QStringLiteral("frmOpcion"));
    fraBarra->hide();
    cmdClose->setToolTip(QStringLiteral("Cerrar esta ventana"));
    colocar(fraMain, 120, 450, 4500, 855);

    QPushButton* primero = crearBoton(0, QStringLiteral("Opciones multiples"), 240);
    primero->setParent(fraMain);
    colocar(primero, 240, 240, 4080, 375);
    primero->show();
}

void frmOpcion::Form_Load() {
    CrearOpciones();
    AjustarOpciones();
}

void frmOpcion::CrearOpciones() {
    int LargoMayor = 0;
    for (int i = 0; i <= Common::Parametros.UBound() - 1; ++i) {
        if (i > 0) {
            cargarBoton(i);
            cmdBoton[i]->move(cmdBoton[i]->x(), px(altoTw(cmdBoton[0]) + topTw(cmdBoton[i - 1]) + 120));
        }
        const QString opcion = runtime::TextoDe(Common::Parametros(i + 1));
        if (runtime::Len(opcion) > LargoMayor) LargoMayor = runtime::Len(opcion);
        cmdBoton[i]->setText(opcion);
        cmdBoton[i]->show();
    }
    // The width is worked out in 16-bit integers: a text too long to fit is an overflow.
    const int ancho = LargoMayor * 160 + 350;
    if (ancho > 32767) throw store::Fallo(6, QStringLiteral("Desbordamiento"));
    for (QPushButton* boton : cmdBoton)
        boton->resize(px(ancho), boton->height());
}

void frmOpcion::AjustarOpciones() {
    const QPushButton* ultimo = cmdBoton.last();
    const QPushButton* primero = cmdBoton.first();
    fraMain->resize(fraMain->width(), px(altoTw(ultimo) + topTw(ultimo) + 240));
    fraMain->resize(px(anchoTw(primero) + leftTw(primero) + kDerecha), fraMain->height());
    setHeight(altoTw(fraMain) + topTw(fraMain) + kDerecha);
    setWidth(anchoTw(fraMain) + leftTw(fraMain) + kDerecha);
    lblTitulo->setText(lblTitulo->text() + QLatin1Char(' '));
    lblTitulo->resize(px(Width()), lblTitulo->height());
    cmdClose->resize(cmdClose->width(), px(altoTw(lblTitulo) - 30));
    cmdClose->move(px(Width() - anchoTw(cmdClose)), cmdClose->y());
}

void frmOpcion::cargarBoton(int indice) {
    const QPushButton* modelo = cmdBoton[0];
    QPushButton* boton = crearBoton(indice, modelo->text(), leftTw(modelo), false, anchoTw(modelo));
    boton->setParent(fraMain);
    boton->setGeometry(modelo->geometry());
    boton->setIcon(modelo->icon()); // a copy of the first button, not the picture of an option's caption
    boton->hide();
}

void frmOpcion::cmdBoton_Click(int Index) {
    Common::RespuestaDialogo = cmdBoton[Index]->text();
    Unload();
}

void frmOpcion::cmdClose_Click() {
    Common::RespuestaDialogo = QStringLiteral("Cancelar");
    Unload();
}

} // namespace shell
