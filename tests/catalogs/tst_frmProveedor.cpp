// The supplier screen: it opens empty, shows a supplier only through the pick list, asks before
// deleting, and turns every failure of its bar into the driver's text for the clerk.
#include "BaseDePrueba.h"
#include "EntornoDePantallas.h"
#include "Gestos.h"
#include "ProgramaDePrueba.h"
#include "catalogs/frmProveedor.h"

#include <QLabel>
#include <QTableView>
#include <QtTest>

using namespace catalogos;

class TstFrmProveedor : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void cicloCompleto();
    void eliminar_data();
    void eliminar();
    void modificarEnLaPantallaVacia();

private:
    frmProveedor& pantalla();
    void pulsar(const QString& caption);
    void elegirEnLaLista(int fila);
    void responder(const QString& boton, QString* texto = nullptr) { ::responder(*entorno_, boton, texto); }
    std::unique_ptr<BaseDePrueba> base_;
    std::unique_ptr<EntornoDePantallas> entorno_;
    std::unique_ptr<ProgramaDePrueba> programa_;
};

void TstFrmProveedor::init() {
    base_ = std::make_unique<BaseDePrueba>(true);
    base_->sqlite(
        "INSERT INTO Proveedor (Nombre, NIT) VALUES ('Muebles Finos', '8796541-2'), ('Electro Hogar', "
        "'4561237-9');");
    entorno_ = std::make_unique<EntornoDePantallas>();
    programa_ = std::make_unique<ProgramaDePrueba>();
}

void TstFrmProveedor::cleanup() {
    entorno_.reset();
    programa_.reset();
    base_.reset();
}

// "Catalogos > Proveedores", as the clerk opens it; the open screen after that.
frmProveedor& TstFrmProveedor::pantalla() {
    auto& p = Common::Pantalla<frmProveedor>();
    return p.isVisible() ? p : programa_->abrir<frmProveedor>(QStringLiteral("Proveedores"));
}

void TstFrmProveedor::pulsar(const QString& caption) {
    pulsarBoton(pantalla().cmdBoton, caption);
}

// The pick list lists by name; the row is picked with "&Aceptar".
void TstFrmProveedor::elegirEnLaLista(int fila) {
    entorno_->alMostrarModal([fila](shell::Formulario& lista) {
        auto* rejilla = lista.findChild<QTableView*>(QStringLiteral("DataGrid"));
        QTest::mouseClick(rejilla->viewport(), Qt::LeftButton, {},
                          rejilla->visualRect(rejilla->model()->index(fila, 1)).center());
        QTest::mouseClick(lista.findChild<QPushButton*>(QStringLiteral("cmdBoton(0)")), Qt::LeftButton);
    });
}

void TstFrmProveedor::cicloCompleto() {
    auto& p = pantalla();
    QVERIFY(p.txtNombre->text().isEmpty()); // opens empty
    pulsar("Agregar");
    QCOMPARE(QApplication::focusWidget(), p.txtNombre);
    teclear(p.txtNombre, QStringLiteral("Distribuidora La Económica"));
    QTest::keyClick(p.txtNombre, Qt::Key_Return);
    teclear(p.Text1, QStringLiteral("1234567-8"));
    QTest::keyClick(p.Text1, Qt::Key_Return);
    teclear(p.Text2, QStringLiteral("Calzada Roosevelt, zona 11"));
    pulsar("Guardar");
    QCOMPARE(
        base_->valor(
            "SELECT NIT || ' / ' || Direccion FROM Proveedor WHERE Nombre = 'Distribuidora La Económica'"),
        QStringLiteral("1234567-8 / Calzada Roosevelt, zona 11"));

    elegirEnLaLista(1); // Electro Hogar, between the other two by name
    pulsar("Buscar");
    QCOMPARE(entorno_->titulosModales.last(), QStringLiteral("Listado de proveedores"));
    QCOMPARE(p.txtNombre->text(), QStringLiteral("Electro Hogar"));
    QCOMPARE(p.adoProveedor->RecordSource(), "Select * From Proveedor Where ProveedorID = " +
                                                 base_->valor("SELECT ProveedorID FROM Proveedor WHERE "
                                                              "Nombre = 'Electro Hogar'"));
    pulsar("Modificar");
    p.Text4->setFocus();
    teclear(p.Text4, QStringLiteral("2366-7789"));
    pulsar("Guardar");
    QCOMPARE(base_->valor("SELECT Fax FROM Proveedor WHERE Nombre = 'Electro Hogar'"),
             QStringLiteral("2366-7789"));
    QVERIFY(entorno_->fallos.isEmpty());
}

