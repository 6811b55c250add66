// The number offered to a new document and the type of a concept.
#include "BaseDePrueba.h"
#include "EsquemaDePrueba.h"
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
    base_ = std::make_unique<BaseDePrueba>();
    base_->sqlite(esquemaDePrueba());
    base_->sqlite(
        QStringLiteral("INSERT INTO Concepto (Descripcion, Tipo) VALUES ('Enganche', 1), ('Flete', NULL), "
                       "('Cuota mensual', 3);"));
    cn_ = Conexion(QStringLiteral("Provider=MSDASQL.1;Persist Security Info=False;Data Source=DSNBrenal;"));
    cn_.Open();
}

void TstNumeracion::cleanup() {
    cn_ = Conexion();
    base_.reset();
}

void TstNumeracion::siguienteNumero_data() {
    QTest::addColumn<QString>("filas");
    QTest::addColumn<QString>("condicion");
    QTest::addColumn<int>("numero");
    QTest::newRow("tabla vacia") << ""
                                 << "ReciboID>0" << 1;
    QTest::newRow("maximo mas uno") << "(4),(7),(5)"
                                    << "ReciboID>0" << 8;
    QTest::newRow("solo numeros Null") << "(NULL),(NULL)"
                                       << "ReciboID>0" << 1;
    QTest::newRow("la condicion cuenta") << "(4),(7)"
                                         << "ReciboID<2" << 5;
    QTest::newRow("ninguna fila cumple") << "(4),(7)"
                                         << "ReciboID<0" << 1;
}

void TstNumeracion::siguienteNumero() {
    QFETCH(QString, filas);
    QFETCH(QString, condicion);
    QFETCH(int, numero);
    if (!filas.isEmpty()) base_->sqlite(QStringLiteral("INSERT INTO Recibo (NumeroRecibo) VALUES ") + filas);
    QCOMPARE(SiguienteNumero(cn_, QStringLiteral("Recibo"), QStringLiteral("NumeroRecibo"), condicion),
             numero);
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
    QTest::newRow("Tipo Null es 0") << 2 << 0;
    QTest::newRow("cuota") << 3 << 3;
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
