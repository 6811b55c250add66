#include "shell/busqueda/RejillaDeDatos.h"

#include "runtime/Conversion.h"
#include "runtime/Fechas.h"
#include "shell/common/Common.h"
#include "shell/common/Twips.h"
#include "store/Adodc.h"
#include "store/Recordset.h"

#include <QDate>
#include <QDateTime>
#include <QHeaderView>
#include <QSignalBlocker>

namespace shell {

namespace {

bool esNumero(const QVariant& valor) {
    switch (valor.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float:
        return true;
    default:
        return false;
    }
}

} // namespace

// ---- ModeloDeRecordset --------------------------------------------------------------------------

ModeloDeRecordset::ModeloDeRecordset(QObject* parent)
    : QAbstractTableModel(parent) {
}

void ModeloDeRecordset::leer(store::Recordset* rs, const QVector<int>& campos, const QStringList& captions) {
    beginResetModel();
    captions_ = captions;
    columnas_ = static_cast<int>(campos.size());
    alineaciones_.fill(Qt::Alignment(), columnas_);
    valores_.clear();
    filas_ = 0;
    try {
        if (rs && rs->State() == store::adStateOpen && !(rs->Eof() && rs->Bof())) {
            valores_.reserve(static_cast<qsizetype>(rs->RecordCount()) * columnas_);
            // Walking the rows must not look like the user moving through them.
            const QSignalBlocker quieto(rs);
            const int posicion = rs->AbsolutePosition();
            const bool antesDelPrimero = rs->Bof();
            for (rs->MoveFirst(); !rs->Eof(); rs->MoveNext()) {
                for (const int campo : campos)
                    valores_.append(campo >= 0 ? rs->Fields(campo).Value() : QVariant());
                ++filas_;
            }
            if (posicion > 0) {
                rs->setAbsolutePosition(posicion);
            } else if (antesDelPrimero) {
                rs->MoveFirst();
                rs->MovePrevious();
            }
        }
    } catch (...) {
        endResetModel();
        throw;
    }
    endResetModel();
}

int ModeloDeRecordset::rowCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : filas_;
}

int ModeloDeRecordset::columnCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : columnas_;
}

QVariant ModeloDeRecordset::valor(int fila, int columna) const {
    if (fila < 0 || fila >= filas_ || columna < 0 || columna >= columnas_) return {};
    return valores_.at(static_cast<qsizetype>(fila) * columnas_ + columna);
}

QString ModeloDeRecordset::texto(const QVariant& valor) {
    if (runtime::EsNulo(valor)) return {};
    switch (valor.typeId()) {
    case QMetaType::QDate:
        return runtime::TextoFecha(valor.toDate());
    case QMetaType::QDateTime:
        return runtime::TextoFecha(valor.toDateTime().date());
    default:
        return runtime::TextoDe(valor);
    }
}

QVariant ModeloDeRecordset::data(const QModelIndex& indice, int rol) const {
    if (!indice.isValid()) return {};
    switch (rol) {
    case Qt::DisplayRole:
        return texto(valor(indice.row(), indice.column()));
    case Qt::TextAlignmentRole: {
        Qt::Alignment horizontal = alineacion(indice.column());
        if (!horizontal) // general: numbers to the right, the rest to the left
            horizontal = esNumero(valor(indice.row(), indice.column())) ? Qt::AlignRight : Qt::AlignLeft;
        return QVariant::fromValue(horizontal | Qt::AlignVCenter);
    }
    default:
        return {};
    }
}

QVariant ModeloDeRecordset::headerData(int seccion, Qt::Orientation orientacion, int rol) const {
    // The row selector is a plain strip: no row numbers.
    if (orientacion != Qt::Horizontal || rol != Qt::DisplayRole) return {};
    return captions_.value(seccion);
}

void ModeloDeRecordset::setCaption(int columna, const QString& caption) {
    if (columna < 0 || columna >= columnas_) return;
    captions_[columna] = caption;
    Q_EMIT headerDataChanged(Qt::Horizontal, columna, columna);
}

void ModeloDeRecordset::setAlineacion(int columna, Qt::Alignment alineacion) {
    if (columna < 0 || columna >= columnas_) return;
    alineaciones_[columna] = alineacion;
    if (filas_ > 0)
        Q_EMIT dataChanged(index(0, columna), index(filas_ - 1, columna), {Qt::TextAlignmentRole});
}

// ---- RejillaDeDatos -----------------------------------------------------------------------------

RejillaDeDatos::RejillaDeDatos(QWidget* parent)
    : QTableView(parent)
    , modelo_(new ModeloDeRecordset(this)) {
    setModel(modelo_);
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false); // Tab (and Enter as Tab) leaves the grid
    setWordWrap(false);
    horizontalHeader()->setSectionsMovable(false);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    // Fixed row heights and a fixed selector: nothing is measured per row, whatever the row count.
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
    verticalHeader()->setFixedWidth(px(kAnchoSelector));
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& actual) { moverRecordset(actual.row()); });
}

void RejillaDeDatos::setDataSource(store::Adodc* ado) {
    if (ado_) disconnect(ado_, nullptr, this, nullptr);
    ado_ = ado;
    if (ado_) connect(ado_, &store::Adodc::filaActualCambiada, this, &RejillaDeDatos::seguirFilaActual);
}