void TstFrmProveedor::eliminar_data() {
    QTest::addColumn<QString>("respuesta");
    QTest::addColumn<bool>("conNotaDeIngreso");
    QTest::addColumn<int>("quedan");
    QTest::newRow("Aceptar borra y vacia la pantalla") << "Aceptar" << false << 1;
    QTest::newRow("Cancelar no borra nada") << "Cancelar" << false << 2;
    QTest::newRow("rehusado: el mensaje del driver y la fila en pantalla") << "Aceptar" << true << 2;
}

void TstFrmProveedor::eliminar() {
    QFETCH(QString, respuesta);
    QFETCH(bool, conNotaDeIngreso);
    QFETCH(int, quedan);
    if (conNotaDeIngreso)
        base_->sqlite(
            "INSERT INTO NotaIngreso (NumeroIngreso, ProveedorID) SELECT 1, ProveedorID FROM Proveedor "
            "WHERE Nombre = 'Electro Hogar';");
    auto& p = pantalla();
    elegirEnLaLista(0); // Electro Hogar
    pulsar("Buscar");
    QString pregunta, mensaje;
    responder(respuesta, &pregunta);
    if (conNotaDeIngreso) responder(QStringLiteral("cmdClose"), &mensaje);
    pulsar("Eliminar");
    QCOMPARE(pregunta, QStringLiteral("¿En realidad desea eliminar este proveedor?"));
    QCOMPARE(base_->valor("SELECT count(*) FROM Proveedor").toInt(), quedan);
    const bool borrado = respuesta == QLatin1String("Aceptar") && !conNotaDeIngreso;
    QCOMPARE(p.txtNombre->text(), borrado ? QString() : QStringLiteral("Electro Hogar"));
    if (conNotaDeIngreso) {
        QVERIFY2(mensaje.contains(QStringLiteral("No puede eliminarse el proveedor")), qPrintable(mensaje));
        QCOMPARE(entorno_->titulosModales.last(), QStringLiteral("Proveedores"));
    }
    QVERIFY(entorno_->fallos.isEmpty()); // nothing ends the program
    QVERIFY(p.cmdBoton[0]->isVisible());
}

// With no row on the screen, "Guardar" and "Eliminar" fail; the clerk reads why and the screen stays.
void TstFrmProveedor::modificarEnLaPantallaVacia() {
    auto& p = pantalla();
    pulsar("Modificar");
    QString mensaje;
    responder(QStringLiteral("cmdClose"), &mensaje);
    pulsar("Guardar");
    QVERIFY(!mensaje.isEmpty());
    QVERIFY(p.cmdBoton[5]->isVisible()); // still editing
    pulsar("Cancelar");
    QString pregunta;
    responder(QStringLiteral("Aceptar"), &pregunta);
    responder(QStringLiteral("cmdClose"), &mensaje);
    mensaje.clear();
    pulsar("Eliminar");
    QCOMPARE(pregunta, QStringLiteral("¿En realidad desea eliminar este proveedor?"));
    QVERIFY(!mensaje.isEmpty());
    QVERIFY(entorno_->fallos.isEmpty());
}

QTEST_MAIN(TstFrmProveedor)
#include "tst_frmProveedor.moc"
