// The guarantor screen, opened from "Fiadores" as the clerk opens it: it saves at once with no
// transaction, ignores "Modificar" and "Eliminar" with nothing shown, keeps its mode when the database
// refuses a step, and stores the birth date and the times as the picker and the boxes show them.
#include "BaseDePrueba.h"
#include "EntornoDePantallas.h"
#include "Gestos.h"
#include "ModosDeRegistro.h"
#include "ProgramaDePrueba.h"
#include "credit/frmFiador.h"
#include "runtime/Fechas.h"

#include <QLabel>
#include <QTableView>
#include <QtTest>

using namespace credito;

class TstFrmFiador : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void nuevoFiador_data();
    void nuevoFiador();
    void tiemposAlCargar();
    void buscarYGuardar_data();
    void buscarYGuardar();
    void sinFiadorNoHaceNada_data();
    void sinFiadorNoHaceNada();
    void soloDigitos_data();
    void soloDigitos();
    void cancelarTrasAgregar();
    void nombresEnMayusculas_data();
    void nombresEnMayusculas();
    void cedulaExtendida_data();
    void cedulaExtendida();
    void eliminar_data();
    void eliminar();
    void guardarRehusado_data();
    void guardarRehusado();

private:
    frmFiador& pantalla();
    void pulsar(const QString& caption);
    void buscar(const QString& nombres, int* filas = nullptr);
    void responder(const QString& boton, QString* texto = nullptr) { ::responder(*entorno_, boton, texto); }
    QString fiador(const QString& nombres, const QString& columnas) const;
    std::unique_ptr<runtime::RelojFijo> reloj_;
    std::unique_ptr<BaseDePrueba> base_;
    std::unique_ptr<EntornoDePantallas> entorno_;
    std::unique_ptr<ProgramaDePrueba> programa_;
};

// Today is 10/03/2026 for every test.
const QDate kHoy(2026, 3, 10);

void TstFrmFiador::init() {
    reloj_ = std::make_unique<runtime::RelojFijo>(QDateTime(kHoy, QTime(9, 30)));
    base_ = std::make_unique<BaseDePrueba>(true);
    base_->sqlite(
        "INSERT INTO Fiador (Nombres, Apellidos, FechaNacimiento, CedulaRegistro, CedulaNumero, "
        "CedulaExtendida, EstadoCivilID, CasaTiempo, TrabajoTiempo, TrabajoSueldo, Telefonos) VALUES "
        "('MARIO', 'LÓPEZ', '1970-05-14', 'A-1', '123456', 'Capital', 2, 30, 14, 3500, '2233-4455'), "
        "('ANA', 'PÉREZ', '1982-11-02', 'C-3', '98765', 'Chimaltenango', 1, 5, 27, 2800, '7788-9900');");
    entorno_ = std::make_unique<EntornoDePantallas>();
    programa_ = std::make_unique<ProgramaDePrueba>();
}

void TstFrmFiador::cleanup() {
    entorno_.reset();
    programa_.reset();
    base_.reset();
    reloj_.reset();
}

// "Fiadores" in the menu, as the clerk opens it; the open screen after that.
frmFiador& TstFrmFiador::pantalla() {
    auto& p = Common::Pantalla<frmFiador>();
    return p.isVisible() ? p : programa_->abrir<frmFiador>(QStringLiteral("Fiadores"));
}

void TstFrmFiador::pulsar(const QString& caption) {
    pulsarBoton(pantalla().cmdBoton, caption);
}

