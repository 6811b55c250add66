#pragma once

#include <QList>
#include <QPointer>
#include <QString>
#include <functional>

class QEvent;
class QWidget;

namespace shell {
class Formulario;
class GloboDeAyuda;
} // namespace shell

// The balloon tips of Common: a control given a hint that looks like a speech balloon (GloboDeAyuda)
// instead of the platform's plain rectangle. The invoice screen gives one to its name and its
// discount when it loads.
namespace Common {

// One tip made by CrearTip: its balloon window, and the handling its events went to before
// CustomToolTip took them over (the window's own).
struct FilaTip {
    QPointer<shell::GloboDeAyuda> VentanaTip;
    std::function<bool(QEvent*)> ProcedimientoAnterior;
};

// The tips made so far, one row per CrearTip, and their count. Rows are never removed: a screen
// loaded anew adds its tips again beside the old rows, whose windows went with the screen.
inline QList<FilaTip> TablaTips;
inline long CantidadTips = 0;

// Gives the control a balloon hint with this text (lines joined by CR LF), owned by the screen, which
// then shows hints whether or not it is the active window. The row goes into the table.
void CrearTip(QWidget& Control, const QString& Texto, shell::Formulario& Pantalla);

// The procedure every event of a balloon window goes through: a paint paints the balloon; any other
// event goes to the ProcedimientoAnterior of the window's row, looked for from the first row. A
// window with no row yet gets false, as nothing handled it.
bool CustomToolTip(shell::GloboDeAyuda& Ventana, QEvent* Evento);

} // namespace Common
