#include "store/FuenteEditable.h"

namespace store {

std::optional<FuenteEditable> fuenteEditable(const sql::Sentencia& sentencia) {
    using sql::Expr;
    if (sentencia.tipo != sql::Sentencia::Tipo::Select || !sentencia.consulta) return std::nullopt;
    const sql::Select& s = *sentencia.consulta;
    if (s.distinto || !s.agrupar.empty() || s.teniendo || s.desde.size() != 1) return std::nullopt;
    const sql::Fuente& f = *s.desde.front();
    if (f.tipo != sql::Fuente::Tipo::Tabla) return std::nullopt;

    FuenteEditable r;
    r.tabla = f.nombre;
    const auto nombraLaTabla = [&](const QString& calificador) {
        return calificador.isEmpty() || calificador.compare(f.nombre, Qt::CaseInsensitive) == 0 ||
               calificador.compare(f.alias, Qt::CaseInsensitive) == 0;
    };
    for (const auto& e : s.elementos) {
        if (e.expr->tipo == Expr::Tipo::Todas && nombraLaTabla(e.expr->calificador)) {
            r.todas = true;
        } else if (e.expr->tipo == Expr::Tipo::Columna && nombraLaTabla(e.expr->calificador)) {
            const QString salida = e.alias.isEmpty() ? e.expr->texto : e.alias;
            r.columnaPorCampo.insert(salida.toLower(), e.expr->texto);
        }
        // Anything else is a computed field: it is read, never written.
    }
    return r;
}

} // namespace store
