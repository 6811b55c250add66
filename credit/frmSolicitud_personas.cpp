// The client and the guarantor of the application: the application stores only their keys, and their
// data is read live into two read-only panels each time it is shown. The two panels differ on purpose:
// the identity card reads registry then number for the client and number then registry for the
// guarantor, the client's age ends in " años" and the guarantor's has no word, and only the
// guarantor's birth date is guarded against Null (a client without one never reaches its panel).
//
// Both readings ignore their failures step by step: a value that fails to read leaves its label as
// it was, and the next one is read.
#include "credit/frmCliente.h"
#include "credit/frmFiador.h"
#include "credit/frmSolicitud.h"
#include "runtime/Conversion.h"
#include "runtime/Fechas.h"
#include "runtime/Formato.h"
#include "shell/busqueda/frmBusca.h"
#include "shell/common/Common.h"
#include "shell/dialogos/Dialogos.h"
#include "store/Recordset.h"

#include <exception>

using namespace shell;

namespace credito {

namespace {

// Runs one step and forgets its failure.
template <class Paso> void Ignorando(Paso paso) {
    try {
        paso();
    } catch (const store::Fallo&) {
    } catch (const std::exception&) {
    }
}

// A value appended to a blank and trimmed: Null reads as empty text.
QString Recortado(const QVariant& valor) {
    return (runtime::TextoDe(valor) + QLatin1Char(' ')).trimmed();
}

QString FechaEnLetras(const QVariant& fecha) {
    return runtime::Format(fecha, QStringLiteral("dd")) + QStringLiteral(" de ") +
           runtime::Format(fecha, QStringLiteral("mmmm")) + QStringLiteral(" de ") +
           runtime::Format(fecha, QStringLiteral("yyyy"));
}

// The age as a difference of years, birthday or not.
QString Edad(const QVariant& fecha) {
    const std::optional<QDate> nacimiento = fecha.userType() == QMetaType::QDate
                                                ? std::optional<QDate>(fecha.toDate())
                                                : runtime::LeerFecha(runtime::TextoDe(fecha));
    if (!nacimiento)
        throw store::Fallo(store::FalloValorInvalido,
                           QStringLiteral("La fecha de nacimiento no es una fecha."));
    return QString::number(runtime::Hoy().year() - nacimiento->year());
}

// A time stored in months, as years and months: "1 añ 2 ms" (" añ  ms" when there is none).
QString Tiempo(const QVariant& meses) {
    if (runtime::EsNulo(meses)) return QStringLiteral(" añ  ms");
    const double total = runtime::ValNulo(meses);
    const double anios = runtime::Int(total / 12);
    return runtime::TextoDe(anios) + QStringLiteral(" añ ") + runtime::TextoDe(total - anios * 12) +
           QStringLiteral(" ms");
}

void Limpiar(const QList<QLabel*>& etiquetas) {
    for (QLabel* l : etiquetas)
        l->setText(QString());
}

} // namespace

void frmSolicitud::LimpiarCliente() {
    Limpiar(lblClienteInfo);
}

void frmSolicitud::LimpiarFiador() {
    Limpiar(lblFiadorInfo);
}

// "Cliente >": the client is dropped before the search, so a cancelled search leaves none.
void frmSolicitud::cmdCliente_Click() {
    txtClienteID->setText(QStringLiteral("0"));
    if (shell::Buscar(*this, QStringLiteral("Select * From vwBuscaCliente"),
                      QStringLiteral("Busca clientes"))) {
        txtClienteID->setText(runtime::TextoDe(Common::Parametros(1)));
        Common::ClienteAbrir = 0;
    }
    CargarCliente();
}

// "Fiador >": the guarantor picked, or none when the search is cancelled.
void frmSolicitud::cmdFiador_Click() {
    const bool elegido =
        shell::Buscar(*this, QStringLiteral("Select * From vwBuscaFiador"), QStringLiteral("Busca fiadores"));
    txtFiadorID->setText(elegido ? runtime::TextoDe(Common::Parametros(1)) : QStringLiteral("0"));
    CargarFiador();
}

// "Nuevo >": a client made there isn't bound to the application; the clerk picks it with "Cliente >".
void frmSolicitud::cmdNuevoCliente_Click() {
    Common::ClienteAbrir = 0;
    Common::AtenuarTitulo(*this);
    auto& cliente = Common::PantallaModal<frmCliente>();
    cliente.Move(Left() + 300, Top() + 300);
    cliente.ShowModal();
    Common::ResaltarTitulo(*this);
}

void frmSolicitud::cmdNuevoFiador_Click() {
    Common::AtenuarTitulo(*this);
    auto& fiador = Common::PantallaModal<frmFiador>();
    fiador.Move(Left() + 300, Top() + 300);
    fiador.ShowModal();
    Common::ResaltarTitulo(*this);
}

// A client lacking a birth date, a code, an identity card or a limit above 0 can't take credit: the
// clerk is told and the client screen opens on that client to complete it. A client that can't be
// read counts as lacking.
bool frmSolicitud::ClienteSuficiente(store::Recordset& rs) {
    try {
        for (const char* campo : {"FechaNacimiento", "CodigoLetra", "CodigoNumero", "CedulaRegistro",
                                  "CedulaNumero", "CedulaExtendida"})
            if (runtime::EsNulo(rs.Fields(QLatin1String(campo)).Value())) return false;
        return runtime::Val(runtime::TextoDe(rs.Fields(QStringLiteral("Limite")).Value()) +
                            QLatin1Char(' ')) > 0;
    } catch (const store::Fallo&) {
        return false;
    }
}

void frmSolicitud::CargarCliente() {
    LimpiarCliente();
    if (runtime::Val(txtClienteID->Text()) <= 0) return;
    Common::ClienteAbrir = runtime::CLng(runtime::Val(txtClienteID->Text()));
    store::Recordset rs;
    Ignorando([&] {
        if (conexionClientes_.State() == store::adStateClosed) conexionClientes_.Open();
        rs.Open(QStringLiteral("Select * From Cliente Where ClienteID = ") + txtClienteID->Text(),
                conexionClientes_, store::adOpenStatic, store::adLockReadOnly);
    });
    if (!ClienteSuficiente(rs)) {
        Common::MostrarMensaje(
            lblTitulo->text(),
            QStringLiteral("La información del cliente no es suficiente, debe completarla para "
                           "crear la solicitud de crédito."),
            *this);
        Common::AtenuarTitulo(*this);
        Ignorando([&] {
            auto& cliente = Common::PantallaModal<frmCliente>();
            cliente.Move(Left() + 300, Top() + 300);
            cliente.ShowModal();
        });
        Common::ResaltarTitulo(*this);
        return;
    }
    LlenarCliente(rs);
}

void frmSolicitud::LlenarCliente(store::Recordset& rs) {
    const auto campo = [&rs](const char* nombre) { return rs.Fields(QLatin1String(nombre)).Value(); };
    const auto poner = [this](int i, auto valor) { Ignorando([&] { lblClienteInfo[i]->setText(valor()); }); };
    poner(0, [&] {
        return runtime::TextoDe(campo("Nombres")) + QLatin1Char(' ') + runtime::TextoDe(campo("Apellidos"));
    });
    poner(1, [&] { return FechaEnLetras(campo("FechaNacimiento")); });
    poner(2, [&] { return Edad(campo("FechaNacimiento")) + QStringLiteral(" años"); });
    poner(3, [&] {
        return Recortado(campo("CedulaRegistro")) + QLatin1Char(' ') + Recortado(campo("CedulaNumero"));
    });
    poner(4, [&] { return Recortado(campo("CedulaExtendida")); });
    poner(5, [&] { return Recortado(campo("CodigoLetra")) + Recortado(campo("CodigoNumero")); });
    poner(6, [&] { return runtime::Format(campo("Limite"), QStringLiteral("#0.00")); });
}

// With a guarantor the panel is filled from the join with the marital status; without one it is
// emptied. A guarantor the join doesn't find leaves the panel as it was.
void frmSolicitud::CargarFiador() {
    if (runtime::Val(txtFiadorID->Text()) <= 0) {
        LimpiarFiador();
        return;
    }
    store::Recordset rs;
    Ignorando([&] {
        rs.Open(
            QStringLiteral("Select F.*, E.Descripcion From Fiador F, EstadoCivil E Where F.EstadoCivilID = "
                           "E.EstadoCivilID And FiadorID = ") +
                txtFiadorID->Text(),
            Common::DE().CN, store::adOpenStatic, store::adLockReadOnly);
    });
    LlenarFiador(rs);
}

void frmSolicitud::LlenarFiador(store::Recordset& rs) {
    const auto campo = [&rs](const char* nombre) { return rs.Fields(QLatin1String(nombre)).Value(); };
    const auto recortado = [&](const char* nombre) { return Recortado(campo(nombre)); };
    const auto poner = [this](int i, auto valor) { Ignorando([&] { lblFiadorInfo[i]->setText(valor()); }); };
    const auto sinFecha = [&] { return runtime::EsNulo(campo("FechaNacimiento")); };
    poner(0, [&] {
        return runtime::TextoDe(campo("Nombres")) + QLatin1Char(' ') + runtime::TextoDe(campo("Apellidos"));
    });
    poner(1, [&] { return sinFecha() ? QString() : FechaEnLetras(campo("FechaNacimiento")); });
    poner(2, [&] { return sinFecha() ? QString() : Edad(campo("FechaNacimiento")); });
    poner(3, [&] { return recortado("CedulaNumero") + QLatin1Char(' ') + recortado("CedulaRegistro"); });
    poner(4, [&] { return recortado("CedulaExtendida"); });
    poner(5, [&] { return runtime::TextoDe(campo("Descripcion")); });
    poner(6, [&] {
        if (runtime::ValNulo(campo("CasaPropia")) != 0) return QStringLiteral("Propia");
        if (runtime::ValNulo(campo("CasaAlquilada")) != 0) return QStringLiteral("Alquilada");
        return QStringLiteral("Sin Alquiler");
    });
    poner(7, [&] { return recortado("Direccion"); });
    poner(8, [&] { return recortado("Telefonos"); });
    poner(9, [&] { return Tiempo(campo("CasaTiempo")); });
    poner(10, [&] { return recortado("TrabajoNombre"); });
    poner(11, [&] { return recortado("TrabajoDireccion"); });
    poner(12, [&] { return recortado("TrabajoTelefonos"); });
    poner(13, [&] { return recortado("TrabajoFax"); });
    poner(14, [&] { return recortado("TrabajoPuesto"); });
    poner(15, [&] { return recortado("TrabajoJefe"); });
    poner(16, [&] { return Tiempo(campo("TrabajoTiempo")); });
    poner(17, [&] {
        return QStringLiteral("Q. ") + runtime::Format(campo("TrabajoSueldo"), QStringLiteral("#0.00"));
    });
    poner(18, [&] { return recortado("OtrosIngresos"); });
}

} // namespace credito
