// cuentacorriente: the desktop program. Registers the record screens the main window opens, then
// hands over to Main: the splash, the main window, and the event loop until the program is ended.
#include "shell/principal/Main.h"

#include "app/Registro.h"
#include "shell/principal/Apariencia.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    shell::AplicarApariencia(CC_VERSION);
    // The main window lives on; closing the last screen does not end the program, only "Salida" does.
    QApplication::setQuitOnLastWindowClosed(false);
    aplicacion::RegistrarPantallas();
    shell::Main();
    return QApplication::exec();
}
