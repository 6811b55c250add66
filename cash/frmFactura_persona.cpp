// Who the invoice is for, in one of three forms: a credit application paid off (its client's name
// and NIT shown, its articles brought in as protected lines with its discount), a registered client
// picked with "Cliente >" (whose NIT the save writes to the client's record), or a name typed after a
// double click opens the field (stored with its NIT on the invoice). Each change of form wipes the
// lines.
#include "cash/frmFactura.h"
#include "runtime/Conversion.h"
#include "runtime/Formato.h"
#include "shell/busqueda/frmBusca.h"
#include "shell/common/Common.h"
#include "shell/controles/Teclas.h"
#include "store/Recordset.h"

using namespace shell;

namespace caja {

namespace {

const QString kImporte = QStringLiteral("#0.00");

} // namespace

// Leaving the number: an application whose balance is 0 or less is invoiced, its articles coming in
// as lines of credit (EsCredito 1) that can be neither changed nor removed; its state isn't looked
// at, and nothing stops a second invoice of it. The number is compared with the Tag before it is
// cleaned (the receipt cleans it first); while modifying the Tag keeps the number the edit began with.
void frmFactura::txtNumeroSolicitud_Validate() {
    if (txtNumeroSolicitud->Text() == txtNumeroSolicitud->Tag()) return;
    txtNumeroSolicitud->setText(runtime::TextoDe(runtime::Val(txtNumeroSolicitud->Text())));
    if (Agregando) txtNumeroSolicitud->setTag(txtNumeroSolicitud->Text());
    BloquearNombre();
    txtNombreCliente->setText(QString());
    txtNIT->setText(QString());
    OlvidarPersona();

    store::Recordset rs;
    rs.Open(
        QStringLiteral("Select vwBS.*, S.Descuento From vwBuscaSolicitud vwBS, Solicitud S Where vwBS.hidID "
                       "= S.SolicitudID And vwBS.shw1200_int_Solicitud = ") +
            txtNumeroSolicitud->Text(),
        Common::DE().CN, store::adOpenStatic, store::adLockReadOnly);
    if (rs.Eof()) return RechazarSolicitud(kSolicitudNoEncontrada);
    if (runtime::ValNulo(rs.Fields(QStringLiteral("shw1200_dbl_Saldo")).Value()) > 0)
        return RechazarSolicitud(QStringLiteral("La solicitud que desea facturar aún tiene un saldo de Q. ") +
                                 runtime::Format(rs.Fields(QStringLiteral("Saldo")).Value(), kImporte));
    SolicitudID = runtime::CLng(rs.Fields(QStringLiteral("hidID")).Value());
    txtNombreCliente->setText(
        runtime::TextoDe(rs.Fields(QStringLiteral("shw3000_str_Nombre_del_cliente")).Value()));
    txtNIT->setText(runtime::TextoDe(rs.Fields(QStringLiteral("shw1200_str_NIT")).Value()));
    const double descuento =
        runtime::Val(QLatin1Char(' ') + runtime::TextoDe(rs.Fields(QStringLiteral("Descuento")).Value()));
    rs.Close();

    store::Recordset lineas;
    lineas.Open(
        QStringLiteral("Select ArticuloID, Nombre & ' ' & Modelo & ' ' & Color as Descripcion, Cantidad, "
                       "Precio, Total From vwSolicitudDetalle Where SolicitudID = ") +
            QString::number(SolicitudID),
        Common::DE().CN, store::adOpenStatic, store::adLockReadOnly);
    double suma = 0;
    const auto campo = [&lineas](const char* nombre) { return lineas.Fields(QLatin1String(nombre)).Value(); };
    while (!lineas.Eof()) {
        fgDetalle->AddItem(QStringList{runtime::TextoDe(campo("ArticuloID")), QStringLiteral("0"),
                                       runtime::Format(campo("Cantidad"), QStringLiteral("#0")),
                                       QStringLiteral("1"), runtime::TextoDe(campo("Descripcion")),
                                       runtime::Format(campo("Precio"), kImporte),
                                       runtime::Format(campo("Total"), kImporte)}
                               .join(QLatin1Char('\t')));
        suma += runtime::ValNulo(campo("Total"));
        lineas.MoveNext();
    }
    // A discount of 0 on the application leaves the one already typed.
    if (descuento > 0) txtDescuento->setText(runtime::Format(descuento, kImporte));
    if (fgDetalle->Rows() > 2) fgDetalle->RemoveItem(1);
    MostrarSubTotal(suma);
}

// F2: the applications paid off (balance 0 or less). The one picked is invoiced when the field is
// left, unless its number is the Tag's.
void frmFactura::txtNumeroSolicitud_KeyDown(int KeyCode, int) {
    if (KeyCode != vbKeyF2) return;
    SolicitudID = 0;
    ClienteID = 0;
    if (!shell::Buscar(*this, QStringLiteral("Select * From vwBuscaSolicitud Where shw1200_dbl_Saldo <= 0"),
                       QStringLiteral("Busca solicitudes de crédito canceladas")))
        return;
    txtNumeroSolicitud->setText(runtime::TextoDe(Common::Parametros(2)));
    txtNombreCliente->setText(runtime::TextoDe(Common::Parametros(4)));
    txtNIT->setText(runtime::TextoDe(Common::Parametros(6)));
}

void frmFactura::OlvidarSolicitud() {
    OlvidarPersona();
    txtNumeroSolicitud->setText(QStringLiteral("0"));
    txtDescuento->setText(QStringLiteral("0.00"));
    MostrarSubTotal(0);
}

// A direct sale to a registered client: cleared before the search, the client's name and NIT after a
// pick.
void frmFactura::cmdCliente_Click() {
    OlvidarSolicitud();
    BloquearNombre();
    if (!ElegirCliente()) return;
    txtNIT->setText(runtime::TextoDe(Common::Parametros(5)).trimmed());
}

// A direct sale to a person who is neither: the name opens for typing, and the NIT is typed too.
void frmFactura::txtNombreCliente_DblClick() {
    AbrirNombre();
    OlvidarSolicitud();
    txtNIT->setText(QString());
}

} // namespace caja
