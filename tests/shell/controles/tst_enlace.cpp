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
    CajaTexto* txtCasaTiempo = v.agregar<CajaTexto>(QStringLiteral("txtCasaTiempo"), 6000, 480); // no kind

    PantallaFiador() {
        txtTrabajoSueldo->setText(QStringLiteral("0.00")); // as designed, until the row comes
        txtFechaNacimiento->hide();
        chkCasaPropia->setText(QStringLiteral("Propia")); // a click in the middle falls on its text
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
        enlazar(txtCasaTiempo, adoFiador, QStringLiteral("CasaTiempo"));
    }
    void abrir(int id) {
        adoFiador->setRecordSource(QStringLiteral("Select * From Fiador Where FiadorID = %1").arg(id));
        adoFiador->Refresh();
    }
    store::Recordset* rs() const { return adoFiador->Recordset(); }
    // What every field shows: name, salary, marital status, own house, address, birth date, key.
    QStringList vista() const {
        return {txtNombres->Text(),     txtTrabajoSueldo->Text(),
                dacEstadoCivil->Text(), chkCasaPropia->isChecked() ? "X" : "",
                txtDireccion->Text(),   txtFechaNacimiento->Text(),
                lblFiadorID->text()};
    }
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
    void numerosConFormato_data();
    void numerosConFormato();
    void loPuestoYLoElegidoVanALaFila();
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

// "+" MoveNext, "-" MovePrevious, ">" MoveLast, "=n" reads the banks with BancoID = n (none for 0).
void TstEnlace::muestraLaFilaActual_data() {
    QTest::addColumn<QString>("movimientos");
    QTest::addColumn<QStringList>("vista");
    QTest::newRow("al abrir, la primera fila") << "" << QStringList{"BANCO INDUSTRIAL", "Zona 4"};
    QTest::newRow("MoveNext; un nulo se ve vacío") << "+" << QStringList{"BANRURAL", ""};
    QTest::newRow("pasada la última, nada") << "> +" << QStringList{"", ""};
    QTest::newRow("de vuelta desde el final") << "> + -" << QStringList{"G&T CONTINENTAL", "Zona 9"};
    QTest::newRow("antes de la primera, nada") << "-" << QStringList{"", ""};
    QTest::newRow("otra consulta sin filas") << "=0" << QStringList{"", ""};
    QTest::newRow("otra consulta de una fila") << "=0 =3" << QStringList{"G&T CONTINENTAL", "Zona 9"};
}

