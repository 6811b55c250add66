// The connection to DSNBrenal: opening by any form of the connection string, transactions, failures,
// and what the dialect's constructs return from a real SQLite database.
#include "BaseDePrueba.h"
#include "EsquemaDePrueba.h"
#include "NumeroDelFallo.h"
#include "runtime/Conversion.h"
#include "store/Conexion.h"
#include "store/Fallo.h"
#include "store/Recordset.h"

#include <QtTest>

using namespace store;

namespace {

// The rows of a statement as "a|b" lines joined by ";", values as the program reads them as text.
QString filas(Conexion& cn, const QString& sentencia) {
    Recordset rs;
    rs.Open(sentencia, cn, adOpenStatic, adLockReadOnly);
    QStringList lineas;
    for (; !rs.Eof(); rs.MoveNext()) {
        QStringList celdas;
        for (int i = 0; i < rs.FieldCount(); ++i)
            celdas << runtime::TextoDe(rs.Fields(i).Value());
        lineas << celdas.join(QLatin1Char('|'));
    }
    return lineas.join(QLatin1Char(';'));
}

} // namespace

class TstConexion : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void nombreDelOrigen_data();
    void nombreDelOrigen();
    void abrePorCualquierCadena_data();
    void abrePorCualquierCadena();
    void origenDesconocido();
    void cerradaNoEjecuta();
    void transaccionCompartida();
    void transaccionNoSeAnida();
    void relacionRotaEsFalloGeneral();
    void construccionesDelDialecto_data();
    void construccionesDelDialecto();
    void segundaSentenciaNoLlegaALaBase_data();
    void segundaSentenciaNoLlegaALaBase();

private:
    std::unique_ptr<BaseDePrueba> base_;
    Conexion cn_;
};

void TstConexion::init() {
    base_ = std::make_unique<BaseDePrueba>();
    base_->sqlite(esquemaDePrueba());
    base_->sqlite(QStringLiteral(
        "INSERT INTO Banco (Nombre, Direccion) VALUES ('Banco Industrial', 'Zona 4'), ('Banrural', NULL);"
        "INSERT INTO Cliente (Nombres, Apellidos, FechaNacimiento, Limite) VALUES "
        "('Ana', 'MUÑOZ', '1990-05-01', 2.675), ('Luis', NULL, NULL, 1.005), ('Eva', 'Pérez', '2001-01-22', "
        "-0.001);"
        "INSERT INTO Concepto (Descripcion, Tipo) VALUES ('Enganche', 1), ('Flete', NULL), ('Armado', NULL);"
        "INSERT INTO Recibo (NumeroRecibo, Fecha, BancoID, Efectivo) VALUES (1, '2026-11-22', 1, 1234.5);"));
    cn_ = Conexion(QStringLiteral("Provider=MSDASQL.1;Persist Security Info=False;Data Source=DSNBrenal;"));
    cn_.Open();
}

void TstConexion::cleanup() {
    cn_ = Conexion();
    base_.reset();
}

void TstConexion::nombreDelOrigen_data() {
    QTest::addColumn<QString>("cadena");
    QTest::addColumn<QString>("origen");
    QTest::newRow("proveedor") << "Provider=MSDASQL.1;Persist Security Info=False;Data Source=DSNBrenal;"
                               << "DSNBrenal";
    QTest::newRow("DSN=") << "DSN=DSNBrenal"
                          << "DSNBrenal";
    QTest::newRow("nombre solo") << "DSNBrenal"
                                 << "DSNBrenal";
    QTest::newRow("blancos y minusculas") << " dsn = Otro ; UID=x"
                                          << "Otro";
    QTest::newRow("sin origen") << "Provider=MSDASQL.1;"
                                << "";
}

void TstConexion::nombreDelOrigen() {
    QFETCH(QString, cadena);
    QFETCH(QString, origen);
    QCOMPARE(Conexion::nombreOrigen(cadena), origen);
}

void TstConexion::abrePorCualquierCadena_data() {
    QTest::addColumn<QString>("cadena");
    QTest::newRow("proveedor") << "Provider=MSDASQL.1;Persist Security Info=False;Data Source=DSNBrenal;";
    QTest::newRow("DSN=") << "DSN=DSNBrenal";
    QTest::newRow("nombre solo") << "DSNBrenal";
}

