// The number offered to a new document and the type of a concept.
#include "BaseDePrueba.h"
#include "NumeroDelFallo.h"
#include "store/Fallo.h"
#include "store/Numeracion.h"

#include <QtTest>

using namespace store;

class TstNumeracion : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void siguienteNumero_data();
    void siguienteNumero();
    void siguienteNumeroReabreLaConexion();
    void tipoConcepto_data();
    void tipoConcepto();
    void conceptoInexistente();
    void tipoConceptoNoReabre();

private:
    std::unique_ptr<BaseDePrueba> base_;
    Conexion cn_;
};

void TstNumeracion::init() {
    // The schema's own concepts: 1 enganche, 2 first payment, 3 instalment, 4 mora, 5 to 10 ordinary.
    base_ = std::make_unique<BaseDePrueba>(true);
    cn_ = Conexion(QStringLiteral("Provider=MSDASQL.1;Persist Security Info=False;Data Source=DSNBrenal;"));
    cn_.Open();
}

void TstNumeracion::cleanup() {
    cn_ = Conexion();
    base_.reset();
}

// The six numbered documents, as their screens ask: `filas` are the numbers already stored, in the
// order of their keys.
void TstNumeracion::siguienteNumero_data() {
    QTest::addColumn<QString>("tabla");
    QTest::addColumn<QString>("campo");
    QTest::addColumn<QString>("condicion");
    QTest::addColumn<QString>("filas");
    QTest::addColumn<int>("numero");
    QTest::newRow("tabla vacia") << "Recibo"
                                 << "NumeroRecibo"
                                 << "ReciboID>0"
                                 << "" << 1;
    QTest::newRow("maximo mas uno") << "Recibo"
                                    << "NumeroRecibo"
                                    << "ReciboID>0"
                                    << "(4),(7),(5)" << 8;
    QTest::newRow("solo numeros Null") << "Recibo"
                                       << "NumeroRecibo"
                                       << "ReciboID>0"
                                       << "(NULL),(NULL)" << 1;
    QTest::newRow("la condicion cuenta") << "Recibo"
                                         << "NumeroRecibo"
                                         << "ReciboID<2"
                                         << "(4),(7)" << 5;
    QTest::newRow("ninguna fila cumple") << "Recibo"
                                         << "NumeroRecibo"
                                         << "ReciboID<0"
                                         << "(4),(7)" << 1;
    QTest::newRow("solicitud") << "Solicitud"
                               << "NumeroSolicitud"
                               << "SolicitudID>0"
                               << "(12),(3)" << 13;
    QTest::newRow("factura") << "Factura"
                             << "NumeroFactura"
                             << "FacturaID>0"
                             << "(1500),(1499)" << 1501;
    QTest::newRow("documento") << "Documento"
                               << "NumeroDocumento"
                               << "DocumentoID>0"
                               << "(9)" << 10;
    QTest::newRow("nota de ingreso") << "NotaIngreso"
                                     << "NumeroIngreso"
                                     << "IngresoID>0"
                                     << "(NULL),(40)" << 41;
    QTest::newRow("nota de envio") << "NotaEnvio"
                                   << "NumeroNota"
                                   << "NotaID>0"
                                   << "(2),(2)" << 3;
}

void TstNumeracion::siguienteNumero() {
    QFETCH(QString, tabla);
    QFETCH(QString, campo);
    QFETCH(QString, condicion);
    QFETCH(QString, filas);
    QFETCH(int, numero);
    if (!filas.isEmpty())
        base_->sqlite(QStringLiteral("INSERT INTO %1 (%2) VALUES %3").arg(tabla, campo, filas));
    QCOMPARE(SiguienteNumero(cn_, tabla, campo, condicion), numero);
}

void TstNumeracion::siguienteNumeroReabreLaConexion() {
    base_->sqlite(QStringLiteral("INSERT INTO Recibo (NumeroRecibo) VALUES (41)"));
    cn_.Close();
    QCOMPARE(SiguienteNumero(cn_, QStringLiteral("Recibo"), QStringLiteral("NumeroRecibo"),
                             QStringLiteral("ReciboID>0")),
             42);
    QCOMPARE(cn_.State(), int(adStateOpen));
}

void TstNumeracion::tipoConcepto_data() {
    QTest::addColumn<int>("concepto");
    QTest::addColumn<int>("tipo");
    QTest::newRow("enganche") << 1 << 1;
    QTest::newRow("primer pago") << 2 << 2;
    QTest::newRow("cuota") << 3 << 3;
    QTest::newRow("mora") << 4 << 4;
    QTest::newRow("Tipo Null es 0") << 7 << 0;
}

void TstNumeracion::tipoConcepto() {
    QFETCH(int, concepto);
    QFETCH(int, tipo);
    QCOMPARE(TipoConcepto(cn_, concepto), tipo);
}

void TstNumeracion::conceptoInexistente() {
    QCOMPARE(numeroDelFallo([&] { TipoConcepto(cn_, 99); }), FalloSinRegistroActual);
}

void TstNumeracion::tipoConceptoNoReabre() {
    cn_.Close();
    QCOMPARE(numeroDelFallo([&] { TipoConcepto(cn_, 1); }), FalloObjetoCerrado);
    QCOMPARE(cn_.State(), int(adStateClosed));
}

QTEST_GUILESS_MAIN(TstNumeracion)
#include "tst_numeracion.moc"
