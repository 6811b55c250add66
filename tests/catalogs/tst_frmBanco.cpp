// The bank screen as a clerk uses it, against the database: opening on the first bank, adding,
// finding through the pick list, changing, deleting, and what happens when the database refuses.
#include "BaseDePrueba.h"
#include "EntornoDePantallas.h"
#include "ModosDeRegistro.h"
#include "ProgramaDePrueba.h"
#include "catalogs/frmBanco.h"
#include "shell/busqueda/RejillaDeDatos.h"

#include <QtTest>

using namespace catalogos;

class TstFrmBanco : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void abreEnElPrimerBanco();
    void agregarGuardaLoEscrito();
    void cancelarNoDejaNada();
    void buscarPorLaLista_data();
    void buscarPorLaLista();
    void modificarYGuardar();
    void eliminarSinPreguntar();
    void tablaVaciaModificarYGuardarFalla();
    void bancoConRecibosNoSeElimina();
    void guardarMientrasOtraPantallaTieneLaBase();

private:
    frmBanco& pantalla();
    void pulsar(const QString& caption);
    QString db(const QString& consulta) { return base_->valor(consulta); }
    std::unique_ptr<BaseDePrueba> base_;
    std::unique_ptr<EntornoDePantallas> entorno_;
    std::unique_ptr<ProgramaDePrueba> programa_;
};

void TstFrmBanco::init() {
    base_ = std::make_unique<BaseDePrueba>(true);
    base_->sqlite(
        "INSERT INTO Banco (Nombre, Direccion) VALUES ('Banrural', 'Zona 9'), ('Banco Industrial', 'Zona "
        "4'), ('Bantrab', 'Zona 1');");
    entorno_ = std::make_unique<EntornoDePantallas>();
    programa_ = std::make_unique<ProgramaDePrueba>();
}

void TstFrmBanco::cleanup() {
    entorno_.reset();
    programa_.reset();
    base_.reset();
}

// "Catalogos > Bancos", as the clerk opens it; the open screen after that.
frmBanco& TstFrmBanco::pantalla() {
    auto& p = Common::Pantalla<frmBanco>();
    return p.isVisible() ? p : programa_->abrir<frmBanco>(QStringLiteral("Bancos"));
}

void TstFrmBanco::pulsar(const QString& caption) {
    pulsarBoton(pantalla().cmdBoton, caption);
}

void TstFrmBanco::abreEnElPrimerBanco() {
    auto& p = pantalla();
    QCOMPARE(p.txtNombre->text(), QStringLiteral("Banrural"));
    QCOMPARE(p.txtDireccion->text(), QStringLiteral("Zona 9"));
    QVERIFY(!p.fraMain->isEnabled());
    QCOMPARE(p.lblTitulo->text(), QStringLiteral("Bancos del sistema "));
}

void TstFrmBanco::agregarGuardaLoEscrito() {
    auto& p = pantalla();
    pulsar("Agregar");
    QCOMPARE(QApplication::focusWidget(), p.txtNombre);
    QVERIFY(p.txtNombre->text().isEmpty());
    teclear(p.txtNombre, QStringLiteral("Banco Muñoz"));
    QTest::keyClick(p.txtNombre, Qt::Key_Return); // moves on, as Tab
    QCOMPARE(QApplication::focusWidget(), p.txtDireccion);
    teclear(p.txtDireccion, QStringLiteral("6a. avenida, zona 1"));
    pulsar("Guardar");
    QCOMPARE(db("SELECT Direccion FROM Banco WHERE Nombre = 'Banco Muñoz'"),
             QStringLiteral("6a. avenida, zona 1"));
    verificarConsulta(p);
    QVERIFY(entorno_->fallos.isEmpty());
}

void TstFrmBanco::cancelarNoDejaNada() {
    auto& p = pantalla();
    pulsar("Agregar");
    teclear(p.txtNombre, QStringLiteral("Banco de paso"));
    QTest::keyClick(p.txtNombre, Qt::Key_Tab);
    pulsar("Cancelar");
    QCOMPARE(db("SELECT count(*) FROM Banco"), QStringLiteral("3"));
    QVERIFY(!p.fraMain->isEnabled());
}

void TstFrmBanco::buscarPorLaLista_data() {
    QTest::addColumn<QString>("como"); // "aceptar", "doble clic", "cancelar", "cerrar"
    QTest::addColumn<QString>("esperado");
    QTest::newRow("Aceptar") << "aceptar"
                             << "Bantrab";
    QTest::newRow("doble clic") << "doble clic"
                                << "Bantrab";
    QTest::newRow("Cancelar deja la fila") << "cancelar"
                                           << "Banrural";
    QTest::newRow("la caja de cerrar deja la fila") << "cerrar"
                                                    << "Banrural";
}

