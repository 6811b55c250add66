// An Update finds its row by the key and the values the changed fields had when read, compared as the
// database stores them: a REAL with all its digits, a text byte for byte whatever the column's
// collation. So a row nobody else touched is always found, and a change another user made
// meanwhile is never overwritten.
#include "BaseDePrueba.h"
#include "NumeroDelFallo.h"
#include "store/Conexion.h"
#include "store/Fallo.h"
#include "store/Recordset.h"

#include <QtTest>

using namespace store;

namespace {

// Seventeen significant digits tell any two doubles apart.
QString cifras(double valor) {
    return QString::number(valor, 'g', 17);
}

} // namespace

class TstActualizacion : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void realConTodasSusCifras_data();
    void realConTodasSusCifras();
    void realCambiadoPorOtroUsuario_data();
    void realCambiadoPorOtroUsuario();
    void textoCambiadoPorOtroUsuario_data();
    void textoCambiadoPorOtroUsuario();

private:
    Recordset* abrir(const QString& fuente);
    // The cost stored in the file, with every digit.
    double costoGuardado() const;

    std::unique_ptr<BaseDePrueba> base_;
    Conexion cn_;
    Conexion otra_; // another user's
    std::vector<std::unique_ptr<Recordset>> abiertos_;
};

void TstActualizacion::init() {
    base_ = std::make_unique<BaseDePrueba>(true);
    base_->sqlite(QStringLiteral(
        "INSERT INTO Articulo (ArticuloID, Nombre, Costo) VALUES (1, 'Refrigeradora', 0);"
        "INSERT INTO Banco (BancoID, Nombre) VALUES (1, 'Banrural');"
        "INSERT INTO Proveedor (ProveedorID, Nombre, Contacto) VALUES (1, 'Elektra', 'Ana López');"
        "INSERT INTO Cliente (ClienteID, Nombres, Apellidos) VALUES (1, 'Rosa', 'Muñoz');"));
    cn_ = Conexion(QStringLiteral("DSN=DSNBrenal"));
    cn_.Open();
    otra_ = Conexion(QStringLiteral("DSNBrenal"));
    otra_.Open();
}

void TstActualizacion::cleanup() {
    abiertos_.clear();
    cn_ = Conexion();
    otra_ = Conexion();
    base_.reset();
}

Recordset* TstActualizacion::abrir(const QString& fuente) {
    abiertos_.push_back(std::make_unique<Recordset>());
    abiertos_.back()->Open(fuente, cn_);
    return abiertos_.back().get();
}

double TstActualizacion::costoGuardado() const {
    return base_->valor(QStringLiteral("SELECT quote(Costo) FROM Articulo WHERE ArticuloID = 1")).toDouble();
}

void TstActualizacion::realConTodasSusCifras_data() {
    QTest::addColumn<QString>("guardado"); // SQLite's SQL
    QTest::addColumn<double>("nuevo");
    QTest::addColumn<QString>("fuente");
    QTest::addColumn<QString>("campo");
    const QString todo = QStringLiteral("Select * From Articulo Where ArticuloID = 1");
    const QString costo = QStringLiteral("Costo");
    QTest::newRow("100/3") << "100.0 / 3" << 200.0 / 3 << todo << costo;
    QTest::newRow("0.1 + 0.2") << "0.1 + 0.2" << 0.7 + 0.1 << todo << costo;
    QTest::newRow("1e-7") << "1e-7" << 3e-7 << todo << costo;
    QTest::newRow("123456789.123456789") << "123456789.123456789" << 987654321.98765432 << todo << costo;
    QTest::newRow("negativo") << "-2.0 / 3" << -1.0 / 7 << todo << costo;
    QTest::newRow("con centavos") << "22.75" << 1500.5 << todo << costo;
    QTest::newRow("campo con alias")
        << "100.0 / 3" << 200.0 / 3
        << "Select A.Costo As Importe, A.ArticuloID From Articulo A Where A.ArticuloID = 1"
        << "Importe";
}

// A REAL with more than 15 significant digits, which the driver hands back rounded, is found by its
// stored value: the edit is written, and so is the next one, on the same recordset, after reading
// the rows again and after a Resync of the row.
void TstActualizacion::realConTodasSusCifras() {
    QFETCH(QString, guardado);
    QFETCH(double, nuevo);
    QFETCH(QString, fuente);
    QFETCH(QString, campo);
    base_->sqlite(QStringLiteral("UPDATE Articulo SET Costo = %1 WHERE ArticuloID = 1").arg(guardado));
    Recordset* rs = abrir(fuente);

    rs->Fields(campo) = nuevo;
    QCOMPARE(numeroDelFallo([&] { rs->Update(); }), 0);
    QCOMPARE(cifras(costoGuardado()), cifras(nuevo));

    rs->Fields(campo) = nuevo / 7;
    QCOMPARE(numeroDelFallo([&] { rs->Update(); }), 0);
    QCOMPARE(cifras(costoGuardado()), cifras(nuevo / 7));

    rs->Requery();
    rs->Fields(campo) = -nuevo;
    QCOMPARE(numeroDelFallo([&] { rs->Update(); }), 0);
    QCOMPARE(cifras(costoGuardado()), cifras(-nuevo));

    // What another user stored, read again with Resync.
    base_->sqlite(QStringLiteral("UPDATE Articulo SET Costo = %1 WHERE ArticuloID = 1").arg(guardado));
    rs->Resync();
    rs->Fields(campo) = nuevo;
    QCOMPARE(numeroDelFallo([&] { rs->Update(); }), 0);
    QCOMPARE(cifras(costoGuardado()), cifras(nuevo));
}

