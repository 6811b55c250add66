#pragma once

// Internal to runtime: Format with numeric patterns ("#,##0.00", "#.00", "0").

#include <QString>

namespace runtime::detalle {

// Any digit position, '0' or '#', makes a numeric pattern.
bool esPatronNumerico(const QString& patron);

QString formatearNumero(double valor, const QString& patron);

} // namespace runtime::detalle
