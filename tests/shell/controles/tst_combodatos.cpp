// The data combo over the banks of the store: the list shows the names and stands for the keys, an
// empty bound value is no bank, the user picks by keyboard or from the open list, and the list follows
// its row source when that is read again.
#include "BaseDePrueba.h"
#include "EntornoDePantallas.h"
#include "VentanaDePrueba.h"
#include "shell/controles/CajaTexto.h"
#include "shell/controles/ComboDatos.h"
#include "store/Adodc.h"
#include "store/Conexion.h"
#include "store/Recordset.h"

#include <QAbstractItemView>
#include <QtTest>

using namespace shell;

class TstComboDatos : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void laListaMuestraLosNombres();
    void valorEnlazado_data();
    void valorEnlazado();
    void elUsuarioElige_data();
    void elUsuarioElige();
    void sigueALaFuenteAlRefrescar();
    void unValorDadoAntesDeLeerLaLista();
    void fuenteRecordsetYPosicionDeLaFuente();

private:
    std::unique_ptr<BaseDePrueba> base_;
    std::unique_ptr<EntornoDePantallas> entorno_;
    std::unique_ptr<VentanaDePrueba> v_;
    store::Adodc* adoBancos_ = nullptr;
    ComboDatos* dacBancos_ = nullptr;
    CajaTexto* txtNoCheque_ = nullptr;
};

void TstComboDatos::init() {
    base_ = std::make_unique<BaseDePrueba>(true);
    base_->sqlite(
        QStringLiteral("INSERT INTO Banco (BancoID, Nombre, Direccion) VALUES "
                       "(1, 'BANCO INDUSTRIAL', 'Zona 4'), (2, 'BANRURAL', NULL), "
                       "(7, 'G&T CONTINENTAL', 'Zona 9'), (9, 'BANCO DE LOS TRABAJADORES', NULL);"));
    entorno_ = std::make_unique<EntornoDePantallas>();
    v_ = std::make_unique<VentanaDePrueba>();
    adoBancos_ = new store::Adodc(v_->ventana());
    adoBancos_->setRecordSource(QStringLiteral("Select * From Banco"));
    adoBancos_->Refresh();
    dacBancos_ = v_->agregar<ComboDatos>(QStringLiteral("dacBancos"), 120, 120, 3000, 315);
    txtNoCheque_ = v_->agregar<CajaTexto>(QStringLiteral("txtNoCheque"), 120, 600);
    dacBancos_->setListField(QStringLiteral("Nombre"));
    dacBancos_->setBoundColumn(QStringLiteral("BancoID"));
    dacBancos_->setRowSource(adoBancos_);
}

void TstComboDatos::cleanup() {
    v_.reset();
    entorno_.reset();
    base_.reset();
}

void TstComboDatos::laListaMuestraLosNombres() {
    QStringList nombres;
    for (int i = 0; i < dacBancos_->count(); ++i)
        nombres << dacBancos_->itemText(i);
    QCOMPARE(nombres,
             (QStringList{"BANCO INDUSTRIAL", "BANRURAL", "G&T CONTINENTAL", "BANCO DE LOS TRABAJADORES"}));
    // Nothing chosen at first: nothing shown.
    QCOMPARE(dacBancos_->BoundText(), QString());
    QCOMPARE(dacBancos_->Text(), QString());
    QVERIFY(entorno_->fallos.isEmpty());
}

void TstComboDatos::valorEnlazado_data() {
    QTest::addColumn<QString>("dado");
    QTest::addColumn<QString>("muestra");
    QTest::addColumn<QString>("enlazado");
    QTest::newRow("una clave") << "2"
                               << "BANRURAL"
                               << "2";
    QTest::newRow("otra clave") << "7"
                                << "G&T CONTINENTAL"
                                << "7";
    QTest::newRow("la clave escrita como número decimal") << "9.0"
                                                          << "BANCO DE LOS TRABAJADORES"
                                                          << "9";
    QTest::newRow("0: ningún banco") << "0"
                                     << ""
                                     << "";
    QTest::newRow("vacío: ningún banco") << ""
                                         << ""
                                         << "";
    QTest::newRow("una clave que no está") << "99"
                                           << ""
                                           << "";
    QTest::newRow("un nombre no es una clave") << "BANRURAL"
                                               << ""
                                               << "";
}

void TstComboDatos::valorEnlazado() {
    QFETCH(QString, dado);
    QFETCH(QString, muestra);
    QFETCH(QString, enlazado);
    dacBancos_->setBoundText(QStringLiteral("1"));
    QCOMPARE(dacBancos_->Text(), QStringLiteral("BANCO INDUSTRIAL"));
    dacBancos_->setBoundText(dado);
    QCOMPARE(dacBancos_->Text(), muestra);
    QCOMPARE(dacBancos_->BoundText(), enlazado);
}

void TstComboDatos::elUsuarioElige_data() {
    QTest::addColumn<QString>("como");
    QTest::addColumn<QString>("enlazado");
    QTest::newRow("flecha abajo desde nada") << "abajo"
                                             << "1";
    QTest::newRow("tecleando la inicial") << "G"
                                          << "7";
    QTest::newRow("de la lista abierta") << "lista"
                                         << "2";
}

