#pragma once

#include "store/Fallo.h"

#include <QSqlError>
#include <QString>

namespace store {

// The driver's own text for a failure, as the user is shown it: without the names of the ODBC
// components in brackets before it ("[SQLite]") nor the native code SQLite's driver adds after it
// (" (19)"), so that a message the database raises, such as a guard's, reaches the clerk as written.
inline QString textoError(const QSqlError& e) {
    QString texto = e.databaseText().trimmed();
    if (texto.isEmpty()) texto = e.text().trimmed();
    while (texto.startsWith(QLatin1Char('['))) {
        const qsizetype cierre = texto.indexOf(QLatin1Char(']'));
        if (cierre < 0) break;
        texto = texto.mid(cierre + 1).trimmed();
    }
    const qsizetype abre = texto.lastIndexOf(QLatin1String(" ("));
    if (abre > 0 && texto.endsWith(QLatin1Char(')'))) {
        bool numero = false;
        texto.mid(abre + 2, texto.size() - abre - 3).toInt(&numero);
        if (numero) texto.truncate(abre);
    }
    return texto.trimmed();
}

// Whether the database refused because another connection holds its lock (SQLite's BUSY and LOCKED,
// which the ODBC driver passes on as its native error code).
bool esBloqueo(const QSqlError& e);

// The failure of a statement the database refused: FalloBaseOcupada with a text the clerk can act on
// when it waited for a lock in vain, FalloGeneral with the driver's text otherwise.
Fallo falloDeBase(const QSqlError& e);

} // namespace store
