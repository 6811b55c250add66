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
    void valorEnlazado_data();
    void valorEnlazado();
    void elUsuarioElige_data();
    void elUsuarioElige();
    void sigueALaFuenteAlRefrescar();
    void otrasFuentes();

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

void TstComboDatos::valorEnlazado_data() {
    QTest::addColumn<QString>("dado");
    QTest::addColumn<QString>("muestra");
    QTest::addColumn<QString>("enlazado");
    const auto fila = [](const char* nombre, const char* dado, const char* muestra, const char* enlazado) {
        QTest::newRow(nombre) << QString(dado) << QString(muestra) << QString(enlazado);
    };
    fila("una clave", "7", "G&T CONTINENTAL", "7");
    fila("la clave escrita como número decimal", "9.0", "BANCO DE LOS TRABAJADORES", "9");
    fila("0: ningún banco", "0", "", "");
    fila("vacío: ningún banco", "", "", "");
    fila("una clave que no está", "99", "", "");
    fila("un nombre no es una clave", "BANRURAL", "", "");
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
    QTest::newRow("flecha abajo desde nada") << "abajo" << QString("1");
    QTest::newRow("tecleando la inicial") << "G" << QString("7");
    QTest::newRow("de la lista abierta") << "lista" << QString("2");
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

// The list shows the names, nothing chosen at first. Refresh of the row source reads the list again;
// the choice stays while its row does.
void TstComboDatos::sigueALaFuenteAlRefrescar() {
    QStringList nombres;
    for (int i = 0; i < dacBancos_->count(); ++i)
        nombres << dacBancos_->itemText(i);
    QCOMPARE(nombres,
             (QStringList{"BANCO INDUSTRIAL", "BANRURAL", "G&T CONTINENTAL", "BANCO DE LOS TRABAJADORES"}));
    QCOMPARE(dacBancos_->BoundText(), QString());
    QCOMPARE(dacBancos_->Text(), QString());
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

// Other sources: a data control not read yet takes a bound value that shows once it is read; a
// recordset the screen opened, given before the columns, serves as well and can be taken away. Reading
// the list leaves its row source where it was.
void TstComboDatos::otrasFuentes() {
    auto* adoOtros = new store::Adodc(v_->ventana());
    adoOtros->setRecordSource(QStringLiteral("Select * From Banco"));
    auto* dacOtro = v_->agregar<ComboDatos>(QStringLiteral("dacOtro"), 120, 1200);
    dacOtro->setListField(QStringLiteral("Nombre"));
    dacOtro->setBoundColumn(QStringLiteral("BancoID"));
    dacOtro->setRowSource(adoOtros);
    dacOtro->setBoundText(QStringLiteral("2"));
    QCOMPARE(dacOtro->BoundText(), QString());
    adoOtros->Refresh();
    QCOMPARE(dacOtro->Text(), QStringLiteral("BANRURAL"));
    QCOMPARE(dacOtro->BoundText(), QStringLiteral("2"));

    store::Conexion cn(QStringLiteral("DSN=DSNBrenal"));
    cn.Open();
    store::Recordset rs;
    rs.Open(QStringLiteral("Select BancoID, Nombre From Banco Where BancoID > 1 Order By 2"), cn);
    auto* dacRs = v_->agregar<ComboDatos>(QStringLiteral("dacRs"), 120, 1600);
    dacRs->setRowSource(&rs);
    dacRs->setBoundColumn(QStringLiteral("BancoID"));
    dacRs->setListField(QStringLiteral("Nombre"));
    dacRs->setBoundText(QStringLiteral("9"));
    QCOMPARE(dacRs->count(), 3);
    QCOMPARE(dacRs->Text(), QStringLiteral("BANCO DE LOS TRABAJADORES"));
    dacRs->setRowSource(static_cast<store::Recordset*>(nullptr));
    QCOMPARE(dacRs->count(), 0);

    adoBancos_->Recordset()->MoveNext();
    adoBancos_->Recordset()->MoveNext();
    dacBancos_->ReFill();
    QCOMPARE(adoBancos_->Recordset()->AbsolutePosition(), 3);
    QCOMPARE(dacBancos_->count(), 4);
}

QTEST_MAIN(TstComboDatos)
#include "tst_combodatos.moc"
