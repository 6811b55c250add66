#include "runtime/FormatoNumero.h"

#include "runtime/CifrasDecimales.h"
#include "runtime/PatronDeFormato.h"

namespace runtime::detalle {

namespace {

// Literals (e.g. "Q ") go before or after the number depending on whether they come before or
// after the first digit position.
struct PatronNumerico {
    QString prefijo;
    QString sufijo;
    int cifrasEnterasMinimas = 0; // the '0's before the point
    bool separarMiles = false;    // a ',' in the integer part
    bool llevaPunto = false;
    int decimales = 0;             // the '0's and '#'s after the point
    int decimalesObligatorios = 0; // up to the last '0' after the point
};

bool esPosicionDeCifra(QChar c) {
    return c == u'0' || c == u'#';
}

bool esParteDelNumero(const CaracterDePatron& c) {
    return !c.escapado && (esPosicionDeCifra(c.caracter) || c.caracter == u',' || c.caracter == u'.');
}

void anotarEnParteEntera(PatronNumerico& patron, QChar c) {
    if (c == u'0') ++patron.cifrasEnterasMinimas;
    if (c == u',') patron.separarMiles = true;
}

void anotarEnParteDecimal(PatronNumerico& patron, QChar c) {
    if (!esPosicionDeCifra(c)) return;
    ++patron.decimales;
    if (c == u'0') patron.decimalesObligatorios = patron.decimales;
}

PatronNumerico leerPatronNumerico(const QString& texto) {
    PatronNumerico patron;
    bool numeroEmpezado = false;
    for (const CaracterDePatron& c : caracteresDelPatron(texto)) {
        if (!esParteDelNumero(c)) {
            (numeroEmpezado ? patron.sufijo : patron.prefijo).append(c.caracter);
            continue;
        }
        numeroEmpezado = true;
        if (c.caracter == u'.' && !patron.llevaPunto)
            patron.llevaPunto = true;
        else if (patron.llevaPunto)
            anotarEnParteDecimal(patron, c.caracter);
        else
            anotarEnParteEntera(patron, c.caracter);
    }
    return patron;
}

QString conSeparadorDeMiles(QString entera) {
    for (qsizetype posicion = entera.size() - 3; posicion > 0; posicion -= 3)
        entera.insert(posicion, u',');
    return entera;
}

// Trailing '#' positions show no zeros: 1.5 with "0.0#" gives "1.5".
QString sinCerosOpcionales(QString decimal, int obligatorios) {
    while (decimal.size() > obligatorios && decimal.endsWith(u'0'))
        decimal.chop(1);
    return decimal;
}

} // namespace

bool esPatronNumerico(const QString& patron) {
    for (const CaracterDePatron& c : caracteresDelPatron(patron))
        if (!c.escapado && esPosicionDeCifra(c.caracter)) return true;
    return false;
}

QString formatearNumero(double valor, const QString& texto) {
    const PatronNumerico patron = leerPatronNumerico(texto);
    const CifrasDecimales cifras = redondeadas(cifrasDe(valor), patron.decimales);

    QString entera = parteEntera(cifras).rightJustified(patron.cifrasEnterasMinimas, u'0');
    if (patron.separarMiles) entera = conSeparadorDeMiles(entera);
    // What rounds to zero shows no sign: -0.001 with "0.00" gives "0.00".
    QString resultado = cifras.negativo ? QStringLiteral("-") : QString();
    resultado += patron.prefijo + entera;
    if (patron.llevaPunto)
        resultado +=
            u'.' + sinCerosOpcionales(parteDecimal(cifras, patron.decimales), patron.decimalesObligatorios);
    return resultado + patron.sufijo;
}

} // namespace runtime::detalle
