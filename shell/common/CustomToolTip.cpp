#include "shell/common/CustomToolTip.h"

#include "shell/controles/GloboDeAyuda.h"
#include "shell/marco/Formulario.h"

#include <QEvent>

namespace Common {

void CrearTip(QWidget& Control, const QString& Texto, shell::Formulario& Pantalla) {
    auto* globo = new shell::GloboDeAyuda(Control, Texto, Pantalla);
    Pantalla.setAttribute(Qt::WA_AlwaysShowToolTips);
    const QPointer<shell::GloboDeAyuda> ventana(globo);
    TablaTips.append(
        {ventana, [ventana](QEvent* evento) { return ventana && ventana->EventoDeVentana(evento); }});
    CantidadTips = TablaTips.size();
}

bool CustomToolTip(shell::GloboDeAyuda& Ventana, QEvent* Evento) {
    if (Evento->type() == QEvent::Paint) {
        Ventana.PintarGlobo();
        return true;
    }
    for (const FilaTip& fila : std::as_const(TablaTips))
        if (fila.VentanaTip == &Ventana) return fila.ProcedimientoAnterior(Evento);
    return false;
}

} // namespace Common
