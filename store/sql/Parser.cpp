#include "store/sql/Parser.h"

#include "runtime/Fechas.h"
#include "store/Fallo.h"
#include "store/sql/Lexer.h"

#include <algorithm>
#include <cctype>

namespace store::sql {
namespace {

using T = Expr::Tipo;

// Words that end an expression or a name, so that they are never taken as an alias.
bool esPalabraReservada(const Token& t) {
    static const char* const reservadas[] = {
        "select", "from", "where", "group",  "by",      "having", "order", "and",   "or",       "not",
        "as",     "on",   "inner", "left",   "right",   "outer",  "join",  "union", "into",     "values",
        "set",    "like", "is",    "null",   "between", "in",     "asc",   "desc",  "distinct", "top",
        "exists", "mod",  "xor",   "update", "delete",  "insert", "true",  "false"};
    if (t.tipo != TipoToken::Identificador || t.entreCorchetes) return false;
    for (const char* r : reservadas)
        if (t.texto.compare(QLatin1String(r), Qt::CaseInsensitive) == 0) return true;
    return false;
}

class Analizador {
public:
    Analizador(const QString& sentencia)
        : fuente_(sentencia)
        , t_(tokenizar(sentencia)) {}

    Sentencia sentencia() {
        Sentencia s;
        if (palabra("select")) {
            s.tipo = Sentencia::Tipo::Select;
            s.consulta = select();
        } else if (palabra("insert")) {
            s = insertar();
        } else if (palabra("update")) {
            s = actualizar();
        } else if (palabra("delete")) {
            s = borrar();
        } else {
            error(QStringLiteral("se esperaba Select, Insert, Update o Delete"));
        }
        esperarFin();
        return s;
    }

    ExprPtr criterio() {
        ExprPtr e = expresion();
        esperarFin();
        return e;
    }

private:
    // ---- tokens ------------------------------------------------------------------------------
    const Token& actual() const { return t_[i_]; }
    const Token& siguiente() const { return t_[std::min(i_ + 1, t_.size() - 1)]; }
    bool alFinal() const { return actual().tipo == TipoToken::Fin; }
    const Token& avanzar() { return t_[alFinal() ? i_ : i_++]; }

    bool palabra(const char* p) {
        if (!actual().esPalabra(QLatin1String(p))) return false;
        ++i_;
        return true;
    }
    bool simbolo(const char* s) {
        if (!actual().esSimbolo(QLatin1String(s))) return false;
        ++i_;
        return true;
    }
    void esperarPalabra(const char* p) {
        if (!palabra(p)) error(QStringLiteral("se esperaba %1").arg(QLatin1String(p)));
    }
    void esperarSimbolo(const char* s) {
        if (!simbolo(s)) error(QStringLiteral("se esperaba '%1'").arg(QLatin1String(s)));
    }
    void esperarFin() {
        if (!alFinal()) error(QStringLiteral("sobra '%1'").arg(actual().texto));
    }

    [[noreturn]] void error(const QString& motivo) const {
        const QString cerca = alFinal()
                                  ? QStringLiteral("al final")
                                  : QStringLiteral("cerca de la posición %1").arg(actual().posicion + 1);
        throw Fallo(FalloSintaxis, QStringLiteral("Error de sintaxis (%1, %2) en la instrucción SQL: %3")
                                       .arg(motivo, cerca, sentenciaParaMensaje(fuente_)));
    }

    // ---- nesting -------------------------------------------------------------------------------
    // Each rule that may call itself again (through parentheses, Not, a sign, a sub-query or a
    // parenthesized join) holds one level while it reads.
    class Anidado {
    public:
        explicit Anidado(Analizador& a)
            : a_(a) {
            if (++a_.nivel_ > kProfundidadMaxima) a_.demasiadoProfunda();
        }
        ~Anidado() { --a_.nivel_; }
        Anidado(const Anidado&) = delete;
        Anidado& operator=(const Anidado&) = delete;

    private:
        Analizador& a_;
    };

