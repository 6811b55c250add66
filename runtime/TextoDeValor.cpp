// TextoDe: the text VB gives when a value is concatenated with "".

#include "runtime/CifrasDecimales.h"
#include "runtime/Conversion.h"
#include "runtime/Fechas.h"
#include "runtime/TipoDeValor.h"

#include <QDateTime>
#include <cmath>

namespace runtime {

namespace {

// Outside this range of magnitudes VB, too, writes an exponent ("1E+15").
constexpr int kMayorPosicionSinExponente = 15;
constexpr int kMenorPosicionSinExponente = -4;

QString textoDeEntero(const QVariant& valor) {
    const int tipo = valor.typeId();
    const bool sinSigno = tipo == QMetaType::ULongLong || tipo == QMetaType::ULong;
    return sinSigno ? QString::number(valor.toULongLong()) : QString::number(valor.toLongLong());
}

QString textoDeNumero(double numero) {
    if (!std::isfinite(numero)) return QString::number(numero);
    const detalle::CifrasDecimales cifras = detalle::cifrasDe(numero);
    if (detalle::esCero(cifras)) return QStringLiteral("0");
    if (cifras.posicionPunto > kMayorPosicionSinExponente ||
        cifras.posicionPunto < kMenorPosicionSinExponente)
        return QString::number(numero, 'g', 15).toUpper();

    const QString entera = detalle::parteEntera(cifras);
    const QString decimal = detalle::parteDecimalCompleta(cifras);
    QString texto = cifras.negativo ? QStringLiteral("-") : QString();
    texto += entera.isEmpty() ? QStringLiteral("0") : entera;
    if (!decimal.isEmpty()) texto += u'.' + decimal;
    return texto;
}

QString textoDeHora(const QTime& hora) {
    return hora.toString(QStringLiteral("hh:mm:ss"));
}

// Midnight is not written: in VB a date without a time is a date at 00:00.
QString textoDeInstante(const QDateTime& instante) {
    const QString fecha = TextoFecha(instante.date());
    const QTime hora = instante.time();
    return hora == QTime(0, 0) ? fecha : fecha + u' ' + textoDeHora(hora);
}

} // namespace

QString TextoDe(const QVariant& valor) {
    if (detalle::esNulo(valor)) return {};
    if (detalle::esEntero(valor)) return textoDeEntero(valor);
    if (detalle::esNumerico(valor)) return textoDeNumero(valor.toDouble());
    switch (valor.typeId()) {
    case QMetaType::Bool:
        return valor.toBool() ? QStringLiteral("Verdadero") : QStringLiteral("Falso");
    case QMetaType::QDate:
        return TextoFecha(valor.toDate());
    case QMetaType::QDateTime:
        return textoDeInstante(valor.toDateTime());
    case QMetaType::QTime:
        return textoDeHora(valor.toTime());
    default:
        return valor.toString();
    }
}

} // namespace runtime
