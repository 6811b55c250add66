#pragma once

// Internal to runtime: a number as its decimal digits, as written with 15 significant digits.
// Rounding and formatting these digits, not the double's binary approximation, is what makes
// 1.005 round to 1.01, as a user who sees "1.005" on screen expects.

#include <QString>

namespace runtime::detalle {

struct CifrasDecimales {
    bool negativo = false;
    QString digitos;       // no leading zeros; empty for zero
    int posicionPunto = 0; // digits before the point; may be <= 0
};

// Finite numbers only.
CifrasDecimales cifrasDe(double numero);

// Halves round away from zero.
CifrasDecimales redondeadas(const CifrasDecimales& cifras, int decimales);

bool esCero(const CifrasDecimales& cifras);

// "" for zero, so the caller decides whether a 0 is shown.
QString parteEntera(const CifrasDecimales& cifras);

// Padded with zeros to exactly 'decimales' digits.
QString parteDecimal(const CifrasDecimales& cifras, int decimales);

// Every significant digit after the point; "" if there are none.
QString parteDecimalCompleta(const CifrasDecimales& cifras);

double valorDe(const CifrasDecimales& cifras);

} // namespace runtime::detalle
