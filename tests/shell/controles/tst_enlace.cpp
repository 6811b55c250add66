// Controls bound to the current row of a data control, as on the record screens: they show the row
// and follow it, show nothing past the end, and write what the user typed (or the program set) into
// the row, so that Update stores it in the database.
#include "BaseDePrueba.h"
#include "EntornoDePantallas.h"
#include "VentanaDePrueba.h"
#include "shell/common/Common.h"
#include "shell/controles/CajaTexto.h"
#include "shell/controles/CamposDeTexto.h"
#include "shell/controles/ComboDatos.h"
#include "shell/controles/EnlaceDatos.h"
#include "store/Adodc.h"
#include "store/Recordset.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

using namespace shell;

namespace {

// The bank screen's fields and its "Guardar", which stores the row.
struct PantallaBanco {
    VentanaDePrueba v;
    store::Adodc* adoBanco = new store::Adodc(v.ventana());
    CajaTexto* txtNombre = v.agregar<CajaTexto>(QStringLiteral("txtNombre"), 1200, 120, 4000);
    CajaTexto* txtDireccion = v.agregar<CajaTexto>(QStringLiteral("txtDireccion"), 1200, 480, 4000);
    QPushButton* cmdGuardar = v.agregar<QPushButton>(QStringLiteral("cmdGuardar"), 120, 1200, 1200, 375);

    PantallaBanco() {
        adoBanco->setRecordSource(QStringLiteral("Select * From Banco"));
        adoBanco->Refresh();
        MayusculasAlTeclear(txtNombre);
        enlazar(txtNombre, adoBanco, QStringLiteral("Nombre"));
        enlazar(txtDireccion, adoBanco, QStringLiteral("Direccion"));
        cmdGuardar->setText(QStringLiteral("Guardar"));
        QObject::connect(cmdGuardar, &QPushButton::clicked,
                         [this] { Common::Manejar([this] { rs()->Update(); }); });
    }
    store::Recordset* rs() const { return adoBanco->Recordset(); }
    QStringList vista() const { return {txtNombre->Text(), txtDireccion->Text()}; }
};

// The guarantor's fields of every kind the binding serves.
struct PantallaFiador {
    VentanaDePrueba v;
    store::Adodc* adoFiador = new store::Adodc(v.ventana());
    store::Adodc* adoEstadoCivil = new store::Adodc(v.ventana());
    CajaTexto* txtNombres = v.agregar<CajaTexto>(QStringLiteral("txtNombres"), 1200, 120, 4000);
    CajaTexto* txtTrabajoSueldo = v.agregar<CajaTexto>(QStringLiteral("txtTrabajoSueldo"), 1200, 480);
    ComboDatos* dacEstadoCivil =
        v.agregar<ComboDatos>(QStringLiteral("dacEstadoCivil"), 1200, 840, 2400, 315);
    QCheckBox* chkCasaPropia = v.agregar<QCheckBox>(QStringLiteral("chkCasaPropia"), 1200, 1260, 1200);
    CajaTextoMultilinea* txtDireccion =
        v.agregar<CajaTextoMultilinea>(QStringLiteral("txtDireccion"), 1200, 1620, 4000, 600);
    CajaTexto* txtFechaNacimiento = v.agregar<CajaTexto>(QStringLiteral("txtFechaNacimiento"), 0, 0);
    QLabel* lblFiadorID = v.agregar<QLabel>(QStringLiteral("lblFiadorID"), 6000, 120, 900);

