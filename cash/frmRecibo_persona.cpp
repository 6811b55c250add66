// Who the receipt is for, in one of three forms: an application loaded by its number (its client's
// name, locked), a registered client picked with "Cliente >" (the name, locked), or a name typed after
// a double click opens the field (pale yellow). Each change of form wipes the lines and the balances.
#include "cash/frmRecibo.h"
#include "runtime/Conversion.h"
#include "runtime/Formato.h"
#include "shell/busqueda/frmBusca.h"
#include "shell/common/Common.h"
#include "shell/dialogos/Dialogos.h"
#include "store/Recordset.h"

using namespace shell;

namespace caja {

void frmRecibo::OlvidarPersona() {
    PantallaDeCaja::OlvidarPersona();
    fgSaldos->Vaciar();
}

// Leaving the number: an application the views call "Aprobada" is loaded with its balances; any
// other number is told and goes back to 0. While modifying, the Tag keeps the number the edit began
// with, so the load repeats at each leaving until the field holds that number again.
void frmRecibo::txtNumeroSolicitud_Validate() {
    txtNumeroSolicitud->setText(runtime::TextoDe(runtime::Val(txtNumeroSolicitud->Text())));
    if (txtNumeroSolicitud->Text() == txtNumeroSolicitud->Tag()) return;
    if (Agregando) txtNumeroSolicitud->setTag(txtNumeroSolicitud->Text());
    txtNombreCliente->setText(QString());
    lblCodigo->setText(QString());
    BloquearNombre();
    OlvidarPersona();

    store::Recordset rs;
    rs.Open(
        QStringLiteral("Select hidID, shw800_str_Estado, shw3000_str_Nombre_del_cliente, shw680_str_Codigo "
                       "From vwBuscaSolicitud Where shw1200_int_Solicitud = ") +
            txtNumeroSolicitud->Text(),
        Common::DE().CN, store::adOpenStatic, store::adLockReadOnly);
    if (rs.Eof()) return RechazarSolicitud(kSolicitudNoEncontrada);
    if (runtime::TextoDe(rs.Fields(QStringLiteral("shw800_str_Estado")).Value()) != QLatin1String("Aprobada"))
        return RechazarSolicitud(QStringLiteral("La solicitud que desea abonar no esta activa."));
    txtNombreCliente->setText(
        runtime::TextoDe(rs.Fields(QStringLiteral("shw3000_str_Nombre_del_cliente")).Value()));
    lblCodigo->setText(runtime::TextoDe(rs.Fields(QStringLiteral("shw680_str_Codigo")).Value()));
    SolicitudID = runtime::CLng(rs.Fields(QStringLiteral("hidID")).Value());
    rs.Close();
    CargarSaldos();
}

// F2: every application, whatever its state; the one picked is loaded when the field is left.
void frmRecibo::txtNumeroSolicitud_KeyDown(int KeyCode, int) {
    if (KeyCode != 113) return;
    if (!shell::Buscar(*this, QStringLiteral("Select * From vwBuscaSolicitud"),
                       QStringLiteral("Busca solicitudes de crédito")))
        return;
    txtNombreCliente->setText(runtime::TextoDe(Common::Parametros(4)));
    lblCodigo->setText(runtime::TextoDe(Common::Parametros(5)));
    txtNumeroSolicitud->setText(runtime::TextoDe(Common::Parametros(2)));
    if (Agregando) txtNumeroSolicitud->setTag(QString());
}

// The receipt is for a registered client. Cleared before the search: closed without a pick, the name
// and code stay as they were with both keys 0, so a save would keep that text as a plain name.
void frmRecibo::cmdCliente_Click() {
    txtNumeroSolicitud->setText(QStringLiteral("0"));
    txtNumeroSolicitud->setTag(QString());
    BloquearNombre();
    OlvidarPersona();
    if (!ElegirCliente()) return;
    lblCodigo->setText(runtime::TextoDe(Common::Parametros(2)));
}

// The only way to type a name: the field opens, empty and pale yellow, for a person who is neither an
// application nor a registered client.
void frmRecibo::txtNombreCliente_DblClick() {
    AbrirNombre();
    OlvidarPersona();
    txtNumeroSolicitud->setText(QStringLiteral("0"));
    txtNumeroSolicitud->setTag(QString());
    lblCodigo->setText(QString());
}

// The five figures of the application as the view gives them, in row 1 of fgSaldos.
void frmRecibo::CargarSaldos() {
    store::Recordset rs;
    rs.Open(QStringLiteral("Select * From vwSaldosXSolicitud Where SolicitudID = ") +
                QString::number(SolicitudID),
            Common::DE().CN, store::adOpenStatic, store::adLockReadOnly);
    QStringList cifras;
    for (const char* columna : {"Enganche", "PrimerPago", "Total", "CuotaMensual", "Mora"})
        cifras << runtime::Format(rs.Fields(QLatin1String(columna)).Value(), QStringLiteral("#0.00"));
    fgSaldos->setRows(2);
    fgSaldos->AddItem(cifras.join(QLatin1Char('\t')));
    fgSaldos->RemoveItem(1);
    rs.Close();
}

} // namespace caja
