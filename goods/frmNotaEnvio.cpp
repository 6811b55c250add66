#include "goods/frmNotaEnvio.h"

#include "catalogs/Articulos.h"
#include "runtime/Conversion.h"
#include "runtime/Fechas.h"
#include "runtime/Formato.h"
#include "runtime/Texto.h"
#include "shell/busqueda/frmBusca.h"
#include "shell/common/Common.h"
#include "shell/dialogos/Dialogos.h"
#include "store/Numeracion.h"
#include "store/Recordset.h"

using namespace shell;

namespace mercaderia {

namespace {

// The screen opens on no note.
const QString kVacio = QStringLiteral("Select * From NotaEnvio Where NotaID<0");

// The run-time failures of the two steps below, with the numbers and texts the program has always
// shown for them.
const store::Fallo kSeRequiereUnObjeto(store::numeroFallo(0x800A01A8u),
                                       QStringLiteral("Se requiere un objeto"));

// A grid cell taken as a long: a text that is no number (the blank row's empty cell) is a failure.
long ComoLong(const QString& celda) {
    if (!runtime::EsNumero(celda))
        throw store::Fallo(store::numeroFallo(0x800A000Du), QStringLiteral("No coinciden los tipos"));
    return runtime::CLng(runtime::Val(celda));
}

} // namespace

frmNotaEnvio::frmNotaEnvio()
    : PantallaRegistro(QStringLiteral("Notas de envío de mercadería"), 9375, 7200) {
    setObjectName(QStringLiteral("frmNotaEnvio"));
    adoNota = new store::Adodc(this);
    adoNota->setObjectName(QStringLiteral("adoNota"));
    adoNota->setRecordSource(kVacio);
    Disenar();

    optTipo->alHacerClic([this](int Index) { optTipo_Click(Index); });
    txtNumeroDocumento->alPresionarTecla(
        [this](int KeyCode, int Shift) { txtNumeroDocumento_KeyDown(KeyCode, Shift); });
    txtNumeroDocumento->alValidar([this] { txtNumeroDocumento_Validate(); });
    setGuardaDeTransaccion(true);
}

void frmNotaEnvio::Form_Load() {
    AjustarPantalla();
    PrepararGrilla();
    adoNota->Refresh();
    MostrarNota();
    SolicitudID = 0;
    FacturaID = 0;
}

void frmNotaEnvio::cmdBoton_Click(int Index) {
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
        Cancelar();
    // "Eliminar" and "Imprimir": a delivery note is never deleted nor printed.
}

void frmNotaEnvio::Buscar() {
    if (!shell::Buscar(*this, QStringLiteral("Select * From vwBuscaNotaEnvio"),
                       QStringLiteral("Busca notas de envío de artículos")))
        return;
    adoNota->setRecordSource(QStringLiteral("Select * From NotaEnvio Where NotaID = ") +
                             runtime::TextoDe(Common::Parametros(1)));
    adoNota->Refresh();
    MostrarNota();
}

// The note in adoNota, with what its row doesn't hold taken from the search's row, still in
// Parametros by position: 3 the date, 4 to 9 the key and number of the application, the invoice and
// the receipt (0 when not the origin), 10 the customer's name. Selecting an option runs its click,
// which zeroes the other two keys, so the three tests go in this order. The lines come from the
// note's rows; lblSaldo shows their sum, 0 with no note.
void frmNotaEnvio::MostrarNota() {
    double suma = 0;
    store::Recordset& rs = *adoNota->Recordset();
    if (!rs.Eof()) {
        dpFecha->setValue(Common::Parametros(3));
        SolicitudID = runtime::CLng(Common::Parametros(4));
        FacturaID = runtime::CLng(Common::Parametros(6));
        ReciboID = runtime::CLng(Common::Parametros(8));
        if (SolicitudID > 0) {
            optTipo->Seleccionar(0);
            txtNumeroDocumento->setText(runtime::TextoDe(Common::Parametros(5)));
        }
        if (FacturaID > 0) {
            optTipo->Seleccionar(1);
            txtNumeroDocumento->setText(runtime::TextoDe(Common::Parametros(7)));
        }
        if (ReciboID > 0) {
            optTipo->Seleccionar(2);
            txtNumeroDocumento->setText(runtime::TextoDe(Common::Parametros(9)));
        }
        txtNombreCliente->setText(runtime::TextoDe(Common::Parametros(10)));

        store::Recordset lineas;
        lineas.Open(QStringLiteral("Select * From vwNotaEnvioDetalle Where NotaID = ") +
                        runtime::TextoDe(rs.Fields(QStringLiteral("NotaID")).Value()),
                    Common::DE().CN, store::adOpenStatic, store::adLockReadOnly);
        fgDetalle->Vaciar();
        const auto texto = [&lineas](const char* nombre) {
            return runtime::Trim(runtime::TextoDe(lineas.Fields(QLatin1String(nombre)).Value()));
        };
        while (!lineas.Eof()) {
            const QVariant cantidad = lineas.Fields(QStringLiteral("Cantidad")).Value();
            fgDetalle->AddItem(texto("ArticuloID") + QLatin1Char('\t') + texto("Nombre") + QLatin1Char(' ') +
                               texto("Modelo") + QLatin1Char(' ') + texto("Color") + QLatin1Char('\t') +
                               runtime::Format(cantidad, QStringLiteral("#0")));
            suma += runtime::ValNulo(cantidad);
            lineas.MoveNext();
        }
        QuitarFilaEnBlanco();
    }
    lblSaldo->setText(runtime::Format(suma, QStringLiteral("#0")));
}

// A new note on today's date with the next number. The keys of an invoice or a receipt stay as the
// last note shown left them until the document's number is left again.
void frmNotaEnvio::Agregar() {
    Agregando = true;
    Editando = true;
    ModoEdicion(QStringLiteral("Agregar nuevo registro"));
    fgDetalle->Vaciar();
    adoNota->setRecordSource(kVacio);
    adoNota->Refresh();
    EditarEnTransaccion(*adoNota);
    adoNota->Recordset()->AddNew();
    Common::ParametrosEnvio = QList<QVariantList>(1, QVariantList(3)); // one line of the grid's three cells
    SolicitudID = 0;
    txtNumeroDocumento->setText(QString());
    txtNombreCliente->setText(QString());
    dpFecha->setValue(runtime::Hoy());
    txtNumeroDocumento->setTag(QString());
    txtNumeroNota->setTag(QString());
    txtNumeroNota->setText(
        QString::number(store::SiguienteNumero(Common::DE().CN, QStringLiteral("NotaEnvio"),
                                               QStringLiteral("NumeroNota"), QStringLiteral("NotaID>0"))));
    txtNumeroNota->setFocus();
}

// A saved note can't be changed. The step opens the edit and its transaction, then reaches for two
// controls this screen doesn't have: that failure is caught by nothing and ends the program, the
// open transaction lost with the connection. Whether a note is shown is not looked at.
void frmNotaEnvio::Modificar() {
    Agregando = false;
    Editando = true;
    ModoEdicion(QStringLiteral("Modificar registro actual"));
    EditarEnTransaccion(*adoNota);
    txtNumeroNota->setTag(txtNumeroNota->Text());
    throw kSeRequiereUnObjeto;
}

// The checks in order, one message and stop at the first. The second reads the note's number again,
// so after the first it never speaks; the document's number itself is not tested: the save finds out.
void frmNotaEnvio::Guardar() {
    const auto avisar = [this](const QString& mensaje) {
        Common::MostrarMensaje(lblTitulo->text(), mensaje, *this);
    };
    if (runtime::Val(txtNumeroNota->Text()) <= 0)
        return avisar(QStringLiteral("Debe indicar el numero de la nota de envío."));
    if (optTipo->Valor() == 0 && runtime::Val(txtNumeroNota->Text()) <= 0)
        return avisar(QStringLiteral("Debe indicar el numero de la solicitud de crédito."));
    if (runtime::Trim(txtDireccion->Text()).isEmpty())
        return avisar(QStringLiteral("Debe indicar la dirección de entrega de la mercadería."));
    if (!GuardarNota()) return;
    Agregando = false;
    Editando = false;
    ModoConsulta();
}

// The row with its date and its one origin (the receipt's key, even 0, when neither of the others is
// set), then its lines written again as the grid holds them, each tested first against the article's
// stock, and the commit. A short article is told by the stock test and stops the save at its line; a
// failure is told with its own text. Either way nothing is undone: the transaction stays open with
// what was written so far, for a second "Guardar" (which starts over) or "Cancelar". A grid with only
// its blank row fails on its empty first cell: a note without articles can't be saved.
bool frmNotaEnvio::GuardarNota() {
    bool guardada = false;
    AvisarSiFalla([this, &guardada] {
        store::Recordset& rs = *adoNota->Recordset();
        rs.Fields(QStringLiteral("Fecha")) = runtime::TextoFecha(dpFecha->Value());
        if (SolicitudID >= 1)
            rs.Fields(QStringLiteral("SolicitudID")) = qlonglong(SolicitudID);
        else if (FacturaID >= 1)
            rs.Fields(QStringLiteral("FacturaID")) = qlonglong(FacturaID);
        else
            rs.Fields(QStringLiteral("ReciboID")) = qlonglong(ReciboID);
        rs.Update();
        rs.Resync();
        const QString nota = runtime::TextoDe(rs.Fields(QStringLiteral("NotaID")).Value());
        Common::DE().CN.Execute(QStringLiteral("Delete From NotaEnvioDetalle Where NotaID = ") + nota);
        for (int fila = 1; fila < fgDetalle->Rows(); ++fila) {
            const QString articulo = fgDetalle->TextMatrix(fila, 0);
            const QString cantidad = fgDetalle->TextMatrix(fila, 2);
            if (!Common::ValidarVentaArticulo(*this, ComoLong(articulo), ComoLong(cantidad), 0)) return;
            Common::DE().CN.Execute(
                QStringLiteral("Insert Into NotaEnvioDetalle (NotaID, ArticuloID, Cantidad) "
                               "VALUES (") +
                nota + QStringLiteral(",") + articulo + QStringLiteral(",") + cantidad + QStringLiteral(")"));
        }
        ConfirmarTransaccion();
        guardada = true;
    });
    return guardada;
}

// The pending row dropped and everything the edit wrote rolled back; the fields, the grid and the
// three keys keep what they show.
void frmNotaEnvio::Cancelar() {
    AnularTransaccion(*adoNota);
    Agregando = false;
    Editando = false;
    ModoConsulta();
}

} // namespace mercaderia
