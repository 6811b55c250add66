// The layout of the receipt, in twips: fraMain(0) with who pays and the application's balances,
// the lines and their total on the screen itself (live while browsing), fraMain(1) with the concept
// and the tender.
#include "cash/frmRecibo.h"
#include "shell/common/Twips.h"
#include "shell/controles/CamposDeTexto.h"
#include "shell/controles/EnlaceDatos.h"

using namespace shell;

namespace caja {

namespace {

QLabel* recuadro(QLabel* l) {
    l->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    l->setMargin(2);
    return l;
}

} // namespace

void frmRecibo::DisenarEncabezado() {
    fraMain->setObjectName(QStringLiteral("fraMain(0)"));
    colocar(fraMain, 120, 450, 8895, 1980);

    etiqueta(QStringLiteral("No. Recibo:"), 120, 150, 1080);
    txtNumeroRecibo = campo<CajaTexto>(QStringLiteral("txtNumeroRecibo"), 1240, 120, 1200);
    SoloDigitos(txtNumeroRecibo);
    enlazar(txtNumeroRecibo, adoRecibos, QStringLiteral("NumeroRecibo"));
    etiqueta(QStringLiteral("Fecha:"), 2640, 150, 600);
    dpFecha = campo<SelectorFecha>(QStringLiteral("dpFecha"), 3280, 120, 1500, 300);

    etiqueta(QStringLiteral("No. Solicitud:"), 120, 510, 1080);
    txtNumeroSolicitud = campo<CajaTexto>(QStringLiteral("txtNumeroSolicitud"), 1240, 480, 1200);
    etiqueta(QStringLiteral("Código:"), 2640, 510, 600);
    lblCodigo = recuadro(campo<QLabel>(QStringLiteral("lblCodigo"), 3280, 480, 1500));
    cmdCliente = campo<QPushButton>(QStringLiteral("cmdCliente"), 7575, 465, 1200, 315);
    cmdCliente->setText(QStringLiteral("Cliente >"));

    txtNombreCliente = campo<CajaTexto>(QStringLiteral("txtNombreCliente"), 120, 840, 8655);

    // The headings and one row of figures, whole: nothing to scroll.
    fgSaldos = campo<GrillaDetalle>(QStringLiteral("fgSaldos"), 120, 1260, 8520, 555);
    fgSaldos->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    fgSaldos->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    fgSaldos->setSelectionMode(QAbstractItemView::NoSelection);
}

void frmRecibo::DisenarLineas() {
    fgDetalle = new GrillaDetalle(this);
    fgDetalle->setObjectName(QStringLiteral("fgDetalle"));
    colocar(fgDetalle, 120, 2550, 8895, 2400);
    auto* rotulo = new QLabel(QStringLiteral("Total a pagar:"), this);
    colocar(rotulo, 5880, 5040, 1280, 255);
    lblTotal = recuadro(new QLabel(QStringLiteral("0.00"), this));
    lblTotal->setObjectName(QStringLiteral("lblTotal"));
    lblTotal->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QFont negrita = lblTotal->font();
    negrita.setBold(true);
    lblTotal->setFont(negrita);
    colocar(lblTotal, 7215, 5010, 1800, 285);
}

void frmRecibo::DisenarPago() {
    fraMain1 = new QFrame(this);
    fraMain1->setObjectName(QStringLiteral("fraMain(1)"));
    fraMain1->setFrameShape(QFrame::StyledPanel);
    fraMain1->setPalette(fraMain->palette());
    colocar(fraMain1, 120, 5400, 8895, 1845);
    HabilitarAlEditar(fraMain1);

    etiquetaEn(fraMain1, QStringLiteral("En concepto de:"), 120, 90, 3240);
    txtConcepto = campoEn<CajaTextoMultilinea>(fraMain1, QStringLiteral("txtConcepto"), 120, 360, 3240, 1365);
    txtConcepto->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    enlazar(txtConcepto, adoRecibos, QStringLiteral("Concepto"));

    panBanco = new BloquePago(*this, fraMain1, 3480, 120, adoRecibos, lblTotal);
}

// The order Tab goes through the two frames and the grid between them; the balances come last.
void frmRecibo::OrdenDeTabulacion() {
    const QList<QWidget*> orden = {txtNumeroRecibo,       dpFecha,
                                   txtNumeroSolicitud,    cmdCliente,
                                   txtNombreCliente,      fgDetalle,
                                   panBanco->txtEfectivo, panBanco->dacBancos,
                                   panBanco->txtNoCheque, panBanco->txtChequeValor,
                                   txtConcepto,           fgSaldos};
    for (int i = 1; i < orden.size(); ++i)
        setTabOrder(orden[i - 1], orden[i]);
}

} // namespace caja
