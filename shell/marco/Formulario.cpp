#include "shell/marco/Formulario.h"

#include "shell/common/Common.h"
#include "shell/common/Twips.h"
#include "shell/dialogos/Dialogos.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPushButton>

namespace shell {

Formulario::Formulario(QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::FramelessWindowHint) {
    setAttribute(Qt::WA_DeleteOnClose, false);
    qApp->installEventFilter(this);
}

double Formulario::Left() const {
    return twips(x());
}
double Formulario::Top() const {
    return twips(y());
}
double Formulario::Width() const {
    return twips(width());
}
double Formulario::Height() const {
    return twips(height());
}
void Formulario::setLeft(double t) {
    move(px(t), y());
}
void Formulario::setTop(double t) {
    move(x(), px(t));
}
void Formulario::setWidth(double t) {
    resize(px(t), height());
}
void Formulario::setHeight(double t) {
    resize(width(), px(t));
}
void Formulario::Move(double left, double top) {
    move(px(left), px(top));
}

void Formulario::cargar() {
    if (cargado_) return;
    cargado_ = true;
    Common::Manejar([this] { Form_Load(); });
}

void Formulario::Show() {
    cargar();
    show();
    traerAlFrente();
}

void Formulario::traerAlFrente() {
    // The offscreen platform of the tests has no stacking order to change.
    if (QGuiApplication::platformName() != QLatin1String("offscreen")) raise();
    activateWindow();
}

void Formulario::ShowModal() {
    cargar();
    if (isVisible() && !isModal()) {
        if (tieneCambiosPendientes()) {
            Common::MostrarMensaje(windowTitle(),
                                   QStringLiteral("Esta pantalla ya está abierta con cambios sin guardar. "
                                                  "Termínelos (Guardar o Cancelar) y vuelva a intentarlo."),
                                   *this);
            return;
        }
        hide(); // a window takes its modality only when it is shown
    }
    Common::MostrarModal(*this);
}

bool Formulario::Unload() {
    if (descargado_) return true;
    bool cancelar = false;
    Common::Manejar([&] { Form_QueryUnload(cancelar); });
    if (cancelar) return false;
    descargado_ = true;
    hide();
    Q_EMIT alDescargar();
    deleteLater();
    return true;
}

void Formulario::closeEvent(QCloseEvent* evento) {
    // A window-manager close (Alt+F4) goes the way of the screen's own close logic.
    if (descargado_ || Unload())
        evento->accept();
    else
        evento->ignore();
}

// Enter on a focused push button presses it, on every screen. With KeyPreview, Enter anywhere else
// (a check box or an option button too, which Enter must not toggle) is swallowed and moves on as
// Tab does.
bool Formulario::eventFilter(QObject* objeto, QEvent* evento) {
    if (descargado_) return false;
    // A button pressed by its Alt+letter shortcut takes the focus first, as a click does, so that the
    // field being left runs its validate step (and writes its bound value) before the click.
    if (evento->type() == QEvent::Shortcut) {
        auto* boton = qobject_cast<QAbstractButton*>(objeto);
        if (boton && boton->window() == this && boton->focusPolicy() != Qt::NoFocus)
            boton->setFocus(Qt::ShortcutFocusReason);
        return false;
    }
    if (evento->type() != QEvent::KeyPress) return false;
    auto* control = qobject_cast<QWidget*>(objeto);
    if (!control || control->window() != this || control == this) return false;
    const auto* tecla = static_cast<QKeyEvent*>(evento);
    if (tecla->key() != Qt::Key_Return && tecla->key() != Qt::Key_Enter) return false;
    if (auto* boton = qobject_cast<QPushButton*>(control)) {
        boton->click();
        return true;
    }
    if (!keyPreview_) return false;
    focusNextChild();
    return true;
}

} // namespace shell
