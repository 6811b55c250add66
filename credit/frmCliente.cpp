#include "credit/frmCliente.h"

#include "credit/Personas.h"
#include "credit/frmHistorial.h"
#include "runtime/Conversion.h"
#include "runtime/Fechas.h"
#include "runtime/Formato.h"
#include "shell/busqueda/frmBusca.h"
#include "shell/common/Common.h"
#include "shell/common/Twips.h"
#include "shell/controles/CamposDeTexto.h"
#include "shell/controles/EnlaceDatos.h"
#include "store/Recordset.h"

using namespace shell;

namespace credito {

namespace {
const QString kVacio = QStringLiteral("Select * From Cliente Where ClienteID < 0");
const QString kUnCliente = QStringLiteral("Select * From Cliente Where ClienteID = ");
} // namespace

frmCliente::frmCliente()
    : PantallaRegistro(QStringLiteral("Clientes"), 8760, 5400) {
    setObjectName(QStringLiteral("frmCliente"));
    adoCliente = new store::Adodc(this);
    adoCliente->setObjectName(QStringLiteral("adoCliente"));
    adoCliente->setRecordSource(kVacio);

    // Created in the order Enter and Tab go through them.
    etiqueta(QStringLiteral("Nombres:"), 120, 150, 900);
    txtNombres = campo<CajaTexto>(QStringLiteral("txtNombres"), 1080, 120, 3120);
    etiqueta(QStringLiteral("Apellidos:"), 4380, 150, 900);
    txtApellidos = campo<CajaTexto>(QStringLiteral("txtApellidos"), 5280, 120, 3120);

    etiqueta(QStringLiteral("Fecha de nacimiento:"), 120, 510, 1700);
    txtFecha = campo<SelectorFecha>(QStringLiteral("txtFecha"), 1860, 480, 1320);
    etiqueta(QStringLiteral("N.I.T.:"), 3300, 510, 600);
    txtNIT = campo<CajaTexto>(QStringLiteral("txtNIT"), 3900, 480, 1440);
    etiqueta(QStringLiteral("Cédula:"), 5460, 510, 700);
    txtCedulaRegistro = campo<CajaTexto>(QStringLiteral("txtCedulaRegistro"), 6180, 480, 720);
    txtCedulaNumero = campo<CajaTexto>(QStringLiteral("txtCedulaNumero"), 6960, 480, 1440);

    etiqueta(QStringLiteral("Extendida en:"), 120, 870, 1200);
    txtCedulaExtendida = campo<CajaTexto>(QStringLiteral("txtCedulaExtendida"), 1320, 840, 1860);
    etiqueta(QStringLiteral("Codigo:"), 3300, 870, 700);
    txtCodigoLetra = campo<CajaTexto>(QStringLiteral("txtCodigoLetra"), 3960, 840, 360);
    txtCodigoLetra->setMaxLength(1);
    txtCodigoNumero = campo<CajaTexto>(QStringLiteral("txtCodigoNumero"), 4380, 840, 960);
    etiqueta(QStringLiteral("LimiteCredito:"), 5460, 870, 1200);
    txtLimite = campo<CajaTexto>(QStringLiteral("txtLimite"), 6720, 840, 1680);
    txtLimite->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    txtLimite->setText(QStringLiteral("0.00"));

    auto* encabezado = etiqueta(QStringLiteral("Historial crediticio"), 120, 1260, 3000);
    QFont negrita = encabezado->font(); // by font, not style sheet: it reads as well while browsing
    negrita.setBold(true);
    encabezado->setFont(negrita);
    fgDetalle = campo<GrillaDetalle>(QStringLiteral("fgDetalle"), 120, 1560, 8280, 2400);

    txtFechaNacimiento = campo<CajaTexto>(QStringLiteral("txtFechaNacimiento"), 0, 0, 0);
    txtFechaNacimiento->hide();

    enlazar(txtNombres, adoCliente, QStringLiteral("Nombres"));
    enlazar(txtApellidos, adoCliente, QStringLiteral("Apellidos"));
    enlazar(txtFechaNacimiento, adoCliente, QStringLiteral("FechaNacimiento"));
    enlazar(txtNIT, adoCliente, QStringLiteral("NIT"));
    enlazar(txtCedulaRegistro, adoCliente, QStringLiteral("CedulaRegistro"));
    enlazar(txtCedulaNumero, adoCliente, QStringLiteral("CedulaNumero"));
    enlazar(txtCedulaExtendida, adoCliente, QStringLiteral("CedulaExtendida"));
    enlazar(txtCodigoLetra, adoCliente, QStringLiteral("CodigoLetra"));
    enlazar(txtCodigoNumero, adoCliente, QStringLiteral("CodigoNumero"));
    enlazar(txtLimite, adoCliente, QStringLiteral("Limite"), QStringLiteral("0.00"));

    MayusculasAlTeclear(txtNombres);
    MayusculasAlTeclear(txtApellidos);
    txtApellidos->alValidar([this] { txtApellidos_Validate(); });
    txtCedulaRegistro->alValidar([this] { txtCedulaRegistro_Validate(); });
    SeleccionarTodoAlEntrar(txtCodigoNumero);
    EnteroAlSalir(txtCodigoNumero);

    // The history keys: Insert dims the title around the dialog, editing a line does not; a first line
    // replaces the blank row when the blank row's date and description add up to no number.
    lineas_ = new LineasDeDetalle(*this, *fgDetalle, Editando);
    lineas_->abrirDialogo = [this] { fgDetalle_Historial(); };
    lineas_->atenuarAlEditar = false;
    lineas_->filaEnBlanco = [this](int fila) {
        return runtime::Val(fgDetalle->TextMatrix(fila, 1)) + runtime::Val(fgDetalle->TextMatrix(fila, 0)) <=
               0;
    };
}

void frmCliente::Form_Load() {
    AjustarPantalla();
    ConfigurarDetalle();
    if (Common::ClienteAbrir < 1) {
        adoCliente->Refresh();
    } else {
        adoCliente->setRecordSource(kUnCliente + QString::number(Common::ClienteAbrir));
        adoCliente->Refresh();
        cmdBoton_Click(2); // "Modificar"
    }
    CargarHistorial();
}

void frmCliente::ConfigurarDetalle() {
    fgDetalle->setCols(5);
    fgDetalle->setRows(2);
    const QStringList encabezados = {QStringLiteral("Fecha"), QStringLiteral("Artículo"),
                                     QStringLiteral("Valor"), QStringLiteral("Clasif."), QString()};
    const double anchos[] = {1400, 4400, 1200, 1200, 0};
    for (int c = 0; c < 5; ++c) {
        fgDetalle->setTextMatrix(0, c, encabezados[c]);
        fgDetalle->setColWidth(c, anchos[c]);
    }
    fgDetalle->setColAlignment(0, GrillaDetalle::flexAlignCenterCenter);
    fgDetalle->setColAlignment(1, GrillaDetalle::flexAlignLeftCenter);
    fgDetalle->setColAlignment(2, GrillaDetalle::flexAlignRightCenter);
    fgDetalle->setColAlignment(3, GrillaDetalle::flexAlignLeftCenter);
    fgDetalle->FormatoEncabezado();
}

// The history of the client shown; with no client shown the grid keeps what it had.
void frmCliente::CargarHistorial() {
    store::Recordset& cliente = *adoCliente->Recordset();
    if (cliente.Eof() && cliente.Bof()) return;
    store::Recordset rs;
    rs.Open(QStringLiteral("Select H.Fecha, H.Descripcion, H.Valor, C.ClasificacionID, C.Descripcion as "
                           "Clasificacion From ClienteHistorial H, Clasificacion C Where H.ClasificacionID "
                           "= C.ClasificacionID And H.ClienteID = ") +
                runtime::TextoDe(cliente.Fields(QStringLiteral("ClienteID")).Value()),
            Common::DE().CN, store::adOpenStatic, store::adLockReadOnly);
    fgDetalle->Vaciar();
    while (!rs.Eof()) {
        const auto texto = [&](const char* campo) {
            return runtime::TextoDe(rs.Fields(QLatin1String(campo)).Value());
        };
        fgDetalle->AddItem(
            QStringList{texto("Fecha"), texto("Descripcion"),
                        runtime::Format(rs.Fields(QStringLiteral("Valor")).Value(), QStringLiteral("#0.00")),
                        texto("Clasificacion"), texto("ClasificacionID")}
                .join(QLatin1Char('\t')));
        rs.MoveNext();
    }
    if (fgDetalle->Rows() >= 3) fgDetalle->RemoveItem(1);
}

void frmCliente::cmdBoton_Click(int Index) {
    const QString boton = cmdBoton[Index]->text();
    store::Recordset& rs = *adoCliente->Recordset();
    if (boton == QLatin1String("Buscar")) {
        Buscar();
    } else if (boton == QLatin1String("Agregar")) {
        // The grid stays as it is: a new client starts with the lines shown, and saves them as its own.
        Agregando = true;
        Editar(QStringLiteral("Agregar nuevo registro"));
        rs.AddNew();
        if (Common::ClienteAbrir == 0) txtNombres->setFocus();
    } else if (boton == QLatin1String("Modificar")) {
        Agregando = false;
        Editar(QStringLiteral("Modificar registro actual"));
    } else if (boton == QLatin1String("Eliminar")) {
        EliminarCliente();
    } else if (boton == QLatin1String("Imprimir")) {
        // Nothing is printed.
    } else if (boton == QLatin1String("Guardar")) {
        if (!GuardarCliente()) return;
        // Opened for one client, the screen goes once it is saved; the commit follows all the same.
        if (Common::ClienteAbrir > 0) Unload();
        Common::DE().CN.CommitTrans();
        Common::TransaccionActiva = 0;
        TerminarEdicion();
    } else if (boton == QLatin1String("Cancelar")) {
        rs.CancelUpdate();
        // Opened for one client, the screen just goes: the transaction stays as the caller has it.
        if (Common::ClienteAbrir > 0) {
            Common::ClienteAbrir = 0;
            Unload();
            return;
        }
        Common::DE().CN.RollbackTrans();
        Common::TransaccionActiva = 0;
        TerminarEdicion();
    }
}

// Editing joins the shared transaction when a screen has one open, and begins one otherwise.
void frmCliente::Editar(const QString& estado) {
    Editando = true;
    ModoEdicion(estado);
    adoCliente->Recordset()->setActiveConnection(Common::DE().CN);
    if (Common::TransaccionActiva < 1) Common::TransaccionActiva = Common::DE().CN.BeginTrans();
}

void frmCliente::TerminarEdicion() {
    Editando = false;
    ModoConsulta();
}

// Closing clears the client to open; nothing is asked, and a transaction open stays open.
void frmCliente::cmdClose_Click() {
    Common::ClienteAbrir = 0;
    Unload();
}

// The code follows the surname's first letter each time the surname is left, also under "Modificar".
void frmCliente::txtApellidos_Validate() {
    txtCodigoLetra->setText(txtApellidos->Text().left(1));
    txtCodigoNumero->setText(QString::number(SiguienteCodigo(txtCodigoLetra->Text())));
}

void frmCliente::txtCedulaRegistro_Validate() {
    txtCedulaExtendida->setText(ExtendidaSegunRegistro(txtCedulaRegistro->Text()));
}

// The next number of the surname's letter (read from the surname itself, not from the argument).
long frmCliente::SiguienteCodigo(const QString& letra) {
    Q_UNUSED(letra);
    store::Recordset rs;
    rs.Open(QStringLiteral("Select Max(CodigoNumero) as Cuenta From Cliente Where CodigoLetra = '") +
                txtApellidos->Text().left(1) + QStringLiteral("' Group By CodigoLetra"),
            Common::DE().CN, store::adOpenStatic, store::adLockReadOnly);
    if (rs.RecordCount() > 0)
        return static_cast<long>(runtime::ValNulo(rs.Fields(QStringLiteral("Cuenta")).Value())) + 1;
    return 1;
}

// The row, then its history written again: the delete of the client's lines and one insert per
// line with a date. Nothing here catches a failure.
bool frmCliente::GuardarCliente() {
    txtFechaNacimiento->setText(runtime::TextoFecha(txtFecha->Value()));
    store::Recordset& rs = *adoCliente->Recordset();
    rs.Update();
    rs.Resync();
    const QString clave = runtime::TextoDe(rs.Fields(QStringLiteral("ClienteID")).Value());
    Common::DE().CN.Execute(QStringLiteral("Delete From ClienteHistorial Where ClienteID = ") + clave);
    for (int fila = 1; fila < fgDetalle->Rows(); ++fila) {
        if (fgDetalle->TextMatrix(fila, 0).isEmpty()) continue;
        Common::DE().CN.Execute(QStringLiteral("Insert Into ClienteHistorial ") +
                                QStringLiteral("(ClienteID, Fecha, Descripcion, Valor, ClasificacionID) ") +
                                QStringLiteral("VALUES ") + QStringLiteral("(") + clave +
                                QStringLiteral(",'") + fgDetalle->TextMatrix(fila, 0) +
                                QStringLiteral("','") + fgDetalle->TextMatrix(fila, 1) +
                                QStringLiteral("',") + fgDetalle->TextMatrix(fila, 2) + QStringLiteral(",") +
                                fgDetalle->TextMatrix(fila, 4) + QStringLiteral(")"));
    }
    return true;
}

void frmCliente::EliminarCliente() {
    EliminarPersona(
        *this, lblTitulo->text(), *adoCliente,
        {QStringLiteral("Cliente"), QStringLiteral("ClienteID"), QStringLiteral("Desactivar este cliente")});
}

void frmCliente::Buscar() {
    if (shell::Buscar(*this, QStringLiteral("Select * From vwBuscaCliente"),
                      QStringLiteral("Busca clientes"))) {
        adoCliente->setRecordSource(kUnCliente + runtime::TextoDe(Common::Parametros(1)));
        adoCliente->Refresh();
        CargarHistorial();
    }
}

// The history dialog, where it stands by design.
void frmCliente::fgDetalle_Historial() {
    Common::Pantalla<frmHistorial>().ShowModal();
}

} // namespace credito
