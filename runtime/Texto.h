#pragma once

// Las funciones de texto de VB sobre QString. Las posiciones empiezan en 1 y los
// largos o posiciones imposibles (negativos, inicio 0) lanzan std::invalid_argument,
// como el error 5 de VB; pasar del final del texto no es un error.

#include <QString>

namespace runtime {

QString Trim(const QString& s); // sólo espacios, no tabuladores
QString LTrim(const QString& s);
QString RTrim(const QString& s);

QString UCase(const QString& s);
QString LCase(const QString& s);

QString Left(const QString& s, int n);
QString Right(const QString& s, int n);
QString Mid(const QString& s, int inicio);
QString Mid(const QString& s, int inicio, int largo);
int Len(const QString& s);

// Posición (desde 1) de 'buscado' en 's', o 0. Distingue mayúsculas.
int InStr(const QString& s, const QString& buscado);
int InStr(int inicio, const QString& s, const QString& buscado);

QString Replace(const QString& s, const QString& de, const QString& a);
QString Space(int n);

// Str de VB: un espacio delante de los números no negativos (" 5", "-5").
QString Str(double numero);

} // namespace runtime
