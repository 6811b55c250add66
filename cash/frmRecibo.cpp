#include "cash/frmRecibo.h"

#include "runtime/Conversion.h"
#include "runtime/Fechas.h"
#include "runtime/Formato.h"
#include "shell/busqueda/frmBusca.h"
#include "shell/common/Common.h"
#include "shell/dialogos/Dialogos.h"
#include "store/Numeracion.h"
#include "store/Recordset.h"

using namespace shell;

namespace caja {

namespace {

// The screen opens on no receipt.
const QString kVacio = QStringLiteral("Select * From Recibo Where ReciboID<0");

} // namespace

frmRecibo::frmRecibo()
    : PantallaDeCaja(QStringLiteral("Recibos"), 9135, 8010) {
    setObjectName(QStringLiteral("frmRecibo"));
    adoRecibos = new store::Adodc(this);
    adoRecibos->setObjectName(QStringLiteral("adoRecibos"));
    adoRecibos->setRecordSource(kVacio);

    setColocarFraMain(false);
    DisenarEncabezado();
    DisenarLineas();
    DisenarPago();
    OrdenDeTabulacion();

    txtNumeroRecibo->alValidar([this] { txtNumeroRecibo_Validate(); });
    Conectar(adoRecibos);
    lineas_->alInsertar = [this](int Shift) {
        if (Shift == 0)
            AgregarConcepto();
        else
            AgregarArticulo();
    };
    lineas_->alEditar = [this] { fgDetalle_DblClick(); };
    lineas_->despuesDeTecla = [this](int, int) { CalcularTotal(); };
    // The grid stands outside the frames: a double click edits a line while browsing too, changing
    // only what the screen shows.
    lineas_->dobleClicAlConsultar = true;
}

void frmRecibo::Form_Load() {
    AjustarPantalla();
    panBanco->Cargar();
    PrepararGrillas();
    adoRecibos->Refresh();
    if (!adoRecibos->Recordset()->Eof()) adoRecibos->Recordset()->MoveLast();
    CargarRecibo();
    Common::ReciboAbierto = true;
}

void frmRecibo::cmdBoton_Click(int Index) {
    const QString boton = cmdBoton[Index]->text();
    if (boton == QLatin1String("Buscar"))
        Buscar();
    else if (boton == QLatin1String("Agregar"))
        Agregar();
    else if (boton == QLatin1String("Modificar"))
        Modificar();
    else if (boton == QLatin1String("Guardar"))
        Guardar();
    else if (boton == QLatin1String("Cancelar"))
        Cancelar(); // the mora added to the application goes back too
    // "Eliminar" and "Imprimir": a receipt is never deleted, voided or printed.
}

void frmRecibo::Buscar() {
    if (!shell::Buscar(*this, QStringLiteral("Select * From vwBuscaRecibo"), QStringLiteral("Busca recibos")))
        return;
    adoRecibos->setRecordSource(QStringLiteral("Select * From Recibo Where ReciboID = ") +
                                runtime::TextoDe(Common::Parametros(1)));
    adoRecibos->Refresh();
    CargarRecibo();
}

// What the row doesn't bind: the bank, who the receipt is for (from the search's row, still in
// Parametros), the lines and their total. The balances and "Total recibido:" stay as they were.
void frmRecibo::CargarRecibo() {
    store::Recordset& rs = *adoRecibos->Recordset();
    if (rs.Eof() && rs.Bof()) return;
    panBanco->MostrarBanco(rs.Fields(QStringLiteral("BancoID")).Value());
    dpFecha->setValue(rs.Fields(QStringLiteral("Fecha")).Value());
    SolicitudID = runtime::CLng(runtime::ValNulo(Common::Parametros(4)));
    txtNumeroSolicitud->setText(runtime::TextoDe(Common::Parametros(5)));
    ClienteID = SolicitudID > 0 ? 0 : runtime::CLng(runtime::ValNulo(Common::Parametros(6)));
    lblCodigo->setText(runtime::TextoDe(Common::Parametros(7)));
    txtNombreCliente->setText(runtime::TextoDe(Common::Parametros(8)));

    store::Recordset lineas;
    lineas.Open(QStringLiteral("Select ConceptoID, ArticuloID, Cantidad, Descripcion, Valor, Total From "
                               "vwReciboDetalle RD Where ReciboID = ") +
                    runtime::TextoDe(rs.Fields(QStringLiteral("ReciboID")).Value()),
                Common::DE().CN, store::adOpenStatic, store::adLockReadOnly);
    fgDetalle->Vaciar();
    double total = 0;
    const auto campo = [&lineas](const char* nombre) { return lineas.Fields(QLatin1String(nombre)).Value(); };
    while (!lineas.Eof()) {
        fgDetalle->AddItem(
            QStringList{runtime::TextoDe(campo("ConceptoID")), runtime::TextoDe(campo("ArticuloID")),
                        runtime::TextoDe(campo("Cantidad")), runtime::TextoDe(campo("Descripcion")),
                        runtime::Format(campo("Valor"), QStringLiteral("#0.00")),
                        runtime::Format(campo("Total"), QStringLiteral("#0.00"))}
                .join(QLatin1Char('\t')));
        total += runtime::ValNulo(campo("Total"));
        lineas.MoveNext();
    }
    if (fgDetalle->Rows() > 2) fgDetalle->RemoveItem(1);
    lblTotal->setText(runtime::Format(total, QStringLiteral("#0.00")));
    panBanco->CalcularVuelto();
}

// A new receipt on today's date with the next number; the name keeps its colour and lock, so after
// a plain-name receipt it stays open for typing.
void frmRecibo::Agregar() {
    EmpezarEdicion(true);
    fgDetalle->Vaciar();
    fgSaldos->Vaciar();
    EditarEnTransaccion(*adoRecibos);
    adoRecibos->Recordset()->AddNew();
    dpFecha->setValue(runtime::Hoy());
    txtNombreCliente->setText(QString());
    lblCodigo->setText(QString());
    txtNumeroRecibo->setTag(QString());
    txtNumeroSolicitud->setTag(QStringLiteral("0"));
    txtNumeroSolicitud->setText(QStringLiteral("0"));
    lblTotal->setText(QStringLiteral("0.00"));
    panBanco->CalcularVuelto();
    panBanco->SinBanco();
    SolicitudID = 0;
    ClienteID = 0;
    txtNumeroRecibo->setText(QString::number(store::SiguienteNumero(Common::DE().CN, QStringLiteral("Recibo"),
                                                                    QStringLiteral("NumeroRecibo"),
                                                                    QStringLiteral("ReciboID>0"))));
    txtNumeroRecibo->setFocus();
}

// The balances are not read again: unless the application's number is typed anew, fgSaldos stays as
// it stands. With no receipt shown, it is the row that fails.
void frmRecibo::Modificar() {
    EmpezarEdicion(false);
    EditarEnTransaccion(*adoRecibos);
    store::Recordset& rs = *adoRecibos->Recordset();
    SolicitudID = runtime::CLng(runtime::ValNulo(rs.Fields(QStringLiteral("SolicitudID")).Value()));
    ClienteID = runtime::CLng(runtime::ValNulo(rs.Fields(QStringLiteral("ClienteID")).Value()));
    txtNumeroRecibo->setTag(txtNumeroRecibo->Text());
    txtNumeroSolicitud->setTag(txtNumeroSolicitud->Text());
    txtNumeroRecibo->setFocus();
}

// The name field is the whole test of who the receipt is for: all three forms fill it.
void frmRecibo::Guardar() {
    if (FaltaNumero(txtNumeroRecibo)) return;
    if (txtNombreCliente->Text().trimmed().isEmpty()) {
        Common::MostrarMensaje(lblTitulo->text(),
                               QStringLiteral("Debe indicar la solicidut de credito, cliente registrado o "
                                              "nombre de la persona a quien se emite el recibo."),
                               *this);
        return;
    }
    if (FaltanLineas()) return;
    if (!panBanco->Validar()) return;
    if (!GuardarRecibo()) return;
    TerminarEdicion();
}

// The row, then its lines written again as the grid holds them, and the commit. A failure is told
// and nothing is undone: the transaction stays open with what was written so far, and the screen
// keeps editing, for a second "Guardar" (which starts over) or "Cancelar".
bool frmRecibo::GuardarRecibo() {
    return AvisarSiFalla([this] {
        store::Recordset& rs = *adoRecibos->Recordset();
        panBanco->EscribirEnFila(rs);
        rs.Fields(QStringLiteral("Fecha")) = runtime::TextoFecha(dpFecha->Value());
        if (SolicitudID > 0) rs.Fields(QStringLiteral("SolicitudID")) = qlonglong(SolicitudID);
        if (ClienteID > 0) rs.Fields(QStringLiteral("ClienteID")) = qlonglong(ClienteID);
        if (ClienteID + SolicitudID < 1) rs.Fields(QStringLiteral("Nombre")) = txtNombreCliente->Text();
        rs.Update();
        rs.Resync();
        const QString recibo = runtime::TextoDe(rs.Fields(QStringLiteral("ReciboID")).Value());
        Common::DE().CN.Execute(QStringLiteral("Delete * From ReciboDetalle Where ReciboID = ") + recibo);
        for (int fila = 1; fila < fgDetalle->Rows(); ++fila) {
            const auto celda = [this, fila](int c) { return fgDetalle->TextMatrix(fila, c); };
            Common::DE().CN.Execute(QStringLiteral("Insert Into ReciboDetalle ") +
                                    QStringLiteral("(ReciboID, ConceptoID, ArticuloID, Cantidad, Valor) ") +
                                    QStringLiteral("VALUES ") + QStringLiteral("(") + recibo +
                                    QStringLiteral(",") + celda(0) + QStringLiteral(",") + celda(1) +
                                    QStringLiteral(",") + celda(2) + QStringLiteral(",") + celda(4) +
                                    QStringLiteral(")"));
        }
        ConfirmarTransaccion();
    });
}

// A number already taken is told and the field goes back to the number the edit started from; a free
// one stands, and is tested again at each leaving.
void frmRecibo::txtNumeroRecibo_Validate() {
    if (txtNumeroRecibo->Text() == txtNumeroRecibo->Tag()) return;
    store::Recordset rs;
    rs.Open(QStringLiteral("Select NumeroRecibo From Recibo Where NumeroRecibo = ") +
                runtime::TextoDe(runtime::Val(txtNumeroRecibo->Text())),
            Common::DE().CN, store::adOpenStatic, store::adLockReadOnly);
    if (rs.Eof()) return;
    Common::MostrarMensaje(lblTitulo->text(), QStringLiteral("El numero de recibo que ingreso ya existe."),
                           *this);
    txtNumeroRecibo->setText(txtNumeroRecibo->Tag());
}

} // namespace caja
