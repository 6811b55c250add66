#include "store/ConversionValores.h"

#include "runtime/Conversion.h"
#include "runtime/Fechas.h"
#include "store/Fallo.h"

#include <QDate>
#include <QDateTime>
#include <QLocale>
#include <cmath>

namespace store {
namespace {

[[noreturn]] void noCabe(const QVariant& valor, const QString& campo, const char* que) {
    throw Fallo(FalloValorInvalido, QStringLiteral("El valor \"%1\" no es %2 válido para el campo %3.")
                                        .arg(runtime::TextoDe(valor), QLatin1String(que), campo));
}

bool esEntero(QMetaType::Type t) {
    switch (t) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::Char:
    case QMetaType::UChar:
    case QMetaType::SChar:
        return true;
    default:
        return false;
    }
}

bool esTexto(const QVariant& v) {
    return v.typeId() == QMetaType::QString;
}

// The value of a text typed as a number: blanks around it and thousands separators are allowed.
std::optional<double> numeroDeTexto(const QString& texto) {
    const QString t = texto.trimmed();
    if (!runtime::EsNumero(t)) return std::nullopt;
    QString sinMiles = t;
    sinMiles.remove(QLatin1Char(','));
    bool ok = false;
    const double v = QLocale::c().toDouble(sinMiles, &ok);
    return ok ? std::optional<double>(v) : std::nullopt;
}

std::optional<double> numeroDe(const QVariant& v) {
    if (esTexto(v)) return numeroDeTexto(v.toString());
    if (v.typeId() == QMetaType::Bool) return v.toBool() ? 1.0 : 0.0;
    bool ok = false;
    const double d = v.toDouble(&ok);
    return ok ? std::optional<double>(d) : std::nullopt;
}

QVariant comoFecha(const QVariant& v, QMetaType::Type tipo, const QString& campo) {
    QDate fecha;
    if (v.typeId() == QMetaType::QDate)
        fecha = v.toDate();
    else if (v.typeId() == QMetaType::QDateTime)
        fecha = v.toDateTime().date();
    else if (esTexto(v))
        fecha = runtime::LeerFecha(v.toString()).value_or(QDate());
    if (!fecha.isValid()) noCabe(v, campo, "una fecha");
    if (tipo == QMetaType::QDateTime) return QDateTime(fecha, QTime(0, 0));
    return fecha;
}

std::optional<bool> logicoDeTexto(const QString& texto) {
    const QString t = texto.trimmed();
    for (const char* s : {"verdadero", "true", "sí", "si"})
        if (t.compare(QString::fromUtf8(s), Qt::CaseInsensitive) == 0) return true;
    for (const char* s : {"falso", "false", "no"})
        if (t.compare(QString::fromUtf8(s), Qt::CaseInsensitive) == 0) return false;
    return std::nullopt;
}

QVariant comoLogico(const QVariant& v, const QString& campo) {
    if (esTexto(v)) {
        if (const auto b = logicoDeTexto(v.toString())) return *b;
    }
    const auto n = numeroDe(v);
    if (!n) noCabe(v, campo, "un valor lógico");
    return *n != 0.0;
}

// Whole numbers round to the nearest, halves to even, as a Long field takes them.
QVariant comoEntero(const QVariant& v, const QString& campo) {
    if (v.typeId() == QMetaType::Bool) return v.toBool() ? 1 : 0;
    if (esTexto(v) && !numeroDeTexto(v.toString())) {
        // A Yes/No column may be read as a number: "Verdadero" still means 1.
        if (const auto b = logicoDeTexto(v.toString())) return *b ? 1 : 0;
        noCabe(v, campo, "un número entero");
    }
    const auto n = numeroDe(v);
    if (!n || !std::isfinite(*n) || std::abs(*n) > 9.2e18) noCabe(v, campo, "un número entero");
    return QVariant::fromValue<qlonglong>(std::llround(std::nearbyint(*n)));
}

} // namespace

QVariant nuloDeTipo(QMetaType::Type tipo) {
    if (tipo == QMetaType::UnknownType) return QVariant(QMetaType::fromType<QString>());
    return QVariant(QMetaType(tipo));
}

QVariant convertirParaColumna(const QVariant& valor, QMetaType::Type tipo, const QString& campo) {
    if (runtime::EsNulo(valor)) return QVariant();
    const bool textoVacio = esTexto(valor) && valor.toString().trimmed().isEmpty();
    switch (tipo) {
    case QMetaType::QDate:
    case QMetaType::QDateTime:
        return textoVacio ? QVariant() : comoFecha(valor, tipo, campo);
    case QMetaType::Double:
    case QMetaType::Float: {
        if (textoVacio) return QVariant();
        const auto n = numeroDe(valor);
        if (!n) noCabe(valor, campo, "un número");
        return *n;
    }
    case QMetaType::Bool:
        return textoVacio ? QVariant() : QVariant(comoLogico(valor, campo));
    default:
        break;
    }
    if (esEntero(tipo)) return textoVacio ? QVariant() : comoEntero(valor, campo);
    if (valor.typeId() == QMetaType::QDate) return runtime::TextoDe(valor);
    return esTexto(valor) ? valor : QVariant(runtime::TextoDe(valor));
}

} // namespace store
