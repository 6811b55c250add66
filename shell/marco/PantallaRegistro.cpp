#include "shell/marco/PantallaRegistro.h"

#include "shell/common/Common.h"
#include "shell/dialogos/Dialogos.h"

namespace shell {

const QStringList PantallaRegistro::kCaptions = {QStringLiteral("Buscar"),    QStringLiteral("Agregar"),
                                                 QStringLiteral("Modificar"), QStringLiteral("Eliminar"),
                                                 QStringLiteral("Imprimir"),  QStringLiteral("Guardar"),
                                                 QStringLiteral("Cancelar")};

PantallaRegistro::PantallaRegistro(const QString& titulo, double ancho, double alto, QWidget* parent)
    : Marco(titulo, ancho, alto, parent) {
    static const double lefts[] = {120, 1440, 2760, 4080, 5400, 120, 1440};
    for (int i = 0; i < kCaptions.size(); ++i)
        crearBoton(i, kCaptions[i], lefts[i], i < 5);
    setKeyPreview(true);
}

void PantallaRegistro::ModoEdicion(const QString& estado) {
    mostrarEdicion(estado, 5, 6);
}

void PantallaRegistro::ModoConsulta() {
    Agregando = false;
    mostrarConsulta(5, 6);
}

// "Aceptar" undoes the open transaction (the counter first) and lets the screen close; any other
// answer keeps the screen as it is.
void PantallaRegistro::Form_QueryUnload(bool& cancelar) {
    if (!guardaDeTransaccion_ || Common::TransaccionActiva <= 0) return;
    if (Common::Preguntar(lblTitulo->text(),
                          QStringLiteral("Hay una transaccion de datos activa\r\nDesea anularla"),
                          *this) == QLatin1String("Aceptar")) {
        Common::TransaccionActiva = 0;
        Common::DE().CN.RollbackTrans();
    } else {
        cancelar = true;
    }
}

} // namespace shell