    PantallaFiador() {
        txtTrabajoSueldo->setText(QStringLiteral("0.00")); // as designed, until the row comes
        txtTrabajoSueldo->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        txtFechaNacimiento->hide();
        chkCasaPropia->setText(QStringLiteral("Propia"));
        adoEstadoCivil->setRecordSource(QStringLiteral("Select * From EstadoCivil"));
        adoEstadoCivil->Refresh();
        dacEstadoCivil->setListField(QStringLiteral("Descripcion"));
        dacEstadoCivil->setBoundColumn(QStringLiteral("EstadoCivilID"));
        dacEstadoCivil->setRowSource(adoEstadoCivil);
        adoFiador->setRecordSource(QStringLiteral("Select * From Fiador Where FiadorID < 0"));
        NumeroAlSalir(txtTrabajoSueldo);
        enlazar(txtNombres, adoFiador, QStringLiteral("Nombres"));
        enlazar(txtTrabajoSueldo, adoFiador, QStringLiteral("TrabajoSueldo"), QStringLiteral("0.00"));
        enlazar(dacEstadoCivil, adoFiador, QStringLiteral("EstadoCivilID"));
        enlazar(chkCasaPropia, adoFiador, QStringLiteral("CasaPropia"));
        enlazar(txtDireccion, adoFiador, QStringLiteral("Direccion"));
        enlazar(txtFechaNacimiento, adoFiador, QStringLiteral("FechaNacimiento"));
        enlazar(lblFiadorID, adoFiador, QStringLiteral("FiadorID"));
    }
    void abrir(int id) {
        adoFiador->setRecordSource(QStringLiteral("Select * From Fiador Where FiadorID = %1").arg(id));
        adoFiador->Refresh();
    }
    store::Recordset* rs() const { return adoFiador->Recordset(); }
};

} // namespace

class TstEnlace : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void muestraLaFilaActual_data();
    void muestraLaFilaActual();
    void conservaSuTextoHastaQueSeLeeLaFila();
    void escribeAlSalirYUpdateLoGuarda_data();
    void escribeAlSalirYUpdateLoGuarda();
    void agregarUnaFilaNueva();
    void numerosConFormato_data();
    void numerosConFormato();
    void unValorQueNoCabeEsFatal();
    void textoPuestoPorElPrograma();
    void escribirUnCampoNoBorraLoQueSeTecleaEnOtro();
    void casillaYComboDatos();
    void sinFilaActualNoSeEscribe();
    void cancelarDevuelveLoLeido();

private:
    std::unique_ptr<BaseDePrueba> base_;
    std::unique_ptr<EntornoDePantallas> entorno_;
};

void TstEnlace::init() {
    base_ = std::make_unique<BaseDePrueba>(true);
    base_->sqlite(QStringLiteral(
        "INSERT INTO Banco (BancoID, Nombre, Direccion) VALUES (1, 'BANCO INDUSTRIAL', 'Zona 4'), "
        "(2, 'BANRURAL', NULL), (3, 'G&T CONTINENTAL', 'Zona 9');"
        "INSERT INTO Fiador (FiadorID, Nombres, EstadoCivilID, CasaPropia, TrabajoSueldo, Direccion, "
        "FechaNacimiento) VALUES (4, 'MARÍA', 2, 1, 2500, '5a. calle 3-20' || char(10) || 'Zona 1', "
        "'1980-03-15'), (5, 'PEDRO', NULL, 0, NULL, NULL, NULL);"));
    entorno_ = std::make_unique<EntornoDePantallas>();
}

void TstEnlace::cleanup() {
    entorno_.reset();
    base_.reset();
}

