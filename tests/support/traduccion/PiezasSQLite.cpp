#include "PiezasSQLite.h"

namespace {

bool esBlanco(QChar c) {
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\f' || c == u'\r';
}
bool esDigito(QChar c) {
    return c >= u'0' && c <= u'9';
}
// SQLite takes letters, digits, '_', '$' and every character beyond ASCII as part of a name.
bool esDeNombre(QChar c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || esDigito(c) || c == u'_' || c == u'$' ||
           c.unicode() >= 0x80;
}

class Lector {
public:
    explicit Lector(const QString& s)
        : s_(s) {}

    std::vector<PiezaSQLite> leer() {
        std::vector<PiezaSQLite> piezas;
        while (true) {
            while (i_ < n() && esBlanco(s_[i_]))
                ++i_;
            if (i_ >= n()) return piezas;
            const qsizetype inicio = i_;
            const ClasePieza clase = siguiente();
            piezas.push_back({clase, s_.mid(inicio, i_ - inicio)});
        }
    }

private:
    qsizetype n() const { return s_.size(); }
    QChar en(qsizetype k) const { return k < n() ? s_[k] : QChar(); }

    ClasePieza siguiente() {
        const QChar c = s_[i_];
        const QChar d = en(i_ + 1);
        if (c == u'-' && d == u'-') {
            while (i_ < n() && s_[i_] != u'\n')
                ++i_;
            return ClasePieza::Comentario;
        }
        if (c == u'/' && d == u'*') {
            const qsizetype fin = s_.indexOf(QStringLiteral("*/"), i_ + 2);
            i_ = fin < 0 ? n() : fin + 2;
            return ClasePieza::Comentario;
        }
        if (c == u';') return ++i_, ClasePieza::FinDeSentencia;
        if (c == u'\'') return citado(c, ClasePieza::Texto);
        if (c == u'"' || c == u'`') return citado(c, ClasePieza::NombreCitado);
        if (c == u'[') {
            const qsizetype fin = s_.indexOf(u']', i_ + 1);
            if (fin < 0) return i_ = n(), ClasePieza::Ilegal;
            i_ = fin + 1;
            return ClasePieza::NombreCitado;
        }
        if ((c == u'x' || c == u'X') && d == u'\'') {
            ++i_;
            return citado(u'\'', ClasePieza::Blob) == ClasePieza::Ilegal ? ClasePieza::Ilegal
                                                                         : ClasePieza::Blob;
        }
        if (esDigito(c) || (c == u'.' && esDigito(d))) return numero();
        if (c == u'?') {
            ++i_;
            while (i_ < n() && esDigito(s_[i_]))
                ++i_;
            return ClasePieza::Parametro;
        }
        if (c == u':' || c == u'@' || c == u'$' || c == u'#') {
            const qsizetype inicio = ++i_;
            while (i_ < n() && esDeNombre(s_[i_]))
                ++i_;
            return i_ > inicio ? ClasePieza::Parametro : ClasePieza::Ilegal;
        }
        if (esDeNombre(c)) {
            while (i_ < n() && esDeNombre(s_[i_]))
                ++i_;
            return ClasePieza::Palabra;
        }
        return simbolo(c);
    }

    // A quoted text or name; a doubled quote stands for one.
    ClasePieza citado(QChar comilla, ClasePieza clase) {
        ++i_;
        while (i_ < n()) {
            if (s_[i_] == comilla) {
                if (en(i_ + 1) == comilla) {
                    i_ += 2;
                    continue;
                }
                ++i_;
                return clase;
            }
            ++i_;
        }
        return ClasePieza::Ilegal;
    }

    ClasePieza numero() {
        if (s_[i_] == u'0' && (en(i_ + 1) == u'x' || en(i_ + 1) == u'X')) {
            i_ += 2;
            while (i_ < n() && (esDigito(s_[i_]) || QStringLiteral("abcdefABCDEF").contains(s_[i_])))
                ++i_;
        } else {
            while (i_ < n() && esDigito(s_[i_]))
                ++i_;
            if (en(i_) == u'.') {
                ++i_;
                while (i_ < n() && esDigito(s_[i_]))
                    ++i_;
            }
            if (en(i_) == u'e' || en(i_) == u'E') {
                qsizetype j = i_ + 1;
                if (en(j) == u'+' || en(j) == u'-') ++j;
                if (esDigito(en(j))) {
                    i_ = j;
                    while (i_ < n() && esDigito(s_[i_]))
                        ++i_;
                }
            }
        }
        // SQLite refuses a number run into a name ("12abc").
        if (i_ < n() && esDeNombre(s_[i_])) {
            while (i_ < n() && esDeNombre(s_[i_]))
                ++i_;
            return ClasePieza::Ilegal;
        }
        return ClasePieza::Numero;
    }

    ClasePieza simbolo(QChar c) {
        static const char* const dobles[] = {"->>", "->", "==", "<=", "<>", "<<", ">=", ">>", "!=", "||"};
        for (const char* doble : dobles) {
            const QLatin1String t(doble);
            if (QStringView(s_).mid(i_).startsWith(t)) {
                i_ += t.size();
                return ClasePieza::Simbolo;
            }
        }
        if (QStringLiteral("()+-*/%,&~=<>|.").contains(c)) return ++i_, ClasePieza::Simbolo;
        return ++i_, ClasePieza::Ilegal;
    }

    const QString& s_;
    qsizetype i_ = 0;
};

} // namespace

std::vector<PiezaSQLite> piezasSQLite(const QString& sql) {
    return Lector(sql).leer();
}

const char* nombreDeClase(ClasePieza clase) {
    switch (clase) {
    case ClasePieza::Palabra:
        return "palabra";
    case ClasePieza::NombreCitado:
        return "nombre citado";
    case ClasePieza::Texto:
        return "texto";
    case ClasePieza::Numero:
        return "número";
    case ClasePieza::Simbolo:
        return "símbolo";
    case ClasePieza::Comentario:
        return "comentario";
    case ClasePieza::FinDeSentencia:
        return "';'";
    case ClasePieza::Parametro:
        return "parámetro";
    case ClasePieza::Blob:
        return "blob";
    case ClasePieza::Ilegal:
        return "ilegal";
    }
    return "?";
}
