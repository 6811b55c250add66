#include "catalogs/frmArticulo.h"

#include "runtime/Conversion.h"
#include "runtime/Formato.h"
#include "shell/busqueda/frmBusca.h"
#include "shell/common/Common.h"
#include "shell/common/Twips.h"
#include "shell/controles/CamposDeTexto.h"
#include "shell/controles/EnlaceDatos.h"

using namespace shell;

namespace catalogos {

namespace {

QLabel* precio(QWidget* padre, const QString& nombre, double left, double top) {
    auto* l = new QLabel(QStringLiteral("0.00"), padre);
    l->setObjectName(nombre);
    l->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    l->setStyleSheet(QStringLiteral("color: rgb(255, 0, 0); font-weight: bold;"));
    colocar(l, left, top, 1200, 255);
    return l;
}

// Price of a margin: cost x (1 + percentage / 100) when the row's percentage is above 0, else cost + amount.
QString textoPrecio(bool porPorcentaje, double costo, const QString& porcentaje, const QString& valor) {
    const double p =
        porPorcentaje ? (runtime::Val(porcentaje) / 100 + 1) * costo : runtime::Val(valor) + costo;
    return runtime::Format(p, QStringLiteral("#0.00"));
}

// Five buttons with indexes of their own: "Guardar" stands where "Buscar" stands, "Cancelar" where
// "Modificar" stands.
const QList<BotonDeBarra> kBarraArticulo = {{0, QStringLiteral("Buscar"), 120},
                                            {1, QStringLiteral("Modificar"), 1440},
                                            {2, QStringLiteral("Imprimir"), 2760},
                                            {3, QStringLiteral("Guardar"), 120},
                                            {4, QStringLiteral("Cancelar"), 1440}};

} // namespace

frmArticulo::frmArticulo()
    : PantallaRegistro(QStringLiteral("Artículos"), 7200, 4700, kBarraArticulo) {
    setObjectName(QStringLiteral("frmArticulo"));
    adoArticulo = new store::Adodc(this);
    adoArticulo->setObjectName(QStringLiteral("adoArticulo"));
    adoArticulo->setRecordSource(QStringLiteral("Select * From Articulo Where ArticuloID <0"));

    txtArticuloID = campo<CajaTexto>(QStringLiteral("txtArticuloID"), 0, 0, 0);
    txtArticuloID->hide();
    etiqueta(QStringLiteral("Nombre:"), 120, 150);
    txtNombre = campo<CajaTexto>(QStringLiteral("txtNombre"), 960, 120, 5640);
    etiqueta(QStringLiteral("Modelo:"), 120, 510);
    txtModelo = campo<CajaTexto>(QStringLiteral("txtModelo"), 960, 480, 2880);
    etiqueta(QStringLiteral("Color:"), 4000, 510, 600);
    txtColor = campo<CajaTexto>(QStringLiteral("txtColor"), 4680, 480, 1920);
    etiqueta(QStringLiteral("Costo:"), 120, 870);
    txtCosto = campo<CajaTexto>(QStringLiteral("txtCosto"), 960, 840, 1200);
    txtCosto->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    chkActivo = campo<QCheckBox>(QStringLiteral("chkActivo"), 2400, 840, 1000);
    chkActivo->setText(QStringLiteral("Activo"));
    etiqueta(QStringLiteral("Existencia:"), 4000, 870, 900);
    lblExistencia = precio(fraMain, QStringLiteral("lblExistencia"), 5400, 870);

    auto* ganancia = campo<QGroupBox>(QStringLiteral("fraMargen"), 120, 1260, 6480, 1620);
    ganancia->setTitle(QStringLiteral(" Margen de ganancia "));
    auto* contado = margen(QStringLiteral("Contado:"), 120, optContado, QStringLiteral("optContado"),
                           txtContadoPorcentaje, QStringLiteral("txtContadoPorcentaje"), txtContadoValor,
                           QStringLiteral("txtContadoValor"));
    auto* credito = margen(QStringLiteral("Crédito:"), 3300, optCredito, QStringLiteral("optCredito"),
                           txtCreditoPorcentaje, QStringLiteral("txtCreditoPorcentaje"), txtCreditoValor,
                           QStringLiteral("txtCreditoValor"));
    contado->setParent(ganancia);
    credito->setParent(ganancia);
    colocar(contado, 120, 300, 3000, 1200);
    colocar(credito, 3300, 300, 3000, 1200);

    etiqueta(QStringLiteral("Precio al contado:"), 120, 3030, 1600);
    lblContadoPrecio = precio(fraMain, QStringLiteral("lblContadoPrecio"), 1800, 3030);
    etiqueta(QStringLiteral("Precio al crédito:"), 3420, 3030, 1600);
    lblCreditoPrecio = precio(fraMain, QStringLiteral("lblCreditoPrecio"), 5100, 3030);

    enlazar(txtArticuloID, adoArticulo, QStringLiteral("ArticuloID"));
    enlazar(txtNombre, adoArticulo, QStringLiteral("Nombre"));
    enlazar(txtModelo, adoArticulo, QStringLiteral("Modelo"));
    enlazar(txtColor, adoArticulo, QStringLiteral("Color"));
    enlazar(txtCosto, adoArticulo, QStringLiteral("Costo"));
    enlazar(chkActivo, adoArticulo, QStringLiteral("Activo"));
    enlazar(txtContadoPorcentaje, adoArticulo, QStringLiteral("ContadoPorcentaje"));
    enlazar(txtContadoValor, adoArticulo, QStringLiteral("ContadoValor"));
    enlazar(txtCreditoPorcentaje, adoArticulo, QStringLiteral("CreditoPorcentaje"));
    enlazar(txtCreditoValor, adoArticulo, QStringLiteral("CreditoValor"));
}

// One margin's frame: its two options over the percentage box (left) and the amount box (right).
QGroupBox* frmArticulo::margen(const QString& titulo, double left, ArregloDeOpciones*& opciones,
                               const QString& nombreOpcion, CajaTexto*& porcentaje,
                               const QString& nombrePorcentaje, CajaTexto*& valor,
                               const QString& nombreValor) {
    auto* marco = new QGroupBox(titulo, fraMain);
    marco->setObjectName(QStringLiteral("fra") + titulo.left(titulo.size() - 1));
    colocar(marco, left, 0, 3000, 1200);
    opciones = new ArregloDeOpciones(nombreOpcion, this);
    opciones->agregar(0, QStringLiteral("Porcentaje"), marco, 120, 300, 1300);
    opciones->agregar(1, QStringLiteral("Valor"), marco, 1680, 300, 1300);
    porcentaje = new CajaTexto(marco);
    porcentaje->setObjectName(nombrePorcentaje);
    valor = new CajaTexto(marco);
    valor->setObjectName(nombreValor);
    colocar(porcentaje, 120, 660, 1200, 285);
    colocar(valor, 1680, 660, 1200, 285);
    for (CajaTexto* caja : {porcentaje, valor}) {
        caja->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        SeleccionarTodoAlEntrar(caja);
        NumeroAlSalir(caja);
    }
    if (nombreOpcion == QLatin1String("optContado"))
        opciones->alHacerClic([this](int Index) { optContado_Click(Index); });
    else
        opciones->alHacerClic([this](int Index) { optCredito_Click(Index); });
    opciones->Seleccionar(0);
    return marco;
}

void frmArticulo::Form_Load() {
    adoArticulo->Refresh();
    AjustarPantalla();
    MostrarPrecios();
    Common::LineaNueva = false;
}

void frmArticulo::optContado_Click(int Index) {
    txtContadoPorcentaje->setVisible(Index == 0);
    txtContadoValor->setVisible(Index == 1);
}

void frmArticulo::optCredito_Click(int Index) {
    txtCreditoPorcentaje->setVisible(Index == 0);
    txtCreditoValor->setVisible(Index == 1);
}

// Which form rules follows from the stored percentage; the prices from what the boxes show.
void frmArticulo::MostrarPrecios() {
    store::Recordset& rs = *adoArticulo->Recordset();
    if (rs.Eof() && rs.Bof()) return;
    const double C = runtime::Val(txtCosto->Text());
    const bool contadoPorPorcentaje =
        runtime::ValNulo(rs.Fields(QStringLiteral("ContadoPorcentaje")).Value()) > 0;
    optContado->Seleccionar(contadoPorPorcentaje ? 0 : 1);
    lblContadoPrecio->setText(
        textoPrecio(contadoPorPorcentaje, C, txtContadoPorcentaje->Text(), txtContadoValor->Text()));
    const bool creditoPorPorcentaje =
        runtime::ValNulo(rs.Fields(QStringLiteral("CreditoPorcentaje")).Value()) > 0;
    optCredito->Seleccionar(creditoPorPorcentaje ? 0 : 1);
    lblCreditoPrecio->setText(
        textoPrecio(creditoPorPorcentaje, C, txtCreditoPorcentaje->Text(), txtCreditoValor->Text()));
}

void frmArticulo::cmdBoton_Click(int Index) {
    const QString boton = cmdBoton[Index]->text();
    store::Recordset& rs = *adoArticulo->Recordset();
    if (boton == QLatin1String("Buscar")) {
        Buscar();
    } else if (boton == QLatin1String("Agregar")) {
        // No button carries this caption: articles come into being with the goods.
        rs.AddNew();
        Agregando = true;
        ModoEdicion(QStringLiteral("Agregar nuevo registro"));
    } else if (boton == QLatin1String("Modificar")) {
        Agregando = false;
        ModoEdicion(QStringLiteral("Modificar registro actual"));
    } else if (boton == QLatin1String("Eliminar")) {
        // Unreachable as well: an article is never deleted here.
        rs.Delete();
        adoArticulo->Refresh();
    } else if (boton == QLatin1String("Imprimir")) {
        // Nothing is printed.
    } else if (boton == QLatin1String("Guardar")) {
        rs.Update();
        ModoConsulta();
    } else if (boton == QLatin1String("Cancelar")) {
        // Deliberately no CancelUpdate: what was typed stays until the next search.
        ModoConsulta();
    }
}

void frmArticulo::Buscar() {
    if (shell::Buscar(*this, QStringLiteral("Select * From vwBuscaArticulo"),
                      QStringLiteral("Busca articulos"))) {
        adoArticulo->setRecordSource(QStringLiteral("Select * From Articulo Where ArticuloID = %1")
                                         .arg(runtime::TextoDe(Common::Parametros(1))));
        adoArticulo->Refresh();
        lblExistencia->setText(
            runtime::Format(runtime::Val(runtime::TextoDe(Common::Parametros(10))), QStringLiteral("#0")));
        MostrarPrecios();
    }
}

} // namespace catalogos
