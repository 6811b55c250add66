#include "BaseSqlite.h"

#include "SoloLectura.h"

#include <QFileInfo>
#include <QUrl>
#include <sqlite3.h>

namespace basedatos {

BaseSqlite::BaseSqlite(const QString& archivo, int banderas) {
    if (sqlite3_open_v2(QFile::encodeName(archivo).constData(), &db_, banderas, nullptr) != SQLITE_OK) {
        const QString motivo = ultimoError();
        sqlite3_close(db_);
        db_ = nullptr;
        throw Error(QStringLiteral("No se pudo abrir %1: %2").arg(archivo, motivo));
    }
    sqlite3_extended_result_codes(db_, 1);
}

BaseSqlite::~BaseSqlite() {
    sqlite3_close(db_);
}

QString BaseSqlite::ultimoError() const {
    return db_ ? QString::fromUtf8(sqlite3_errmsg(db_)) : QStringLiteral("sin memoria");
}

void BaseSqlite::ejecutar(const QString& sentencias, const QString& origen) {
    char* error = nullptr;
    if (sqlite3_exec(db_, sentencias.toUtf8().constData(), nullptr, nullptr, &error) == SQLITE_OK) return;
    const QString texto = error ? QString::fromUtf8(error) : ultimoError();
    sqlite3_free(error);
    throw Error(origen.isEmpty() ? texto : QStringLiteral("%1: %2").arg(origen, texto));
}

qint64 BaseSqlite::entero(const QString& consulta) {
    sqlite3_stmt* st = nullptr;
    if (sqlite3_prepare_v2(db_, consulta.toUtf8().constData(), -1, &st, nullptr) != SQLITE_OK)
        throw Error(ultimoError());
    const int paso = sqlite3_step(st);
    const qint64 valor = paso == SQLITE_ROW ? sqlite3_column_int64(st, 0) : 0;
    sqlite3_finalize(st);
    if (paso != SQLITE_ROW && paso != SQLITE_DONE) throw Error(ultimoError());
    return valor;
}

namespace {

bool tieneVersionEsquema(BaseSqlite& base) {
    return base.entero(QStringLiteral("SELECT count(*) FROM sqlite_master "
                                      "WHERE type = 'table' AND name = 'VersionEsquema'")) > 0;
}

// Whether a database SQLite cannot open where it is would be ours: read as immutable, which takes no
// lock and needs no -shm file, only to look at its tables.
bool esNuestraSinAbrirla(const QString& archivo) {
    try {
        BaseSqlite base(QUrl::fromLocalFile(archivo).toString(QUrl::FullyEncoded) +
                            QStringLiteral("?immutable=1"),
                        SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
        return tieneVersionEsquema(base);
    } catch (const Error&) {
        return false;
    }
}

} // namespace

ClaseDeArchivo clasificarArchivo(const QString& archivo, QString* motivo) {
    const QFileInfo info(archivo);
    if (!info.exists()) return ClaseDeArchivo::NoExiste;
    auto clase = [&](ClaseDeArchivo c, const QString& texto) {
        if (motivo) *motivo = texto;
        return c;
    };
    if (!info.isFile()) return clase(ClaseDeArchivo::Otro, QStringLiteral("no es un archivo"));
    try {
        // Read-only, so a file that is not ours is never written to.
        BaseSqlite base(archivo, SQLITE_OPEN_READONLY);
        if (!tieneVersionEsquema(base))
            return clase(ClaseDeArchivo::Otro, QStringLiteral("no tiene la tabla VersionEsquema"));
        return ClaseDeArchivo::BaseDelSistema;
    } catch (const Error& e) {
        // On read-only media SQLite cannot open a database in WAL mode: that is what to say of it.
        if (const QString soloLectura = motivoDeSoloLectura(archivo);
            !soloLectura.isEmpty() && esNuestraSinAbrirla(archivo))
            return clase(ClaseDeArchivo::BaseEnSoloLectura, soloLectura);
        return clase(ClaseDeArchivo::Otro, e.texto());
    }
}

QString enSoloLectura(const QString& motivo) {
    return QStringLiteral("en un medio de solo lectura (%1)").arg(motivo);
}

void exigirBaseDelSistema(const QString& archivo) {
    QString motivo;
    switch (clasificarArchivo(archivo, &motivo)) {
    case ClaseDeArchivo::BaseDelSistema:
        return;
    case ClaseDeArchivo::NoExiste:
        throw Error(QStringLiteral("La base de datos %1 no existe.").arg(archivo));
    case ClaseDeArchivo::BaseEnSoloLectura:
        throw Error(
            QStringLiteral("La base de datos %1 está %2, donde no se puede abrir: una base en modo WAL "
                           "necesita escribir junto a ella sus archivos -wal y -shm. Cópiela, con esos "
                           "archivos si los tiene, a una carpeta con escritura.")
                .arg(archivo, enSoloLectura(motivo)));
    case ClaseDeArchivo::Otro:
        throw Error(
            QStringLiteral("%1 no es una base de datos de cuenta corriente (%2).").arg(archivo, motivo));
    }
}

} // namespace basedatos
