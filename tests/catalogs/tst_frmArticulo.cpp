// The article screen: found through the search, prices from the margins, the option buttons, and
// the two procedures other screens use to create an article and to test a sale against it.
#include "BaseDePrueba.h"
#include "EntornoDePantallas.h"
#include "NumeroDelFallo.h"
#include "ProgramaDePrueba.h"
#include "catalogs/Articulos.h"
#include "catalogs/frmArticulo.h"

#include <QLabel>
#include <QTableView>
#include <QtTest>

using namespace catalogos;

class TstFrmArticulo : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void precios_data();
    void precios();
    void opcionesMuestranUnaCajaSinBorrarLaOtra();
    void guardarNoRecalculaYCancelarDejaLoEscrito();
    void sinAgregarNiEliminar();
    void crearArticuloDentroDeLaTransaccion_data();
    void crearArticuloDentroDeLaTransaccion();
    void validarVenta_data();
    void validarVenta();
    void validarVentaDeArticuloDesconocido();
    void enterNoMarcaCasillasNiOpciones();
    void busquedaConTextoHostil_data();
    void busquedaConTextoHostil();

private:
    frmArticulo& pantalla();
    frmArticulo& buscar(const QString& nombre);
    void pulsar(const QString& caption);
    std::unique_ptr<BaseDePrueba> base_;
    std::unique_ptr<EntornoDePantallas> entorno_;
    std::unique_ptr<ProgramaDePrueba> programa_;
};

void TstFrmArticulo::init() {
    base_ = std::make_unique<BaseDePrueba>(true);
    // Refrigeradora: 5 in stock at cost 100. Estufa: none, margins both set. Lavadora: by amount.
    base_->sqlite(
        "INSERT INTO Articulo (ArticuloID, Nombre, Modelo, Color, Costo, ContadoPorcentaje, ContadoValor, "
        "CreditoPorcentaje, CreditoValor) VALUES (1, 'Refrigeradora', 'RT38', 'Blanco', 100, 25, 0, 0, 60), "
        "(2, 'Estufa', 'E4', 'Gris', 100, 10, 30, 20, 45), (3, 'Lavadora', 'WA17', 'Blanco', 100, 0, 30, 0, "
        "0);"
        "INSERT INTO NotaIngreso (IngresoID, NumeroIngreso, ProveedorID) VALUES (1, 1, 0);"
        "INSERT INTO NotaIngresoDetalle (IngresoID, ArticuloID, Cantidad, Costo) VALUES (1, 1, 5, 100);");
    entorno_ = std::make_unique<EntornoDePantallas>();
    programa_ = std::make_unique<ProgramaDePrueba>();
}

void TstFrmArticulo::cleanup() {
    entorno_.reset();
    programa_.reset();
    base_.reset();
}

// "Catalogos > Artículos", as the clerk opens it; the open screen after that.
frmArticulo& TstFrmArticulo::pantalla() {
    auto& p = Common::Pantalla<frmArticulo>();
    return p.isVisible() ? p : programa_->abrir<frmArticulo>(QStringLiteral("Artículos"));
}

void TstFrmArticulo::pulsar(const QString& caption) {
    pulsarBoton(Common::Pantalla<frmArticulo>().cmdBoton, caption);
}

// "Buscar", filtering the search by the article's name and double-clicking the row found.
frmArticulo& TstFrmArticulo::buscar(const QString& nombre) {
    auto& p = pantalla();
    entorno_->alMostrarModal([nombre](shell::Formulario& busca) {
        auto* filtro = busca.findChild<QLineEdit*>(QStringLiteral("txtField(1)"));
        teclear(filtro, nombre);
        QTest::mouseClick(busca.findChild<QPushButton*>(QStringLiteral("cmdBoton(0)")), Qt::LeftButton);
        auto* rejilla = busca.findChild<QTableView*>(QStringLiteral("dg"));
        QTest::mouseDClick(rejilla->viewport(), Qt::LeftButton, {},
                           rejilla->visualRect(rejilla->model()->index(0, 1)).center());
    });
    pulsar("Buscar");
    p.activateWindow(); // back from the search, the screen takes the keyboard again
    if (!QTest::qWaitForWindowActive(&p)) qWarning("the article screen did not become active");
    return p;
}

