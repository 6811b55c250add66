#include "Creacion.h"

#include "BaseSqlite.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <sqlite3.h>

namespace basedatos {

namespace {

const QString carpetaEsquema = QStringLiteral(":/esquema");

Script leerScript(const QString& ruta, const QString& nombre) {
    QFile f(ruta);
    if (!f.open(QIODevice::ReadOnly))
        throw Error(QStringLiteral("No se pudo leer el script incluido %1.").arg(nombre));
    return {nombre, QString::fromUtf8(f.readAll())};
}

void borrarBase(const QString& archivo) {
    for (const char* sufijo : {"", "-wal", "-shm", "-journal"})
        QFile::remove(archivo + QLatin1String(sufijo));
}

} // namespace

QString archivoPredeterminado() {
    QString datos = qEnvironmentVariable("XDG_DATA_HOME");
    if (datos.isEmpty() || QDir::isRelativePath(datos))
        datos = QDir::homePath() + QStringLiteral("/.local/share");
    return QDir::cleanPath(datos + QStringLiteral("/cuentacorriente/brenal.db"));
}

QList<Script> scriptsDelEsquema(bool conDemo) {
    QList<Script> scripts;
    const QDir carpeta(carpetaEsquema);
    for (const QString& nombre : carpeta.entryList({QStringLiteral("*.sql")}, QDir::Files, QDir::Name))
        scripts << leerScript(carpeta.filePath(nombre), nombre);
    if (scripts.isEmpty()) throw Error(QStringLiteral("El programa no trae los scripts del esquema."));
    if (conDemo)
        scripts << leerScript(carpetaEsquema + QStringLiteral("/demo/demo.sql"),
                              QStringLiteral("demo/demo.sql"));
    return scripts;
}

void crearBase(const QString& archivo, const QList<Script>& scripts) {
    const QFileInfo info(archivo);
    // Never over an existing file: the clean-up below would delete it.
    if (info.exists() || info.isSymLink()) throw Error(QStringLiteral("%1 ya existe.").arg(archivo));
    if (!QDir().mkpath(info.absolutePath()))
        throw Error(QStringLiteral("No se pudo crear la carpeta %1.").arg(info.absolutePath()));
    try {
        BaseSqlite base(archivo, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
        // WAL lets the screens read while another workstation writes; it cannot change inside a transaction.
        base.ejecutar(QStringLiteral("PRAGMA journal_mode = WAL"));
        // The sample rows must honour the one relation the schema enforces.
        base.ejecutar(QStringLiteral("PRAGMA foreign_keys = ON"));
        base.ejecutar(QStringLiteral("BEGIN"));
        for (const Script& s : scripts)
            base.ejecutar(s.texto, s.nombre);
        base.ejecutar(QStringLiteral("COMMIT"));
    } catch (const Error&) {
        // The connection is closed by now, so its files can go.
        borrarBase(archivo);
        throw;
    }
}

} // namespace basedatos
