#pragma once

// Uso interno de runtime: un número como sus cifras decimales, tal como se escribe
// con 15 cifras significativas. Redondear y dar formato sobre estas cifras, y no
// sobre la aproximación binaria del double, es lo que hace que 1.005 redondee a
// 1.01 como el usuario espera al ver "1.005" en pantalla.

#include <QString>

namespace runtime::detalle {

struct CifrasDecimales {
    bool negativo = false;
    QString digitos;       // sin ceros a la izquierda; vacío para el cero
    int posicionPunto = 0; // cuántas cifras quedan antes del punto (puede ser <= 0)
};

// Las cifras del texto de 15 cifras significativas de un número finito.
CifrasDecimales cifrasDe(double numero);

// Redondeo a 'decimales' posiciones con las mitades lejos del cero.
CifrasDecimales redondeadas(const CifrasDecimales& cifras, int decimales);

bool esCero(const CifrasDecimales& cifras);

// Las cifras antes del punto, sin ceros a la izquierda ("" para el cero).
QString parteEntera(const CifrasDecimales& cifras);

// Las 'decimales' primeras cifras después del punto, completadas con ceros.
QString parteDecimal(const CifrasDecimales& cifras, int decimales);

// Todas las cifras significativas después del punto ("" si no hay).
QString parteDecimalCompleta(const CifrasDecimales& cifras);

double valorDe(const CifrasDecimales& cifras);

} // namespace runtime::detalle
