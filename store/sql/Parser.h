#pragma once

#include "store/sql/Ast.h"

#include <QString>

namespace store::sql {

// Reads one statement of the system's dialect: Select (Distinct, Top, joins by comma or
// Inner/Left/Right Join ... On, Where, Group By, Having, Order By by name or ordinal), Insert Into
// ... Values / Select, Update ... Set, Delete [*] From. Expressions follow the dialect's
// precedence: ^, unary minus, * /, \, Mod, + -, &, comparisons (= <> < > <= >= Like Is Between In),
// Not, And, Or. Throws Fallo (FalloSintaxis) on anything else.
Sentencia analizar(const QString& sentencia);

// A search criterion such as "BancoID = 5", as a recordset's Find takes it.
ExprPtr analizarCriterio(const QString& criterio);

} // namespace store::sql
