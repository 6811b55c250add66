#include "runtime/CifrasDecimales.h"

#include <QChar>

namespace runtime::detalle {

namespace {

constexpr int kCifrasSignificativas = 15;

void quitarCerosIniciales(CifrasDecimales& cifras) {
    qsizetype ceros = 0;
    while (ceros < cifras.digitos.size() && cifras.digitos[ceros] == u'0')
        ++ceros;
    cifras.digitos.remove(0, ceros);
    cifras.posicionPunto -= int(ceros);
}

void quitarCerosFinales(CifrasDecimales& cifras) {
    while (cifras.digitos.endsWith(u'0'))
        cifras.digitos.chop(1);
    if (cifras.digitos.isEmpty()) cifras.posicionPunto = 0;
}

// The carry runs through the nines: 9.995 rounded to 2 places is 10.00.
void incrementarUltimaCifra(CifrasDecimales& cifras) {
    for (qsizetype i = cifras.digitos.size() - 1; i >= 0; --i) {
        if (cifras.digitos[i] != u'9') {
            cifras.digitos[i] = QChar(cifras.digitos[i].unicode() + 1);
            return;
        }
        cifras.digitos[i] = u'0';
    }
    cifras.digitos.prepend(u'1');
    ++cifras.posicionPunto;
}

} // namespace

CifrasDecimales cifrasDe(double numero) {
    // Qt's 'g' text ignores the locale, so it is always like "-1.005", "1.5e+20" or "1e-05".
    QString texto = QString::number(numero, 'g', kCifrasSignificativas);
    CifrasDecimales cifras;
    if (texto.startsWith(u'-')) {
        cifras.negativo = true;
        texto.remove(0, 1);
    }
    int exponente = 0;
    const qsizetype posicionE = texto.indexOf(u'e');
    if (posicionE >= 0) {
        exponente = texto.mid(posicionE + 1).toInt();
        texto.truncate(posicionE);
    }
    const qsizetype punto = texto.indexOf(u'.');
    const qsizetype cifrasEnteras = punto >= 0 ? punto : texto.size();
    cifras.digitos = texto.remove(u'.');
    cifras.posicionPunto = int(cifrasEnteras) + exponente;
    quitarCerosIniciales(cifras);
    quitarCerosFinales(cifras);
    if (cifras.digitos.isEmpty()) cifras.negativo = false;
    return cifras;
}

CifrasDecimales redondeadas(const CifrasDecimales& cifras, int decimales) {
    const qsizetype conservadas = qsizetype(cifras.posicionPunto) + decimales;
    if (conservadas >= cifras.digitos.size()) return cifras;
    if (conservadas < 0) return CifrasDecimales{};
    CifrasDecimales resultado = cifras;
    const bool subir = cifras.digitos[conservadas] >= u'5';
    resultado.digitos.truncate(conservadas);
    if (subir) incrementarUltimaCifra(resultado);
    quitarCerosFinales(resultado);
    if (resultado.digitos.isEmpty()) resultado.negativo = false;
    return resultado;
}

bool esCero(const CifrasDecimales& cifras) {
    return cifras.digitos.isEmpty();
}

QString parteEntera(const CifrasDecimales& cifras) {
    if (cifras.posicionPunto <= 0) return {};
    QString entera = cifras.digitos.left(cifras.posicionPunto);
    return entera.leftJustified(cifras.posicionPunto, u'0');
}

QString parteDecimal(const CifrasDecimales& cifras, int decimales) {
    QString decimal;
    decimal.reserve(decimales);
    for (int i = 0; i < decimales; ++i) {
        const qsizetype posicion = qsizetype(cifras.posicionPunto) + i;
        const bool hayCifra = posicion >= 0 && posicion < cifras.digitos.size();
        decimal.append(hayCifra ? cifras.digitos[posicion] : QChar(u'0'));
    }
    return decimal;
}

QString parteDecimalCompleta(const CifrasDecimales& cifras) {
    const int decimales = int(cifras.digitos.size()) - cifras.posicionPunto;
    return decimales > 0 ? parteDecimal(cifras, decimales) : QString();
}

double valorDe(const CifrasDecimales& cifras) {
    if (esCero(cifras)) return 0.0;
    const QString texto = QStringLiteral("%1.%2e%3")
                              .arg(cifras.negativo ? QStringLiteral("-0") : QStringLiteral("0"))
                              .arg(cifras.digitos)
                              .arg(cifras.posicionPunto);
    return texto.toDouble(); // QString::toDouble always reads with the C locale
}

} // namespace runtime::detalle
