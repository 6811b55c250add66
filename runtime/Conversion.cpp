#include "runtime/Conversion.h"

#include "runtime/CifrasDecimales.h"
#include "runtime/TipoDeValor.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

namespace runtime {

namespace {

bool esDigito(QChar c) {
    return c >= u'0' && c <= u'9';
}
bool esBlanco(QChar c) {
    return c == u' ' || c == u'\t';
}
bool esSigno(QChar c) {
    return c == u'+' || c == u'-';
}

qsizetype finDeLosDigitos(QStringView texto, qsizetype desde) {
    while (desde < texto.size() && esDigito(texto[desde]))
        ++desde;
    return desde;
}

// Thousands commas count only between digits ("1,500").
qsizetype finDeEnteraConComas(QStringView texto, qsizetype desde) {
    qsizetype fin = finDeLosDigitos(texto, desde);
    while (fin > desde && fin + 1 < texto.size() && texto[fin] == u',' && esDigito(texto[fin + 1]))
        fin = finDeLosDigitos(texto, fin + 1);
    return fin;
}

// An exponent counts only if digits follow: "1e" reads as 1.
qsizetype finDelExponente(QStringView texto, qsizetype desde) {
    if (desde >= texto.size() || (texto[desde] != u'e' && texto[desde] != u'E')) return desde;
    qsizetype cursor = desde + 1;
    if (cursor < texto.size() && esSigno(texto[cursor])) ++cursor;
    const qsizetype fin = finDeLosDigitos(texto, cursor);
    return fin > cursor ? fin : desde;
}

// 0 when the text does not start with a number.
qsizetype largoDelNumero(QStringView texto, bool conComasDeMiles) {
    qsizetype fin = (!texto.isEmpty() && esSigno(texto[0])) ? 1 : 0;
    const qsizetype inicioEntera = fin;
    fin = conComasDeMiles ? finDeEnteraConComas(texto, fin) : finDeLosDigitos(texto, fin);
    bool hayCifras = fin > inicioEntera;
    if (fin < texto.size() && texto[fin] == u'.') {
        const qsizetype finDecimal = finDeLosDigitos(texto, fin + 1);
        hayCifras = hayCifras || finDecimal > fin + 1;
        fin = finDecimal;
    }
    return hayCifras ? finDelExponente(texto, fin) : 0;
}

QStringView sinBlancosIniciales(QStringView texto) {
    qsizetype inicio = 0;
    while (inicio < texto.size() && esBlanco(texto[inicio]))
        ++inicio;
    return texto.mid(inicio);
}

QStringView sinBlancosFinales(QStringView texto) {
    qsizetype fin = texto.size();
    while (fin > 0 && esBlanco(texto[fin - 1]))
        --fin;
    return texto.left(fin);
}

} // namespace

double Val(const QString& texto) {
    const QStringView resto = sinBlancosIniciales(texto);
    const qsizetype largo = largoDelNumero(resto, false);
    // QString::toDouble reads with the C locale and gives infinity when the number overflows.
    return largo > 0 ? resto.left(largo).toString().toDouble() : 0.0;
}

double ValNulo(const QVariant& valor) {
    if (detalle::esNulo(valor)) return 0.0;
    if (valor.typeId() == QMetaType::Bool) return valor.toBool() ? -1.0 : 0.0;
    if (detalle::esNumerico(valor)) return valor.toDouble();
    return Val(TextoDe(valor));
}

bool EsNulo(const QVariant& valor) {
    return detalle::esNulo(valor);
}

double Int(double x) {
    return std::floor(x);
}

double Fix(double x) {
    return std::trunc(x);
}

qint32 CLng(double x) {
    if (std::isnan(x)) return 0;
    double entero = std::floor(x);
    const double resto = x - entero;
    const bool enteroImpar = std::fmod(entero, 2.0) != 0.0;
    if (resto > 0.5 || (resto == 0.5 && enteroImpar)) entero += 1.0;
    // Clamping avoids the undefined behaviour of converting a double that does not fit.
    constexpr double minimo = std::numeric_limits<qint32>::min();
    constexpr double maximo = std::numeric_limits<qint32>::max();
    return static_cast<qint32>(std::clamp(entero, minimo, maximo));
}

double CDbl(const QString& texto) {
    if (!EsNumero(texto)) throw std::invalid_argument("No coinciden los tipos");
    return Val(QString(texto).remove(QLatin1Char(',')));
}

qint32 CLng(const QVariant& valor) {
    return CLng(ValNulo(valor));
}

double RedondearDecimal(double x, int decimales) {
    if (!std::isfinite(x)) return x;
    return detalle::valorDe(detalle::redondeadas(detalle::cifrasDe(x), decimales));
}

bool EsNumero(const QString& texto) {
    const QStringView numero = sinBlancosFinales(sinBlancosIniciales(texto));
    return !numero.isEmpty() && largoDelNumero(numero, true) == numero.size();
}

} // namespace runtime
