// Find: the first row, from the current one forward, that meets a one-field criterion.
#include "runtime/Conversion.h"
#include "runtime/Fechas.h"
#include "store/ConversionValores.h"
#include "store/Fallo.h"
#include "store/Recordset.h"
#include "store/sql/Parser.h"

#include <QRegularExpression>

namespace store {
namespace {

using sql::Expr;

struct Criterio {
    int campo = -1;
    QString operador; // = <> < > <= >= Like
    QVariant valor;
};

[[noreturn]] void criterioNoAdmitido(const QString& criterio) {
    throw Fallo(FalloOperacionNoPermitida,
                QStringLiteral("El criterio \"%1\" no es válido: se espera un campo, un operador y un valor.")
                    .arg(criterio));
}

std::optional<QVariant> valorLiteral(const Expr& e) {
    switch (e.tipo) {
    case Expr::Tipo::Numero:
        return QLocale::c().toDouble(e.texto);
    case Expr::Tipo::Texto:
        return e.texto;
    case Expr::Tipo::Fecha:
        return e.fecha;
    case Expr::Tipo::Nulo:
        return QVariant();
    case Expr::Tipo::Unario:
        if (e.texto == u"-" && e.hijos[0]->tipo == Expr::Tipo::Numero)
            return -QLocale::c().toDouble(e.hijos[0]->texto);
        break;
    default:
        break;
    }
    return std::nullopt;
}

// Negative, zero or positive as a is below, equal to or above b; nullopt when they cannot be compared.
std::optional<int> comparar(const QVariant& a, const QVariant& b) {
    if (runtime::EsNulo(a) || runtime::EsNulo(b)) return std::nullopt;
    const auto comoFecha = [](const QVariant& v) -> std::optional<QDate> {
        if (v.typeId() == QMetaType::QDate) return v.toDate();
        if (v.typeId() == QMetaType::QDateTime) return v.toDateTime().date();
        if (v.typeId() == QMetaType::QString) return runtime::LeerFecha(v.toString());
        return std::nullopt;
    };
    if (a.typeId() == QMetaType::QDate || a.typeId() == QMetaType::QDateTime) {
        const auto fa = comoFecha(a), fb = comoFecha(b);
        if (!fa || !fb) return std::nullopt;
        return fa < fb ? -1 : fa > fb ? 1 : 0;
    }
    if (a.typeId() != QMetaType::QString) {
        const double x = runtime::ValNulo(a), y = runtime::ValNulo(b);
        return x < y ? -1 : x > y ? 1 : 0;
    }
    return QString::compare(a.toString(), runtime::TextoDe(b), Qt::CaseInsensitive);
}

bool parecido(const QVariant& valor, const QString& patron) {
    if (runtime::EsNulo(valor)) return false;
    QString re;
    for (QChar c : patron) {
        if (c == u'%' || c == u'*')
            re += QStringLiteral(".*");
        else if (c == u'_' || c == u'?')
            re += QLatin1Char('.');
        else
            re += QRegularExpression::escape(QString(c));
    }
    const QRegularExpression exp(QRegularExpression::anchoredPattern(re),
                                 QRegularExpression::CaseInsensitiveOption);
    return exp.match(runtime::TextoDe(valor)).hasMatch();
}

bool cumple(const Criterio& c, const QVariant& valor) {
    if (c.operador == u"Like") return parecido(valor, runtime::TextoDe(c.valor));
    const auto orden = comparar(valor, c.valor);
    if (!orden) return false;
    if (c.operador == u"=") return *orden == 0;
    if (c.operador == u"<>") return *orden != 0;
    if (c.operador == u"<") return *orden < 0;
    if (c.operador == u">") return *orden > 0;
    if (c.operador == u"<=") return *orden <= 0;
    return *orden >= 0;
}

} // namespace

void Recordset::Find(const QString& criterio, int saltar) {
    exigirAbierto();
    const sql::ExprPtr e = sql::analizarCriterio(criterio);
    Criterio c;
    if (e->tipo == Expr::Tipo::Like && !e->negado)
        c.operador = QStringLiteral("Like");
    else if (e->tipo == Expr::Tipo::Binario &&
             QStringList{"=", "<>", "<", ">", "<=", ">="}.contains(e->texto))
        c.operador = e->texto;
    else
        criterioNoAdmitido(criterio);
    if (e->hijos[0]->tipo != Expr::Tipo::Columna) criterioNoAdmitido(criterio);
    c.campo = indiceExigido(e->hijos[0]->texto);
    const auto valor = valorLiteral(*e->hijos[1]);
    if (!valor) criterioNoAdmitido(criterio);
    c.valor = *valor;

    int desde = std::max(pos_, 0) + saltar;
    if (Eof()) desde = static_cast<int>(filas_.size());
    for (int i = desde; i < filas_.size(); ++i) {
        if (cumple(c, filas_[i][c.campo])) {
            moverA(i);
            return;
        }
    }
    moverA(static_cast<int>(filas_.size()));
}

} // namespace store
