// What every screen shares: one instance loaded on first use and built afresh after it unloads,
// the chrome laid out in twips, the title strip that moves the window and changes colour, Enter
// moving on, the two modes of a record screen, and failures reaching the fatal path.
#include "BaseDePrueba.h"
#include "EntornoDePantallas.h"
#include "shell/common/Common.h"
#include "shell/common/Twips.h"
#include "shell/marco/PantallaRegistro.h"

#include <QLabel>
#include <QLineEdit>
#include <QtTest>

using namespace shell;

namespace {

// A record screen with two fields, counting its loads and the bar's clicks.
class PantallaDePrueba : public PantallaRegistro {
public:
    PantallaDePrueba()
        : PantallaRegistro(QStringLiteral("Pantalla de prueba"), 7000, 3000) {
        setObjectName(QStringLiteral("PantallaDePrueba"));
        etiqueta(QStringLiteral("Nombre:"), 120, 120);
        txtNombre = campo<QLineEdit>(QStringLiteral("txtNombre"), 960, 120, 3000);
        txtDireccion = campo<QLineEdit>(QStringLiteral("txtDireccion"), 960, 480, 3000);
    }
    QLineEdit* txtNombre;
    QLineEdit* txtDireccion;
    static inline int cargas = 0;
    bool negarseACerrar = false;
    QStringList clics;
    std::function<void()> alPulsar;

protected:
    void Form_Load() override {
        ++cargas;
        AjustarPantalla();
    }
    void Form_QueryUnload(bool& cancelar) override { cancelar = negarseACerrar; }
    void cmdBoton_Click(int Index) override {
        clics << cmdBoton[Index]->text();
        if (alPulsar) alPulsar();
        if (cmdBoton[Index]->text() == QLatin1String("Agregar"))
            ModoEdicion(QStringLiteral("Agregar nuevo registro"));
        if (cmdBoton[Index]->text() == QLatin1String("Cancelar")) ModoConsulta();
    }
};

// A record screen that edits inside the shared transaction, with no closing logic of its own.
class PantallaConTransaccion : public PantallaRegistro {
public:
    PantallaConTransaccion()
        : PantallaRegistro(QStringLiteral("Recibos"), 7000, 3000) {
        setObjectName(QStringLiteral("PantallaConTransaccion"));
    }
};

QColor colorDe(QWidget* w) {
    return w->grab().toImage().pixelColor(2, 2);
}

void mover(QWidget* w, QPointF donde, Qt::MouseButtons botones) {
    QMouseEvent e(QEvent::MouseMove, donde, w->mapToGlobal(donde), Qt::NoButton, botones, Qt::NoModifier);
    QApplication::sendEvent(w, &e);
}

} // namespace

class TstMarco : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { entorno_ = std::make_unique<EntornoDePantallas>(); }
    void cleanup() { entorno_.reset(); }
    void unaInstanciaPorPantalla();
    void ajustarPantalla_data();
    void ajustarPantalla();
    void enterAvanzaYPulsaBotones();
    void elTituloArrastraLaVentana();
    void coloresDelTitulo();
    void modosDeUnaPantallaDeRegistro();
    void fallosSinAtenderLleganAlCaminoFatal_data();
    void fallosSinAtenderLleganAlCaminoFatal();
    void mostrarModalVuelveAlDescargar();
    void guardaDeTransaccionAlCerrar_data();
    void guardaDeTransaccionAlCerrar();

private:
    std::unique_ptr<EntornoDePantallas> entorno_;
};

void TstMarco::unaInstanciaPorPantalla() {
    PantallaDePrueba::cargas = 0;
    auto& primera = Common::Pantalla<PantallaDePrueba>();
    QCOMPARE(PantallaDePrueba::cargas, 1); // touching the instance loads it
    QCOMPARE(&Common::Pantalla<PantallaDePrueba>(), &primera);
    QCOMPARE(PantallaDePrueba::cargas, 1);

    primera.negarseACerrar = true;
    QVERIFY(!primera.Unload());
    QCOMPARE(&Common::Pantalla<PantallaDePrueba>(), &primera);

    primera.negarseACerrar = false;
    primera.txtNombre->setText(QStringLiteral("queda en la instancia vieja"));
    QVERIFY(primera.Unload());
    auto& segunda = Common::Pantalla<PantallaDePrueba>();
    QCOMPARE(PantallaDePrueba::cargas, 2);
    QVERIFY(segunda.txtNombre->text().isEmpty()); // private state begins anew
}

void TstMarco::ajustarPantalla_data() {
    QTest::addColumn<double>("ancho");
    QTest::addColumn<double>("alto");
    QTest::newRow("7000 x 3000") << 7000.0 << 3000.0;
    QTest::newRow("9000 x 5400") << 9000.0 << 5400.0;
}

