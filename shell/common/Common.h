#pragma once

#include "runtime/Parametros.h"
#include "store/Conexion.h"
#include "store/Fallo.h"

#include <QColor>
#include <QPointer>
#include <QString>
#include <functional>

namespace shell {
class Formulario;
}

// The one module of values and procedures shared by every screen. A screen never reaches into
// another screen's data: it writes these values before it opens a dialog and reads them after.
namespace Common {

// The data environment that owns the shared connection, created on first use.
struct EntornoDatos {
    store::Conexion CN{
        QStringLiteral("Provider=MSDASQL.1;Persist Security Info=False;Data Source=DSNBrenal;")};
};
EntornoDatos& DE();

inline long TransaccionActiva = 0;
inline long IDSeleccionado = 0;
inline QString TextoSeleccionado;
inline QString ConsultaBusqueda;
inline long ClienteAbrir = 0;
inline QString RespuestaDialogo = QStringLiteral("Cancelar");
inline runtime::ArregloVariant Parametros;
inline QList<QVariantList> ParametrosEnvio; // redimensioned by the delivery note, read nowhere
inline bool ReciboAbierto = false;
inline bool LineaNueva = false;
inline QColor ColorTituloFondo, ColorTituloTexto, ColorInactivoFondo, ColorInactivoTexto;

// The one shared instance of a screen: built and loaded on first access, built afresh after it
// has unloaded.
template <class T> T& Pantalla() {
    static QPointer<T> instancia;
    if (!instancia || instancia->descargado()) {
        instancia = new T;
        instancia->cargar();
    }
    return *instancia;
}
// The shared instance of a screen that is about to be shown modally (a screen opening another one
// that the clerk may have open from the menu already). A screen standing open with nothing pending is
// unloaded first, so that it loads anew and reads the Common values its caller has just set; one with
// changes pending is kept as it is, and its ShowModal tells the clerk to finish there first.
template <class T> T& PantallaModal() {
    T& abierta = Pantalla<T>();
    if (abierta.isVisible() && !abierta.isModal() && !abierta.tieneCambiosPendientes()) abierta.Unload();
    return Pantalla<T>();
}

// Paint a screen's title strip (lblTitulo and cmdClose) active or inactive.
void ResaltarTitulo(shell::Formulario& pantalla);
void AtenuarTitulo(shell::Formulario& pantalla);

// Shows a screen modally and returns when it has unloaded. When a modal driver is installed (tests),
// the driver is called with the shown screen instead of entering an event loop.
void MostrarModal(shell::Formulario& pantalla);
using ConductorModal = std::function<void(shell::Formulario&)>;
void InstalarConductorModal(ConductorModal conductor);

// A failure nothing caught: the error box and the end of the process, with status 1. Tests install a
// hook that records the failure instead.
void FalloFatal(const store::Fallo& fallo);
using GanchoFatal = std::function<void(const store::Fallo&)>;
void InstalarGanchoFatal(GanchoFatal gancho);

// Every handler entry point runs through here, so that no exception crosses Qt's event loop: a
// failure the handler did not catch itself goes to FalloFatal. A database busy with another
// connection's transaction (FalloBaseOcupada) is one of them; its text tells the clerk which screen
// holds the data.
void Manejar(const std::function<void()>& manejador);

// Ends the program at once: no screen unloads, no question, no rollback. Tests install a hook that
// records the end instead.
void Terminar();
void InstalarGanchoTerminar(std::function<void()> gancho);

} // namespace Common
