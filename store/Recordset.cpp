#include "store/Recordset.h"

#include "store/ConversionValores.h"
#include "store/ErrorBase.h"
#include "store/Fallo.h"
#include "store/FuenteEditable.h"
#include "store/LectorOdbc.h"
#include "store/ValoresExactos.h"
#include "store/sql/Parser.h"

#include <QSqlField>
#include <QSqlIndex>
#include <QSqlQuery>
#include <QSqlRecord>

namespace store {

// ---- Campo ------------------------------------------------------------------------------------

QString Campo::Name() const {
    return rs_->nombres_.at(indice_);
}
QMetaType::Type Campo::Type() const {
    return rs_->tipos_.at(indice_);
}
QVariant Campo::Value() const {
    return rs_->valor(indice_);
}
void Campo::setValue(const QVariant& valor) {
    rs_->asignar(indice_, valor);
}
QVariant Campo::OriginalValue() const {
    return rs_->valorOriginal(indice_);
}

// ---- opening and reading ------------------------------------------------------------------------

Recordset::Recordset(QObject* parent)
    : QObject(parent) {
}

Recordset::~Recordset() = default;

void Recordset::Open(const QString& fuente, const Conexion& conexion, TipoCursor, TipoBloqueo bloqueo) {
    if (abierto_)
        throw Fallo(FalloOperacionNoPermitida,
                    QStringLiteral("No se permite la operación cuando el objeto está abierto."));
    if (conexion.State() != adStateOpen)
        throw Fallo(FalloObjetoCerrado,
                    QStringLiteral("No se permite la operación cuando el objeto está cerrado."));
    conexion_ = conexion;
    bloqueo_ = bloqueo;
    leer(fuente);
}

void Recordset::Requery() {
    exigirAbierto();
    leer(fuente_);
}

void Recordset::leer(const QString& fuente) {
    sql::Sentencia sentencia = sql::analizar(fuente);
    const auto editable = bloqueo_ != adLockReadOnly ? fuenteEditable(sentencia) : std::nullopt;
    QString clave;
    QStringList reales; // read exactly, as an update will look for its row by them
    if (editable) {
        const QSqlIndex primaria = conexion_.baseDatos().primaryIndex(editable->tabla);
        clave = primaria.count() == 1 ? primaria.fieldName(0) : editable->tabla + QStringLiteral("ID");
        reales = columnasReales(*editable, clave, conexion_.catalogo());
        if (!reales.isEmpty()) pedirValoresExactos(*sentencia.consulta, reales);
    }
    const QString traducida = conexion_.dialecto().traducir(sentencia, &conexion_.catalogo());

    QSqlQuery q(conexion_.baseDatos());
    q.setForwardOnly(true);
    if (!q.exec(traducida)) throw falloDeBase(q.lastError());

    ResultadoLeido leido = leerResultado(q);
    const QVector<QVector<QVariant>> exactos = separarValoresExactos(leido, reales.size());

    fuente_ = fuente;
    nombres_ = std::move(leido.nombres);
    tipos_ = std::move(leido.tipos);
    filas_ = std::move(leido.filas);
    tabla_.reset();
    if (editable) {
        TablaBase t;
        t.tabla = editable->tabla;
        t.reales = reales;
        for (const QString& n : nombres_) {
            const QString columna = editable->columnaPorCampo.value(n.toLower());
            t.columnas << (!columna.isEmpty() ? columna : editable->todas ? n : QString());
        }
        if (!reales.isEmpty()) {
            const QVector<int> exactoDeCampo = exactoDeCadaCampo(t.columnas, reales);
            for (qsizetype i = 0; i < filas_.size(); ++i)
                ponerValoresExactos(filas_[i], exactoDeCampo, exactos[i]);
        }
        t.clave = clave;
        for (int i = 0; i < t.columnas.size(); ++i)
            if (t.columnas[i].compare(t.clave, Qt::CaseInsensitive) == 0) t.indiceClave = i;
        if (t.indiceClave >= 0) tabla_ = t;
    }
    abierto_ = true;
    modo_ = adEditNone;
    pos_ = 0;
    Q_EMIT filaCambiada();
}

void Recordset::Close() {
    exigirAbierto();
    abierto_ = false;
    filas_.clear();
    nombres_.clear();
    tipos_.clear();
    tabla_.reset();
    modo_ = adEditNone;
    pos_ = 0;
}

int Recordset::State() const {
    return abierto_ ? adStateOpen : adStateClosed;
}

void Recordset::setActiveConnection(const Conexion& conexion) {
    conexion_ = conexion;
}

void Recordset::exigirAbierto() const {
    if (!abierto_)
        throw Fallo(FalloObjetoCerrado,
                    QStringLiteral("No se permite la operación cuando el objeto está cerrado."));
}

void Recordset::exigirFilaActual() const {
    exigirAbierto();
    if (Eof() || Bof())
        throw Fallo(
            FalloSinRegistroActual,
            QStringLiteral("BOF o EOF es True, o el registro actual se eliminó. La operación solicitada "
                           "requiere un registro actual."));
}

// ---- navigation ---------------------------------------------------------------------------------

bool Recordset::Eof() const {
    return filas_.isEmpty() || pos_ >= filas_.size();
}
bool Recordset::Bof() const {
    return filas_.isEmpty() || pos_ < 0;
}
int Recordset::RecordCount() const {
    exigirAbierto();
    return static_cast<int>(filas_.size());
}

int Recordset::AbsolutePosition() const {
    return Eof() || Bof() ? 0 : pos_ + 1;
}

void Recordset::setAbsolutePosition(int posicion) {
    exigirAbierto();
    if (posicion < 1 || posicion > filas_.size())
        throw Fallo(FalloOperacionNoPermitida,
                    QStringLiteral("La posición %1 no existe en el conjunto de registros.").arg(posicion));
    moverA(posicion - 1);
}

void Recordset::MoveFirst() {
    exigirAbierto();
    moverA(0);
}

void Recordset::MoveLast() {
    exigirAbierto();
    moverA(filas_.isEmpty() ? 0 : static_cast<int>(filas_.size()) - 1);
}

void Recordset::MoveNext() {
    exigirAbierto();
    if (Eof()) exigirFilaActual();
    moverA(pos_ + 1);
}

void Recordset::MovePrevious() {
    exigirAbierto();
    if (Bof()) exigirFilaActual();
    moverA(pos_ - 1);
}

// Leaving a row that is being edited stores it first, as a bound cursor does.
void Recordset::terminarEdicionAntesDeMover() {
    if (modo_ != adEditNone) Update();
}

void Recordset::moverA(int posicion) {
    terminarEdicionAntesDeMover();
    pos_ = std::clamp(posicion, -1, static_cast<int>(filas_.size()));
    Q_EMIT filaCambiada();
}

// ---- fields -------------------------------------------------------------------------------------

int Recordset::FieldCount() const {
    exigirAbierto();
    return static_cast<int>(nombres_.size());
}

int Recordset::indiceCampo(const QString& nombre) const {
    for (int i = 0; i < nombres_.size(); ++i)
        if (nombres_[i].compare(nombre, Qt::CaseInsensitive) == 0) return i;
    return -1;
}

namespace {

[[noreturn]] void campoInexistente(const QString& nombre) {
    throw Fallo(
        FalloCampoInexistente,
        QStringLiteral("No se encontró el elemento \"%1\" en la colección que corresponde al nombre o al "
                       "ordinal solicitado.")
            .arg(nombre));
}

} // namespace

int Recordset::indiceExigido(const QString& nombre) const {
    exigirAbierto();
    const int i = indiceCampo(nombre);
    if (i < 0) campoInexistente(nombre);
    return i;
}

Campo Recordset::Fields(int indice) {
    exigirAbierto();
    if (indice < 0 || indice >= nombres_.size()) campoInexistente(QString::number(indice));
    return Campo(this, indice);
}

Campo Recordset::Fields(const QString& nombre) {
    return Campo(this, indiceExigido(nombre));
}

QVariant Recordset::valor(int campo) const {
    exigirFilaActual();
    return filas_[pos_][campo];
}

QVariant Recordset::valorOriginal(int campo) const {
    exigirFilaActual();
    return modo_ == adEditInProgress ? original_[campo] : filas_[pos_][campo];
}

} // namespace store