    [[noreturn]] void demasiadoProfunda() const {
        error(QStringLiteral("la instrucción anida más de %1 niveles").arg(kProfundidadMaxima));
    }

    // A node built over others is one level deeper than the deepest of them; operators chained
    // without parentheses ("a + b + c ...") deepen the tree without any rule calling itself.
    int medir(int altura) const {
        if (altura > kProfundidadMaxima) demasiadoProfunda();
        return altura;
    }
    static int alturaDe(const ExprPtr& e) { return e ? e->altura : 0; }

    ExprPtr medido(ExprPtr e) const {
        int mayor = e->subconsulta ? e->subconsulta->altura : 0;
        for (const auto& h : e->hijos)
            mayor = std::max(mayor, h->altura);
        e->altura = medir(mayor + 1);
        return e;
    }

    int alturaDe(const Select& s) const {
        int mayor = alturaDe(s.donde);
        mayor = std::max(mayor, alturaDe(s.teniendo));
        for (const auto& e : s.elementos)
            mayor = std::max(mayor, alturaDe(e.expr));
        for (const auto& f : s.desde)
            mayor = std::max(mayor, f->altura);
        for (const auto& e : s.agrupar)
            mayor = std::max(mayor, alturaDe(e));
        for (const auto& o : s.ordenar)
            mayor = std::max(mayor, alturaDe(o.expr));
        return medir(mayor + 1);
    }

    QString nombre(const char* que) {
        const Token& t = actual();
        if (t.tipo != TipoToken::Identificador || esPalabraReservada(t))
            error(QStringLiteral("se esperaba %1").arg(QLatin1String(que)));
        ++i_;
        return t.texto;
    }

    // An alias, with or without As; a bare one only when it is a plain name.
    QString aliasOpcional() {
        if (palabra("as")) {
            if (actual().tipo == TipoToken::Texto) return avanzar().texto;
            return nombre("un alias");
        }
        if (actual().tipo == TipoToken::Identificador && !esPalabraReservada(actual()))
            return avanzar().texto;
        return {};
    }

    // ---- statements --------------------------------------------------------------------------
    std::shared_ptr<Select> select() {
        const Anidado nivel(*this);
        auto s = std::make_shared<Select>();
        if (palabra("distinct"))
            s->distinto = true;
        else
            palabra("all");
        if (palabra("top")) {
            if (actual().tipo != TipoToken::Numero) error(QStringLiteral("se esperaba un número tras Top"));
            s->primeros = Expr::crear(T::Numero, avanzar().texto);
        }
        do {
            s->elementos.push_back(elementoSeleccion());
        } while (simbolo(","));
        if (palabra("from")) {
            do {
                s->desde.push_back(fuenteConUniones());
            } while (simbolo(","));
        }
        if (palabra("where")) s->donde = expresion();
        if (palabra("group")) {
            esperarPalabra("by");
            do {
                s->agrupar.push_back(expresion());
            } while (simbolo(","));
        }
        if (palabra("having")) s->teniendo = expresion();
        if (palabra("order")) {
            esperarPalabra("by");
            do {
                Orden o;
                o.expr = expresion();
                if (palabra("desc"))
                    o.descendente = true;
                else
                    palabra("asc");
                s->ordenar.push_back(std::move(o));
            } while (simbolo(","));
        }
        s->altura = alturaDe(*s);
        return s;
    }

    ElementoSeleccion elementoSeleccion() {
        ElementoSeleccion e;
        if (simbolo("*")) {
            e.expr = Expr::crear(T::Todas);
            return e;
        }
        if (actual().tipo == TipoToken::Identificador && siguiente().esSimbolo(u".") &&
            t_[std::min(i_ + 2, t_.size() - 1)].esSimbolo(u"*")) {
            e.expr = Expr::crear(T::Todas);
            e.expr->calificador = avanzar().texto;
            i_ += 2;
            return e;
        }
        e.expr = expresion();
        e.alias = aliasOpcional();
        return e;
    }

