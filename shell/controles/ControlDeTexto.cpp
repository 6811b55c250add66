#include "shell/controles/ControlDeTexto.h"

#include "shell/common/Common.h"

#include <QFocusEvent>
#include <QPalette>
#include <QWidget>

namespace shell {

ControlDeTexto::ControlDeTexto(QWidget* control)
    : control_(control)
    , vivo_(control) {
}

ControlDeTexto::~ControlDeTexto() = default;

QColor ControlDeTexto::BackColor() const {
    return control_->palette().color(QPalette::Base);
}

void ControlDeTexto::setBackColor(const QColor& color) {
    QPalette p = control_->palette();
    p.setColor(QPalette::Base, color);
    control_->setPalette(p);
}

QColor ControlDeTexto::ForeColor() const {
    return control_->palette().color(QPalette::Active, QPalette::Text);
}

// A disabled field keeps the platform's grey text, as it keeps its back colour.
void ControlDeTexto::setForeColor(const QColor& color) {
    QPalette p = control_->palette();
    p.setColor(QPalette::Active, QPalette::Text, color);
    p.setColor(QPalette::Inactive, QPalette::Text, color);
    control_->setPalette(p);
}

bool ControlDeTexto::TabStop() const {
    return control_->focusPolicy() == Qt::StrongFocus;
}

void ControlDeTexto::setTabStop(bool enOrden) {
    control_->setFocusPolicy(enOrden ? Qt::StrongFocus : Qt::ClickFocus);
}

void ControlDeTexto::alRecibirFoco(Manejador manejador) {
    recibirFoco_ << std::move(manejador);
}
void ControlDeTexto::alValidar(Manejador manejador) {
    validar_ << std::move(manejador);
}
void ControlDeTexto::alPresionarTecla(ManejadorKeyDown manejador) {
    teclaAbajo_ << std::move(manejador);
}
void ControlDeTexto::alTeclear(ManejadorKeyPress manejador) {
    teclear_ << std::move(manejador);
}
void ControlDeTexto::alCambiar(Manejador manejador) {
    cambiar_ << std::move(manejador);
}
void ControlDeTexto::alHacerDobleClic(Manejador manejador) {
    dobleClic_ << std::move(manejador);
}
void ControlDeTexto::despuesDeValidar(Manejador manejador) {
    despuesDeValidar_ << std::move(manejador);
}
void ControlDeTexto::alFijarTextoPorCodigo(Manejador manejador) {
    fijadoPorCodigo_ << std::move(manejador);
}

// A copy is run, so a handler may attach others; running stops if one of them unloads the control.
void ControlDeTexto::correr(const QVector<Manejador>& manejadores) {
    if (manejadores.isEmpty()) return;
    const QVector<Manejador> copia = manejadores;
    Common::Manejar([&] {
        for (const Manejador& m : copia) {
            if (!vivo_) return;
            m();
        }
    });
}

void ControlDeTexto::avisarFocoPendiente() {
    if (!focoPorRatonPendiente_) return;
    focoPorRatonPendiente_ = false;
    correr(recibirFoco_);
}

void ControlDeTexto::focoRecibido(const QFocusEvent* evento) {
    switch (evento->reason()) {
    case Qt::PopupFocusReason:
        return;
    case Qt::ActiveWindowFocusReason:
        // Back to the field that had the focus when the window was left: no new arrival.
        if (volviendoAlActivar_) {
            volviendoAlActivar_ = false;
            return;
        }
        break;
    case Qt::MouseFocusReason:
        focoPorRatonPendiente_ = true;
        return;
    default:
        break;
    }
    volviendoAlActivar_ = false;
    correr(recibirFoco_);
}

void ControlDeTexto::ratonPresionado() {
    avisarFocoPendiente();
}

void ControlDeTexto::focoPerdido(const QFocusEvent* evento) {
    avisarFocoPendiente();
    if (evento->reason() == Qt::PopupFocusReason) return;
    if (evento->reason() == Qt::ActiveWindowFocusReason) {
        volviendoAlActivar_ = true;
        return;
    }
    volviendoAlActivar_ = false;
    // A field being disabled or hidden is not being left by the user.
    if (!control_->isEnabled() || !control_->isVisible()) return;
    if (validar_.isEmpty() && despuesDeValidar_.isEmpty()) return;
    const QVector<Manejador> validar = validar_, despues = despuesDeValidar_;
    Common::Manejar([&] {
        for (const Manejador& m : validar) {
            if (!vivo_) return;
            m();
        }
        for (const Manejador& m : despues) {
            if (!vivo_) return;
            m();
        }
    });
}

void ControlDeTexto::avisarTeclaAbajo(const QKeyEvent* evento) {
    if (!aviso_.esPrimeraVez(evento)) return;
    const int codigo = CodigoDeTecla(evento);
    // Tab moves focus; the field never sees it as a key.
    if (codigo == 0 || codigo == vbKeyTab || teclaAbajo_.isEmpty()) return;
    const int shift = EstadoShift(evento->modifiers());
    const QVector<ManejadorKeyDown> copia = teclaAbajo_;
    Common::Manejar([&] {
        for (const ManejadorKeyDown& m : copia) {
            if (!vivo_) return;
            m(codigo, shift);
        }
    });
}

void ControlDeTexto::teclaAnticipada(const QKeyEvent* evento) {
    avisarTeclaAbajo(evento);
}

QKeyEvent* ControlDeTexto::teclaPresionada(QKeyEvent* evento, std::unique_ptr<QKeyEvent>& sustituto) {
    avisarFocoPendiente();
    avisarTeclaAbajo(evento);
    if (!vivo_) return nullptr;
    const int original = CodigoDeCaracter(evento);
    if (original == 0 || teclear_.isEmpty()) return evento;
    int KeyAscii = original;
    const QVector<ManejadorKeyPress> copia = teclear_;
    Common::Manejar([&] {
        for (const ManejadorKeyPress& m : copia) {
            if (!vivo_) return;
            m(KeyAscii);
        }
    });
    if (!vivo_ || KeyAscii == 0) return nullptr;
    if (KeyAscii == original) return evento;
    int tecla = evento->key();
    if (KeyAscii == vbKeyBack)
        tecla = Qt::Key_Backspace;
    else if (KeyAscii == vbKeyReturn)
        tecla = Qt::Key_Return;
    sustituto = std::make_unique<QKeyEvent>(QEvent::KeyPress, tecla, evento->modifiers(),
                                            QString(QChar(static_cast<char16_t>(KeyAscii))),
                                            evento->isAutoRepeat(), evento->count());
    return sustituto.get();
}

void ControlDeTexto::dobleClic() {
    correr(dobleClic_);
}

void ControlDeTexto::textoCambiado() {
    correr(cambiar_);
}

void ControlDeTexto::textoFijadoPorCodigo() {
    correr(fijadoPorCodigo_);
}

} // namespace shell
