#pragma once

#include "shell/marco/Formulario.h"
#include "shell/principal/frmMain.h"

#include <QString>

// The program as the clerk starts it, for the tests that open screens: the main window with the
// application's own registration of screens (what main() runs, not stand-ins), loaded, so that the
// shared connection is open. Screens are opened through its menu and toolbar.
class ProgramaDePrueba {
public:
    ProgramaDePrueba();
    ~ProgramaDePrueba();
    ProgramaDePrueba(const ProgramaDePrueba&) = delete;
    ProgramaDePrueba& operator=(const ProgramaDePrueba&) = delete;

    shell::frmMain& principal();

    // Clicks the menu item with this caption, or the toolbar button with this key, and returns the
    // screen in front afterwards; nullptr when the main window is still the one in front.
    shell::Formulario* menu(const QString& caption);
    shell::Formulario* barra(const QString& clave);

    // The screen a menu item opens, as its own class; fails the test binary when another opens.
    template <class T> T& abrir(const QString& caption) {
        T* pantalla = qobject_cast<T*>(menu(caption));
        if (!pantalla) qFatal("the menu item %s did not open its screen", qPrintable(caption));
        return *pantalla;
    }

    // The active screen: the one a person would type into.
    static shell::Formulario* alFrente();
};