void TstFrmArticulo::precios_data() {
    QTest::addColumn<QString>("articulo");
    QTest::addColumn<QString>("contado");
    QTest::addColumn<QString>("credito");
    QTest::addColumn<QString>("existencia");
    QTest::newRow("25 % de 100; credito por valor 60") << "Refrigeradora"
                                                       << "125.00"
                                                       << "160.00"
                                                       << "5";
    QTest::newRow("ambos puestos: rige el porcentaje") << "Estufa"
                                                       << "110.00"
                                                       << "120.00"
                                                       << "0";
    QTest::newRow("valor 30 sobre 100") << "Lavadora"
                                        << "130.00"
                                        << "100.00"
                                        << "0";
}

void TstFrmArticulo::precios() {
    QFETCH(QString, articulo);
    QFETCH(QString, contado);
    QFETCH(QString, credito);
    QFETCH(QString, existencia);
    auto& p = buscar(articulo);
    QCOMPARE(entorno_->titulosModales, QStringList{"Busca articulos"});
    QCOMPARE(p.txtNombre->text(), articulo);
    QCOMPARE(p.lblContadoPrecio->text(), contado);
    QCOMPARE(p.lblCreditoPrecio->text(), credito);
    QCOMPARE(p.lblExistencia->text(), existencia); // a whole number, though it reads "0.00" at design
    const bool contadoPorPorcentaje = articulo != QLatin1String("Lavadora");
    QCOMPARE((*p.optContado)[0]->isChecked(), contadoPorPorcentaje);
    QCOMPARE(p.txtContadoPorcentaje->isVisibleTo(&p), contadoPorPorcentaje);
    QCOMPARE(p.txtContadoValor->isVisibleTo(&p), !contadoPorPorcentaje);
}

void TstFrmArticulo::opcionesMuestranUnaCajaSinBorrarLaOtra() {
    auto& p = buscar("Estufa");
    pulsar("Modificar");
    QTest::mouseClick((*p.optContado)[1], Qt::LeftButton);
    QVERIFY(p.txtContadoValor->isVisibleTo(&p));
    QVERIFY(!p.txtContadoPorcentaje->isVisibleTo(&p));
    QCOMPARE(p.txtContadoPorcentaje->text(), QStringLiteral("10"));
    QCOMPARE(p.lblContadoPrecio->text(), QStringLiteral("110.00")); // no price is recomputed
    QTest::mouseClick((*p.optCredito)[1], Qt::LeftButton);
    QVERIFY(p.txtCreditoValor->isVisibleTo(&p));
    QVERIFY(!p.txtCreditoPorcentaje->isVisibleTo(&p));
}

void TstFrmArticulo::guardarNoRecalculaYCancelarDejaLoEscrito() {
    auto& p = buscar("Estufa");
    pulsar("Modificar");
    QVERIFY(p.cmdBoton[3]->isVisible() && p.cmdBoton[4]->isVisible() && !p.cmdBoton[0]->isVisible());
    QCOMPARE(p.cmdBoton[3]->geometry(), p.cmdBoton[0]->geometry());
    QTest::mouseClick((*p.optContado)[1], Qt::LeftButton); // the percentage box is hidden now
    p.txtContadoValor->setFocus();
    p.txtContadoValor->selectAll();
    teclear(p.txtContadoValor, QStringLiteral("50"));
    QTest::keyClick(p.txtContadoValor, Qt::Key_Tab);
    QCOMPARE(p.txtContadoValor->text(), QStringLiteral("50.00")); // a number field
    pulsar("Guardar");
    QCOMPARE(
        base_->valor("SELECT ContadoPorcentaje || '/' || ContadoValor FROM Articulo WHERE ArticuloID = 2"),
        QStringLiteral("10.0/50.0")); // the hidden box kept its value
    QCOMPARE(p.lblContadoPrecio->text(), QStringLiteral("110.00"));
    QVERIFY(!p.fraMain->isEnabled());

    pulsar("Modificar");
    p.txtModelo->setFocus();
    p.txtModelo->selectAll();
    teclear(p.txtModelo, QStringLiteral("E6"));
    QTest::keyClick(p.txtModelo, Qt::Key_Tab);
    pulsar("Cancelar");
    QCOMPARE(p.txtModelo->text(), QStringLiteral("E6")); // what was typed stays on the screen
    QCOMPARE(base_->valor("SELECT Modelo FROM Articulo WHERE ArticuloID = 2"), QStringLiteral("E4"));
    QVERIFY(p.cmdBoton[0]->isVisible());
    buscar("Estufa");
    QCOMPARE(p.txtModelo->text(), QStringLiteral("E4")); // until the next search
    QVERIFY(entorno_->fallos.isEmpty());
}

