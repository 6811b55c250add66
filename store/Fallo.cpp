#include "store/Fallo.h"

namespace store {

Fallo::Fallo(qint32 numero, QString descripcion)
    : numero_(numero)
    , descripcion_(std::move(descripcion))
    , utf8_(descripcion_.toUtf8()) {
}

QString Fallo::numeroHex() const {
    return QStringLiteral("%1").arg(static_cast<quint32>(numero_), 8, 16, QLatin1Char('0')).toUpper();
}

} // namespace store