// "Buscar", filtering the search by the given names and double-clicking the first row found.
void TstFrmFiador::buscar(const QString& nombres, int* filas) {
    auto& p = pantalla();
    entorno_->alMostrarModal([nombres, filas](shell::Formulario& busca) {
        teclear(busca.findChild<QLineEdit*>(QStringLiteral("txtField(1)")), nombres);
        QTest::mouseClick(busca.findChild<QPushButton*>(QStringLiteral("cmdBoton(0)")), Qt::LeftButton);
        auto* rejilla = busca.findChild<QTableView*>(QStringLiteral("dg"));
        if (filas) *filas = rejilla->model()->rowCount();
        if (rejilla->model()->rowCount() == 0) return busca.findChild<QPushButton*>("cmdClose")->click();
        QTest::mouseDClick(rejilla->viewport(), Qt::LeftButton, {},
                           rejilla->visualRect(rejilla->model()->index(0, 1)).center());
    });
    pulsar("Buscar");
    QCOMPARE(entorno_->titulosModales.last(), QStringLiteral("Busca fiador"));
    activar(p);
}

QString TstFrmFiador::fiador(const QString& nombres, const QString& columnas) const {
    return base_->valor(QStringLiteral("SELECT %1 FROM Fiador WHERE Nombres = '%2'").arg(columnas, nombres));
}

// A new guarantor: the picker stands on today, the times go in as years x 12 + months (empty boxes
// count 0; a months box over 11 is taken as it stands), and the new key is published.
void TstFrmFiador::nuevoFiador_data() {
    QTest::addColumn<QStringList>("tiempos"); // casa años, casa meses, trabajo años, trabajo meses
    QTest::addColumn<QString>("esperado");    // CasaTiempo TrabajoTiempo
    QTest::newRow("2 años 6 meses son 30") << QStringList{"2", "6", "0", "11"} << "30 11";
    QTest::newRow("cajas vacías: 0") << QStringList{"", "", "", ""} << "0 0";
    QTest::newRow("solo meses, solo años") << QStringList{"", "30", "1", ""} << "30 12";
}

void TstFrmFiador::nuevoFiador() {
    QFETCH(QStringList, tiempos);
    QFETCH(QString, esperado);
    auto& p = pantalla();
    QVERIFY(p.txtNombres->text().isEmpty()); // opens empty
    pulsar("Agregar");                       // a first try, with another date in the picker, cancelled
    escribir(p.dpFecha, QStringLiteral("14051980"));
    QCOMPARE(p.dpFecha->Value(), QDate(1980, 5, 14));
    pulsar("Cancelar");
    Common::IDSeleccionado = 0;
    pulsar("Agregar");
    QCOMPARE(p.lblEstado->text(), QStringLiteral("Agregar nuevo registro"));
    QCOMPARE(p.dpFecha->Value(), kHoy); // set to now again
    QCOMPARE(QApplication::focusWidget(), p.txtNombres);
    teclear(p.txtNombres, QStringLiteral("rosa"));
    QTest::keyClick(p.txtNombres, Qt::Key_Return); // Enter moves on
    QCOMPARE(QApplication::focusWidget(), p.txtApellidos);
    teclear(p.txtApellidos, QStringLiteral("gómez"));
    const QList<shell::CajaTexto*> cajas{p.txtCasaTiempoA, p.txtCasaTiempoM, p.txtTrabajoTiempoA,
                                         p.txtTrabajoTiempoM};
    for (int i = 0; i < cajas.size(); ++i)
        escribir(cajas[i], tiempos[i]);
    escribir(p.txtTrabajoSueldo, QStringLiteral("4200"));
    p.chkCasaAlquilada->setFocus();
    QTest::keyClick(p.chkCasaAlquilada, Qt::Key_Space);
    pulsar("Guardar");

    QCOMPARE(fiador("ROSA", "Apellidos || ' ' || CasaTiempo || ' ' || TrabajoTiempo"), "GÓMEZ " + esperado);
    QCOMPARE(fiador("ROSA",
                    "FechaNacimiento || ' ' || TrabajoSueldo || ' ' || CasaPropia || CasaAlquilada || "
                    "Activo"),
             QStringLiteral("2026-03-10 4200.0 011"));
    const QString clave = fiador("ROSA", "FiadorID");
    QCOMPARE(QString::number(Common::IDSeleccionado), clave);
    QCOMPARE(p.txtFiadorID->text(), clave); // read back with its key
    verificarConsulta(p);
}

