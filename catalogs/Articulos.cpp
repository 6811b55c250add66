#include "catalogs/Articulos.h"

#include "runtime/Conversion.h"
#include "runtime/Formato.h"
#include "shell/common/Common.h"
#include "shell/dialogos/Dialogos.h"
#include "shell/marco/Marco.h"
#include "store/Recordset.h"

namespace Common {

long CrearArticulo(const QString& Nombre, const QString& Modelo, const QString& Color, double Costo,
                   double ContadoPorcentaje, double ContadoValor, double CreditoPorcentaje,
                   double CreditoValor) {
    store::Recordset rs;
    rs.Open(QStringLiteral("Select * From Articulo Where ArticuloID < 0"), DE().CN, store::adOpenKeyset,
            store::adLockOptimistic);
    rs.AddNew();
    rs.Fields(QStringLiteral("Nombre")) = Nombre;
    rs.Fields(QStringLiteral("Modelo")) = Modelo;
    rs.Fields(QStringLiteral("Color")) = Color;
    rs.Fields(QStringLiteral("Costo")) = Costo;
    rs.Fields(QStringLiteral("ContadoPorcentaje")) = ContadoPorcentaje;
    rs.Fields(QStringLiteral("ContadoValor")) = ContadoValor;
    rs.Fields(QStringLiteral("CreditoPorcentaje")) = CreditoPorcentaje;
    rs.Fields(QStringLiteral("CreditoValor")) = CreditoValor;
    rs.Update();
    rs.Resync();
    return rs.Fields(QStringLiteral("ArticuloID")).Value().toLongLong();
}

bool ValidarVentaArticulo(shell::Marco& Pantalla, long ArticuloID, long Cantidad, double Precio) {
    bool valida = true;
    store::Recordset rs;
    rs.Open(QStringLiteral(
                "Select shw3800_str_Descripcion_del_articulo & ' ' & shw1200_str_Modelo & ' '& "
                "shw1200_str_Color as Descripcion, shw900_dbl_Costo as Costo, shw1000_dbl_Existencia as "
                "Existencia From vwBuscaArticulo Where hidID = %1")
                .arg(ArticuloID),
            DE().CN, store::adOpenStatic, store::adLockReadOnly);
    const QString descripcion = runtime::TextoDe(rs.Fields(QStringLiteral("Descripcion")).Value());
    const QVariant existencia = rs.Fields(QStringLiteral("Existencia")).Value();
    const double costo = runtime::ValNulo(rs.Fields(QStringLiteral("Costo")).Value());
    if (Cantidad > runtime::ValNulo(existencia)) {
        MostrarMensaje(Pantalla.lblTitulo->text(),
                       QStringLiteral("El articulo ") + descripcion + QStringLiteral(" tiene ") +
                           runtime::TextoDe(existencia) + QStringLiteral(" unidades en existencia."),
                       Pantalla);
        valida = false;
    }
    if (Precio > 0 && Precio < costo) {
        MostrarMensaje(Pantalla.lblTitulo->text(),
                       QStringLiteral("El articulo ") + descripcion +
                           QStringLiteral(" no puede ser vendido por debajo del costo ( ") +
                           runtime::Format(costo, QStringLiteral("#0.00")) + QStringLiteral(" ) ."),
                       Pantalla);
        valida = false;
    }
    return valida;
}

} // namespace Common
