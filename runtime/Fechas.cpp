#include "runtime/Fechas.h"

#include "runtime/TipoDeValor.h"

#include <QRegularExpression>

namespace runtime {

namespace {

// Two-digit years read as in VB: 00-29 are 2000-2029, 30-99 are 1930-1999.
constexpr int kPrimerAnioDelSigloVeinte = 30;
constexpr int kMenorAnioAdmitido = 100;

int anioCompleto(const QString& cifras) {
    const int anio = cifras.toInt();
    if (cifras.size() > 2) return anio;
    return anio < kPrimerAnioDelSigloVeinte ? 2000 + anio : 1900 + anio;
}

std::optional<QDate> fechaDelCalendario(int anio, int mes, int dia) {
    if (anio < kMenorAnioAdmitido || !QDate::isValid(anio, mes, dia)) return std::nullopt;
    return QDate(anio, mes, dia);
}

} // namespace

std::optional<QDate> LeerFecha(const QString& texto) {
    // Three fields, one separator; [0-9] because \d would also accept other Unicode digits.
    static const QRegularExpression forma(QStringLiteral("^([0-9]{1,4})([/.-])([0-9]{1,2})\\2([0-9]{1,4})$"));
    const QRegularExpressionMatch partes = forma.match(texto.trimmed());
    if (!partes.hasMatch()) return std::nullopt;

    const QString primero = partes.captured(1);
    const int mes = partes.captured(3).toInt();
    const QString ultimo = partes.captured(4);
    if (primero.size() == 4) { // year first: ISO
        if (ultimo.size() > 2) return std::nullopt;
        return fechaDelCalendario(primero.toInt(), mes, ultimo.toInt());
    }
    if (primero.size() > 2) return std::nullopt;
    return fechaDelCalendario(anioCompleto(ultimo), mes, primero.toInt());
}

bool EsFecha(const QString& texto) {
    return LeerFecha(texto).has_value();
}

bool EsFecha(const QVariant& valor) {
    if (detalle::esFechaValida(valor)) return true;
    return detalle::esTexto(valor) && EsFecha(valor.toString());
}

QString TextoFecha(const QDate& fecha) {
    if (!fecha.isValid()) return {};
    return QStringLiteral("%1/%2/%3")
        .arg(fecha.day(), 2, 10, QChar(u'0'))
        .arg(fecha.month(), 2, 10, QChar(u'0'))
        .arg(fecha.year(), 4, 10, QChar(u'0'));
}

} // namespace runtime
