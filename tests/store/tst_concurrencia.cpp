// Two connections to one database file, as the screens use them side by side: the shared connection
// with the transaction of the screen being edited, and a data control's own connection that saves at
// once. The shared transaction reads committed data until it first writes; only then does it hold the
// write lock, and a write elsewhere is refused at once with a failure the clerk can act on. A lock
// another program holds is waited for as long as the data source says, then refused the same way.
#include "BaseDePrueba.h"
#include "NumeroDelFallo.h"
#include "runtime/Conversion.h"
#include "store/Conexion.h"
#include "store/Fallo.h"
#include "store/Recordset.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>
#include <QThread>
#include <QtTest>
#include <sqlite3.h>

using namespace store;

namespace {

// DSNBrenal's Timeout here: short, so that the waits for another program's lock are short.
constexpr int esperaMs = 300;

// Another program's hold on the database's write lock (BEGIN IMMEDIATE), from a second process (the
// sqlite3 shell) or from a connection of this process that the store does not know.
class TitularAjeno {
public:
    TitularAjeno(const QString& archivo, bool otroProceso) {
        if (!otroProceso) {
            QCOMPARE(sqlite3_open(archivo.toUtf8().constData(), &db_), SQLITE_OK);
            QCOMPARE(sqlite3_exec(db_, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
            return;
        }
        const QString shell = QStandardPaths::findExecutable(QStringLiteral("sqlite3"));
        QVERIFY2(!shell.isEmpty(), "the sqlite3 shell is not installed");
        proceso_.start(shell, {archivo});
        QVERIFY(proceso_.waitForStarted());
        // It waits out the probes below, which hold the lock for an instant.
        proceso_.write(".timeout 5000\nBEGIN IMMEDIATE;\n");
        QVERIFY(proceso_.waitForBytesWritten());
        // Held once a write of our own is refused at once.
        QDeadlineTimer plazo(10000);
        while (!tomadaPorOtro(archivo)) {
            QVERIFY2(!plazo.hasExpired() && proceso_.state() == QProcess::Running, "the shell took no lock");
            QThread::msleep(10);
        }
    }
    ~TitularAjeno() { soltar(); }

    void soltar() {
        if (db_) {
            sqlite3_exec(db_, "ROLLBACK", nullptr, nullptr, nullptr);
            sqlite3_close(db_);
            db_ = nullptr;
        }
        if (proceso_.state() != QProcess::NotRunning) {
            proceso_.write("ROLLBACK;\n.quit\n");
            proceso_.closeWriteChannel();
            if (!proceso_.waitForFinished(10000)) proceso_.kill();
        }
    }

private:
    static bool tomadaPorOtro(const QString& archivo) {
        sqlite3* prueba = nullptr;
        sqlite3_open(archivo.toUtf8().constData(), &prueba);
        const int r = sqlite3_exec(prueba, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
        if (r == SQLITE_OK) sqlite3_exec(prueba, "ROLLBACK", nullptr, nullptr, nullptr);
        sqlite3_close(prueba);
        return r == SQLITE_BUSY;
    }

    sqlite3* db_ = nullptr;
    QProcess proceso_;
};

QString leer(Conexion& cn, const QString& sentencia) {
    Recordset rs;
    rs.Open(sentencia, cn, adOpenStatic, adLockReadOnly);
    return rs.Eof() ? QStringLiteral("<ninguna>") : runtime::TextoDe(rs.Fields(0).Value());
}

} // namespace

class TstConcurrencia : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void fiadorNuevoBajoUnaSolicitud();
    void aprobarMientrasOtraPantallaEdita();
    void escrituraAjenaMientrasHayMoraPendiente_data();
    void escrituraAjenaMientrasHayMoraPendiente();
    void cancelarSueltaLaBase_data();
    void cancelarSueltaLaBase();
    void bloqueoDeOtroPrograma_data();
    void bloqueoDeOtroPrograma();
    void sentenciaRechazadaNoTomaLaBase();

private:
    std::unique_ptr<BaseDePrueba> base_;
    // The shared connection (DE's CN) and a data control's own one.
    Conexion cn_{QStringLiteral("Provider=MSDASQL.1;Persist Security Info=False;Data Source=DSNBrenal;")};
    Conexion otra_{QStringLiteral("DSN=DSNBrenal")};
};

void TstConcurrencia::init() {
    base_ = std::make_unique<BaseDePrueba>(true, BaseDePrueba::FKSupport::Activado, esperaMs);
    base_->sqlite(
        QStringLiteral("INSERT INTO Cliente (ClienteID, Nombres, Apellidos) VALUES (1, 'Rosa', 'Pérez');"
                       "INSERT INTO Solicitud (SolicitudID, NumeroSolicitud, Fecha, ClienteID, Estado, Mora) "
                       "VALUES (1, 7, '2026-11-02', 1, 0, 0);"
                       "INSERT INTO Banco (BancoID, Nombre) VALUES (1, 'Banco Industrial');"));
    cn_.Open();
    otra_.Open();
}

void TstConcurrencia::cleanup() {
    for (Conexion* c : {&cn_, &otra_})
        if (c->State() == adStateOpen) c->Close();
    base_.reset();
}

// The guarantor screen saves on its own connection while an application is being entered; the
// application then finds the new guarantor and saves with it.
void TstConcurrencia::fiadorNuevoBajoUnaSolicitud() {
    cn_.BeginTrans();
    QCOMPARE(leer(cn_, QStringLiteral("Select Max(NumeroSolicitud) as Maximo From Solicitud Where "
                                      "SolicitudID>0")),
             QStringLiteral("7"));
    Recordset solicitud;
    solicitud.Open(QStringLiteral("Select * From Solicitud Where SolicitudID < 0"), otra_);
    solicitud.setActiveConnection(cn_);
    solicitud.AddNew();
    solicitud.Fields(QStringLiteral("NumeroSolicitud")) = 8;

    Recordset fiador;
    fiador.Open(QStringLiteral("Select * From Fiador Where FiadorID < 0"), otra_);
    fiador.AddNew();
    fiador.Fields(QStringLiteral("Nombres")) = QStringLiteral("Ana");
    fiador.Update();
    fiador.Resync();
    const QString id = runtime::TextoDe(fiador.Fields(QStringLiteral("FiadorID")).Value());

    QCOMPARE(leer(cn_, QStringLiteral("Select Nombres From Fiador Where FiadorID = ") + id),
             QStringLiteral("Ana"));
    solicitud.Fields(QStringLiteral("FiadorID")) = id;
    solicitud.Update();
    cn_.Execute(QStringLiteral("Insert Into SolicitudDetalle (SolicitudID, ArticuloID, Cantidad, Precio) "
                               "Values (1, 0, 1, 10)"));
    cn_.CommitTrans();
    QCOMPARE(base_->valor(QStringLiteral("SELECT FiadorID FROM Solicitud WHERE NumeroSolicitud = 8")), id);
    QCOMPARE(base_->valor(QStringLiteral("SELECT count(*) FROM SolicitudDetalle")), QStringLiteral("1"));
}

// An approval saved through the application's own connection while another screen is in the middle
// of an edit on the shared one: both go through, and the edit sees the approval.
void TstConcurrencia::aprobarMientrasOtraPantallaEdita() {
    cn_.BeginTrans();
    QCOMPARE(leer(cn_, QStringLiteral("Select Estado From Solicitud Where SolicitudID = 1")),
             QStringLiteral("0"));

    Recordset solicitud;
    solicitud.Open(QStringLiteral("Select * From Solicitud Where SolicitudID = 1"), otra_);
    solicitud.Fields(QStringLiteral("Estado")) = 1;
    solicitud.Update();

    QCOMPARE(leer(cn_, QStringLiteral("Select Estado From Solicitud Where SolicitudID = 1")),
             QStringLiteral("1"));
    cn_.Execute(QStringLiteral("Update Cliente Set NIT = '123-4' Where ClienteID = 1"));
    cn_.CommitTrans();
    QCOMPARE(base_->valor(QStringLiteral("SELECT Estado FROM Solicitud WHERE SolicitudID = 1")),
             QStringLiteral("1"));
    QCOMPARE(base_->valor(QStringLiteral("SELECT NIT FROM Cliente WHERE ClienteID = 1")),
             QStringLiteral("123-4"));
}

void TstConcurrencia::escrituraAjenaMientrasHayMoraPendiente_data() {
    QTest::addColumn<QString>("escritura");
    QTest::newRow("agregar un banco") << "agregar";
    QTest::newRow("modificar un banco") << "modificar";
    QTest::newRow("eliminar un banco") << "eliminar";
    QTest::newRow("sentencia en otra conexion") << "sentencia";
}

// A receipt added mora to its application inside the shared transaction, which now holds the write
// lock. A save through another connection is refused at once, as busy (never as the database's
// general refusal, which a screen would read as a broken relation), with the edit still pending;
// once the receipt is saved the same save goes through.
void TstConcurrencia::escrituraAjenaMientrasHayMoraPendiente() {
    QFETCH(QString, escritura);
    cn_.BeginTrans();
    cn_.Execute(QStringLiteral("Update Solicitud Set Mora = Mora + 25 Where SolicitudID = 1"));
    QVERIFY(cn_.escribiendo());

    Recordset banco;
    banco.Open(escritura == QLatin1String("agregar")
                   ? QStringLiteral("Select * From Banco Where BancoID < 0")
                   : QStringLiteral("Select * From Banco Where BancoID = 1"),
               otra_);
    std::function<void()> guardar;
    if (escritura == QLatin1String("agregar")) {
        banco.AddNew();
        banco.Fields(QStringLiteral("Nombre")) = QStringLiteral("Banrural");
        guardar = [&] { banco.Update(); };
    } else if (escritura == QLatin1String("modificar")) {
        banco.Fields(QStringLiteral("Nombre")) = QStringLiteral("Banrural");
        guardar = [&] { banco.Update(); };
    } else if (escritura == QLatin1String("eliminar")) {
        guardar = [&] { banco.Delete(); };
    } else {
        guardar = [&] { otra_.Execute(QStringLiteral("Update Banco Set Nombre = 'Banrural'")); };
    }

    try {
        guardar();
        QFAIL("a write under another connection's lock went through");
    } catch (const Fallo& f) {
        QCOMPARE(f.numeroHex(), QStringLiteral("80040E31"));
        QVERIFY2(f.descripcion().contains(QLatin1String("ocupada")), qPrintable(f.descripcion()));
    }
    if (escritura == QLatin1String("agregar")) QCOMPARE(banco.EditMode(), int(adEditAdd));
    if (escritura == QLatin1String("modificar")) QCOMPARE(banco.EditMode(), int(adEditInProgress));

    cn_.CommitTrans();
    QVERIFY(!cn_.escribiendo());
    guardar();
    QCOMPARE(base_->valor(QStringLiteral("SELECT Mora FROM Solicitud WHERE SolicitudID = 1")),
             QStringLiteral("25.0"));
    const QString bancos = base_->valor(QStringLiteral("SELECT group_concat(Nombre, ',') FROM Banco"));
    QCOMPARE(bancos, escritura == QLatin1String("agregar")    ? QStringLiteral("Banco Industrial,Banrural")
                     : escritura == QLatin1String("eliminar") ? QString()
                                                              : QStringLiteral("Banrural"));
}

void TstConcurrencia::cancelarSueltaLaBase_data() {
    QTest::addColumn<bool>("escribio");
    QTest::newRow("sin haber escrito") << false;
    QTest::newRow("despues de escribir") << true;
}

// "Cancelar" undoes what the transaction wrote and frees the database for the other connections.
void TstConcurrencia::cancelarSueltaLaBase() {
    QFETCH(bool, escribio);
    QCOMPARE(cn_.BeginTrans(), 1);
    if (escribio) cn_.Execute(QStringLiteral("Update Solicitud Set Mora = 40 Where SolicitudID = 1"));
    QCOMPARE(cn_.escribiendo(), escribio);
    cn_.RollbackTrans();
    QCOMPARE(cn_.nivelTransaccion(), 0);
    QCOMPARE(base_->valor(QStringLiteral("SELECT Mora FROM Solicitud WHERE SolicitudID = 1")),
             QStringLiteral("0.0"));
    otra_.Execute(QStringLiteral("Update Banco Set Nombre = 'Banrural'"));
    QCOMPARE(base_->valor(QStringLiteral("SELECT Nombre FROM Banco")), QStringLiteral("Banrural"));
    // And the next transaction begins afresh.
    QCOMPARE(cn_.BeginTrans(), 1);
    cn_.Execute(QStringLiteral("Update Solicitud Set Mora = 5 Where SolicitudID = 1"));
    cn_.CommitTrans();
    QCOMPARE(base_->valor(QStringLiteral("SELECT Mora FROM Solicitud WHERE SolicitudID = 1")),
             QStringLiteral("5.0"));
}

void TstConcurrencia::bloqueoDeOtroPrograma_data() {
    QTest::addColumn<bool>("otroProceso"); // the lock held by another process, or by a connection of
                                           // this one that the program does not know
    QTest::addColumn<QString>("escritura");
    for (const bool proceso : {false, true})
        for (const char* escritura : {"transaccion", "sentencia", "recordset"})
            QTest::addRow("%s, %s", proceso ? "otro proceso" : "otra conexion", escritura)
                << proceso << QString::fromLatin1(escritura);
}

// Another program (or workstation) holding the write lock: the write waits the data source's Timeout,
// no more, and fails as busy with a message that says what holds the data and what to do, nothing
// written and an edit still pending; once the lock goes, the same write goes through.
void TstConcurrencia::bloqueoDeOtroPrograma() {
    QFETCH(bool, otroProceso);
    QFETCH(QString, escritura);
    Recordset solicitud;
    std::function<void()> guardar;
    if (escritura == QLatin1String("transaccion")) {
        cn_.BeginTrans();
        guardar = [&] { cn_.Execute(QStringLiteral("Update Solicitud Set Mora = 9 Where SolicitudID = 1")); };
    } else if (escritura == QLatin1String("sentencia")) {
        guardar = [&] {
            otra_.Execute(QStringLiteral("Update Solicitud Set Mora = 9 Where SolicitudID = 1"));
        };
    } else {
        solicitud.Open(QStringLiteral("Select * From Solicitud Where SolicitudID = 1"), otra_);
        solicitud.Fields(QStringLiteral("Mora")) = 9;
        guardar = [&] { solicitud.Update(); };
    }

    TitularAjeno titular(base_->archivo(), otroProceso);
    if (QTest::currentTestFailed()) return;
    QElapsedTimer reloj;
    reloj.start();
    try {
        guardar();
        QFAIL("a write under another program's lock went through");
    } catch (const Fallo& f) {
        const qint64 espera = reloj.elapsed();
        QCOMPARE(f.numeroHex(), QStringLiteral("80040E31"));
        for (const char* dice : {"otra estación de trabajo u otra pantalla", "vuelva a intentarlo"})
            QVERIFY2(f.descripcion().contains(QString::fromUtf8(dice)), qPrintable(f.descripcion()));
        QVERIFY2(espera >= esperaMs * 9 / 10 && espera < esperaMs * 3 / 2,
                 qPrintable(QStringLiteral("waited %1 ms for a Timeout of %2 ms").arg(espera).arg(esperaMs)));
    }
    QVERIFY(!cn_.escribiendo());
    if (escritura == QLatin1String("recordset")) QCOMPARE(solicitud.EditMode(), int(adEditInProgress));
    QCOMPARE(base_->valor(QStringLiteral("SELECT Mora FROM Solicitud WHERE SolicitudID = 1")),
             QStringLiteral("0.0"));

    titular.soltar();
    guardar();
    if (cn_.nivelTransaccion() > 0) cn_.CommitTrans();
    QCOMPARE(base_->valor(QStringLiteral("SELECT Mora FROM Solicitud WHERE SolicitudID = 1")),
             QStringLiteral("9.0"));
}

// A statement the translator refuses never reaches the database, so it takes no lock either.
void TstConcurrencia::sentenciaRechazadaNoTomaLaBase() {
    cn_.BeginTrans();
    QCOMPARE(numeroDelFallo([&] { cn_.Execute(QStringLiteral("Update Banco Set Nombre = 'x")); }),
             FalloSintaxis);
    QVERIFY(!cn_.escribiendo());
    otra_.Execute(QStringLiteral("Update Banco Set Nombre = 'Banrural'"));
    cn_.RollbackTrans();
    QCOMPARE(base_->valor(QStringLiteral("SELECT Nombre FROM Banco")), QStringLiteral("Banrural"));
}

QTEST_GUILESS_MAIN(TstConcurrencia)
#include "tst_concurrencia.moc"
