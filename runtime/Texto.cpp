#include "runtime/Texto.h"

#include "runtime/Conversion.h"

#include <stdexcept>

namespace runtime {

namespace {

// VB's error 5: a negative length or a position before the first character.
void exigirArgumentoValido(bool valido) {
    if (!valido) throw std::invalid_argument("Argumento o llamada a procedimiento no válida");
}

qsizetype primerNoEspacio(const QString& s) {
    qsizetype i = 0;
    while (i < s.size() && s[i] == u' ')
        ++i;
    return i;
}

qsizetype finSinEspacios(const QString& s) {
    qsizetype fin = s.size();
    while (fin > 0 && s[fin - 1] == u' ')
        --fin;
    return fin;
}

} // namespace

QString LTrim(const QString& s) {
    return s.mid(primerNoEspacio(s));
}

QString RTrim(const QString& s) {
    return s.left(finSinEspacios(s));
}

QString Trim(const QString& s) {
    return LTrim(RTrim(s));
}

QString UCase(const QString& s) {
    return s.toUpper();
}

QString LCase(const QString& s) {
    return s.toLower();
}

// QString::left and right return the whole text for a negative n, which VB rejects.
QString Left(const QString& s, int n) {
    exigirArgumentoValido(n >= 0);
    return s.left(n);
}

QString Right(const QString& s, int n) {
    exigirArgumentoValido(n >= 0);
    return s.right(n);
}

QString Mid(const QString& s, int inicio) {
    exigirArgumentoValido(inicio >= 1);
    return s.mid(inicio - 1);
}

QString Mid(const QString& s, int inicio, int largo) {
    exigirArgumentoValido(inicio >= 1);
    exigirArgumentoValido(largo >= 0);
    return s.mid(inicio - 1, largo);
}

int Len(const QString& s) {
    return int(s.size());
}

int InStr(const QString& s, const QString& buscado) {
    return InStr(1, s, buscado);
}

int InStr(int inicio, const QString& s, const QString& buscado) {
    exigirArgumentoValido(inicio >= 1);
    if (inicio > s.size()) return 0;
    return int(s.indexOf(buscado, inicio - 1, Qt::CaseSensitive)) + 1;
}

// QString::replace with an empty 'de' would insert 'a' between every letter; VB changes nothing.
QString Replace(const QString& s, const QString& de, const QString& a) {
    if (de.isEmpty()) return s;
    return QString(s).replace(de, a, Qt::CaseSensitive);
}

QString Space(int n) {
    exigirArgumentoValido(n >= 0);
    return QString(n, u' ');
}

QString Str(double numero) {
    const QString texto = TextoDe(numero);
    return numero < 0 ? texto : u' ' + texto;
}

} // namespace runtime
