#include "runtime/Fechas.h"

#include <QTest>

using namespace runtime;

class TstFechas : public QObject {
    Q_OBJECT

private slots:
    void leerFecha_data() {
        QTest::addColumn<QString>("texto");
        QTest::addColumn<QDate>("esperado"); // QDate() when not a date
        QTest::newRow("día primero") << "22/11/2026" << QDate(2026, 11, 22);
        QTest::newRow("sin ceros") << "5/1/2026" << QDate(2026, 1, 5);
        QTest::newRow("guiones") << "05-01-2026" << QDate(2026, 1, 5);
        QTest::newRow("puntos") << "05.01.2026" << QDate(2026, 1, 5);
        QTest::newRow("blancos alrededor") << "  22/11/2026 " << QDate(2026, 11, 22);
        QTest::newRow("ISO") << "2026-11-22" << QDate(2026, 11, 22);
        QTest::newRow("año 00") << "1/1/00" << QDate(2000, 1, 1);
        QTest::newRow("año 29") << "1/1/29" << QDate(2029, 1, 1);
        QTest::newRow("año 30") << "1/1/30" << QDate(1930, 1, 1);
        QTest::newRow("año 99") << "31/12/99" << QDate(1999, 12, 31);
        QTest::newRow("bisiesto") << "29/02/2024" << QDate(2024, 2, 29);
        QTest::newRow("bisiesto de siglo") << "29/02/2000" << QDate(2000, 2, 29);
        QTest::newRow("año 100") << "1/1/100" << QDate(100, 1, 1);
        QTest::newRow("31 de febrero") << "31/02/2026" << QDate();
        QTest::newRow("no bisiesto") << "29/02/2025" << QDate();
        QTest::newRow("siglo no bisiesto") << "29/02/1900" << QDate();
        QTest::newRow("mes 13") << "13/13/2026" << QDate();
        QTest::newRow("día 0") << "0/1/2026" << QDate();
        QTest::newRow("mes 0") << "22/0/2026" << QDate();
        QTest::newRow("ISO imposible") << "2026-02-30" << QDate();
        QTest::newRow("vacío") << "" << QDate();
        QTest::newRow("letras") << "abc" << QDate();
        QTest::newRow("sin año") << "22/11" << QDate();
        QTest::newRow("basura detrás") << "22/11/2026x" << QDate();
        QTest::newRow("separadores mezclados") << "22/11-2026" << QDate();
        QTest::newRow("año de cinco cifras") << "22/11/12026" << QDate();
        QTest::newRow("año menor que 100") << "1/1/0099" << QDate();
    }
    void leerFecha() {
        QFETCH(QString, texto);
        QFETCH(QDate, esperado);
        QCOMPARE(LeerFecha(texto).value_or(QDate()), esperado);
        QCOMPARE(EsFecha(texto), esperado.isValid());
    }

    void esFechaDeUnValor_data() {
        QTest::addColumn<QVariant>("valor");
        QTest::addColumn<bool>("esperado");
        QTest::newRow("fecha") << QVariant(QDate(2026, 11, 22)) << true;
        QTest::newRow("instante") << QVariant(QDateTime(QDate(2026, 11, 22), QTime(8, 0))) << true;
        QTest::newRow("fecha inválida") << QVariant(QDate()) << false;
        QTest::newRow("texto fecha") << QVariant(QStringLiteral("22/11/2026")) << true;
        QTest::newRow("texto no fecha") << QVariant(QStringLiteral("31/02/2026")) << false;
        QTest::newRow("número") << QVariant(20261122) << false;
        QTest::newRow("Empty") << QVariant() << false;
    }
    void esFechaDeUnValor() {
        QFETCH(QVariant, valor);
        QFETCH(bool, esperado);
        QCOMPARE(EsFecha(valor), esperado);
    }

    void textoFecha() {
        QCOMPARE(TextoFecha(QDate(2026, 1, 5)), QStringLiteral("05/01/2026"));
        QCOMPARE(TextoFecha(QDate(100, 12, 31)), QStringLiteral("31/12/0100"));
        QCOMPARE(TextoFecha(QDate()), QString());
    }

    void relojFijadoYLiberado() {
        const QDateTime instante(QDate(2001, 3, 4), QTime(10, 20, 30));
        FijarReloj(instante);
        QCOMPARE(Ahora(), instante);
        QCOMPARE(Hoy(), QDate(2001, 3, 4));
        LiberarReloj();
        const QDate antes = QDate::currentDate();
        const QDate hoy = Hoy();
        QVERIFY(hoy >= antes && hoy <= QDate::currentDate());
    }

    void relojFijoDuranteSuAlcance() {
        const QDateTime instante(QDate(2001, 3, 4), QTime(23, 59, 59));
        {
            RelojFijo reloj(instante);
            QCOMPARE(Ahora(), instante);
        }
        QVERIFY(Ahora() != instante);
    }
};

QTEST_GUILESS_MAIN(TstFechas)
#include "tst_fechas.moc"
