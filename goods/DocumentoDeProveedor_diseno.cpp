// The layout both supplier documents share, in twips: the number, date, supplier and description in
// fraMain, the lines below it on the screen itself (so that they scroll while browsing), and the total
// under them.
#include "goods/DocumentoDeProveedor.h"
#include "shell/common/Twips.h"
#include "shell/controles/EnlaceDatos.h"

using namespace shell;

namespace mercaderia {

namespace {

QLabel* recuadro(QLabel* l) {
    l->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    l->setMargin(2);
    return l;
}

} // namespace

void DocumentoDeProveedor::Disenar() {
    setColocarFraMain(false);
    colocar(fraMain, 120, 450, 9360, 1290);

    etiqueta(textos_.etiquetaNumero, 120, 150, 1300);
    txtNumero = campo<CajaTexto>(textos_.nombreNumero, 1480, 120, 1400);
    txtNumero->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    enlazar(txtNumero, datos, textos_.columnaNumero);
    etiqueta(QStringLiteral("Fecha:"), 3160, 150, 600);
    dpFecha = campo<SelectorFecha>(QStringLiteral("dpFecha"), 3800, 120, 1500, 300);

    cmdProveedor = campo<QPushButton>(QStringLiteral("cmdProveedor"), 120, 465, 1300, 315);
    cmdProveedor->setText(QStringLiteral("Proveedor >"));
    lblNombre = recuadro(campo<QLabel>(QStringLiteral("lblNombre"), 1480, 480, 7740));
    lblNombre->setText(QStringLiteral("Nombre del proveedor"));

    etiqueta(QStringLiteral("Descripcion:"), 120, 870, 1300);
    txtDescripcion = campo<CajaTexto>(QStringLiteral("txtDescripcion"), 1480, 840, 7740);
    enlazar(txtDescripcion, datos, QStringLiteral("Descripcion"));

    fgDetalle = new GrillaDetalle(this);
    fgDetalle->setObjectName(QStringLiteral("fgDetalle"));
    colocar(fgDetalle, 120, 1860, 9360, 3900);

    auto* rotulo = new QLabel(textos_.etiquetaTotal, this);
    rotulo->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    colocar(rotulo, 3600, 5880, 3960, 255);
    lblTotal = recuadro(new QLabel(QStringLiteral("0.00"), this));
    lblTotal->setObjectName(QStringLiteral("lblTotal"));
    lblTotal->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QFont negrita = lblTotal->font();
    negrita.setBold(true);
    lblTotal->setFont(negrita);
    colocar(lblTotal, 7680, 5850, 1800, 285);

    const QList<QWidget*> orden = {txtNumero, dpFecha, cmdProveedor, txtDescripcion, fgDetalle};
    for (int i = 1; i < orden.size(); ++i)
        setTabOrder(orden[i - 1], orden[i]);
}

} // namespace mercaderia
