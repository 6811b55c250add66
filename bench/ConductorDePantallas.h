#pragma once

#include <QElapsedTimer>
#include <QString>
#include <QStringList>
#include <cstdio>
#include <deque>
#include <exception>
#include <functional>
#include <initializer_list>
#include <stdexcept>
#include <utility>

class QPushButton;
class QVariant;
class QWidget;
namespace shell {
class Formulario;
class Marco;
} // namespace shell
namespace store {
class Recordset;
}

// What the screen benchmarks share: their failed check, the driver of the modal screens a run shows,
// the clerk's keyboard, and the end of the run (the two stores measured, the ratios held to a limit).

// A check of the run that failed: the benchmark ends with 2.
struct FalloDeMedicion : std::runtime_error {
    using std::runtime_error::runtime_error;
};

void exigir(bool condicion, const QString& que);

// The modal driver: the modal screens a step expects are answered in their order, each by a function
// that tells whether the screen shown is the one it answers (a screen opened from inside another takes
// the next one). Any other modal screen (a message above all) is written down with its texts and
// closed. An unhandled failure is written down too.
struct Conductor {
    std::deque<std::function<bool(shell::Formulario&)>> esperadas;
    QStringList inesperadas;
    QElapsedTimer desdeLaEleccion; // started by a benchmark once its search screen has gone
};
extern Conductor conductor;

// The screen's name and the texts of its labels, as the run writes down an unexpected screen.
QString textos(shell::Formulario& f);

// The button of this caption clicked; without one, the screen is written down and closed.
void pulsarEn(shell::Formulario& f, const QString& caption);

// Installs the driver and the fatal hook. `primero`, when given, is asked about every modal screen
// before the expected ones, and tells whether it answered it.
void instalarConductor(std::function<bool(shell::Formulario&)> primero = {});

// Fails the step when a screen was not expected, or an expected one was not shown.
void sinPantallasInesperadas(const QString& paso);

// The visible button of a screen's bar with this caption; none is a failed check.
QPushButton* botonVisible(shell::Marco& pantalla, const QString& caption);

// A search's rows lie in key order in the synthetic stores, so the row of a key (column hidID, the
// first) is found by its position, at no cost that grows with the store; a walk through every row
// would leave the caches full of the search's rows just before a timer starts. False when absent.
bool ponerEnFila(store::Recordset& rs, const QVariant& clave);

// The clerk's keyboard: a key sent to the control that has the focus.
void tecla(QWidget* control, Qt::Key k, const QString& texto = {});

// The two stores measured, of N and of 10 x N; on a failed check, false, the failure written under the
// program's name.
template <class Medida>
bool medirAmbas(const char* programa, Medida (*medir)(int), int pequena, Medida& a, Medida& b) {
    try {
        a = medir(pequena);
        b = medir(pequena * 10);
    } catch (const std::exception& e) {
        std::fprintf(stderr, "%s: %s\n", programa, e.what());
        return false;
    }
    return true;
}

// The exit status of a run measured: 1, each one written down, when a ratio is above the limit; else 0.
int salidaPorRazones(std::initializer_list<std::pair<const char*, double>> razones, double tope);