void TstEnlace::muestraLaFilaActual_data() {
    QTest::addColumn<QStringList>("movimientos");
    QTest::addColumn<QStringList>("vista");
    QTest::newRow("al abrir, la primera fila") << QStringList{} << QStringList{"BANCO INDUSTRIAL", "Zona 4"};
    QTest::newRow("MoveNext; un nulo se ve vacío") << QStringList{"siguiente"} << QStringList{"BANRURAL", ""};
    QTest::newRow("la última") << QStringList{"última"} << QStringList{"G&T CONTINENTAL", "Zona 9"};
    QTest::newRow("pasada la última, nada") << QStringList{"última", "siguiente"} << QStringList{"", ""};
    QTest::newRow("de vuelta desde el final")
        << QStringList{"última", "siguiente", "anterior"} << QStringList{"G&T CONTINENTAL", "Zona 9"};
    QTest::newRow("antes de la primera, nada") << QStringList{"anterior"} << QStringList{"", ""};
    QTest::newRow("buscar") << QStringList{"buscar 2"} << QStringList{"BANRURAL", ""};
    QTest::newRow("otra consulta sin filas") << QStringList{"vacía"} << QStringList{"", ""};
    QTest::newRow("otra consulta de una fila")
        << QStringList{"vacía", "solo 3"} << QStringList{"G&T CONTINENTAL", "Zona 9"};
}

void TstEnlace::muestraLaFilaActual() {
    QFETCH(QStringList, movimientos);
    QFETCH(QStringList, vista);
    PantallaBanco p;
    for (const QString& m : movimientos) {
        if (m == QLatin1String("siguiente")) p.rs()->MoveNext();
        if (m == QLatin1String("anterior")) p.rs()->MovePrevious();
        if (m == QStringLiteral("última")) p.rs()->MoveLast();
        if (m.startsWith(QLatin1String("buscar"))) {
            p.rs()->MoveFirst();
            p.rs()->Find(QStringLiteral("BancoID = ") + m.section(u' ', 1));
        }
        if (m == QStringLiteral("vacía") || m.startsWith(QLatin1String("solo"))) {
            const QString donde = m == QStringLiteral("vacía")
                                      ? QStringLiteral("BancoID < 0")
                                      : QStringLiteral("BancoID = ") + m.section(u' ', 1);
            p.adoBanco->setRecordSource(QStringLiteral("Select * From Banco Where ") + donde);
            p.adoBanco->Refresh();
        }
    }
    QCOMPARE(p.vista(), vista);
    QVERIFY(entorno_->fallos.isEmpty());
}

// A field bound before its data control is read keeps its designed text; then it follows the row.
void TstEnlace::conservaSuTextoHastaQueSeLeeLaFila() {
    PantallaFiador p;
    QCOMPARE(p.txtTrabajoSueldo->Text(), QStringLiteral("0.00"));
    p.adoFiador->Refresh(); // no row
    QCOMPARE(p.txtTrabajoSueldo->Text(), QString());
    p.abrir(4);
    QCOMPARE(p.txtNombres->Text(), QStringLiteral("MARÍA"));
    QCOMPARE(p.txtTrabajoSueldo->Text(), QStringLiteral("2500.00"));
    QCOMPARE(p.txtDireccion->Text(), QStringLiteral("5a. calle 3-20\nZona 1"));
    QCOMPARE(p.txtFechaNacimiento->Text(), QStringLiteral("15/03/1980"));
    QCOMPARE(p.dacEstadoCivil->Text(), QStringLiteral("Casado(a)"));
    QVERIFY(p.chkCasaPropia->isChecked());
    QCOMPARE(p.lblFiadorID->text(), QStringLiteral("4"));
    p.abrir(5); // nulls
    QCOMPARE(p.txtTrabajoSueldo->Text(), QString());
    QCOMPARE(p.dacEstadoCivil->Text(), QString());
    QCOMPARE(p.dacEstadoCivil->BoundText(), QString());
    QVERIFY(!p.chkCasaPropia->isChecked());
    QCOMPARE(p.txtFechaNacimiento->Text(), QString());
    QCOMPARE(p.rs()->EditMode(), int(store::adEditNone)); // showing writes nothing
    QVERIFY(entorno_->fallos.isEmpty());
}

void TstEnlace::escribeAlSalirYUpdateLoGuarda_data() {
    QTest::addColumn<bool>("conElBoton");
    QTest::newRow("Tab y luego Guardar") << false;
    QTest::newRow("clic en Guardar sin salir antes") << true;
}

