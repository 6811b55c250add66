#pragma once

#include <QString>

struct sqlite3;

namespace basedatos {

// What the set-up could not do, worded for the person at the terminal.
class Error {
public:
    explicit Error(QString texto)
        : texto_(std::move(texto)) {}
    const QString& texto() const { return texto_; }

private:
    QString texto_;
};

// One SQLite connection on a file, closed when it goes (an open transaction is rolled back).
class BaseSqlite {
public:
    // banderas: SQLITE_OPEN_READONLY, or SQLITE_OPEN_READWRITE with SQLITE_OPEN_CREATE when it may be made.
    BaseSqlite(const QString& archivo, int banderas);
    ~BaseSqlite();
    BaseSqlite(const BaseSqlite&) = delete;
    BaseSqlite& operator=(const BaseSqlite&) = delete;

    sqlite3* db() const { return db_; }
    // Runs one or more statements; a failure is an Error saying what ran (`origen`) and SQLite's text.
    void ejecutar(const QString& sentencias, const QString& origen = {});
    // The first column of the first row (0 when there is none).
    qint64 entero(const QString& consulta);
    QString ultimoError() const;

private:
    sqlite3* db_ = nullptr;
};

// BaseEnSoloLectura: one of our databases on read-only media, where SQLite cannot open it (a database
// in WAL mode needs to make its -wal and -shm files beside it). One it can open there is BaseDelSistema.
enum class ClaseDeArchivo { NoExiste, BaseDelSistema, BaseEnSoloLectura, Otro };

// Looks at a file without changing it: one of our databases holds the table VersionEsquema.
// `motivo` says, for Otro, why it is not one, and for BaseEnSoloLectura what is read-only.
ClaseDeArchivo clasificarArchivo(const QString& archivo, QString* motivo = nullptr);

// "en un medio de solo lectura (motivo)", for the messages that say so of a database.
QString enSoloLectura(const QString& motivo);

// Refuses (Error) a file that does not exist, is not one of our databases or cannot be opened where
// it is because it is read-only.
void exigirBaseDelSistema(const QString& archivo);

} // namespace basedatos
