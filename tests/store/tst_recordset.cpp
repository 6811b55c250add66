// The recordset and the data control: reading, moving, finding, and writing rows back with the
// column's type, the table's defaults and optimistic concurrency.
#include "BaseDePrueba.h"
#include "NumeroDelFallo.h"
#include "runtime/Conversion.h"
#include "store/Adodc.h"
#include "store/Conexion.h"
#include "store/Fallo.h"
#include "store/Recordset.h"

#include <QSignalSpy>
#include <QtTest>

using namespace store;

class TstRecordset : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void camposPorNombreYPosicion();
    void recordsetVacio();
    void recorrido();
    void columnaCalculadaTipadaPorSuPrimeraFila();
    void buscar_data();
    void buscar();
    void agregarUsaLosValoresPorDefecto_data();
    void agregarUsaLosValoresPorDefecto();
    void fuentesEditables_data();
    void fuentesEditables();
    void conversionAlTipoDeLaColumna_data();
    void conversionAlTipoDeLaColumna();
    void valorQueNoCabe_data();
    void valorQueNoCabe();
    void modificarEscribeSoloLoCambiado();
    void dosEdicionesDeLaMismaFila();
    void cancelarAgregado();
    void eliminarFilaActual();
    void eliminarFilaNombrada_data();
    void eliminarFilaNombrada();
    void soloLectura_data();
    void soloLectura();
    void filaDentroDeLaTransaccionCompartida();
    void controlDeDatos();

private:
    Recordset* abrir(const QString& fuente, TipoBloqueo bloqueo = adLockOptimistic);

    std::unique_ptr<BaseDePrueba> base_;
    Conexion cn_;
    std::vector<std::unique_ptr<Recordset>> abiertos_;
};

void TstRecordset::init() {
    base_ = std::make_unique<BaseDePrueba>(true);
    base_->sqlite(QStringLiteral(
        "INSERT INTO Banco (Nombre, Direccion) VALUES ('Banco Industrial', 'Zona 4'), ('Banrural', NULL), "
        "('G&T Continental', 'Zona 9'), ('Bantrab', 'Zona 1'), ('Banrural', 'Mixco');"
        "INSERT INTO Cliente (Nombres, Apellidos, FechaNacimiento, Limite, CodigoNumero) VALUES "
        "('Ana', 'Muñoz', '1990-05-01', 1500, 1);"));
    cn_ = Conexion(QStringLiteral("DSN=DSNBrenal"));
    cn_.Open();
}

void TstRecordset::cleanup() {
    abiertos_.clear();
    cn_ = Conexion();
    base_.reset();
}

Recordset* TstRecordset::abrir(const QString& fuente, TipoBloqueo bloqueo) {
    abiertos_.push_back(std::make_unique<Recordset>());
    abiertos_.back()->Open(fuente, cn_, adOpenStatic, bloqueo);
    return abiertos_.back().get();
}

void TstRecordset::camposPorNombreYPosicion() {
    Recordset* rs = abrir(QStringLiteral("Select * From Cliente"));
    QCOMPARE(rs->FieldCount(), 12);
    QCOMPARE(rs->Fields(QStringLiteral("nombres")).Value().toString(), QStringLiteral("Ana"));
    QCOMPARE(rs->Fields(QStringLiteral("APELLIDOS")).Value().toString(), QStringLiteral("Muñoz"));
    QCOMPARE(rs->Fields(3).Name(), QStringLiteral("FechaNacimiento"));
    QCOMPARE(rs->Fields(3).Value().toDate(), QDate(1990, 5, 1));
    QCOMPARE(rs->Fields(QStringLiteral("Limite")).Value().toDouble(), 1500.0);
    QVERIFY(!rs->Fields(QStringLiteral("NIT")).Value().isValid()); // Null
    QCOMPARE(numeroDelFallo([&] { rs->Fields(QStringLiteral("NoExiste")); }), FalloCampoInexistente);
    QCOMPARE(numeroDelFallo([&] { rs->Fields(12); }), FalloCampoInexistente);
}

