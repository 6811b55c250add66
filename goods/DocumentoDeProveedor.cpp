#include "goods/DocumentoDeProveedor.h"

#include "runtime/Conversion.h"
#include "runtime/Fechas.h"
#include "runtime/Formato.h"
#include "shell/busqueda/frmBusca.h"
#include "shell/busqueda/frmListado.h"
#include "shell/common/Common.h"
#include "shell/common/Twips.h"
#include "shell/dialogos/Dialogos.h"
#include "store/Numeracion.h"
#include "store/Recordset.h"

using namespace shell;

namespace mercaderia {

namespace {

const QString kImporte = QStringLiteral("#0.00");
// The column both screens read their row's key under, whatever their table.
const QString kColumnaIngreso = QStringLiteral("IngresoID");

} // namespace

DocumentoDeProveedor::DocumentoDeProveedor(const TextosDeDocumento& textos, int columnaTotal)
    : PantallaRegistro(textos.titulo, 9600, 7000)
    , textos_(textos)
    , columnaTotal_(columnaTotal) {
    datos = new store::Adodc(this);
    datos->setObjectName(textos.nombreDatos);
    datos->setRecordSource(textos.fuenteConProveedor + QStringLiteral(" < 0"));
    Disenar();
    connect(cmdProveedor, &QPushButton::clicked, this,
            [this] { Common::Manejar([this] { cmdProveedor_Click(); }); });
    lineas_ = new LineasDeDetalle(*this, *fgDetalle, Editando);
    setGuardaDeTransaccion(true);
}

void DocumentoDeProveedor::Form_Load() {
    AjustarPantalla();
    ConfigurarGrilla();
    Mostrar();
}

bool DocumentoDeProveedor::HayFila() {
    store::Recordset& rs = *datos->Recordset();
    return rs.State() != 0 && !(rs.Eof() && rs.Bof());
}

QString DocumentoDeProveedor::Parametro(int i) {
    return i <= Common::Parametros.UBound() ? runtime::TextoDe(Common::Parametros(i)) : QString();
}

void DocumentoDeProveedor::cmdProveedor_Click() {
    Common::AtenuarTitulo(*this);
    auto& lista = Common::Pantalla<frmListado>();
    lista.Move(Left() + 300, Top() + 300);
    lista.CargarLista(
        QStringLiteral("Select ProveedorID as Codigo, Nombre as Descripcion From Proveedor Order By Nombre"));
    lista.lblTitulo->setText(QStringLiteral(" Listado de proveedores"));
    lista.ShowModal();
    Common::ResaltarTitulo(*this);
    if (Common::IDSeleccionado < 1) {
        ProveedorID = 0;
        lblNombre->setText(QString());
    } else {
        ProveedorID = Common::IDSeleccionado;
        lblNombre->setText(Common::TextoSeleccionado);
    }
}

void DocumentoDeProveedor::ActualizarTotal() {
    double total = 0;
    for (int fila = 1; fila < fgDetalle->Rows(); ++fila)
        total += runtime::Val(fgDetalle->TextMatrix(fila, columnaTotal_));
    lblTotal->setText(runtime::Format(total, kImporte));
}

void DocumentoDeProveedor::MostrarLineas(
    const QString& consultaLineas, const std::function<QStringList(store::Recordset&, double&)>& linea) {
    fgDetalle->Vaciar();
    double total = 0;
    QString clave = QStringLiteral("0");
    if (HayFila()) {
        store::Recordset& rs = *datos->Recordset();
        dpFecha->setValue(rs.Fields(QStringLiteral("Fecha")).Value());
        ProveedorID = runtime::CLng(rs.Fields(QStringLiteral("ProveedorID")).Value());
        txtNumero->setTag(runtime::TextoDe(rs.Fields(textos_.columnaNumero).Value()));
        lblNombre->setText(runtime::TextoDe(rs.Fields(QStringLiteral("Nombre")).Value()));
        clave = runtime::TextoDe(rs.Fields(textos_.columnaClave).Value());
    }
    store::Recordset lineas;
    lineas.Open(consultaLineas + clave, Common::DE().CN, store::adOpenStatic, store::adLockReadOnly);
    while (!lineas.Eof()) {
        fgDetalle->AddItem(linea(lineas, total).join(QLatin1Char('\t')));
        lineas.MoveNext();
    }
    if (fgDetalle->Rows() > 2) fgDetalle->RemoveItem(1);
    lblTotal->setText(runtime::Format(total, kImporte));
}

void DocumentoDeProveedor::cmdBoton_Click(int Index) {
    const QString boton = cmdBoton[Index]->text();
    if (boton == QLatin1String("Buscar")) {
        Buscar();
    } else if (boton == QLatin1String("Agregar")) {
        Agregar();
    } else if (boton == QLatin1String("Modificar")) {
        if (HayFila()) Modificar();
    } else if (boton == QLatin1String("Eliminar")) {
        if (HayFila() &&
            Common::Preguntar(lblTitulo->text(), textos_.preguntaEliminar, *this) == QLatin1String("Aceptar"))
            EliminarDocumento();
    } else if (boton == QLatin1String("Imprimir")) {
        // Nothing is printed.
    } else if (boton == QLatin1String("Guardar")) {
        Guardar();
    } else if (boton == QLatin1String("Cancelar")) {
        Cancelar();
    }
}

void DocumentoDeProveedor::Buscar() {
    if (!shell::Buscar(*this, textos_.consultaBusqueda, textos_.tituloBusqueda)) return;
    datos->setRecordSource(textos_.fuenteConProveedor + QStringLiteral(" = ") + Parametro(1));
    datos->Refresh();
    Mostrar();
}

// The total stays as it stood until the first key on the lines.
void DocumentoDeProveedor::Agregar() {
    Agregando = true;
    Editando = true;
    ModoEdicion(QStringLiteral("Agregar nuevo registro"));
    lblNombre->setText(QString());
    // Without the supplier's name: the row must be updatable.
    datos->setRecordSource(textos_.fuenteEditable + QStringLiteral(" < 0"));
    datos->Refresh();
    EditarEnTransaccion(*datos);
    datos->Recordset()->AddNew();
    fgDetalle->Vaciar();
    ProveedorID = 0;
    dpFecha->setValue(runtime::Hoy());
    txtNumero->setTag(QString());
    txtNumero->setText(QString::number(store::SiguienteNumero(
        Common::DE().CN, textos_.tabla, textos_.columnaNumero, textos_.columnaClave + QStringLiteral(">0"))));
    txtNumero->setFocus();
}

// The editing mode comes first; the key is then read under IngresoID, which a payable document's row
// lacks: there the program stops here, with no transaction begun.
void DocumentoDeProveedor::Modificar() {
    Agregando = false;
    Editando = true;
    ModoEdicion(QStringLiteral("Modificar el registro"));
    IngresoID = runtime::CLng(datos->Recordset()->Fields(kColumnaIngreso).Value());
    datos->setRecordSource(textos_.fuenteEditable + QStringLiteral(" = ") + QString::number(IngresoID));
    datos->Refresh();
    EditarEnTransaccion(*datos);
    txtNumero->setFocus();
}

void DocumentoDeProveedor::Guardar() {
    const auto falta = [this](const QString& mensaje) {
        Common::MostrarMensaje(lblTitulo->text(), mensaje, *this);
        return true;
    };
    if (runtime::Val(txtNumero->Text()) <= 0 && falta(textos_.faltaNumero)) return;
    if (ProveedorID <= 0 && falta(QStringLiteral("Debe indicar el proveedor."))) return;
    if (txtDescripcion->Text().trimmed().isEmpty() &&
        falta(QStringLiteral("Debe escribir una descripcion de referencia.")))
        return;
    if (fgDetalle->TextMatrix(1, 1).trimmed().isEmpty() && falta(textos_.faltanLineas)) return;
    if (!GuardarDocumento()) return;
    TerminarEdicion();
}

// After a cancelled "Agregar" the data control holds no row, and the fields and lines keep what was
// typed. A row still held is read again joined, by the key read under IngresoID.
void DocumentoDeProveedor::Cancelar() {
    AnularTransaccion(*datos);
    TerminarEdicion();
    if (!HayFila()) return;
    IngresoID = runtime::CLng(datos->Recordset()->Fields(kColumnaIngreso).Value());
    datos->setRecordSource(textos_.fuenteConProveedor + QStringLiteral(" = ") + QString::number(IngresoID));
    datos->Refresh();
    Mostrar();
}

void DocumentoDeProveedor::TerminarEdicion() {
    Agregando = false;
    Editando = false;
    ModoConsulta();
}

bool DocumentoDeProveedor::GuardarLineas(const std::function<void(int, const QString&)>& linea) {
    return AvisarSiFalla([&] {
        store::Recordset& rs = *datos->Recordset();
        rs.Fields(QStringLiteral("Fecha")) = runtime::TextoFecha(dpFecha->Value());
        rs.Fields(QStringLiteral("ProveedorID")) = qlonglong(ProveedorID);
        rs.Update();
        rs.Resync();
        const QString clave = runtime::TextoDe(rs.Fields(textos_.columnaClave).Value());
        Common::DE().CN.Execute(textos_.borrarLineas + clave);
        for (int fila = 1; fila < fgDetalle->Rows(); ++fila)
            linea(fila, clave);
        ConfirmarTransaccion();
    });
}

// BeginTrans leaves TransaccionActiva as it was: the deletion is over before anything else runs. Only
// the deletion's own transaction is rolled back: one that another screen holds open on the shared
// connection refuses this BeginTrans and stays as it was.
void DocumentoDeProveedor::EliminarConLineas(const std::function<void(const store::Fallo&)>& avisar) {
    store::Conexion& cn = Common::DE().CN;
    bool propia = false;
    try {
        cn.BeginTrans();
        propia = true;
        const QString clave = runtime::TextoDe(datos->Recordset()->Fields(textos_.columnaClave).Value());
        cn.Execute(textos_.eliminarLineas + clave);
        cn.Execute(textos_.eliminarDocumento + clave);
        cn.CommitTrans();
        datos->setRecordSource(textos_.fuenteEditable + QStringLiteral(" < 0"));
        datos->Refresh();
        Mostrar();
    } catch (const store::Fallo& fallo) {
        if (propia && cn.nivelTransaccion() > 0) cn.RollbackTrans();
        avisar(fallo);
    }
}

} // namespace mercaderia
