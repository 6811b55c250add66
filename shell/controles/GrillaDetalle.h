#pragma once

#include "shell/controles/Teclas.h"

#include <QTableWidget>
#include <QVector>
#include <functional>

namespace shell {

// The detail grid of a document: a text grid with one fixed row (row 0, the headings) and data rows
// from 1. Rows counts the fixed row, so an empty grid, as the screens keep it, has Rows 2: the headings
// and one blank row. Cells change only through TextMatrix and AddItem; the user moves the current row
// and the screen acts on the keys (KeyDown) and double clicks it is given.
//
// Asking for a row or column outside the grid, or removing the last data row or the fixed row, throws
// std::out_of_range, which the handler wrapper takes to the fatal path.
class GrillaDetalle : public QTableWidget {
    Q_OBJECT
public:
    enum Alineacion {
        flexAlignLeftCenter = 1,
        flexAlignCenterCenter = 4,
        flexAlignRightCenter = 7,
        flexAlignGeneral = 9, // numbers to the right, text to the left
    };

    using ManejadorKeyDown = std::function<void(int KeyCode, int Shift)>;
    using Manejador = std::function<void()>;

    explicit GrillaDetalle(QWidget* parent = nullptr);

    int Rows() const { return rowCount() + 1; }
    // At least 1 (the fixed row). Rows added are blank; rows cut are lost.
    void setRows(int filas);
    int Cols() const { return columnCount(); }
    void setCols(int columnas);

    QString TextMatrix(int fila, int columna) const;
    void setTextMatrix(int fila, int columna, const QString& texto);

    // One row of tab-separated cells, at the end or before row `indice`. Cells beyond Cols are dropped.
    void AddItem(const QString& celdas, int indice = -1);
    void RemoveItem(int fila);
    // Rows to 2, an empty row added, row 1 removed: the headings and one blank row remain.
    void Vaciar();

    // The current row (0 only when the grid has no data row) and column.
    int Row() const;
    void setRow(int fila);
    int Col() const;
    void setCol(int columna);

    // Width in twips; 0 hides the column (its cells keep their text).
    double ColWidth(int columna) const;
    void setColWidth(int columna, double twips);
    Alineacion ColAlignment(int columna) const;
    void setColAlignment(int columna, Alineacion alineacion);
    // The headings bold and centred.
    void FormatoEncabezado();

    // KeyDown: every key pressed on the grid, with its code (13 Enter, 45 Insert, 46 Delete, 113 F2
    // ...) and shift state, before the grid moves; Enter is seen even where it then moves on to the
    // next control. DblClick: a double click on the grid's cells.
    void alPresionarTecla(ManejadorKeyDown manejador);
    void alHacerDobleClic(Manejador manejador);

protected:
    bool event(QEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;
    void keyboardSearch(const QString&) override {}

private:
    void exigirFila(int fila) const;
    void exigirColumna(int columna) const;
    QTableWidgetItem* celda(int fila, int columna);
    void alinear(QTableWidgetItem* item, int columna) const;
    void llenarFila(int filaTabla);
    void asegurarFilaActual();
    void avisarTecla(const QKeyEvent* evento);

    QVector<Alineacion> alineaciones_;
    QVector<double> anchos_;
    QVector<ManejadorKeyDown> teclaAbajo_;
    QVector<Manejador> dobleClic_;
    AvisoDeTecla aviso_;
};

} // namespace shell
