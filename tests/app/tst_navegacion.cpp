// The program's navigation as it is shipped: the main window with the application's own registration
// of screens. Every menu item and toolbar button is clicked, and the screen in front afterwards is
// the one the item opens, or none for the entries whose screens the program does not have yet and
// for the placeholders. A screen that exists but is not registered fails here.
#include "BaseDePrueba.h"
#include "EntornoDePantallas.h"
#include "ProgramaDePrueba.h"
#include "shell/common/Common.h"

#include <QCloseEvent>
#include <QMenu>
#include <QtTest>

class TstNavegacion : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void menuAbreSuPantalla_data();
    void menuAbreSuPantalla();
    void barraAbreSuPantalla_data();
    void barraAbreSuPantalla();
    void unaPantallaAbiertaSoloPasaAlFrente();
    void acercaDeYSalida();
    void losMenusTienenSuNombre();
    void cerrarLaVentanaPrincipalNoTerminaNada();

private:
    std::unique_ptr<BaseDePrueba> base_;
    std::unique_ptr<EntornoDePantallas> entorno_;
    std::unique_ptr<ProgramaDePrueba> programa_;
};

void TstNavegacion::init() {
    base_ = std::make_unique<BaseDePrueba>(true);
    entorno_ = std::make_unique<EntornoDePantallas>();
    programa_ = std::make_unique<ProgramaDePrueba>();
}

void TstNavegacion::cleanup() {
    entorno_.reset();
    programa_.reset();
    base_.reset();
}

// An empty screen name: the item opens nothing (yet, or ever, for the placeholders).
void TstNavegacion::menuAbreSuPantalla_data() {
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("pantalla");
    const QList<std::pair<const char*, const char*>> filas = {{"Clientes", "frmCliente"},
                                                              {"Fiadores", "frmFiador"},
                                                              {"Proveedores", "frmProveedor"},
                                                              {"Bancos", "frmBanco"},
                                                              {"Artículos", "frmArticulo"},
                                                              {"Créditos", "frmSolicitud"},
                                                              {"Recibos", "frmRecibo"},
                                                              {"Facturas", "frmFactura"},
                                                              {"Pagos", "frmDocumentos"},
                                                              {"Ingresos", "frmNotaIngreso"},
                                                              {"Envíos", "frmNotaEnvio"},
                                                              {"Reporte1", ""},
                                                              {"Reporte2", ""},
                                                              {"Opcion 1", ""},
                                                              {"Opcion 2", ""}};
    for (const auto& [caption, pantalla] : filas)
        QTest::newRow(caption) << QString::fromUtf8(caption) << QString::fromLatin1(pantalla);
}

void TstNavegacion::menuAbreSuPantalla() {
    QFETCH(QString, caption);
    QFETCH(QString, pantalla);
    shell::Formulario* alFrente = programa_->menu(caption);
    QCOMPARE(alFrente ? alFrente->objectName() : QString(), pantalla);
    if (alFrente) QVERIFY(alFrente->isVisible());
    QVERIFY(entorno_->modalesMostradas.isEmpty());
    QCOMPARE(entorno_->terminaciones, 0);
}

void TstNavegacion::barraAbreSuPantalla_data() {
    QTest::addColumn<QString>("clave");
    QTest::addColumn<QString>("pantalla");
    QTest::newRow("Creditos") << QStringLiteral("Creditos") << QStringLiteral("frmSolicitud");
    QTest::newRow("Recibos") << QStringLiteral("Recibos") << QStringLiteral("frmRecibo");
    QTest::newRow("Facturas") << QStringLiteral("Facturas") << QStringLiteral("frmFactura");
    QTest::newRow("Ingresos") << QStringLiteral("Ingresos") << QStringLiteral("frmNotaIngreso");
    QTest::newRow("Envios") << QStringLiteral("Envios") << QStringLiteral("frmNotaEnvio");
}

void TstNavegacion::barraAbreSuPantalla() {
    QFETCH(QString, clave);
    QFETCH(QString, pantalla);
    shell::Formulario* alFrente = programa_->barra(clave);
    QCOMPARE(alFrente ? alFrente->objectName() : QString(), pantalla);
    QVERIFY(entorno_->modalesMostradas.isEmpty());
}

// Choosing an open screen again brings the same instance forward; it does not load a second one.
void TstNavegacion::unaPantallaAbiertaSoloPasaAlFrente() {
    shell::Formulario* bancos = programa_->menu(QStringLiteral("Bancos"));
    QVERIFY(bancos);
    QPointer<shell::Formulario> primera(bancos);
    QVERIFY(programa_->menu(QStringLiteral("Proveedores")));
    QCOMPARE(programa_->menu(QStringLiteral("Bancos")), primera.data());
    QVERIFY(primera);
}

void TstNavegacion::acercaDeYSalida() {
    entorno_->alMostrarModal([](shell::Formulario& splash) { splash.Unload(); });
    QCOMPARE(programa_->menu(QStringLiteral("Acerca de ...")), nullptr);
    QCOMPARE(entorno_->modalesMostradas, QStringList{QStringLiteral("frmSplash")});
    QCOMPARE(entorno_->terminaciones, 0);
    programa_->menu(QStringLiteral("Salida"));
    QCOMPARE(entorno_->terminaciones, 1);
}

void TstNavegacion::losMenusTienenSuNombre() {
    QStringList nombres;
    for (QAction* a : programa_->principal().xMenu->actions())
        nombres << a->menu()->objectName();
    QCOMPARE(nombres, (QStringList{QStringLiteral("mnuCatalogos"), QStringLiteral("Movimientos"), QString(),
                                   QString(), QString(), QString()}));
}

// Alt+F4 or a desktop's close: the program ends only by "Salida" or "Cerrar el sistema".
void TstNavegacion::cerrarLaVentanaPrincipalNoTerminaNada() {
    auto& principal = programa_->principal();
    QVERIFY(!principal.close());
    QVERIFY(principal.isVisible());
    QVERIFY(!principal.descargado());
    QCOMPARE(Common::DE().CN.State(), 1);
    QCOMPARE(programa_->menu(QStringLiteral("Bancos"))->objectName(), QStringLiteral("frmBanco"));
}

QTEST_MAIN(TstNavegacion)
#include "tst_navegacion.moc"
