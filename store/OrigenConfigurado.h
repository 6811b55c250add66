#pragma once

#include <QString>

namespace store {

// What the ODBC configuration of this process says of a data source, read the way the driver manager
// reads it (the user's odbc.ini, then the system's) before anything is opened.
struct OrigenConfigurado {
    QString controlador; // the driver's library, found through odbcinst.ini when the source names it
    QString baseDatos;   // Database, as written
    QString espera;      // Timeout, as written

    bool registrado() const { return !controlador.isEmpty(); }
    // Whether the SQLite3 ODBC driver serves it: then Database names a file and Timeout is how long a
    // statement waits for a lock another program holds.
    bool deSqlite() const;
};

OrigenConfigurado leerOrigenConfigurado(const QString& nombre);

} // namespace store
