#pragma once

#include "shell/marco/Marco.h"

#include <functional>

namespace store {
class Adodc;
}

namespace shell {

// One button of a record screen's bar: its index in cmdBoton, its caption and where it stands.
struct BotonDeBarra {
    int indice;
    QString caption;
    double left;
};

// A record screen: the chrome of Marco with its bar of buttons, Enter moving on as Tab, and the two
// modes. Browsing shows every button but "Guardar" and "Cancelar", with the editing controls (fraMain
// and whatever the screen adds) disabled; editing shows only those two, the controls enabled and the
// mode word in lblEstado.
class PantallaRegistro : public Marco {
    Q_OBJECT
public:
    // The seven buttons: "Buscar", "Agregar", "Modificar", "Eliminar", "Imprimir" to browse, then
    // "Guardar" and "Cancelar" standing where the first two stand.
    static const QList<BotonDeBarra> kBarraComun;

    PantallaRegistro(const QString& titulo, double ancho, double alto,
                     const QList<BotonDeBarra>& barra = kBarraComun, QWidget* parent = nullptr);

    bool Agregando = false;
    // Whether the screen is adding or modifying a row.
    bool enEdicion() const { return enEdicion_; }
    bool tieneCambiosPendientes() const override { return enEdicion_; }

    // Screens that edit inside the shared transaction guard their closing: with a transaction open,
    // the clerk is asked whether to undo it, and closing waits for the answer.
    void setGuardaDeTransaccion(bool activa) { guardaDeTransaccion_ = activa; }

protected:
    void ModoEdicion(const QString& estado);
    void ModoConsulta();
    // The bar's error handler of the screens that have one: a step that fails shows the driver's text
    // through MostrarMensaje with the screen's title, and the screen stays in its mode, its row as it
    // was (a refused "Guardar" leaves the edit pending for a second try or "Cancelar").
    void ConManejadorDeBarra(const std::function<void()>& paso) { AvisarSiFalla(paso); }
    // Runs a step whose failure the screen tells rather than ending the program (a save, a reading
    // that may fail): the driver's text through MostrarMensaje with the screen's title. True when the
    // step ran through.
    bool AvisarSiFalla(const std::function<void()>& paso);
    void Form_QueryUnload(bool& cancelar) override;

    // The transaction of an edit, on the shared connection: the screen's recordset is attached to it
    // and BeginTrans gives TransaccionActiva its level, whatever the counter said before.
    void EditarEnTransaccion(store::Adodc& datos);
    // The edit undone: the pending row dropped, the transaction rolled back, the counter 0.
    void AnularTransaccion(store::Adodc& datos);
    // The edit made lasting: CommitTrans, the counter 0.
    void ConfirmarTransaccion();

private:
    int guardar_ = -1, cancelar_ = -1;
    bool enEdicion_ = false;
    bool guardaDeTransaccion_ = false;
};

} // namespace shell
