// The layout of the delivery note, in twips, all of it in the one fraMain (disabled while browsing):
// the note's number and date, the document it delivers (its kind, number, customer and the delivery
// address), the articles, their total and the remarks.
#include "goods/frmNotaEnvio.h"
#include "shell/common/Twips.h"
#include "shell/controles/CamposDeTexto.h"
#include "shell/controles/EnlaceDatos.h"

using namespace shell;

namespace mercaderia {

namespace {

// The grid: hidden ArticuloID, the description, the quantity; the grid itself a scroll bar wider.
const double kAnchos[] = {0, 7600, 900};

} // namespace

void frmNotaEnvio::Disenar() {
    etiqueta(QStringLiteral("No. Envío:"), 120, 150, 1080);
    txtNumeroNota = campo<CajaTexto>(QStringLiteral("txtNumeroNota"), 1240, 120, 1200);
    SoloDigitos(txtNumeroNota);
    enlazar(txtNumeroNota, adoNota, QStringLiteral("NumeroNota"));
    etiqueta(QStringLiteral("Fecha:"), 2640, 150, 600);
    // Not bound: "Guardar" writes the date it shows.
    dpFecha = campo<SelectorFecha>(QStringLiteral("dpFecha"), 3280, 120, 1500, 300);

    optTipo = new ArregloDeOpciones(QStringLiteral("optTipo"), this);
    optTipo->agregar(0, QStringLiteral("Solicitud"), fraMain, 120, 510, 1200);
    optTipo->agregar(1, QStringLiteral("Factura"), fraMain, 1440, 510, 1100);
    optTipo->agregar(2, QStringLiteral("Recibo"), fraMain, 2640, 510, 1000);
    txtNumeroDocumento = campo<CajaTexto>(QStringLiteral("txtNumeroDocumento"), 3780, 480, 1200);
    txtNumeroDocumento->setAlignment(Qt::AlignRight | Qt::AlignVCenter);

    etiqueta(QStringLiteral("Nombre:"), 120, 870, 1080);
    txtNombreCliente = campo<CajaTexto>(QStringLiteral("txtNombreCliente"), 1240, 840, 7745);
    txtNombreCliente->setLocked(true);
    etiqueta(QStringLiteral("Dirección:"), 120, 1230, 1080);
    txtDireccion = campo<CajaTexto>(QStringLiteral("txtDireccion"), 1240, 1200, 7745);
    enlazar(txtDireccion, adoNota, QStringLiteral("Direccion"));
    for (CajaTexto* caja : {txtNumeroNota, txtNumeroDocumento, txtNombreCliente, txtDireccion})
        SeleccionarTodoAlEntrar(caja);

    fgDetalle = campo<GrillaDetalle>(QStringLiteral("fgDetalle"), 120, 1620, 8865, 2700);

    etiqueta(QStringLiteral("Total de artículos a entregar"), 5160, 4440, 2500);
    lblSaldo = campo<QLabel>(QStringLiteral("lblSaldo"), 7785, 4410, 1200);
    lblSaldo->setText(QStringLiteral("0"));
    lblSaldo->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    lblSaldo->setMargin(2);
    lblSaldo->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QFont negrita = lblSaldo->font();
    negrita.setBold(true);
    lblSaldo->setFont(negrita);

    etiqueta(QStringLiteral("OBSERVACIONES"), 120, 4800, 2000);
    txtObservaciones = campo<CajaTextoMultilinea>(QStringLiteral("txtObservaciones"), 120, 5070, 8865, 810);
    txtObservaciones->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    enlazar(txtObservaciones, adoNota, QStringLiteral("Observaciones"));

    const QList<QWidget*> orden = {
        txtNumeroNota,      dpFecha,          (*optTipo)(0), (*optTipo)(1), (*optTipo)(2),
        txtNumeroDocumento, txtNombreCliente, txtDireccion,  fgDetalle,     txtObservaciones};
    for (int i = 1; i < orden.size(); ++i)
        setTabOrder(orden[i - 1], orden[i]);
}

// Three columns, the headings bold and centred, one blank row.
void frmNotaEnvio::PrepararGrilla() {
    fgDetalle->setCols(3);
    fgDetalle->setRows(2);
    const QStringList encabezados = {QString(), QStringLiteral("Descripción del artículo"),
                                     QStringLiteral("Cant.")};
    for (int c = 0; c < encabezados.size(); ++c) {
        fgDetalle->setTextMatrix(0, c, encabezados[c]);
        fgDetalle->setColWidth(c, kAnchos[c]);
    }
    fgDetalle->setColAlignment(0, GrillaDetalle::flexAlignRightCenter);
    fgDetalle->setColAlignment(1, GrillaDetalle::flexAlignLeftCenter);
    fgDetalle->setColAlignment(2, GrillaDetalle::flexAlignRightCenter);
    fgDetalle->FormatoEncabezado();
}

} // namespace mercaderia
