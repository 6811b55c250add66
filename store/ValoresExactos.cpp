#include "store/ValoresExactos.h"

#include <QLocale>
#include <optional>

namespace store {
namespace {

qsizetype posicion(const QStringList& columnas, const QString& columna) {
    for (qsizetype i = 0; i < columnas.size(); ++i)
        if (columnas[i].compare(columna, Qt::CaseInsensitive) == 0) return i;
    return -1;
}

// The number an exact value read stands for; none for Null.
std::optional<double> valorExacto(const QVariant& leido) {
    if (leido.isNull()) return std::nullopt;
    bool ok = false;
    const double v = leido.typeId() == QMetaType::QString ? QLocale::c().toDouble(leido.toString(), &ok)
                                                          : leido.toDouble(&ok);
    return ok ? std::optional<double>(v) : std::nullopt;
}

} // namespace

QStringList columnasReales(const FuenteEditable& fuente, const QString& clave,
                           const sql::Catalogo& catalogo) {
    QStringList leidas = fuente.columnaPorCampo.values();
    if (fuente.todas) leidas += catalogo.columnas(fuente.tabla);
    QStringList reales;
    if (posicion(leidas, clave) < 0) return reales;
    for (const QString& columna : leidas) {
        const auto tipo = catalogo.tipoColumna(fuente.tabla, columna);
        if (tipo && *tipo == QMetaType::Double && posicion(reales, columna) < 0) reales << columna;
    }
    return reales;
}

void pedirValoresExactos(sql::Select& consulta, const QStringList& columnas) {
    using sql::Expr;
    for (const QString& columna : columnas) {
        auto exacto = Expr::crear(Expr::Tipo::ValorExacto);
        exacto->hijos.push_back(Expr::crear(Expr::Tipo::Columna, columna));
        consulta.elementos.push_back(sql::ElementoSeleccion{std::move(exacto), {}});
    }
}

QVector<QVector<QVariant>> separarValoresExactos(ResultadoLeido& leido, qsizetype cuantos) {
    QVector<QVector<QVariant>> exactos;
    if (cuantos == 0) return exactos;
    const qsizetype campos = leido.nombres.size() - cuantos;
    leido.nombres.resize(campos);
    leido.tipos.resize(campos);
    exactos.reserve(leido.filas.size());
    for (QVector<QVariant>& fila : leido.filas) {
        exactos.push_back(fila.mid(campos));
        fila.resize(campos);
    }
    return exactos;
}

QVector<int> exactoDeCadaCampo(const QVector<QString>& columnaDeCampo, const QStringList& columnas) {
    QVector<int> r;
    for (const QString& columna : columnaDeCampo)
        r << (columna.isEmpty() ? -1 : static_cast<int>(posicion(columnas, columna)));
    return r;
}

void ponerValoresExactos(QVector<QVariant>& fila, const QVector<int>& exactoDeCampo,
                         const QVector<QVariant>& exactos) {
    for (int campo = 0; campo < exactoDeCampo.size(); ++campo) {
        if (exactoDeCampo[campo] < 0) continue;
        if (const auto v = valorExacto(exactos[exactoDeCampo[campo]])) fila[campo] = *v;
    }
}

} // namespace store
