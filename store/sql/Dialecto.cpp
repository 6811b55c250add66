#include "store/sql/Dialecto.h"

#include "runtime/Fechas.h"
#include "store/Fallo.h"

#include <QHash>
#include <QRegularExpression>
#include <functional>

namespace store::sql {
namespace {

using T = Expr::Tipo;

[[noreturn]] void noAdmitida(const QString& motivo) {
    throw Fallo(FalloSintaxis, motivo);
}

bool esNombreSimple(const QString& n) {
    // Anchored at the very end: "$" would also match before a final line break.
    static const QRegularExpression simple(QRegularExpression::anchoredPattern(u"[A-Za-z_][A-Za-z0-9_]*"));
    return simple.match(n).hasMatch();
}

bool esAgregado(const QString& funcion) {
    static const QStringList agregados = {QStringLiteral("sum"), QStringLiteral("max"), QStringLiteral("min"),
                                          QStringLiteral("avg"), QStringLiteral("count")};
    return agregados.contains(funcion, Qt::CaseInsensitive);
}

// A name, a literal or a constant: short, and the same wherever it is written.
bool esHoja(const Expr& e) {
    switch (e.tipo) {
    case T::Numero:
    case T::Texto:
    case T::Fecha:
    case T::Booleano:
    case T::Nulo:
    case T::Columna:
        return true;
    default:
        return false;
    }
}

// Whether the expression holds an aggregate of its own query (a sub-query is a query of its own).
bool contieneAgregado(const Expr& e) {
    if (e.tipo == T::Funcion && esAgregado(e.texto)) return true;
    for (const auto& h : e.hijos)
        if (contieneAgregado(*h)) return true;
    return false;
}

// Writes one parsed statement in a dialect's SQL. Knows which table each alias names, so that a text
// compared with or written into a date column can be read as the date it stands for.
class Escritor {
public:
    Escritor(const Dialecto& d, const Catalogo* c)
        : d_(d)
        , catalogo_(c) {}

    QString sentencia(const Sentencia& s) {
        switch (s.tipo) {
        case Sentencia::Tipo::Select:
            return select(*s.consulta);
        case Sentencia::Tipo::Insert:
            return insertar(s);
        case Sentencia::Tipo::Update:
            return actualizar(s);
        case Sentencia::Tipo::Delete:
            return borrar(s);
        }
        return {};
    }

private:
    struct Ambito {
        QHash<QString, QString> tablaPorAlias; // lower-case alias or table name -> table name
        QString tablaUnica;                    // the one table of a statement with one
    };

    // ---- statements ---------------------------------------------------------------------------
    QString select(const Select& s) {
        Ambito ambito;
        for (const auto& f : s.desde)
            registrar(*f, ambito);
        if (s.desde.size() == 1 && s.desde[0]->tipo == Fuente::Tipo::Tabla)
            ambito.tablaUnica = s.desde[0]->nombre;
        ambitos_.push_back(ambito);

        QString sql = QStringLiteral("SELECT ");
        if (s.distinto) sql += QStringLiteral("DISTINCT ");
        QStringList elementos;
        int sinNombre = 0;
        for (const auto& e : s.elementos) {
            QString x = expr(*e.expr);
            if (!e.alias.isEmpty()) {
                x += QStringLiteral(" AS ") + d_.identificador(e.alias);
            } else if (e.expr->tipo != T::Columna && e.expr->tipo != T::Todas) {
                // A computed column without a name is called Expr1000, Expr1001, ... rather than
                // after the database's own text of the expression.
                x += QStringLiteral(" AS Expr%1").arg(1000 + sinNombre++);
            }
            elementos << x;
        }
        sql += elementos.join(QStringLiteral(", "));
        if (!s.desde.empty()) {
            QStringList fuentes;
            for (const auto& f : s.desde)
                fuentes << fuente(*f);
            sql += QStringLiteral(" FROM ") + fuentes.join(QStringLiteral(", "));
        }
        if (s.donde) sql += QStringLiteral(" WHERE ") + expr(*s.donde);
        if (!s.agrupar.empty()) sql += QStringLiteral(" GROUP BY ") + lista(s.agrupar);
        if (s.teniendo) sql += QStringLiteral(" HAVING ") + expr(*s.teniendo);
        if (!s.ordenar.empty()) {
            QStringList orden;
            for (const auto& o : s.ordenar)
                orden << expr(*o.expr) + (o.descendente ? QStringLiteral(" DESC") : QString());
            sql += QStringLiteral(" ORDER BY ") + orden.join(QStringLiteral(", "));
        }
        if (s.primeros) sql += QStringLiteral(" LIMIT ") + s.primeros->texto;
        ambitos_.pop_back();
        return sql;
    }

