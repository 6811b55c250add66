#pragma once

// Internal to runtime: classifying the values that arrive as QVariant (from the database, the
// controls or Parametros).

#include <QVariant>

namespace runtime::detalle {

// Database Null or VB Empty. An invalid date counts too: Qt 6 does not report it as isNull(),
// but to the program it is a missing date.
bool esNulo(const QVariant& valor);

// C++ integer and floating-point types; bool does not count.
bool esNumerico(const QVariant& valor);
bool esEntero(const QVariant& valor);

bool esTexto(const QVariant& valor);

// Text that reads as a date does not count.
bool esFechaValida(const QVariant& valor);

} // namespace runtime::detalle
