#pragma once

#include <QString>
#include <vector>

namespace store::sql {

enum class TipoToken {
    Identificador, // Nombre, [Nombre con blancos]
    Numero,        // 12, 12.50, .5, 1E3
    Texto,         // 'texto' or "texto", quotes already removed and undoubled
    Fecha,         // #22/11/2026#, the text between the number signs
    Simbolo,       // ( ) , . * + - / \ & = <> < > <= >= ^
    Fin
};

struct Token {
    TipoToken tipo = TipoToken::Fin;
    QString texto;
    int posicion = 0;            // 0-based offset in the statement, for messages
    bool entreCorchetes = false; // an identifier written as [..]

    bool esSimbolo(QStringView s) const { return tipo == TipoToken::Simbolo && texto == s; }
    bool esSimbolo(QLatin1String s) const { return tipo == TipoToken::Simbolo && texto == s; }
    // Keywords are identifiers compared without regard to letter case.
    bool esPalabra(QStringView p) const {
        return tipo == TipoToken::Identificador && !entreCorchetes &&
               texto.compare(p, Qt::CaseInsensitive) == 0;
    }
    bool esPalabra(QLatin1String p) const {
        return tipo == TipoToken::Identificador && !entreCorchetes &&
               texto.compare(p, Qt::CaseInsensitive) == 0;
    }
};

// The longest statement the translator reads. The screens compose a few hundred characters; the
// bound keeps a box pasted full of text from costing the program its memory.
inline constexpr qsizetype kLargoMaximoSentencia = 100000;

// Splits one statement into tokens. Throws Fallo (FalloSintaxis) on an unterminated string, date or
// bracket, on a character the dialect does not use (a control character such as NUL included, even
// inside a text: the database would read a different statement), on a statement longer than
// kLargoMaximoSentencia, and on anything after a ';' other than blanks: a second statement never
// reaches the database.
std::vector<Token> tokenizar(const QString& sentencia);

// The statement as a message quotes it: its beginning only, when it is long.
QString sentenciaParaMensaje(const QString& sentencia);

} // namespace store::sql
