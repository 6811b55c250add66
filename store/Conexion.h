#pragma once

#include "store/sql/Dialecto.h"

#include <QSqlDatabase>
#include <QString>
#include <memory>

namespace store {

enum EstadoObjeto { adStateClosed = 0, adStateOpen = 1 };

// A connection to the data source, with the ADO surface the screens use. A Conexion is a handle:
// copies refer to the same connection, as object references do, so the shared connection can be
// handed to a recordset as its ActiveConnection. A default-constructed Conexion is a new, closed one.
class Conexion {
public:
    Conexion();
    explicit Conexion(QString cadenaConexion);

    // "Provider=MSDASQL.1;Persist Security Info=False;Data Source=DSNBrenal;", "DSN=DSNBrenal" and
    // "DSNBrenal" all name the same data source. An empty text reopens with the string already set.
    QString ConnectionString() const;
    void setConnectionString(const QString& cadena);

    void Open(const QString& cadena = {}, const QString& usuario = {}, const QString& clave = {});
    void Close();
    int State() const;

    // Runs a statement of the system's dialect; returns the number of rows it touched.
    long Execute(const QString& sentencia);

    // Returns the nesting level: 1. A second BeginTrans while one is open is refused. Where the
    // database has one writer at a time (SQLite) the transaction reads committed data until its first
    // write and takes the write lock only then; see prepararEscritura.
    int BeginTrans();
    void CommitTrans();
    void RollbackTrans();
    int nivelTransaccion() const;
    // Every statement that writes runs this first (Execute and a recordset's writes do). In an open
    // transaction it takes the database's write lock; on any connection it refuses at once, with
    // FalloBaseOcupada, a write that would only wait for another connection of this program holding
    // that lock (the wait could never end while that connection's screen waits for the clerk).
    void prepararEscritura();
    // Whether this connection's transaction holds the database's write lock.
    bool escribiendo() const;

    // Which database is behind the data source, learnt once when the connection opens.
    const sql::Dialecto& dialecto() const;
    const sql::Catalogo& catalogo() const;
    // The statement as the connected database reads it.
    QString traducir(const QString& sentencia) const;

    QSqlDatabase baseDatos() const;
    bool mismaQue(const Conexion& otra) const { return d_ == otra.d_; }

    // The bare data-source name inside a connection string.
    static QString nombreOrigen(const QString& cadena);

private:
    struct Datos;
    Datos& datosAbiertos() const;
    std::shared_ptr<Datos> d_;
};

} // namespace store