// A screen that opens on "Where ... < 0" has no row: EOF and BOF are both true and reading a
// field is a failure.
void TstRecordset::recordsetVacio() {
    Recordset* rs = abrir(QStringLiteral("Select * From Banco Where BancoID < 0"));
    QVERIFY(rs->Eof());
    QVERIFY(rs->Bof());
    QCOMPARE(rs->RecordCount(), 0);
    QCOMPARE(rs->AbsolutePosition(), 0);
    QCOMPARE(numeroDelFallo([&] { rs->Fields(QStringLiteral("Nombre")).Value(); }), FalloSinRegistroActual);
    rs->MoveFirst(); // no row to go to, and no failure either
    QVERIFY(rs->Eof() && rs->Bof());
    QCOMPARE(numeroDelFallo([&] { rs->MoveNext(); }), FalloSinRegistroActual);
    QCOMPARE(numeroDelFallo([&] { rs->Update(); }), FalloSinRegistroActual);
}

void TstRecordset::recorrido() {
    Recordset* rs = abrir(QStringLiteral("Select BancoID, Nombre From Banco Order By BancoID"));
    QCOMPARE(rs->RecordCount(), 5);
    QVERIFY(!rs->Eof() && !rs->Bof());
    QCOMPARE(rs->Fields(0).Value().toInt(), 1);
    rs->MoveLast();
    QCOMPARE(rs->Fields(0).Value().toInt(), 5);
    rs->MoveNext();
    QVERIFY(rs->Eof());
    QCOMPARE(numeroDelFallo([&] { rs->MoveNext(); }), FalloSinRegistroActual);
    rs->MoveFirst();
    rs->MovePrevious();
    QVERIFY(rs->Bof());
    rs->setAbsolutePosition(3);
    QCOMPARE(rs->Fields(QStringLiteral("Nombre")).Value().toString(), QStringLiteral("G&T Continental"));
}

// The SQLite driver types a computed column from its first row: a 0 there must not turn a later
// 22.75 into 22.
void TstRecordset::columnaCalculadaTipadaPorSuPrimeraFila() {
    Recordset* rs =
        abrir(QStringLiteral("Select BancoID, IIf(BancoID = 1, 0, 22.75) as Monto From Banco Order By 1"));
    QCOMPARE(rs->Fields(QStringLiteral("Monto")).Value().toDouble(), 0.0);
    rs->MoveNext();
    QCOMPARE(rs->Fields(QStringLiteral("Monto")).Value().toDouble(), 22.75);
}

void TstRecordset::buscar_data() {
    QTest::addColumn<int>("desde"); // 1-based row to search from
    QTest::addColumn<QString>("criterio");
    QTest::addColumn<int>("hallada"); // 1-based row found; 0 for the end
    QTest::newRow("clave") << 1 << "BancoID = 4" << 4;
    QTest::newRow("clave sin blancos") << 1 << "BancoID=2" << 2;
    QTest::newRow("clave inexistente llega al final") << 1 << "BancoID = 99" << 0;
    QTest::newRow("solo hacia adelante") << 4 << "BancoID = 2" << 0;
    QTest::newRow("desde la fila actual incluida") << 2 << "Nombre = 'Banrural'" << 2;
    QTest::newRow("la siguiente igual") << 3 << "Nombre = 'banrural'" << 5;
    QTest::newRow("Like") << 1 << "Nombre Like 'G&T%'" << 3;
    QTest::newRow("mayor que") << 1 << "BancoID > 3" << 4;
    QTest::newRow("Null no es igual a nada") << 1 << "Direccion = ''" << 0;
}

