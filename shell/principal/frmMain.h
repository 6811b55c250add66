#pragma once

#include "shell/marco/Formulario.h"

#include <QFrame>
#include <QHash>
#include <QMenuBar>
#include <QToolBar>
#include <functional>

namespace shell {

// The main window: a narrow strip at the top right of the display with the menu bar xMenu, the
// toolbar xToolbar under it and the frame Shape around them; no native title bar. It opens the
// shared connection when it loads. Menu items are dispatched by name and toolbar buttons by key,
// each through one chain of exact comparisons; a name not in the chain does nothing.
class frmMain : public Formulario {
    Q_OBJECT
public:
    frmMain();

    QMenuBar* xMenu;
    QToolBar* xToolbar;
    QFrame* Shape;

    void xMenu_Click(const QString& nombre);
    void xToolbar_ButtonClick(const QString& clave);

    // How to show each record screen (by its name, e.g. "frmBanco"); the program registers the
    // screens it has. A screen that isn't registered yet opens nothing.
    static void registrarPantalla(const QString& nombre, std::function<void()> mostrar);

protected:
    void Form_Load() override;
    void closeEvent(QCloseEvent* evento) override;

private:
    void construirMenu();
    void construirBarra();
    static void mostrar(const QString& pantalla);
    static QHash<QString, std::function<void()>>& pantallas();
};

} // namespace shell
