// Start-up and navigation: Main, the splash that is also the About box, and the main window's menu
// and toolbar dispatch, driven through their real controls.
#include "BaseDePrueba.h"
#include "EntornoDePantallas.h"
#include "shell/common/Common.h"
#include "shell/common/Twips.h"
#include "shell/principal/Main.h"
#include "shell/principal/frmMain.h"
#include "shell/principal/frmSplash.h"

#include <QMenu>
#include <QScreen>
#include <QToolButton>
#include <QtTest>

using namespace shell;

class TstPrincipal : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void mainMuestraElSplashYLuegoLaVentana();
    void laVentanaPrincipalArribaALaDerecha();
    void menuDespacha_data();
    void menuDespacha();
    void entradasQueNoHacenNada();
    void barraDespacha_data();
    void barraDespacha();
    void acercaDeMuestraCerrarElSistema();
    void splashSeCierraSolo();
    void splashSeCierraConClicOTecla_data();
    void splashSeCierraConClicOTecla();

private:
    QAction* entrada(const QString& caption);
    std::unique_ptr<BaseDePrueba> base_;
    std::unique_ptr<EntornoDePantallas> entorno_;
    QStringList abiertas_;
};

void TstPrincipal::initTestCase() {
    for (const char* p :
         {"frmCliente", "frmFiador", "frmProveedor", "frmBanco", "frmArticulo", "frmSolicitud", "frmRecibo",
          "frmFactura", "frmDocumentos", "frmNotaEnvio", "frmNotaIngreso"})
        frmMain::registrarPantalla(QString::fromLatin1(p),
                                   [this, p] { abiertas_ << QString::fromLatin1(p); });
}

void TstPrincipal::init() {
    base_ = std::make_unique<BaseDePrueba>(true);
    entorno_ = std::make_unique<EntornoDePantallas>();
    abiertas_.clear();
}

void TstPrincipal::cleanup() {
    entorno_.reset();
    if (Common::DE().CN.State() == store::adStateOpen) Common::DE().CN.Close();
    base_.reset();
}

QAction* TstPrincipal::entrada(const QString& caption) {
    for (QAction* a : Common::Pantalla<frmMain>().xMenu->findChildren<QAction*>())
        if (a->text() == caption) return a;
    qFatal("no menu entry %s", qPrintable(caption));
}

void TstPrincipal::mainMuestraElSplashYLuegoLaVentana() {
    bool ventanaYaVisible = true;
    entorno_->alMostrarModal([&](Formulario& f) {
        ventanaYaVisible = Common::Pantalla<frmMain>().isVisible();
        QVERIFY(!f.findChild<QPushButton*>(QStringLiteral("cmdClose"))->isVisibleTo(&f));
        QTest::mouseClick(f.findChild<QWidget*>(QStringLiteral("Picture1")), Qt::LeftButton);
    });
    Main();
    QCOMPARE(entorno_->modalesMostradas, QStringList{"frmSplash"});
    QVERIFY(!ventanaYaVisible);
    QVERIFY(Common::Pantalla<frmMain>().isVisible());
    QCOMPARE(Common::DE().CN.State(), 1); // the shared connection opens with the main window
    QCOMPARE(Common::ColorTituloFondo, QColor(0, 0, 128));
    QCOMPARE(Common::ColorInactivoTexto, QColor(224, 224, 224));
}

void TstPrincipal::laVentanaPrincipalArribaALaDerecha() {
    auto& m = Common::Pantalla<frmMain>();
    QCOMPARE(m.Shape->x(), px(20));
    QCOMPARE(m.width(), m.Shape->width() + px(60));
    QCOMPARE(m.height(), m.Shape->height() + px(40));
    QCOMPARE(m.y(), 0);
    const int pantalla = QGuiApplication::primaryScreen()->geometry().width();
    QVERIFY(qAbs(m.x() - (pantalla - m.width() - px(1000))) <= 1);
    QCOMPARE(m.xToolbar->width(), m.xMenu->width());
}

void TstPrincipal::menuDespacha_data() {
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("pantalla");
    QTest::newRow("Clientes") << "Clientes"
                              << "frmCliente";
    QTest::newRow("Fiadores") << "Fiadores"
                              << "frmFiador";
    QTest::newRow("Proveedores") << "Proveedores"
                                 << "frmProveedor";
    QTest::newRow("Bancos") << "Bancos"
                            << "frmBanco";
    QTest::newRow("Artículos") << "Artículos"
                               << "frmArticulo";
    QTest::newRow("Créditos") << "Créditos"
                              << "frmSolicitud";
    QTest::newRow("Recibos") << "Recibos"
                             << "frmRecibo";
    QTest::newRow("Facturas") << "Facturas"
                              << "frmFactura";
    QTest::newRow("Pagos") << "Pagos"
                           << "frmDocumentos";
    QTest::newRow("Ingresos") << "Ingresos"
                              << "frmNotaIngreso";
    QTest::newRow("Envíos") << "Envíos"
                            << "frmNotaEnvio";
}

