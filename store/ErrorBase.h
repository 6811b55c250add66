#pragma once

#include "store/Fallo.h"

#include <QSqlError>
#include <QString>

namespace store {

// The driver's own text for a failure, as the user is shown it.
inline QString textoError(const QSqlError& e) {
    const QString texto = e.databaseText().trimmed();
    return texto.isEmpty() ? e.text().trimmed() : texto;
}

// Whether the database refused because another connection holds its lock (SQLite's BUSY and LOCKED,
// which the ODBC driver passes on as its native error code).
bool esBloqueo(const QSqlError& e);

// The failure of a statement the database refused: FalloBaseOcupada with a text the clerk can act on
// when it waited for a lock in vain, FalloGeneral with the driver's text otherwise.
Fallo falloDeBase(const QSqlError& e);

} // namespace store