    std::unique_ptr<Fuente> fuenteConUniones() {
        auto izquierda = fuenteSimple();
        while (true) {
            Fuente::Union clase = Fuente::Union::Interna;
            if (palabra("inner"))
                clase = Fuente::Union::Interna;
            else if (palabra("left"))
                clase = Fuente::Union::Izquierda, palabra("outer");
            else if (palabra("right"))
                clase = Fuente::Union::Derecha, palabra("outer");
            else if (!actual().esPalabra(u"join"))
                break;
            esperarPalabra("join");
            auto u = std::make_unique<Fuente>();
            u->tipo = Fuente::Tipo::Union;
            u->clase = clase;
            u->izquierda = std::move(izquierda);
            u->derecha = fuenteSimple();
            esperarPalabra("on");
            u->condicion = expresion();
            u->altura = medir(std::max({u->izquierda->altura, u->derecha->altura, u->condicion->altura}) + 1);
            izquierda = std::move(u);
        }
        return izquierda;
    }

    std::unique_ptr<Fuente> fuenteSimple() {
        const Anidado nivel(*this);
        auto f = std::make_unique<Fuente>();
        if (simbolo("(")) {
            if (palabra("select")) {
                f->tipo = Fuente::Tipo::Subconsulta;
                f->subconsulta = select();
                f->altura = medir(f->subconsulta->altura + 1);
                esperarSimbolo(")");
                f->alias = aliasOpcional();
                return f;
            }
            auto interior = fuenteConUniones();
            esperarSimbolo(")");
            return interior;
        }
        f->entreCorchetes = actual().entreCorchetes;
        f->nombre = nombre("el nombre de una tabla");
        f->alias = aliasOpcional();
        return f;
    }

    Sentencia insertar() {
        Sentencia s;
        s.tipo = Sentencia::Tipo::Insert;
        esperarPalabra("into");
        s.tabla = nombre("el nombre de una tabla");
        if (simbolo("(")) {
            do {
                s.columnas.push_back(nombre("el nombre de una columna"));
            } while (simbolo(","));
            esperarSimbolo(")");
        }
        if (palabra("values")) {
            esperarSimbolo("(");
            do {
                s.valores.push_back(expresion());
            } while (simbolo(","));
            esperarSimbolo(")");
            if (!s.columnas.empty() && s.columnas.size() != s.valores.size())
                error(QStringLiteral("el número de valores no coincide con el de columnas"));
        } else if (palabra("select")) {
            s.consulta = select();
        } else {
            error(QStringLiteral("se esperaba Values o Select"));
        }
        return s;
    }

    Sentencia actualizar() {
        Sentencia s;
        s.tipo = Sentencia::Tipo::Update;
        s.tabla = nombre("el nombre de una tabla");
        if (!actual().esPalabra(u"set")) s.aliasTabla = aliasOpcional();
        esperarPalabra("set");
        do {
            Asignacion a;
            a.columna = nombreColumnaCalificable();
            esperarSimbolo("=");
            a.valor = expresion();
            s.asignaciones.push_back(std::move(a));
        } while (simbolo(","));
        if (palabra("where")) s.donde = expresion();
        return s;
    }

    Sentencia borrar() {
        Sentencia s;
        s.tipo = Sentencia::Tipo::Delete;
        // "Delete * From T" and "Delete T.* From T" mean the same as "Delete From T".
        if (!simbolo("*") && actual().tipo == TipoToken::Identificador && !actual().esPalabra(u"from")) {
            avanzar();
            esperarSimbolo(".");
            esperarSimbolo("*");
        }
        esperarPalabra("from");
        s.tabla = nombre("el nombre de una tabla");
        s.aliasTabla = aliasOpcional();
        if (palabra("where")) s.donde = expresion();
        return s;
    }

    // "Mora" or "S.Mora": the qualifier is dropped, an Update has one table.
    QString nombreColumnaCalificable() {
        QString n = nombre("el nombre de una columna");
        if (simbolo(".")) n = nombre("el nombre de una columna");
        return n;
    }

