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
// transaction. Any failure removes the half-made file and is an Error naming the script.
// The caller has made sure the file does not exist.
void crearBase(const QString& archivo, const QList<Script>& scripts);

} // namespace basedatos
