#pragma once

// VB's Format for the patterns the program uses: numeric ("#,##0.00", "#0.00", "#.00", "0", "#")
// and date ("dd/mm/yyyy", "mmmm", "yyyy"...). Numbers round halves away from zero on their
// 15-digit text (as RedondearDecimal does); the decimal point is always "." and thousands ",".

#include <QString>
#include <QVariant>

namespace runtime {

// Null gives "" with any pattern. Text is formatted as a number if numeric, as a date if it is
// one and the pattern is a date pattern, and is otherwise left as it is.
QString Format(const QVariant& valor, const QString& patron);
QString Format(double valor, const QString& patron);

// "Enero".."Diciembre" for 1..12; "" for any other number.
QString MesEnLetras(int mes);

} // namespace runtime
