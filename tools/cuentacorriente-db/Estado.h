#pragma once

#include <QList>
#include <QPair>
#include <QString>

class QTextStream;

namespace basedatos {

// What a database holds, read without writing to it.
struct EstadoDeBase {
    qint64 version = 0;
    QList<QPair<QString, qint64>> filasPorTabla; // by table name
};

// Refuses (Error) a file that is not one of our databases.
EstadoDeBase leerEstado(const QString& archivo);

// The report of `cuentacorriente-db status` for the database at `archivo`.
void escribirEstado(const QString& archivo, const EstadoDeBase& estado, QTextStream& salida);

} // namespace basedatos
