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
    bool registrado() const { return !controlador.isEmpty() || !archivo.isEmpty(); }
};
Origen leerOrigen();

} // namespace basedatos
