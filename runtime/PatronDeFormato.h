#pragma once

// Internal to runtime: the characters of a Format pattern, marking those made literal by an
// escape (\x) or by quotes ("text").

#include <QList>
#include <QString>

namespace runtime::detalle {

struct CaracterDePatron {
    QChar caracter;
    bool escapado = false; // always literal, even '0', '#', 'd'...
};

QList<CaracterDePatron> caracteresDelPatron(const QString& patron);

} // namespace runtime::detalle
