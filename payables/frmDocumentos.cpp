#include "payables/frmDocumentos.h"

#include "runtime/Conversion.h"
#include "runtime/Formato.h"
#include "shell/busqueda/frmBusca.h"
#include "shell/common/Common.h"
#include "shell/dialogos/Dialogos.h"
#include "store/Recordset.h"

using namespace shell;

namespace pagos {

namespace {

constexpr int kColumnasDeLinea = 5;
const QString kImporte = QStringLiteral("#0.00");

mercaderia::TextosDeDocumento textosDeDocumento() {
    mercaderia::TextosDeDocumento t;
    t.titulo = QStringLiteral("Pagos a proveedores");
    t.etiquetaNumero = QStringLiteral("No. Documento:");
    t.etiquetaTotal = QStringLiteral("Valor total del documento");
    t.nombreDatos = QStringLiteral("ado");
    t.nombreNumero = QStringLiteral("txtNumeroDocumento");
    t.columnaClave = QStringLiteral("DocumentoID");
    t.columnaNumero = QStringLiteral("NumeroDocumento");
    t.tabla = QStringLiteral("Documento");
    t.consultaBusqueda = QStringLiteral("Select * From vwBuscaDocumento");
    t.tituloBusqueda = QStringLiteral("Busca documentos por pagar");
    t.fuenteConProveedor = QStringLiteral(
        "Select D.DocumentoID, D.NumeroDocumento, D.ProveedorID, P.Nombre, D.Fecha, D.Descripcion "
        "From Documento D INNER JOIN Proveedor P ON D.ProveedorID = P.ProveedorID Where "
        "D.DocumentoID");
    t.fuenteEditable = QStringLiteral("Select D.DocumentoID, D.NumeroDocumento, D.ProveedorID, D.Fecha, "
                                      "D.Descripcion From Documento D Where D.DocumentoID");
    t.borrarLineas = QStringLiteral("Delete From DocumentoDetalle Where DocumentoID = ");
    t.eliminarLineas = QStringLiteral("Delete * From DocumentoDetalle Where DocumentoID = ");
    t.eliminarDocumento = QStringLiteral("Delete * From Documento Where DocumentoID = ");
    t.preguntaEliminar = QStringLiteral("Desea eliminar este documento por pagar");
    t.faltaNumero = QStringLiteral("Debe indicar el numero del documento.");
    t.faltanLineas = QStringLiteral("Debe especificar la lista de notas de ingreso a pagar.");
    return t;
}

const QString kPideMonto = QStringLiteral("Ingrese el monto del pago.");

} // namespace

frmDocumentos::frmDocumentos()
    : DocumentoDeProveedor(textosDeDocumento(), 4) {
    setObjectName(QStringLiteral("frmDocumentos"));
    ado = datos;
    txtNumeroDocumento = txtNumero;
    // Without a supplier the keys do nothing; the mouse isn't asked for one.
    lineas_->teclasHabilitadas = [this] { return ProveedorID >= 1; };
    lineas_->alInsertar = [this](int) { fgDetalle_Insertar(); };
    lineas_->alEditar = [this] { fgDetalle_DblClick(); };
    lineas_->dobleClicAlConsultar = true;
    lineas_->despuesDeTecla = [this](int KeyCode, int) {
        if (KeyCode == vbKeyReturn || KeyCode == vbKeyDelete) ActualizarTotal();
    };
}

void frmDocumentos::Form_Load() {
    ado->Refresh();
    DocumentoDeProveedor::Form_Load();
}

// Column 3, headed "No. Cheque", holds the note's description.
void frmDocumentos::ConfigurarGrilla() {
    const QStringList encabezados = {QString(),
                                     QStringLiteral("No. Factura"),
                                     QStringLiteral("Fecha"),
                                     QStringLiteral("No. Cheque"),
                                     QStringLiteral("Valor"),
                                     QString()};
    const double anchos[] = {0, 1200, 1400, 2000, 1400, 0};
    const GrillaDetalle::Alineacion alineaciones[] = {
        GrillaDetalle::flexAlignGeneral,      GrillaDetalle::flexAlignRightCenter,
        GrillaDetalle::flexAlignCenterCenter, GrillaDetalle::flexAlignRightCenter,
        GrillaDetalle::flexAlignRightCenter,  GrillaDetalle::flexAlignGeneral};
    fgDetalle->setCols(6);
    fgDetalle->setRows(2);
    for (int c = 0; c < 6; ++c) {
        fgDetalle->setTextMatrix(0, c, encabezados[c]);
        fgDetalle->setColWidth(c, anchos[c]);
        fgDetalle->setColAlignment(c, alineaciones[c]);
    }
    fgDetalle->FormatoEncabezado();
}

void frmDocumentos::MostrarDocumento() {
    MostrarLineas(
        QStringLiteral("Select * From vwDocumentoDetalle Where DocumentoID = "),
        [](store::Recordset& rs, double& total) {
            const auto campo = [&rs](const char* nombre) { return rs.Fields(QLatin1String(nombre)).Value(); };
            total += runtime::ValNulo(campo("Valor"));
            return QStringList{runtime::TextoDe(campo("IngresoID")), runtime::TextoDe(campo("NumeroIngreso")),
                               runtime::TextoDe(campo("Fecha")), runtime::TextoDe(campo("Descripcion")),
                               runtime::Format(campo("Valor"), kImporte)};
        });
}

bool frmDocumentos::PedirMonto() {
    if (Common::PedirTexto(lblTitulo->text(), kPideMonto, *this, Parametro(5)) != QLatin1String("Aceptar"))
        return true;
    const double monto = runtime::Val(Common::TextoSeleccionado);
    if (monto <= 0) {
        Common::MostrarMensaje(lblTitulo->text(), QStringLiteral("El valor que ingresó no es válido."),
                               *this);
        return false;
    }
    Common::Parametros(5) = runtime::Format(monto, kImporte);
    return true;
}

// The amount isn't compared with the balance, and a note may stand twice.
void frmDocumentos::fgDetalle_Insertar() {
    Common::LineaNueva = true;
    const bool elegida = shell::Buscar(
        *this,
        QStringLiteral(
            "Select hidID, shw1200_int_No_Nota, shw1200_dat_Fecha, shw2500_str_Descripcion_general, "
            "Format(shw1200_dbl_Total - shw1200_dbl_Cancelado,'#0.00') as shw1200_dbl_Saldo From "
            "vwSaldosXNotaIngreso Where hidProveedorID = ") +
            QString::number(ProveedorID) +
            QStringLiteral(" And shw1200_dbl_Total - shw1200_dbl_Cancelado > 0 "),
        QStringLiteral("Busca notas de ingreso"));
    if (elegida) {
        if (!PedirMonto()) return;
        QStringList celdas;
        for (int i = 1; i <= kColumnasDeLinea; ++i)
            celdas << Parametro(i);
        lineas_->AgregarFila(celdas);
    }
    Common::ResaltarTitulo(*this);
    ActualizarTotal();
}

// A cancelled prompt writes the line back as it was.
void frmDocumentos::fgDetalle_DblClick() {
    Common::Parametros.ReDim(kColumnasDeLinea);
    if (!Editando) return;
    const int fila = fgDetalle->Row();
    for (int c = 0; c < kColumnasDeLinea; ++c)
        Common::Parametros(c + 1) = fgDetalle->TextMatrix(fila, c);
    if (!PedirMonto()) return;
    for (int c = 0; c < kColumnasDeLinea; ++c)
        fgDetalle->setTextMatrix(fila, c, Parametro(c + 1));
    Common::ResaltarTitulo(*this);
    ActualizarTotal();
}

bool frmDocumentos::GuardarDocumento() {
    return GuardarLineas([this](int fila, const QString& clave) {
        Common::DE().CN.Execute(
            QStringLiteral("Insert Into DocumentoDetalle (DocumentoID, IngresoID, Valor) VALUES (") + clave +
            QStringLiteral(",") + fgDetalle->TextMatrix(fila, 0) + QStringLiteral(",") +
            fgDetalle->TextMatrix(fila, 4) + QStringLiteral(")"));
    });
}

// Whatever the failure, the driver's text under the screen's title.
void frmDocumentos::EliminarDocumento() {
    EliminarConLineas([this](const store::Fallo& fallo) {
        Common::MostrarMensaje(lblTitulo->text(), fallo.descripcion(), *this);
    });
}

} // namespace pagos