// "Modificar": the user retypes the name; leaving the field writes it into the row, and only it.
void TstEnlace::escribeAlSalirYUpdateLoGuarda() {
    QFETCH(bool, conElBoton);
    PantallaBanco p;
    p.rs()->MoveNext();
    QVERIFY(p.v.mostrar());
    QTest::mouseClick(p.txtNombre, Qt::LeftButton);
    p.txtNombre->selectAll();
    teclear(p.txtNombre, QStringLiteral("banco de desarrollo rural, s.a."));
    QCOMPARE(p.rs()->EditMode(), int(store::adEditNone)); // nothing written while typing
    if (!conElBoton) {
        QTest::keyClick(p.txtNombre, Qt::Key_Tab);
        QCOMPARE(p.rs()->EditMode(), int(store::adEditInProgress));
        QTest::keyClick(p.txtDireccion, Qt::Key_Tab); // left unchanged: not written
    }
    QTest::mouseClick(p.cmdGuardar, Qt::LeftButton);
    QCOMPARE(p.rs()->EditMode(), int(store::adEditNone));
    QVERIFY(entorno_->fallos.isEmpty());
    QCOMPARE(base_->valor(QStringLiteral("SELECT Nombre FROM Banco WHERE BancoID = 2")),
             QStringLiteral("BANCO DE DESARROLLO RURAL, S.A."));
    QCOMPARE(base_->valor(QStringLiteral("SELECT Direccion IS NULL FROM Banco WHERE BancoID = 2")),
             QStringLiteral("1"));
    QCOMPARE(base_->valor(QStringLiteral("SELECT Nombre FROM Banco WHERE BancoID = 1")),
             QStringLiteral("BANCO INDUSTRIAL"));
}

// "Agregar": a blank row; what is typed goes in on leaving each field, and Update inserts it.
void TstEnlace::agregarUnaFilaNueva() {
    PantallaBanco p;
    QVERIFY(p.v.mostrar());
    p.rs()->AddNew();
    QCOMPARE(p.vista(), (QStringList{QString(), QString()}));
    p.txtNombre->setFocus();
    teclear(p.txtNombre, QStringLiteral("crédito hipotecario nacional"));
    QTest::keyClick(p.txtNombre, Qt::Key_Return);
    teclear(p.txtDireccion, QStringLiteral("7a. avenida 22-77, zona 1"));
    QTest::mouseClick(p.cmdGuardar, Qt::LeftButton);
    QVERIFY(entorno_->fallos.isEmpty());
    QCOMPARE(base_->valor(QStringLiteral("SELECT COUNT(*) FROM Banco")), QStringLiteral("4"));
    QCOMPARE(base_->valor(
                 QStringLiteral("SELECT Direccion FROM Banco WHERE Nombre = 'CRÉDITO HIPOTECARIO NACIONAL'")),
             QStringLiteral("7a. avenida 22-77, zona 1"));
    QCOMPARE(p.vista(), (QStringList{"CRÉDITO HIPOTECARIO NACIONAL", "7a. avenida 22-77, zona 1"}));
}

void TstEnlace::numerosConFormato_data() {
    QTest::addColumn<QString>("tecleado");
    QTest::addColumn<QString>("seVe");
    QTest::addColumn<QString>("guardado");
    QTest::newRow("con decimales") << "3150.5"
                                   << "3150.50"
                                   << "3150.5";
    QTest::newRow("la clase del campo limpia antes de escribir") << "1,500"
                                                                 << "1.00"
                                                                 << "1.0";
    QTest::newRow("letras detrás") << "75abc"
                                   << "75.00"
                                   << "75.0";
    QTest::newRow("vacío: la clase da cero") << ""
                                             << "0.00"
                                             << "0.0";
}