void TstConexion::abrePorCualquierCadena() {
    QFETCH(QString, cadena);
    Conexion cn;
    QCOMPARE(cn.State(), int(adStateClosed));
    cn.Open(cadena);
    QCOMPARE(cn.State(), int(adStateOpen));
    QCOMPARE(cn.dialecto().nombre(), QStringLiteral("SQLite"));
    QCOMPARE(filas(cn, QStringLiteral("Select Count(*) From Banco")), QStringLiteral("2"));
    cn.Close();
    QCOMPARE(cn.State(), int(adStateClosed));
    cn.Open(); // an empty string reopens with the one already set
    QCOMPARE(cn.State(), int(adStateOpen));
}

void TstConexion::origenDesconocido() {
    Conexion cn(QStringLiteral("DSN=NoExiste"));
    try {
        cn.Open();
        QFAIL("opened a data source that does not exist");
    } catch (const Fallo& f) {
        QCOMPARE(f.numero(), FalloGeneral);
        QVERIFY2(f.descripcion().contains(QLatin1String("NoExiste")) ||
                     f.descripcion().contains(QLatin1String("not found")),
                 qPrintable(f.descripcion()));
    }
    QCOMPARE(cn.State(), int(adStateClosed));
}

void TstConexion::cerradaNoEjecuta() {
    Conexion cn(QStringLiteral("DSNBrenal"));
    QCOMPARE(numeroDelFallo([&] { cn.Execute(QStringLiteral("Delete From Banco")); }), FalloObjetoCerrado);
    QCOMPARE(numeroDelFallo([&] { cn.BeginTrans(); }), FalloObjetoCerrado);
    QCOMPARE(base_->valor(QStringLiteral("SELECT count(*) FROM Banco")), QStringLiteral("2"));
}

// What one screen writes inside the shared transaction is not seen by another connection until it
// is committed, and a rollback leaves nothing.
void TstConexion::transaccionCompartida() {
    Conexion otra(QStringLiteral("DSN=DSNBrenal"));
    otra.Open();
    QCOMPARE(cn_.BeginTrans(), 1);
    QCOMPARE(cn_.nivelTransaccion(), 1);
    QCOMPARE(cn_.Execute(QStringLiteral("Insert Into Banco (Nombre) Values ('G&T Continental')")), 1L);
    QCOMPARE(filas(cn_, QStringLiteral("Select Count(*) From Banco")), QStringLiteral("3"));
    QCOMPARE(filas(otra, QStringLiteral("Select Count(*) From Banco")), QStringLiteral("2"));
    cn_.RollbackTrans();
    QCOMPARE(cn_.nivelTransaccion(), 0);
    QCOMPARE(filas(cn_, QStringLiteral("Select Count(*) From Banco")), QStringLiteral("2"));

    cn_.BeginTrans();
    cn_.Execute(QStringLiteral("Update Banco Set Direccion = 'Zona 10' Where BancoID = 2"));
    cn_.CommitTrans();
    QCOMPARE(filas(otra, QStringLiteral("Select Direccion From Banco Where BancoID = 2")),
             QStringLiteral("Zona 10"));
}

void TstConexion::transaccionNoSeAnida() {
    cn_.BeginTrans();
    QCOMPARE(numeroDelFallo([&] { cn_.BeginTrans(); }), FalloOperacionNoPermitida);
    QCOMPARE(cn_.nivelTransaccion(), 1);
    cn_.CommitTrans();
    QCOMPARE(numeroDelFallo([&] { cn_.CommitTrans(); }), FalloOperacionNoPermitida);
    QCOMPARE(numeroDelFallo([&] { cn_.RollbackTrans(); }), FalloOperacionNoPermitida);
}

// A later screen tells a refused delete of a referenced row by the general failure number.
void TstConexion::relacionRotaEsFalloGeneral() {
    try {
        cn_.Execute(QStringLiteral("Delete * From Banco Where BancoID = 1"));
        QFAIL("deleted a bank that a receipt names");
    } catch (const Fallo& f) {
        QCOMPARE(f.numero(), numeroFallo(0x80004005u));
        QCOMPARE(f.numeroHex(), QStringLiteral("80004005"));
        QVERIFY2(f.descripcion().contains(QLatin1String("FOREIGN KEY"), Qt::CaseInsensitive),
                 qPrintable(f.descripcion()));
    }
    QCOMPARE(base_->valor(QStringLiteral("SELECT count(*) FROM Banco WHERE BancoID = 1")),
             QStringLiteral("1"));
}