void TstRecordset::buscar() {
    QFETCH(int, desde);
    QFETCH(QString, criterio);
    QFETCH(int, hallada);
    Recordset* rs = abrir(QStringLiteral("Select * From Banco Order By BancoID"));
    rs->setAbsolutePosition(desde);
    rs->Find(criterio);
    QCOMPARE(rs->AbsolutePosition(), hallada);
    QCOMPARE(rs->Eof(), hallada == 0);
}

// Update of a new row writes only what was assigned, so the table's defaults apply (the ones the
// screens rely on: active clients, guarantors and articles, a new application pending and without
// mora, a delivery note with no origin but the one written), and the key the database gave comes
// back; Resync brings the whole row.
void TstRecordset::agregarUsaLosValoresPorDefecto_data() {
    QTest::addColumn<QString>("tabla");
    QTest::addColumn<QString>("clave");
    QTest::addColumn<QString>("campo"); // the one field assigned
    QTest::addColumn<QVariant>("valor");
    QTest::addColumn<QString>("guardado");       // the assigned field as SQLite holds it
    QTest::addColumn<QStringList>("porDefecto"); // fields left alone and the number each reads

    QTest::newRow("cliente") << "Cliente"
                             << "ClienteID"
                             << "Nombres" << QVariant("Luis") << "Luis"
                             << QStringList{"Activo=1", "Limite=0"};
    QTest::newRow("fiador") << "Fiador"
                            << "FiadorID"
                            << "Nombres" << QVariant("Jorge") << "Jorge"
                            << QStringList{"Activo=1", "CasaPropia=0", "TrabajoSueldo=0"};
    QTest::newRow("articulo") << "Articulo"
                              << "ArticuloID"
                              << "Nombre" << QVariant("Estufa") << "Estufa"
                              << QStringList{"Activo=1", "Costo=0", "ContadoPorcentaje=0"};
    QTest::newRow("solicitud") << "Solicitud"
                               << "SolicitudID"
                               << "Fecha" << QVariant("22/11/2026") << "2026-11-22"
                               << QStringList{"Estado=0", "Mora=0", "ClienteID=0", "FiadorID=0"};
    QTest::newRow("nota de envio") << "NotaEnvio"
                                   << "NotaID"
                                   << "FacturaID" << QVariant(4) << "4"
                                   << QStringList{"SolicitudID=0", "ReciboID=0"};
    QTest::newRow("recibo") << "Recibo"
                            << "ReciboID"
                            << "Efectivo" << QVariant("1,250.75") << "1250.75"
                            << QStringList{"BancoID=0", "ChequeValor=0", "SolicitudID=0"};
}

void TstRecordset::agregarUsaLosValoresPorDefecto() {
    QFETCH(QString, tabla);
    QFETCH(QString, clave);
    QFETCH(QString, campo);
    QFETCH(QVariant, valor);
    QFETCH(QString, guardado);
    QFETCH(QStringList, porDefecto);
    // A row already there, so the new key is not simply the first.
    base_->sqlite(QStringLiteral("INSERT INTO %1 (%2) VALUES (7)").arg(tabla, clave));

    Recordset* rs = abrir(QStringLiteral("Select * From %1 Where %2 < 0").arg(tabla, clave));
    rs->AddNew();
    QCOMPARE(rs->EditMode(), int(adEditAdd));
    rs->Fields(campo) = valor;
    rs->Update();
    QCOMPARE(rs->EditMode(), int(adEditNone));
    QCOMPARE(rs->Fields(clave).Value().toInt(), 8);
    const QString primero = porDefecto.first().section(QLatin1Char('='), 0, 0);
    QVERIFY(!rs->Fields(primero).Value().isValid()); // not read back yet
    rs->Resync();
    QCOMPARE(rs->Fields(clave).Value().toInt(), 8);
    QCOMPARE(base_->valor(QStringLiteral("SELECT %1 FROM %2 WHERE %3 = 8").arg(campo, tabla, clave)),
             guardado);
    for (const QString& par : porDefecto) {
        const QString nombre = par.section(QLatin1Char('='), 0, 0);
        const double numero = par.section(QLatin1Char('='), 1).toDouble();
        QVERIFY2(!runtime::EsNulo(rs->Fields(nombre).Value()), qPrintable(nombre));
        QCOMPARE(runtime::ValNulo(rs->Fields(nombre).Value()), numero);
        QCOMPARE(base_->valor(QStringLiteral("SELECT %1 FROM %2 WHERE %3 = 8").arg(nombre, tabla, clave))
                     .toDouble(),
                 numero);
    }
    QCOMPARE(rs->RecordCount(), 1);
}

