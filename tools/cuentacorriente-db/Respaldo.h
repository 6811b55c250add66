#pragma once

#include <QString>

namespace basedatos {

struct Respaldo {
    int paginas = 0;
    qint64 bytes = 0;
};

// Copies the database `origen` to the new file `destino` with SQLite's online backup, so the copy is
// one consistent moment of it even while the application writes. The copy is written beside
// `destino`, as DESTINO.incompleta-XXXXXX, and renamed `destino` once complete: `destino` never holds
// part of a copy. Refuses (Error) an existing `destino`, a folder for it that admits no writing and a
// source that is not one of our databases or cannot be opened on read-only media; a failed copy leaves
// no file behind (a killed one, at most its .incompleta file).
Respaldo respaldar(const QString& origen, const QString& destino);

} // namespace basedatos
