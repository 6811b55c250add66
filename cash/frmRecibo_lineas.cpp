// The application's balances (fgSaldos, as the view gives them) and the receipt's lines (fgDetalle):
// hidden concept and article keys, quantity, description, value and total. Nothing divides a payment:
// each concept picked proposes the pending figure of its Tipo, which the clerk may then change in the
// line dialog. Neither grid updates the other, but for the mora added here.
#include "cash/frmRecibo.h"
#include "runtime/Conversion.h"
#include "runtime/Formato.h"
#include "shell/busqueda/frmBusca.h"
#include "shell/common/Common.h"
#include "shell/common/Twips.h"
#include "shell/dialogos/Dialogos.h"
#include "store/Numeracion.h"

using namespace shell;

namespace caja {

namespace {

const QString kImporte = QStringLiteral("#0.00");

enum Columna { colConcepto, colArticulo, colCantidad, colDescripcion, colValor, colTotal };
enum Saldo { salEnganche, salPrimerPago, salSaldo, salCuota, salMora };

enum Tipo { tipoOrdinario = 0, tipoEnganche = 1, tipoPrimerPago = 2, tipoCuota = 3, tipoMora = 4 };

} // namespace

void frmRecibo::PrepararGrillas() {
    fgSaldos->resize(fgSaldos->width() - px(100), fgSaldos->height());
    fgSaldos->setCols(5);
    fgSaldos->setRows(2);
    const QStringList saldos = {QStringLiteral("Enganche"), QStringLiteral("Primer Pago"),
                                QStringLiteral("Saldo"), QStringLiteral("Cuota Mens."),
                                QStringLiteral("Mora")};
    for (int c = 0; c < saldos.size(); ++c) {
        fgSaldos->setTextMatrix(0, c, saldos[c]);
        fgSaldos->setColWidth(c, 1680);
        fgSaldos->setColAlignment(c, GrillaDetalle::flexAlignRightCenter);
    }
    fgSaldos->FormatoEncabezado();

    fgDetalle->setCols(6);
    fgDetalle->setRows(2);
    const QStringList encabezados = {QString(),
                                     QString(),
                                     QStringLiteral("Cant."),
                                     QStringLiteral("Descripcion"),
                                     QStringLiteral("Valor"),
                                     QStringLiteral("Total")};
    const double anchos[] = {0, 0, 700, 4600, 1200, 1600};
    for (int c = 0; c < encabezados.size(); ++c) {
        fgDetalle->setTextMatrix(0, c, encabezados[c]);
        fgDetalle->setColWidth(c, anchos[c]);
    }
    fgDetalle->setColAlignment(colCantidad, GrillaDetalle::flexAlignRightCenter);
    fgDetalle->setColAlignment(colDescripcion, GrillaDetalle::flexAlignLeftCenter);
    fgDetalle->setColAlignment(colValor, GrillaDetalle::flexAlignRightCenter);
    fgDetalle->setColAlignment(colTotal, GrillaDetalle::flexAlignRightCenter);
    fgDetalle->FormatoEncabezado();
}

void frmRecibo::AgregarLinea(const QString& concepto, const QString& articulo, double cantidad,
                             const QString& descripcion, double valor) {
    lineas_->AgregarFila({concepto, articulo, runtime::TextoDe(cantidad), descripcion,
                          runtime::Format(valor, kImporte), runtime::Format(cantidad * valor, kImporte)});
    CalcularTotal();
}

// Insert: a concept from the pick list (every concept for an application, the ordinary ones for any
// other receipt), its value proposed by its Tipo from the balances. A concept already on the receipt
// goes in again at 0.00, for the clerk to edit or delete.
void frmRecibo::AgregarConcepto() {
    if (!ElegirConcepto(QStringLiteral("Select ConceptoID as Codigo, Descripcion From Concepto ") +
                        (SolicitudID < 1 ? QStringLiteral("Where IsNull(Tipo)") : QString()) +
                        QStringLiteral("Order By 2,1")))
        return;
    const QString clave = QString::number(Common::IDSeleccionado);
    const QString descripcion = Common::TextoSeleccionado;
    const auto saldo = [this](Saldo columna) { return runtime::Val(fgSaldos->TextMatrix(1, columna)); };
    const auto cancelado = [this](const QString& mensaje) {
        Common::MostrarMensaje(lblTitulo->text(), mensaje, *this);
    };

    bool repetido = false;
    for (int fila = 1; fila < fgDetalle->Rows(); ++fila)
        repetido =
            repetido || runtime::Val(fgDetalle->TextMatrix(fila, colConcepto)) == Common::IDSeleccionado;
    double valor = 0;
    if (!repetido) {
        switch (store::TipoConcepto(Common::DE().CN, Common::IDSeleccionado)) {
        case tipoOrdinario:
            Common::Parametros.ReDim(9);
            Common::Parametros(1) = clave;
            Common::Parametros(8) = QStringLiteral("1.00");
            Common::Parametros(2) = descripcion;
            Common::Parametros(5) = QStringLiteral("0.00");
            AbrirLinea(true);
            if (Common::Parametros.Vacio(1)) return;
            valor = runtime::Val(runtime::TextoDe(Common::Parametros(5)));
            break;
        case tipoEnganche:
            if (saldo(salEnganche) <= 0)
                return cancelado(QStringLiteral("El valor del enganche ya fue cancelado."));
            valor = saldo(salEnganche);
            break;
        case tipoPrimerPago:
            if (saldo(salPrimerPago) <= 0)
                return cancelado(QStringLiteral("El valor del primer pago ya fue cancelado."));
            valor = saldo(salPrimerPago);
            break;
        case tipoCuota:
            // The balance is tested; the instalment is what is proposed.
            if (saldo(salSaldo) <= 0)
                return cancelado(QStringLiteral("El valor del saldos ya fue cancelado."));
            valor = saldo(salCuota);
            break;
        case tipoMora:
            // No amount added: a line of 0.00 all the same. Added with no instalment: accumulated only.
            if (AgregarMora()) {
                if (saldo(salCuota) <= 0) return;
                if (Common::Preguntar(
                        lblTitulo->text(),
                        QStringLiteral("[Aceptar]: Agrega al recibo actual\r\n[Cancelar]: Acumula al "
                                       "saldo de mora"),
                        *this) != QLatin1String("Aceptar"))
                    return;
                valor = saldo(salMora);
            }
            break;
        default:
            break;
        }
    }
    AgregarLinea(clave, QStringLiteral("0"), 1, descripcion, valor);
}

// Shift+Insert: an article from the search, its quantity and value set in the dialog. Neither stock
// nor cost is tested: the goods leave through a delivery note. A search closed without a pick adds a
// line of zeros, which the next line replaces.
void frmRecibo::AgregarArticulo() {
    QString articulo = QStringLiteral("0"), descripcion;
    double cantidad = 0, valor = 0;
    if (shell::Buscar(*this, QStringLiteral("Select * From vwBuscaArticulo"),
                      QStringLiteral("Busca artículos"))) {
        AbrirLinea(false);
        if (Common::Parametros.Vacio(1)) return;
        const auto p = [](int i) { return runtime::TextoDe(Common::Parametros(i)); };
        articulo = p(1);
        cantidad = runtime::CLng(runtime::Val(p(8)));
        descripcion = p(2);
        valor = runtime::Val(p(5));
    }
    AgregarLinea(QStringLiteral("0"), articulo, cantidad, descripcion, valor);
}

// Enter and the double click: the line through the dialog, dressed for a concept unless it is an
// article line. This is how a partial payment is entered: the value proposed is changed here, with no
// limit against the balance. The double click works while browsing too, on what the screen shows.
void frmRecibo::fgDetalle_DblClick() {
    const int fila = fgDetalle->Row();
    if (!EsLineaReal(fila)) return;
    const auto celda = [this, fila](int c) { return fgDetalle->TextMatrix(fila, c); };
    const bool esArticulo = runtime::Val(celda(colArticulo)) > 0;
    Common::Parametros.ReDim(9);
    Common::Parametros(1) =
        runtime::TextoDe(runtime::Val(celda(colConcepto)) + runtime::Val(celda(colArticulo)));
    Common::Parametros(8) = runtime::Val(celda(colCantidad));
    Common::Parametros(2) = celda(colDescripcion);
    Common::Parametros(5) = runtime::Format(runtime::Val(celda(colValor)), kImporte);
    AbrirLinea(!esArticulo);
    if (!Common::Parametros.Vacio(1)) {
        const auto p = [](int i) { return runtime::TextoDe(Common::Parametros(i)); };
        fgDetalle->setTextMatrix(fila, esArticulo ? colArticulo : colConcepto, p(1));
        fgDetalle->setTextMatrix(fila, colCantidad, p(8));
        fgDetalle->setTextMatrix(fila, colDescripcion, p(2));
        fgDetalle->setTextMatrix(fila, colValor, p(5));
        fgDetalle->setTextMatrix(fila, colTotal,
                                 runtime::Format(runtime::Val(p(8)) * runtime::Val(p(5)), kImporte));
    }
    CalcularTotal();
}

// Mora added to the application at once, inside the receipt's transaction: "Guardar" keeps it and
// "Cancelar" undoes it. Only while editing a receipt of an application.
bool frmRecibo::AgregarMora() {
    if (!Editando || SolicitudID < 1) return false;
    if (Common::PedirTexto(
            lblTitulo->text(),
            QStringLiteral("Ingrese el monto de la mora que desea agregar a esta solicitud de crédito"),
            *this, QStringLiteral("0.00")) != QLatin1String("Aceptar"))
        return false;
    const double monto = runtime::Val(Common::TextoSeleccionado);
    if (monto <= 0) {
        Common::MostrarMensaje(lblTitulo->text(),
                               QStringLiteral("El monto de mora que ingresó no es válido."), *this);
        return false;
    }
    Common::DE().CN.Execute(QStringLiteral("Update Solicitud Set Mora = Mora + ") + runtime::TextoDe(monto) +
                            QStringLiteral(" Where SolicitudID = ") + QString::number(SolicitudID));
    fgSaldos->setTextMatrix(
        1, salMora, runtime::Format(runtime::Val(fgSaldos->TextMatrix(1, salMora)) + monto, kImporte));
    return true;
}

void frmRecibo::CalcularTotal() {
    double total = 0;
    for (int fila = 1; fila < fgDetalle->Rows(); ++fila)
        total += runtime::Val(fgDetalle->TextMatrix(fila, colTotal));
    lblTotal->setText(runtime::Format(total, kImporte));
    panBanco->CalcularVuelto();
}

} // namespace caja
