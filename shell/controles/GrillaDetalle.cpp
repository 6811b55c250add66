#include "shell/controles/GrillaDetalle.h"

#include "runtime/Conversion.h"
#include "shell/common/Common.h"
#include "shell/common/Twips.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPointer>
#include <stdexcept>

namespace shell {

namespace {

constexpr double kAnchoInicial = 960; // twips

[[noreturn]] void fueraDelIntervalo() {
    throw std::out_of_range("Subíndice fuera del intervalo");
}

} // namespace

GrillaDetalle::GrillaDetalle(QWidget* parent)
    : QTableWidget(parent) {
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultSectionSize(px(kAnchoInicial));
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setTabKeyNavigation(false); // Tab leaves the grid for the next control
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setFocusPolicy(Qt::StrongFocus);
    setCols(2);
    setRows(2);
}

void GrillaDetalle::exigirFila(int fila) const {
    if (fila < 0 || fila >= Rows()) fueraDelIntervalo();
}

void GrillaDetalle::exigirColumna(int columna) const {
    if (columna < 0 || columna >= Cols()) fueraDelIntervalo();
}

void GrillaDetalle::alinear(QTableWidgetItem* item, int columna) const {
    Qt::Alignment horizontal = Qt::AlignLeft;
    switch (alineaciones_.value(columna, flexAlignGeneral)) {
    case flexAlignCenterCenter:
        horizontal = Qt::AlignHCenter;
        break;
    case flexAlignRightCenter:
        horizontal = Qt::AlignRight;
        break;
    case flexAlignGeneral:
        if (runtime::EsNumero(item->text())) horizontal = Qt::AlignRight;
        break;
    default:
        break;
    }
    item->setTextAlignment(horizontal | Qt::AlignVCenter);
}

void GrillaDetalle::llenarFila(int filaTabla) {
    for (int c = 0; c < columnCount(); ++c)
        if (!item(filaTabla, c)) {
            auto* nuevo = new QTableWidgetItem;
            nuevo->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            alinear(nuevo, c);
            setItem(filaTabla, c, nuevo);
        }
}

QTableWidgetItem* GrillaDetalle::celda(int fila, int columna) {
    exigirFila(fila);
    exigirColumna(columna);
    if (fila == 0) {
        if (!horizontalHeaderItem(columna)) setHorizontalHeaderItem(columna, new QTableWidgetItem);
        return horizontalHeaderItem(columna);
    }
    llenarFila(fila - 1);
    return item(fila - 1, columna);
}

void GrillaDetalle::asegurarFilaActual() {
    if (rowCount() == 0 || currentRow() >= 0) return;
    int columna = 0;
    while (columna < columnCount() - 1 && isColumnHidden(columna))
        ++columna;
    setCurrentCell(0, columna);
}

void GrillaDetalle::setRows(int filas) {
    if (filas < 1) fueraDelIntervalo();
    const int antes = rowCount();
    setRowCount(filas - 1);
    for (int r = antes; r < rowCount(); ++r)
        llenarFila(r);
    asegurarFilaActual();
}

void GrillaDetalle::setCols(int columnas) {
    if (columnas < 1) fueraDelIntervalo();
    const int antes = columnCount();
    setColumnCount(columnas);
    alineaciones_.resize(columnas, flexAlignGeneral);
    anchos_.resize(columnas, -1);
    for (int c = antes; c < columnas; ++c) {
        alineaciones_[c] = flexAlignGeneral;
        anchos_[c] = -1;
        if (!horizontalHeaderItem(c)) setHorizontalHeaderItem(c, new QTableWidgetItem);
    }
    for (int r = 0; r < rowCount(); ++r)
        llenarFila(r);
}

QString GrillaDetalle::TextMatrix(int fila, int columna) const {
    exigirFila(fila);
    exigirColumna(columna);
    const QTableWidgetItem* i = fila == 0 ? horizontalHeaderItem(columna) : item(fila - 1, columna);
    return i ? i->text() : QString();
}

void GrillaDetalle::setTextMatrix(int fila, int columna, const QString& texto) {
    QTableWidgetItem* i = celda(fila, columna);
    i->setText(texto);
    if (fila > 0) alinear(i, columna);
}

void GrillaDetalle::AddItem(const QString& celdas, int indice) {
    int filaTabla = rowCount();
    if (indice >= 0) {
        if (indice < 1 || indice > Rows()) fueraDelIntervalo();
        filaTabla = indice - 1;
    }
    insertRow(filaTabla);
    llenarFila(filaTabla);
    const QStringList partes = celdas.split(QLatin1Char('\t'));
    for (int c = 0; c < columnCount() && c < partes.size(); ++c) {
        QTableWidgetItem* i = item(filaTabla, c);
        i->setText(partes[c]);
        alinear(i, c);
    }
    asegurarFilaActual();
}

void GrillaDetalle::RemoveItem(int fila) {
    if (fila < 1 || fila >= Rows()) fueraDelIntervalo();
    if (rowCount() == 1) throw std::out_of_range("No se puede quitar la última fila no fija");
    removeRow(fila - 1);
    asegurarFilaActual();
}

void GrillaDetalle::Vaciar() {
    setRows(2);
    AddItem(QString());
    RemoveItem(1);
}

int GrillaDetalle::Row() const {
    if (rowCount() == 0) return 0;
    return currentRow() < 0 ? 1 : currentRow() + 1;
}

void GrillaDetalle::setRow(int fila) {
    if (fila < 1 || fila >= Rows()) fueraDelIntervalo();
    setCurrentCell(fila - 1, std::max(currentColumn(), 0));
}

int GrillaDetalle::Col() const {
    return std::max(currentColumn(), 0);
}

void GrillaDetalle::setCol(int columna) {
    exigirColumna(columna);
    if (rowCount() > 0) setCurrentCell(std::max(currentRow(), 0), columna);
}

double GrillaDetalle::ColWidth(int columna) const {
    exigirColumna(columna);
    if (isColumnHidden(columna)) return 0;
    // The width the screen gave, unless the user has dragged the column since.
    const double dado = anchos_[columna];
    if (dado > 0 && px(dado) == columnWidth(columna)) return dado;
    return twips(columnWidth(columna));
}

void GrillaDetalle::setColWidth(int columna, double ancho) {
    exigirColumna(columna);
    if (ancho <= 0) {
        anchos_[columna] = 0;
        setColumnHidden(columna, true);
        return;
    }
    anchos_[columna] = ancho;
    setColumnHidden(columna, false);
    setColumnWidth(columna, px(ancho));
}

GrillaDetalle::Alineacion GrillaDetalle::ColAlignment(int columna) const {
    exigirColumna(columna);
    return alineaciones_[columna];
}

void GrillaDetalle::setColAlignment(int columna, Alineacion alineacion) {
    exigirColumna(columna);
    alineaciones_[columna] = alineacion;
    for (int r = 0; r < rowCount(); ++r)
        if (QTableWidgetItem* i = item(r, columna)) alinear(i, columna);
}

void GrillaDetalle::FormatoEncabezado() {
    for (int c = 0; c < columnCount(); ++c) {
        QTableWidgetItem* i = celda(0, c);
        QFont negrita = i->font();
        negrita.setBold(true);
        i->setFont(negrita);
        i->setTextAlignment(Qt::AlignCenter);
    }
}

void GrillaDetalle::alPresionarTecla(ManejadorKeyDown manejador) {
    teclaAbajo_ << std::move(manejador);
}

void GrillaDetalle::alHacerDobleClic(Manejador manejador) {
    dobleClic_ << std::move(manejador);
}

void GrillaDetalle::avisarTecla(const QKeyEvent* evento) {
    if (!aviso_.esPrimeraVez(evento)) return;
    const int codigo = CodigoDeTecla(evento);
    if (codigo == 0 || codigo == vbKeyTab || teclaAbajo_.isEmpty()) return;
    const int shift = EstadoShift(evento->modifiers());
    const QVector<ManejadorKeyDown> copia = teclaAbajo_;
    QPointer<GrillaDetalle> vivo(this);
    Common::Manejar([&] {
        for (const ManejadorKeyDown& m : copia) {
            if (!vivo) return;
            m(codigo, shift);
        }
    });
}

bool GrillaDetalle::event(QEvent* evento) {
    if (evento->type() == QEvent::ShortcutOverride) {
        QPointer<GrillaDetalle> vivo(this);
        avisarTecla(static_cast<QKeyEvent*>(evento));
        if (!vivo) return true;
    }
    return QTableWidget::event(evento);
}

void GrillaDetalle::keyPressEvent(QKeyEvent* evento) {
    QPointer<GrillaDetalle> vivo(this);
    avisarTecla(evento);
    if (!vivo) return;
    QTableWidget::keyPressEvent(evento);
}

void GrillaDetalle::mouseDoubleClickEvent(QMouseEvent* evento) {
    QPointer<GrillaDetalle> vivo(this);
    QTableWidget::mouseDoubleClickEvent(evento);
    if (!vivo || dobleClic_.isEmpty()) return;
    const QVector<Manejador> copia = dobleClic_;
    Common::Manejar([&] {
        for (const Manejador& m : copia) {
            if (!vivo) return;
            m();
        }
    });
}

} // namespace shell
