#include "credit/frmSolicitudArticulo.h"

#include "runtime/Conversion.h"
#include "runtime/Formato.h"
#include "shell/common/Common.h"
#include "shell/common/Twips.h"
#include "shell/controles/CamposDeTexto.h"
#include "shell/dialogos/Dialogos.h"

using namespace shell;

namespace credito {

namespace {

const QString kCantidad = QStringLiteral("#0");
const QString kImporte = QStringLiteral("#0.00");

// Parametros(i), or Empty where the array stops short of i: a caller that passes fewer elements than
// a line has gets the missing ones read as blank, never an index out of range.
QVariant parametro(int i) {
    return i <= Common::Parametros.UBound() ? Common::Parametros(i) : QVariant();
}

// A figure the dialog shows but nobody types in: framed like a field, the text where the design puts it.
QLabel* cifra(QWidget* padre, const QString& nombre, const QString& texto, Qt::Alignment alineacion,
              double left, double ancho) {
    auto* l = new QLabel(texto, padre);
    l->setObjectName(nombre);
    l->setAlignment(alineacion | Qt::AlignVCenter);
    l->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    l->setMargin(2);
    colocar(l, left, 360, ancho, 285);
    return l;
}

} // namespace

frmSolicitudArticulo::frmSolicitudArticulo()
    : DialogoDeLinea(QStringLiteral("Artículos"), 9300, 1980, 9) {
    setObjectName(QStringLiteral("frmSolicitudArticulo"));

    // Each figure under its caption, left to right.
    lblRotuloNombre = etiqueta(QStringLiteral("Descripción del artículo"), 120, 90, 4600);
    lblNombre = cifra(fraMain, QStringLiteral("lblNombre"), QString(), Qt::AlignLeft, 120, 4600);
    etiqueta(QStringLiteral("Cantidad"), 4840, 90, 1000);
    txtCantidad = campo<CajaTexto>(QStringLiteral("txtCantidad"), 4840, 360, 1000);
    txtCantidad->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    lblRotuloPrecio = etiqueta(QStringLiteral("Precio de venta"), 5960, 90, 1500);
    txtPrecio = campo<CajaTexto>(QStringLiteral("txtPrecio"), 5960, 360, 1500);
    txtPrecio->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    txtPrecio->setText(QStringLiteral("0.00"));
    etiqueta(QStringLiteral("Total"), 7580, 90, 1300);
    lblPrecioTotal =
        cifra(fraMain, QStringLiteral("lblPrecioTotal"), QStringLiteral("0.00"), Qt::AlignRight, 7580, 1300);

    crearBoton(0, QStringLiteral("&Aceptar"), 120);
    crearBoton(1, QStringLiteral("&Cancelar"), 1440);

    for (CajaTexto* caja : {txtCantidad, txtPrecio})
        SeleccionarTodoAlEntrar(caja);
    txtCantidad->alValidar([this] { txtCantidad_Validate(); });
    txtPrecio->alValidar([this] { txtPrecio_Validate(); });
}

// The line as it comes: the quantity, the article's description, and the cost plus its cash margin as
// the price proposed. A margin missing from Parametros counts 0, as a blank cell of the grid does.
void frmSolicitudArticulo::Form_Load() {
    AjustarPantalla();
    if (Common::Parametros.Vacio(1)) return;
    txtCantidad->setText(runtime::Format(parametro(8), kCantidad));
    lblNombre->setText(runtime::TextoDe(parametro(2)) + QLatin1Char(' ') + runtime::TextoDe(parametro(3)) +
                       QLatin1Char(' ') + runtime::TextoDe(parametro(4)));
    const double costo = runtime::ValNulo(parametro(5));
    const double porcentaje = runtime::ValNulo(parametro(6));
    const double margen = porcentaje > 0 ? porcentaje * costo / 100 : runtime::ValNulo(parametro(7));
    txtPrecio->setText(runtime::Format(margen + costo, kImporte));
    CalcularTotal();
}

void frmSolicitudArticulo::VestirComoConcepto() {
    lblTitulo->setText(QStringLiteral("  Concepto de cobro"));
    lblRotuloNombre->setText(QStringLiteral("Descripción del concepto de cobro"));
    lblRotuloPrecio->setText(QStringLiteral("Valor"));
    txtCantidad->setEnabled(false);
}

void frmSolicitudArticulo::CalcularTotal() {
    lblPrecioTotal->setText(
        runtime::Format(runtime::Val(txtCantidad->Text()) * runtime::Val(txtPrecio->Text()), kImporte));
}

void frmSolicitudArticulo::txtCantidad_Validate() {
    txtCantidad->setText(runtime::Format(runtime::Val(txtCantidad->Text()), kCantidad));
    CalcularTotal();
    if (runtime::Val(txtCantidad->Text()) <= 0)
        Common::MostrarMensaje(lblTitulo->text(),
                               QStringLiteral("No es posible operar la cantidad de articulos que ingreso."),
                               *this);
}

void frmSolicitudArticulo::txtPrecio_Validate() {
    txtPrecio->setText(runtime::Format(runtime::Val(txtPrecio->Text()), kImporte));
    CalcularTotal();
    if (runtime::Val(txtPrecio->Text()) <= 0)
        Common::MostrarMensaje(lblTitulo->text(), QStringLiteral("No es posible operar el Precio indicado."),
                               *this);
}

void frmSolicitudArticulo::cmdBoton_Click(int Index) {
    const QString boton = cmdBoton[Index]->text();
    if (boton == QLatin1String("&Aceptar")) {
        const double cantidad = runtime::Val(txtCantidad->Text());
        const double precio = runtime::Val(txtPrecio->Text());
        if (cantidad > 0 && precio > 0) {
            // A caller that passed a shorter array still gets both figures back.
            if (Common::Parametros.UBound() < 8) Common::Parametros.ReDimPreserve(8);
            Common::Parametros(8) = runtime::Format(cantidad, kCantidad);
            Common::Parametros(5) = runtime::Format(precio, kImporte);
            Unload();
        } else {
            Common::MostrarMensaje(
                lblTitulo->text(),
                QStringLiteral("La cantidad y el Precio del articulo deben ser ingresados."), *this);
        }
    } else if (boton == QLatin1String("&Cancelar")) {
        Anular();
    }
}

} // namespace credito
