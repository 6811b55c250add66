#include "goods/frmNotaIngreso.h"

#include "catalogs/Articulos.h"
#include "runtime/Conversion.h"
#include "runtime/Formato.h"
#include "shell/common/Common.h"
#include "shell/dialogos/Dialogos.h"
#include "store/Recordset.h"

using namespace shell;

namespace mercaderia {

namespace {

TextosDeDocumento textosDeIngreso() {
    TextosDeDocumento t;
    t.titulo = QStringLiteral("Ingresos de mercadería");
    t.etiquetaNumero = QStringLiteral("No. Factura:");
    t.etiquetaTotal = QStringLiteral("Valor total de la nota de ingreso");
    t.nombreDatos = QStringLiteral("adoIngreso");
    t.nombreNumero = QStringLiteral("txtNumeroIngreso");
    t.columnaClave = QStringLiteral("IngresoID");
    t.columnaNumero = QStringLiteral("NumeroIngreso");
    t.tabla = QStringLiteral("NotaIngreso");
    t.consultaBusqueda = QStringLiteral("Select * From vwBuscaNotaIngreso");
    t.tituloBusqueda = QStringLiteral("Busca notas de ingreso de artículos");
    t.fuenteConProveedor =
        QStringLiteral("Select N.IngresoID, N.NumeroIngreso, N.ProveedorID, P.Nombre, N.Fecha, N.Descripcion "
                       "From NotaIngreso N INNER JOIN Proveedor P ON N.ProveedorID = P.ProveedorID Where "
                       "N.IngresoID");
    t.fuenteEditable = QStringLiteral("Select N.IngresoID, N.NumeroIngreso, N.ProveedorID, N.Fecha, "
                                      "N.Descripcion From NotaIngreso N Where N.IngresoID");
    t.borrarLineas = QStringLiteral("Delete From NotaIngresoDetalle Where IngresoID = ");
    t.eliminarLineas = QStringLiteral("Delete * From NotaIngresoDetalle Where IngresoID = ");
    t.eliminarDocumento = QStringLiteral("Delete * From NotaIngreso Where IngresoID = ");
    t.preguntaEliminar = QStringLiteral("Desea eliminar esta nota de ingreso");
    t.faltaNumero = QStringLiteral("Debe indicar el numero de la nota de ingreso.");
    t.faltanLineas = QStringLiteral("Debe especificar la lista de artículos que ingresan.");
    return t;
}

} // namespace

frmNotaIngreso::frmNotaIngreso()
    : DocumentoDeProveedor(textosDeIngreso(), 12) {
    setObjectName(QStringLiteral("frmNotaIngreso"));
    adoIngreso = datos;
    txtNumeroIngreso = txtNumero;
    lineas_->alInsertar = [this](int) { fgDetalle_Insertar(); };
    lineas_->alEditar = [this] { fgDetalle_DblClick(); };
    // A double click while browsing only sizes Parametros; fgDetalle_DblClick tells.
    lineas_->dobleClicAlConsultar = true;
    lineas_->despuesDeTecla = [this](int KeyCode, int) {
        if (KeyCode == vbKeyReturn || KeyCode == vbKeyInsert || KeyCode == vbKeyDelete) ActualizarTotal();
    };
}

// One line per row of the note's detail view: the article, its cost and quantity on this note, the
// article's margins, and the line's total cost, which the note's total adds up.
void frmNotaIngreso::MostrarIngreso() {
    MostrarLineas(
        QStringLiteral("Select * From vwNotaIngresoDetalle Where IngresoID = "),
        [](store::Recordset& rs, double& total) {
            const auto campo = [&rs](const char* nombre) { return rs.Fields(QLatin1String(nombre)).Value(); };
            const auto texto = [&campo](const char* nombre) { return runtime::TextoDe(campo(nombre)); };
            total += runtime::ValNulo(campo("CostoTotal"));
            return QStringList{texto("ArticuloID"),
                               texto("Nombre"),
                               texto("Modelo"),
                               texto("Color"),
                               runtime::Format(campo("Costo"), QStringLiteral("#0.00")),
                               texto("ContadoPorcentaje"),
                               texto("ContadoValor"),
                               runtime::Format(campo("Ingresos"), QStringLiteral("#0")),
                               texto("Egresos"),
                               texto("Existencia"),
                               texto("CreditoPorcentaje"),
                               texto("CreditoValor"),
                               runtime::Format(campo("CostoTotal"), QStringLiteral("#0.00"))};
        });
}

// A line whose first cell isn't a key above 0 ("*") is an article to create, from the line's cells;
// its cost and margins must read as numbers, an empty cell failing the save. The new key goes into the
// cell, so a second save creates nothing more. Each line is then inserted as the grid holds it.
bool frmNotaIngreso::GuardarIngreso() {
    return GuardarLineas([this](int fila, const QString& clave) {
        const auto celda = [this, fila](int c) { return fgDetalle->TextMatrix(fila, c); };
        if (runtime::Val(celda(0)) <= 0) {
            const long articulo = Common::CrearArticulo(celda(1), celda(2), celda(3), runtime::CDbl(celda(4)),
                                                        runtime::CDbl(celda(5)), runtime::CDbl(celda(6)),
                                                        runtime::CDbl(celda(10)), runtime::CDbl(celda(11)));
            fgDetalle->setTextMatrix(fila, 0, QString::number(articulo));
        }
        Common::DE().CN.Execute(
            QStringLiteral(
                "Insert Into NotaIngresoDetalle (IngresoID, ArticuloID, Cantidad, Costo) VALUES (") +
            clave + QStringLiteral(",") + celda(0) + QStringLiteral(",") + celda(7) + QStringLiteral(",") +
            celda(4) + QStringLiteral(")"));
    });
}

// The store refuses, with its general failure, to delete a note that a payable document names: that
// is told as a matter of integrity, and the lines stay. Any other failure shows its number as the
// title.
void frmNotaIngreso::EliminarIngreso() {
    EliminarConLineas([this](const store::Fallo& fallo) {
        if (fallo.numero() == store::FalloGeneral)
            Common::MostrarMensaje(
                lblTitulo->text(),
                QStringLiteral(
                    "No puede eliminarse porque afectaría la intregridad referencial de sus datos."),
                *this);
        else
            Common::MostrarMensaje(QString::number(fallo.numero()), fallo.descripcion(), *this);
    });
}

} // namespace mercaderia
