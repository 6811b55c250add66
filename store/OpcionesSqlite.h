#pragma once

#include "store/OrigenConfigurado.h"

#include <QString>

namespace store {

// What Qt's ODBC driver is given to open `origen`, a data source the SQLite3 ODBC driver serves: its
// name and the options the program sets over what odbc.ini says.
// - The database file must exist. Given a missing one the driver would create it empty, and the
//   program would fail later on its first table; a Fallo (FalloConexion) naming the file is thrown
//   instead, with nothing created, and NoCreat=1 keeps the driver from creating it should it go in
//   the meantime.
// - The driver waits for a lock another program holds for twice its Timeout (see the .cpp); it is
//   given half, so that a statement waits what the data source says.
QString cadenaParaSqlite(const QString& origen, const OrigenConfigurado& configurado);

} // namespace store