    void registrar(const Fuente& f, Ambito& a) {
        if (f.tipo == Fuente::Tipo::Union) {
            registrar(*f.izquierda, a);
            registrar(*f.derecha, a);
        } else if (f.tipo == Fuente::Tipo::Tabla) {
            a.tablaPorAlias.insert(f.nombre.toLower(), f.nombre);
            if (!f.alias.isEmpty()) a.tablaPorAlias.insert(f.alias.toLower(), f.nombre);
        }
    }

    QString fuente(const Fuente& f) {
        switch (f.tipo) {
        case Fuente::Tipo::Tabla:
            return d_.identificador(f.nombre, f.entreCorchetes) + alias(f.alias);
        case Fuente::Tipo::Subconsulta:
            return QLatin1Char('(') + select(*f.subconsulta) + QLatin1Char(')') + alias(f.alias);
        case Fuente::Tipo::Union: {
            static const char* const clases[] = {" INNER JOIN ", " LEFT JOIN ", " RIGHT JOIN "};
            return fuente(*f.izquierda) + QLatin1String(clases[static_cast<int>(f.clase)]) +
                   fuente(*f.derecha) + QStringLiteral(" ON ") + expr(*f.condicion);
        }
        }
        return {};
    }

    QString alias(const QString& a) const {
        return a.isEmpty() ? QString() : QLatin1Char(' ') + d_.identificador(a);
    }

    QString insertar(const Sentencia& s) {
        QString sql = QStringLiteral("INSERT INTO ") + d_.identificador(s.tabla);
        QStringList columnas;
        for (const QString& c : s.columnas)
            columnas << d_.identificador(c);
        if (!columnas.isEmpty())
            sql += QStringLiteral(" (") + columnas.join(QStringLiteral(", ")) + QLatin1Char(')');
        if (s.consulta) return sql + QLatin1Char(' ') + select(*s.consulta);
        QStringList valores;
        for (size_t i = 0; i < s.valores.size(); ++i) {
            const QString columna = i < s.columnas.size() ? s.columnas[i] : QString();
            valores << valorPara(s.tabla, columna, *s.valores[i]);
        }
        return sql + QStringLiteral(" VALUES (") + valores.join(QStringLiteral(", ")) + QLatin1Char(')');
    }

    // An Update or a Delete names one table, perhaps with an alias.
    void entrarEnTabla(const Sentencia& s) {
        Ambito ambito;
        ambito.tablaUnica = s.tabla;
        ambito.tablaPorAlias.insert(s.tabla.toLower(), s.tabla);
        if (!s.aliasTabla.isEmpty()) ambito.tablaPorAlias.insert(s.aliasTabla.toLower(), s.tabla);
        ambitos_.push_back(ambito);
    }

    QString actualizar(const Sentencia& s) {
        entrarEnTabla(s);
        QStringList sets;
        for (const auto& a : s.asignaciones)
            sets << d_.identificador(a.columna) + QStringLiteral(" = ") +
                        valorPara(s.tabla, a.columna, *a.valor);
        QString sql = QStringLiteral("UPDATE ") + d_.identificador(s.tabla) + alias(s.aliasTabla) +
                      QStringLiteral(" SET ") + sets.join(QStringLiteral(", "));
        if (s.donde) sql += QStringLiteral(" WHERE ") + expr(*s.donde);
        ambitos_.pop_back();
        return sql;
    }

    QString borrar(const Sentencia& s) {
        entrarEnTabla(s);
        QString sql = QStringLiteral("DELETE FROM ") + d_.identificador(s.tabla) + alias(s.aliasTabla);
        if (s.donde) sql += QStringLiteral(" WHERE ") + expr(*s.donde);
        ambitos_.pop_back();
        return sql;
    }

    // ---- typed literals -----------------------------------------------------------------------
    bool esColumnaFecha(const QString& tabla, const QString& columna) const {
        if (!catalogo_ || tabla.isEmpty() || columna.isEmpty()) return false;
        const auto tipo = catalogo_->tipoColumna(tabla, columna);
        return tipo && (*tipo == QMetaType::QDate || *tipo == QMetaType::QDateTime);
    }

