#include "ModosDeRegistro.h"

#include "shell/common/Common.h"
#include "shell/marco/PantallaRegistro.h"

#include <QtTest>

namespace {

// The bar shows the editing buttons, "Guardar" and "Cancelar", and nothing else, or all but them.
void verificarBarra(const shell::PantallaRegistro& pantalla, bool editando) {
    for (const QPushButton* b : pantalla.cmdBoton) {
        if (!b) continue;
        const bool deEdicion =
            b->text() == QLatin1String("Guardar") || b->text() == QLatin1String("Cancelar");
        QVERIFY2(b->isVisible() == (deEdicion == editando),
                 qPrintable(QStringLiteral("\"%1\" is %2 on the bar while %3")
                                .arg(b->text(),
                                     b->isVisible() ? QStringLiteral("shown") : QStringLiteral("hidden"),
                                     editando ? QStringLiteral("editing") : QStringLiteral("browsing"))));
    }
}

} // namespace

void verificarEdicion(const shell::PantallaRegistro& pantalla, const QString& estado,
                      const QList<const QWidget*>& deEdicion) {
    QVERIFY(pantalla.lblEstado->isVisible());
    if (!estado.isEmpty()) QCOMPARE(pantalla.lblEstado->text(), estado);
    verificarBarra(pantalla, true);
    if (QTest::currentTestFailed()) return;
    QVERIFY(pantalla.fraMain->isEnabled());
    for (const QWidget* control : deEdicion)
        QVERIFY2(control->isEnabled(), qPrintable(control->objectName() + " is disabled while editing"));
    QVERIFY(Common::TransaccionActiva > 0);
    QCOMPARE(Common::DE().CN.nivelTransaccion(), 1);
}

void verificarConsulta(const shell::PantallaRegistro& pantalla, const QList<const QWidget*>& deEdicion) {
    QVERIFY(!pantalla.lblEstado->isVisible());
    verificarBarra(pantalla, false);
    if (QTest::currentTestFailed()) return;
    QVERIFY(!pantalla.fraMain->isEnabled());
    for (const QWidget* control : deEdicion)
        QVERIFY2(!control->isEnabled(), qPrintable(control->objectName() + " is enabled while browsing"));
    QCOMPARE(Common::TransaccionActiva, 0L);
    QCOMPARE(Common::DE().CN.nivelTransaccion(), 0);
}
