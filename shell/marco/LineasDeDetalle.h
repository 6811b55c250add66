#pragma once

#include "shell/controles/GrillaDetalle.h"
#include "shell/marco/Marco.h"

#include <QStringList>
#include <functional>

namespace shell {

// The line keys of a screen's detail grid (fgDetalle) and the round trip of a line through the
// screen's line dialog. The keys work only while the screen's Editando is true:
//
//   Enter     edits the current line, as a double click does
//   Insert    adds a line through the line dialog
//   Delete    removes the current line (with one line left, a blank row is added first, since the
//             grid can't lose its last row)
//
// and every key then runs the screen's step after a key (its totals). Editing a line copies its cells
// into Parametros(1..Cols), dims the screen's title, shows the dialog, highlights the title and, when
// Parametros(1) comes back with something, writes the values back into the cells. A new line starts
// from Parametros reset to empty elements and is added, as one row of tab-separated cells, only when
// Parametros(1) comes back with something; the grid's blank row then goes.
//
// A screen says only what differs: its dialog, and any key or step it does its own way.
class LineasDeDetalle : public QObject {
    Q_OBJECT
public:
    LineasDeDetalle(Marco& pantalla, GrillaDetalle& grilla, const bool& Editando);

    // Shows the screen's line dialog modally; Parametros goes in and comes back.
    std::function<void()> abrirDialogo;
    // Insert (with the shift state, for a screen whose Shift+Insert adds another kind of line); by
    // default a line through the dialog with all its values.
    std::function<void(int Shift)> alInsertar;
    // Enter and the double click; by default EditarLinea.
    std::function<void()> alEditar;
    // Delete; by default QuitarLinea.
    std::function<void()> alQuitar;
    // After every key on the grid while editing, the three above included.
    std::function<void(int KeyCode, int Shift)> despuesDeTecla;
    // Whether a row is the grid's blank row, which the first real line replaces; by default, an
    // empty first cell.
    std::function<bool(int fila)> filaEnBlanco;
    // Whether the keys work at all beyond Editando (a screen whose keys also wait for a party to be
    // chosen); by default they do. A double click doesn't ask.
    std::function<bool()> teclasHabilitadas;
    // Whether editing a line (Enter, double click) dims the screen's title while the dialog stands;
    // adding one always does.
    bool atenuarAlEditar = true;
    // Whether a double click edits a line while the screen browses too: a grid that stands outside
    // the screen's frames stays live, and its dialog then changes only what the screen shows.
    bool dobleClicAlConsultar = false;

    // The steps the screens compose.
    // Parametros reset to `elementos` empty elements, the dialog shown with the title dimmed around
    // it; true when Parametros(1) came back with something.
    bool PedirLinea(int elementos = 1);
    void EditarLinea();
    // Adds one row of these cells; then removes row 1 when it is the blank row.
    void AgregarFila(const QStringList& celdas);
    void QuitarLinea();

private:
    void Tecla(int KeyCode, int Shift);
    void DobleClic();
    void mostrarDialogo(bool atenuar = true);

    Marco& pantalla_;
    GrillaDetalle& grilla_;
    const bool& editando_;
};

} // namespace shell
