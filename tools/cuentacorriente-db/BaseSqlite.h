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

enum class ClaseDeArchivo { NoExiste, BaseDelSistema, Otro };

// Looks at a file without changing it: one of our databases holds the table VersionEsquema.
// For Otro, `motivo` says why it is not one.
ClaseDeArchivo clasificarArchivo(const QString& archivo, QString* motivo = nullptr);

// Refuses (Error) a file that does not exist or is not one of our databases.
void exigirBaseDelSistema(const QString& archivo);

} // namespace basedatos
