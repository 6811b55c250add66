#include "credit/frmSolicitud.h"

#include "catalogs/Articulos.h"
#include "runtime/Conversion.h"
#include "runtime/Fechas.h"
#include "shell/busqueda/frmBusca.h"
#include "shell/common/Common.h"
#include "shell/common/Twips.h"
#include "shell/controles/CamposDeTexto.h"
#include "shell/controles/EnlaceDatos.h"
#include "shell/dialogos/Dialogos.h"
#include "store/Numeracion.h"
#include "store/Recordset.h"

#include <exception>

using namespace shell;

namespace credito {

namespace {

const QString kTitulo = QStringLiteral("Solicitud de crédito");
const QString kVacio = QStringLiteral("Select * From Solicitud Where SolicitudID < 0");

// The nine buttons: "Aprobar" and "Rechazar" stand between "Modificar" and "Eliminar".
const QList<BotonDeBarra> kBarra = {
    {0, QStringLiteral("Buscar"), 120},     {1, QStringLiteral("Agregar"), 1440},
    {2, QStringLiteral("Modificar"), 2760}, {8, QStringLiteral("Aprobar"), 4080},
    {7, QStringLiteral("Rechazar"), 5400},  {3, QStringLiteral("Eliminar"), 6720},
    {4, QStringLiteral("Imprimir"), 8040},  {5, QStringLiteral("Guardar"), 120},
    {6, QStringLiteral("Cancelar"), 1440}};

// The word of each status; any other value leaves the word shown.
QString PalabraDeEstado(const QVariant& estado) {
    if (runtime::EsNulo(estado)) return {};
    switch (static_cast<int>(runtime::ValNulo(estado))) {
    case 0:
        return QStringLiteral("PENDIENTE DE APROBACION");
    case 1:
        return QStringLiteral("APROBADA > ACTIVA");
    case 2:
        return QStringLiteral("CANCELADA");
    case 3:
        return QStringLiteral("RECHAZADA");
    default:
        return {};
    }
}

bool EsPendiente(const QVariant& estado) {
    return !runtime::EsNulo(estado) && runtime::ValNulo(estado) == 0;
}

} // namespace

frmSolicitud::frmSolicitud()
    : PantallaRegistro(QStringLiteral("Solicitud de crédito"), 14535, 11080, kBarra) {
    setObjectName(QStringLiteral("frmSolicitud"));
    adoSolicitud = new store::Adodc(this);
    adoSolicitud->setObjectName(QStringLiteral("adoSolicitud"));
    adoSolicitud->setRecordSource(kVacio);
    adoEstadoCivil = new store::Adodc(this);
    adoEstadoCivil->setObjectName(QStringLiteral("adoEstadoCivil"));
    adoEstadoCivil->setRecordSource(QStringLiteral("Select * From EstadoCivil"));

    // The frames stand where the design puts them, with the lines between them.
    setColocarFraMain(false);
    colocar(fraMain, 120, 480, 14295, 6495);
    fraSubMain = new QFrame(this);
    fraSubMain->setObjectName(QStringLiteral("fraSubMain"));
    fraSubMain->setFrameShape(QFrame::StyledPanel);
    fraSubMain->setPalette(fraMain->palette());
    colocar(fraSubMain, 120, 9480, 14295, 885);
    HabilitarAlEditar(fraSubMain);

    DisenarDatos();
    DisenarPaneles();
    fgDetalle = new GrillaDetalle(this);
    fgDetalle->setObjectName(QStringLiteral("fgDetalle"));
    colocar(fgDetalle, 120, 6960, 14295, 2055);
    auto* total = new QLabel(QStringLiteral("Total:"), this);
    colocar(total, 11280, 9120, 680, 255);
    lblTotalPagar = new QLabel(QStringLiteral("0.00"), this);
    lblTotalPagar->setObjectName(QStringLiteral("lblTotalPagar"));
    lblTotalPagar->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    colocar(lblTotalPagar, 12000, 9120, 2415, 255);
    QFont negrita = lblTotalPagar->font();
    negrita.setBold(true);
    lblTotalPagar->setFont(negrita);
    DisenarPlan();

    txtSolicitudID = oculta(QStringLiteral("txtSolicitudID"), QStringLiteral("SolicitudID"));
    txtClienteID = oculta(QStringLiteral("txtClienteID"), QStringLiteral("ClienteID"));
    txtFiadorID = oculta(QStringLiteral("txtFiadorID"), QStringLiteral("FiadorID"));
    txtFecha = oculta(QStringLiteral("txtFecha"), QStringLiteral("Fecha"));
    txtCasaTiempo = oculta(QStringLiteral("txtCasaTiempo"), QStringLiteral("CasaTiempo"));
    txtTrabajoTiempo = oculta(QStringLiteral("txtTrabajoTiempo"), QStringLiteral("TrabajoTiempo"));

    txtNumeroSolicitud->alValidar([this] { txtNumeroSolicitud_Validate(); });
    txtDescuentoP->alValidar([this] { txtDescuentoP_Validate(); });
    txtDescuento->alValidar([this] { txtDescuento_Validate(); });
    txtEnganche->alValidar([this] { txtEnganche_Validate(); });
    txtPrimerPago->alValidar([this] { txtPrimerPago_Validate(); });
    txtMesesCredito->alValidar([this] { txtMesesCredito_Validate(); });
    txtDiaPago->alValidar([this] { txtDiaPago_Validate(); });
    const auto alPulsar = [this](QPushButton* boton, void (frmSolicitud::*paso)()) {
        connect(boton, &QPushButton::clicked, this,
                [this, paso] { Common::Manejar([this, paso] { (this->*paso)(); }); });
    };
    alPulsar(cmdCliente, &frmSolicitud::cmdCliente_Click);
    alPulsar(cmdFiador, &frmSolicitud::cmdFiador_Click);
    alPulsar(cmdNuevoCliente, &frmSolicitud::cmdNuevoCliente_Click);
    alPulsar(cmdNuevoFiador, &frmSolicitud::cmdNuevoFiador_Click);

    lineas_ = new LineasDeDetalle(*this, *fgDetalle, Editando);
    lineas_->alInsertar = [this](int) { fgDetalle_Insertar(); };
    lineas_->alEditar = [this] { fgDetalle_DblClick(); };
    lineas_->despuesDeTecla = [this](int, int) { SumarDetalle(); };
    setGuardaDeTransaccion(true);
}

void frmSolicitud::Form_Load() {
    adoEstadoCivil->Refresh();
    adoSolicitud->Refresh();
    AjustarPantalla();
    Agregando = false;
    LimpiarCliente();
    LimpiarFiador();
    PintarPanel(panCliente);
    PintarPanel(panFiador);
    ConfigurarDetalle();
    MostrarSolicitud();
    Common::LineaNueva = false;
    Common::ReciboAbierto = false;
}

QVariant frmSolicitud::Estado() {
    return adoSolicitud->Recordset()->Fields(QStringLiteral("Estado")).Value();
}

// After the load, a search, a decision and a deletion: the status word, the date and the times of the
// row shown, then the client, the guarantor and the lines with the plan.
void frmSolicitud::MostrarSolicitud() {
    store::Recordset& rs = *adoSolicitud->Recordset();
    if (!(rs.Eof() && rs.Bof())) {
        const QString palabra = PalabraDeEstado(Estado());
        if (!palabra.isEmpty()) panEstado->setText(palabra);
        dpFecha->setValue(txtFecha->Text());
        const auto enAniosYMeses = [](CajaTexto* meses, CajaTexto* anios, CajaTexto* resto) {
            anios->setText(runtime::TextoDe(runtime::Int(runtime::Val(meses->Text()) / 12)));
            resto->setText(runtime::TextoDe(runtime::Val(meses->Text()) - runtime::Val(anios->Text()) * 12));
        };
        enAniosYMeses(txtCasaTiempo, txtCasaTiempoA, txtCasaTiempoM);
        enAniosYMeses(txtTrabajoTiempo, txtTrabajoTiempoA, txtTrabajoTiempoM);
    }
    CargarCliente();
    CargarFiador();
    CargarDetalle();
}

void frmSolicitud::cmdBoton_Click(int Index) {
    ConManejadorDeBarra([&] { Boton(cmdBoton[Index]->text()); });
}

void frmSolicitud::Boton(const QString& boton) {
    if (boton == QLatin1String("Buscar")) {
        Buscar();
    } else if (boton == QLatin1String("Agregar")) {
        Agregar();
    } else if (boton == QLatin1String("Modificar")) {
        Modificar();
    } else if (boton == QLatin1String("Aprobar")) {
        Aprobar();
    } else if (boton == QLatin1String("Rechazar")) {
        Rechazar();
    } else if (boton == QLatin1String("Eliminar")) {
        Eliminar();
    } else if (boton == QLatin1String("Imprimir")) {
        // Nothing is printed.
    } else if (boton == QLatin1String("Guardar")) {
        Guardar();
    } else if (boton == QLatin1String("Cancelar")) {
        Cancelar();
    }
}

void frmSolicitud::Buscar() {
    if (!shell::Buscar(*this, QStringLiteral("Select * from vwBuscaSolicitud"),
                       QStringLiteral("Busca solicitudes de crédito")))
        return;
    adoSolicitud->setRecordSource(QStringLiteral("Select * From Solicitud Where SolicitudID = ") +
                                  runtime::TextoDe(Common::Parametros(1)));
    adoSolicitud->Refresh();
    MostrarSolicitud();
}

// A new application starts with the date the picker showed last, the status word and "Alquilada" as
// they were; the number proposed still goes through the check on leaving it.
void frmSolicitud::Agregar() {
    Agregando = true;
    Editando = true;
    ModoEdicion(QStringLiteral("Agregar nuevo registro"));
    LimpiarCliente();
    LimpiarFiador();
    fgDetalle->Vaciar();
    EditarEnTransaccion(*adoSolicitud);
    adoSolicitud->Recordset()->AddNew();
    for (QLabel* l : {lblTotalCredito, lblTotalPagar, lblAbonoMensual})
        l->setText(QStringLiteral("0.00"));
    txtDescuentoP->setText(QStringLiteral("0.00"));
    for (CajaTexto* c : {txtCasaTiempoA, txtCasaTiempoM, txtTrabajoTiempoA, txtTrabajoTiempoM})
        c->setText(QString());
    txtDiaPago->setText(QString::number(runtime::Hoy().day()));
    txtMesesCredito->setText(QStringLiteral("12"));
    for (CajaTexto* c :
         {txtNumeroSolicitud, txtDescuento, txtDescuentoP, txtDiaPago, txtEnganche, txtMesesCredito})
        c->setTag(QString());
    chkCasaPropia->setChecked(false);
    txtNumeroSolicitud->setText(QString::number(
        store::SiguienteNumero(Common::DE().CN, QStringLiteral("Solicitud"),
                               QStringLiteral("NumeroSolicitud"), QStringLiteral("SolicitudID>0"))));
    txtNumeroSolicitud->setFocus();
}

// Any application may be changed, whatever its status, and with none shown the screen edits all the
// same: it is "Guardar" that then fails.
void frmSolicitud::Modificar() {
    CargarDetalle();
    Agregando = false;
    Editando = true;
    ModoEdicion(QStringLiteral("Modificar registro actual"));
    EditarEnTransaccion(*adoSolicitud);
    txtNumeroSolicitud->setTag(txtNumeroSolicitud->Text());
    txtNumeroSolicitud->setFocus();
}

// A number already taken is told and emptied; the empty field is left to ValidarSolicitud.
void frmSolicitud::txtNumeroSolicitud_Validate() {
    if (txtNumeroSolicitud->Tag() == txtNumeroSolicitud->Text()) return;
    store::Recordset rs;
    rs.Open(QStringLiteral("Select NumeroSolicitud From Solicitud Where NumeroSolicitud = ") +
                runtime::TextoDe(runtime::Val(txtNumeroSolicitud->Text())),
            Common::DE().CN, store::adOpenStatic, store::adLockReadOnly);
    if (rs.Eof()) return;
    Common::MostrarMensaje(kTitulo,
                           QStringLiteral("El Numero de solicitud de crédito que ingreso ya existe."), *this);
    txtNumeroSolicitud->setText(QString());
}

bool frmSolicitud::ValidarSolicitud() {
    const auto falla = [this](const QString& mensaje) {
        Common::MostrarMensaje(kTitulo, mensaje, *this);
        return false;
    };
    if (runtime::Val(txtClienteID->Text()) == 0)
        return falla(QStringLiteral("No ha definido el cliente para la solicitud de crédito."));
    if (runtime::Val(txtFiadorID->Text()) == 0)
        return falla(QStringLiteral("No ha definido el fiador para la solicitud de crédito."));
    if (txtFiadorParentesco->Text().trimmed().isEmpty())
        return falla(QStringLiteral("Debe especificar la relación entre el cliente y el fiador."));
    if (runtime::Val(txtNumeroSolicitud->Text()) <= 0)
        return falla(QStringLiteral("Debe indicar el número de la solicitud de crédito."));
    if (runtime::Val(fgDetalle->TextMatrix(1, 0)) <= 0)
        return falla(QStringLiteral("Debe especificar los artículos que desea solicitar."));
    if (runtime::Val(txtMesesCredito->Text()) <= 0)
        return falla(
            QStringLiteral("Debe especificar los meses de plazo para saldar el crédito solicitado."));
    if (runtime::Val(txtDiaPago->Text()) <= 0)
        return falla(QStringLiteral("Debe indicar el día del mes en el que se efectuará el cobro."));
    return true;
}

// The row, then its lines written again, each line's sale checked first. A refused line or a failure
// stops here with the transaction open: what was written so far stays pending, for a second "Guardar"
// (which starts over) or "Cancelar" (which rolls it all back).
bool frmSolicitud::GuardarSolicitud() {
    bool guardada = false;
    AvisarSiFalla([this, &guardada] {
        txtFecha->setText(runtime::TextoFecha(dpFecha->Value()));
        const auto meses = [](const CajaTexto* anios, const CajaTexto* resto) {
            return runtime::TextoDe(runtime::Val(anios->Text()) * 12 + runtime::Val(resto->Text()));
        };
        txtCasaTiempo->setText(meses(txtCasaTiempoA, txtCasaTiempoM));
        txtTrabajoTiempo->setText(meses(txtTrabajoTiempoA, txtTrabajoTiempoM));
        store::Recordset& rs = *adoSolicitud->Recordset();
        rs.Update();
        rs.Resync();
        Common::DE().CN.Execute(QStringLiteral("Delete * From SolicitudDetalle Where SolicitudID = ") +
                                runtime::TextoDe(runtime::Val(txtSolicitudID->Text())));
        const QString clave = runtime::TextoDe(rs.Fields(QStringLiteral("SolicitudID")).Value());
        for (int fila = 1; fila < fgDetalle->Rows(); ++fila) {
            const QString articulo = fgDetalle->TextMatrix(fila, 0);
            const QString cantidad = fgDetalle->TextMatrix(fila, 1);
            const QString precio = fgDetalle->TextMatrix(fila, 3);
            if (!Common::ValidarVentaArticulo(*this, runtime::CLng(runtime::Val(articulo)),
                                              runtime::CLng(runtime::Val(cantidad)), runtime::Val(precio)))
                return;
            Common::DE().CN.Execute(QStringLiteral("Insert Into SolicitudDetalle ") +
                                    QStringLiteral("(SolicitudID, ArticuloID, Cantidad, Precio) ") +
                                    QStringLiteral("VALUES ") + QStringLiteral("(") + clave +
                                    QStringLiteral(",") + articulo + QStringLiteral(",") + cantidad +
                                    QStringLiteral(",") + precio + QStringLiteral(")"));
        }
        ConfirmarTransaccion();
        guardada = true;
    });
    return guardada;
}

// Saved, the screen browses again; the status word stays as it was until the next search.
void frmSolicitud::Guardar() {
    if (!ValidarSolicitud()) return;
    if (!GuardarSolicitud()) return;
    TerminarEdicion();
}

// The bound fields go back to the current row; the panels, the lines and the plan keep what they show.
void frmSolicitud::Cancelar() {
    AnularTransaccion(*adoSolicitud);
    TerminarEdicion();
}

void frmSolicitud::TerminarEdicion() {
    Editando = false;
    ModoConsulta();
}

void frmSolicitud::Aprobar() {
    if (!EsPendiente(Estado())) {
        Common::MostrarMensaje(kTitulo, QStringLiteral("La solicitud de crédito ya ha sido aprobada."),
                               *this);
        return;
    }
    if (Common::Preguntar(lblTitulo->text(), QStringLiteral("Desea aprobar la solicitud de crédito"),
                          *this) != QLatin1String("Aceptar"))
        return;
    store::Recordset& rs = *adoSolicitud->Recordset();
    rs.Fields(QStringLiteral("Estado")) = 1;
    rs.Fields(QStringLiteral("Observaciones")) = QStringLiteral(" ");
    rs.Fields(QStringLiteral("FechaAprobacion")) = runtime::TextoFecha(runtime::Hoy());
    rs.Update();
    MostrarSolicitud();
}

// An empty reason is a reason.
void frmSolicitud::Rechazar() {
    if (!EsPendiente(Estado())) {
        Common::MostrarMensaje(
            kTitulo,
            QStringLiteral(
                "No puede rechazar una solicitud de crédito que esta no este pendiente de aprobación."),
            *this);
        return;
    }
    if (Common::PedirTexto(
            kTitulo,
            QStringLiteral("Ingrese el motivo por el cual será rechazada esta solicitud de crédito:"), *this,
            QString()) != QLatin1String("Aceptar"))
        return;
    store::Recordset& rs = *adoSolicitud->Recordset();
    EditarEnTransaccion(*adoSolicitud);
    rs.Fields(QStringLiteral("Estado")) = 3;
    rs.Fields(QStringLiteral("Observaciones")) = Common::TextoSeleccionado;
    rs.Fields(QStringLiteral("FechaAprobacion")) = runtime::TextoFecha(runtime::Hoy());
    rs.Update();
    ConfirmarTransaccion();
    MostrarSolicitud();
}

void frmSolicitud::Eliminar() {
    if (!EsPendiente(Estado())) {
        Common::MostrarMensaje(
            kTitulo,
            QStringLiteral("No es posible eliminar una solicitud de crédito toda vez que esta no "
                           "este pendiente de aprobación."),
            *this);
        return;
    }
    if (Common::Preguntar(
            lblTitulo->text(),
            QStringLiteral("En realidad desea eliminar el registro de esta solicitud de crédito"),
            *this) != QLatin1String("Aceptar"))
        return;
    EliminarSolicitud();
    MostrarSolicitud();
}

// The lines, then the row, in a transaction of their own; a failure rolls it back and is told. The
// recordset isn't read again: the deleted application stays on view until the next search.
void frmSolicitud::EliminarSolicitud() {
    try {
        EditarEnTransaccion(*adoSolicitud);
        const QString clave = runtime::TextoDe(runtime::Val(txtSolicitudID->Text()));
        Common::DE().CN.Execute(QStringLiteral("Delete From SolicitudDetalle Where SolicitudID = ") + clave);
        Common::DE().CN.Execute(QStringLiteral("Delete From Solicitud Where SolicitudID = ") + clave);
        ConfirmarTransaccion();
    } catch (const store::Fallo& fallo) {
        if (Common::DE().CN.nivelTransaccion() > 0) Common::DE().CN.RollbackTrans();
        Common::TransaccionActiva = 0;
        Common::MostrarMensaje(lblTitulo->text(), fallo.descripcion(), *this);
    }
}

} // namespace credito
