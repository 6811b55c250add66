#pragma once

#include "store/FuenteEditable.h"
#include "store/LectorOdbc.h"
#include "store/sql/Ast.h"
#include "store/sql/Dialecto.h"

#include <QStringList>
#include <QVariant>
#include <QVector>

// The SQLite driver hands a REAL back rounded to 15 significant digits, a neighbour of the value
// stored: an update that looked for its row by the value as read would not find a stored 100/3, or
// would find a row another user changed to the rounded value. So an updatable recordset reads, after
// its fields, the exact value of each REAL column it reads, and holds that.
namespace store {

// The REAL columns of the source's table among those its fields read, each once; none when the
// fields do not read the table's key (`clave`), as then no row is written back.
QStringList columnasReales(const FuenteEditable& fuente, const QString& clave, const sql::Catalogo& catalogo);

// Adds to the select, after its own elements, the exact value of each column.
void pedirValoresExactos(sql::Select& consulta, const QStringList& columnas);

// Takes the values pedirValoresExactos asked for, the last `cuantos` columns, off the result: the
// exact values of each row.
QVector<QVector<QVariant>> separarValoresExactos(ResultadoLeido& leido, qsizetype cuantos);

// For each field, which of `columnas` it reads (by `columnaDeCampo`, empty for a computed field);
// -1 for none.
QVector<int> exactoDeCadaCampo(const QVector<QString>& columnaDeCampo, const QStringList& columnas);

// Puts into a row's fields the exact values read for it; where none came (Null), the value as read
// is already exact.
void ponerValoresExactos(QVector<QVariant>& fila, const QVector<int>& exactoDeCampo,
                         const QVector<QVariant>& exactos);

} // namespace store
