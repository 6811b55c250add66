// An Update finds its row by the key and the values the changed fields had when read, compared as the
// database stores them: a text byte for byte, whatever the column's collation. So a row nobody else
// touched is always found, and a change another user made meanwhile is never overwritten.
#include "BaseDePrueba.h"
#include "NumeroDelFallo.h"
#include "store/Conexion.h"
#include "store/Fallo.h"
#include "store/Recordset.h"

#include <QtTest>

using namespace store;

class TstActualizacion : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void textoCambiadoPorOtroUsuario_data();
    void textoCambiadoPorOtroUsuario();

private:
    Recordset* abrir(const QString& fuente);

    std::unique_ptr<BaseDePrueba> base_;
    Conexion cn_;
    Conexion otra_; // another user's
    std::vector<std::unique_ptr<Recordset>> abiertos_;
};

void TstActualizacion::init() {
    base_ = std::make_unique<BaseDePrueba>(true);
    base_->sqlite(QStringLiteral(
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
