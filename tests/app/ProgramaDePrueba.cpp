#include "ProgramaDePrueba.h"

#include "app/Registro.h"
#include "shell/common/Common.h"

#include <QApplication>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>
#include <QtTest>

ProgramaDePrueba::ProgramaDePrueba() {
    static const bool registradas = [] {
        aplicacion::RegistrarPantallas();
        return true;
    }();
    Q_UNUSED(registradas);
    principal().Show();
}

ProgramaDePrueba::~ProgramaDePrueba() {
    if (Common::DE().CN.State() == store::adStateOpen) Common::DE().CN.Close();
}

shell::frmMain& ProgramaDePrueba::principal() {
    return Common::Pantalla<shell::frmMain>();
}

shell::Formulario* ProgramaDePrueba::alFrente() {
    QWidget* ventana = QApplication::activeWindow();
    auto* pantalla = qobject_cast<shell::Formulario*>(ventana);
    return pantalla && pantalla->isVisible() ? pantalla : nullptr;
}

namespace {

shell::Formulario* enFrente(const shell::frmMain& principal) {
    // The platform reports a window's activation as an event of its own.
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    shell::Formulario* f = ProgramaDePrueba::alFrente();
    return f == &principal ? nullptr : f;
}

} // namespace

shell::Formulario* ProgramaDePrueba::menu(const QString& caption) {
    QAction* item = nullptr;
    for (QAction* a : principal().xMenu->findChildren<QAction*>())
        if (a->text() == caption && !a->menu()) item = a;
    if (!item) qFatal("no menu item %s", qPrintable(caption));
    principal().activateWindow();
    QCoreApplication::processEvents();
    item->trigger();
    return enFrente(principal());
}

shell::Formulario* ProgramaDePrueba::barra(const QString& clave) {
    auto* accion = principal().xToolbar->findChild<QAction*>(clave);
    if (!accion) qFatal("no toolbar button %s", qPrintable(clave));
    principal().activateWindow();
    QCoreApplication::processEvents();
    QTest::mouseClick(principal().xToolbar->widgetForAction(accion), Qt::LeftButton);
    return enFrente(principal());
}