void TstFrmArticulo::sinAgregarNiEliminar() {
    auto& p = pantalla();
    QStringList captions;
    for (QPushButton* b : p.cmdBoton)
        captions << b->text();
    QCOMPARE(captions, (QStringList{"Buscar", "Modificar", "Imprimir", "Guardar", "Cancelar"}));
}

void TstFrmArticulo::crearArticuloDentroDeLaTransaccion_data() {
    QTest::addColumn<bool>("confirmar");
    QTest::newRow("confirmada") << true;
    QTest::newRow("anulada: no queda nada") << false;
}

void TstFrmArticulo::crearArticuloDentroDeLaTransaccion() {
    QFETCH(bool, confirmar);
    auto& cn = Common::DE().CN;
    cn.BeginTrans();
    const long id = Common::CrearArticulo("Televisor", "UN50", "Negro", 3100, 20, 0, 0, 900);
    QVERIFY(id > 3);
    confirmar ? cn.CommitTrans() : cn.RollbackTrans();
    QCOMPARE(base_->valor(
                 QStringLiteral("SELECT Nombre || '/' || Costo || '/' || CreditoValor || '/' || Activo FROM "
                                "Articulo WHERE ArticuloID = %1")
                     .arg(id)),
             confirmar ? QStringLiteral("Televisor/3100.0/900.0/1") : QString());
}

void TstFrmArticulo::validarVenta_data() {
    QTest::addColumn<int>("cantidad");
    QTest::addColumn<double>("precio");
    QTest::addColumn<QStringList>("mensajes");
    const QString existencia = "El articulo Refrigeradora RT38 Blanco tiene 5 unidades en existencia.";
    const QString costo =
        "El articulo Refrigeradora RT38 Blanco no puede ser vendido por debajo del costo ( 100.00 ) .";
    QTest::newRow("igual a la existencia y al costo") << 5 << 100.0 << QStringList();
    QTest::newRow("una unidad de mas") << 6 << 125.0 << QStringList{existencia};
    QTest::newRow("un centavo bajo el costo") << 1 << 99.99 << QStringList{costo};
    QTest::newRow("precio 0 no se compara con el costo") << 1 << 0.0 << QStringList();
    QTest::newRow("los dos mensajes, en orden") << 6 << 50.0 << QStringList{existencia, costo};
}

void TstFrmArticulo::validarVenta() {
    QFETCH(int, cantidad);
    QFETCH(double, precio);
    QFETCH(QStringList, mensajes);
    auto& p = pantalla();
    QStringList mostrados;
    for (int i = 0; i < mensajes.size(); ++i)
        entorno_->alMostrarModal([&](shell::Formulario& d) {
            mostrados << d.findChild<QLabel*>(QStringLiteral("lblMensaje"))->text();
            QTest::mouseClick(d.findChild<QPushButton*>(QStringLiteral("cmdClose")), Qt::LeftButton);
        });
    QCOMPARE(Common::ValidarVentaArticulo(p, 1, cantidad, precio), mensajes.isEmpty());
    QCOMPARE(mostrados, mensajes);
    QCOMPARE(entorno_->modalesSinAccion, 0);
    for (const QString& titulo : entorno_->titulosModales)
        QCOMPARE(titulo, QStringLiteral("Artículos"));
}

// No row for the key: reading its fields fails as there is no current row, which nothing catches.
void TstFrmArticulo::validarVentaDeArticuloDesconocido() {
    auto& p = pantalla();
    QCOMPARE(numeroDelFallo([&] { Common::ValidarVentaArticulo(p, 99, 1, 10); }),
             store::FalloSinRegistroActual);
    QVERIFY(entorno_->modalesMostradas.isEmpty());
}