void TstMarco::ajustarPantalla() {
    QFETCH(double, ancho);
    QFETCH(double, alto);
    auto& p = Common::Pantalla<PantallaDePrueba>();
    p.resize(px(ancho), px(alto));
    p.lblTitulo->setText(QStringLiteral("Bancos del sistema"));
    p.AjustarPantalla();
    // Lengths are twips; the window's own come back from its pixels.
    const double W = p.Width(), H = p.Height();
    QCOMPARE(p.lblTitulo->text(), QStringLiteral("Bancos del sistema "));
    QCOMPARE(p.lblTitulo->width(), p.width() - p.cmdClose->width());
    QCOMPARE(p.cmdClose->height(), p.lblTitulo->height());
    QCOMPARE(p.cmdClose->x() + p.cmdClose->width(), p.width());
    QCOMPARE(p.fraBarra->x(), 0);
    QCOMPARE(p.fraBarra->width(), px(W - 20));
    QCOMPARE(p.fraBarra->y(), px(H - altoTw(p.fraBarra) - 20));
    QCOMPARE(p.fraMain->x(), px(120));
    QCOMPARE(p.fraMain->y(), p.lblTitulo->height() + px(120));
    QCOMPARE(p.fraMain->width(), px(W - 270));
    QVERIFY(qAbs(p.fraMain->y() + p.fraMain->height() + px(120) - p.fraBarra->y()) <= 1);
    QVERIFY(!p.fraMain->isEnabled());
    QCOMPARE(p.cmdBoton[0]->palette().color(QPalette::Button), QColor(216, 212, 208));
}

void TstMarco::enterAvanzaYPulsaBotones() {
    auto& p = Common::Pantalla<PantallaDePrueba>();
    p.Show();
    QVERIFY(QTest::qWaitForWindowActive(&p));
    QTest::mouseClick(p.cmdBoton[1], Qt::LeftButton); // Agregar: fields take input
    p.txtNombre->setFocus();
    QTest::keyClick(p.txtNombre, Qt::Key_Return);
    QCOMPARE(QApplication::focusWidget(), p.txtDireccion);
    QVERIFY(p.txtNombre->text().isEmpty());
    p.cmdBoton[6]->setFocus();
    QTest::keyClick(p.cmdBoton[6], Qt::Key_Return);
    QCOMPARE(p.clics, (QStringList{"Agregar", "Cancelar"}));
    QVERIFY(p.cmdBoton[0]->isVisible());
}

void TstMarco::elTituloArrastraLaVentana() {
    auto& p = Common::Pantalla<PantallaDePrueba>();
    p.Show();
    p.move(200, 150);
    mover(p.lblTitulo, {40, 8}, Qt::NoButton);
    mover(p.lblTitulo, {70, 18}, Qt::LeftButton);
    QCOMPARE(p.pos(), QPoint(230, 160));
    // A second drag with no hover in between starts from the last position seen without a button.
    mover(p.lblTitulo, {50, 8}, Qt::LeftButton);
    QCOMPARE(p.pos(), QPoint(240, 160));
    // Another button, or two, only record the origin.
    mover(p.lblTitulo, {10, 10}, Qt::LeftButton | Qt::RightButton);
    mover(p.lblTitulo, {12, 11}, Qt::LeftButton);
    QCOMPARE(p.pos(), QPoint(242, 161));
}

void TstMarco::coloresDelTitulo() {
    auto& p = Common::Pantalla<PantallaDePrueba>();
    p.Show();
    Common::AtenuarTitulo(p);
    QCOMPARE(colorDe(p.lblTitulo), QColor(128, 128, 128));
    QCOMPARE(colorDe(p.cmdClose), QColor(128, 128, 128));
    Common::ResaltarTitulo(p);
    QCOMPARE(colorDe(p.lblTitulo), QColor(0, 0, 128));
    QCOMPARE(colorDe(p.cmdClose), QColor(0, 0, 128));
}

void TstMarco::modosDeUnaPantallaDeRegistro() {
    auto& p = Common::Pantalla<PantallaDePrueba>();
    p.Show();
    const auto visibles = [&] {
        QList<int> v;
        for (int i = 0; i < p.cmdBoton.size(); ++i)
            if (p.cmdBoton[i]->isVisible()) v << i;
        return v;
    };
    QCOMPARE(visibles(), (QList<int>{0, 1, 2, 3, 4}));
    QVERIFY(!p.lblEstado->isVisible());
    QTest::mouseClick(p.cmdBoton[1], Qt::LeftButton);
    QCOMPARE(visibles(), (QList<int>{5, 6}));
    QCOMPARE(p.cmdBoton[5]->geometry(), p.cmdBoton[0]->geometry());
    QCOMPARE(p.cmdBoton[6]->geometry(), p.cmdBoton[1]->geometry());
    QVERIFY(p.fraMain->isEnabled());
    QVERIFY(p.lblEstado->isVisible());
    QCOMPARE(p.lblEstado->text(), QStringLiteral("Agregar nuevo registro"));
    QTest::mouseClick(p.cmdBoton[6], Qt::LeftButton);
    QCOMPARE(visibles(), (QList<int>{0, 1, 2, 3, 4}));
    QVERIFY(!p.fraMain->isEnabled());
}