// The times shown from a row when the screen loads over it: 30 months read as 2 years and 6 months.
// The clerk never reaches this (the screen always opens empty and a search doesn't show the times),
// so the screen is loaded here over a guarantor's row by hand, after the program opened the connection.
void TstFrmFiador::tiemposAlCargar() {
    pantalla().cmdClose->click();
    frmFiador p;
    p.adoFiador->setRecordSource("Select * From Fiador Where FiadorID = " + fiador("MARIO", "FiadorID"));
    p.cargar();
    QCOMPARE(p.txtNombres->text(), QStringLiteral("MARIO"));
    QCOMPARE(p.txtCasaTiempoA->text() + " " + p.txtCasaTiempoM->text(), QStringLiteral("2 6"));
    QCOMPARE(p.txtTrabajoTiempoA->text() + " " + p.txtTrabajoTiempoM->text(), QStringLiteral("1 2"));
    QCOMPARE(p.dpFecha->Value(), QDate(1970, 5, 14));
}

// A search brings up the guarantor's fields, but the picker and the time boxes keep what they
// showed, and "Guardar" stores those: the birth date and the times are entered once, at creation.
void TstFrmFiador::buscarYGuardar_data() {
    QTest::addColumn<bool>("antesOtro");
    QTest::addColumn<QString>("guardado"); // FechaNacimiento CasaTiempo TrabajoTiempo
    QTest::newRow("recién abierta: hoy y cajas vacías") << false << "2026-03-10 0 0";
    QTest::newRow("tras agregar otro: lo que quedó en el selector y las cajas") << true << "1985-01-02 14 40";
}

void TstFrmFiador::buscarYGuardar() {
    QFETCH(bool, antesOtro);
    QFETCH(QString, guardado);
    auto& p = pantalla();
    if (antesOtro) {
        pulsar("Agregar");
        teclear(p.txtNombres, QStringLiteral("luis"));
        escribir(p.dpFecha, QStringLiteral("02011985"));
        escribir(p.txtCasaTiempoA, "1");
        escribir(p.txtCasaTiempoM, "2");
        escribir(p.txtTrabajoTiempoA, "3");
        escribir(p.txtTrabajoTiempoM, "4");
        pulsar("Guardar");
        QCOMPARE(fiador("LUIS", "FechaNacimiento || ' ' || CasaTiempo || ' ' || TrabajoTiempo"),
                 QStringLiteral("1985-01-02 14 40"));
    }
    buscar(QStringLiteral("MARIO"));
    QCOMPARE(p.txtApellidos->text(), QStringLiteral("LÓPEZ"));
    QCOMPARE(p.txtCedulaExtendida->text(), QStringLiteral("Capital"));
    QCOMPARE(p.dacEstadoCivil->Text(), QStringLiteral("Casado(a)"));
    QCOMPARE(p.txtCasaTiempoA->text() + " " + p.txtCasaTiempoM->text(),
             antesOtro ? QStringLiteral("1 2") : QStringLiteral(" "));  // not 2 and 6
    QCOMPARE(p.dpFecha->Value(), antesOtro ? QDate(1985, 1, 2) : kHoy); // not 14/05/1970

    Common::IDSeleccionado = 0;
    pulsar("Modificar");
    QCOMPARE(p.lblEstado->text(), QStringLiteral("Modificar registro actual"));
    QVERIFY(p.fraMain->isEnabled());
    pulsar("Guardar");
    QCOMPARE(fiador("MARIO", "FechaNacimiento || ' ' || CasaTiempo || ' ' || TrabajoTiempo"), guardado);
    QCOMPARE(fiador("MARIO", "Apellidos || ' ' || TrabajoSueldo"), QStringLiteral("LÓPEZ 3500.0"));
    QCOMPARE(QString::number(Common::IDSeleccionado), fiador("MARIO", "FiadorID"));
}

