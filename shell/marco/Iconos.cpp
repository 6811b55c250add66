#include "shell/marco/Iconos.h"

#include <QHash>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

namespace shell::Iconos {

namespace {

QIcon dibujar(const QString& archivo) {
    QSvgRenderer svg(QStringLiteral(":/iconos/%1.svg").arg(archivo));
    QIcon icono;
    if (!svg.isValid()) return icono;
    for (const int lado : {16, 24, 32}) {
        QPixmap p(lado, lado);
        p.fill(Qt::transparent);
        QPainter pintor(&p);
        svg.render(&pintor);
        pintor.end();
        icono.addPixmap(p);
    }
    return icono;
}

} // namespace

QIcon para(const QString& caption) {
    static const QHash<QString, QString> archivos = {
        {QStringLiteral("Buscar"), QStringLiteral("buscar")},
        {QStringLiteral("Agregar"), QStringLiteral("agregar")},
        {QStringLiteral("Nuevo"), QStringLiteral("agregar")},
        {QStringLiteral("Modificar"), QStringLiteral("modificar")},
        {QStringLiteral("Eliminar"), QStringLiteral("eliminar")},
        {QStringLiteral("Imprimir"), QStringLiteral("imprimir")},
        {QStringLiteral("Aprobar"), QStringLiteral("aprobar")},
        {QStringLiteral("Rechazar"), QStringLiteral("rechazar")},
        {QStringLiteral("Guardar"), QStringLiteral("guardar")},
        {QStringLiteral("Cancelar"), QStringLiteral("cancelar")},
        {QStringLiteral("Aceptar"), QStringLiteral("aceptar")},
        {QStringLiteral("Cerrar"), QStringLiteral("cerrar")},
        {QStringLiteral("Limpiar busqueda"), QStringLiteral("limpiar")},
        {QStringLiteral("Creditos"), QStringLiteral("creditos")},
        {QStringLiteral("Recibos"), QStringLiteral("recibos")},
        {QStringLiteral("Facturas"), QStringLiteral("facturas")},
        {QStringLiteral("Ingresos"), QStringLiteral("ingresos")},
        {QStringLiteral("Envios"), QStringLiteral("envios")},
        {QStringLiteral("Pagos"), QStringLiteral("pagos")},
    };
    static QHash<QString, QIcon> hechos;
    const QString clave = QString(caption).remove(QLatin1Char('&')).trimmed();
    const auto archivo = archivos.constFind(clave);
    if (archivo == archivos.cend()) return {};
    auto icono = hechos.find(clave);
    if (icono == hechos.end()) icono = hechos.insert(clave, dibujar(*archivo));
    return *icono;
}

} // namespace shell::Iconos