// A pick by the user changes the bound value and runs the screen's Change and Click.
void TstComboDatos::elUsuarioElige() {
    QFETCH(QString, como);
    QFETCH(QString, enlazado);
    QStringList sucesos;
    dacBancos_->alCambiar([&] { sucesos << QStringLiteral("Change ") + dacBancos_->BoundText(); });
    dacBancos_->alElegir([&] { sucesos << QStringLiteral("Click ") + dacBancos_->BoundText(); });
    QVERIFY(v_->mostrar());
    txtNoCheque_->setFocus();
    QTest::keyClick(txtNoCheque_, Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(dacBancos_->hasFocus());
    if (como == QLatin1String("abajo")) {
        QTest::keyClick(dacBancos_, Qt::Key_Down);
    } else if (como == QLatin1String("lista")) {
        dacBancos_->showPopup();
        QAbstractItemView* lista = dacBancos_->view();
        QVERIFY(QTest::qWaitForWindowExposed(lista->window()));
        const QPoint donde = lista->visualRect(lista->model()->index(1, 0)).center();
        QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, donde);
    } else {
        teclear(dacBancos_, como);
    }
    QCOMPARE(dacBancos_->BoundText(), enlazado);
    QCOMPARE(sucesos,
             (QStringList{QStringLiteral("Change ") + enlazado, QStringLiteral("Click ") + enlazado}));
    // The program's own change is a Change but no Click.
    dacBancos_->setBoundText(QString());
    QCOMPARE(sucesos.last(), QStringLiteral("Change "));
    QCOMPARE(sucesos.size(), 3);
}

// Refresh of the row source reads the list again; the choice stays while its row does.
void TstComboDatos::sigueALaFuenteAlRefrescar() {
    int cambios = 0;
    dacBancos_->setBoundText(QStringLiteral("7"));
    dacBancos_->alCambiar([&] { ++cambios; });
    base_->sqlite(QStringLiteral("INSERT INTO Banco (BancoID, Nombre) VALUES (12, 'BANCO AZTECA');"));
    adoBancos_->Refresh();
    QCOMPARE(dacBancos_->count(), 5);
    QCOMPARE(dacBancos_->itemText(4), QStringLiteral("BANCO AZTECA"));
    QCOMPARE(dacBancos_->BoundText(), QStringLiteral("7"));
    QCOMPARE(cambios, 0);

    base_->sqlite(QStringLiteral("DELETE FROM Banco WHERE BancoID = 7;"));
    adoBancos_->Refresh();
    QCOMPARE(dacBancos_->count(), 4);
    QCOMPARE(dacBancos_->BoundText(), QString());
    QCOMPARE(dacBancos_->Text(), QString());
    QCOMPARE(cambios, 1);
    QVERIFY(entorno_->fallos.isEmpty());
}

// A screen may set the bound value before its list source has been read.
void TstComboDatos::unValorDadoAntesDeLeerLaLista() {
    auto* adoOtros = new store::Adodc(v_->ventana());
    adoOtros->setRecordSource(QStringLiteral("Select * From Banco"));
    auto* dacOtro = v_->agregar<ComboDatos>(QStringLiteral("dacOtro"), 120, 1200);
    dacOtro->setListField(QStringLiteral("Nombre"));
    dacOtro->setBoundColumn(QStringLiteral("BancoID"));
    dacOtro->setRowSource(adoOtros);
    dacOtro->setBoundText(QStringLiteral("2"));
    QCOMPARE(dacOtro->count(), 0);
    QCOMPARE(dacOtro->BoundText(), QString());
    adoOtros->Refresh();
    QCOMPARE(dacOtro->Text(), QStringLiteral("BANRURAL"));
    QCOMPARE(dacOtro->BoundText(), QStringLiteral("2"));
}

// A recordset the screen opened serves as well; reading the list leaves its row source where it was.
void TstComboDatos::fuenteRecordsetYPosicionDeLaFuente() {
    store::Conexion cn(QStringLiteral("DSN=DSNBrenal"));
    cn.Open();
    store::Recordset rs;
    rs.Open(QStringLiteral("Select BancoID, Nombre From Banco Where BancoID > 1 Order By 2"), cn);
    auto* dacOtro = v_->agregar<ComboDatos>(QStringLiteral("dacOtro"), 120, 1200);
    dacOtro->setRowSource(&rs);
    dacOtro->setBoundColumn(QStringLiteral("BancoID"));
    dacOtro->setListField(QStringLiteral("Nombre"));
    QCOMPARE(dacOtro->count(), 3);
    QCOMPARE(dacOtro->itemText(0), QStringLiteral("BANCO DE LOS TRABAJADORES"));
    dacOtro->setBoundText(QStringLiteral("9"));
    QCOMPARE(dacOtro->currentIndex(), 0);
    dacOtro->setRowSource(static_cast<store::Recordset*>(nullptr));
    QCOMPARE(dacOtro->count(), 0);

    adoBancos_->Recordset()->MoveNext();
    adoBancos_->Recordset()->MoveNext();
    dacBancos_->ReFill();
    QCOMPARE(adoBancos_->Recordset()->AbsolutePosition(), 3);
    QCOMPARE(dacBancos_->count(), 4);
}

QTEST_MAIN(TstComboDatos)
#include "tst_combodatos.moc"