// With no guarantor shown, "Modificar" and "Eliminar" do nothing and say nothing (the environment
// fails the test on any dialog).
void TstFrmFiador::sinFiadorNoHaceNada_data() {
    QTest::addColumn<QString>("boton");
    QTest::addColumn<bool>("trasEliminar"); // the screen emptied by a deletion rather than just opened
    QTest::newRow("Modificar, recién abierta") << "Modificar" << false;
    QTest::newRow("Eliminar, recién abierta") << "Eliminar" << false;
    QTest::newRow("Modificar, tras eliminar") << "Modificar" << true;
}

void TstFrmFiador::sinFiadorNoHaceNada() {
    QFETCH(QString, boton);
    QFETCH(bool, trasEliminar);
    auto& p = pantalla();
    if (trasEliminar) {
        buscar(QStringLiteral("ANA"));
        responder(QStringLiteral("Eliminar el registro"));
        pulsar("Eliminar");
        QCOMPARE(p.txtNombres->text(), QString());
    }
    const int mostradas = entorno_->modalesMostradas.size();
    pulsar(boton);
    QCOMPARE(entorno_->modalesMostradas.size(), mostradas);
    verificarConsulta(p);
    QCOMPARE(base_->valor("SELECT count(*) || ' ' || sum(Activo) FROM Fiador"),
             trasEliminar ? QStringLiteral("1 1") : QStringLiteral("2 2"));
    QVERIFY(entorno_->fallos.isEmpty());
}

// The monthly income and the time boxes take digits alone: a point or a comma never gets in.
void TstFrmFiador::soloDigitos_data() {
    QTest::addColumn<QString>("caja");
    QTest::addColumn<QString>("tecleado");
    QTest::addColumn<QString>("queda");
    QTest::newRow("sueldo con decimales") << "txtTrabajoSueldo"
                                          << "1500.75"
                                          << "150075";
    QTest::newRow("sueldo con miles") << "txtTrabajoSueldo"
                                      << "2,500"
                                      << "2500";
    QTest::newRow("sueldo con letras") << "txtTrabajoSueldo"
                                       << "Q 3000"
                                       << "3000";
    QTest::newRow("años de casa") << "txtCasaTiempoA"
                                  << "1.5"
                                  << "15";
    QTest::newRow("meses de trabajo") << "txtTrabajoTiempoM"
                                      << "-6"
                                      << "6";
}

void TstFrmFiador::soloDigitos() {
    QFETCH(QString, caja);
    QFETCH(QString, tecleado);
    QFETCH(QString, queda);
    auto& p = pantalla();
    pulsar("Agregar");
    auto* c = control<shell::CajaTexto>(&p, caja);
    QVERIFY(c);
    c->setFocus();
    teclear(c, tecleado);
    QCOMPARE(c->text(), queda);
    pulsar("Cancelar");
}

void TstFrmFiador::cancelarTrasAgregar() {
    auto& p = pantalla();
    buscar(QStringLiteral("ANA"));
    pulsar("Agregar");
    QCOMPARE(p.txtNombres->text(), QString()); // the new row shows empty
    teclear(p.txtNombres, QStringLiteral("pedro"));
    escribir(p.txtApellidos, QStringLiteral("ruiz"));
    escribir(p.txtCasaTiempoA, QStringLiteral("3"));
    pulsar("Cancelar");
    QCOMPARE(base_->valor("SELECT count(*) FROM Fiador"), QStringLiteral("2"));
    QCOMPARE(base_->valor("SELECT count(*) FROM Fiador WHERE Nombres = 'PEDRO'"), QStringLiteral("0"));
    verificarConsulta(p);
    QVERIFY(entorno_->fallos.isEmpty());
}

// Names and surnames go in upper case as they are typed, accents and Ñ included, and are stored so.
void TstFrmFiador::nombresEnMayusculas_data() {
    QTest::addColumn<QString>("nombres");
    QTest::addColumn<QString>("apellidos");
    QTest::newRow("acentos") << "maría josé"
                             << "gonzález ordóñez";
    QTest::newRow("eñe") << "ñusta"
                         << "peña muñoz";
    QTest::newRow("diéresis y mayúsculas") << "Raúl"
                                           << "ARGÜELLO";
}

