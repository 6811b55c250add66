#pragma once

#include <QDate>
#include <QString>
#include <memory>
#include <vector>

// The statements of the system's dialect, as the parser reads them and a dialect writes them out.
namespace store::sql {

struct Select;

// The deepest nesting a statement may have: parentheses, operators chained one over another,
// sub-queries and joins all count. The screens' statements stay within a dozen levels; the bound
// keeps the parser, the writer and the tree's own destruction from running out of stack.
inline constexpr int kProfundidadMaxima = 100;

struct Expr {
    enum class Tipo {
        Numero,   // texto: the digits as written
        Texto,    // texto: the value
        Fecha,    // fecha
        Booleano, // valorLogico
        Nulo,
        Columna,     // calificador.texto (calificador may be empty)
        Todas,       // * or calificador.* (in a select list or Count(*))
        Unario,      // texto: "-", "+", "Not"; hijos[0]
        Binario,     // texto: operator ("+", "&", "=", "And", "Mod", ...); hijos[0], hijos[1]
        Funcion,     // texto: the name as written; hijos: arguments
        Like,        // hijos[0] Like hijos[1]; negado for Not Like
        EsNulo,      // hijos[0] Is Null; negado for Is Not Null
        Entre,       // hijos[0] Between hijos[1] And hijos[2]; negado
        En,          // hijos[0] In (hijos[1..]) or In (subconsulta); negado
        Existe,      // Exists (subconsulta)
        Subconsulta, // (subconsulta) as a value
        // hijos[0], a column: the value it stores, exactly. Only the store asks for it; no statement's
        // text can.
        ValorExacto,
    };

    Tipo tipo = Tipo::Nulo;
    QString texto;
    QString calificador;
    QDate fecha;
    bool valorLogico = false;
    bool negado = false;
    bool distinto = false; // Count(Distinct x)
    bool entreCorchetes = false;
    int altura = 1; // levels of this expression, its sub-query's included
    std::vector<std::unique_ptr<Expr>> hijos;
    std::shared_ptr<Select> subconsulta;

    static std::unique_ptr<Expr> crear(Tipo t, QString texto = {}) {
        auto e = std::make_unique<Expr>();
        e->tipo = t;
        e->texto = std::move(texto);
        return e;
    }
};

using ExprPtr = std::unique_ptr<Expr>;

struct ElementoSeleccion {
    ExprPtr expr;
    QString alias; // empty when none
};

struct Fuente {
    enum class Tipo { Tabla, Subconsulta, Union };
    enum class Union { Interna, Izquierda, Derecha };

    Tipo tipo = Tipo::Tabla;
    QString nombre; // table or view
    bool entreCorchetes = false;
    QString alias;
    std::shared_ptr<Select> subconsulta;
    // A join: izquierda <union> derecha On condicion.
    Union clase = Union::Interna;
    int altura = 1;
    std::unique_ptr<Fuente> izquierda;
    std::unique_ptr<Fuente> derecha;
    ExprPtr condicion;
};

struct Orden {
    ExprPtr expr;
    bool descendente = false;
};

struct Select {
    bool distinto = false;
    int altura = 1;
    ExprPtr primeros; // Top n
    std::vector<ElementoSeleccion> elementos;
    std::vector<std::unique_ptr<Fuente>> desde; // joined by commas
    ExprPtr donde;
    std::vector<ExprPtr> agrupar;
    ExprPtr teniendo;
    std::vector<Orden> ordenar;
};

struct Asignacion {
    QString columna;
    ExprPtr valor;
};

struct Sentencia {
    enum class Tipo { Select, Insert, Update, Delete };
    Tipo tipo = Tipo::Select;

    std::shared_ptr<Select> consulta; // Select, or Insert ... Select

    // Insert, Update, Delete
    QString tabla;
    QString aliasTabla;
    std::vector<QString> columnas;        // Insert
    std::vector<ExprPtr> valores;         // Insert ... Values
    std::vector<Asignacion> asignaciones; // Update
    ExprPtr donde;                        // Update, Delete
};

} // namespace store::sql
