#pragma once

#include <QAbstractTableModel>
#include <QPair>
#include <QPointer>
#include <QTableView>
#include <QVector>

namespace store {
class Adodc;
class Recordset;
} // namespace store

namespace shell {

// The rows of a recordset as a table model. The recordset reads a row only by standing on it, so a
// Refresh walks it once and keeps every value in one flat block; data() then formats only the cells
// in view. No per-row or per-cell objects: a 100,000-row view costs one copy of its values.
class ModeloDeRecordset : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit ModeloDeRecordset(QObject* parent = nullptr);

    // Reads the recordset's rows, one model column per entry of `campos` (a field index, or -1 for a
    // column whose field the recordset lacks: it stays blank). A closed recordset gives no rows.
    void leer(store::Recordset* rs, const QVector<int>& campos, const QStringList& captions);

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int rol = Qt::DisplayRole) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int rol = Qt::DisplayRole) const override;

    QVariant valor(int fila, int columna) const;
    QString caption(int columna) const { return captions_.value(columna); }
    void setCaption(int columna, const QString& caption);
    // No horizontal flag is the general alignment: numbers to the right, anything else to the left.
    Qt::Alignment alineacion(int columna) const { return alineaciones_.value(columna); }
    void setAlineacion(int columna, Qt::Alignment alineacion);

    // A cell as the grid shows it: dates as dd/mm/yyyy, numbers and text as they come.
    static QString texto(const QVariant& valor);

private:
    QStringList captions_;
    QVector<Qt::Alignment> alineaciones_;
    QVector<QVariant> valores_; // row by row, columnas_ values each
    int columnas_ = 0;
    int filas_ = 0;
};

// The read-only grid bound to a data control (DataGrid): one row per record, a narrow row selector at
// the left, the current row following the recordset's and a click moving the recordset. Its columns
// are either one per field, headed by the raw field name and taken afresh on every Refresh, or a fixed
// set bound by field name (enlazarColumnas). Lengths in twips.
class RejillaDeDatos : public QTableView {
    Q_OBJECT
public:
    explicit RejillaDeDatos(QWidget* parent = nullptr);

    void setDataSource(store::Adodc* ado);
    // Fixed columns: the field each one shows, by name, and its heading.
    void enlazarColumnas(const QList<QPair<QString, QString>>& camposYCaptions);
    // Reads the data control's recordset again (its rows, and its columns when they are not fixed).
    void Refresh();

    // A column by position, with the properties the screens set and read.
    class Columna {
    public:
        Columna(RejillaDeDatos* rejilla, int indice)
            : r_(rejilla)
            , i_(indice) {}
        QString Caption() const;
        void setCaption(const QString& caption);
        // The width the grid gives the column (whole pixels), in twips.
        double Width() const;
        void setWidth(double twips);
        // From the grid's left edge, row selector included, as laid out without scrolling.
        double Left() const;
        Qt::Alignment Alignment() const;
        void setAlignment(Qt::Alignment alineacion);
        bool Visible() const;
        void setVisible(bool visible);

    private:
        RejillaDeDatos* r_;
        int i_;
    };
    Columna Columns(int indice) { return Columna(this, indice); }
    int ColumnCount() const { return modelo_->columnCount(); }
    ModeloDeRecordset* modelo() const { return modelo_; }

    static constexpr double kAnchoSelector = 255; // the row selector, in twips
    static constexpr double kAnchoColumna = 1500; // a column nobody has sized

Q_SIGNALS:
    // A double click anywhere over the rows, on a row or not.
    void DblClick();

protected:
    void mouseDoubleClickEvent(QMouseEvent* evento) override;

private:
    void seguirFilaActual();
    void moverRecordset(int fila);
    void aplicarColumnas();

    QPointer<store::Adodc> ado_;
    ModeloDeRecordset* modelo_;
    bool columnasFijas_ = false;
    QStringList camposFijos_, captionsFijos_;
    QVector<double> anchos_; // twips, as set
    QVector<bool> visibles_;
    QVector<Qt::Alignment> alineacionesFijas_; // kept across refreshes, as a fixed column's are
    bool siguiendo_ = false;                   // the grid is following the recordset, not moving it
};

} // namespace shell
