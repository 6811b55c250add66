#pragma once

// Keys as the screens' handlers receive them: KeyDown gets a key code and the shift state, KeyPress
// gets the code of the typed character (KeyAscii), which it may replace, or set to 0 to swallow it.

#include <QKeyEvent>

namespace shell {

constexpr int vbKeyBack = 8;
constexpr int vbKeyTab = 9;
constexpr int vbKeyReturn = 13;
constexpr int vbKeyEscape = 27;
constexpr int vbKeySpace = 32;
constexpr int vbKeyPageUp = 33;
constexpr int vbKeyPageDown = 34;
constexpr int vbKeyEnd = 35;
constexpr int vbKeyHome = 36;
constexpr int vbKeyLeft = 37;
constexpr int vbKeyUp = 38;
constexpr int vbKeyRight = 39;
constexpr int vbKeyDown = 40;
constexpr int vbKeyInsert = 45;
constexpr int vbKeyDelete = 46;
constexpr int vbKeyF1 = 112;
constexpr int vbKeyF2 = 113;

constexpr int vbShiftMask = 1;
constexpr int vbCtrlMask = 2;
constexpr int vbAltMask = 4;

// The key code of a pressed key (letters 65-90, digits 48-57, F1 112 ...); 0 for a key with none.
int CodigoDeTecla(const QKeyEvent* evento);
// Shift 1, Ctrl 2, Alt 4, added up.
int EstadoShift(Qt::KeyboardModifiers modificadores);
// The character code a key press types (8 backspace, 13 Enter, 27 Escape, Ctrl+letter 1-26, or the
// character itself); 0 when the key types nothing (arrows, Delete, function keys).
int CodigoDeCaracter(const QKeyEvent* evento);

// KeyDown runs once per key press, at the first of the two events Qt delivers for it: the
// ShortcutOverride that reaches the focused control before any key handling of its screen (so a
// control sees Enter even where Enter moves on to the next control), or the KeyPress when it comes
// alone (a key event sent straight to the control).
class AvisoDeTecla {
public:
    // True when KeyDown is to run for this ShortcutOverride or KeyPress.
    bool esPrimeraVez(const QKeyEvent* evento);

private:
    bool anticipada_ = false;
    int tecla_ = 0;
    Qt::KeyboardModifiers modificadores_;
};

} // namespace shell
