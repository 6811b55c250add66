#pragma once

#include <QMetaType>
#include <QString>
#include <QVariant>

namespace store {

// The value a column of type `tipo` receives for what a screen assigned: "22/11/2026" to a date
// column is that date, "1,500.00" to a numeric one is 1500, empty text to either is Null.
// Throws Fallo (FalloValorInvalido) for a value the column cannot hold.
QVariant convertirParaColumna(const QVariant& valor, QMetaType::Type tipo, const QString& campo);

// A Null of the column's type, as a bound parameter needs it.
QVariant nuloDeTipo(QMetaType::Type tipo);

} // namespace store
