#include "goods/frmNotaIngresoArticulo.h"

#include "runtime/Conversion.h"
#include "runtime/Formato.h"
#include "shell/busqueda/frmBusca.h"
#include "shell/common/Common.h"
#include "shell/common/Twips.h"
#include "shell/controles/CamposDeTexto.h"
#include "shell/dialogos/Dialogos.h"

using namespace shell;

namespace mercaderia {

namespace {

const QString kImporte = QStringLiteral("#0.00");
const QString kCero = QStringLiteral("0.00");

QVariant parametro(int i) {
    return i <= Common::Parametros.UBound() ? Common::Parametros(i) : QVariant();
}

QString importe(int i) {
    return runtime::Format(runtime::Val(runtime::TextoDe(parametro(i))), kImporte);
}

CajaTexto* cifra(QWidget* padre, const QString& nombre, double left, double top, const QString& texto = {}) {
    auto* caja = new CajaTexto(padre);
    caja->setObjectName(nombre);
    caja->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    caja->setText(texto);
    colocar(caja, left, top, 1200, 285);
    SeleccionarTodoAlEntrar(caja);
    NumeroAlSalir(caja);
    return caja;
}

QLabel* rotulo(QWidget* padre, const QString& texto, double left, double top, double ancho) {
    auto* l = new QLabel(texto, padre);
    colocar(l, left, top, ancho, 255);
    return l;
}

} // namespace

frmNotaIngresoArticulo::frmNotaIngresoArticulo()
    : DialogoDeLinea(QStringLiteral("Artículos"), 6720, 5900) {
    setObjectName(QStringLiteral("frmNotaIngresoArticulo"));

    fraAction = campo<QFrame>(QStringLiteral("fraAction"), 120, 90, 6210, 615);
    fraAction->setFrameShape(QFrame::StyledPanel);
    for (const auto& [indice, caption, left] :
         {std::tuple{2, QStringLiteral("Nuevo"), 120.0}, std::tuple{3, QStringLiteral("Buscar"), 1440.0}}) {
        QPushButton* b = crearBoton(indice, caption, left);
        b->setParent(fraAction);
        colocar(b, left, 120, 1200, 375);
        b->show();
    }

    fraDatos = campo<QGroupBox>(QStringLiteral("fraDatos"), 120, 780, 6210, 900);
    etiquetaEn(fraDatos, QStringLiteral("Nombre:"), 120, 210);
    txtNombre = campoEn<CajaTexto>(fraDatos, QStringLiteral("txtNombre"), 960, 180, 5100);
    etiquetaEn(fraDatos, QStringLiteral("Modelo:"), 120, 540);
    txtModelo = campoEn<CajaTexto>(fraDatos, QStringLiteral("txtModelo"), 960, 510, 2400);
    etiquetaEn(fraDatos, QStringLiteral("Color:"), 3480, 540, 600);
    txtColor = campoEn<CajaTexto>(fraDatos, QStringLiteral("txtColor"), 4140, 510, 1920);

    auto* valores = campo<QGroupBox>(QStringLiteral("fraValores"), 120, 1770, 6210, 720);
    valores->setTitle(QStringLiteral(" Valores de ingreso "));
    etiquetaEn(valores, QStringLiteral("Cantidad:"), 120, 330, 900);
    txtCantidad = cifra(valores, QStringLiteral("txtCantidad"), 1080, 300, kCero);
    etiquetaEn(valores, QStringLiteral("Costo:"), 3000, 330, 700);
    txtCosto = cifra(valores, QStringLiteral("txtCosto"), 3780, 300, kCero);

    fraGanancia = campo<QGroupBox>(QStringLiteral("fraGanancia"), 120, 2580, 6210, 2010);
    fraGanancia->setTitle(QStringLiteral(" Margen de ganancia "));
    frame0 =
        margen(0, QStringLiteral("Contado:"), 120, optContado, QStringLiteral("Contado"),
               txtContadoPorcentaje, txtContadoValor, lblContadoPrecio, QStringLiteral("Precio al contado:"));
    frame1 =
        margen(1, QStringLiteral("Crédito:"), 3150, optCredito, QStringLiteral("Credito"),
               txtCreditoPorcentaje, txtCreditoValor, lblCreditoPrecio, QStringLiteral("Precio al crédito:"));
    optContado->alHacerClic([this](int Index) { optContado_Click(Index); });
    optCredito->alHacerClic([this](int Index) { optCredito_Click(Index); });

    crearBoton(0, QStringLiteral("&Aceptar"), 120);
    crearBoton(1, QStringLiteral("&Cancelar"), 1440);

    cajas_ = {txtNombre,       txtModelo,
              txtColor,        txtCantidad,
              txtCosto,        txtContadoPorcentaje,
              txtContadoValor, txtCreditoPorcentaje,
              txtCreditoValor};
}

// One margin's frame in fraGanancia: its two options over the percentage and the amount, and under
// the frame the price, which nothing works out.
QGroupBox* frmNotaIngresoArticulo::margen(int indice, const QString& titulo, double left,
                                          ArregloDeOpciones*& opciones, const QString& nombre,
                                          CajaTexto*& porcentaje, CajaTexto*& valor, QLabel*& precio,
                                          const QString& rotuloPrecio) {
    auto* marco = new QGroupBox(titulo, fraGanancia);
    marco->setObjectName(QStringLiteral("frame(%1)").arg(indice));
    colocar(marco, left, 300, 2940, 1200);
    opciones = new ArregloDeOpciones(QStringLiteral("opt") + nombre, this);
    opciones->agregar(0, QStringLiteral("Porcentaje"), marco, 120, 300, 1300);
    opciones->agregar(1, QStringLiteral("Valor"), marco, 1560, 300, 1200);
    porcentaje = cifra(marco, QStringLiteral("txt%1Porcentaje").arg(nombre), 120, 660);
    valor = cifra(marco, QStringLiteral("txt%1Valor").arg(nombre), 1560, 660);
    rotulo(fraGanancia, rotuloPrecio, left, 1620, 1500);
    precio = new QLabel(kCero, fraGanancia);
    precio->setObjectName(QStringLiteral("lbl%1Precio").arg(nombre));
    precio->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    precio->setStyleSheet(QStringLiteral("color: rgb(255, 0, 0); font-weight: bold;"));
    colocar(precio, left + 1560, 1620, 1200, 255);
    return marco;
}

void frmNotaIngresoArticulo::Form_Load() {
    AjustarPantalla();
    if (Common::LineaNueva) {
        Common::Parametros.ReDim(1);
        fraGanancia->setEnabled(true);
    } else {
        MostrarLinea();
    }
}

void frmNotaIngresoArticulo::MostrarLinea() {
    txtNombre->setText(runtime::TextoDe(parametro(2)).trimmed());
    txtModelo->setText(runtime::TextoDe(parametro(3)).trimmed());
    txtColor->setText(runtime::TextoDe(parametro(4)).trimmed());
    txtCosto->setText(importe(5));
    txtContadoPorcentaje->setText(importe(6));
    txtContadoValor->setText(importe(7));
    txtCreditoPorcentaje->setText(importe(11));
    txtCreditoValor->setText(importe(12));
    // Never element 8: a changed line starts from no quantity, which "&Aceptar" refuses.
    txtCantidad->setText(kCero);
}

void frmNotaIngresoArticulo::optContado_Click(int Index) {
    txtContadoPorcentaje->setEnabled(Index == 0);
    txtContadoValor->setEnabled(Index == 1);
    if (frame0->isEnabled()) (Index == 0 ? txtContadoPorcentaje : txtContadoValor)->setFocus();
}

void frmNotaIngresoArticulo::optCredito_Click(int Index) {
    txtCreditoPorcentaje->setEnabled(Index == 0);
    txtCreditoValor->setEnabled(Index == 1);
    if (frame1->isEnabled()) (Index == 0 ? txtCreditoPorcentaje : txtCreditoValor)->setFocus();
}

void frmNotaIngresoArticulo::cmdBoton_Click(int Index) {
    const QString boton = cmdBoton[Index]->text();
    if (boton == QLatin1String("Nuevo"))
        Nuevo();
    else if (boton == QLatin1String("Buscar"))
        Buscar();
    else if (boton == QLatin1String("&Aceptar"))
        Aceptar();
    else if (boton == QLatin1String("&Cancelar"))
        Anular();
}

void frmNotaIngresoArticulo::VaciarCampos() {
    for (CajaTexto* caja : cajas_)
        caja->setText(QString());
}

// The percentage fields open, the amounts closed, as a click on "Porcentaje" would leave them; but no
// option is selected.
void frmNotaIngresoArticulo::Nuevo() {
    Common::Parametros.ReDim(1);
    fraDatos->setEnabled(true);
    fraGanancia->setEnabled(true);
    optContado_Click(0);
    optCredito_Click(0);
    VaciarCampos();
    txtNombre->setFocus();
}

// An article picked can't be changed here: only quantity and cost stay open.
void frmNotaIngresoArticulo::Buscar() {
    fraDatos->setEnabled(false);
    fraGanancia->setEnabled(false);
    VaciarCampos();
    if (!shell::Buscar(*this, QStringLiteral("Select * From vwBuscaArticulo"),
                       QStringLiteral("Busca articulos")))
        return;
    MostrarLinea();
    txtCantidad->setText(kCero);
    txtCantidad->setFocus();
}

void frmNotaIngresoArticulo::Aceptar() {
    const auto falla = [this](const QString& mensaje) {
        Common::MostrarMensaje(lblTitulo->text(), mensaje, *this);
    };
    const auto valor = [](const CajaTexto* caja) { return runtime::Val(caja->Text()); };
    if (txtNombre->Text().trimmed().isEmpty())
        return falla(QStringLiteral("Debe escribir al menos el nombre del artículo."));
    if (valor(txtCantidad) <= 0)
        return falla(QStringLiteral("La cantidad de artículos que ingresan no es válida."));
    if (valor(txtCosto) <= 0) return falla(QStringLiteral("El costo del artículo no es válido."));
    if (Common::Parametros.UBound() < 2) {
        // One margin above 0 among the four passes.
        if (valor(txtContadoPorcentaje) <= 0 && valor(txtContadoValor) <= 0 &&
            valor(txtCreditoPorcentaje) <= 0 && valor(txtCreditoValor) <= 0)
            return falla(
                QStringLiteral("Debe especificar el margen de ganancia estimado al contado y a crédito."));
        // After the test: a percentage whose option wasn't clicked is lost here.
        (optContado->Valor() == 0 ? txtContadoValor : txtContadoPorcentaje)->setText(kCero);
        (optCredito->Valor() == 0 ? txtCreditoValor : txtCreditoPorcentaje)->setText(kCero);
        Common::Parametros.ReDim(12);
        Common::Parametros(1) = QStringLiteral("*");
        Common::Parametros(2) = txtNombre->Text();
        Common::Parametros(3) = txtModelo->Text();
        Common::Parametros(4) = txtColor->Text();
    }
    Common::Parametros(5) = txtCosto->Text();
    Common::Parametros(6) = txtContadoPorcentaje->Text();
    Common::Parametros(7) = txtContadoValor->Text();
    Common::Parametros(8) = txtCantidad->Text();
    Common::Parametros(11) = txtCreditoPorcentaje->Text();
    Common::Parametros(12) = txtCreditoValor->Text();
    Unload();
}

} // namespace mercaderia
