#include "Respaldo.h"

#include "BaseSqlite.h"
#include "SoloLectura.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <sqlite3.h>

namespace basedatos {

namespace {

// All pages in one step: one read transaction, which under WAL does not hold up the application's
// writers, and a copy that is never restarted by their changes between steps.
constexpr int paginasPorPaso = -1;
// Each busy answer has already waited the source's busy timeout; past this many in a row, give up.
constexpr int esperasMaximas = 5;

int copiar(BaseSqlite& fuente, BaseSqlite& copia) {
    sqlite3_backup* respaldo = sqlite3_backup_init(copia.db(), "main", fuente.db(), "main");
    if (!respaldo) throw Error(copia.ultimoError());
    int r, esperas = 0;
    do {
        r = sqlite3_backup_step(respaldo, paginasPorPaso);
        const bool ocupada = r == SQLITE_BUSY || r == SQLITE_LOCKED;
        esperas = ocupada ? esperas + 1 : 0;
        if (ocupada && esperas < esperasMaximas) sqlite3_sleep(100);
    } while (r == SQLITE_OK || ((r == SQLITE_BUSY || r == SQLITE_LOCKED) && esperas < esperasMaximas));
    const int paginas = sqlite3_backup_pagecount(respaldo);
    sqlite3_backup_finish(respaldo);
    if (r != SQLITE_DONE) throw Error(QString::fromUtf8(sqlite3_errstr(r)));
    return paginas;
}

// A name beside `destino` that no file has: the copy is written there and takes its own name only
// when complete, so a copy cut short (the program killed, the disk full) never passes for a whole one.
QString nombreProvisional(const QString& destino) {
    static const QString letras = QStringLiteral("abcdefghijklmnopqrstuvwxyz0123456789");
    QString nombre;
    do {
        nombre = destino + QStringLiteral(".incompleta-");
        for (int i = 0; i < 6; ++i)
            nombre += letras.at(QRandomGenerator::global()->bounded(int(letras.size())));
    } while (QFileInfo(nombre).exists() || QFileInfo(nombre).isSymLink());
    return nombre;
}

void borrarConSusArchivos(const QString& archivo) {
    for (const char* sufijo : {"", "-wal", "-shm", "-journal"})
        QFile::remove(archivo + QLatin1String(sufijo));
}

} // namespace

Respaldo respaldar(const QString& origen, const QString& destino) {
    const QFileInfo info(destino);
    if (info.exists() || info.isSymLink())
        throw Error(QStringLiteral("%1 ya existe; la copia no reemplaza ningún archivo.").arg(destino));
    exigirBaseDelSistema(origen);
    if (const QString carpeta = carpetaExistente(destino); !admiteEscritura(carpeta))
        throw Error(
            QStringLiteral("La carpeta %1 no admite escritura (¿un medio de solo lectura?): la copia no "
                           "se puede guardar allí.")
                .arg(carpeta));
    const QString provisional = nombreProvisional(destino);
    Respaldo hecho;
    try {
        {
            BaseSqlite fuente(origen, SQLITE_OPEN_READONLY);
            sqlite3_busy_timeout(fuente.db(), 5000);
            BaseSqlite copia(provisional, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
            hecho.paginas = copiar(fuente, copia);
        } // closed: the copy is on disk and its journal gone
        // Qt renames without replacing: a file that took the name meanwhile stays.
        if (!QFile::rename(provisional, destino))
            throw Error(QStringLiteral("no se pudo dar a la copia su nombre (¿apareció un archivo %1?)")
                            .arg(destino));
    } catch (const Error& e) {
        borrarConSusArchivos(provisional);
        throw Error(QStringLiteral("No se pudo copiar %1 en %2: %3").arg(origen, destino, e.texto()));
    }
    hecho.bytes = QFileInfo(destino).size();
    return hecho;
}

} // namespace basedatos