    // A text written into a date column, as '22/11/2026', is the date it spells, day first.
    QString valorPara(const QString& tabla, const QString& columna, const Expr& valor) {
        if (valor.tipo == T::Texto && esColumnaFecha(tabla, columna)) {
            if (const auto f = runtime::LeerFecha(valor.texto)) return d_.literalFecha(*f);
        }
        return expr(valor);
    }

    QString tablaDe(const Expr& columna) const {
        if (ambitos_.empty()) return {};
        const Ambito& a = ambitos_.back();
        if (columna.calificador.isEmpty()) return a.tablaUnica;
        return a.tablaPorAlias.value(columna.calificador.toLower());
    }

    // In "Fecha = '22/11/2026'" the text is compared as the date it spells.
    QString comparando(const Expr& uno, const Expr& otro) {
        if (uno.tipo == T::Texto && otro.tipo == T::Columna) return valorPara(tablaDe(otro), otro.texto, uno);
        return expr(uno);
    }

    // ---- expressions ----------------------------------------------------------------------------
    QString lista(const std::vector<ExprPtr>& xs) {
        QStringList r;
        for (const auto& x : xs)
            r << expr(*x);
        return r.join(QStringLiteral(", "));
    }

    static QString entreParentesis(const QString& s) { return QLatin1Char('(') + s + QLatin1Char(')'); }

    QString expr(const Expr& e) {
        switch (e.tipo) {
        case T::Numero:
            return e.texto;
        case T::Texto:
            return d_.literalTexto(e.texto);
        case T::Fecha:
            return d_.literalFecha(e.fecha);
        case T::Booleano:
            return d_.literalLogico(e.valorLogico);
        case T::Nulo:
            return QStringLiteral("NULL");
        case T::Columna:
            return (e.calificador.isEmpty() ? QString()
                                            : d_.identificador(e.calificador) + QLatin1Char('.')) +
                   d_.identificador(e.texto, e.entreCorchetes);
        case T::Todas:
            return e.calificador.isEmpty() ? QStringLiteral("*")
                                           : d_.identificador(e.calificador) + QStringLiteral(".*");
        case T::Unario:
            return e.texto == u"Not" ? QStringLiteral("(NOT ") + expr(*e.hijos[0]) + QLatin1Char(')')
                                     : QStringLiteral("(-") + expr(*e.hijos[0]) + QLatin1Char(')');
        case T::Binario:
            return binario(e);
        case T::Funcion:
            return funcion(e);
        case T::Like:
            return like(e);
        case T::EsNulo:
            return entreParentesis(expr(*e.hijos[0]) +
                                   (e.negado ? QStringLiteral(" IS NOT NULL") : QStringLiteral(" IS NULL")));
        case T::Entre:
            return entreParentesis(expr(*e.hijos[0]) + (e.negado ? QStringLiteral(" NOT") : QString()) +
                                   QStringLiteral(" BETWEEN ") + comparando(*e.hijos[1], *e.hijos[0]) +
                                   QStringLiteral(" AND ") + comparando(*e.hijos[2], *e.hijos[0]));
        case T::En:
            return en(e);
        case T::Existe:
            return QStringLiteral("EXISTS (") + select(*e.subconsulta) + QLatin1Char(')');
        case T::Subconsulta:
            return entreParentesis(select(*e.subconsulta));
        case T::ValorExacto:
            return d_.valorExacto(expr(*e.hijos[0]));
        }
        return {};
    }

    QString en(const Expr& e) {
        QString r = expr(*e.hijos[0]) + (e.negado ? QStringLiteral(" NOT IN (") : QStringLiteral(" IN ("));
        if (e.subconsulta) return entreParentesis(r + select(*e.subconsulta) + QLatin1Char(')'));
        QStringList valores;
        for (size_t i = 1; i < e.hijos.size(); ++i)
            valores << comparando(*e.hijos[i], *e.hijos[0]);
        return entreParentesis(r + valores.join(QStringLiteral(", ")) + QLatin1Char(')'));
    }

    QString like(const Expr& e) {
        const Expr& patron = *e.hijos[1];
        const QString literal = patron.texto;
        QString r =
            d_.parecido(expr(*e.hijos[0]), expr(patron), patron.tipo == T::Texto ? &literal : nullptr);
        return e.negado ? QStringLiteral("(NOT ") + r + QLatin1Char(')') : r;
    }

    // a & b & c: one concatenation of all the parts, each Null counting as empty text.
    void partesConcatenacion(const Expr& e, std::vector<const Expr*>& partes) {
        if (e.tipo == T::Binario && e.texto == u"&") {
            partesConcatenacion(*e.hijos[0], partes);
            partesConcatenacion(*e.hijos[1], partes);
        } else {
            partes.push_back(&e);
        }
    }

