#include "runtime/FormatoFecha.h"

#include "runtime/Formato.h"
#include "runtime/PatronDeFormato.h"

#include <algorithm>

namespace runtime::detalle {

namespace {

// A code ("dd", "mmmm", "yyyy"...), lowered so case does not matter, or a literal.
struct PiezaDeFecha {
    QString texto;
    bool esLiteral;
};

bool esLetraDeFecha(const CaracterDePatron& c) {
    const QChar letra = c.caracter.toLower();
    return !c.escapado && (letra == u'd' || letra == u'm' || letra == u'y');
}

// Longest code first: "mmmmm" is "mmmm" then "m". The year has only "y", "yy" and "yyyy", so
// "yyy" is "yy" then "y", as in VB.
qsizetype largoDelCodigo(QChar letra, qsizetype repeticiones) {
    if (letra == u'y') return repeticiones >= 4 ? 4 : std::min<qsizetype>(repeticiones, 2);
    return std::min<qsizetype>(repeticiones, 4);
}

bool esLaMismaLetra(const CaracterDePatron& c, QChar letra) {
    return esLetraDeFecha(c) && c.caracter.toLower() == letra;
}

QList<PiezaDeFecha> piezasDelPatron(const QString& patron) {
    const QList<CaracterDePatron> caracteres = caracteresDelPatron(patron);
    QList<PiezaDeFecha> piezas;
    qsizetype i = 0;
    while (i < caracteres.size()) {
        if (!esLetraDeFecha(caracteres[i])) {
            piezas.append({caracteres[i++].caracter, true});
            continue;
        }
        const QChar letra = caracteres[i].caracter.toLower();
        qsizetype fin = i + 1;
        while (fin < caracteres.size() && esLaMismaLetra(caracteres[fin], letra))
            ++fin;
        const qsizetype largo = largoDelCodigo(letra, fin - i);
        piezas.append({QString(largo, letra), false});
        i += largo;
    }
    return piezas;
}

QString dosCifras(int numero) {
    return QStringLiteral("%1").arg(numero, 2, 10, QChar(u'0'));
}

QString nombreDelDia(const QDate& fecha) {
    static const QStringList nombres = {QStringLiteral("Lunes"),     QStringLiteral("Martes"),
                                        QStringLiteral("Miércoles"), QStringLiteral("Jueves"),
                                        QStringLiteral("Viernes"),   QStringLiteral("Sábado"),
                                        QStringLiteral("Domingo")};
    return nombres.at(fecha.dayOfWeek() - 1); // Qt counts Monday as 1
}

QString textoDelCodigo(const QString& codigo, const QDate& fecha) {
    if (codigo == u"d") return QString::number(fecha.day());
    if (codigo == u"dd") return dosCifras(fecha.day());
    if (codigo == u"ddd") return nombreDelDia(fecha).left(3);
    if (codigo == u"dddd") return nombreDelDia(fecha);
    if (codigo == u"m") return QString::number(fecha.month());
    if (codigo == u"mm") return dosCifras(fecha.month());
    if (codigo == u"mmm") return MesEnLetras(fecha.month()).left(3);
    if (codigo == u"mmmm") return MesEnLetras(fecha.month());
    if (codigo == u"y") return QString::number(fecha.dayOfYear());
    if (codigo == u"yy") return dosCifras(fecha.year() % 100);
    return QString::number(fecha.year()); // "yyyy"
}

} // namespace

bool esPatronDeFecha(const QString& patron) {
    const QList<CaracterDePatron> caracteres = caracteresDelPatron(patron);
    return std::any_of(caracteres.cbegin(), caracteres.cend(), esLetraDeFecha);
}

QString formatearFecha(const QDate& fecha, const QString& patron) {
    QString resultado;
    for (const PiezaDeFecha& pieza : piezasDelPatron(patron))
        resultado += pieza.esLiteral ? pieza.texto : textoDelCodigo(pieza.texto, fecha);
    return resultado;
}

} // namespace runtime::detalle