void TstFrmFiador::nombresEnMayusculas() {
    QFETCH(QString, nombres);
    QFETCH(QString, apellidos);
    auto& p = pantalla();
    pulsar("Agregar");
    teclear(p.txtNombres, nombres);
    escribir(p.txtApellidos, apellidos);
    QCOMPARE(p.txtNombres->text(), nombres.toUpper());
    QCOMPARE(p.txtApellidos->text(), apellidos.toUpper());
    pulsar("Guardar");
    QCOMPARE(base_->valor("SELECT Nombres || '/' || Apellidos FROM Fiador WHERE FiadorID = " +
                          QString::number(Common::IDSeleccionado)),
             nombres.toUpper() + "/" + apellidos.toUpper());
    buscar(nombres.toUpper()); // found again by what was stored
    QCOMPARE(p.txtApellidos->text(), apellidos.toUpper());
}

// Leaving the registry: "A-1" in any case is the capital's; anything else empties the place.
void TstFrmFiador::cedulaExtendida_data() {
    QTest::addColumn<QString>("registro");
    QTest::addColumn<QString>("extendida");
    QTest::newRow("a-1") << "a-1"
                         << "Capital";
    QTest::newRow("A-1") << "A-1"
                         << "Capital";
    QTest::newRow("B-2") << "B-2"
                         << "";
    QTest::newRow("A-11") << "A-11"
                          << "";
    QTest::newRow("vacío") << ""
                           << "";
}

void TstFrmFiador::cedulaExtendida() {
    QFETCH(QString, registro);
    QFETCH(QString, extendida);
    auto& p = pantalla();
    pulsar("Agregar");
    teclear(p.txtNombres, QStringLiteral("elsa"));
    escribir(p.txtCedulaExtendida, QStringLiteral("Quetzaltenango"));
    escribir(p.txtCedulaRegistro, registro);
    QCOMPARE(p.txtCedulaExtendida->text(), extendida);
    pulsar("Guardar");
    QCOMPARE(fiador("ELSA", "ifnull(CedulaRegistro, '') || '/' || ifnull(CedulaExtendida, '')"),
             registro + "/" + extendida);
}

// "Eliminar" offers to deactivate or to delete; a deactivated guarantor stays on the screen but the
// search no longer offers him; a deleted one leaves the screen empty; one an application names stays,
// with the database's reason shown.
void TstFrmFiador::eliminar_data() {
    QTest::addColumn<QString>("opcion");
    QTest::addColumn<bool>("enSolicitud");
    QTest::addColumn<QString>("quedan");     // rows, active rows
    QTest::addColumn<QString>("enPantalla"); // names shown afterwards
    QTest::newRow("desactivar") << "Desactivar este fiador" << false << "2 1"
                                << "MARIO";
    QTest::newRow("eliminar el registro") << "Eliminar el registro" << false << "1 1"
                                          << "";
    QTest::newRow("cierre: nada") << "cmdClose" << false << "2 2"
                                  << "MARIO";
    QTest::newRow("nombrado por una solicitud") << "Eliminar el registro" << true << "2 2"
                                                << "MARIO";
}