    // ---- arguments a dialect writes more than once --------------------------------------------
    // A dialect's Format or & may write its argument several times (a test for Null, then the
    // value). Written as it stands, each Format or & over another would double the statement. An
    // argument that is more than a name or a constant is therefore written once, as a column of a
    // sub-select, and the dialect writes that column's name: the translation grows with the
    // statement, not with the power of its nesting.
    using Plantilla = std::function<QString(const std::vector<QString>&)>;

    QString ligados(const std::vector<const Expr*>& argumentos, const Plantilla& plantilla) {
        std::vector<QString> valores;
        QStringList columnas;
        for (const Expr* a : argumentos) {
            if (esHoja(*a)) {
                valores.push_back(expr(*a));
            } else if (contieneAgregado(*a)) {
                valores.push_back(enSuLugar(*a));
            } else {
                const QString nombre = QStringLiteral("v%1").arg(columnas.size() + 1);
                columnas << expr(*a) + QStringLiteral(" AS ") + nombre;
                valores.push_back(nombre);
            }
        }
        const QString r = plantilla(valores);
        if (columnas.isEmpty()) return r;
        return QStringLiteral("(SELECT %1 FROM (SELECT %2) AS ligados)")
            .arg(r, columnas.join(QStringLiteral(", ")));
    }

    // An aggregate of the enclosing query cannot move into a sub-select, so an argument holding one
    // is written in place, perhaps several times; one such argument inside another is refused.
    QString enSuLugar(const Expr& a) {
        if (repitiendoAgregado_)
            noAdmitida(QStringLiteral("Format y & no admiten, sobre un agregado, otro Format u otro & que "
                                      "también contenga un agregado."));
        repitiendoAgregado_ = true;
        struct Restaurar {
            bool& b;
            ~Restaurar() { b = false; }
        } restaurar{repitiendoAgregado_};
        return expr(a);
    }

    QString binario(const Expr& e) {
        const QString& op = e.texto;
        if (op == u"&") {
            std::vector<const Expr*> partes;
            partesConcatenacion(e, partes);
            return ligados(partes, [&](const std::vector<QString>& v) { return d_.concatenar(v); });
        }
        const Expr& a = *e.hijos[0];
        const Expr& b = *e.hijos[1];
        if (op == u"/") return entreParentesis(d_.comoReal(expr(a)) + QStringLiteral(" / ") + expr(b));
        if (op == u"\\")
            return QStringLiteral("(CAST(ROUND(%1) AS INTEGER) / CAST(ROUND(%2) AS INTEGER))")
                .arg(expr(a), expr(b));
        if (op == u"Mod") return entreParentesis(expr(a) + QStringLiteral(" % ") + expr(b));
        if (op == u"^") return QStringLiteral("POWER(%1, %2)").arg(expr(a), expr(b));
        if (op == u"Xor") return QStringLiteral("((%1) <> (%2))").arg(expr(a), expr(b));
        if (op == u"And" || op == u"Or")
            return entreParentesis(expr(a) + QLatin1Char(' ') + op.toUpper() + QLatin1Char(' ') + expr(b));
        // Comparisons and + - *: a text against a date column is read as a date.
        return entreParentesis(comparando(a, b) + QLatin1Char(' ') + op + QLatin1Char(' ') +
                               comparando(b, a));
    }

    QString argumento(const Expr& f, size_t i) {
        if (i >= f.hijos.size())
            noAdmitida(QStringLiteral("Faltan argumentos en la función %1.").arg(f.texto));
        return expr(*f.hijos[i]);
    }

    void esperarArgumentos(const Expr& f, size_t minimo, size_t maximo) {
        if (f.hijos.size() < minimo || f.hijos.size() > maximo)
            noAdmitida(QStringLiteral("Número de argumentos incorrecto en la función %1.").arg(f.texto));
    }

