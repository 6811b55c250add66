#pragma once

// Internal to runtime: Format with date patterns ("dd/mm/yyyy", "mmmm").

#include <QDate>
#include <QString>

namespace runtime::detalle {

// Any day, month or year code (d, m, y) makes a date pattern. Case does not matter, as in VB:
// "dd/MM/yyyy" is the same as "dd/mm/yyyy".
bool esPatronDeFecha(const QString& patron);

QString formatearFecha(const QDate& fecha, const QString& patron);

} // namespace runtime::detalle