void TstEnlace::muestraLaFilaActual() {
    QFETCH(QString, movimientos);
    QFETCH(QStringList, vista);
    PantallaBanco p;
    for (const QString& m : movimientos.split(u' ', Qt::SkipEmptyParts)) {
        if (m == "+") p.rs()->MoveNext();
        if (m == "-") p.rs()->MovePrevious();
        if (m == ">") p.rs()->MoveLast();
        if (m.startsWith(u'=')) {
            p.adoBanco->setRecordSource(QStringLiteral("Select * From Banco Where BancoID = ") + m.mid(1));
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
    QCOMPARE(p.vista(), (QStringList{"MARÍA", "2500.00", "Casado(a)", "X", "5a. calle 3-20\nZona 1",
                                     "15/03/1980", "4"}));
    p.abrir(5); // nulls
    QCOMPARE(p.vista(), (QStringList{"PEDRO", "", "", "", "", "", "5"}));
    QCOMPARE(p.dacEstadoCivil->BoundText(), QString());
    QCOMPARE(p.rs()->EditMode(), int(store::adEditNone)); // showing writes nothing
    QVERIFY(entorno_->fallos.isEmpty());
}

void TstEnlace::escribeAlSalirYUpdateLoGuarda_data() {
    QTest::addColumn<QString>("caso");
    QTest::addColumn<int>("banco");         // the row Guardar stores
    QTest::addColumn<QString>("direccion"); // the address it then holds
    QTest::newRow("Modificar, Tab y Guardar; la dirección sin tocar no se escribe") << "tab" << 2 << "NULL";
    QTest::newRow("Modificar y clic en Guardar sin salir; dirección puesta por el programa")
        << "boton" << 2 << "Zona 10";
    QTest::newRow("Agregar: Enter de un campo al otro y Guardar") << "agregar" << 4 << "zona 1";
}

// The user types the name (over the row's, or in the blank row of "Agregar"); leaving a field writes
// it into the row, and only it, and Guardar stores the row. Text the program puts in another field goes
// into the row at once, and leaves the typing alone.
void TstEnlace::escribeAlSalirYUpdateLoGuarda() {
    QFETCH(QString, caso);
    QFETCH(int, banco);
    QFETCH(QString, direccion);
    PantallaBanco p;
    QVERIFY(p.v.mostrar());
    if (caso == "agregar") {
        p.rs()->AddNew();
        QCOMPARE(p.vista(), (QStringList{QString(), QString()}));
    } else {
        p.rs()->MoveNext();
    }
    QTest::mouseClick(p.txtNombre, Qt::LeftButton);
    p.txtNombre->selectAll();
    teclear(p.txtNombre, QStringLiteral("banco de desarrollo rural, s.a."));
    QCOMPARE(p.rs()->EditMode(), int(caso == "agregar" ? store::adEditAdd : store::adEditNone));
    if (caso == "boton") p.txtDireccion->setText(direccion);
    if (caso == "tab") {
        QTest::keyClick(p.txtNombre, Qt::Key_Tab);
        QCOMPARE(p.rs()->EditMode(), int(store::adEditInProgress));
        QTest::keyClick(p.txtDireccion, Qt::Key_Tab);
    }
    if (caso == "agregar") {
        QTest::keyClick(p.txtNombre, Qt::Key_Return);
        teclear(p.txtDireccion, direccion);
    }
    QTest::mouseClick(p.cmdGuardar, Qt::LeftButton);
    QCOMPARE(p.rs()->EditMode(), int(store::adEditNone));
    QVERIFY(entorno_->fallos.isEmpty());
    QCOMPARE(base_->valor(QStringLiteral("SELECT Nombre || ' / ' || ifnull(Direccion, 'NULL') FROM Banco "
                                         "WHERE BancoID = %1")
                              .arg(banco)),
             QStringLiteral("BANCO DE DESARROLLO RURAL, S.A. / ") + direccion);
    QCOMPARE(
        base_->valor(QStringLiteral("SELECT group_concat(Nombre) FROM Banco WHERE BancoID <> %1").arg(banco)),
        QString::fromUtf8(caso == "agregar" ? "BANCO INDUSTRIAL,BANRURAL,G&T CONTINENTAL"
                                            : "BANCO INDUSTRIAL,G&T CONTINENTAL"));
    QCOMPARE(p.txtNombre->Text(), QStringLiteral("BANCO DE DESARROLLO RURAL, S.A."));
}

void TstEnlace::numerosConFormato_data() {
    QTest::addColumn<QString>("columna"); // that of txtTrabajoSueldo, or of txtCasaTiempo
    QTest::addColumn<QString>("tecleado");
    QTest::addColumn<QString>("seVe");
    QTest::addColumn<QString>("guardado"); // what the row then holds in the database
    const auto fila = [](const char* nombre, const char* columna, const char* tecleado, const char* seVe,
                         const char* guardado) {
        QTest::newRow(nombre) << QString(columna) << QString::fromUtf8(tecleado) << QString::fromUtf8(seVe)
                              << QString(guardado);
    };
    fila("con decimales", "TrabajoSueldo", "3150.5", "3150.50", "3150.5");
    fila("la clase del campo limpia antes de escribir", "TrabajoSueldo", "1,500", "1.00", "1.0");
    fila("vacío: la clase da cero", "TrabajoSueldo", "", "0.00", "0.0");
    // Without a kind to clean it, text the column can't take fails through the fatal path.
    fila("sin clase, un valor que no cabe", "CasaTiempo", "dos años", "dos años", "0");
}

// The field's kind (number) runs first, then the binding writes the cleaned text; the row's value is
// shown back through the display format.
void TstEnlace::numerosConFormato() {
    entorno_->esperaFallos(); // checked below
    QFETCH(QString, columna);
    QFETCH(QString, tecleado);
    QFETCH(QString, seVe);
    QFETCH(QString, guardado);
    PantallaFiador p;
    p.abrir(4);
    auto* campo = columna == "CasaTiempo" ? p.txtCasaTiempo : p.txtTrabajoSueldo;
    QVERIFY(p.v.mostrar());
    QTest::mouseClick(campo, Qt::LeftButton);
    campo->selectAll();
    QTest::keyClick(campo, Qt::Key_Backspace);
    teclear(campo, tecleado);
    QTest::keyClick(campo, Qt::Key_Tab);
    QVERIFY(!campo->hasFocus());
    QCOMPARE(campo->Text(), seVe);
    const bool falla = campo == p.txtCasaTiempo;
    QCOMPARE(p.rs()->EditMode(), int(falla ? store::adEditNone : store::adEditInProgress));
    QCOMPARE(entorno_->fallos.size(), falla ? 1 : 0); // on leaving
    Common::Manejar([&] { p.rs()->Update(); });
    QCOMPARE(entorno_->fallos.size(), falla ? 1 : 0);
    QCOMPARE(
        base_->valor(QStringLiteral("SELECT ifnull(%1, '') FROM Fiador WHERE FiadorID = 4").arg(columna)),
        guardado);
}

// What the program puts in a bound field goes into the row as well (the hidden birth date copied from
// the picker at "Guardar", the check box cleared at "Agregar"), and so do a click on the check box and
// a pick from the list, at once.
void TstEnlace::loPuestoYLoElegidoVanALaFila() {
    PantallaFiador p;
    p.abrir(5);
    QVERIFY(p.v.mostrar());
    p.rs()->AddNew();
    p.txtNombres->setText(QStringLiteral("ROSA"));
    p.txtFechaNacimiento->setText(QStringLiteral("22/11/1990"));
    p.chkCasaPropia->setChecked(true);
    p.dacEstadoCivil->setBoundText(QStringLiteral("3"));
    Common::Manejar([&] {
        p.rs()->Update();
        p.rs()->Resync();
    });
    const QString fila = QStringLiteral("SELECT Nombres || ' ' || ifnull(FechaNacimiento, '') || ' ' || "
                                        "CasaPropia || ' ' || EstadoCivilID FROM Fiador WHERE FiadorID = ") +
                         p.lblFiadorID->text();
    QVERIFY(p.lblFiadorID->text().toInt() > 5);
    QCOMPARE(base_->valor(fila), QStringLiteral("ROSA 1990-11-22 1 3"));

    QTest::mouseClick(p.chkCasaPropia, Qt::LeftButton);
    QCOMPARE(p.rs()->Fields(QStringLiteral("CasaPropia")).Value().toBool(), false);
    p.dacEstadoCivil->setFocus();
    teclear(p.dacEstadoCivil, QStringLiteral("V"));
    QCOMPARE(p.dacEstadoCivil->Text(), QStringLiteral("Viudo(a)"));
    Common::Manejar([&] { p.rs()->Update(); });
    QVERIFY(entorno_->fallos.isEmpty());
    QCOMPARE(base_->valor(fila), QStringLiteral("ROSA 1990-11-22 0 5"));
}

// With no current row (a screen on an empty table), leaving a field writes nothing and fails nothing;
// it is "Guardar" that then fails.
void TstEnlace::sinFilaActualNoSeEscribe() {
    entorno_->esperaFallos(); // checked below
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