void TstActualizacion::realCambiadoPorOtroUsuario_data() {
    QTest::addColumn<QString>("guardado"); // SQLite's SQL
    QTest::addColumn<QString>("ajeno");    // what the other user stores meanwhile; "" for nothing
    QTest::addColumn<bool>("aceptado");
    QTest::newRow("nadie mas, 100/3") << "100.0 / 3"
                                      << "" << true;
    QTest::newRow("nadie mas, 0.1 + 0.2") << "0.1 + 0.2"
                                          << "" << true;
    QTest::newRow("el mismo valor escrito otra vez") << "100.0 / 3"
                                                     << "100 / 3" << true;
    QTest::newRow("otro importe") << "100.0 / 3"
                                  << "34" << false;
    // Both read as 33.3333333333333: only the digits past the fifteenth differ.
    QTest::newRow("el vecino de 100/3") << "100.0 / 3"
                                        << "33.33333333333333" << false;
    QTest::newRow("0.3 en vez de 0.1 + 0.2") << "0.1 + 0.2"
                                             << "0.3" << false;
}

// Another user stores a cost between this recordset's read and its Update: the Update refuses with
// the row left as the other user wrote it and the edit still pending; a row nobody changed is written.
void TstActualizacion::realCambiadoPorOtroUsuario() {
    QFETCH(QString, guardado);
    QFETCH(QString, ajeno);
    QFETCH(bool, aceptado);
    base_->sqlite(QStringLiteral("UPDATE Articulo SET Costo = %1 WHERE ArticuloID = 1").arg(guardado));
    Recordset* rs = abrir(QStringLiteral("Select * From Articulo Where ArticuloID = 1"));
    if (!ajeno.isEmpty())
        otra_.Execute(QStringLiteral("Update Articulo Set Costo = %1 Where ArticuloID = 1").arg(ajeno));
    const double antes = costoGuardado();

    rs->Fields(QStringLiteral("Costo")) = 50.5;
    if (aceptado) {
        QCOMPARE(numeroDelFallo([&] { rs->Update(); }), 0);
        QCOMPARE(cifras(costoGuardado()), cifras(50.5));
    } else {
        QCOMPARE(numeroDelFallo([&] { rs->Update(); }), FalloFilaCambiada);
        QCOMPARE(cifras(costoGuardado()), cifras(antes));
        QCOMPARE(rs->EditMode(), int(adEditInProgress));
    }
}

void TstActualizacion::textoCambiadoPorOtroUsuario_data() {
    QTest::addColumn<QString>("tabla");
    QTest::addColumn<QString>("campo");
    QTest::addColumn<QString>("ajeno"); // what the other user stores meanwhile; "" for nothing
    QTest::addColumn<QString>("propio");
    QTest::addColumn<bool>("aceptado");
    QTest::newRow("banco en mayusculas") << "Banco"
                                         << "Nombre"
                                         << "BANRURAL"
                                         << "Banrural, S.A." << false;
    QTest::newRow("contacto en minusculas") << "Proveedor"
                                            << "Contacto"
                                            << "ana lópez"
                                            << "Ana María López" << false;
    QTest::newRow("apellido con eñe") << "Cliente"
                                      << "Apellidos"
                                      << "MUñOZ"
                                      << "Muñoz Pérez" << false;
    QTest::newRow("nadie mas") << "Banco"
                               << "Nombre"
                               << ""
                               << "Banrural, S.A." << true;
    QTest::newRow("el mismo texto escrito otra vez") << "Banco"
                                                     << "Nombre"
                                                     << "Banrural"
                                                     << "Banrural, S.A." << true;
}

// The text columns compare without case (COLLATE NOCASE), but a change of case by another user is
// still a change: this user's Update refuses rather than overwrite it.
void TstActualizacion::textoCambiadoPorOtroUsuario() {
    QFETCH(QString, tabla);
    QFETCH(QString, campo);
    QFETCH(QString, ajeno);
    QFETCH(QString, propio);
    QFETCH(bool, aceptado);
    const QString clave = tabla + QStringLiteral("ID");
    Recordset* rs = abrir(QStringLiteral("Select * From %1 Where %2 = 1").arg(tabla, clave));
    if (!ajeno.isEmpty())
        otra_.Execute(QStringLiteral("Update %1 Set %2 = '%3' Where %4 = 1").arg(tabla, campo, ajeno, clave));
    const QString consulta = QStringLiteral("SELECT %1 FROM %2 WHERE %3 = 1").arg(campo, tabla, clave);
    const QString antes = base_->valor(consulta);

    rs->Fields(campo) = propio;
    if (aceptado) {
        QCOMPARE(numeroDelFallo([&] { rs->Update(); }), 0);
        QCOMPARE(base_->valor(consulta), propio);
    } else {
        QCOMPARE(numeroDelFallo([&] { rs->Update(); }), FalloFilaCambiada);
        QCOMPARE(base_->valor(consulta), antes);
        QCOMPARE(rs->EditMode(), int(adEditInProgress));
    }
}

QTEST_GUILESS_MAIN(TstActualizacion)
#include "tst_actualizacion.moc"