void RejillaDeDatos::enlazarColumnas(const QList<QPair<QString, QString>>& camposYCaptions) {
    columnasFijas_ = true;
    camposFijos_.clear();
    captionsFijos_.clear();
    for (const auto& [campo, caption] : camposYCaptions) {
        camposFijos_ << campo;
        captionsFijos_ << caption;
    }
    anchos_.fill(kAnchoColumna, camposFijos_.size());
    visibles_.fill(true, camposFijos_.size());
    alineacionesFijas_.fill(Qt::Alignment(), camposFijos_.size());
    Refresh();
}

void RejillaDeDatos::Refresh() {
    store::Recordset* rs = ado_ ? ado_->Recordset() : nullptr;
    const bool abierto = rs && rs->State() == store::adStateOpen;
    QVector<int> campos;
    QStringList captions;
    if (columnasFijas_) {
        for (const QString& campo : std::as_const(camposFijos_))
            campos << (abierto ? rs->indiceCampo(campo) : -1);
        captions = captionsFijos_;
    } else {
        // A refresh gives the grid the recordset's columns again, with their raw names.
        captions = abierto ? rs->nombresCampos() : QStringList();
        for (int i = 0; i < captions.size(); ++i)
            campos << i;
        anchos_.fill(kAnchoColumna, captions.size());
        visibles_.fill(true, captions.size());
    }
    modelo_->leer(rs, campos, captions);
    aplicarColumnas();
    seguirFilaActual();
}

void RejillaDeDatos::aplicarColumnas() {
    for (int i = 0; i < modelo_->columnCount(); ++i) {
        setColumnHidden(i, !visibles_.value(i, true));
        setColumnWidth(i, px(anchos_.value(i, kAnchoColumna)));
        if (columnasFijas_) modelo_->setAlineacion(i, alineacionesFijas_.value(i));
    }
}

// The recordset moved (or was read again): the grid's current row goes with it.
void RejillaDeDatos::seguirFilaActual() {
    if (!ado_) return;
    const int posicion = ado_->Recordset()->AbsolutePosition();
    siguiendo_ = true;
    if (posicion > 0 && posicion <= modelo_->rowCount()) {
        const int columna = currentIndex().isValid() ? currentIndex().column() : 0;
        selectionModel()->setCurrentIndex(modelo_->index(posicion - 1, columna),
                                          QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    } else {
        selectionModel()->clear();
    }
    siguiendo_ = false;
}

// The user put another row current: the recordset stands on it, as a bound grid's does.
void RejillaDeDatos::moverRecordset(int fila) {
    if (siguiendo_ || !ado_ || fila < 0) return;
    store::Recordset* rs = ado_->Recordset();
    if (rs->State() != store::adStateOpen || fila >= rs->RecordCount()) return;
    if (rs->AbsolutePosition() == fila + 1) return;
    Common::Manejar([rs, fila] { rs->setAbsolutePosition(fila + 1); });
}

void RejillaDeDatos::mouseDoubleClickEvent(QMouseEvent* evento) {
    QTableView::mouseDoubleClickEvent(evento);
    Q_EMIT DblClick();
}

// ---- Columna ------------------------------------------------------------------------------------

QString RejillaDeDatos::Columna::Caption() const {
    return r_->modelo_->caption(i_);
}

void RejillaDeDatos::Columna::setCaption(const QString& caption) {
    r_->modelo_->setCaption(i_, caption);
    if (r_->columnasFijas_ && i_ < r_->captionsFijos_.size()) r_->captionsFijos_[i_] = caption;
}

double RejillaDeDatos::Columna::Width() const {
    if (r_->isColumnHidden(i_)) return r_->anchos_.value(i_, kAnchoColumna);
    return twips(r_->columnWidth(i_));
}

void RejillaDeDatos::Columna::setWidth(double ancho) {
    if (i_ < 0 || i_ >= r_->anchos_.size()) return;
    r_->anchos_[i_] = ancho;
    r_->setColumnWidth(i_, px(ancho));
}

double RejillaDeDatos::Columna::Left() const {
    const int selector = r_->verticalHeader()->isHidden() ? 0 : r_->verticalHeader()->width();
    return twips(r_->frameWidth() + selector + r_->horizontalHeader()->sectionPosition(i_));
}

Qt::Alignment RejillaDeDatos::Columna::Alignment() const {
    return r_->modelo_->alineacion(i_);
}

void RejillaDeDatos::Columna::setAlignment(Qt::Alignment alineacion) {
    r_->modelo_->setAlineacion(i_, alineacion);
    if (r_->columnasFijas_ && i_ < r_->alineacionesFijas_.size()) r_->alineacionesFijas_[i_] = alineacion;
}

bool RejillaDeDatos::Columna::Visible() const {
    return !r_->isColumnHidden(i_);
}

void RejillaDeDatos::Columna::setVisible(bool visible) {
    if (i_ < 0 || i_ >= r_->visibles_.size()) return;
    r_->visibles_[i_] = visible;
    r_->setColumnHidden(i_, !visible);
}

} // namespace shell
