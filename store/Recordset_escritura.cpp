// Writing through a recordset: the edit buffer, and the statements that store or remove its row.
#include "runtime/Conversion.h"
#include "store/ConversionValores.h"
#include "store/ErrorBase.h"
#include "store/Fallo.h"
#include "store/Recordset.h"
#include "store/ValoresExactos.h"

#include <QSqlQuery>
#include <QSqlRecord>

namespace store {
namespace {

[[noreturn]] void rechazarFilaCambiada() {
    throw Fallo(FalloFilaCambiada,
                QStringLiteral("No se encuentra la fila para actualizarla: otro usuario la cambió o "
                               "la eliminó después de que se leyó."));
}

QSqlQuery ejecutar(QSqlDatabase bd, const QString& sentencia, const QVariantList& valores) {
    QSqlQuery q(bd);
    if (!q.prepare(sentencia)) throw falloDeBase(q.lastError());
    for (const QVariant& v : valores)
        q.addBindValue(v);
    if (!q.exec()) throw falloDeBase(q.lastError());
    return q;
}

} // namespace

void Recordset::exigirActualizable(const char* operacion) const {
    exigirAbierto();
    if (!tabla_)
        throw Fallo(
            FalloOperacionNoPermitida,
            QStringLiteral(
                "%1: el conjunto de registros es de sólo lectura; su origen no es una tabla con su clave.")
                .arg(QLatin1String(operacion)));
}

// The connection a write goes through, ready to write: inside its transaction, the write lock taken.
QSqlDatabase Recordset::baseEscritura() const {
    Conexion escritura = conexion_;
    escritura.prepararEscritura();
    return escritura.baseDatos();
}

void Recordset::asignar(int campo, const QVariant& valor) {
    exigirActualizable("Asignar un campo");
    exigirFilaActual();
    if (tabla_->columnas[campo].isEmpty())
        throw Fallo(
            FalloOperacionNoPermitida,
            QStringLiteral("El campo %1 es calculado y no se puede actualizar.").arg(nombres_[campo]));
    const QVariant convertido = convertirParaColumna(valor, tipos_[campo], nombres_[campo]);
    if (modo_ == adEditNone) {
        original_ = filas_[pos_];
        asignados_ = QVector<bool>(nombres_.size(), false);
        modo_ = adEditInProgress;
    }
    filas_[pos_][campo] = convertido;
    asignados_[campo] = true;
    Q_EMIT valoresCambiados();
}

void Recordset::AddNew() {
    exigirActualizable("AddNew");
    terminarEdicionAntesDeMover();
    posAntesDeAgregar_ = pos_;
    filas_.push_back(QVector<QVariant>(nombres_.size()));
    pos_ = static_cast<int>(filas_.size()) - 1;
    original_ = filas_[pos_];
    asignados_ = QVector<bool>(nombres_.size(), false);
    modo_ = adEditAdd;
    Q_EMIT filaCambiada();
}

void Recordset::CancelUpdate() {
    exigirAbierto();
    if (modo_ == adEditAdd) {
        filas_.removeLast();
        pos_ = std::clamp(posAntesDeAgregar_, 0, static_cast<int>(filas_.size()));
        modo_ = adEditNone;
        Q_EMIT filaCambiada();
        return;
    }
    if (modo_ == adEditInProgress) {
        filas_[pos_] = original_;
        modo_ = adEditNone;
        Q_EMIT valoresCambiados();
    }
}

void Recordset::Update() {
    exigirActualizable("Update");
    exigirFilaActual();
    if (modo_ == adEditAdd)
        insertarFila();
    else if (modo_ == adEditInProgress)
        actualizarFila();
    modo_ = adEditNone;
}

// Only the assigned fields are written, so the table's defaults fill the rest.
void Recordset::insertarFila() {
    const sql::Dialecto& d = conexion_.dialecto();
    QStringList columnas, marcas;
    QVariantList valores;
    for (int i = 0; i < nombres_.size(); ++i) {
        if (!asignados_[i]) continue;
        columnas << d.identificador(tabla_->columnas[i]);
        marcas << QStringLiteral("?");
        valores << (runtime::EsNulo(filas_[pos_][i]) ? nuloDeTipo(tipos_[i]) : filas_[pos_][i]);
    }
    const QString tabla = d.identificador(tabla_->tabla);
    const QString sentencia = columnas.isEmpty() ? QStringLiteral("INSERT INTO %1 DEFAULT VALUES").arg(tabla)
                                                 : QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                                                       .arg(tabla, columnas.join(QStringLiteral(", ")),
                                                            marcas.join(QStringLiteral(", ")));
    QSqlDatabase bd = baseEscritura();
    ejecutar(bd, sentencia, valores);
    filas_[pos_][tabla_->indiceClave] = d.claveGenerada(bd, tabla_->tabla, tabla_->clave);
    Q_EMIT valoresCambiados();
}

// The row is found by its key and the values the changed fields had when read: if someone else
// changed one of them meanwhile, nothing is overwritten.
void Recordset::actualizarFila() {
    const sql::Dialecto& d = conexion_.dialecto();
    QStringList sets, condiciones;
    QVariantList valores, originales;
    for (int i = 0; i < nombres_.size(); ++i) {
        const QVariant& nuevo = filas_[pos_][i];
        if (!asignados_[i] || (runtime::EsNulo(nuevo) && runtime::EsNulo(original_[i])) ||
            (!runtime::EsNulo(nuevo) && nuevo == original_[i]))
            continue;
        const QString columna = d.identificador(tabla_->columnas[i]);
        sets << columna + QStringLiteral(" = ?");
        valores << (runtime::EsNulo(nuevo) ? nuloDeTipo(tipos_[i]) : nuevo);
        condiciones << d.igualdadSegura(columna);
        originales << (runtime::EsNulo(original_[i]) ? nuloDeTipo(tipos_[i]) : original_[i]);
    }
    if (sets.isEmpty()) return;
    const QString sentencia =
        QStringLiteral("UPDATE %1 SET %2 WHERE %3 = ? AND %4")
            .arg(d.identificador(tabla_->tabla), sets.join(QStringLiteral(", ")),
                 d.identificador(tabla_->clave), condiciones.join(QStringLiteral(" AND ")));
    valores << original_[tabla_->indiceClave];
    valores += originales;
    QSqlQuery q = ejecutar(baseEscritura(), sentencia, valores);
    // The edit stays pending, so that the user may try again or cancel.
    if (q.numRowsAffected() == 0) rechazarFilaCambiada();
}

void Recordset::Delete() {
    exigirActualizable("Delete");
    exigirFilaActual();
    if (modo_ == adEditAdd) {
        CancelUpdate();
        return;
    }
    const QVariant clave =
        modo_ == adEditInProgress ? original_[tabla_->indiceClave] : filas_[pos_][tabla_->indiceClave];
    const sql::Dialecto& d = conexion_.dialecto();
    const QString sentencia = QStringLiteral("DELETE FROM %1 WHERE %2 = ?")
                                  .arg(d.identificador(tabla_->tabla), d.identificador(tabla_->clave));
    QSqlQuery q = ejecutar(baseEscritura(), sentencia, {clave});
    if (q.numRowsAffected() == 0) rechazarFilaCambiada();
    modo_ = adEditNone;
    filas_.removeAt(pos_);
    Q_EMIT filaCambiada();
}

void Recordset::Resync() {
    exigirActualizable("Resync");
    exigirFilaActual();
    const sql::Dialecto& d = conexion_.dialecto();
    // The row's columns, then the exact value of each REAL column, as the first read had them.
    QString exactas;
    for (const QString& columna : tabla_->reales)
        exactas += QStringLiteral(", ") + d.valorExacto(d.identificador(columna));
    const QString sentencia =
        QStringLiteral("SELECT *%1 FROM %2 WHERE %3 = ?")
            .arg(exactas, d.identificador(tabla_->tabla), d.identificador(tabla_->clave));
    QSqlQuery q = ejecutar(conexion_.baseDatos(), sentencia, {filas_[pos_][tabla_->indiceClave]});
    if (!q.next()) rechazarFilaCambiada();
    const QSqlRecord registro = q.record();
    const int primeraExacta = registro.count() - static_cast<int>(tabla_->reales.size());
    QVector<QVariant> exactos;
    for (int j = primeraExacta; j < registro.count(); ++j)
        exactos << q.value(j);
    for (int i = 0; i < nombres_.size(); ++i) {
        const int j = tabla_->columnas[i].isEmpty() ? -1 : registro.indexOf(tabla_->columnas[i]);
        if (j >= 0 && j < primeraExacta) filas_[pos_][i] = q.isNull(j) ? QVariant() : q.value(j);
    }
    ponerValoresExactos(filas_[pos_], exactoDeCadaCampo(tabla_->columnas, tabla_->reales), exactos);
    modo_ = adEditNone;
    Q_EMIT valoresCambiados();
}

} // namespace store
