#include "cash/BloquePago.h"

#include "runtime/Conversion.h"
#include "runtime/Formato.h"
#include "shell/common/Common.h"
#include "shell/common/Twips.h"
#include "shell/controles/EnlaceDatos.h"
#include "shell/dialogos/Dialogos.h"
#include "shell/marco/Marco.h"
#include "store/Recordset.h"

using namespace shell;

namespace caja {

namespace {

const QString kImporte = QStringLiteral("#0.00");
// The two refusals of a bank operation bear this title on every money screen.
const QString kTituloBanco = QStringLiteral("Recibos");

// Layout of the panel, in twips: figures to type at the left, figures worked out at the right.
constexpr double kRotuloIzquierda = 120, kCampoIzquierda = 1140, kAnchoCampo = 1800;
constexpr double kRotuloDerecha = 3120, kCifraDerecha = 4290, kAnchoCifra = 990;
constexpr double kFila[] = {120, 480, 840, 1200};

QLabel* rotulo(QWidget* panel, const QString& texto, double left, double top, double ancho) {
    auto* l = new QLabel(texto, panel);
    colocar(l, left, top + 30, ancho, 255);
    return l;
}

QLabel* cifra(QWidget* panel, const QString& nombre, double top) {
    auto* l = new QLabel(QStringLiteral("0.00"), panel);
    l->setObjectName(nombre);
    l->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    l->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    l->setMargin(2);
    QFont negrita = l->font();
    negrita.setBold(true);
    l->setFont(negrita);
    colocar(l, kCifraDerecha, top, kAnchoCifra, 285);
    return l;
}

template <class T> T* campo(QWidget* panel, const QString& nombre, const QString& texto, double top) {
    rotulo(panel, texto, kRotuloIzquierda, top, kCampoIzquierda - kRotuloIzquierda - 40);
    auto* c = new T(panel);
    c->setObjectName(nombre);
    colocar(c, kCampoIzquierda, top, kAnchoCampo, 285);
    return c;
}

} // namespace

BloquePago::BloquePago(Marco& pantalla, QWidget* padre, double left, double top, store::Adodc* documento,
                       QLabel* lblTotal)
    : QFrame(padre)
    , pantalla_(pantalla)
    , lblTotal_(lblTotal) {
    setObjectName(QStringLiteral("panBanco"));
    setFrameShape(QFrame::StyledPanel);
    colocar(this, left, top, 5400, 1605);
    adoBancos = new store::Adodc(this);
    adoBancos->setObjectName(QStringLiteral("adoBancos"));
    adoBancos->setRecordSource(QStringLiteral("Select * From Banco"));

    // Created in the order Tab goes through them.
    txtEfectivo =
        campo<CajaTexto>(this, QStringLiteral("txtEfectivo"), QStringLiteral("Efectivo:"), kFila[0]);
    dacBancos = campo<ComboDatos>(this, QStringLiteral("dacBancos"), QStringLiteral("Banco:"), kFila[1]);
    txtNoCheque =
        campo<CajaTexto>(this, QStringLiteral("txtNoCheque"), QStringLiteral("No. Cheque:"), kFila[2]);
    txtChequeValor =
        campo<CajaTexto>(this, QStringLiteral("txtChequeValor"), QStringLiteral("Cheque Q."), kFila[3]);
    for (CajaTexto* c : {txtEfectivo, txtChequeValor})
        c->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    dacBancos->setRowSource(adoBancos);
    dacBancos->setListField(QStringLiteral("Nombre"));
    dacBancos->setBoundColumn(QStringLiteral("BancoID"));

    rotulo(this, QStringLiteral("Total recibido:"), kRotuloDerecha, kFila[0], kCifraDerecha - kRotuloDerecha);
    lblTotalRecibido = cifra(this, QStringLiteral("lblTotalRecibido"), kFila[0]);
    rotulo(this, QStringLiteral("Vuelto:"), kRotuloDerecha, kFila[1], kCifraDerecha - kRotuloDerecha);
    lblVuelto = cifra(this, QStringLiteral("lblVuelto"), kFila[1]);

    enlazar(txtEfectivo, documento, QStringLiteral("Efectivo"), QStringLiteral("0.00"));
    enlazar(txtNoCheque, documento, QStringLiteral("ChequeNumero"));
    enlazar(txtChequeValor, documento, QStringLiteral("ChequeValor"), QStringLiteral("0.00"));
    enlazar(lblVuelto, documento, QStringLiteral("Vuelto"), QStringLiteral("0.00"));

    alCambiarRecibido = [this] { CalcularVuelto(); };
    txtEfectivo->alValidar([this] { txtEfectivo_Validate(); });
    txtChequeValor->alValidar([this] { txtChequeValor_Validate(); });
}

void BloquePago::Cargar() {
    adoBancos->Refresh();
    PintarPanel(this);
}

void BloquePago::txtEfectivo_Validate() {
    txtEfectivo->setText(runtime::Format(runtime::Val(txtEfectivo->Text()), kImporte));
    SumarRecibido();
    alCambiarRecibido();
}

void BloquePago::txtChequeValor_Validate() {
    txtChequeValor->setText(runtime::Format(runtime::Val(txtChequeValor->Text()), kImporte));
    SumarRecibido();
    alCambiarRecibido();
}

void BloquePago::SumarRecibido() {
    lblTotalRecibido->setText(
        runtime::Format(runtime::Val(txtEfectivo->Text()) + runtime::Val(txtChequeValor->Text()), kImporte));
}

void BloquePago::CalcularVuelto() {
    lblVuelto->setText(runtime::Format(runtime::Val(txtChequeValor->Text()) +
                                           runtime::Val(txtEfectivo->Text()) -
                                           runtime::Val(lblTotal_->text()),
                                       kImporte));
}

void BloquePago::MostrarBanco(const QVariant& bancoID) {
    dacBancos->setBoundText(runtime::TextoDe(runtime::ValNulo(bancoID)));
}

void BloquePago::SinBanco() {
    dacBancos->setBoundText(QString());
}

bool BloquePago::Validar() {
    const bool hayBanco = !dacBancos->BoundText().isEmpty();
    const bool hayNumero = !txtNoCheque->Text().trimmed().isEmpty();
    if (runtime::Val(txtChequeValor->Text()) > 0) {
        if (!hayNumero || !hayBanco) {
            Common::MostrarMensaje(
                kTituloBanco,
                QStringLiteral("Al indicar un valor de cheque tambien debe indicar el numero de "
                               "cheque y el banco al que pertenece."),
                pantalla_);
            return false;
        }
    } else if (hayNumero || hayBanco) {
        Common::MostrarMensaje(
            kTituloBanco,
            QStringLiteral("Ha indicado una operación bancaria pero no esta completa. Por favor "
                           "revise sus datos y trate de nuevo."),
            pantalla_);
        return false;
    }
    if (runtime::Val(lblTotal_->text()) > runtime::Val(lblTotalRecibido->text())) {
        Common::MostrarMensaje(pantalla_.lblTitulo->text(),
                               QStringLiteral("El monto total recibido es menor que el total del recibo."),
                               pantalla_);
        return false;
    }
    return true;
}

void BloquePago::EscribirEnFila(store::Recordset& fila) {
    const QString banco = dacBancos->BoundText();
    fila.Fields(QStringLiteral("BancoID")) = banco.isEmpty() ? QVariant(0) : QVariant(banco);
    fila.Fields(QStringLiteral("Vuelto")) = runtime::Val(lblVuelto->text());
}

} // namespace caja
