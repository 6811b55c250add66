#pragma once

#include <QMetaType>
#include <QSqlQuery>
#include <QStringList>
#include <QVariant>
#include <QVector>

namespace store {

// A whole result, read at once: the client side of a static cursor.
struct ResultadoLeido {
    QStringList nombres;
    QVector<QMetaType::Type> tipos;
    QVector<QVector<QVariant>> filas; // Null is an invalid QVariant
};

// Reads every row of an executed statement straight from its ODBC handle. Qt's own reading asks
// the driver for the length of each text and, when the SQLite driver cannot say, clears a 64 KB
// buffer per cell: twenty times slower over a large view. Throws Fallo on a driver error.
ResultadoLeido leerResultado(QSqlQuery& consulta);

} // namespace store
