#include "shell/common/Common.h"

#include "shell/dialogos/Dialogos.h"
#include "shell/marco/Formulario.h"

#include <QApplication>
#include <QEventLoop>
#include <QLabel>
#include <QMessageBox>
#include <cstdlib>
#include <exception>

namespace Common {

namespace {

ConductorModal conductor;
GanchoFatal gancho;
std::function<void()> ganchoTerminar;

void pintarTitulo(shell::Formulario& pantalla, const QColor& fondo, const QColor& texto) {
    const QString estilo = QStringLiteral("background-color: %1; color: %2;").arg(fondo.name(), texto.name());
    for (const char* nombre : {"lblTitulo", "cmdClose"})
        if (auto* control = pantalla.findChild<QWidget*>(QLatin1String(nombre))) {
            // The close box keeps its own border; only its colours follow the strip.
            control->setStyleSheet(nombre[0] == 'l' ? estilo + QStringLiteral(" font-weight: bold;")
                                                    : estilo + QStringLiteral(" border: none;"));
        }
}

} // namespace

EntornoDatos& DE() {
    // Lives until the process ends, as the shared connection does; never destroyed, since a static
    // destructor would run after Qt's own database registry is gone.
    static auto* entorno = new EntornoDatos;
    return *entorno;
}

void ResaltarTitulo(shell::Formulario& pantalla) {
    pintarTitulo(pantalla, ColorTituloFondo, ColorTituloTexto);
}

void AtenuarTitulo(shell::Formulario& pantalla) {
    pintarTitulo(pantalla, ColorInactivoFondo, ColorInactivoTexto);
}

void MostrarModal(shell::Formulario& pantalla) {
    pantalla.setWindowModality(Qt::ApplicationModal);
    pantalla.show();
    pantalla.traerAlFrente();
    if (conductor) {
        conductor(pantalla);
        return;
    }
    if (pantalla.descargado()) return;
    QEventLoop bucle;
    QObject::connect(&pantalla, &shell::Formulario::alDescargar, &bucle, &QEventLoop::quit);
    QObject::connect(&pantalla, &QObject::destroyed, &bucle, &QEventLoop::quit);
    bucle.exec();
}

void InstalarConductorModal(ConductorModal nuevo) {
    conductor = std::move(nuevo);
}

void FalloFatal(const store::Fallo& fallo) {
    if (gancho) {
        gancho(fallo);
        return;
    }
    QMessageBox::critical(nullptr, QStringLiteral("Sistema de control de cuenta corriente"),
                          QStringLiteral("Error %1\n\n%2").arg(fallo.numeroHex(), fallo.descripcion()));
    std::_Exit(1);
}

void InstalarGanchoFatal(GanchoFatal nuevo) {
    gancho = std::move(nuevo);
}

void Manejar(const std::function<void()>& manejador) {
    try {
        manejador();
    } catch (const store::Fallo& fallo) {
        FalloFatal(fallo);
    } catch (const std::exception& e) {
        FalloFatal(store::Fallo(store::FalloGeneral, QString::fromUtf8(e.what())));
    }
}

void Terminar() {
    if (ganchoTerminar) {
        ganchoTerminar();
        return;
    }
    std::_Exit(0);
}

void InstalarGanchoTerminar(std::function<void()> nuevo) {
    ganchoTerminar = std::move(nuevo);
}

} // namespace Common