void TstPrincipal::menuDespacha() {
    QFETCH(QString, caption);
    QFETCH(QString, pantalla);
    Common::ClienteAbrir = 17;
    entrada(caption)->trigger();
    QCOMPARE(abiertas_, QStringList{pantalla});
    // Only "Clientes" touches a shared value: the client screen must not open on a stale request.
    QCOMPARE(Common::ClienteAbrir, caption == QLatin1String("Clientes") ? 0L : 17L);
    QCOMPARE(entorno_->terminaciones, 0);
}

void TstPrincipal::entradasQueNoHacenNada() {
    for (const char* c : {"Reporte1", "Reporte2", "Opcion 1", "Opcion 2"})
        entrada(QString::fromLatin1(c))->trigger();
    Common::Pantalla<frmMain>().xMenu_Click(QStringLiteral("Desconocida"));
    QVERIFY(abiertas_.isEmpty());
    QVERIFY(entorno_->modalesMostradas.isEmpty());
    QCOMPARE(entorno_->terminaciones, 0);
    entrada(QStringLiteral("Salida"))->trigger();
    QCOMPARE(entorno_->terminaciones, 1);
}

void TstPrincipal::barraDespacha_data() {
    QTest::addColumn<QString>("clave");
    QTest::addColumn<QString>("tip");
    QTest::addColumn<QString>("pantalla");
    QTest::newRow("Creditos") << "Creditos"
                              << "Solicitudes de crédito"
                              << "frmSolicitud";
    QTest::newRow("Recibos") << "Recibos"
                             << "Recibos"
                             << "frmRecibo";
    QTest::newRow("Facturas") << "Facturas"
                              << "Facturas"
                              << "frmFactura";
    QTest::newRow("Ingresos") << "Ingresos"
                              << "Ingresos de mercadería"
                              << "frmNotaIngreso";
    QTest::newRow("Envios") << "Envios"
                            << "Envios"
                            << "frmNotaEnvio";
}

void TstPrincipal::barraDespacha() {
    QFETCH(QString, clave);
    QFETCH(QString, tip);
    QFETCH(QString, pantalla);
    auto& m = Common::Pantalla<frmMain>();
    QCOMPARE(m.xToolbar->actions().size(), 5);
    auto* accion = m.xToolbar->findChild<QAction*>(clave);
    QVERIFY(accion);
    QCOMPARE(accion->toolTip(), tip);
    QVERIFY(!accion->icon().isNull());
    QTest::mouseClick(m.xToolbar->widgetForAction(accion), Qt::LeftButton);
    QCOMPARE(abiertas_, QStringList{pantalla});
}

void TstPrincipal::acercaDeMuestraCerrarElSistema() {
    bool cerrarVisible = false;
    entorno_->alMostrarModal([&](Formulario& f) {
        auto* cerrar = f.findChild<QPushButton*>(QStringLiteral("cmdClose"));
        cerrarVisible = cerrar->isVisible();
        QCOMPARE(cerrar->text(), QStringLiteral("Cerrar el sistema"));
        QTest::mouseClick(cerrar, Qt::LeftButton);
    });
    entrada(QStringLiteral("Acerca de ..."))->trigger();
    QCOMPARE(entorno_->modalesMostradas, QStringList{"frmSplash"});
    QVERIFY(cerrarVisible);
    QCOMPARE(entorno_->terminaciones, 1);
    QCOMPARE(Common::TextoSeleccionado, QStringLiteral("Salir")); // kept until a dialog overwrites it
}

void TstPrincipal::splashSeCierraSolo() {
    auto& s = Common::Pantalla<frmSplash>();
    QCOMPARE(s.Timer1->interval(), 1000);
    QVERIFY(s.Timer1->isActive());
    for (int i = 0; i < 4; ++i)
        s.Timer1_Timer();
    QVERIFY(!s.descargado());
    s.Timer1_Timer();
    QVERIFY(s.descargado());
}

void TstPrincipal::splashSeCierraConClicOTecla_data() {
    QTest::addColumn<QString>("como");
    QTest::newRow("clic en la lamina") << "Picture1";
    QTest::newRow("clic en el logo") << "imgLogo";
    QTest::newRow("una tecla") << "tecla";
}

void TstPrincipal::splashSeCierraConClicOTecla() {
    QFETCH(QString, como);
    auto& s = Common::Pantalla<frmSplash>();
    s.Show();
    if (como == QLatin1String("tecla"))
        QTest::keyClick(&s, Qt::Key_A);
    else
        QTest::mouseClick(s.findChild<QWidget*>(como), Qt::LeftButton);
    QVERIFY(s.descargado());
    QCOMPARE(entorno_->terminaciones, 0);
}

QTEST_MAIN(TstPrincipal)
#include "tst_principal.moc"
