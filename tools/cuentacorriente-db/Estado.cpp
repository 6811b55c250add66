#include "Estado.h"

#include "BaseSqlite.h"
#include "OrigenDatos.h"

#include <QTextStream>
#include <algorithm>
#include <sqlite3.h>

namespace basedatos {

namespace {

QStringList nombresDeTablas(BaseSqlite& base) {
    sqlite3_stmt* st = nullptr;
    if (sqlite3_prepare_v2(base.db(),
                           "SELECT name FROM sqlite_master "
                           "WHERE type = 'table' AND name NOT LIKE 'sqlite\\_%' ESCAPE '\\' ORDER BY name",
                           -1, &st, nullptr) != SQLITE_OK)
        throw Error(base.ultimoError());
    QStringList nombres;
    while (sqlite3_step(st) == SQLITE_ROW)
        nombres << QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st, 0)));
    sqlite3_finalize(st);
    return nombres;
}

QString identificador(QString nombre) {
    return QLatin1Char('"') + nombre.replace(QLatin1Char('"'), QLatin1String("\"\"")) + QLatin1Char('"');
}

} // namespace

EstadoDeBase leerEstado(const QString& archivo) {
    exigirBaseDelSistema(archivo);
    BaseSqlite base(archivo, SQLITE_OPEN_READONLY);
    sqlite3_busy_timeout(base.db(), 5000);
    // One read transaction, so the counts belong to one moment even while others write.
    base.ejecutar(QStringLiteral("BEGIN"));
    EstadoDeBase estado;
    estado.version = base.entero(QStringLiteral("SELECT max(Version) FROM VersionEsquema"));
    for (const QString& tabla : nombresDeTablas(base))
        estado.filasPorTabla.append(
            {tabla, base.entero(QStringLiteral("SELECT count(*) FROM ") + identificador(tabla))});
    base.ejecutar(QStringLiteral("COMMIT"));
    return estado;
}

void escribirEstado(const QString& archivo, const EstadoDeBase& estado, QTextStream& salida) {
    const QString titulo = QStringLiteral("Tabla"), filas = QStringLiteral("Filas");
    qsizetype ancho = titulo.size(), anchoFilas = filas.size();
    for (const auto& [tabla, n] : estado.filasPorTabla) {
        ancho = std::max(ancho, tabla.size());
        anchoFilas = std::max(anchoFilas, QString::number(n).size());
    }
    salida << "Origen de datos " << nombreOrigen << ": " << archivo << '\n'
           << "Versión del esquema: " << estado.version << "\n\n"
           << titulo.leftJustified(ancho + 2) << filas.rightJustified(anchoFilas) << '\n';
    for (const auto& [tabla, n] : estado.filasPorTabla)
        salida << tabla.leftJustified(ancho + 2) << QString::number(n).rightJustified(anchoFilas) << '\n';
}

} // namespace basedatos
