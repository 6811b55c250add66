#include "EntornoDePantallas.h"

#include "shell/marco/Marco.h"
#include "shell/principal/Main.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QtTest>

EntornoDePantallas::EntornoDePantallas() {
    Common::ColorTituloFondo = QColor(0, 0, 128);
    Common::ColorTituloTexto = QColor(255, 255, 255);
    Common::ColorInactivoFondo = QColor(128, 128, 128);
    Common::ColorInactivoTexto = QColor(224, 224, 224);
    Common::TransaccionActiva = 0;
    Common::IDSeleccionado = 0;
    Common::TextoSeleccionado.clear();
    Common::ConsultaBusqueda.clear();
    Common::ClienteAbrir = 0;
    Common::RespuestaDialogo = QStringLiteral("Cancelar");
    Common::Parametros.ReDim(1);
    Common::LineaNueva = false;
    Common::InstalarConductorModal([this](shell::Formulario& pantalla) {
        modalesMostradas << pantalla.objectName();
        const auto* titulo = pantalla.findChild<QLabel*>(QStringLiteral("lblTitulo"));
        titulosModales << (titulo ? titulo->text().trimmed() : QString());
        if (acciones_.isEmpty()) {
            ++modalesSinAccion;
            if (!esperaModalesSinAccion_)
                QTest::qFail(qPrintable(QStringLiteral("una pantalla modal que nadie esperaba: %1 \"%2\"")
                                            .arg(pantalla.objectName(), titulosModales.last())),
                             __FILE__, __LINE__);
            pantalla.Unload();
            return;
        }
        const Accion accion = acciones_.takeFirst();
        accion(pantalla);
    });
    Common::InstalarGanchoFatal([this](const store::Fallo& f) {
        fallos << f;
        if (!esperaFallos_)
            QTest::qFail(qPrintable(QStringLiteral("un fallo llegó al final del programa: %1 %2")
                                        .arg(f.numeroHex(), f.descripcion())),
                         __FILE__, __LINE__);
    });
    Common::InstalarGanchoTerminar([this] { ++terminaciones; });
}

EntornoDePantallas::~EntornoDePantallas() {
    // An action queued for a modal screen that never showed: what the test expected didn't happen.
    if (!acciones_.isEmpty() && !QTest::currentTestFailed())
        QTest::qFail(qPrintable(QStringLiteral("%1 acciones para pantallas modales que no se mostraron")
                                    .arg(acciones_.size())),
                     __FILE__, __LINE__);
    cerrarPantallas();
    Common::InstalarConductorModal({});
    Common::InstalarGanchoFatal({});
    Common::InstalarGanchoTerminar({});
}

void EntornoDePantallas::alMostrarModal(Accion accion) {
    acciones_ << std::move(accion);
}

void EntornoDePantallas::cerrarPantallas() {
    for (QWidget* w : QApplication::topLevelWidgets())
        if (auto* f = qobject_cast<shell::Formulario*>(w); f && !f->descargado()) {
            f->hide();
            f->deleteLater();
        }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void teclear(QWidget* control, const QString& texto) {
    for (const QChar c : texto) {
        QKeyEvent abajo(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
        QKeyEvent arriba(QEvent::KeyRelease, 0, Qt::NoModifier, QString(c));
        QApplication::sendEvent(control, &abajo);
        QApplication::sendEvent(control, &arriba);
    }
}

void salirCon(QWidget* control, Qt::Key tecla) {
    control->setFocus();
    QTest::keyClick(control, tecla);
}

void pulsarBoton(const QList<QPushButton*>& barra, const QString& caption) {
    for (QPushButton* b : barra)
        if (b->text() == caption && b->isVisible()) return QTest::mouseClick(b, Qt::LeftButton);
    QFAIL(qPrintable("no visible button " + caption));
}

QString falloAlIniciar() {
    EntornoDePantallas entorno;
    entorno.esperaFallos();
    entorno.alMostrarModal([](shell::Formulario& splash) { splash.Unload(); });
    shell::Main();
    if (entorno.fallos.size() != 1) {
        QTest::qFail(qPrintable(QStringLiteral("%1 failures at start-up").arg(entorno.fallos.size())),
                     __FILE__, __LINE__);
        return {};
    }
    if (Common::DE().CN.State() != 0) {
        QTest::qFail("the shared connection is open after a failed start-up", __FILE__, __LINE__);
        return {};
    }
    return entorno.fallos[0].descripcion();
}
