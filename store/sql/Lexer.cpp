#include "store/sql/Lexer.h"

#include "store/Fallo.h"

namespace store::sql {
namespace {

[[noreturn]] void refusar(const QString& motivo, const QString& sentencia) {
    throw Fallo(FalloSintaxis, QStringLiteral("Error de sintaxis: %1 en la instrucción SQL: %2")
                                   .arg(motivo, sentenciaParaMensaje(sentencia)));
}

// Tab, line feed and carriage return are blanks; every other control character is refused.
bool esControl(QChar c) {
    return c.category() == QChar::Other_Control && c != u'\t' && c != u'\n' && c != u'\r';
}

// Only ASCII digits make a number: the database would read any other digit as part of a name.
bool esDigito(QChar c) {
    return c >= u'0' && c <= u'9';
}

bool iniciaIdentificador(QChar c) {
    return c.isLetter() || c == u'_';
}
bool continuaIdentificador(QChar c) {
    return c.isLetterOrNumber() || c == u'_';
}

class Lector {
public:
    explicit Lector(const QString& s)
        : s_(s) {}

    std::vector<Token> leer() {
        if (s_.size() > kLargoMaximoSentencia)
            refusar(QStringLiteral("la instrucción excede los %1 caracteres").arg(kLargoMaximoSentencia), s_);
        for (qsizetype i = 0; i < s_.size(); ++i) {
            if (esControl(s_[i]))
                refusar(QStringLiteral("carácter de control U+%1 en la posición %2")
                            .arg(s_[i].unicode(), 4, 16, QLatin1Char('0'))
                            .arg(i + 1),
                        s_);
        }
        std::vector<Token> tokens;
        while (true) {
            saltarBlancos();
            if (i_ >= s_.size()) break;
            const QChar c = s_[i_];
            if (c == u';') {
                terminarEnPuntoYComa();
                break;
            }
            tokens.push_back(siguiente(c));
        }
        tokens.push_back(Token{TipoToken::Fin, {}, static_cast<int>(s_.size()), false});
        return tokens;
    }

private:
    void saltarBlancos() {
        while (i_ < s_.size() && s_[i_].isSpace())
            ++i_;
    }

    // A ';' may close the statement; anything but blanks after it would be a second statement.
    void terminarEnPuntoYComa() {
        ++i_;
        saltarBlancos();
        if (i_ < s_.size())
            refusar(QStringLiteral("se encontraron caracteres después del final de la instrucción"), s_);
    }

    Token siguiente(QChar c) {
        const int inicio = static_cast<int>(i_);
        if (c == u'\'' || c == u'"') return Token{TipoToken::Texto, leerTexto(c), inicio, false};
        if (c == u'#')
            return Token{TipoToken::Fecha, leerHasta(u'#', QStringLiteral("fecha")), inicio, false};
        if (c == u'[')
            return Token{TipoToken::Identificador, leerHasta(u']', QStringLiteral("nombre")), inicio, true};
        if (esDigito(c) || (c == u'.' && i_ + 1 < s_.size() && esDigito(s_[i_ + 1])))
            return Token{TipoToken::Numero, leerNumero(), inicio, false};
        if (iniciaIdentificador(c)) {
            while (i_ < s_.size() && continuaIdentificador(s_[i_]))
                ++i_;
            return Token{TipoToken::Identificador, s_.mid(inicio, i_ - inicio), inicio, false};
        }
        return Token{TipoToken::Simbolo, leerSimbolo(c), inicio, false};
    }

    // 'It''s' is one text with one quote; either quote character may open a text.
    QString leerTexto(QChar comilla) {
        QString texto;
        ++i_;
        while (true) {
            if (i_ >= s_.size()) refusar(QStringLiteral("cadena sin terminar"), s_);
            if (s_[i_] == comilla) {
                if (i_ + 1 < s_.size() && s_[i_ + 1] == comilla) {
                    texto += comilla;
                    i_ += 2;
                    continue;
                }
                ++i_;
                return texto;
            }
            texto += s_[i_++];
        }
    }

    QString leerHasta(QChar cierre, const QString& que) {
        const qsizetype fin = s_.indexOf(cierre, i_ + 1);
        if (fin < 0) refusar(QStringLiteral("%1 sin terminar").arg(que), s_);
        QString contenido = s_.mid(i_ + 1, fin - i_ - 1);
        i_ = fin + 1;
        return contenido;
    }

    QString leerNumero() {
        const qsizetype inicio = i_;
        while (i_ < s_.size() && esDigito(s_[i_]))
            ++i_;
        if (i_ < s_.size() && s_[i_] == u'.') {
            ++i_;
            while (i_ < s_.size() && esDigito(s_[i_]))
                ++i_;
        }
        if (i_ < s_.size() && (s_[i_] == u'e' || s_[i_] == u'E')) {
            qsizetype j = i_ + 1;
            if (j < s_.size() && (s_[j] == u'+' || s_[j] == u'-')) ++j;
            if (j < s_.size() && esDigito(s_[j])) {
                i_ = j;
                while (i_ < s_.size() && esDigito(s_[i_]))
                    ++i_;
            }
        }
        if (i_ < s_.size() && iniciaIdentificador(s_[i_]))
            refusar(QStringLiteral("número mal formado cerca de '%1'").arg(s_.mid(inicio, i_ - inicio + 1)),
                    s_);
        return s_.mid(inicio, i_ - inicio);
    }

    QString leerSimbolo(QChar c) {
        static const QString dobles[] = {QStringLiteral("<>"), QStringLiteral("<="), QStringLiteral(">=")};
        for (const QString& d : dobles) {
            if (QStringView(s_).mid(i_).startsWith(d)) {
                i_ += 2;
                return d;
            }
        }
        static const QString simples = QStringLiteral("(),.*+-/\\&=<>^");
        if (!simples.contains(c)) refusar(QStringLiteral("carácter no válido '%1'").arg(c), s_);
        ++i_;
        return QString(c);
    }

    const QString& s_;
    qsizetype i_ = 0;
};

} // namespace

std::vector<Token> tokenizar(const QString& sentencia) {
    return Lector(sentencia).leer();
}

QString sentenciaParaMensaje(const QString& sentencia) {
    constexpr qsizetype kMostrados = 300;
    if (sentencia.size() <= kMostrados) return sentencia;
    return sentencia.left(kMostrados) +
           QStringLiteral("... (%1 caracteres más)").arg(sentencia.size() - kMostrados);
}

} // namespace store::sql
