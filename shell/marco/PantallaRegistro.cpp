#include "shell/marco/PantallaRegistro.h"

#include "shell/common/Common.h"
#include "shell/dialogos/Dialogos.h"
#include "store/Adodc.h"

#include <exception>

namespace shell {

namespace {
const QString kGuardar = QStringLiteral("Guardar");
const QString kCancelar = QStringLiteral("Cancelar");
} // namespace

const QList<BotonDeBarra> PantallaRegistro::kBarraComun = {{0, QStringLiteral("Buscar"), 120},
                                                           {1, QStringLiteral("Agregar"), 1440},
                                                           {2, QStringLiteral("Modificar"), 2760},
                                                           {3, QStringLiteral("Eliminar"), 4080},
                                                           {4, QStringLiteral("Imprimir"), 5400},
                                                           {5, kGuardar, 120},
                                                           {6, kCancelar, 1440}};

PantallaRegistro::PantallaRegistro(const QString& titulo, double ancho, double alto,
                                   const QList<BotonDeBarra>& barra, QWidget* parent)
    : Marco(titulo, ancho, alto, parent) {
    for (const BotonDeBarra& b : barra) {
        const bool deEdicion = b.caption == kGuardar || b.caption == kCancelar;
        crearBoton(b.indice, b.caption, b.left, !deEdicion);
        if (b.caption == kGuardar) guardar_ = b.indice;
        if (b.caption == kCancelar) cancelar_ = b.indice;
    }
    Q_ASSERT(guardar_ >= 0 && cancelar_ >= 0);
    setKeyPreview(true);
}

void PantallaRegistro::ModoEdicion(const QString& estado) {
    enEdicion_ = true;
    lblEstado->setText(estado);
    lblEstado->show();
    for (QPushButton* b : cmdBoton)
        b->setVisible(b == cmdBoton[guardar_] || b == cmdBoton[cancelar_]);
    HabilitarEdicion(true);
}

void PantallaRegistro::ModoConsulta() {
    enEdicion_ = false;
    Agregando = false;
    lblEstado->hide();
    for (QPushButton* b : cmdBoton)
        b->setVisible(b != cmdBoton[guardar_] && b != cmdBoton[cancelar_]);
    HabilitarEdicion(false);
}

bool PantallaRegistro::AvisarSiFalla(const std::function<void()>& paso) {
    try {
        paso();
        return true;
    } catch (const store::Fallo& fallo) {
        Common::MostrarMensaje(lblTitulo->text(), fallo.descripcion(), *this);
    } catch (const std::exception& e) {
        Common::MostrarMensaje(lblTitulo->text(), QString::fromUtf8(e.what()), *this);
    }
    return false;
}

void PantallaRegistro::EditarEnTransaccion(store::Adodc& datos) {
    datos.Recordset()->setActiveConnection(Common::DE().CN);
    Common::TransaccionActiva = Common::DE().CN.BeginTrans();
}

void PantallaRegistro::AnularTransaccion(store::Adodc& datos) {
    datos.Recordset()->CancelUpdate();
    Common::DE().CN.RollbackTrans();
    Common::TransaccionActiva = 0;
}

void PantallaRegistro::ConfirmarTransaccion() {
    Common::DE().CN.CommitTrans();
    Common::TransaccionActiva = 0;
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
