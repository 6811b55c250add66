// The connection to DSNBrenal: opening by any form of the connection string, transactions, failures,
// the schema's guards as the store reports them, and what the dialect's constructs return from a
// database built from the project's schema.
#include "BaseDePrueba.h"
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
    void guardasDeIntegridad_data();
    void guardasDeIntegridad();
    void construccionesDelDialecto_data();
    void construccionesDelDialecto();
    void segundaSentenciaNoLlegaALaBase_data();
    void segundaSentenciaNoLlegaALaBase();

private:
    std::unique_ptr<BaseDePrueba> base_;
    Conexion cn_;
};

void TstConexion::init() {
    base_ = std::make_unique<BaseDePrueba>(true);
    base_->sqlite(QStringLiteral(
        "INSERT INTO Banco (Nombre, Direccion) VALUES ('Banco Industrial', 'Zona 4'), ('Banrural', NULL);"
        "INSERT INTO Cliente (Nombres, Apellidos, FechaNacimiento, Limite) VALUES "
        "('Ana', 'MUÑOZ', '1990-05-01', 2.675), ('Luis', NULL, NULL, 1.005), ('Eva', 'Pérez', '2001-01-22', "
        "-0.001);"
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

// A row that others still name is not deleted: the database refuses, the store reports the general
// failure number (which the goods-in screen tests for) with the database's own text, and the row stays.
// Once nothing names it, the same statement deletes it. `mensaje` empty: any text will do.
void TstConexion::guardasDeIntegridad_data() {
    QTest::addColumn<QString>("referencia"); // SQLite's SQL: the row that names the one to delete
    QTest::addColumn<QString>("sentencia");
    QTest::addColumn<QString>("fila");   // counts the row to delete
    QTest::addColumn<QString>("retiro"); // SQLite's SQL: takes the naming row away again
    QTest::addColumn<QString>("mensaje");

    const QString banco =
        QStringLiteral("No puede eliminarse el banco: hay recibos o facturas que lo nombran.");
    QTest::newRow("banco de un recibo") << "INSERT INTO Recibo (NumeroRecibo, BancoID) VALUES (2, 2)"
                                        << "Delete From Banco Where BancoID = 2"
                                        << "SELECT count(*) FROM Banco WHERE BancoID = 2"
                                        << "DELETE FROM Recibo WHERE NumeroRecibo = 2" << banco;
    QTest::newRow("banco de una factura") << "INSERT INTO Factura (NumeroFactura, BancoID) VALUES (1, 2)"
                                          << "Delete * From Banco Where BancoID = 2"
                                          << "SELECT count(*) FROM Banco WHERE BancoID = 2"
                                          << "DELETE FROM Factura" << banco;

    const QString proveedor = QStringLiteral(
        "No puede eliminarse el proveedor: hay notas de ingreso o documentos por pagar que lo nombran.");
    QTest::newRow("proveedor de una nota de ingreso")
        << "INSERT INTO Proveedor (ProveedorID, Nombre) VALUES (1, 'Elektra');"
           "INSERT INTO NotaIngreso (NumeroIngreso, ProveedorID) VALUES (401, 1)"
        << "Delete From Proveedor Where ProveedorID = 1"
        << "SELECT count(*) FROM Proveedor WHERE ProveedorID = 1"
        << "DELETE FROM NotaIngreso" << proveedor;
    QTest::newRow("proveedor de un documento")
        << "INSERT INTO Proveedor (ProveedorID, Nombre) VALUES (1, 'Elektra');"
           "INSERT INTO Documento (NumeroDocumento, ProveedorID) VALUES (601, 1)"
        << "Delete From Proveedor Where ProveedorID = 1"
        << "SELECT count(*) FROM Proveedor WHERE ProveedorID = 1"
        << "DELETE FROM Documento" << proveedor;

    const QString articulo =
        QStringLiteral("No puede eliminarse el artículo: hay documentos que lo nombran.");
    const QString unArticulo =
        QStringLiteral("INSERT INTO Articulo (ArticuloID, Nombre) VALUES (1, 'Estufa');");
    const struct {
        const char* fila;
        const char* tabla;
        const char* columnas;
    } lineas[] = {
        {"articulo de una nota de ingreso", "NotaIngresoDetalle",
         "(IngresoID, ArticuloID, Cantidad) VALUES (1, 1, 2)"},
        {"articulo de una nota de envio", "NotaEnvioDetalle",
         "(NotaID, ArticuloID, Cantidad) VALUES (1, 1, 2)"},
        {"articulo de una solicitud", "SolicitudDetalle",
         "(SolicitudID, ArticuloID, Cantidad, Precio) VALUES (1, 1, 2, 300)"},
        {"articulo de un recibo", "ReciboDetalle",
         "(ReciboID, ArticuloID, Cantidad, Valor) VALUES (1, 1, 2, 150)"},
        {"articulo de una factura", "FacturaDetalle",
         "(FacturaID, ArticuloID, Cantidad, Precio) VALUES (1, 1, 2, 150)"},
    };
    for (const auto& l : lineas)
        QTest::newRow(l.fila) << unArticulo + QStringLiteral("INSERT INTO %1 %2")
                                                  .arg(QLatin1String(l.tabla), QLatin1String(l.columnas))
                              << "Delete From Articulo Where ArticuloID = 1"
                              << "SELECT count(*) FROM Articulo WHERE ArticuloID = 1"
                              << QStringLiteral("DELETE FROM %1").arg(QLatin1String(l.tabla)) << articulo;

    const QString cliente =
        QStringLiteral("No puede eliminarse el cliente: hay solicitudes, recibos o facturas que lo nombran.");
    QTest::newRow("cliente de una solicitud")
        << "INSERT INTO Solicitud (NumeroSolicitud, ClienteID) VALUES (101, 2)"
        << "Delete From Cliente Where ClienteID = 2"
        << "SELECT count(*) FROM Cliente WHERE ClienteID = 2"
        << "DELETE FROM Solicitud" << cliente;
    QTest::newRow("cliente de un recibo") << "INSERT INTO Recibo (NumeroRecibo, ClienteID) VALUES (2, 2)"
                                          << "Delete From Cliente Where ClienteID = 2"
                                          << "SELECT count(*) FROM Cliente WHERE ClienteID = 2"
                                          << "DELETE FROM Recibo WHERE NumeroRecibo = 2" << cliente;
    QTest::newRow("cliente de una factura") << "INSERT INTO Factura (NumeroFactura, ClienteID) VALUES (1, 2)"
                                            << "Delete From Cliente Where ClienteID = 2"
                                            << "SELECT count(*) FROM Cliente WHERE ClienteID = 2"
                                            << "DELETE FROM Factura" << cliente;

    QTest::newRow("fiador de una solicitud")
        << "INSERT INTO Fiador (FiadorID, Nombres) VALUES (1, 'Jorge');"
           "INSERT INTO Solicitud (NumeroSolicitud, FiadorID) VALUES (101, 1)"
        << "Delete From Fiador Where FiadorID = 1"
        << "SELECT count(*) FROM Fiador WHERE FiadorID = 1"
        << "DELETE FROM Solicitud"
        << "No puede eliminarse el fiador: hay solicitudes de crédito que lo nombran.";

    const QString solicitud = QStringLiteral(
        "No puede eliminarse la solicitud: hay recibos, facturas o notas de envío que la nombran.");
    const QString unaSolicitud =
        QStringLiteral("INSERT INTO Solicitud (SolicitudID, NumeroSolicitud) VALUES (1, 101);");
    QTest::newRow("solicitud de un recibo")
        << unaSolicitud + "INSERT INTO Recibo (NumeroRecibo, SolicitudID) VALUES (2, 1)"
        << "Delete From Solicitud Where SolicitudID = 1"
        << "SELECT count(*) FROM Solicitud WHERE SolicitudID = 1"
        << "DELETE FROM Recibo WHERE NumeroRecibo = 2" << solicitud;
    QTest::newRow("solicitud de una factura")
        << unaSolicitud + "INSERT INTO Factura (NumeroFactura, SolicitudID) VALUES (1, 1)"
        << "Delete From Solicitud Where SolicitudID = 1"
        << "SELECT count(*) FROM Solicitud WHERE SolicitudID = 1"
        << "DELETE FROM Factura" << solicitud;
    QTest::newRow("solicitud de una nota de envio")
        << unaSolicitud + "INSERT INTO NotaEnvio (NumeroNota, SolicitudID) VALUES (501, 1)"
        << "Delete From Solicitud Where SolicitudID = 1"
        << "SELECT count(*) FROM Solicitud WHERE SolicitudID = 1"
        << "DELETE FROM NotaEnvio" << solicitud;

    const QString concepto =
        QStringLiteral("No puede eliminarse el concepto: hay recibos o facturas que lo nombran.");
    QTest::newRow("concepto de un recibo")
        << "INSERT INTO ReciboDetalle (ReciboID, ConceptoID, Valor) VALUES (1, 7, 25)"
        << "Delete From Concepto Where ConceptoID = 7"
        << "SELECT count(*) FROM Concepto WHERE ConceptoID = 7"
        << "DELETE FROM ReciboDetalle" << concepto;
    QTest::newRow("concepto de una factura")
        << "INSERT INTO FacturaDetalle (FacturaID, ConceptoID, Precio) VALUES (1, 7, 25)"
        << "Delete From Concepto Where ConceptoID = 7"
        << "SELECT count(*) FROM Concepto WHERE ConceptoID = 7"
        << "DELETE FROM FacturaDetalle" << concepto;

    // Whichever way the database guards this one, the goods-in screen only needs the number.
    QTest::newRow("nota de ingreso de un documento")
        << "INSERT INTO NotaIngreso (IngresoID, NumeroIngreso) VALUES (1, 401);"
           "INSERT INTO DocumentoDetalle (DocumentoID, IngresoID, Valor) VALUES (1, 1, 500)"
        << "Delete * From NotaIngreso Where IngresoID = 1"
        << "SELECT count(*) FROM NotaIngreso WHERE IngresoID = 1"
        << "DELETE FROM DocumentoDetalle"
        << "";
}

void TstConexion::guardasDeIntegridad() {
    QFETCH(QString, referencia);
    QFETCH(QString, sentencia);
    QFETCH(QString, fila);
    QFETCH(QString, retiro);
    QFETCH(QString, mensaje);
    base_->sqlite(referencia);
    try {
        cn_.Execute(sentencia);
        QFAIL("deleted a row that another one names");
    } catch (const Fallo& f) {
        QCOMPARE(f.numero(), FalloGeneral);
        QCOMPARE(f.numeroHex(), QStringLiteral("80004005"));
        if (mensaje.isEmpty())
            QVERIFY(!f.descripcion().trimmed().isEmpty());
        else
            QCOMPARE(f.descripcion(), mensaje);
    }
    QCOMPARE(base_->valor(fila), QStringLiteral("1"));

    base_->sqlite(retiro);
    QCOMPARE(cn_.Execute(sentencia), 1L);
    QCOMPARE(base_->valor(fila), QStringLiteral("0"));
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
        << "Select ConceptoID as Codigo, Descripcion From Concepto Where ISNULL(Tipo) And "
           "ConceptoID < 8 Order By 2,1"
        << "7|Flete;5|Gastos administrativos;6|Gastos de cobranza";
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
        << "1;2;3;4;10";
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
