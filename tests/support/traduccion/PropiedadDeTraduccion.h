#pragma once

#include <QString>
#include <functional>

// What makes a translation safe to hand to the database. The translator tests check it on every
// statement they translate, and the fuzz target on every input it tries:
//  - SQLite reads the translation with no comment, no ';', no parameter, no blob and nothing it
//    would refuse as a token;
//  - the translation has the tokens of the same statement with every text and bracketed name made
//    harmless (neutralizar): nothing written inside a literal moved a token boundary, so every
//    literal in the translation is one the writer put there;
//  - it grows linearly with the statement.

// Translates a statement of the system's dialect; throws store::Fallo when it refuses it.
using Traductor = std::function<QString(const QString&)>;

// The statement with each character of its texts and bracketed names that could matter to a
// tokenizer replaced: letters, digits, blanks and the pattern characters "#,./" stay.
QString neutralizar(const QString& sentencia);

// "" when the translation has the properties above; otherwise what is wrong with it.
QString defectoDeTraduccion(const QString& sentencia, const QString& traduccion, const Traductor& traducir);

// The most a statement's translation may measure.
qsizetype largoMaximoDeTraduccion(const QString& sentencia);