    QString funcion(const Expr& f) {
        const QString n = f.texto.toLower();
        if (esAgregado(n)) {
            esperarArgumentos(f, 1, 1);
            return n.toUpper() + QLatin1Char('(') + (f.distinto ? QStringLiteral("DISTINCT ") : QString()) +
                   argumento(f, 0) + QLatin1Char(')');
        }
        if (n == u"isnull") {
            esperarArgumentos(f, 1, 1);
            return entreParentesis(argumento(f, 0) + QStringLiteral(" IS NULL"));
        }
        if (n == u"nz") {
            esperarArgumentos(f, 2, 2);
            return QStringLiteral("COALESCE(%1, %2)").arg(argumento(f, 0), argumento(f, 1));
        }
        if (n == u"iif") {
            esperarArgumentos(f, 3, 3);
            return QStringLiteral("(CASE WHEN %1 THEN %2 ELSE %3 END)")
                .arg(argumento(f, 0), argumento(f, 1), argumento(f, 2));
        }
        if (n == u"format") {
            esperarArgumentos(f, 2, 2);
            if (f.hijos[1]->tipo != T::Texto)
                noAdmitida(QStringLiteral("El formato de Format debe ser un texto."));
            const QString& patron = f.hijos[1]->texto;
            return ligados({f.hijos[0].get()},
                           [&](const std::vector<QString>& v) { return d_.formatear(v[0], patron); });
        }
        static const QHash<QString, QString> mismas = {{QStringLiteral("len"), QStringLiteral("LENGTH")},
                                                       {QStringLiteral("ucase"), QStringLiteral("UPPER")},
                                                       {QStringLiteral("lcase"), QStringLiteral("LOWER")},
                                                       {QStringLiteral("trim"), QStringLiteral("TRIM")},
                                                       {QStringLiteral("ltrim"), QStringLiteral("LTRIM")},
                                                       {QStringLiteral("rtrim"), QStringLiteral("RTRIM")},
                                                       {QStringLiteral("abs"), QStringLiteral("ABS")},
                                                       {QStringLiteral("round"), QStringLiteral("ROUND")}};
        if (mismas.contains(n)) {
            esperarArgumentos(f, 1, n == u"round" ? 2 : 1);
            return mismas.value(n) + QLatin1Char('(') + lista(f.hijos) + QLatin1Char(')');
        }
        if (n == u"left") {
            esperarArgumentos(f, 2, 2);
            return QStringLiteral("SUBSTR(%1, 1, %2)").arg(argumento(f, 0), argumento(f, 1));
        }
        if (n == u"right") {
            esperarArgumentos(f, 2, 2);
            return d_.derecha(argumento(f, 0), argumento(f, 1));
        }
        if (n == u"mid") {
            esperarArgumentos(f, 2, 3);
            return QStringLiteral("SUBSTR(") + lista(f.hijos) + QLatin1Char(')');
        }
        if (n == u"cstr") {
            esperarArgumentos(f, 1, 1);
            return d_.comoTexto(argumento(f, 0));
        }
        if (n == u"cdbl") {
            esperarArgumentos(f, 1, 1);
            return d_.comoReal(argumento(f, 0));
        }
        if (n == u"clng" || n == u"cint") {
            esperarArgumentos(f, 1, 1);
            return QStringLiteral("CAST(ROUND(%1) AS INTEGER)").arg(argumento(f, 0));
        }
        if (n == u"date") {
            esperarArgumentos(f, 0, 0);
            return d_.hoy();
        }
        if (n == u"now") {
            esperarArgumentos(f, 0, 0);
            return d_.ahora();
        }
        noAdmitida(QStringLiteral("Función '%1' no definida en la expresión.").arg(f.texto));
    }

    const Dialecto& d_;
    const Catalogo* catalogo_;
    std::vector<Ambito> ambitos_;
    bool repitiendoAgregado_ = false;
};

} // namespace

QString Dialecto::traducir(const Sentencia& sentencia, const Catalogo* catalogo) const {
    QString sql = Escritor(*this, catalogo).sentencia(sentencia);
    if (sql.size() > kLargoMaximoTraduccion)
        noAdmitida(QStringLiteral("La instrucción SQL es demasiado extensa para la base de datos (%1 "
                                  "caracteres traducida; el máximo es %2).")
                       .arg(sql.size())
                       .arg(kLargoMaximoTraduccion));
    return sql;
}

QString Dialecto::identificador(const QString& nombre, bool forzarComillas) const {
    if (!forzarComillas && esNombreSimple(nombre) && !esPalabraClave(nombre)) return nombre;
    QString n = nombre;
    n.replace(QLatin1Char('"'), QStringLiteral("\"\""));
    return QLatin1Char('"') + n + QLatin1Char('"');
}

QString Dialecto::literalTexto(const QString& texto) const {
    QString t = texto;
    t.replace(QLatin1Char('\''), QStringLiteral("''"));
    return QLatin1Char('\'') + t + QLatin1Char('\'');
}

} // namespace store::sql
