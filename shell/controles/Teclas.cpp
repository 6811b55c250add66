#include "shell/controles/Teclas.h"

namespace shell {

int CodigoDeTecla(const QKeyEvent* evento) {
    const int k = evento->key();
    if ((k >= Qt::Key_A && k <= Qt::Key_Z) || (k >= Qt::Key_0 && k <= Qt::Key_9)) return k;
    if (k >= Qt::Key_F1 && k <= Qt::Key_F24) return vbKeyF1 + (k - Qt::Key_F1);
    switch (k) {
    case Qt::Key_Backspace:
        return vbKeyBack;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return vbKeyTab;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return vbKeyReturn;
    case Qt::Key_Shift:
        return 16;
    case Qt::Key_Control:
        return 17;
    case Qt::Key_Alt:
        return 18;
    case Qt::Key_Escape:
        return vbKeyEscape;
    case Qt::Key_Space:
        return vbKeySpace;
    case Qt::Key_PageUp:
        return vbKeyPageUp;
    case Qt::Key_PageDown:
        return vbKeyPageDown;
    case Qt::Key_End:
        return vbKeyEnd;
    case Qt::Key_Home:
        return vbKeyHome;
    case Qt::Key_Left:
        return vbKeyLeft;
    case Qt::Key_Up:
        return vbKeyUp;
    case Qt::Key_Right:
        return vbKeyRight;
    case Qt::Key_Down:
        return vbKeyDown;
    case Qt::Key_Insert:
        return vbKeyInsert;
    case Qt::Key_Delete:
        return vbKeyDelete;
    default:
        break;
    }
    // A key event that carries only its text (an accented letter): the code of its capital.
    const QString texto = evento->text();
    if (k == 0 && texto.size() == 1) {
        const QChar c = texto.at(0).toUpper();
        if ((c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9')) return c.unicode();
    }
    return 0;
}

int EstadoShift(Qt::KeyboardModifiers modificadores) {
    int estado = 0;
    if (modificadores & Qt::ShiftModifier) estado |= vbShiftMask;
    if (modificadores & Qt::ControlModifier) estado |= vbCtrlMask;
    if (modificadores & Qt::AltModifier) estado |= vbAltMask;
    return estado;
}

int CodigoDeCaracter(const QKeyEvent* evento) {
    switch (evento->key()) {
    case Qt::Key_Backspace:
        return vbKeyBack;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return vbKeyReturn;
    case Qt::Key_Escape:
        return vbKeyEscape;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Delete:
        return 0;
    default:
        break;
    }
    const QString texto = evento->text();
    if (!texto.isEmpty()) {
        const QChar c = texto.at(0);
        if (c.isPrint() || c.unicode() < 32) return c.unicode();
        return 0;
    }
    // Ctrl with a letter types a control character even where the platform gives no text.
    const int k = evento->key();
    if ((evento->modifiers() & Qt::ControlModifier) && k >= Qt::Key_A && k <= Qt::Key_Z)
        return k - Qt::Key_A + 1;
    return 0;
}

bool AvisoDeTecla::esPrimeraVez(const QKeyEvent* evento) {
    if (evento->type() == QEvent::ShortcutOverride) {
        anticipada_ = true;
        tecla_ = evento->key();
        modificadores_ = evento->modifiers();
        return true;
    }
    const bool yaAvisada = anticipada_ && tecla_ == evento->key() && modificadores_ == evento->modifiers();
    anticipada_ = false;
    return !yaAvisada;
}

} // namespace shell
