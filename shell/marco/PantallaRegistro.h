#pragma once

#include "shell/marco/Marco.h"

namespace shell {

// A record screen: the chrome of Marco with the seven-button bar, Enter moving on as Tab, and the two
// modes. Browsing shows buttons 0-4 ("Buscar", "Agregar", "Modificar", "Eliminar", "Imprimir") with
// fraMain disabled; editing shows 5 and 6 ("Guardar", "Cancelar") where 0 and 1 stand, fraMain
// enabled and the mode word in lblEstado.
class PantallaRegistro : public Marco {
    Q_OBJECT
public:
    PantallaRegistro(const QString& titulo, double ancho, double alto, QWidget* parent = nullptr);

    bool Agregando = false;

    static const QStringList kCaptions;

    // Screens that edit inside the shared transaction guard their closing: with a transaction open,
    // the clerk is asked whether to undo it, and closing waits for the answer.
    void setGuardaDeTransaccion(bool activa) { guardaDeTransaccion_ = activa; }

protected:
    void ModoEdicion(const QString& estado);
    void ModoConsulta();
    void Form_QueryUnload(bool& cancelar) override;

private:
    bool guardaDeTransaccion_ = false;
};

} // namespace shell
