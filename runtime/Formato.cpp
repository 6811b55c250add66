#include "runtime/Formato.h"

#include "runtime/Conversion.h"
#include "runtime/Fechas.h"
#include "runtime/FormatoFecha.h"
#include "runtime/FormatoNumero.h"
#include "runtime/TipoDeValor.h"

#include <cmath>

namespace runtime {

namespace {

// Digit positions make a pattern numeric even when it has date letters ("0 días").
bool esFormatoDeFecha(const QString& patron) {
    return !detalle::esPatronNumerico(patron) && detalle::esPatronDeFecha(patron);
}

QString formatearFechaValor(const QVariant& valor, const QString& patron) {
    if (esFormatoDeFecha(patron)) return detalle::formatearFecha(valor.toDate(), patron);
    return TextoDe(valor);
}

QString formatearTexto(const QString& texto, const QString& patron) {
    if (EsNumero(texto)) return Format(Val(QString(texto).remove(u',')), patron);
    if (esFormatoDeFecha(patron)) {
        if (const std::optional<QDate> fecha = LeerFecha(texto))
            return detalle::formatearFecha(*fecha, patron);
    }
    return texto;
}

} // namespace

QString Format(double valor, const QString& patron) {
    if (std::isfinite(valor) && detalle::esPatronNumerico(patron))
        return detalle::formatearNumero(valor, patron);
    return TextoDe(valor);
}

QString Format(const QVariant& valor, const QString& patron) {
    if (detalle::esNulo(valor)) return {};
    if (detalle::esFechaValida(valor)) return formatearFechaValor(valor, patron);
    if (detalle::esTexto(valor)) return formatearTexto(valor.toString(), patron);
    if (detalle::esNumerico(valor) || valor.typeId() == QMetaType::Bool)
        return Format(ValNulo(valor), patron);
    return TextoDe(valor);
}

QString MesEnLetras(int mes) {
    static const QStringList meses = {
        QStringLiteral("Enero"),   QStringLiteral("Febrero"),   QStringLiteral("Marzo"),
        QStringLiteral("Abril"),   QStringLiteral("Mayo"),      QStringLiteral("Junio"),
        QStringLiteral("Julio"),   QStringLiteral("Agosto"),    QStringLiteral("Septiembre"),
        QStringLiteral("Octubre"), QStringLiteral("Noviembre"), QStringLiteral("Diciembre")};
    return mes >= 1 && mes <= 12 ? meses.at(mes - 1) : QString();
}

} // namespace runtime