void TstConexion::construccionesDelDialecto_data() {
    QTest::addColumn<QString>("sentencia");
    QTest::addColumn<QString>("resultado");
    QTest::newRow("& con Null como vacio")
        << "Select ClienteID as Codigo, Nombres & ' ' & Apellidos as Descripcion From Cliente Order By 1"
        << "1|Ana MUÑOZ;2|Luis ;3|Eva Pérez";
    QTest::newRow("& tras la resta") << "Select 'Q.' & Efectivo - 34.5 From Recibo"
                                     << "Q.1200";
    QTest::newRow("& de un real con decimales") << "Select Efectivo & '' From Recibo"
                                                << "1234.5";
    QTest::newRow("ISNULL")
        << "Select ConceptoID as Codigo, Descripcion From Concepto Where ISNULL(Tipo) Order By 2,1"
        << "3|Armado;2|Flete";
    QTest::newRow("Format redondea la mitad hacia afuera")
        << "Select Format(Limite,'#0.00') From Cliente Order By ClienteID"
        << "2.68;1.01;0.00";
    QTest::newRow("Format de miles")
        << "Select Format(Efectivo,'#,##0.00'), Format(Efectivo - 1234,'#.00') From Recibo"
        << "1,234.50|.50";
    QTest::newRow("Format de Null") << "Select Format(Null,'#0.00') From Recibo"
                                    << "";
    QTest::newRow("fecha dia primero") << "Select NumeroRecibo From Recibo Where Fecha = #22/11/2026#"
                                       << "1";
    QTest::newRow("fecha leida") << "Select Fecha From Recibo"
                                 << "22/11/2026";
    QTest::newRow("Like sin distinguir mayusculas")
        << "Select Nombres From Cliente Where Apellidos Like '%muñoz%'"
        << "Ana";
    QTest::newRow("Like con acento") << "Select Nombres From Cliente Where Apellidos Like '%PÉREZ%'"
                                     << "Eva";
    QTest::newRow("igualdad de texto sin mayusculas") << "Select BancoID From Banco Where Nombre = 'BANRURAL'"
                                                      << "2";
    QTest::newRow("orden ordinal") << "Select BancoID, Nombre From Banco Order By 2 Desc"
                                   << "2|Banrural;1|Banco Industrial";
    QTest::newRow("union por coma") << "Select R.NumeroRecibo, B.Nombre From Recibo R, Banco B Where "
                                       "R.BancoID = B.BancoID And R.ReciboID = 1"
                                    << "1|Banco Industrial";
    QTest::newRow("inner join con alias") << "Select R.NumeroRecibo, B.Nombre From Recibo R INNER JOIN Banco "
                                             "B ON R.BancoID = B.BancoID Where R.ReciboID = 1"
                                          << "1|Banco Industrial";
    QTest::newRow("agregado con alias")
        << "Select Max(ConceptoID) as Cuenta From Concepto Where ConceptoID > 0 Group By Tipo "
           "Order By 1"
        << "1;3";
    QTest::newRow("columna sola como condicion") << "Select Count(*) From Recibo Where Fecha"
                                                 << "1";
    QTest::newRow("division real") << "Select 5 / 2 From Recibo"
                                   << "2.5";
}

void TstConexion::construccionesDelDialecto() {
    QFETCH(QString, sentencia);
    QFETCH(QString, resultado);
    QCOMPARE(filas(cn_, sentencia), resultado);
}

// A value typed into a filter box that closes the statement and starts another deletes nothing.
void TstConexion::segundaSentenciaNoLlegaALaBase_data() {
    QTest::addColumn<QString>("sentencia");
    QTest::newRow("tras un numero") << "Select * From Banco Where BancoID = 1; Delete From Recibo";
    QTest::newRow("tras un texto")
        << "Select * From Banco Where Nombre Like '%x%'; Delete From Recibo; Select '%'";
    QTest::newRow("comilla sin cerrar") << "Delete From Recibo Where ReciboID = 'x";
}

void TstConexion::segundaSentenciaNoLlegaALaBase() {
    QFETCH(QString, sentencia);
    QCOMPARE(numeroDelFallo([&] { cn_.Execute(sentencia); }), FalloSintaxis);
    QCOMPARE(numeroDelFallo([&] { filas(cn_, sentencia); }), FalloSintaxis);
    QCOMPARE(base_->valor(QStringLiteral("SELECT count(*) FROM Recibo")), QStringLiteral("1"));
}

QTEST_GUILESS_MAIN(TstConexion)
#include "tst_conexion.moc"