void TstFrmBanco::buscarPorLaLista() {
    QFETCH(QString, como);
    QFETCH(QString, esperado);
    auto& p = pantalla();
    QStringList filas;
    QColor tituloMientras;
    entorno_->alMostrarModal([&](shell::Formulario& lista) {
        QCOMPARE(lista.Left(), p.Left() + 300);
        tituloMientras = p.lblTitulo->grab().toImage().pixelColor(2, 2);
        auto* rejilla = lista.findChild<shell::RejillaDeDatos*>(QStringLiteral("DataGrid"));
        for (int i = 0; i < rejilla->model()->rowCount(); ++i)
            filas << rejilla->model()->index(i, 1).data().toString();
        // The banks are listed by name; Bantrab is the third.
        const QRect celda = rejilla->visualRect(rejilla->model()->index(2, 1));
        QTest::mouseClick(rejilla->viewport(), Qt::LeftButton, {}, celda.center());
        if (como == QLatin1String("doble clic"))
            QTest::mouseDClick(rejilla->viewport(), Qt::LeftButton, {}, celda.center());
        else if (como == QLatin1String("aceptar"))
            QTest::mouseClick(lista.findChild<QPushButton*>(QStringLiteral("cmdBoton(0)")), Qt::LeftButton);
        else if (como == QLatin1String("cancelar"))
            QTest::mouseClick(lista.findChild<QPushButton*>(QStringLiteral("cmdBoton(1)")), Qt::LeftButton);
        else
            QTest::mouseClick(lista.findChild<QPushButton*>(QStringLiteral("cmdClose")), Qt::LeftButton);
    });
    pulsar("Buscar");
    QCOMPARE(entorno_->titulosModales, QStringList{"Listado de bancos del sistema"});
    QCOMPARE(filas, (QStringList{"Banco Industrial", "Banrural", "Bantrab"}));
    QCOMPARE(p.txtNombre->text(), esperado);
    QCOMPARE(tituloMientras, QColor(128, 128, 128)); // dimmed while the list was open
    QCOMPARE(p.lblTitulo->grab().toImage().pixelColor(2, 2), QColor(0, 0, 128)); // highlighted again
}

void TstFrmBanco::modificarYGuardar() {
    auto& p = pantalla();
    pulsar("Modificar");
    QCOMPARE(p.lblEstado->text(), QStringLiteral("Modificar registro actual"));
    p.txtDireccion->setFocus();
    p.txtDireccion->selectAll();
    teclear(p.txtDireccion, QStringLiteral("Avenida La Reforma"));
    pulsar("Guardar");
    QCOMPARE(db("SELECT Direccion FROM Banco WHERE Nombre = 'Banrural'"),
             QStringLiteral("Avenida La Reforma"));
    QCOMPARE(db("SELECT count(*) FROM Banco"), QStringLiteral("3"));
}

void TstFrmBanco::eliminarSinPreguntar() {
    auto& p = pantalla();
    pulsar("Eliminar");
    QVERIFY(entorno_->modalesMostradas.isEmpty());
    QCOMPARE(db("SELECT count(*) FROM Banco WHERE Nombre = 'Banrural'"), QStringLiteral("0"));
    QCOMPARE(p.txtNombre->text(), QStringLiteral("Banco Industrial")); // back on the first row
}

void TstFrmBanco::tablaVaciaModificarYGuardarFalla() {
    entorno_->esperaFallos(); // checked below
    base_->sqlite("DELETE FROM Banco;");
    auto& p = pantalla();
    QVERIFY(p.txtNombre->text().isEmpty());
    pulsar("Modificar");
    QVERIFY(p.fraMain->isEnabled());
    pulsar("Guardar");
    QCOMPARE(entorno_->fallos.size(), 1); // nothing catches it: the program would end here
}

void TstFrmBanco::bancoConRecibosNoSeElimina() {
    entorno_->esperaFallos(); // checked below
    base_->sqlite(
        "INSERT INTO Recibo (NumeroRecibo, BancoID) SELECT 1, BancoID FROM Banco WHERE Nombre = 'Banrural';");
    pantalla();
    pulsar("Eliminar");
    QCOMPARE(entorno_->fallos.size(), 1);
    QCOMPARE(entorno_->fallos[0].numero(), store::FalloGeneral);
    QVERIFY(entorno_->fallos[0].descripcion().contains(QStringLiteral("No puede eliminarse el banco")));
    QCOMPARE(db("SELECT count(*) FROM Banco"), QStringLiteral("3"));
}

// The bank screen has no handler of its own: a save refused because another screen's transaction
// holds the database ends the program, and the error box says who holds it. Nothing is written, and
// the other screen's pending write stays its own.
void TstFrmBanco::guardarMientrasOtraPantallaTieneLaBase() {
    auto& p = pantalla();
    auto& cn = Common::DE().CN;
    cn.BeginTrans();
    cn.Execute(QStringLiteral("Update Banco Set Direccion = 'Zona 10' Where Nombre = 'Bantrab'"));
    pulsar("Agregar");
    teclear(p.txtNombre, QStringLiteral("Banco G&T"));
    entorno_->esperaFallos();
    pulsar("Guardar");
    QCOMPARE(entorno_->fallos.size(), 1);
    QCOMPARE(entorno_->fallos[0].numero(), store::FalloBaseOcupada);
    QVERIFY2(entorno_->fallos[0].descripcion().contains(QLatin1String("otra pantalla")),
             qPrintable(entorno_->fallos[0].descripcion()));
    QVERIFY(entorno_->titulosModales.isEmpty());
    QCOMPARE(db("SELECT count(*) FROM Banco"), QStringLiteral("3"));

    cn.CommitTrans();
    QCOMPARE(db("SELECT Direccion FROM Banco WHERE Nombre = 'Bantrab'"), QStringLiteral("Zona 10"));
}

QTEST_MAIN(TstFrmBanco)
#include "tst_frmBanco.moc"
