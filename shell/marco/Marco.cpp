#include "shell/marco/Marco.h"

#include "shell/common/Common.h"
#include "shell/common/Twips.h"
#include "shell/marco/Iconos.h"

namespace shell {

const QColor Marco::kColorBarra(216, 212, 208);

namespace {

constexpr double kAltoTitulo = 330;
constexpr double kAltoBarra = 615;
constexpr double kAnchoEstado = 2400;

} // namespace

void PintarPanel(QWidget* control) {
    QPalette p = control->palette();
    p.setColor(QPalette::Window, Marco::kColorBarra);
    p.setColor(QPalette::Button, Marco::kColorBarra);
    control->setPalette(p);
    control->setAutoFillBackground(true);
}

Marco::Marco(const QString& titulo, double ancho, double alto, QWidget* parent)
    : Formulario(parent) {
    resize(px(ancho), px(alto));
    setWindowTitle(titulo.trimmed());

    lblTitulo = new TiraTitulo(this);
    lblTitulo->setObjectName(QStringLiteral("lblTitulo"));
    lblTitulo->setText(titulo);
    colocar(lblTitulo, 0, 0, ancho, kAltoTitulo);

    cmdClose = new QPushButton(this);
    cmdClose->setObjectName(QStringLiteral("cmdClose"));
    cmdClose->setIcon(Iconos::para(QStringLiteral("Cerrar")));
    cmdClose->setFocusPolicy(Qt::NoFocus);
    colocar(cmdClose, ancho - kAltoTitulo, 0, kAltoTitulo, kAltoTitulo);
    connect(cmdClose, &QPushButton::clicked, this,
            [this] { Common::Manejar([this] { cmdClose_Click(); }); });

    fraMain = new QFrame(this);
    fraMain->setObjectName(QStringLiteral("fraMain"));
    controlesDeEdicion_ << fraMain;
    fraMain->setFrameShape(QFrame::StyledPanel);
    // While browsing the frame is disabled so that its fields take no input, but what they show
    // stays as readable as when editing.
    QPalette legible = fraMain->palette();
    for (const auto rol : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        legible.setColor(QPalette::Disabled, rol, legible.color(QPalette::Active, rol));
    fraMain->setPalette(legible);

    fraBarra = new QFrame(this);
    fraBarra->setObjectName(QStringLiteral("fraBarra"));
    fraBarra->setFrameShape(QFrame::StyledPanel);
    colocar(fraBarra, 0, alto - kAltoBarra - 20, ancho - 20, kAltoBarra);

    lblEstado = new QLabel(fraBarra);
    lblEstado->setObjectName(QStringLiteral("lblEstado"));
    lblEstado->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    lblEstado->setStyleSheet(QStringLiteral("color: rgb(128, 0, 0); font-weight: bold;"));
    colocar(lblEstado, ancho - kAnchoEstado - 170, 180, kAnchoEstado, 255);
    lblEstado->hide();

    Common::ResaltarTitulo(*this);
}

void Marco::AjustarPantalla() {
    AjustarTituloYBarra();
    lblEstado->move(px(anchoTw(fraBarra) - anchoTw(lblEstado) - 150), lblEstado->y());
    if (colocarFraMain_) {
        const double arriba = altoTw(lblTitulo) + 120;
        colocar(fraMain, 120, arriba, Width() - 270, topTw(fraBarra) - arriba - 120);
    }
    HabilitarEdicion(false);
    PintarPanel(lblEstado);
}

void Marco::HabilitarEdicion(bool habilitar) {
    for (QWidget* c : controlesDeEdicion_)
        c->setEnabled(habilitar);
}

void Marco::AjustarTituloYBarra() {
    const double W = Width(), H = Height();
    lblTitulo->setText(lblTitulo->text() + QLatin1Char(' '));
    lblTitulo->resize(px(W - anchoTw(cmdClose)), lblTitulo->height());
    cmdClose->resize(cmdClose->width(), lblTitulo->height());
    cmdClose->move(px(W - anchoTw(cmdClose)), cmdClose->y());
    colocar(fraBarra, 0, H - altoTw(fraBarra) - 20, W - 20, altoTw(fraBarra));
    PintarPanel(fraBarra);
    for (QPushButton* b : cmdBoton)
        if (b) PintarPanel(b);
}

QPushButton* Marco::crearBoton(int indice, const QString& caption, double left, bool visible, double ancho) {
    auto* boton = new QPushButton(caption, fraBarra);
    boton->setObjectName(QStringLiteral("cmdBoton(%1)").arg(indice));
    boton->setIcon(Iconos::para(caption));
    colocar(boton, left, 120, ancho, 375);
    boton->setVisible(visible);
    while (cmdBoton.size() <= indice)
        cmdBoton << nullptr;
    cmdBoton[indice] = boton;
    connect(boton, &QPushButton::clicked, this,
            [this, indice] { Common::Manejar([this, indice] { cmdBoton_Click(indice); }); });
    return boton;
}

QLabel* Marco::etiquetaEn(QWidget* padre, const QString& texto, double left, double top, double ancho) {
    auto* l = new QLabel(texto, padre);
    l->setObjectName(QStringLiteral("lblFieldLabel(%1)").arg(etiquetas_++));
    colocarEn(l, left, top, ancho, 255);
    return l;
}

void Marco::colocarEn(QWidget* c, double left, double top, double ancho, double alto) {
    colocar(c, left, top, ancho, alto);
}

} // namespace shell
