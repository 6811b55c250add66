#include "cash/PantallaDeCaja.h"

#include "credit/frmSolicitudArticulo.h"
#include "runtime/Conversion.h"
#include "shell/busqueda/frmBusca.h"
#include "shell/busqueda/frmListado.h"
#include "shell/common/Common.h"
#include "shell/controles/CamposDeTexto.h"
#include "shell/dialogos/Dialogos.h"

using namespace shell;

namespace caja {

namespace {

// The colour of a name typed by hand.
const QColor kNombreEscrito(255, 255, 192);

} // namespace

void PantallaDeCaja::Conectar(store::Adodc* documento) {
    documento_ = documento;
    // Locked as designed: a name is typed only after a double click opens it.
    txtNombreCliente->setLocked(true);
    colorNombre_ = txtNombreCliente->BackColor();
    SeleccionarTodoAlEntrar(txtNombreCliente);
    SeleccionarTodoAlEntrar(txtNumeroSolicitud);

    txtNumeroSolicitud->alValidar([this] { txtNumeroSolicitud_Validate(); });
    txtNumeroSolicitud->alPresionarTecla(
        [this](int KeyCode, int Shift) { txtNumeroSolicitud_KeyDown(KeyCode, Shift); });
    txtNombreCliente->alHacerDobleClic([this] { txtNombreCliente_DblClick(); });
    txtNombreCliente->alValidar([this] { txtNombreCliente_Validate(); });
    connect(cmdCliente, &QPushButton::clicked, this,
            [this] { Common::Manejar([this] { cmdCliente_Click(); }); });

    lineas_ = new LineasDeDetalle(*this, *fgDetalle, Editando);
    lineas_->filaEnBlanco = [this](int fila) { return !EsLineaReal(fila); };
    setGuardaDeTransaccion(true);
}

void PantallaDeCaja::EmpezarEdicion(bool agregar) {
    Agregando = agregar;
    Editando = true;
    ModoEdicion(agregar ? QStringLiteral("Agregar nuevo registro")
                        : QStringLiteral("Modificar registro actual"));
}

void PantallaDeCaja::TerminarEdicion() {
    Agregando = false;
    Editando = false;
    ModoConsulta();
}

void PantallaDeCaja::Cancelar() {
    AnularTransaccion(*documento_);
    TerminarEdicion();
}

bool PantallaDeCaja::FaltaNumero(const CajaTexto* numero) {
    if (runtime::Val(numero->Text()) > 0) return false;
    Common::MostrarMensaje(lblTitulo->text(), QStringLiteral("Debe el numero correlativo del recibo."),
                           *this);
    return true;
}

bool PantallaDeCaja::FaltanLineas() {
    if (!fgDetalle->TextMatrix(1, 0).trimmed().isEmpty()) return false;
    Common::MostrarMensaje(lblTitulo->text(),
                           QStringLiteral("Debe especificar que desea pagar en este recibo."), *this);
    return true;
}

const QString PantallaDeCaja::kSolicitudNoEncontrada = QStringLiteral(
    "No se ha encontrado el numero de solicitud que ingreso. Presione [F2] para obtener una lista.");

void PantallaDeCaja::RechazarSolicitud(const QString& mensaje) {
    Common::MostrarMensaje(lblTitulo->text(), mensaje, *this);
    txtNumeroSolicitud->setText(QStringLiteral("0"));
    txtNumeroSolicitud->setTag(QStringLiteral("0"));
}

void PantallaDeCaja::OlvidarPersona() {
    SolicitudID = 0;
    ClienteID = 0;
    fgDetalle->Vaciar();
}

void PantallaDeCaja::BloquearNombre() {
    txtNombreCliente->setBackColor(colorNombre_);
    txtNombreCliente->setLocked(true);
}

void PantallaDeCaja::AbrirNombre() {
    txtNombreCliente->setText(QString());
    txtNombreCliente->setBackColor(kNombreEscrito);
    txtNombreCliente->setLocked(false);
}

void PantallaDeCaja::txtNombreCliente_Validate() {
    txtNombreCliente->setText(txtNombreCliente->Text().toUpper());
}

bool PantallaDeCaja::ElegirCliente() {
    if (!shell::Buscar(*this, QStringLiteral("Select * From vwBuscaCliente"),
                       QStringLiteral("Busca clientes")))
        return false;
    ClienteID = runtime::CLng(runtime::ValNulo(Common::Parametros(1)));
    txtNombreCliente->setText(runtime::TextoDe(Common::Parametros(3)) + QLatin1Char(' ') +
                              runtime::TextoDe(Common::Parametros(4)));
    return true;
}

bool PantallaDeCaja::ElegirConcepto(const QString& consulta) {
    auto& lista = Common::Pantalla<frmListado>();
    lista.CargarLista(consulta);
    lista.lblTitulo->setText(QStringLiteral(" Lista de conceptos"));
    lista.Move(Left() + 300, Top() + 300);
    Common::AtenuarTitulo(*this);
    lista.ShowModal();
    Common::ResaltarTitulo(*this);
    return Common::IDSeleccionado >= 1;
}

void PantallaDeCaja::AbrirLinea(bool comoConcepto) {
    auto& dialogo = Common::Pantalla<credito::frmSolicitudArticulo>();
    if (comoConcepto) dialogo.VestirComoConcepto();
    dialogo.Move(Left() + 300, Top() + 300);
    Common::AtenuarTitulo(*this);
    dialogo.ShowModal();
    Common::ResaltarTitulo(*this);
}

bool PantallaDeCaja::EsLineaReal(int fila) const {
    return runtime::Val(fgDetalle->TextMatrix(fila, 0)) + runtime::Val(fgDetalle->TextMatrix(fila, 1)) > 0;
}

} // namespace caja
