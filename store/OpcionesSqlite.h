#pragma once

#include "store/OrigenConfigurado.h"

#include <QString>

namespace store {

// What Qt's ODBC driver is given to open `origen`, a data source the SQLite3 ODBC driver serves: its
// name and the options the program sets over what odbc.ini says.
// - The driver waits for a lock another program holds for twice its Timeout (see the .cpp); it is
//   given half, so that a statement waits what the data source says.
QString cadenaParaSqlite(const QString& origen, const OrigenConfigurado& configurado);

} // namespace store
