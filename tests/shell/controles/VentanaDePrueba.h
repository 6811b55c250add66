#pragma once

#include "shell/common/Twips.h"
#include "shell/marco/Formulario.h"

#include <QApplication>
#include <QPointer>
#include <QtTest>

// A window of the system holding the controls of one test, shown and active so that focus moves as
// it does for a person. With KeyPreview (the default) Enter moves on as on a record screen.
class VentanaDePrueba {
public:
    explicit VentanaDePrueba(bool keyPreview = true)
        : ventana_(new shell::Formulario) {
        ventana_->setObjectName(QStringLiteral("VentanaDePrueba"));
        ventana_->setKeyPreview(keyPreview);
        ventana_->resize(shell::px(9000), shell::px(4500));
    }
    ~VentanaDePrueba() { delete ventana_.data(); }
    VentanaDePrueba(const VentanaDePrueba&) = delete;
    VentanaDePrueba& operator=(const VentanaDePrueba&) = delete;

    // A control placed in twips, in the order of tabbing.
    template <class T>
    T* agregar(const QString& nombre, double left, double top, double ancho = 2400, double alto = 285) {
        auto* c = new T(ventana_);
        c->setObjectName(nombre);
        shell::colocar(c, left, top, ancho, alto);
        return c;
    }

    // Shown and made the active window; false when the platform did not activate it.
    bool mostrar() {
        ventana_->show();
        QApplication::setActiveWindow(ventana_);
        return QTest::qWaitForWindowActive(ventana_);
    }

    shell::Formulario* ventana() const { return ventana_; }

private:
    QPointer<shell::Formulario> ventana_;
};
