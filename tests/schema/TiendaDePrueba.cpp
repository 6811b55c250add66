#include "TiendaDePrueba.h"

#include "store/Recordset.h"

using namespace store;

namespace {

QString claveDe(const QString& tabla) {
    if (tabla == QLatin1String("NotaIngreso")) return QStringLiteral("IngresoID");
    if (tabla == QLatin1String("NotaEnvio")) return QStringLiteral("NotaID");
    return tabla + QStringLiteral("ID");
}

} // namespace

TiendaDePrueba::TiendaDePrueba(BaseDePrueba::FKSupport fkSupport)
    : base_(true, fkSupport)
    , cn_(QStringLiteral("Provider=MSDASQL.1;Persist Security Info=False;Data Source=DSNBrenal;")) {
    cn_.Open();
}

int TiendaDePrueba::agregar(const QString& tabla, const QVariantMap& campos) {
    Recordset rs;
    rs.Open(QStringLiteral("Select * From %1 Where %2 < 0").arg(tabla, claveDe(tabla)), cn_);
    rs.AddNew();
    for (auto it = campos.cbegin(); it != campos.cend(); ++it)
        rs.Fields(it.key()) = it.value();
    rs.Update();
    rs.Resync();
    return rs.Fields(claveDe(tabla)).Value().toInt();
}

QList<QVariantList> TiendaDePrueba::filas(const QString& consulta) {
    Recordset rs;
    rs.Open(consulta, cn_, adOpenStatic, adLockReadOnly);
    QList<QVariantList> resultado;
    for (; !rs.Eof(); rs.MoveNext()) {
        QVariantList fila;
        for (int i = 0; i < rs.FieldCount(); ++i)
            fila << rs.Fields(i).Value();
        resultado << fila;
    }
    return resultado;
}

QVariant TiendaDePrueba::valor(const QString& consulta, const QString& campo) {
    Recordset rs;
    rs.Open(consulta, cn_, adOpenStatic, adLockReadOnly);
    return rs.Eof() ? QVariant() : rs.Fields(campo).Value();
}

int TiendaDePrueba::recibo(int solicitudID, const QList<Linea>& lineas) {
    const int numero =
        valor(QStringLiteral("Select Max(NumeroRecibo) as Maximo From Recibo"), QStringLiteral("Maximo"))
            .toInt() +
        1;
    const int id = agregar(QStringLiteral("Recibo"), {{QStringLiteral("NumeroRecibo"), numero},
                                                      {QStringLiteral("Fecha"), QStringLiteral("22/11/2026")},
                                                      {QStringLiteral("SolicitudID"), solicitudID}});
    for (const Linea& l : lineas)
        ejecutar(
            QStringLiteral("Insert Into ReciboDetalle (ReciboID, ConceptoID, ArticuloID, Cantidad, Valor) "
                           "VALUES (%1,%2,%3,%4,%5)")
                .arg(QString::number(id), QString::number(l.conceptoID), QString::number(l.articuloID),
                     QString::number(l.cantidad), QString::number(l.valor, 'f', 2)));
    return id;
}

int TiendaDePrueba::notaEnvio(const QString& origen, int origenID,
                              const QList<QPair<int, int>>& articulosYCantidades) {
    const int id =
        agregar(QStringLiteral("NotaEnvio"), {{QStringLiteral("NumeroNota"), origenID},
                                              {QStringLiteral("Fecha"), QStringLiteral("23/11/2026")},
                                              {origen, origenID},
                                              {QStringLiteral("Direccion"), QStringLiteral("Zona 1")}});
    for (const auto& [articulo, cantidad] : articulosYCantidades)
        ejecutar(
            QStringLiteral("Insert Into NotaEnvioDetalle (NotaID, ArticuloID, Cantidad) VALUES (%1,%2,%3)")
                .arg(QString::number(id), QString::number(articulo), QString::number(cantidad)));
    return id;
}

int TiendaDePrueba::notaIngreso(int proveedorID, const QList<std::tuple<int, int, double>>& lineas) {
    const int id =
        agregar(QStringLiteral("NotaIngreso"), {{QStringLiteral("NumeroIngreso"), 100 + proveedorID},
                                                {QStringLiteral("ProveedorID"), proveedorID},
                                                {QStringLiteral("Fecha"), QStringLiteral("20/11/2026")},
                                                {QStringLiteral("Descripcion"), QStringLiteral("Compra")}});
    for (const auto& [articulo, cantidad, costo] : lineas)
        ejecutar(
            QStringLiteral("Insert Into NotaIngresoDetalle (IngresoID, ArticuloID, Cantidad, Costo) VALUES "
                           "(%1,%2,%3.00,%4)")
                .arg(QString::number(id), QString::number(articulo), QString::number(cantidad),
                     QString::number(costo, 'f', 2)));
    return id;
}