    // ---- expressions, loosest first ------------------------------------------------------------
    ExprPtr binario(QString op, ExprPtr a, ExprPtr b) {
        auto e = Expr::crear(T::Binario, std::move(op));
        e->hijos.push_back(std::move(a));
        e->hijos.push_back(std::move(b));
        return medido(std::move(e));
    }

    ExprPtr expresion() {
        const Anidado nivel(*this);
        return disyuncion();
    }

    // One level of left-associative operators, each a symbol or a word; the operator keeps the
    // dialect's spelling ("+", "Mod", "And").
    using Nivel = ExprPtr (Analizador::*)();

    ExprPtr izquierda(std::initializer_list<const char*> operadores, Nivel siguiente) {
        ExprPtr e = (this->*siguiente)();
        while (true) {
            const char* hallado = nullptr;
            for (const char* op : operadores) {
                if (std::isalpha(static_cast<unsigned char>(op[0])) ? palabra(op) : simbolo(op)) {
                    hallado = op;
                    break;
                }
            }
            if (!hallado) return e;
            QString nombre = QLatin1String(hallado);
            nombre[0] = nombre[0].toUpper();
            e = binario(nombre, std::move(e), (this->*siguiente)());
        }
    }

    ExprPtr disyuncion() { return izquierda({"or", "xor"}, &Analizador::conjuncion); }
    ExprPtr conjuncion() { return izquierda({"and"}, &Analizador::negacion); }
    ExprPtr concatenacion() { return izquierda({"&"}, &Analizador::suma); }
    ExprPtr suma() { return izquierda({"+", "-"}, &Analizador::modulo); }
    ExprPtr modulo() { return izquierda({"mod"}, &Analizador::divisionEntera); }
    ExprPtr divisionEntera() { return izquierda({"\\"}, &Analizador::producto); }
    ExprPtr producto() { return izquierda({"*", "/"}, &Analizador::unario); }
    ExprPtr potencia() { return izquierda({"^"}, &Analizador::primario); }

    ExprPtr negacion() {
        if (palabra("not")) {
            const Anidado nivel(*this);
            auto e = Expr::crear(T::Unario, QStringLiteral("Not"));
            e->hijos.push_back(negacion());
            return medido(std::move(e));
        }
        return comparacion();
    }

    ExprPtr comparacion() {
        ExprPtr e = concatenacion();
        while (true) {
            static const char* const ops[] = {"=", "<>", "<", ">", "<=", ">="};
            bool hecho = false;
            for (const char* op : ops) {
                if (simbolo(op)) {
                    e = binario(QLatin1String(op), std::move(e), concatenacion());
                    hecho = true;
                    break;
                }
            }
            if (hecho) continue;
            if (palabra("is")) {
                auto n = Expr::crear(T::EsNulo);
                n->negado = palabra("not");
                esperarPalabra("null");
                n->hijos.push_back(std::move(e));
                e = std::move(n);
                continue;
            }
            const bool negado = actual().esPalabra(u"not") &&
                                (siguiente().esPalabra(u"like") || siguiente().esPalabra(u"between") ||
                                 siguiente().esPalabra(u"in"));
            if (negado) ++i_;
            if (palabra("like")) {
                e = conHijos(T::Like, negado, std::move(e), concatenacion());
            } else if (palabra("between")) {
                ExprPtr desde = concatenacion();
                esperarPalabra("and");
                e = conHijos(T::Entre, negado, std::move(e), std::move(desde), concatenacion());
            } else if (palabra("in")) {
                e = enLista(negado, std::move(e));
            } else {
                return e;
            }
        }
    }

    template <typename... Hijos> ExprPtr conHijos(T tipo, bool negado, Hijos&&... hijos) {
        auto e = Expr::crear(tipo);
        e->negado = negado;
        (e->hijos.push_back(std::forward<Hijos>(hijos)), ...);
        return medido(std::move(e));
    }

    ExprPtr enLista(bool negado, ExprPtr valor) {
        auto e = conHijos(T::En, negado, std::move(valor));
        esperarSimbolo("(");
        if (palabra("select")) {
            e->subconsulta = select();
        } else {
            do {
                e->hijos.push_back(expresion());
            } while (simbolo(","));
        }
        esperarSimbolo(")");
        return medido(std::move(e));
    }

