#pragma once

// Conversions between text, numbers and database values that behave like the classic VB
// functions (Val, Int, Fix, CLng, IsNumeric, and reading a maybe-Null field as `Val(campo & " ")`).

#include <QString>
#include <QVariant>

namespace runtime {

// The longest number at the start of the text (after spaces and tabs), or 0. The decimal
// separator is always the point, whatever the system locale.
double Val(const QString& texto);

// A field that may be Null, read as a number: Null gives 0, True gives -1.
double ValNulo(const QVariant& valor);

// The text `valor & ""` gives: Null gives "".
QString TextoDe(const QVariant& valor);

// Null or Empty as the program means it: an invalid QVariant, a null one, or an invalid
// QDate/QDateTime, which Qt 6 does not report as isNull().
bool EsNulo(const QVariant& valor);

double Int(double x); // down: Int(-2.5) = -3
double Fix(double x); // toward zero: Fix(-2.5) = -2

// A number from text that must be one, as VB's CDbl: the whole trimmed text a number (thousands commas
// allowed); an empty text or anything else throws std::invalid_argument ("No coinciden los tipos", VB's
// error 13).
double CDbl(const QString& texto);

// Halves go to the even integer, as in VB (2.5 -> 2, 3.5 -> 4).
qint32 CLng(double x);
qint32 CLng(const QVariant& valor);

// Halves round away from zero, judged on the number as written with 15 significant digits,
// so RedondearDecimal(1.005, 2) = 1.01 despite the binary approximation.
double RedondearDecimal(double x, int decimales);

// VB's IsNumeric for text: the whole trimmed text must be a number; thousands commas are
// allowed in the integer part ("1,500.00").
bool EsNumero(const QString& texto);

} // namespace runtime