// The field's kind (number) runs first, then the binding writes the cleaned text; the row's value is
// shown back through the display format.
void TstEnlace::numerosConFormato() {
    QFETCH(QString, tecleado);
    QFETCH(QString, seVe);
    QFETCH(QString, guardado);
    PantallaFiador p;
    p.abrir(4);
    QVERIFY(p.v.mostrar());
    QTest::mouseClick(p.txtTrabajoSueldo, Qt::LeftButton);
    p.txtTrabajoSueldo->selectAll();
    QTest::keyClick(p.txtTrabajoSueldo, Qt::Key_Backspace);
    teclear(p.txtTrabajoSueldo, tecleado);
    QTest::keyClick(p.txtTrabajoSueldo, Qt::Key_Tab);
    QCOMPARE(p.txtTrabajoSueldo->Text(), seVe);
    Common::Manejar([&] { p.rs()->Update(); });
    QVERIFY(entorno_->fallos.isEmpty());
    QCOMPARE(base_->valor(QStringLiteral("SELECT TrabajoSueldo FROM Fiador WHERE FiadorID = 4")), guardado);
}

// Without a field kind to clean it, text a number column can't take fails through the fatal path.
void TstEnlace::unValorQueNoCabeEsFatal() {
    VentanaDePrueba v;
    auto* adoFiador = new store::Adodc(v.ventana());
    adoFiador->setRecordSource(QStringLiteral("Select * From Fiador Where FiadorID = 4"));
    adoFiador->Refresh();
    auto* txtCasaTiempo = v.agregar<CajaTexto>(QStringLiteral("txtCasaTiempo"), 120, 120);
    auto* txtOtro = v.agregar<CajaTexto>(QStringLiteral("txtOtro"), 120, 480);
    enlazar(txtCasaTiempo, adoFiador, QStringLiteral("CasaTiempo"));
    QVERIFY(v.mostrar());
    txtCasaTiempo->setFocus();
    teclear(txtCasaTiempo, QStringLiteral("dos años"));
    QTest::keyClick(txtCasaTiempo, Qt::Key_Tab);
    QVERIFY(txtOtro->hasFocus());
    QCOMPARE(entorno_->fallos.size(), 1);
    QCOMPARE(adoFiador->Recordset()->EditMode(), int(store::adEditNone));
}

// What the program puts in a bound field goes into the row as well: the hidden birth date copied
// from the picker at "Guardar", the check box cleared at "Agregar".
void TstEnlace::textoPuestoPorElPrograma() {
    PantallaFiador p;
    p.abrir(5);
    p.rs()->AddNew();
    p.txtNombres->setText(QStringLiteral("ROSA"));
    p.txtFechaNacimiento->setText(QStringLiteral("22/11/1990"));
    p.chkCasaPropia->setChecked(true);
    p.dacEstadoCivil->setBoundText(QStringLiteral("3"));
    Common::Manejar([&] {
        p.rs()->Update();
        p.rs()->Resync();
    });
    QVERIFY(entorno_->fallos.isEmpty());
    const QString id = p.lblFiadorID->text();
    QVERIFY(id.toInt() > 5);
    const QString fila = QStringLiteral(" FROM Fiador WHERE FiadorID = ") + id;
    QCOMPARE(base_->valor(QStringLiteral("SELECT Nombres") + fila), QStringLiteral("ROSA"));
    QCOMPARE(base_->valor(QStringLiteral("SELECT FechaNacimiento") + fila), QStringLiteral("1990-11-22"));
    QCOMPARE(base_->valor(QStringLiteral("SELECT CasaPropia") + fila), QStringLiteral("1"));
    QCOMPARE(base_->valor(QStringLiteral("SELECT EstadoCivilID") + fila), QStringLiteral("3"));
}

