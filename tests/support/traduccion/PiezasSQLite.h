#pragma once

#include <QString>
#include <vector>

// The tokens of a text as SQLite's own tokenizer splits it: a check, independent of the translator,
// of what the database will read. Blanks are skipped.
enum class ClasePieza {
    Palabra,        // a bare word: a keyword or a name
    NombreCitado,   // "name", [name] or `name`
    Texto,          // 'text'
    Numero,         // 12, 1.5e3, 0x1F
    Simbolo,        // operators and punctuation other than ';'
    Comentario,     // -- ... or /* ... */
    FinDeSentencia, // ;
    Parametro,      // ?, ?1, :name, @name, $name
    Blob,           // x'...'
    Ilegal,         // what SQLite would refuse: an unterminated quote, a stray character
};

struct PiezaSQLite {
    ClasePieza clase;
    QString texto;
};

std::vector<PiezaSQLite> piezasSQLite(const QString& sql);

const char* nombreDeClase(ClasePieza clase);
