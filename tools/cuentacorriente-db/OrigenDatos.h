#pragma once

#include <QString>

namespace basedatos {

// The data source every program of the system opens.
inline const QString nombreOrigen = QStringLiteral("DSNBrenal");

// Registers DSNBrenal in the user's odbc.ini (ODBCINI, else ~/.odbc.ini of the account) as the SQLite
// driver on `archivo`; an existing DSNBrenal of the user loses its old keys.
void registrarOrigen(const QString& archivo);

// What DSNBrenal says, read from the user's and the system's odbc.ini (empty when absent).
struct Origen {
    QString controlador;
    QString archivo;
    QString fkSupport; // as written
    bool registrado() const { return !controlador.isEmpty() || !archivo.isEmpty(); }
    // Whether FKSupport is on, as the SQLite driver reads a yes/no key: a value that starts with a
    // digit other than 0, or with Y or T. registrarOrigen writes 1.
    bool conFKSupport() const;
};
Origen leerOrigen();

} // namespace basedatos
