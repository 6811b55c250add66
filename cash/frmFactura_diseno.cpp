// The layout of the invoice, in twips, all of it in the one fraMain (disabled while browsing): the
// number, date and party at the top, the lines under them, the tender beside the figures under the
// lines, and the remarks at the foot.
#include "cash/frmFactura.h"
#include "shell/common/Twips.h"
#include "shell/controles/CamposDeTexto.h"
#include "shell/controles/EnlaceDatos.h"

using namespace shell;

namespace caja {

namespace {

QLabel* recuadro(QLabel* l) {
    l->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    l->setMargin(2);
    l->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QFont negrita = l->font();
    negrita.setBold(true);
    l->setFont(negrita);
    return l;
}

// The column of figures under the lines, beside the tender: captions, then the figures, ending where
// the grid ends.
constexpr double kRotuloCifras = 5760, kCifras = 7125, kAnchoCifra = 1530;
constexpr double kFilaCifras[] = {4200, 4560, 4920};

} // namespace

void frmFactura::DisenarEncabezado() {
    etiqueta(QStringLiteral("No. Factura:"), 120, 150, 1080);
    txtNumeroFactura = campo<CajaTexto>(QStringLiteral("txtNumeroFactura"), 1240, 120, 1200);
    SoloDigitos(txtNumeroFactura);
    enlazar(txtNumeroFactura, adoFacturas, QStringLiteral("NumeroFactura"));
    etiqueta(QStringLiteral("Fecha:"), 2640, 150, 600);
    // Not bound: "Guardar" writes the date it shows, and loading an invoice leaves it as it is.
    dpFecha = campo<SelectorFecha>(QStringLiteral("dpFecha"), 3280, 120, 1500, 300);

    etiqueta(QStringLiteral("No. Solicitud:"), 120, 510, 1080);
    txtNumeroSolicitud = campo<CajaTexto>(QStringLiteral("txtNumeroSolicitud"), 1240, 480, 1200);
    cmdCliente = campo<QPushButton>(QStringLiteral("cmdCliente"), 7455, 465, 1200, 315);
    cmdCliente->setText(QStringLiteral("Cliente >"));

    txtNombreCliente = campo<CajaTexto>(QStringLiteral("txtNombreCliente"), 120, 840, 6135);
    etiqueta(QStringLiteral("NIT:"), 6375, 870, 400);
    txtNIT = campo<CajaTexto>(QStringLiteral("txtNIT"), 6815, 840, 1840);
}

void frmFactura::DisenarLineas() {
    fgDetalle = campo<GrillaDetalle>(QStringLiteral("fgDetalle"), 120, 1260, 8535, 2820);

    etiqueta(QStringLiteral("Sub-Total:"), kRotuloCifras, kFilaCifras[0] + 30, 1280);
    lblSubTotal =
        recuadro(campo<QLabel>(QStringLiteral("lblSubTotal"), kCifras, kFilaCifras[0], kAnchoCifra));
    lblSubTotal->setText(QStringLiteral("0.00"));

    // Grey and red, locked and out of the tab order: it opens only when the pointer gives it focus.
    etiqueta(QStringLiteral("Descuento:"), kRotuloCifras, kFilaCifras[1] + 30, 1280);
    txtDescuento = campo<CajaTexto>(QStringLiteral("txtDescuento"), kCifras, kFilaCifras[1], kAnchoCifra);
    txtDescuento->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    txtDescuento->setBackColor(QColor(224, 224, 224));
    txtDescuento->setForeColor(QColor(255, 0, 0));
    txtDescuento->setText(QStringLiteral("0.00"));
    txtDescuento->setLocked(true);
    txtDescuento->setTabStop(false);
    enlazar(txtDescuento, adoFacturas, QStringLiteral("Descuento"), QStringLiteral("0.00"));

    etiqueta(QStringLiteral("Total a pagar:"), kRotuloCifras, kFilaCifras[2] + 30, 1280);
    lblTotal = recuadro(campo<QLabel>(QStringLiteral("lblTotal"), kCifras, kFilaCifras[2], kAnchoCifra));
    lblTotal->setText(QStringLiteral("0.00"));
}

void frmFactura::DisenarPago() {
    panBanco = new BloquePago(*this, fraMain, 120, kFilaCifras[0], adoFacturas, lblTotal);

    etiqueta(QStringLiteral("Observaciones:"), 120, 5955, 2000);
    txtObservaciones = campo<CajaTextoMultilinea>(QStringLiteral("txtObservaciones"), 120, 6225, 8535, 810);
    txtObservaciones->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    enlazar(txtObservaciones, adoFacturas, QStringLiteral("Observaciones"));
}

void frmFactura::OrdenDeTabulacion() {
    const QList<QWidget*> orden = {txtNumeroFactura,
                                   dpFecha,
                                   txtNumeroSolicitud,
                                   cmdCliente,
                                   txtNombreCliente,
                                   txtNIT,
                                   fgDetalle,
                                   panBanco->txtEfectivo,
                                   panBanco->dacBancos,
                                   panBanco->txtNoCheque,
                                   panBanco->txtChequeValor,
                                   txtObservaciones};
    for (int i = 1; i < orden.size(); ++i)
        setTabOrder(orden[i - 1], orden[i]);
}

} // namespace caja
