#pragma once

// Uso interno de runtime: Format con patrones numéricos ("#,##0.00", "#.00", "0").

#include <QString>

namespace runtime::detalle {

// Un patrón es numérico si tiene alguna posición de cifra, '0' o '#'.
bool esPatronNumerico(const QString& patron);

QString formatearNumero(double valor, const QString& patron);

} // namespace runtime::detalle
