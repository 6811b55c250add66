#pragma once

#include <QList>
#include <QString>

namespace basedatos {

// One SQL script to run on a new database; `nombre` is what a failure names.
struct Script {
    QString nombre;
    QString texto;
};

// $XDG_DATA_HOME/cuentacorriente/brenal.db, XDG_DATA_HOME being ~/.local/share when unset or relative.
QString archivoPredeterminado();

// The schema scripts built into the program, in name order (010-tablas.sql ... 090-datos.sql),
// followed by demo/demo.sql when `conDemo`.
QList<Script> scriptsDelEsquema(bool conDemo);

// Makes `archivo` (and its folder) as a WAL database holding what the scripts create, all in one
// transaction, then moves it all from the -wal file into `archivo` and checks it there, so that the
// file alone is the whole database. Any failure removes the half-made file and is an Error naming the
// script, or saying the database did not end up whole in its file. A folder that admits no writing
// is refused first. The caller has made sure the file does not exist.
void crearBase(const QString& archivo, const QList<Script>& scripts);

} // namespace basedatos
