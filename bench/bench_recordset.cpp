// How much the data store costs over SQLite itself: the time to open a Recordset over a
// 100,000-row table and walk it, reading every field, against the SQLite C API doing the same in
// the same run. Prints both medians and their ratio.
#include "BaseDePrueba.h"
#include "Medicion.h"
#include "store/Conexion.h"
#include "store/Recordset.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <algorithm>
#include <cstdio>
#include <sqlite3.h>
#include <vector>

namespace {

constexpr int filas = 100000;
constexpr int repeticiones = 5;

const char* const consulta = "Select * From Articulo";

void llenar(const BaseDePrueba& base) {
    base.sqlite(QStringLiteral("CREATE TABLE Articulo (ArticuloID INTEGER PRIMARY KEY AUTOINCREMENT, Nombre "
                               "TEXT, Modelo TEXT, Color TEXT, "
                               "Costo REAL, Existencia INTEGER, Fecha DATE);"
                               "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %1) "
                               "INSERT INTO Articulo (Nombre, Modelo, Color, Costo, Existencia, Fecha) "
                               "SELECT 'Refrigeradora ' || i, 'M-' || (i % 97), 'Blanco', i * 1.25, i % 40, "
                               "date('2026-01-01', '+' || (i % 365) || ' days') FROM n;")
                    .arg(filas));
}

double conSqlite(sqlite3* db, long long& control) {
    QElapsedTimer t;
    t.start();
    sqlite3_stmt* st = nullptr;
    sqlite3_prepare_v2(db, "SELECT * FROM Articulo", -1, &st, nullptr);
    while (sqlite3_step(st) == SQLITE_ROW) {
        for (int i = 0; i < sqlite3_column_count(st); ++i) {
            switch (sqlite3_column_type(st, i)) {
            case SQLITE_INTEGER:
                control += sqlite3_column_int64(st, i) != 0;
                break;
            case SQLITE_FLOAT:
                control += sqlite3_column_double(st, i) != 0;
                break;
            case SQLITE_TEXT:
                control += sqlite3_column_bytes(st, i) > 0;
                break;
            default:
                break;
            }
        }
    }
    sqlite3_finalize(st);
    return t.nsecsElapsed() / 1e6;
}

} // namespace

int main(int argc, char* argv[]) {
    QCoreApplication app(argc, argv);
    BaseDePrueba base;
    llenar(base);

    store::Conexion cn(QStringLiteral("DSN=DSNBrenal"));
    cn.Open();
    sqlite3* db = nullptr;
    sqlite3_open(base.archivo().toUtf8().constData(), &db);

    long long control = 0;
    std::vector<double> tiemposRecordset, tiemposSqlite;
    for (int i = 0; i < repeticiones; ++i) {
        tiemposRecordset.push_back(recorrerConRecordset(cn, QString::fromLatin1(consulta), control));
        tiemposSqlite.push_back(conSqlite(db, control));
    }
    sqlite3_close(db);

    const double r = mediana(tiemposRecordset), s = mediana(tiemposSqlite);
    std::printf("%d rows x 7 columns, median of %d runs (control %lld)\n", filas, repeticiones, control);
    std::printf("Recordset (ODBC, static cursor): %9.1f ms\n", r);
    std::printf("SQLite C API:                    %9.1f ms\n", s);
    std::printf("ratio Recordset / SQLite:        %9.1f\n", r / s);
    return 0;
}
