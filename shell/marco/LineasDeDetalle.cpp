#include "shell/marco/LineasDeDetalle.h"

#include "runtime/Conversion.h"
#include "shell/common/Common.h"

namespace shell {

LineasDeDetalle::LineasDeDetalle(Marco& pantalla, GrillaDetalle& grilla, const bool& Editando)
    : QObject(&pantalla)
    , pantalla_(pantalla)
    , grilla_(grilla)
    , editando_(Editando) {
    alInsertar = [this](int) {
        if (!PedirLinea()) return;
        QStringList celdas;
        for (const QVariant& v : Common::Parametros.Lista())
            celdas << runtime::TextoDe(v);
        AgregarFila(celdas);
    };
    alEditar = [this] { EditarLinea(); };
    alQuitar = [this] { QuitarLinea(); };
    filaEnBlanco = [this](int fila) { return grilla_.TextMatrix(fila, 0).isEmpty(); };
    grilla.alPresionarTecla([this](int KeyCode, int Shift) { Tecla(KeyCode, Shift); });
    grilla.alHacerDobleClic([this] { DobleClic(); });
}

void LineasDeDetalle::Tecla(int KeyCode, int Shift) {
    if (!editando_) return;
    if (teclasHabilitadas && !teclasHabilitadas()) return;
    if (KeyCode == vbKeyReturn)
        alEditar();
    else if (KeyCode == vbKeyInsert)
        alInsertar(Shift);
    else if (KeyCode == vbKeyDelete)
        alQuitar();
    if (despuesDeTecla) despuesDeTecla(KeyCode, Shift);
}

void LineasDeDetalle::DobleClic() {
    if (editando_ || dobleClicAlConsultar) alEditar();
}

void LineasDeDetalle::mostrarDialogo(bool atenuar) {
    if (atenuar) Common::AtenuarTitulo(pantalla_);
    if (abrirDialogo) abrirDialogo();
    if (atenuar) Common::ResaltarTitulo(pantalla_);
}

bool LineasDeDetalle::PedirLinea(int elementos) {
    Common::Parametros.ReDim(elementos);
    mostrarDialogo();
    return !Common::Parametros.Vacio(1);
}

void LineasDeDetalle::EditarLinea() {
    const int fila = grilla_.Row();
    Common::Parametros.ReDim(grilla_.Cols());
    for (int c = 0; c < grilla_.Cols(); ++c)
        Common::Parametros(c + 1) = grilla_.TextMatrix(fila, c);
    mostrarDialogo(atenuarAlEditar);
    if (Common::Parametros.Vacio(1)) return;
    for (int c = 0; c < grilla_.Cols() && c < Common::Parametros.UBound(); ++c)
        grilla_.setTextMatrix(fila, c, runtime::TextoDe(Common::Parametros(c + 1)));
}

void LineasDeDetalle::AgregarFila(const QStringList& celdas) {
    grilla_.AddItem(celdas.join(QLatin1Char('\t')));
    if (grilla_.Rows() > 2 && filaEnBlanco(1)) grilla_.RemoveItem(1);
}

void LineasDeDetalle::QuitarLinea() {
    if (grilla_.Rows() == 2) grilla_.AddItem(QString());
    grilla_.RemoveItem(grilla_.Row());
}

} // namespace shell
