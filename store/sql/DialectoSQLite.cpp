#include "store/sql/DialectoSQLite.h"

#include "store/Fallo.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

namespace store::sql {
namespace {

// SQLite folds only ASCII letters in Like; the accented capitals of Spanish names are folded here
// so that "muñoz" finds "MUÑOZ".
const char16_t* const minusculasAcentuadas[][2] = {{u"á", u"Á"}, {u"é", u"É"}, {u"í", u"Í"}, {u"ó", u"Ó"},
                                                   {u"ú", u"Ú"}, {u"ü", u"Ü"}, {u"ñ", u"Ñ"}};

QString plegarColumna(QString sql) {
    for (const auto& par : minusculasAcentuadas)
        sql = QStringLiteral("REPLACE(%1, '%2', '%3')")
                  .arg(sql, QString::fromUtf16(par[0]), QString::fromUtf16(par[1]));
    return sql;
}

QString plegarTexto(QString texto) {
    for (const auto& par : minusculasAcentuadas)
        texto.replace(QString::fromUtf16(par[0]), QString::fromUtf16(par[1]));
    return texto;
}

// The pieces of a numeric pattern such as "#,##0.00": decimals, whether the integer part shows a
// zero ("#0", "0.00") or nothing (".50", "#"), thousands separators.
struct PatronNumerico {
    int decimales = 0;
    bool ceroEntero = false;
    bool miles = false;
};

std::optional<PatronNumerico> leerPatronNumerico(const QString& patron) {
    PatronNumerico p;
    const qsizetype punto = patron.indexOf(QLatin1Char('.'));
    const QString entero = punto < 0 ? patron : patron.left(punto);
    const QString fraccion = punto < 0 ? QString() : patron.mid(punto + 1);
    if (entero.isEmpty() && fraccion.isEmpty()) return std::nullopt;
    for (QChar c : entero) {
        if (c == u'0')
            p.ceroEntero = true;
        else if (c == u',')
            p.miles = true;
        else if (c != u'#')
            return std::nullopt;
    }
    for (QChar c : fraccion) {
        if (c != u'0' && c != u'#') return std::nullopt;
    }
    p.decimales = static_cast<int>(fraccion.size());
    return p;
}

// SQLite's printf rounds halves away from zero on the decimal value, as the program's Format does.
QString numeroConPatron(const QString& v, const PatronNumerico& p) {
    const QString decimales = QString::number(p.decimales);
    const QString fijo = QStringLiteral("printf('%.%1f', %2)").arg(decimales, v);
    const QString cero = QStringLiteral("printf('%.%1f', 0)").arg(decimales);
    // A value that rounds to zero shows no sign.
    QString t = QStringLiteral("(CASE WHEN %1 = '-' || %2 THEN %2 ELSE %1 END)").arg(fijo, cero);
    if (p.miles) {
        const QString redondo = QStringLiteral("CAST(%1 AS REAL)").arg(t);
        const QString entero = QStringLiteral("CAST(%1 AS INTEGER)").arg(redondo);
        const QString signo =
            QStringLiteral("(CASE WHEN %1 < 0 AND %2 = 0 THEN '-' ELSE '' END)").arg(redondo, entero);
        const QString fraccion =
            p.decimales > 0 ? QStringLiteral("SUBSTR(%1, -%2)").arg(t, QString::number(p.decimales + 1))
                            : QStringLiteral("''");
        t = QStringLiteral("(%1 || printf('%,d', %2) || %3)").arg(signo, entero, fraccion);
    }
    if (p.ceroEntero) return t;
    // "#.00" shows 0.5 as .50, and "#" shows 0 as nothing.
    if (p.decimales == 0) return QStringLiteral("(CASE WHEN %1 = '0' THEN '' ELSE %1 END)").arg(t);
    return QStringLiteral("(CASE WHEN SUBSTR(%1, 1, 2) = '0.' THEN SUBSTR(%1, 2) "
                          "WHEN SUBSTR(%1, 1, 3) = '-0.' THEN '-' || SUBSTR(%1, 3) ELSE %1 END)")
        .arg(t);
}

std::optional<QString> patronFecha(const QString& patron) {
    QString r;
    for (qsizetype i = 0; i < patron.size();) {
        const QStringView resto = QStringView(patron).mid(i);
        if (resto.startsWith(u"yyyy", Qt::CaseInsensitive))
            r += QStringLiteral("%Y"), i += 4;
        else if (resto.startsWith(u"dd", Qt::CaseInsensitive))
            r += QStringLiteral("%d"), i += 2;
        else if (resto.startsWith(u"mmmm", Qt::CaseInsensitive))
            return std::nullopt;
        else if (resto.startsWith(u"mm", Qt::CaseInsensitive))
            r += QStringLiteral("%m"), i += 2;
        else if (resto.front().isLetter() || resto.front() == u'%')
            return std::nullopt;
        else
            r += resto.front(), i += 1;
    }
    return r;
}

// SQLite's keywords: a name spelled like one is written quoted.
const QStringList& palabrasClave() {
    static const QStringList palabras =
        QStringLiteral("ABORT ACTION ADD AFTER ALL ALTER ALWAYS ANALYZE AND AS ASC ATTACH AUTOINCREMENT "
                       "BEFORE BEGIN BETWEEN BY "
                       "CASCADE CASE CAST CHECK COLLATE COLUMN COMMIT CONFLICT CONSTRAINT CREATE CROSS "
                       "CURRENT CURRENT_DATE "
                       "CURRENT_TIME CURRENT_TIMESTAMP DATABASE DEFAULT DEFERRABLE DEFERRED DELETE DESC "
                       "DETACH DISTINCT DO DROP "
                       "EACH ELSE END ESCAPE EXCEPT EXCLUDE EXCLUSIVE EXISTS EXPLAIN FAIL FILTER FIRST "
                       "FOLLOWING FOR FOREIGN FROM "
                       "FULL GENERATED GLOB GROUP GROUPS HAVING IF IGNORE IMMEDIATE IN INDEX INDEXED "
                       "INITIALLY INNER INSERT "
                       "INSTEAD INTERSECT INTO IS ISNULL JOIN KEY LAST LEFT LIKE LIMIT MATCH MATERIALIZED "
                       "NATURAL NO NOT NOTHING "
                       "NOTNULL NULL NULLS OF OFFSET ON OR ORDER OTHERS OUTER OVER PARTITION PLAN PRAGMA "
                       "PRECEDING PRIMARY QUERY "
                       "RAISE RANGE RECURSIVE REFERENCES REGEXP REINDEX RELEASE RENAME REPLACE RESTRICT "
                       "RETURNING RIGHT ROLLBACK "
                       "ROW ROWS SAVEPOINT SELECT SET TABLE TEMP TEMPORARY THEN TIES TO TRANSACTION TRIGGER "
                       "UNBOUNDED UNION "
                       "UNIQUE UPDATE USING VACUUM VALUES VIEW VIRTUAL WHEN WHERE WINDOW WITH WITHOUT")
            .split(QLatin1Char(' '));
    return palabras;
}

} // namespace

bool DialectoSQLite::esPalabraClave(const QString& nombre) const {
    return palabrasClave().contains(nombre, Qt::CaseInsensitive);
}

// Binary, whatever the column's collation: under NOCASE "Banrural" would still find a row another user
// changed to "BANRURAL", and the update would overwrite that change.
QString DialectoSQLite::igualdadSegura(const QString& columnaCitada) const {
    return columnaCitada + QStringLiteral(" IS ? COLLATE BINARY");
}

// The driver reads a REAL as SQLite's text of it, 15 significant digits: 100/3 comes back as
// 33.3333333333333. quote() writes 15 digits when they read back as the same value, else 21; where the
// 15 do (most amounts), Null is cheaper to read.
QString DialectoSQLite::valorExacto(const QString& columnaCitada) const {
    return QStringLiteral("(CASE WHEN typeof(%1) = 'real' THEN NULLIF(quote(%1), CAST(%1 AS TEXT)) END)")
        .arg(columnaCitada);
}

QVariant DialectoSQLite::claveGenerada(QSqlDatabase& bd, const QString&, const QString&) const {
    QSqlQuery q(bd);
    if (!q.exec(QStringLiteral("SELECT last_insert_rowid()")) || !q.next())
        throw Fallo(FalloGeneral, q.lastError().databaseText());
    return q.value(0);
}

QString DialectoSQLite::concatenar(const std::vector<QString>& partes) const {
    QStringList r;
    // A real joins as its shortest text (1200, not 1200.0), as the program's own & does.
    for (const QString& p : partes) {
        r << (p.startsWith(QLatin1Char('\''))
                  ? p
                  : QStringLiteral(
                        "IFNULL(CASE WHEN typeof(%1) = 'real' THEN printf('%.15g', %1) ELSE %1 END, '')")
                        .arg(p));
    }
    return QLatin1Char('(') + r.join(QStringLiteral(" || ")) + QLatin1Char(')');
}

QString DialectoSQLite::formatear(const QString& valor, const QString& patron) const {
    QString r;
    if (const auto p = leerPatronNumerico(patron))
        r = numeroConPatron(valor, *p);
    else if (const auto f = patronFecha(patron))
        r = QStringLiteral("strftime(%1, %2)").arg(literalTexto(*f), valor);
    else
        throw Fallo(FalloSintaxis,
                    QStringLiteral("Formato '%1' no admitido en una instrucción SQL.").arg(patron));
    return QStringLiteral("(CASE WHEN %1 IS NULL THEN NULL ELSE %2 END)").arg(valor, r);
}

QString DialectoSQLite::literalFecha(const QDate& fecha) const {
    return QLatin1Char('\'') + fecha.toString(QStringLiteral("yyyy-MM-dd")) + QLatin1Char('\'');
}

QString DialectoSQLite::literalLogico(bool valor) const {
    return valor ? QStringLiteral("1") : QStringLiteral("0");
}

QString DialectoSQLite::parecido(const QString& valor, const QString& patron,
                                 const QString* patronLiteral) const {
    const QString derecha = patronLiteral ? literalTexto(plegarTexto(*patronLiteral)) : plegarColumna(patron);
    return QStringLiteral("(%1 LIKE %2)").arg(plegarColumna(valor), derecha);
}

QString DialectoSQLite::comoReal(const QString& valor) const {
    return QStringLiteral("CAST(%1 AS REAL)").arg(valor);
}

QString DialectoSQLite::comoTexto(const QString& valor) const {
    return QStringLiteral("CAST(%1 AS TEXT)").arg(valor);
}

QString DialectoSQLite::derecha(const QString& texto, const QString& largo) const {
    return QStringLiteral("SUBSTR(%1, -(%2))").arg(texto, largo);
}

QString DialectoSQLite::hoy() const {
    return QStringLiteral("date('now', 'localtime')");
}

QString DialectoSQLite::ahora() const {
    return QStringLiteral("datetime('now', 'localtime')");
}

} // namespace store::sql