void TstFrmFiador::eliminar() {
    QFETCH(QString, opcion);
    QFETCH(bool, enSolicitud);
    QFETCH(QString, quedan);
    QFETCH(QString, enPantalla);
    if (enSolicitud)
        base_->sqlite("INSERT INTO Solicitud (NumeroSolicitud, FiadorID) SELECT 7, FiadorID FROM Fiador "
                      "WHERE Nombres = 'MARIO';");
    auto& p = pantalla();
    buscar(QStringLiteral("MARIO"));
    QStringList opciones;
    entorno_->alMostrarModal([&](shell::Formulario& d) {
        for (QPushButton* b : d.findChildren<QPushButton*>(QRegularExpression("^cmdBoton")))
            opciones << b->text();
        for (QPushButton* b : d.findChildren<QPushButton*>())
            if (b->text() == opcion || b->objectName() == opcion) return QTest::mouseClick(b, Qt::LeftButton);
    });
    QString mensaje;
    if (enSolicitud) responder(QStringLiteral("cmdClose"), &mensaje);
    pulsar("Eliminar");
    opciones.sort();
    QCOMPARE(opciones, (QStringList{"Desactivar este fiador", "Eliminar el registro"}));
    QCOMPARE(entorno_->titulosModales.last(), QStringLiteral("Fiadores"));
    QCOMPARE(base_->valor("SELECT count(*) || ' ' || sum(Activo) FROM Fiador"), quedan);
    QCOMPARE(p.txtNombres->text(), enPantalla);
    if (enSolicitud)
        QVERIFY2(mensaje.contains(QStringLiteral("No puede eliminarse el fiador")), qPrintable(mensaje));

    // The search offers him only while he is active.
    const bool activo =
        base_->valor("SELECT count(*) FROM vwBuscaFiador WHERE shw2200_str_Nombres = 'MARIO'").toInt() == 1;
    QCOMPARE(activo, quedan == QLatin1String("2 2"));
    int filas = -1;
    buscar(QStringLiteral("MARIO"), &filas);
    QCOMPARE(filas, activo ? 1 : 0);
    QVERIFY(entorno_->fallos.isEmpty());
    QVERIFY(p.cmdBoton[0]->isVisible());
}

// A save the database refuses: the clerk reads the driver's text under the screen's title and the
// screen stays in its mode, for "Cancelar" (or a second "Guardar").
void TstFrmFiador::guardarRehusado_data() {
    QTest::addColumn<QString>("boton");
    QTest::addColumn<QString>("estado");
    QTest::newRow("agregando") << "Agregar"
                               << "Agregar nuevo registro";
    QTest::newRow("modificando") << "Modificar"
                                 << "Modificar registro actual";
}

void TstFrmFiador::guardarRehusado() {
    QFETCH(QString, boton);
    QFETCH(QString, estado);
    base_->sqlite("CREATE TRIGGER trgPrueba BEFORE INSERT ON Fiador WHEN NEW.Nombres = 'RECHAZO' "
                  "BEGIN SELECT RAISE(ABORT, 'Fiador rehusado por la prueba'); END; "
                  "CREATE TRIGGER trgPruebaCambio BEFORE UPDATE ON Fiador WHEN NEW.Nombres = 'RECHAZO' "
                  "BEGIN SELECT RAISE(ABORT, 'Fiador rehusado por la prueba'); END;");
    auto& p = pantalla();
    buscar(QStringLiteral("ANA"));
    pulsar(boton);
    p.txtNombres->setFocus();
    p.txtNombres->selectAll();
    teclear(p.txtNombres, QStringLiteral("rechazo"));
    QString mensaje;
    responder(QStringLiteral("cmdClose"), &mensaje);
    pulsar("Guardar");
    QVERIFY2(mensaje.contains(QStringLiteral("Fiador rehusado por la prueba")), qPrintable(mensaje));
    QCOMPARE(entorno_->titulosModales.last(), QStringLiteral("Fiadores"));
    QVERIFY(p.cmdBoton[5]->isVisible()); // still editing
    QCOMPARE(p.lblEstado->text(), estado);
    QVERIFY(p.lblEstado->isVisible());
    QVERIFY(p.fraMain->isEnabled());
    QCOMPARE(p.txtNombres->text(), QStringLiteral("RECHAZO"));
    pulsar("Cancelar");
    QCOMPARE(base_->valor("SELECT group_concat(Nombres, ',') FROM (SELECT Nombres FROM Fiador ORDER BY 1)"),
             QStringLiteral("ANA,MARIO"));
    QVERIFY(entorno_->fallos.isEmpty());
}

QTEST_MAIN(TstFrmFiador)
#include "tst_frmFiador.moc"