// One table, with or without an alias, is enough to write a row back; a computed field is read only.
void TstRecordset::fuentesEditables_data() {
    QTest::addColumn<QString>("fuente");
    QTest::addColumn<QString>("campo");
    QTest::newRow("tabla") << "Select * From Banco Where BancoID < 0"
                           << "Nombre";
    QTest::newRow("alias y asterisco") << "Select B.* From Banco B Where B.BancoID < 0"
                                       << "Nombre";
    QTest::newRow("columnas con alias")
        << "Select B.BancoID, B.Nombre as Banco, B.Nombre & '' as Calculado From Banco B "
           "Where B.BancoID < 0"
        << "Banco";
}

void TstRecordset::fuentesEditables() {
    QFETCH(QString, fuente);
    QFETCH(QString, campo);
    Recordset* rs = abrir(fuente);
    QVERIFY(rs->actualizable());
    rs->AddNew();
    rs->Fields(campo) = QStringLiteral("Banco Azteca");
    rs->Update();
    QCOMPARE(rs->Fields(0).Value().toInt(), 6);
    QCOMPARE(base_->valor(QStringLiteral("SELECT Nombre FROM Banco WHERE BancoID = 6")),
             QStringLiteral("Banco Azteca"));
    if (rs->indiceCampo(QStringLiteral("Calculado")) >= 0)
        QCOMPARE(numeroDelFallo([&] { rs->Fields(QStringLiteral("Calculado")) = QStringLiteral("x"); }),
                 FalloOperacionNoPermitida);
}

void TstRecordset::conversionAlTipoDeLaColumna_data() {
    QTest::addColumn<QString>("campo");
    QTest::addColumn<QVariant>("asignado");
    QTest::addColumn<QString>("guardado"); // as SQLite holds it; "NULL" for Null
    QTest::newRow("fecha dia primero") << "FechaNacimiento" << QVariant("22/11/2026") << "2026-11-22";
    QTest::newRow("fecha de un digito") << "FechaNacimiento" << QVariant("5/1/2026") << "2026-01-05";
    QTest::newRow("fecha como QDate") << "FechaNacimiento" << QVariant(QDate(2025, 2, 28)) << "2025-02-28";
    QTest::newRow("fecha vacia es Null") << "FechaNacimiento" << QVariant("") << "NULL";
    QTest::newRow("numero con miles") << "Limite" << QVariant("1,500.00") << "1500.0";
    QTest::newRow("numero con blancos") << "Limite" << QVariant(" 22.75 ") << "22.75";
    QTest::newRow("numero vacio es Null") << "Limite" << QVariant("") << "NULL";
    QTest::newRow("entero redondea") << "CodigoNumero" << QVariant("12.6") << "13";
    QTest::newRow("entero desde real") << "CodigoNumero" << QVariant(7.0) << "7";
    QTest::newRow("logico verdadero") << "Activo" << QVariant(true) << "1";
    QTest::newRow("logico falso en texto") << "Activo" << QVariant("Falso") << "0";
    QTest::newRow("texto con comilla") << "Apellidos" << QVariant("D'Angelo") << "D'Angelo";
    QTest::newRow("texto vacio sigue siendo texto") << "NIT" << QVariant("") << "";
    QTest::newRow("numero a texto") << "NIT" << QVariant(1234567) << "1234567";
    QTest::newRow("Null") << "Apellidos" << QVariant() << "NULL";
}