// Enter moves on from a check box or an option button as from a text box: it neither unticks
// "Activo" nor chooses another margin form, and what is saved is what the clerk left.
void TstFrmArticulo::enterNoMarcaCasillasNiOpciones() {
    auto& p = buscar("Refrigeradora");
    pulsar("Modificar");
    QVERIFY(p.chkActivo->isChecked());
    p.txtCosto->setFocus();
    QTest::keyClick(p.txtCosto, Qt::Key_Return);
    QCOMPARE(QApplication::focusWidget(), p.chkActivo);
    QTest::keyClick(p.chkActivo, Qt::Key_Return);
    QVERIFY(p.chkActivo->isChecked());
    QVERIFY(QApplication::focusWidget() != p.chkActivo);
    auto* valor = (*p.optContado)[1];
    valor->setFocus();
    QTest::keyClick(valor, Qt::Key_Enter);
    QCOMPARE(p.optContado->Valor(), 0);
    QVERIFY(QApplication::focusWidget() != valor);
    pulsar("Guardar");
    QCOMPARE(base_->valor("SELECT Activo FROM Articulo WHERE ArticuloID = 1"), QStringLiteral("1"));
}

// What a clerk types into the search's description box goes into the statement between quotes, so a
// quote typed there ends the text and the rest is read as the statement's own. The translator keeps
// every piece where the parser saw it: a payload that once listed the clients in the article grid
// now lists only articles, and one nested past what any screen writes stops at the fatal path with
// the translator's message instead of ending the program with a segmentation fault.
void TstFrmArticulo::busquedaConTextoHostil_data() {
    QTest::addColumn<QString>("tecleado");
    QTest::addColumn<int>("filas");      // rows the grid shows, when the statement runs
    QTest::addColumn<QString>("motivo"); // part of the failure's text, when it is refused

    QTest::newRow("comentario abierto por un patron de fecha")
        << "x%' Or Format(shw1200_str_Color, '''/*') = '*/ ) END) ) ) ) UNION SELECT ClienteID, Nombres, "
           "Apellidos, NIT, Limite, 0, 0, 0, 0, 0, 0, 0, 0, 0 FROM Cliente --' Or 'a' Like '"
        << 3 << "";
    QTest::newRow("3000 parentesis") << "x%' Or " + QStringLiteral("(").repeated(3000) + "1 = 1" +
                                            QStringLiteral(")").repeated(3000) + " Or 'a' Like '"
                                     << 0 << "anida más de 100 niveles";
    QTest::newRow("load_extension") << "x%' Or load_extension('/tmp/x.so') Or 'a' Like '" << 0
                                    << "load_extension";
}

void TstFrmArticulo::busquedaConTextoHostil() {
    QFETCH(QString, tecleado);
    QFETCH(int, filas);
    QFETCH(QString, motivo);
    base_->sqlite(
        "INSERT INTO Cliente (ClienteID, Nombres, Apellidos, NIT, Limite, CodigoLetra, CodigoNumero) "
        "VALUES (7, 'Ana', 'MUÑOZ', '1234567-8', 5000, 'M', 1)");
    if (!motivo.isEmpty()) entorno_->esperaFallos();
    QStringList celdas;
    int mostradas = -1;
    entorno_->alMostrarModal([&](shell::Formulario& busca) {
        auto* filtro = busca.findChild<QLineEdit*>(QStringLiteral("txtField(1)"));
        filtro->setText(tecleado.left(tecleado.size() - 1));
        teclear(filtro, tecleado.right(1)); // the last key as the clerk presses it
        QTest::mouseClick(busca.findChild<QPushButton*>(QStringLiteral("cmdBoton(0)")), Qt::LeftButton);
        const QAbstractItemModel* modelo = busca.findChild<QTableView*>(QStringLiteral("dg"))->model();
        mostradas = modelo->rowCount();
        for (int f = 0; f < modelo->rowCount(); ++f)
            for (int c = 0; c < modelo->columnCount(); ++c)
                celdas << modelo->index(f, c).data().toString();
        QTest::mouseClick(busca.findChild<QPushButton*>(QStringLiteral("cmdClose")), Qt::LeftButton);
    });
    pantalla();
    pulsar("Buscar");
    if (motivo.isEmpty()) {
        QVERIFY(entorno_->fallos.isEmpty());
        QCOMPARE(mostradas, filas);
        QVERIFY2(!celdas.contains(QStringLiteral("Ana")) && !celdas.contains(QStringLiteral("1234567-8")),
                 qPrintable(celdas.join(u'|')));
    } else {
        QCOMPARE(entorno_->fallos.size(), 1);
        QCOMPARE(entorno_->fallos[0].numero(), store::FalloSintaxis);
        QVERIFY2(entorno_->fallos[0].descripcion().contains(motivo),
                 qPrintable(entorno_->fallos[0].descripcion()));
    }
}

QTEST_MAIN(TstFrmArticulo)
#include "tst_frmArticulo.moc"
