#pragma once

// The clerk's gestures that the screen tests share, beside the keystrokes of EntornoDePantallas.h
// (teclear, pulsarBoton, salirCon): a window made the active one, a box typed over and left, the
// next dialog answered by a button, a text prompt answered, a row picked in the search screen, and a
// detail grid's keys, double click and rows. Those that answer a modal screen queue their action on
// the test's EntornoDePantallas; the screen then shows it when the program gets there.
#include "EntornoDePantallas.h"

#include <QString>
#include <QStringList>

class QWidget;

namespace shell {
class GrillaDetalle;
}

// The window takes the keyboard, as the one in front does: focus moves, and fields are left (their
// validate step runs), only in the active window.
void activar(QWidget& ventana);
// Into a box as the clerk does: focus, what it held selected and typed over (an empty text deletes
// it), Tab to leave it.
void escribir(QWidget* caja, const QString& texto);

// The next dialog answered by the button of this caption, or of this name ("cmdClose"); its text
// (lblPregunta or lblMensaje) kept in `texto`. A dialog without that button fails the test.
void responder(EntornoDePantallas& entorno, const QString& boton, QString* texto = nullptr);
// The next text prompt: this text typed over its proposal, then the button `boton`.
void responderTexto(EntornoDePantallas& entorno, const QString& texto,
                    const QString& boton = QStringLiteral("Aceptar"));
// The next search screen: "&Buscar" with no filter, then a double click on the first row with a cell
// that reads `celda`; its close box when none does (or `celda` is empty). The texts of the column
// headed `columna`, row by row, go to `vistos` when asked for. Another screen shown instead is closed
// and fails the test.
void elegirEnBusqueda(EntornoDePantallas& entorno, const QString& celda, QStringList* vistos = nullptr,
                      const QString& columna = {});

// A key on a detail grid of `pantalla`, on its row `fila`, with the screen made active before and
// after (a dialog the key opened has gone by then).
void teclaEnGrilla(QWidget& pantalla, shell::GrillaDetalle& grilla, Qt::Key k, int fila = 1,
                   Qt::KeyboardModifiers modificadores = Qt::NoModifier);
// A double click on the cells of row `fila` of a detail grid of `pantalla`.
void dobleClicEnGrilla(QWidget& pantalla, shell::GrillaDetalle& grilla, int fila);
// The grid's data rows, cells joined by "|".
QStringList filasDe(const shell::GrillaDetalle& grilla);
