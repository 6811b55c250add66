#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// A fresh SQLite database in a temporary directory, reached through the data source DSNBrenal of a
// temporary ODBC configuration (ODBCSYSINI, ODBCINI and HOME point into the directory, so no data
// source of the machine or the user is seen). While it lives, `Conexion("DSN=DSNBrenal")` opens it.
// The environment is restored when it goes.
class BaseDePrueba {
public:
    // What DSNBrenal says of foreign keys, which the SQLite driver enforces only on FKSupport=1:
    // that (what cuentacorriente-db init writes), FKSupport=0, or an entry without the key.
    enum class FKSupport { Activado, Desactivado, Ausente };

    // With esquema true the database is built from the project's schema/sqlite scripts. esperaMs is
    // the Timeout of DSNBrenal: how long a statement waits for a lock another program holds.
    explicit BaseDePrueba(bool esquema = false, FKSupport fkSupport = FKSupport::Activado,
                          int esperaMs = 5000);
    ~BaseDePrueba();
    BaseDePrueba(const BaseDePrueba&) = delete;
    BaseDePrueba& operator=(const BaseDePrueba&) = delete;

    QString archivo() const;
    QString directorio() const { return dir_.path(); }
    // Runs one or more statements of SQLite's own SQL straight on the file (no ODBC, no translation):
    // the set-up of a test. Fails the test binary (qFatal) on an error.
    void sqlite(const QString& script) const;
    // The same, for a script that may be refused: SQLite's message, or "" when it ran.
    QString intentar(const QString& script) const;
    // One value read straight from the file, as text ("" for Null): a check that bypasses the store.
    QString valor(const QString& consulta) const;

    static QString rutaEsquema();
    // Every file and folder under a folder, sorted: what a step left behind.
    static QStringList contenido(const QString& carpeta);
    // The SQLite3 ODBC driver's library, as DSNBrenal names it.
    static QString controladorSqlite();
    // Writes odbc.ini anew with one data source, DSNBrenal or another, of these lines ("Clave=valor"
    // each). unixODBC keeps for 20 seconds what it read of a data source, by its name: within one test
    // program, a source written again must have been read by nothing before.
    void reescribirOrigen(const QStringList& claves,
                          const QString& nombre = QStringLiteral("DSNBrenal")) const;

private:
    void escribirConfiguracionOdbc() const;

    QTemporaryDir dir_;
    FKSupport fkSupport_;
    int esperaMs_;
    QByteArray odbcSysIni_, odbcIni_, home_;
    bool habiaOdbcSysIni_, habiaOdbcIni_, habiaHome_;
};