void TstMarco::fallosSinAtenderLleganAlCaminoFatal_data() {
    QTest::addColumn<bool>("delAlmacen");
    QTest::addColumn<qint32>("numero");
    QTest::newRow("fallo de la base") << true << store::FalloSintaxis;
    QTest::newRow("otra excepcion") << false << store::FalloGeneral;
}

void TstMarco::fallosSinAtenderLleganAlCaminoFatal() {
    entorno_->esperaFallos(); // checked below
    QFETCH(bool, delAlmacen);
    QFETCH(qint32, numero);
    auto& p = Common::Pantalla<PantallaDePrueba>();
    p.alPulsar = [delAlmacen] {
        if (delAlmacen) throw store::Fallo(store::FalloSintaxis, QStringLiteral("sentencia rota"));
        throw std::runtime_error("otra cosa");
    };
    QTest::mouseClick(p.cmdBoton[4], Qt::LeftButton);
    QCOMPARE(entorno_->fallos.size(), 1);
    QCOMPARE(entorno_->fallos[0].numero(), numero);
}

void TstMarco::mostrarModalVuelveAlDescargar() {
    auto& dueno = Common::Pantalla<PantallaDePrueba>();
    dueno.Show();
    auto* dialogo = new PantallaRegistro(QStringLiteral("Dialogo"), 4000, 2000);
    dialogo->setObjectName(QStringLiteral("Dialogo"));
    entorno_->alMostrarModal([](Formulario& f) {
        QVERIFY(f.isVisible());
        QVERIFY(f.isModal());
        QTest::mouseClick(f.findChild<QPushButton*>(QStringLiteral("cmdClose")), Qt::LeftButton);
    });
    dialogo->ShowModal();
    QCOMPARE(entorno_->modalesMostradas, QStringList{"Dialogo"});
    QCOMPARE(entorno_->titulosModales, QStringList{"Dialogo"});
    QVERIFY(dialogo->descargado());
}

void TstMarco::guardaDeTransaccionAlCerrar_data() {
    QTest::addColumn<bool>("guardada");
    QTest::addColumn<bool>("conTransaccion");
    QTest::addColumn<QString>("respuesta");
    QTest::addColumn<bool>("cierra");
    QTest::newRow("Aceptar anula y cierra") << true << true << "Aceptar" << true;
    QTest::newRow("Cancelar deja la pantalla") << true << true << "Cancelar" << false;
    QTest::newRow("sin transaccion no pregunta") << true << false << "" << true;
    QTest::newRow("pantalla sin guarda cierra y deja la transaccion") << false << true << "" << true;
}

void TstMarco::guardaDeTransaccionAlCerrar() {
    QFETCH(bool, guardada);
    QFETCH(bool, conTransaccion);
    QFETCH(QString, respuesta);
    QFETCH(bool, cierra);
    BaseDePrueba base(true);
    auto& cn = Common::DE().CN;
    cn.Open();
    if (conTransaccion) {
        Common::TransaccionActiva = cn.BeginTrans();
        cn.Execute(QStringLiteral("Insert Into Banco (Nombre) Values ('Banco pendiente')"));
    }
    auto& p = Common::Pantalla<PantallaConTransaccion>();
    p.setGuardaDeTransaccion(guardada);
    p.Show();
    QString pregunta;
    if (!respuesta.isEmpty())
        entorno_->alMostrarModal([&](Formulario& d) {
            pregunta = d.findChild<QLabel*>(QStringLiteral("lblPregunta"))->text();
            for (QPushButton* b : d.findChildren<QPushButton*>())
                if (b->text() == respuesta) QTest::mouseClick(b, Qt::LeftButton);
        });
    QTest::mouseClick(p.cmdClose, Qt::LeftButton);
    QCOMPARE(p.descargado(), cierra);
    QCOMPARE(entorno_->modalesMostradas.size(), respuesta.isEmpty() ? 0 : 1);
    if (!respuesta.isEmpty())
        QCOMPARE(pregunta, QStringLiteral("¿Hay una transaccion de datos activa\r\nDesea anularla?"));
    const bool anulada = respuesta == QLatin1String("Aceptar");
    QCOMPARE(Common::TransaccionActiva, (conTransaccion && !anulada) ? 1L : 0L);
    QCOMPARE(cn.nivelTransaccion(), (conTransaccion && !anulada) ? 1 : 0);
    if (cn.nivelTransaccion() > 0) cn.RollbackTrans();
    QCOMPARE(base.valor(QStringLiteral("SELECT count(*) FROM Banco")), QStringLiteral("0"));
    Common::TransaccionActiva = 0;
    if (!p.descargado()) p.Unload();
    cn.Close();
}

QTEST_MAIN(TstMarco)
#include "tst_marco.moc"
