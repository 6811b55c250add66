#pragma once

#include "store/sql/Ast.h"

#include <QHash>
#include <QString>
#include <optional>

namespace store {

// The one table a Select reads, when a row of its result can be written back to that table.
struct FuenteEditable {
    QString tabla;
    bool todas = false;                      // Select * (or T.*): every result field is a column
    QHash<QString, QString> columnaPorCampo; // lower-case result name -> column of the table
};

// None for joins, groups, Distinct, subqueries, or a source that is not one plain table.
std::optional<FuenteEditable> fuenteEditable(const sql::Sentencia& sentencia);

} // namespace store
