// The lines of the invoice (fgDetalle) and the figures under them. A line holds the article or the
// concept (hidden keys, one of them 0), the quantity, whether it came from a credit application
// (EsCredito, hidden), the description, the unit price and the line's total. Insert adds an article,
// Shift+Insert an ordinary concept, which can't stand twice; lines of credit can be neither changed nor
// removed. Every key on the grid works the figures out again; the double click does not, so its line
// shows a new total over the old figures until the next key.
//
// The chain of figures: a new sub-total gives the total (sub-total less the discount, an amount that
// may exceed it), a new total gives the change.
#include "cash/frmFactura.h"
#include "runtime/Conversion.h"
#include "runtime/Formato.h"
#include "shell/busqueda/frmBusca.h"
#include "shell/common/Common.h"
#include "shell/dialogos/Dialogos.h"

using namespace shell;

namespace caja {

namespace {

const QString kImporte = QStringLiteral("#0.00");
const QString kCantidad = QStringLiteral("#0");

enum Columna { colArticulo, colConcepto, colCantidad, colEsCredito, colDescripcion, colPrecio, colTotal };

// A line as the dialog gave it back: the key in its column, EsCredito 0, the total worked out.
QStringList LineaDelDialogo(bool articulo) {
    const auto p = [](int i) { return runtime::TextoDe(Common::Parametros(i)); };
    const double cantidad = runtime::Val(p(8)), precio = runtime::Val(p(5));
    return {articulo ? p(1) : QStringLiteral("0"),
            articulo ? QStringLiteral("0") : p(1),
            runtime::Format(Common::Parametros(8), kCantidad),
            QStringLiteral("0"),
            p(2),
            runtime::Format(Common::Parametros(5), kImporte),
            runtime::Format(precio * cantidad, kImporte)};
}

} // namespace

void frmFactura::PrepararGrilla() {
    fgDetalle->setCols(7);
    fgDetalle->setRows(2);
    const QStringList encabezados = {QString(),
                                     QString(),
                                     QStringLiteral("Cant."),
                                     QString(),
                                     QStringLiteral("Descripcion"),
                                     QStringLiteral("Precio"),
                                     QStringLiteral("Total")};
    const double anchos[] = {0, 0, 700, 0, 4800, 1200, 1400};
    for (int c = 0; c < encabezados.size(); ++c) {
        fgDetalle->setTextMatrix(0, c, encabezados[c]);
        fgDetalle->setColWidth(c, anchos[c]);
    }
    fgDetalle->setColAlignment(colCantidad, GrillaDetalle::flexAlignRightCenter);
    fgDetalle->setColAlignment(colDescripcion, GrillaDetalle::flexAlignLeftCenter);
    fgDetalle->setColAlignment(colPrecio, GrillaDetalle::flexAlignRightCenter);
    fgDetalle->setColAlignment(colTotal, GrillaDetalle::flexAlignRightCenter);
    fgDetalle->FormatoEncabezado();
}

bool frmFactura::EsLineaDeCredito(int fila) const {
    return runtime::Val(fgDetalle->TextMatrix(fila, colEsCredito)) != 0;
}

// Insert: an article from the search, its quantity and price set in the line dialog. Neither stock nor
// cost is tested: the goods leave through a delivery note. The same article may stand twice.
void frmFactura::AgregarArticulo() {
    if (!shell::Buscar(*this, QStringLiteral("Select * From vwBuscaArticulo"),
                       QStringLiteral("Busca artículos")))
        return;
    AbrirLinea(false);
    if (Common::Parametros.Vacio(1)) return;
    lineas_->AgregarFila(LineaDelDialogo(true));
}

// Shift+Insert: an ordinary concept from the pick list, whether or not an application is on the
// invoice, once at most; its value (and quantity, which may be other than 1 here) in the line dialog,
// undressed, as for an article.
void frmFactura::AgregarConcepto() {
    if (!ElegirConcepto(QStringLiteral(
            "Select ConceptoID as Codigo, Descripcion From Concepto Where ISNULL(Tipo) Order By 2,1"))) {
        sinRecalcular_ = true;
        return;
    }
    for (int fila = 1; fila < fgDetalle->Rows(); ++fila)
        if (runtime::Val(fgDetalle->TextMatrix(fila, colConcepto)) == Common::IDSeleccionado) {
            Common::MostrarMensaje(lblTitulo->text(),
                                   QStringLiteral("El concepto que desea agregar al recibo ya fue incluido."),
                                   *this);
            return;
        }
    Common::Parametros.ReDim(8);
    Common::Parametros(1) = QString::number(Common::IDSeleccionado);
    Common::Parametros(8) = 1;
    Common::Parametros(2) = Common::TextoSeleccionado;
    Common::Parametros(5) = QStringLiteral("0.00");
    AbrirLinea(false);
    if (Common::Parametros.Vacio(1)) return;
    lineas_->AgregarFila(LineaDelDialogo(false));
}

// Delete: a line of credit stays; any other goes, the grid keeping its blank row.
void frmFactura::QuitarLinea() {
    if (EsLineaDeCredito(fgDetalle->Row())) {
        Common::MostrarMensaje(
            lblTitulo->text(),
            QStringLiteral("Los artículos que pertenecen a una solicitud de crédito no pueden "
                           "ser eliminados por separado."),
            *this);
        return;
    }
    lineas_->QuitarLinea();
}

// Enter and the double click: a line typed on the invoice through the line dialog; a line of credit
// keeps the quantity and price of its application. The figures are not worked out here.
void frmFactura::fgDetalle_DblClick() {
    if (!Editando) return;
    const int fila = fgDetalle->Row();
    if (!EsLineaReal(fila)) return;
    if (EsLineaDeCredito(fila)) {
        Common::MostrarMensaje(
            lblTitulo->text(),
            QStringLiteral(
                "Los artículos que pertenecen a una solicitud de crédito no pueden ser modificados."),
            *this);
        return;
    }
    const auto celda = [this, fila](int c) { return fgDetalle->TextMatrix(fila, c); };
    const bool articulo = runtime::Val(celda(colArticulo)) > 0;
    Common::Parametros.ReDim(8);
    Common::Parametros(1) = articulo ? celda(colArticulo) : celda(colConcepto);
    Common::Parametros(8) = celda(colCantidad);
    Common::Parametros(2) = celda(colDescripcion);
    Common::Parametros(5) = celda(colPrecio);
    AbrirLinea(false);
    if (Common::Parametros.Vacio(1)) return;
    const auto p = [](int i) { return runtime::TextoDe(Common::Parametros(i)); };
    fgDetalle->setTextMatrix(fila, articulo ? colArticulo : colConcepto, p(1));
    fgDetalle->setTextMatrix(fila, colCantidad, p(8));
    fgDetalle->setTextMatrix(fila, colDescripcion, p(2));
    fgDetalle->setTextMatrix(fila, colPrecio, p(5));
    fgDetalle->setTextMatrix(fila, colTotal,
                             runtime::Format(runtime::Val(p(5)) * runtime::Val(p(8)), kImporte));
}

void frmFactura::CalcularTotal() {
    double suma = 0;
    for (int fila = 1; fila < fgDetalle->Rows(); ++fila)
        suma += runtime::Val(fgDetalle->TextMatrix(fila, colTotal));
    MostrarSubTotal(suma);
}

void frmFactura::MostrarSubTotal(double subTotal) {
    lblSubTotal->setText(runtime::Format(subTotal, kImporte));
    lblSubTotal_Change();
}

void frmFactura::MostrarTotal(double total) {
    lblTotal->setText(runtime::Format(total, kImporte));
    lblTotal_Change();
}

void frmFactura::lblSubTotal_Change() {
    MostrarTotal(runtime::Val(lblSubTotal->text()) - runtime::Val(txtDescuento->Text()));
}

void frmFactura::lblTotal_Change() {
    panBanco->CalcularVuelto();
}

// The discount opens on focus, whatever its hint says about a double click, and locks again on leaving.
void frmFactura::txtDescuento_GotFocus() {
    txtDescuento->setLocked(false);
    txtDescuento->setSelStart(0);
    txtDescuento->setSelLength(txtDescuento->Text().length());
}

void frmFactura::txtDescuento_Validate() {
    txtDescuento->setLocked(true);
    txtDescuento->setText(runtime::Format(runtime::Val(txtDescuento->Text()), kImporte));
    lblSubTotal_Change();
}

} // namespace caja
