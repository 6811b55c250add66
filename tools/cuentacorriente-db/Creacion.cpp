#include "Creacion.h"

#include "BaseSqlite.h"
#include "SoloLectura.h"

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

Error incompleta(const QString& archivo, const QString& motivo) {
    return Error(QStringLiteral("La base de datos %1 no quedó completa en su archivo: %2. ¿Queda espacio en "
                                "el disco? No se creó la base de datos.")
                     .arg(archivo, motivo));
}

// Until a checkpoint, what the scripts wrote lives only in the -wal file. The checkpoint SQLite makes
// on closing goes unreported when it fails (a disk with room for the -wal and not for the database),
// and the file alone would be a broken database: it is made here, and its failure fails init.
void pasarAlArchivo(BaseSqlite& base, const QString& archivo) {
    if (sqlite3_wal_checkpoint_v2(base.db(), "main", SQLITE_CHECKPOINT_TRUNCATE, nullptr, nullptr) !=
        SQLITE_OK)
        throw incompleta(archivo, QStringLiteral("no se pudo pasar a él lo escrito en su archivo -wal (%1)")
                                      .arg(base.ultimoError()));
}

// Closed, the database must stand in its file alone: no -wal left with data, the schema's version in
// it and nothing broken.
void verificar(const QString& archivo) {
    const QFileInfo registro(archivo + QStringLiteral("-wal"));
    if (registro.exists() && registro.size() > 0)
        throw incompleta(archivo, QStringLiteral("quedaron datos en su archivo -wal"));
    BaseSqlite base(archivo, SQLITE_OPEN_READWRITE);
    if (base.entero(QStringLiteral("SELECT count(*) FROM pragma_quick_check WHERE quick_check <> 'ok'")) > 0)
        throw incompleta(archivo, QStringLiteral("la revisión de integridad encontró errores"));
    if (base.entero(QStringLiteral("SELECT max(Version) FROM VersionEsquema")) < 1)
        throw incompleta(archivo, QStringLiteral("no tiene la versión del esquema"));
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
    if (const QString carpeta = carpetaExistente(archivo); !admiteEscritura(carpeta))
        throw Error(
            QStringLiteral("La carpeta %1 no admite escritura (¿un medio de solo lectura?): no se puede "
                           "crear allí la base de datos %2.")
                .arg(carpeta, archivo));
    if (!QDir().mkpath(info.absolutePath()))
        throw Error(QStringLiteral("No se pudo crear la carpeta %1.").arg(info.absolutePath()));
    try {
        {
            BaseSqlite base(archivo, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
            // WAL lets the screens read while another workstation writes; it cannot change inside a
            // transaction.
            base.ejecutar(QStringLiteral("PRAGMA journal_mode = WAL"));
            // The sample rows must honour the one relation the schema enforces.
            base.ejecutar(QStringLiteral("PRAGMA foreign_keys = ON"));
            try {
                base.ejecutar(QStringLiteral("BEGIN"));
                for (const Script& s : scripts)
                    base.ejecutar(s.texto, s.nombre);
                base.ejecutar(QStringLiteral("COMMIT"));
            } catch (const Error& e) {
                throw Error(
                    QStringLiteral("No se pudo crear la base de datos %1: %2").arg(archivo, e.texto()));
            }
            pasarAlArchivo(base, archivo);
        }
        verificar(archivo);
    } catch (const Error&) {
        // The connection is closed by now, so its files can go.
        borrarBase(archivo);
        throw;
    }
}

} // namespace basedatos