    ExprPtr unario() {
        if (simbolo("-")) {
            const Anidado nivel(*this);
            auto e = Expr::crear(T::Unario, QStringLiteral("-"));
            e->hijos.push_back(unario());
            return medido(std::move(e));
        }
        if (simbolo("+")) {
            const Anidado nivel(*this);
            return unario();
        }
        return potencia();
    }

    ExprPtr primario() {
        const Token& t = actual();
        switch (t.tipo) {
        case TipoToken::Numero:
            return Expr::crear(T::Numero, avanzar().texto);
        case TipoToken::Texto:
            return Expr::crear(T::Texto, avanzar().texto);
        case TipoToken::Fecha:
            return fecha();
        case TipoToken::Simbolo:
            if (simbolo("(")) {
                if (palabra("select")) {
                    auto e = Expr::crear(T::Subconsulta);
                    e->subconsulta = select();
                    esperarSimbolo(")");
                    return medido(std::move(e));
                }
                ExprPtr e = expresion();
                esperarSimbolo(")");
                return e;
            }
            error(QStringLiteral("se esperaba una expresión"));
        case TipoToken::Identificador:
            return nombreOFuncion();
        case TipoToken::Fin:
            break;
        }
        error(QStringLiteral("se esperaba una expresión"));
    }

    ExprPtr fecha() {
        const Token& t = avanzar();
        const auto leida = runtime::LeerFecha(t.texto);
        if (!leida) {
            --i_;
            error(QStringLiteral("la fecha #%1# no es válida").arg(t.texto));
        }
        auto e = Expr::crear(T::Fecha, t.texto);
        e->fecha = *leida;
        return e;
    }

    ExprPtr nombreOFuncion() {
        if (palabra("null")) return Expr::crear(T::Nulo);
        if (actual().esPalabra(u"true") || actual().esPalabra(u"false")) {
            auto e = Expr::crear(T::Booleano, avanzar().texto);
            e->valorLogico = e->texto.compare(u"true", Qt::CaseInsensitive) == 0;
            return e;
        }
        if (palabra("exists")) {
            esperarSimbolo("(");
            esperarPalabra("select");
            auto e = Expr::crear(T::Existe);
            e->subconsulta = select();
            esperarSimbolo(")");
            return medido(std::move(e));
        }
        if (esPalabraReservada(actual()))
            error(QStringLiteral("palabra reservada '%1' fuera de lugar").arg(actual().texto));
        const Token& t = avanzar();
        if (!t.entreCorchetes && simbolo("(")) return funcion(t.texto);
        auto e = Expr::crear(T::Columna, t.texto);
        e->entreCorchetes = t.entreCorchetes;
        if (simbolo(".")) {
            if (actual().tipo != TipoToken::Identificador)
                error(QStringLiteral("se esperaba el nombre de una columna"));
            e->calificador = e->texto;
            e->entreCorchetes = actual().entreCorchetes;
            e->texto = avanzar().texto;
        }
        return e;
    }

    ExprPtr funcion(const QString& nombreFuncion) {
        auto e = Expr::crear(T::Funcion, nombreFuncion);
        if (simbolo(")")) return e;
        if (simbolo("*")) {
            e->hijos.push_back(Expr::crear(T::Todas));
        } else {
            e->distinto = palabra("distinct"); // Count(Distinct x)
            do {
                e->hijos.push_back(expresion());
            } while (simbolo(","));
        }
        esperarSimbolo(")");
        return medido(std::move(e));
    }

    const QString& fuente_;
    std::vector<Token> t_;
    size_t i_ = 0;
    int nivel_ = 0;
};

} // namespace

Sentencia analizar(const QString& sentencia) {
    return Analizador(sentencia).sentencia();
}

ExprPtr analizarCriterio(const QString& criterio) {
    return Analizador(criterio).criterio();
}

} // namespace store::sql