void TstRecordset::conversionAlTipoDeLaColumna() {
    QFETCH(QString, campo);
    QFETCH(QVariant, asignado);
    QFETCH(QString, guardado);
    Recordset* rs = abrir(QStringLiteral("Select * From Cliente Where ClienteID = 1"));
    rs->Fields(campo) = asignado;
    rs->Update();
    const QString leido = base_->valor(
        QStringLiteral("SELECT coalesce(%1, 'NULL') FROM Cliente WHERE ClienteID = 1").arg(campo));
    QCOMPARE(leido, guardado);
}

void TstRecordset::valorQueNoCabe_data() {
    QTest::addColumn<QString>("campo");
    QTest::addColumn<QString>("asignado");
    QTest::newRow("fecha imposible") << "FechaNacimiento"
                                     << "31/02/2026";
    QTest::newRow("texto en fecha") << "FechaNacimiento"
                                    << "mañana";
    QTest::newRow("texto en numero") << "Limite"
                                     << "mil";
    QTest::newRow("texto en entero") << "CodigoNumero"
                                     << "12a";
}

// A value the column cannot hold is refused at once and leaves the row as it was.
void TstRecordset::valorQueNoCabe() {
    QFETCH(QString, campo);
    QFETCH(QString, asignado);
    Recordset* rs = abrir(QStringLiteral("Select * From Cliente Where ClienteID = 1"));
    const QVariant antes = rs->Fields(campo).Value();
    QCOMPARE(numeroDelFallo([&] { rs->Fields(campo) = asignado; }), FalloValorInvalido);
    QCOMPARE(rs->Fields(campo).Value(), antes);
    QCOMPARE(rs->EditMode(), int(adEditNone));
}

// An Update writes only the fields that changed, so a change another user made meanwhile to a
// different field survives.
void TstRecordset::modificarEscribeSoloLoCambiado() {
    Recordset* rs = abrir(QStringLiteral("Select * From Cliente Where ClienteID = 1"));
    base_->sqlite(QStringLiteral("UPDATE Cliente SET NIT = '123456-7' WHERE ClienteID = 1"));
    rs->Fields(QStringLiteral("Nombres")) = QStringLiteral("Ana María");
    rs->Fields(QStringLiteral("Apellidos")) = QStringLiteral("Muñoz"); // the same value: not written
    QCOMPARE(rs->EditMode(), int(adEditInProgress));
    rs->Update();
    QCOMPARE(base_->valor(QStringLiteral("SELECT Nombres || '|' || NIT FROM Cliente WHERE ClienteID = 1")),
             QStringLiteral("Ana María|123456-7"));
}

// Two recordsets edit the same row: the second Update finds the row changed and overwrites nothing.
void TstRecordset::dosEdicionesDeLaMismaFila() {
    Conexion otra(QStringLiteral("DSNBrenal"));
    otra.Open();
    Recordset* uno = abrir(QStringLiteral("Select * From Cliente Where ClienteID = 1"));
    abiertos_.push_back(std::make_unique<Recordset>());
    Recordset* dos = abiertos_.back().get();
    dos->Open(QStringLiteral("Select * From Cliente Where ClienteID = 1"), otra);

    uno->Fields(QStringLiteral("Limite")) = 2000;
    uno->Update();
    dos->Fields(QStringLiteral("Limite")) = 3000;
    QCOMPARE(numeroDelFallo([&] { dos->Update(); }), FalloFilaCambiada);
    QCOMPARE(base_->valor(QStringLiteral("SELECT Limite FROM Cliente WHERE ClienteID = 1")),
             QStringLiteral("2000.0"));
    QCOMPARE(dos->EditMode(), int(adEditInProgress)); // the user may cancel
    dos->CancelUpdate();
    QCOMPARE(dos->Fields(QStringLiteral("Limite")).Value().toDouble(), 1500.0);
    dos->Resync();
    QCOMPARE(dos->Fields(QStringLiteral("Limite")).Value().toDouble(), 2000.0);
}

