#pragma once

// The six kinds of field, the same on every screen. Each attaches its handler to the field; a kind
// that acts on leaving runs before any Validate handler attached after it, so a screen attaches the
// kind first and then its own handler, which sees the cleaned text.

#include "shell/controles/ControlDeTexto.h"

#include <QString>

namespace shell {

// On getting focus: SelStart 0, SelLength the length of the text.
void SeleccionarTodoAlEntrar(ControlDeTexto* campo);
// On each key: the typed character becomes its capital (á -> Á, ñ -> Ñ). Names and surnames.
void MayusculasAlTeclear(ControlDeTexto* campo);
// On each key: a code outside 48-57 that isn't 8 (backspace) is swallowed.
void SoloDigitos(ControlDeTexto* campo);
// On leaving: the text becomes Format(Val(text), "#0.00"); a text with no number gives "0.00".
void NumeroAlSalir(ControlDeTexto* campo);
// On leaving: the text becomes the decimal text of Val(text).
void EnteroAlSalir(ControlDeTexto* campo);
// On leaving: a date (read day first) becomes "dd/mm/yyyy"; anything else empties the field.
void FechaAlSalir(ControlDeTexto* campo);

// What the leaving kinds make of a text, for screens that clean a field by hand.
QString TextoNumero(const QString& texto);
QString TextoEntero(const QString& texto);
QString TextoFechaDe(const QString& texto);

} // namespace shell
