#include "shell/controles/CajaTexto.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QTextBlock>

namespace shell {

namespace {

// What QLineEdit takes as no limit.
constexpr int kSinLimite = 32767;

bool llegaPorTeclado(Qt::FocusReason razon) {
    return razon == Qt::TabFocusReason || razon == Qt::BacktabFocusReason || razon == Qt::ShortcutFocusReason;
}

} // namespace

// ---- CajaTexto ----------------------------------------------------------------------------------

CajaTexto::CajaTexto(QWidget* parent)
    : QLineEdit(parent)
    , ControlDeTexto(this) {
    connect(this, &QLineEdit::textChanged, this, [this] { textoCambiado(); });
}

void CajaTexto::setText(const QString& texto) {
    QLineEdit::setText(texto);
    setCursorPosition(0);
    inicioGuardado_ = largoGuardado_ = 0;
    textoFijadoPorCodigo();
}

int CajaTexto::SelStart() const {
    return hasSelectedText() ? selectionStart() : cursorPosition();
}

void CajaTexto::setSelStart(int inicio) {
    setCursorPosition(std::clamp(inicio, 0, static_cast<int>(text().size())));
}

int CajaTexto::SelLength() const {
    return hasSelectedText() ? selectionLength() : 0;
}

void CajaTexto::setSelLength(int largo) {
    const int inicio = SelStart();
    setSelection(inicio, std::clamp(largo, 0, static_cast<int>(text().size()) - inicio));
}

int CajaTexto::MaxLength() const {
    return maxLength() == kSinLimite ? 0 : maxLength();
}

void CajaTexto::setMaxLength(int largo) {
    QLineEdit::setMaxLength(largo > 0 ? largo : kSinLimite);
}

bool CajaTexto::event(QEvent* evento) {
    if (evento->type() == QEvent::ShortcutOverride) teclaAnticipada(static_cast<QKeyEvent*>(evento));
    return QLineEdit::event(evento);
}

void CajaTexto::focusInEvent(QFocusEvent* evento) {
    QLineEdit::focusInEvent(evento);
    // QLineEdit selects everything when tabbed into; the field keeps the selection it had instead.
    if (llegaPorTeclado(evento->reason())) {
        setSelStart(inicioGuardado_);
        if (largoGuardado_ > 0) setSelLength(largoGuardado_);
    }
    focoRecibido(evento);
}

void CajaTexto::focusOutEvent(QFocusEvent* evento) {
    inicioGuardado_ = SelStart();
    largoGuardado_ = SelLength();
    QLineEdit::focusOutEvent(evento);
    focoPerdido(evento);
}

void CajaTexto::keyPressEvent(QKeyEvent* evento) {
    std::unique_ptr<QKeyEvent> sustituto;
    QPointer<CajaTexto> vivo(this);
    QKeyEvent* queda = teclaPresionada(evento, sustituto);
    if (!vivo) return;
    if (!queda) {
        evento->accept();
        return;
    }
    QLineEdit::keyPressEvent(queda);
    evento->setAccepted(queda->isAccepted());
}

void CajaTexto::mousePressEvent(QMouseEvent* evento) {
    QLineEdit::mousePressEvent(evento);
    ratonPresionado();
}

void CajaTexto::mouseDoubleClickEvent(QMouseEvent* evento) {
    QLineEdit::mouseDoubleClickEvent(evento);
    dobleClic();
}

// ---- CajaTextoMultilinea ------------------------------------------------------------------------

CajaTextoMultilinea::CajaTextoMultilinea(QWidget* parent)
    : QPlainTextEdit(parent)
    , ControlDeTexto(this) {
    setTabChangesFocus(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QPlainTextEdit::textChanged, this, [this] { textoCambiado(); });
}

void CajaTextoMultilinea::setText(const QString& texto) {
    setPlainText(texto);
    textoFijadoPorCodigo();
}

int CajaTextoMultilinea::SelStart() const {
    return textCursor().selectionStart();
}

void CajaTextoMultilinea::setSelStart(int inicio) {
    QTextCursor c = textCursor();
    c.setPosition(std::clamp(inicio, 0, static_cast<int>(toPlainText().size())));
    setTextCursor(c);
}

int CajaTextoMultilinea::SelLength() const {
    const QTextCursor c = textCursor();
    return c.selectionEnd() - c.selectionStart();
}

void CajaTextoMultilinea::setSelLength(int largo) {
    QTextCursor c = textCursor();
    const int inicio = c.selectionStart();
    c.setPosition(inicio);
    c.setPosition(std::clamp(inicio + largo, inicio, static_cast<int>(toPlainText().size())),
                  QTextCursor::KeepAnchor);
    setTextCursor(c);
}

// A read-only QPlainTextEdit would drop out of the tab order; a locked field stays in it.
void CajaTextoMultilinea::setLocked(bool bloqueado) {
    const Qt::FocusPolicy politica = focusPolicy();
    setReadOnly(bloqueado);
    setTextInteractionFlags(bloqueado ? Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard
                                      : Qt::TextEditorInteraction);
    setFocusPolicy(politica);
}

bool CajaTextoMultilinea::event(QEvent* evento) {
    if (evento->type() == QEvent::ShortcutOverride) teclaAnticipada(static_cast<QKeyEvent*>(evento));
    return QPlainTextEdit::event(evento);
}

void CajaTextoMultilinea::focusInEvent(QFocusEvent* evento) {
    QPlainTextEdit::focusInEvent(evento);
    focoRecibido(evento);
}

void CajaTextoMultilinea::focusOutEvent(QFocusEvent* evento) {
    QPlainTextEdit::focusOutEvent(evento);
    focoPerdido(evento);
}

void CajaTextoMultilinea::keyPressEvent(QKeyEvent* evento) {
    std::unique_ptr<QKeyEvent> sustituto;
    QPointer<CajaTextoMultilinea> vivo(this);
    QKeyEvent* queda = teclaPresionada(evento, sustituto);
    if (!vivo) return;
    if (!queda) {
        evento->accept();
        return;
    }
    QPlainTextEdit::keyPressEvent(queda);
    evento->setAccepted(queda->isAccepted());
}

void CajaTextoMultilinea::mousePressEvent(QMouseEvent* evento) {
    QPlainTextEdit::mousePressEvent(evento);
    ratonPresionado();
}

void CajaTextoMultilinea::mouseDoubleClickEvent(QMouseEvent* evento) {
    QPlainTextEdit::mouseDoubleClickEvent(evento);
    dobleClic();
}

} // namespace shell
