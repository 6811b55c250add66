#pragma once

#include "store/sql/Ast.h"

#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <optional>

class QSqlDatabase;

namespace store::sql {

// The longest translation the database is handed. What the writer adds around each construct is
// bounded, so a statement the parser accepts translates to at most a fixed multiple of its length;
// this is the same limit made certain.
inline constexpr qsizetype kLargoMaximoTraduccion = 4'000'000;

// What the translator may ask of the database's tables: the type of a column, so that a text such as
// '22/11/2026' written into a date column is read day first, as the program means it. A recordset asks
// it too, for the columns whose values it reads exactly.
class Catalogo {
public:
    virtual ~Catalogo() = default;
    virtual std::optional<QMetaType::Type> tipoColumna(const QString& tabla,
                                                       const QString& columna) const = 0;
    // Every column of a table, in its order; none for a table it does not know.
    virtual QStringList columnas(const QString& tabla) const = 0;
};

// The database behind the data source. The program writes every statement in one dialect; a Dialecto
// writes the parsed statement out in its database's SQL, and answers the few questions a recordset
// asks when it writes a row. The rendering common to every database lives here; each database
// overrides the constructs it spells differently.
class Dialecto {
public:
    virtual ~Dialecto() = default;

    virtual QString nombre() const = 0;

    QString traducir(const Sentencia& sentencia, const Catalogo* catalogo = nullptr) const;

    // Whether a transaction takes the database's write lock only at its first write, reading committed
    // data until then (a database with one writer at a time, whose read snapshot a transaction would
    // otherwise pin at its first read). The statements that take the lock, keep and drop it.
    virtual bool cerrojoAlEscribir() const { return false; }
    virtual QString inicioEscritura() const { return {}; }

    // A quoted identifier when the name needs it: not a plain name, or a word of the database's SQL.
    virtual QString identificador(const QString& nombre, bool forzarComillas = false) const;
    virtual bool esPalabraClave(const QString& nombre) const = 0;
    // "columna <null-safe => ?": finds a row by a value that may be Null, compared as stored (a text
    // byte for byte, whatever the column's collation).
    virtual QString igualdadSegura(const QString& columnaCitada) const = 0;
    // The value a REAL column stores, as a text that reads back as exactly that value, where the
    // driver's own reading of the column would round it; Null where that reading is already exact.
    virtual QString valorExacto(const QString& columnaCitada) const = 0;
    // The key the database gave to the row that this connection inserted last.
    virtual QVariant claveGenerada(QSqlDatabase& bd, const QString& tabla, const QString& clave) const = 0;

    // Constructs spelled differently by each database. Arguments are already rendered SQL.
    virtual QString concatenar(const std::vector<QString>& partes) const = 0;
    virtual QString formatear(const QString& valor, const QString& patron) const = 0;
    virtual QString literalFecha(const QDate& fecha) const = 0;
    virtual QString literalLogico(bool valor) const = 0;
    virtual QString parecido(const QString& valor, const QString& patron,
                             const QString* patronLiteral) const = 0;
    virtual QString comoReal(const QString& valor) const = 0;
    virtual QString comoTexto(const QString& valor) const = 0;
    virtual QString derecha(const QString& texto, const QString& largo) const = 0;
    virtual QString hoy() const = 0;
    virtual QString ahora() const = 0;

    QString literalTexto(const QString& texto) const;
};

} // namespace store::sql
