#pragma once

// VB's text functions on QString. Positions start at 1. Impossible lengths or positions (negative,
// start 0) throw std::invalid_argument, like VB's error 5; going past the end is not an error.

#include <QString>

namespace runtime {

QString Trim(const QString& s); // spaces only, not tabs, as in VB
QString LTrim(const QString& s);
QString RTrim(const QString& s);

QString UCase(const QString& s);
QString LCase(const QString& s);

QString Left(const QString& s, int n);
QString Right(const QString& s, int n);
QString Mid(const QString& s, int inicio);
QString Mid(const QString& s, int inicio, int largo);
int Len(const QString& s);

// 0 when not found. Case-sensitive.
int InStr(const QString& s, const QString& buscado);
int InStr(int inicio, const QString& s, const QString& buscado);

QString Replace(const QString& s, const QString& de, const QString& a);
QString Space(int n);

// VB's Str: a non-negative number gets a leading space where the sign would go (" 5", "-5").
QString Str(double numero);

} // namespace runtime
