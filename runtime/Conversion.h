#pragma once

// Conversiones entre texto, números y valores de la base de datos con el
// comportamiento de las funciones clásicas de VB (Val, Int, Fix, CLng, IsNumeric,
// y la lectura de un campo posiblemente Null como `Val(campo & " ")`).

#include <QString>
#include <QVariant>

namespace runtime {

// El número más largo al principio del texto (tras espacios y tabuladores), o 0.
// No depende del idioma del sistema: el punto es siempre el separador decimal.
double Val(const QString& texto);

// Un campo que puede venir Null leído como número: Null da 0, True da -1.
double ValNulo(const QVariant& valor);

// El texto de un valor como lo da `valor & ""`: Null da "".
QString TextoDe(const QVariant& valor);

double Int(double x); // hacia abajo: Int(-2.5) = -3
double Fix(double x); // hacia el cero: Fix(-2.5) = -2

// Al entero más cercano, las mitades al par (2.5 -> 2, 3.5 -> 4).
qint32 CLng(double x);
qint32 CLng(const QVariant& valor);

// Redondea con las mitades lejos del cero, decidiendo sobre el número tal como se
// escribe con 15 cifras significativas: RedondearDecimal(1.005, 2) = 1.01.
double RedondearDecimal(double x, int decimales);

// IsNumeric de VB para un texto: todo el texto (sin espacios alrededor) es un número,
// admitiendo comas de miles en la parte entera ("1,500.00").
bool EsNumero(const QString& texto);

} // namespace runtime
