#include "cash/frmFactura.h"

#include "runtime/Conversion.h"
#include "runtime/Fechas.h"
#include "runtime/Formato.h"
#include "shell/busqueda/frmBusca.h"
#include "shell/common/Common.h"
#include "shell/common/CustomToolTip.h"
#include "shell/dialogos/Dialogos.h"
#include "store/Numeracion.h"
#include "store/Recordset.h"

using namespace shell;

namespace caja {

namespace {

// The screen opens on no invoice.
const QString kVacio = QStringLiteral("Select * From Factura Where FacturaID < 0");

} // namespace

// They speak of a double click on the discount, which opens on a single one: they stay as they are.
const QString frmFactura::kTipNombre =
    QStringLiteral("Nombres completos del cliente.\r\n\r\nPuede presionar doble click sobre esta\r\ncasilla "
                   "para escribir el "
                   "nombre de la\r\npersona a quien se emitirá la factura");
const QString frmFactura::kTipDescuento = QStringLiteral(
    "Valor de descuento sobre el total de la factura.\r\n\r\nPuede presionar doble click sobre "
    "esta casilla\r\ncasilla para escribir la cantidad de descuento\r\nsobre el total de la "
    "factura.");

frmFactura::frmFactura()
    : PantallaDeCaja(QStringLiteral("Facturas"), 9135, 8400) {
    setObjectName(QStringLiteral("frmFactura"));
    adoFacturas = new store::Adodc(this);
    adoFacturas->setObjectName(QStringLiteral("adoFacturas"));
    adoFacturas->setRecordSource(kVacio);

    DisenarEncabezado();
    DisenarLineas();
    DisenarPago();
    OrdenDeTabulacion();
    Conectar(adoFacturas);

    txtDescuento->alRecibirFoco([this] { txtDescuento_GotFocus(); });
    txtDescuento->alValidar([this] { txtDescuento_Validate(); });
    // The invoice's figures move with the tender: the total first, then the change.
    panBanco->alCambiarRecibido = [this] { lblSubTotal_Change(); };

    // Shift+Insert adds a concept and any other Insert an article: the reverse of the receipt.
    lineas_->alInsertar = [this](int Shift) {
        if (Shift == vbShiftMask)
            AgregarConcepto();
        else
            AgregarArticulo();
    };
    lineas_->alEditar = [this] { fgDetalle_DblClick(); };
    lineas_->alQuitar = [this] { QuitarLinea(); };
    // Every key works the totals out again, Enter included; the double click does not.
    lineas_->despuesDeTecla = [this](int, int) {
        if (!sinRecalcular_) CalcularTotal();
        sinRecalcular_ = false;
    };
}

void frmFactura::Form_Load() {
    AjustarPantalla();
    panBanco->Cargar();
    PrepararGrilla();
    CargarFactura();
    Common::CrearTip(*txtNombreCliente, kTipNombre, *this);
    Common::CrearTip(*txtDescuento, kTipDescuento, *this);
}

void frmFactura::cmdBoton_Click(int Index) {
    const QString boton = cmdBoton[Index]->text();
    if (boton == QLatin1String("Buscar"))
        Buscar();
    else if (boton == QLatin1String("Agregar"))
        Agregar();
    else if (boton == QLatin1String("Modificar"))
        Modificar();
    else if (boton == QLatin1String("Imprimir"))
        Imprimir();
    else if (boton == QLatin1String("Guardar"))
        Guardar();
    else if (boton == QLatin1String("Cancelar"))
        Cancelar();
    // "Eliminar": an invoice is never deleted nor voided.
}

void frmFactura::Buscar() {
    if (!shell::Buscar(*this, QStringLiteral("Select * From vwBuscaFactura"),
                       QStringLiteral("Busca Facturas")))
        return;
    adoFacturas->setRecordSource(QStringLiteral("Select * From Factura Where FacturaID = ") +
                                 runtime::TextoDe(Common::Parametros(1)));
    adoFacturas->Refresh();
    CargarFactura();
}

// What the row doesn't bind: who the invoice is for (from the search's row, still in Parametros), the
// bank, the lines, "Total recibido:" and the figures. The date picker keeps the date it showed.
void frmFactura::CargarFactura() {
    store::Recordset& rs = *adoFacturas->Recordset();
    if (rs.Eof() && rs.Bof()) return;
    const auto parametro = [](int i) { return runtime::TextoDe(Common::Parametros(i)).trimmed(); };
    SolicitudID = runtime::CLng(runtime::ValNulo(Common::Parametros(5)));
    txtNumeroSolicitud->setText(parametro(6));
    ClienteID = runtime::CLng(runtime::ValNulo(Common::Parametros(4)));
    txtNombreCliente->setText(parametro(7));
    txtNIT->setText(parametro(8));
    panBanco->MostrarBanco(rs.Fields(QStringLiteral("BancoID")).Value());

    store::Recordset lineas;
    lineas.Open(QStringLiteral("Select * From vwFacturaDetalle Where FacturaID = ") +
                    runtime::TextoDe(rs.Fields(QStringLiteral("FacturaID")).Value()),
                Common::DE().CN, store::adOpenStatic, store::adLockReadOnly);
    fgDetalle->Vaciar();
    double suma = 0;
    const auto campo = [&lineas](const char* nombre) { return lineas.Fields(QLatin1String(nombre)).Value(); };
    while (!lineas.Eof()) {
        fgDetalle->AddItem(QStringList{
            runtime::TextoDe(campo("ArticuloID")), runtime::TextoDe(campo("ConceptoID")),
            runtime::Format(campo("Cantidad"), QStringLiteral("#0")), runtime::TextoDe(campo("EsCredito")),
            runtime::TextoDe(campo("Descripcion")), runtime::Format(campo("Precio"), QStringLiteral("#0.00")),
            runtime::Format(campo("Total"), QStringLiteral("#0.00"))}
                               .join(QLatin1Char('\t')));
        suma += runtime::ValNulo(campo("Total"));
        lineas.MoveNext();
    }
    if (fgDetalle->Rows() > 2) fgDetalle->RemoveItem(1);
    panBanco->SumarRecibido();
    MostrarSubTotal(suma);
}

// A new invoice on today's date with the next number, which nothing compares with other invoices.
// The name keeps its colour and lock, and "Total recibido:" its figure.
void frmFactura::Agregar() {
    EmpezarEdicion(true);
    fgDetalle->Vaciar();
    adoFacturas->setRecordSource(kVacio);
    adoFacturas->Refresh();
    EditarEnTransaccion(*adoFacturas);
    adoFacturas->Recordset()->AddNew();
    dpFecha->setValue(runtime::Hoy());
    txtNombreCliente->setText(QString());
    txtNIT->setText(QString());
    txtNumeroFactura->setTag(QString());
    txtNumeroSolicitud->setTag(QStringLiteral("0"));
    txtNumeroSolicitud->setText(QStringLiteral("0"));
    MostrarSubTotal(0);
    panBanco->SinBanco();
    SolicitudID = 0;
    ClienteID = 0;
    txtNumeroFactura->setText(QString::number(
        store::SiguienteNumero(Common::DE().CN, QStringLiteral("Factura"), QStringLiteral("NumeroFactura"),
                               QStringLiteral("FacturaID>0"))));
    txtNumeroFactura->setFocus();
}

// Only an invoice on the screen is modified, read again by its key; who it is for, its lines and the
// date stay as the screen shows them.
void frmFactura::Modificar() {
    store::Recordset& rs = *adoFacturas->Recordset();
    if (rs.Eof() && rs.Bof()) return;
    EmpezarEdicion(false);
    FacturaActual = runtime::CLng(rs.Fields(QStringLiteral("FacturaID")).Value());
    adoFacturas->setRecordSource(QStringLiteral("Select * From Factura Where FacturaID = ") +
                                 QString::number(FacturaActual));
    adoFacturas->Refresh();
    EditarEnTransaccion(*adoFacturas);
    txtNumeroFactura->setTag(txtNumeroFactura->Text());
    txtNumeroSolicitud->setTag(txtNumeroSolicitud->Text());
    txtNumeroFactura->setFocus();
}

// The invoice marked as printed, at once and outside any transaction; nothing is printed and nothing on
// the screen changes. With no invoice shown, the missing row fails.
void frmFactura::Imprimir() {
    Common::DE().CN.Execute(
        QStringLiteral("Update Factura Set Estado = 1 Where FacturaID = ") +
        runtime::TextoDe(adoFacturas->Recordset()->Fields(QStringLiteral("FacturaID")).Value()));
}

// The checks, each ending the handler in editing mode. The number and the lines are told with the
// receipt's words; a missing NIT is asked about, and silence is the answer to anything but "Aceptar".
void frmFactura::Guardar() {
    if (FaltaNumero(txtNumeroFactura)) return;
    if (ClienteID + SolicitudID < 1 && txtNombreCliente->Text().trimmed().isEmpty()) {
        Common::MostrarMensaje(lblTitulo->text(),
                               QStringLiteral("Debe indicar el nombre a quien se emitirá la factura."),
                               *this);
        return;
    }
    if (txtNIT->Text().trimmed().isEmpty()) {
        if (Common::Preguntar(
                lblTitulo->text(),
                QStringLiteral("No ha especificado un numero de NIT\r\nDesea emitir a consumidor "
                               "final (C/F)"),
                *this) != QLatin1String("Aceptar"))
            return;
        txtNIT->setText(QStringLiteral("C/F"));
    }
    if (FaltanLineas()) return;
    if (!panBanco->Validar()) return;
    if (!GuardarFactura()) return;
    TerminarEdicion();
}

// One form of the party is written: the application alone (the NIT shown is dropped), the client (the
// NIT typed goes to the client's record, unescaped), or the name and NIT typed. Then the bank, the
// change and the date the picker shows, the row, its lines written again as the grid holds them, and
// the commit. A failure is told and nothing is undone: the transaction stays open with what was
// written so far, for a second "Guardar" or "Cancelar".
bool frmFactura::GuardarFactura() {
    return AvisarSiFalla([this] {
        store::Recordset& rs = *adoFacturas->Recordset();
        if (SolicitudID > 0) {
            rs.Fields(QStringLiteral("SolicitudID")) = qlonglong(SolicitudID);
        } else if (ClienteID > 0) {
            rs.Fields(QStringLiteral("ClienteID")) = qlonglong(ClienteID);
            Common::DE().CN.Execute(QStringLiteral("Update Cliente Set NIT = '") + txtNIT->Text() +
                                    QStringLiteral("' Where ClienteID = ") + QString::number(ClienteID));
        } else {
            rs.Fields(QStringLiteral("Nombre")) = txtNombreCliente->Text();
            rs.Fields(QStringLiteral("NIT")) = txtNIT->Text();
        }
        panBanco->EscribirEnFila(rs);
        rs.Fields(QStringLiteral("Fecha")) = runtime::TextoFecha(dpFecha->Value());
        rs.Update();
        rs.Resync();
        const QString factura = runtime::TextoDe(rs.Fields(QStringLiteral("FacturaID")).Value());
        Common::DE().CN.Execute(QStringLiteral("Delete * From FacturaDetalle Where FacturaID = ") + factura);
        for (int fila = 1; fila < fgDetalle->Rows(); ++fila) {
            const auto celda = [this, fila](int c) { return fgDetalle->TextMatrix(fila, c); };
            const bool articulo = runtime::Val(celda(0)) > 0;
            Common::DE().CN.Execute(
                QStringLiteral("Insert Into FacturaDetalle ") + QStringLiteral("(FacturaID, ") +
                (articulo ? QStringLiteral("ArticuloID") : QStringLiteral("ConceptoID")) +
                QStringLiteral(", Cantidad, EsCredito, Precio) ") + QStringLiteral("VALUES ") +
                QStringLiteral("(") + factura + QStringLiteral(",") + (articulo ? celda(0) : celda(1)) +
                QStringLiteral(",") + celda(2) + QStringLiteral(",") + celda(3) + QStringLiteral(",") +
                celda(5) + QStringLiteral(")"));
        }
        ConfirmarTransaccion();
    });
}

} // namespace caja
