#include "runtime/Parametros.h"

#include <QTest>
#include <stdexcept>

using namespace runtime;

class TstParametros : public QObject {
    Q_OBJECT

    static ArregloVariant conValores(const QVariantList& valores) {
        ArregloVariant arreglo;
        arreglo.ReDim(int(valores.size()));
        for (int i = 1; i <= arreglo.UBound(); ++i)
            arreglo(i) = valores.at(i - 1);
        return arreglo;
    }

private slots:
    void nuevoNoTieneElementos() {
        const ArregloVariant arreglo;
        QCOMPARE(arreglo.LBound(), 1);
        QCOMPARE(arreglo.UBound(), 0);
        QVERIFY(arreglo.Vacio(1)); // nothing was chosen
        QVERIFY_THROWS_EXCEPTION(std::out_of_range, arreglo(1));
    }

    void redimDaElementosVaciosYDescartaLosValores() {
        ArregloVariant arreglo = conValores({5, QStringLiteral("x")});
        arreglo.ReDim(3);
        QCOMPARE(arreglo.UBound(), 3);
        QCOMPARE(arreglo.Lista(), QVariantList(3));
        QVERIFY(!arreglo(1).isValid());
    }

    void redimPreserveConservaHastaElNuevoTamanio() {
        ArregloVariant arreglo = conValores({1, 2, 3});
        arreglo.ReDimPreserve(5);
        QCOMPARE(arreglo.Lista(), (QVariantList{1, 2, 3, QVariant(), QVariant()}));
        arreglo.ReDimPreserve(2);
        QCOMPARE(arreglo.Lista(), (QVariantList{1, 2}));
    }

    void redimCeroDejaSinElementos() {
        ArregloVariant arreglo = conValores({1});
        arreglo.ReDim(0);
        QCOMPARE(arreglo.UBound(), 0);
    }

    void tamanioNegativoLanza() {
        ArregloVariant arreglo;
        QVERIFY_THROWS_EXCEPTION(std::out_of_range, arreglo.ReDim(-1));
        QVERIFY_THROWS_EXCEPTION(std::out_of_range, arreglo.ReDimPreserve(-1));
    }

    void indiceFueraDelIntervalo_data() {
        QTest::addColumn<int>("indice");
        QTest::newRow("cero") << 0;
        QTest::newRow("negativo") << -1;
        QTest::newRow("después de UBound") << 3;
    }
    void indiceFueraDelIntervalo() {
        QFETCH(int, indice);
        ArregloVariant arreglo = conValores({1, 2});
        const ArregloVariant& constante = arreglo;
        QVERIFY_THROWS_EXCEPTION(std::out_of_range, arreglo(indice));
        QVERIFY_THROWS_EXCEPTION(std::out_of_range, constante(indice));
        try {
            arreglo(indice);
        } catch (const std::out_of_range& error) {
            QCOMPARE(QString::fromUtf8(error.what()), QStringLiteral("Subíndice fuera del intervalo"));
        }
    }

    void vacio_data() {
        QTest::addColumn<QVariant>("valor");
        QTest::addColumn<bool>("esperado");
        QTest::newRow("Empty") << QVariant() << true;
        QTest::newRow("Null") << QVariant(QMetaType(QMetaType::QString)) << true;
        QTest::newRow("texto vacío") << QVariant(QString()) << true;
        QTest::newRow("fecha inválida") << QVariant(QDate()) << true;
        QTest::newRow("cero") << QVariant(0) << false;
        QTest::newRow("texto cero") << QVariant(QStringLiteral("0")) << false;
        QTest::newRow("espacio") << QVariant(QStringLiteral(" ")) << false;
        QTest::newRow("falso") << QVariant(false) << false;
    }
    void vacio() {
        QFETCH(QVariant, valor);
        QFETCH(bool, esperado);
        QCOMPARE(conValores({valor}).Vacio(1), esperado);
    }

    void vacioFueraDelIntervalo() {
        const ArregloVariant arreglo = conValores({1});
        QVERIFY(arreglo.Vacio(0));
        QVERIFY(arreglo.Vacio(2));
    }

    void laCopiaEsIndependiente() {
        ArregloVariant original = conValores({1});
        ArregloVariant copia = original;
        copia(1) = 2;
        QCOMPARE(original(1), QVariant(1));
    }
};

QTEST_GUILESS_MAIN(TstParametros)
#include "tst_parametros.moc"
