#include "runtime/TipoDeValor.h"

#include <QDate>
#include <QDateTime>

namespace runtime::detalle {

bool esNulo(const QVariant& valor) {
    if (!valor.isValid() || valor.isNull()) return true;
    switch (valor.typeId()) {
    case QMetaType::QDate:
        return !valor.toDate().isValid();
    case QMetaType::QDateTime:
        return !valor.toDateTime().isValid();
    default:
        return false;
    }
}

bool esEntero(const QVariant& valor) {
    switch (valor.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::SChar:
    case QMetaType::UChar:
        return true;
    default:
        return false;
    }
}

bool esNumerico(const QVariant& valor) {
    const int tipo = valor.typeId();
    return esEntero(valor) || tipo == QMetaType::Double || tipo == QMetaType::Float;
}

bool esTexto(const QVariant& valor) {
    return valor.typeId() == QMetaType::QString;
}

bool esFechaValida(const QVariant& valor) {
    const int tipo = valor.typeId();
    return (tipo == QMetaType::QDate || tipo == QMetaType::QDateTime) && !esNulo(valor);
}

} // namespace runtime::detalle
