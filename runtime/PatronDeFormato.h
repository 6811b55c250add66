#pragma once

// Uso interno de runtime: los caracteres de un patrón de Format, distinguiendo los
// que son literales por escape (\x) o por ir entre comillas ("texto").

#include <QList>
#include <QString>

namespace runtime::detalle {

struct CaracterDePatron {
    QChar caracter;
    bool escapado = false; // literal siempre, aunque sea '0', '#', 'd'...
};

QList<CaracterDePatron> caracteresDelPatron(const QString& patron);

} // namespace runtime::detalle