void TstRecordset::cancelarAgregado() {
    Recordset* rs = abrir(QStringLiteral("Select * From Banco Order By BancoID"));
    rs->setAbsolutePosition(2);
    rs->AddNew();
    rs->Fields(QStringLiteral("Nombre")) = QStringLiteral("Banco Azteca");
    QCOMPARE(rs->RecordCount(), 6);
    rs->CancelUpdate();
    QCOMPARE(rs->RecordCount(), 5);
    QCOMPARE(rs->AbsolutePosition(), 2);
    QCOMPARE(base_->valor(QStringLiteral("SELECT count(*) FROM Banco")), QStringLiteral("5"));
}

void TstRecordset::eliminarFilaActual() {
    Recordset* rs = abrir(QStringLiteral("Select * From Banco Order By BancoID"));
    rs->setAbsolutePosition(5);
    rs->Delete();
    QVERIFY(rs->Eof());
    QCOMPARE(rs->RecordCount(), 4);
    QCOMPARE(base_->valor(QStringLiteral("SELECT count(*) FROM Banco WHERE BancoID = 5")),
             QStringLiteral("0"));
    rs->MoveFirst();
    base_->sqlite(QStringLiteral("DELETE FROM Banco WHERE BancoID = 1"));
    QCOMPARE(numeroDelFallo([&] { rs->Delete(); }), FalloFilaCambiada);
}

// The bank and supplier screens delete their current row through the recordset: a row that another
// one names is refused with the general failure and the guard's text, and stays, in the database and
// as the recordset's current row.
void TstRecordset::eliminarFilaNombrada_data() {
    QTest::addColumn<QString>("referencia"); // SQLite's SQL
    QTest::addColumn<QString>("fuente");
    QTest::addColumn<int>("posicion");
    QTest::addColumn<QString>("fila"); // counts the row in the file
    QTest::addColumn<QString>("mensaje");
    QTest::newRow("banco de un recibo")
        << "INSERT INTO Recibo (NumeroRecibo, BancoID) VALUES (1, 3)"
        << "Select * From Banco Order By BancoID" << 3 << "SELECT count(*) FROM Banco WHERE BancoID = 3"
        << "No puede eliminarse el banco: hay recibos o facturas que lo nombran.";
    QTest::newRow("proveedor de una nota de ingreso")
        << "INSERT INTO Proveedor (ProveedorID, Nombre) VALUES (4, 'Elektra');"
           "INSERT INTO NotaIngreso (NumeroIngreso, ProveedorID) VALUES (401, 4)"
        << "Select * From Proveedor Where ProveedorID = 4" << 1
        << "SELECT count(*) FROM Proveedor WHERE ProveedorID = 4"
        << "No puede eliminarse el proveedor: hay notas de ingreso o documentos por pagar que lo nombran.";
}

void TstRecordset::eliminarFilaNombrada() {
    QFETCH(QString, referencia);
    QFETCH(QString, fuente);
    QFETCH(int, posicion);
    QFETCH(QString, fila);
    QFETCH(QString, mensaje);
    base_->sqlite(referencia);
    Recordset* rs = abrir(fuente);
    rs->setAbsolutePosition(posicion);
    const int filas = rs->RecordCount();
    const QVariant clave = rs->Fields(0).Value();
    try {
        rs->Delete();
        QFAIL("deleted a row that another one names");
    } catch (const Fallo& f) {
        QCOMPARE(f.numeroHex(), QStringLiteral("80004005"));
        QCOMPARE(f.descripcion(), mensaje);
    }
    QCOMPARE(base_->valor(fila), QStringLiteral("1"));
    QCOMPARE(rs->RecordCount(), filas);
    QCOMPARE(rs->AbsolutePosition(), posicion);
    QCOMPARE(rs->Fields(0).Value(), clave);
}