void TstEnlace::escribirUnCampoNoBorraLoQueSeTecleaEnOtro() {
    PantallaBanco p;
    QVERIFY(p.v.mostrar());
    p.txtNombre->setFocus();
    p.txtNombre->setSelStart(0);
    p.txtNombre->setSelLength(5);
    teclear(p.txtNombre, QStringLiteral("corporación"));
    p.txtDireccion->setText(QStringLiteral("Zona 10")); // written into the row at once
    QCOMPARE(p.txtNombre->Text(), QStringLiteral("CORPORACIÓN INDUSTRIAL"));
    QTest::mouseClick(p.cmdGuardar, Qt::LeftButton);
    QCOMPARE(base_->valor(QStringLiteral("SELECT Nombre || ' / ' || Direccion FROM Banco WHERE BancoID = 1")),
             QStringLiteral("CORPORACIÓN INDUSTRIAL / Zona 10"));
}

// A click on the check box and a pick from the list write into the row at once.
void TstEnlace::casillaYComboDatos() {
    PantallaFiador p;
    p.abrir(4);
    QVERIFY(p.v.mostrar());
    QTest::mouseClick(p.chkCasaPropia, Qt::LeftButton);
    QVERIFY(!p.chkCasaPropia->isChecked());
    QCOMPARE(p.rs()->Fields(QStringLiteral("CasaPropia")).Value().toBool(), false);
    p.dacEstadoCivil->setFocus();
    teclear(p.dacEstadoCivil, QStringLiteral("V"));
    QCOMPARE(p.dacEstadoCivil->Text(), QStringLiteral("Viudo(a)"));
    Common::Manejar([&] { p.rs()->Update(); });
    QVERIFY(entorno_->fallos.isEmpty());
    QCOMPARE(base_->valor(
                 QStringLiteral("SELECT CasaPropia || ' ' || EstadoCivilID FROM Fiador WHERE FiadorID = 4")),
             QStringLiteral("0 5"));
}

// With no current row (a screen on an empty table), leaving a field writes nothing and fails nothing;
// it is "Guardar" that then fails.
void TstEnlace::sinFilaActualNoSeEscribe() {
    PantallaBanco p;
    p.adoBanco->setRecordSource(QStringLiteral("Select * From Banco Where BancoID < 0"));
    p.adoBanco->Refresh();
    QVERIFY(p.v.mostrar());
    p.txtNombre->setFocus();
    teclear(p.txtNombre, QStringLiteral("nuevo"));
    QTest::keyClick(p.txtNombre, Qt::Key_Tab);
    QVERIFY(entorno_->fallos.isEmpty());
    QCOMPARE(p.txtNombre->Text(), QStringLiteral("NUEVO"));
    QTest::mouseClick(p.cmdGuardar, Qt::LeftButton);
    QCOMPARE(entorno_->fallos.size(), 1);
    QCOMPARE(base_->valor(QStringLiteral("SELECT COUNT(*) FROM Banco")), QStringLiteral("3"));
}

void TstEnlace::cancelarDevuelveLoLeido() {
    PantallaBanco p;
    QVERIFY(p.v.mostrar());
    p.txtNombre->setFocus();
    p.txtNombre->selectAll();
    teclear(p.txtNombre, QStringLiteral("otro"));
    QTest::keyClick(p.txtNombre, Qt::Key_Tab);
    QCOMPARE(p.rs()->EditMode(), int(store::adEditInProgress));
    p.rs()->CancelUpdate();
    QCOMPARE(p.vista(), (QStringList{"BANCO INDUSTRIAL", "Zona 4"}));
    // An edit cancelled while adding goes back to the row shown before.
    p.rs()->MoveLast();
    p.rs()->AddNew();
    p.txtNombre->setText(QStringLiteral("A MEDIAS"));
    p.rs()->CancelUpdate();
    QCOMPARE(p.vista(), (QStringList{"G&T CONTINENTAL", "Zona 9"}));
    QCOMPARE(base_->valor(QStringLiteral("SELECT COUNT(*) FROM Banco")), QStringLiteral("3"));
}

QTEST_MAIN(TstEnlace)
#include "tst_enlace.moc"
