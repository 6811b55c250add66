#pragma once

// Uso interno de runtime: clasificación de los valores que llegan como QVariant
// (de la base de datos, de los controles o de Parametros).

#include <QVariant>

namespace runtime::detalle {

// Null de la base de datos o Empty de VB. Una fecha inválida también cuenta: Qt 6
// no la considera isNull(), pero para el programa es una fecha que no está.
bool esNulo(const QVariant& valor);

// Tipos numéricos de C++ (enteros y de coma flotante); bool no cuenta.
bool esNumerico(const QVariant& valor);
bool esEntero(const QVariant& valor);

bool esTexto(const QVariant& valor);

// QDate o QDateTime válidos.
bool esFechaValida(const QVariant& valor);

} // namespace runtime::detalle