void TstRecordset::soloLectura_data() {
    QTest::addColumn<QString>("fuente");
    QTest::addColumn<int>("bloqueo");
    QTest::newRow("de solo lectura") << "Select * From Banco" << int(adLockReadOnly);
    QTest::newRow("union") << "Select B.*, C.Nombres From Banco B, Cliente C" << int(adLockOptimistic);
    QTest::newRow("agrupado") << "Select Nombre, Count(*) as N From Banco Group By Nombre"
                              << int(adLockOptimistic);
    QTest::newRow("sin la clave") << "Select Nombre From Banco" << int(adLockOptimistic);
}

void TstRecordset::soloLectura() {
    QFETCH(QString, fuente);
    QFETCH(int, bloqueo);
    Recordset* rs = abrir(fuente, static_cast<TipoBloqueo>(bloqueo));
    QVERIFY(!rs->actualizable());
    QCOMPARE(numeroDelFallo([&] { rs->AddNew(); }), FalloOperacionNoPermitida);
    QCOMPARE(numeroDelFallo([&] { rs->Fields(0) = QStringLiteral("x"); }), FalloOperacionNoPermitida);
}

// "Agregar" on a transactional screen: the data control's recordset writes through the shared
// connection, inside its transaction; Cancelar rolls it back and leaves no row behind.
void TstRecordset::filaDentroDeLaTransaccionCompartida() {
    Adodc ado(nullptr);
    ado.setRecordSource(QStringLiteral("Select * From Banco Where BancoID < 0"));
    ado.Refresh();
    Recordset* rs = ado.Recordset();
    rs->setActiveConnection(cn_);
    QCOMPARE(cn_.BeginTrans(), 1);
    rs->AddNew();
    rs->Fields(QStringLiteral("Nombre")) = QStringLiteral("Banco Azteca");
    rs->Update();
    rs->Resync();
    QCOMPARE(rs->Fields(QStringLiteral("BancoID")).Value().toInt(), 6);
    QCOMPARE(base_->valor(QStringLiteral("SELECT count(*) FROM Banco")),
             QStringLiteral("5")); // not committed
    cn_.RollbackTrans();
    QCOMPARE(base_->valor(QStringLiteral("SELECT count(*) FROM Banco")), QStringLiteral("5"));

    // A refresh gives the recordset back the data control's own connection.
    ado.Refresh();
    QVERIFY(ado.Recordset()->ActiveConnection().mismaQue(ado.conexion()));
}

void TstRecordset::controlDeDatos() {
    Adodc ado(nullptr);
    QSignalSpy fila(&ado, &Adodc::filaActualCambiada);
    QSignalSpy valores(&ado, &Adodc::valoresCambiados);
    ado.setRecordSource(QStringLiteral("Select * From Banco Order By Nombre"));
    ado.Refresh();
    QCOMPARE(fila.count(), 1);
    Recordset* rs = ado.Recordset();
    QCOMPARE(rs->Fields(QStringLiteral("Nombre")).Value().toString(), QStringLiteral("Banco Industrial"));
    rs->MoveNext();
    QCOMPARE(fila.count(), 2);
    const int editado = rs->Fields(QStringLiteral("BancoID")).Value().toInt();
    rs->Fields(QStringLiteral("Direccion")) = QStringLiteral("Zona 13");
    QCOMPARE(valores.count(), 1);
    // Moving off an edited row stores it.
    rs->MoveNext();
    QCOMPARE(base_->valor(QStringLiteral("SELECT Direccion FROM Banco WHERE BancoID = %1").arg(editado)),
             QStringLiteral("Zona 13"));
    ado.setRecordSource(QStringLiteral("Select * From Banco Where BancoID = 3"));
    ado.Refresh();
    QCOMPARE(rs, ado.Recordset()); // the same object across refreshes
    QCOMPARE(rs->RecordCount(), 1);
}

QTEST_GUILESS_MAIN(TstRecordset)
#include "tst_recordset.moc"
