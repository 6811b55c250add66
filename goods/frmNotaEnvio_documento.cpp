// The document a note delivers: its kind by option, its number typed or found with F2 among those
// with articles pending, and, on leaving the number, the customer, the address (an application's
// only) and every pending article with all its pending quantity.
#include "goods/frmNotaEnvio.h"
#include "runtime/Conversion.h"
#include "runtime/Formato.h"
#include "runtime/Texto.h"
#include "shell/busqueda/frmBusca.h"
#include "shell/common/Common.h"
#include "shell/controles/Teclas.h"
#include "shell/dialogos/Dialogos.h"
#include "store/Recordset.h"

using namespace shell;

namespace mercaderia {

namespace {

// What each kind of document (the option's index) reads.
struct Documento {
    QString busqueda; // F2: the documents with articles pending
    QString titulo;   // of the search
    QString consulta; // the lookup by number, the number concatenated as typed
    QString noEncontrado;
    QString clave;      // the key's column in the lookup's row
    QString nombre;     // the customer's name there
    QString pendientes; // the pending articles, the key concatenated
};

const Documento& documento(int tipo) {
    static const Documento documentos[] = {
        {QStringLiteral("Select * From vwSaldosArticulosXSolicitud Where shw1200_dbl_Saldo > 0"),
         QStringLiteral("Busca solicitudes de crédito con artículos pendientes"),
         QStringLiteral("Select * From vwSaldosArticulosXSolicitud Where shw1200_int_Solicitud = "),
         QStringLiteral("No se ha encontrado el numero de solicitud que ingreso. Presione [F2] para obtener "
                        "una lista."),
         QStringLiteral("hidID"), QStringLiteral("shw3000_str_Nombre_del_cliente"),
         QStringLiteral("Select hidArticuloID, shw3000_str_Descripcion, shw1200_int_Saldo From "
                        "vwSaldoXArticuloXSolicitud Where hidSolicitudID = ")},
        {QStringLiteral("Select * From vwSaldosArticulosXFactura Where shw1200_dbl_Saldo > 0"),
         QStringLiteral("Busca facturas con artículos pendientes"),
         QStringLiteral("Select * From vwSaldosArticulosXFactura Where shw1200_int_Factura = "),
         QStringLiteral("No se ha encontrado el numero de factura que ingreso. Presione [F2] para obtener "
                        "una lista."),
         QStringLiteral("hidFacturaID"), QStringLiteral("shw3200_str_Nombre_del_cliente"),
         QStringLiteral("Select hidArticuloID, shw3000_str_Descripcion, shw1200_int_Saldo From "
                        "vwSaldoXArticuloXFactura Where hidFacturaID = ")},
        {QStringLiteral("Select * From vwSaldosArticulosXRecibo Where shw1200_dbl_Saldo > 0"),
         QStringLiteral("Busca recibos con artículos pendientes"),
         QStringLiteral("Select * From vwSaldosArticulosXRecibo Where shw1200_int_Recibo = "),
         QStringLiteral("No se ha encontrado el numero de recibo que ingreso. Presione [F2] para obtener "
                        "una lista."),
         QStringLiteral("hidReciboID"), QStringLiteral("shw3200_str_Nombre_del_cliente"),
         QStringLiteral("Select hidArticuloID, shw3000_str_Descripcion, shw1200_int_Saldo From "
                        "vwSaldoXArticuloXRecibo Where hidReciboID = ")},
    };
    return documentos[tipo];
}

} // namespace

// The other two kinds forgotten and the number emptied; its Tag, the customer, the address and the
// grid stay as they are until the number is left.
void frmNotaEnvio::optTipo_Click(int Index) {
    if (Index == 0) FacturaID = ReciboID = 0;
    if (Index == 1) SolicitudID = ReciboID = 0;
    if (Index == 2) SolicitudID = FacturaID = 0;
    txtNumeroDocumento->setText(QString());
    if (Editando) txtNumeroDocumento->setFocus();
}

// F2: the documents of the option's kind that still have articles pending; none with no option. A
// pick fills the key, the number and the customer (and an application's address); the articles come
// when the field is left.
void frmNotaEnvio::txtNumeroDocumento_KeyDown(int KeyCode, int) {
    if (KeyCode != vbKeyF2) return;
    const int tipo = optTipo->Valor();
    if (tipo < 0) return;
    if (!shell::Buscar(*this, documento(tipo).busqueda, documento(tipo).titulo)) return;
    const long clave = runtime::CLng(Common::Parametros(1));
    if (tipo == 0) SolicitudID = clave;
    if (tipo == 1) FacturaID = clave;
    if (tipo == 2) ReciboID = clave;
    txtNumeroDocumento->setText(runtime::TextoDe(Common::Parametros(2)));
    txtNombreCliente->setText(runtime::TextoDe(Common::Parametros(3)));
    txtDireccion->setText(tipo == 0 ? runtime::TextoDe(Common::Parametros(4)) : QString());
}

// Leaving the number: unless it is the number last looked up (the Tag, which only a new note moves),
// everything of the previous document is cleared and the number is looked up under the option, as
// typed: an empty or non-numeric number is a statement the store refuses, which nothing catches. A
// document found fills the customer, an application's home address, and the grid with what it still
// has pending; one that isn't is told, and the focus moves on all the same.
void frmNotaEnvio::txtNumeroDocumento_Validate() {
    if (txtNumeroDocumento->Tag() == txtNumeroDocumento->Text()) return;
    if (Agregando) txtNumeroDocumento->setTag(txtNumeroDocumento->Text());
    txtNombreCliente->setText(QString());
    txtDireccion->setText(QString());
    fgDetalle->Vaciar();
    SolicitudID = FacturaID = ReciboID = 0;

    if (const int tipo = optTipo->Valor(); tipo >= 0) {
        const Documento& d = documento(tipo);
        store::Recordset rs;
        rs.Open(d.consulta + txtNumeroDocumento->Text(), Common::DE().CN, store::adOpenStatic,
                store::adLockReadOnly);
        if (rs.Eof()) {
            Common::MostrarMensaje(lblTitulo->text(), d.noEncontrado, *this);
        } else {
            const long clave = runtime::CLng(rs.Fields(d.clave).Value());
            if (tipo == 0) SolicitudID = clave;
            if (tipo == 1) FacturaID = clave;
            if (tipo == 2) ReciboID = clave;
            txtNombreCliente->setText(runtime::TextoDe(rs.Fields(d.nombre).Value()));
            if (tipo == 0)
                txtDireccion->setText(
                    runtime::Trim(runtime::TextoDe(rs.Fields(QStringLiteral("hidDireccion")).Value())));

            store::Recordset articulos;
            articulos.Open(d.pendientes + QString::number(clave) +
                               QStringLiteral(" And shw1200_int_Saldo > 0"),
                           Common::DE().CN, store::adOpenStatic, store::adLockReadOnly);
            while (!articulos.Eof()) {
                fgDetalle->AddItem(runtime::TextoDe(articulos.Fields(0).Value()) + QLatin1Char('\t') +
                                   runtime::TextoDe(articulos.Fields(1).Value()) + QLatin1Char('\t') +
                                   runtime::TextoDe(articulos.Fields(2).Value()));
                articulos.MoveNext();
            }
        }
    }
    QuitarFilaEnBlanco();
    ActualizarTotalArticulos();
}

// The quantities of column 2 added up as a whole number, rounding at each addition; a blank or
// non-numeric cell counts 0.
void frmNotaEnvio::ActualizarTotalArticulos() {
    long total = 0;
    for (int fila = 1; fila < fgDetalle->Rows(); ++fila)
        total = runtime::CLng(total + runtime::Val(fgDetalle->TextMatrix(fila, 2)));
    lblSaldo->setText(runtime::Format(double(total), QStringLiteral("#0")));
}

void frmNotaEnvio::QuitarFilaEnBlanco() {
    if (fgDetalle->Rows() >= 3) fgDetalle->RemoveItem(1);
}

} // namespace mercaderia
