#pragma once

#include "shell/common/Common.h"
#include "shell/marco/Formulario.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <functional>

class QPushButton;
class QWidget;

// What a screen test needs around the screens: Common's values as Main leaves them, a modal driver
// that answers each modal screen with the next queued action (acting on the real widgets), and hooks
// that record an unhandled failure and the end of the program instead of ending the test binary.
//
// A modal screen nobody queued an action for, and a failure that reached the fatal path, fail the
// test, unless the test said it expects them (esperaModalesSinAccion, esperaFallos) and checks them.
// So does an action still queued when the environment goes: the screen it was for never showed.
class EntornoDePantallas {
public:
    EntornoDePantallas();
    ~EntornoDePantallas();

    using Accion = std::function<void(shell::Formulario&)>;
    // The action for the next modal screen shown; actions run in the order queued.
    void alMostrarModal(Accion accion);
    // Modal screens shown so far, by objectName, and their title strips' text (trimmed).
    QStringList modalesMostradas;
    QStringList titulosModales;
    // Modal screens shown with no action queued (closed by the environment so nothing hangs).
    int modalesSinAccion = 0;

    QList<store::Fallo> fallos; // unhandled failures that reached the fatal path
    int terminaciones = 0;      // calls of Common::Terminar

    // The test expects unhandled failures, and checks `fallos` itself.
    void esperaFallos() { esperaFallos_ = true; }
    // The test expects modal screens it queued no action for, and checks `modalesSinAccion` itself.
    void esperaModalesSinAccion() { esperaModalesSinAccion_ = true; }

    // Closes every top-level screen still open, so that each test starts afresh.
    static void cerrarPantallas();

private:
    QList<Accion> acciones_;
    bool esperaFallos_ = false;
    bool esperaModalesSinAccion_ = false;
};

// Types text into a control with key events that carry their text (QTest::keyClicks can't send
// accented letters in Qt 6.4).
void teclear(QWidget* control, const QString& texto);
// Starts the program as main() does, closing its splash, where the start-up is expected to fail: the
// text of the one failure that reached the fatal path, "" (and the test failed) when it was not one,
// or when the shared connection was left open.
QString falloAlIniciar();
// Clicks the visible button of a bar with this caption; fails the test when none shows it.
void pulsarBoton(const QList<QPushButton*>& barra, const QString& caption);
// Gives a control focus and then moves focus away with Tab, so that its validate step runs.
void salirCon(QWidget* control, Qt::Key tecla = Qt::Key_Tab);
// The child of a screen by its given name; fails the test when absent.
template <class T = QWidget> T* control(QWidget* pantalla, const QString& nombre) {
    return pantalla->findChild<T*>(nombre);
}
