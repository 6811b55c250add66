#include "PropiedadDeTraduccion.h"

#include "PiezasSQLite.h"
#include "store/Fallo.h"

namespace {

bool esAsciiAlfanumerico(QChar c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9');
}

QChar textoInocuo(QChar c) {
    return esAsciiAlfanumerico(c) || QStringLiteral(" #,./").contains(c) ? c : QChar(u'/');
}

QChar nombreInocuo(QChar c) {
    return esAsciiAlfanumerico(c) || c == u' ' || c == u'_' ? c : QChar(u'_');
}

// A bare word and a quoted name are both names; their spelling is compared only when both are bare
// (the neutral statement may leave unquoted a name that needed quotes).
bool mismaForma(const PiezaSQLite& a, const PiezaSQLite& b) {
    const auto clase = [](ClasePieza c) { return c == ClasePieza::Palabra ? ClasePieza::NombreCitado : c; };
    if (clase(a.clase) != clase(b.clase)) return false;
    switch (a.clase) {
    case ClasePieza::Simbolo:
    case ClasePieza::Numero:
        return a.texto == b.texto;
    case ClasePieza::Palabra:
        return b.clase != ClasePieza::Palabra || a.texto.compare(b.texto, Qt::CaseInsensitive) == 0;
    default:
        return true;
    }
}

QString describir(const std::vector<PiezaSQLite>& piezas, size_t i) {
    if (i >= piezas.size()) return QStringLiteral("(fin)");
    return QStringLiteral("%1 «%2»").arg(QLatin1String(nombreDeClase(piezas[i].clase)),
                                         piezas[i].texto.left(80));
}

} // namespace

QString neutralizar(const QString& s) {
    QString r;
    r.reserve(s.size());
    for (qsizetype i = 0; i < s.size();) {
        const QChar c = s[i];
        if (c == u'\'' || c == u'"') {
            r += c;
            for (++i; i < s.size(); ++i) {
                if (s[i] != c) {
                    r += textoInocuo(s[i]);
                } else if (i + 1 < s.size() && s[i + 1] == c) {
                    r += QStringLiteral("//");
                    ++i;
                } else {
                    r += c;
                    ++i;
                    break;
                }
            }
        } else if (c == u'[') {
            for (r += c, ++i; i < s.size() && s[i] != u']'; ++i)
                r += nombreInocuo(s[i]);
        } else {
            r += c;
            ++i;
        }
    }
    return r;
}

qsizetype largoMaximoDeTraduccion(const QString& sentencia) {
    return 100 * sentencia.size() + 4096;
}

QString defectoDeTraduccion(const QString& sentencia, const QString& traduccion, const Traductor& traducir) {
    if (traduccion.size() > largoMaximoDeTraduccion(sentencia))
        return QStringLiteral("la traducción mide %1 caracteres para una instrucción de %2")
            .arg(traduccion.size())
            .arg(sentencia.size());
    const std::vector<PiezaSQLite> piezas = piezasSQLite(traduccion);
    for (size_t i = 0; i < piezas.size(); ++i) {
        switch (piezas[i].clase) {
        case ClasePieza::Comentario:
        case ClasePieza::FinDeSentencia:
        case ClasePieza::Parametro:
        case ClasePieza::Blob:
        case ClasePieza::Ilegal:
            return QStringLiteral("la traducción contiene %1 en la pieza %2")
                .arg(describir(piezas, i))
                .arg(i);
        default:
            break;
        }
    }
    const QString neutra = neutralizar(sentencia);
    if (neutra == sentencia) return {};
    QString traduccionNeutra;
    try {
        traduccionNeutra = traducir(neutra);
    } catch (const store::Fallo& f) {
        return QStringLiteral("la instrucción se traduce, pero no con sus literales neutralizados (%1): %2")
            .arg(f.descripcion(), neutra);
    }
    const std::vector<PiezaSQLite> neutras = piezasSQLite(traduccionNeutra);
    for (size_t i = 0; i < std::max(piezas.size(), neutras.size()); ++i) {
        if (i >= piezas.size() || i >= neutras.size() || !mismaForma(piezas[i], neutras[i]))
            return QStringLiteral(
                       "un literal cambió las piezas de la traducción: en la pieza %1 hay %2 donde, con "
                       "los literales neutralizados, hay %3")
                .arg(i)
                .arg(describir(piezas, i), describir(neutras, i));
    }
    return {};
}
