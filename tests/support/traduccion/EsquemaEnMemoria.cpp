#include "EsquemaEnMemoria.h"

#include "EsquemaDelProyecto.h"

#include <sqlite3.h>

EsquemaEnMemoria::EsquemaEnMemoria(const QString& carpetaEsquema) {
    if (sqlite3_open(":memory:", &bd_) != SQLITE_OK) qFatal("sqlite3_open: %s", sqlite3_errmsg(bd_));
    char* error = nullptr;
    if (sqlite3_exec(bd_, scriptDelEsquema(carpetaEsquema).toUtf8().constData(), nullptr, nullptr, &error) !=
        SQLITE_OK)
        qFatal("schema: %s", error);
}

EsquemaEnMemoria::~EsquemaEnMemoria() {
    sqlite3_close(bd_);
}

EsquemaEnMemoria::Preparacion EsquemaEnMemoria::preparar(const QString& sql) const {
    const QByteArray utf8 = sql.toUtf8();
    sqlite3_stmt* sentencia = nullptr;
    const char* resto = nullptr;
    Preparacion p;
    // The length is given: a NUL inside the text must not end it early.
    p.preparada = sqlite3_prepare_v2(bd_, utf8.constData(), static_cast<int>(utf8.size()), &sentencia,
                                     &resto) == SQLITE_OK;
    if (!p.preparada) p.error = QString::fromUtf8(sqlite3_errmsg(bd_));
    if (resto) p.resto = QString::fromUtf8(resto, utf8.constData() + utf8.size() - resto);
    sqlite3_finalize(sentencia);
    return p;
}

std::optional<QMetaType::Type> EsquemaEnMemoria::tipoColumna(const QString& tabla,
                                                             const QString& columna) const {
    sqlite3_stmt* s = nullptr;
    if (sqlite3_prepare_v2(bd_, "SELECT type FROM pragma_table_info(?) WHERE name = ? COLLATE NOCASE", -1, &s,
                           nullptr) != SQLITE_OK)
        return std::nullopt;
    const QByteArray t = tabla.toUtf8(), c = columna.toUtf8();
    sqlite3_bind_text(s, 1, t.constData(), static_cast<int>(t.size()), SQLITE_TRANSIENT);
    sqlite3_bind_text(s, 2, c.constData(), static_cast<int>(c.size()), SQLITE_TRANSIENT);
    std::optional<QMetaType::Type> tipo;
    if (sqlite3_step(s) == SQLITE_ROW) {
        const QString declarado =
            QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(s, 0))).toUpper();
        if (declarado.contains(QLatin1String("DATETIME")) || declarado.contains(QLatin1String("TIMESTAMP")))
            tipo = QMetaType::QDateTime;
        else if (declarado.contains(QLatin1String("DATE")))
            tipo = QMetaType::QDate;
        else if (declarado.contains(QLatin1String("CHAR")) || declarado.contains(QLatin1String("TEXT")))
            tipo = QMetaType::QString;
        else if (declarado.contains(QLatin1String("INT")))
            tipo = QMetaType::LongLong;
        else
            tipo = QMetaType::Double;
    }
    sqlite3_finalize(s);
    return tipo;
}

QStringList EsquemaEnMemoria::columnas(const QString& tabla) const {
    sqlite3_stmt* s = nullptr;
    QStringList nombres;
    if (sqlite3_prepare_v2(bd_, "SELECT name FROM pragma_table_info(?) ORDER BY cid", -1, &s, nullptr) !=
        SQLITE_OK)
        return nombres;
    const QByteArray t = tabla.toUtf8();
    sqlite3_bind_text(s, 1, t.constData(), static_cast<int>(t.size()), SQLITE_TRANSIENT);
    while (sqlite3_step(s) == SQLITE_ROW)
        nombres << QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(s, 0)));
    sqlite3_finalize(s);
    return nombres;
}
