#pragma once

#include <QString>

namespace basedatos {

// Whether the program may write `ruta` (a file or a folder); false on read-only media, for root too.
bool admiteEscritura(const QString& ruta);

// The folder that holds `ruta`, or its nearest ancestor that exists: where a new file would be made.
QString carpetaExistente(const QString& ruta);

// Why the database file `archivo` cannot be written where it is ("la carpeta X no admite escritura",
// "el archivo no admite escritura"); empty when it can. A database in WAL mode needs its folder too,
// to make its -wal and -shm files beside it.
QString motivoDeSoloLectura(const QString& archivo);

} // namespace basedatos
