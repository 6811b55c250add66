#pragma once

#include <QSqlError>
#include <QString>

namespace store {

// The driver's own text for a failure, as the user is shown it.
inline QString textoError(const QSqlError& e) {
    const QString texto = e.databaseText().trimmed();
    return texto.isEmpty() ? e.text().trimmed() : texto;
}

} // namespace store
