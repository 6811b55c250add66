#include "runtime/Conversion.h"

#include <QDateTime>
#include <QLocale>
#include <QTest>
#include <cmath>
#include <limits>
#include <stdexcept>

using namespace runtime;

// The Null a query returns: typed, but null.
static QVariant nuloDeBaseDeDatos() {
    return QVariant(QMetaType(QMetaType::Double));
}

class TstConversion : public QObject {
    Q_OBJECT

private slots:
    void val_data() {
        QTest::addColumn<QString>("texto");
        QTest::addColumn<double>("esperado");
        QTest::newRow("se detiene en la coma") << "1,500.00" << 1.0;
        QTest::newRow("blancos delante, letras detrás") << "  12.7abc" << 12.7;
        QTest::newRow("tabulador delante") << "\t7" << 7.0;
        QTest::newRow("negativo") << "-3" << -3.0;
        QTest::newRow("vacío") << "" << 0.0;
        QTest::newRow("letras") << "abc" << 0.0;
        QTest::newRow("sólo decimales") << ".5" << 0.5;
        QTest::newRow("negativo sólo decimales") << "-.5" << -0.5;
        QTest::newRow("segundo punto") << "1.2.3" << 1.2;
        QTest::newRow("punto al final") << "5." << 5.0;
        QTest::newRow("blanco tras el signo") << "- 3" << 0.0;
        QTest::newRow("blanco entre cifras") << "1 000" << 1.0;
        QTest::newRow("sólo signo") << "-" << 0.0;
        QTest::newRow("exponente") << "1e5" << 100000.0;
        QTest::newRow("exponente negativo") << "25E-2x" << 0.25;
        QTest::newRow("e sin cifras") << "1e" << 1.0;
        QTest::newRow("cifra árabe-índica") << QString(QChar(0x0663)) << 0.0;
    }
    void val() {
        QFETCH(QString, texto);
        QFETCH(double, esperado);
        QCOMPARE(Val(texto), esperado);
    }

    void noDependeDelIdioma() {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); // decimal comma
        const double leido = Val(QStringLiteral("1.5"));
        const QString escrito = TextoDe(22.75);
        QLocale::setDefault(QLocale::c());
        QCOMPARE(leido, 1.5);
        QCOMPARE(escrito, QStringLiteral("22.75"));
    }

    void valNulo_data() {
        QTest::addColumn<QVariant>("valor");
        QTest::addColumn<double>("esperado");
        QTest::newRow("Empty") << QVariant() << 0.0;
        QTest::newRow("Null de la base") << nuloDeBaseDeDatos() << 0.0;
        QTest::newRow("fecha inválida") << QVariant(QDate()) << 0.0;
        QTest::newRow("instante inválido") << QVariant(QDateTime()) << 0.0;
        QTest::newRow("verdadero") << QVariant(true) << -1.0;
        QTest::newRow("entero") << QVariant(42) << 42.0;
        QTest::newRow("double") << QVariant(22.75) << 22.75;
        QTest::newRow("texto numérico") << QVariant(QStringLiteral(" 12.7abc")) << 12.7;
        QTest::newRow("texto") << QVariant(QStringLiteral("abc")) << 0.0;
        QTest::newRow("fecha: el día") << QVariant(QDate(2026, 11, 22)) << 22.0;
    }
    void valNulo() {
        QFETCH(QVariant, valor);
        QFETCH(double, esperado);
        QCOMPARE(ValNulo(valor), esperado);
    }

    void textoDe_data() {
        QTest::addColumn<QVariant>("valor");
        QTest::addColumn<QString>("esperado");
        QTest::newRow("Empty") << QVariant() << "";
        QTest::newRow("Null de la base") << nuloDeBaseDeDatos() << "";
        QTest::newRow("fecha inválida") << QVariant(QDate()) << "";
        QTest::newRow("entero") << QVariant(1500) << "1500";
        QTest::newRow("double entero") << QVariant(1500.0) << "1500";
        QTest::newRow("double") << QVariant(22.75) << "22.75";
        QTest::newRow("décimo") << QVariant(0.1) << "0.1";
        QTest::newRow("negativo") << QVariant(-3.5) << "-3.5";
        QTest::newRow("suma binaria inexacta") << QVariant(0.1 + 0.2) << "0.3";
        QTest::newRow("15 cifras") << QVariant(1.0 / 3.0) << "0.333333333333333";
        QTest::newRow("cero negativo") << QVariant(-0.0) << "0";
        QTest::newRow("grande") << QVariant(123456789012345.0) << "123456789012345";
        QTest::newRow("enorme") << QVariant(1e15) << "1E+15";
        QTest::newRow("verdadero") << QVariant(true) << "Verdadero";
        QTest::newRow("fecha") << QVariant(QDate(2026, 1, 5)) << "05/01/2026";
        QTest::newRow("medianoche") << QVariant(QDateTime(QDate(2026, 1, 5), QTime(0, 0))) << "05/01/2026";
        QTest::newRow("con hora") << QVariant(QDateTime(QDate(2026, 1, 5), QTime(14, 30, 5)))
                                  << "05/01/2026 14:30:05";
        QTest::newRow("texto") << QVariant(QStringLiteral(" tal cual ")) << " tal cual ";
    }
    void textoDe() {
        QFETCH(QVariant, valor);
        QFETCH(QString, esperado);
        QCOMPARE(TextoDe(valor), esperado);
    }

    void esNulo_data() {
        QTest::addColumn<QVariant>("valor");
        QTest::addColumn<bool>("esperado");
        QTest::newRow("Empty") << QVariant() << true;
        QTest::newRow("Null de texto") << QVariant(QMetaType::fromType<QString>()) << true;
        QTest::newRow("fecha inválida") << QVariant(QDate()) << true;
        QTest::newRow("texto vacío") << QVariant(QStringLiteral("")) << false;
        QTest::newRow("cero") << QVariant(0) << false;
    }
    void esNulo() {
        QFETCH(QVariant, valor);
        QFETCH(bool, esperado);
        QCOMPARE(EsNulo(valor), esperado);
    }

    void enteros_data() {
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("esperadoInt");
        QTest::addColumn<double>("esperadoFix");
        QTest::addColumn<int>("esperadoCLng");
        QTest::newRow("2.7") << 2.7 << 2.0 << 2.0 << 3;
        QTest::newRow("mitad a par abajo") << 2.5 << 2.0 << 2.0 << 2;
        QTest::newRow("mitad a par arriba") << 3.5 << 3.0 << 3.0 << 4;
        QTest::newRow("mitad negativa") << -2.5 << -3.0 << -2.0 << -2;
        QTest::newRow("mitad negativa impar") << -3.5 << -4.0 << -3.0 << -4;
        QTest::newRow("media") << 0.5 << 0.0 << 0.0 << 0;
        QTest::newRow("casi mitad") << 2.4999 << 2.0 << 2.0 << 2;
    }
    void enteros() {
        QFETCH(double, x);
        QFETCH(double, esperadoInt);
        QFETCH(double, esperadoFix);
        QFETCH(int, esperadoCLng);
        QCOMPARE(Int(x), esperadoInt);
        QCOMPARE(Fix(x), esperadoFix);
        QCOMPARE(CLng(x), esperadoCLng);
    }

    void clngDeUnCampo_data() {
        QTest::addColumn<QVariant>("valor");
        QTest::addColumn<int>("esperado");
        QTest::newRow("Null") << nuloDeBaseDeDatos() << 0;
        QTest::newRow("texto con mitad") << QVariant(QStringLiteral("3.5")) << 4;
        QTest::newRow("verdadero") << QVariant(true) << -1;
    }
    void clngDeUnCampo() {
        QFETCH(QVariant, valor);
        QFETCH(int, esperado);
        QCOMPARE(CLng(valor), esperado);
    }

    void redondearDecimal_data() {
        QTest::addColumn<double>("x");
        QTest::addColumn<int>("decimales");
        QTest::addColumn<double>("esperado");
        QTest::newRow("1.005 binario por debajo") << 1.005 << 2 << 1.01;
        QTest::newRow("2.675 binario por debajo") << 2.675 << 2 << 2.68;
        QTest::newRow("media a entero") << 0.5 << 0 << 1.0;
        QTest::newRow("mitad negativa lejos del cero") << -2.5 << 0 << -3.0;
        QTest::newRow("mitad en decimales") << 0.125 << 2 << 0.13;
        QTest::newRow("mitad negativa en decimales") << -0.125 << 2 << -0.13;
        QTest::newRow("menos de la mitad") << 1.004 << 2 << 1.0;
        QTest::newRow("acarreo") << 9.995 << 2 << 10.0;
        QTest::newRow("acarreo de miles") << 999.995 << 2 << 1000.0;
        QTest::newRow("diminuto") << 1e-20 << 2 << 0.0;
    }
    void redondearDecimal() {
        QFETCH(double, x);
        QFETCH(int, decimales);
        QFETCH(double, esperado);
        const double resultado = RedondearDecimal(x, decimales);
        // Exact equality: the result must be the very double the expected decimal text reads as.
        QVERIFY2(resultado == esperado, qPrintable(QString::number(resultado, 'g', 17)));
    }

    void esNumero_data() {
        QTest::addColumn<QString>("texto");
        QTest::addColumn<bool>("esperado");
        QTest::newRow("vacío") << "" << false;
        QTest::newRow("miles y decimales") << "1,500.00" << true;
        QTest::newRow("blancos alrededor") << " 42 " << true;
        QTest::newRow("negativo") << "-3.5" << true;
        QTest::newRow("sólo decimales con signo") << "+.5" << true;
        QTest::newRow("exponente") << "1e5" << true;
        QTest::newRow("letra al final") << "12a" << false;
        QTest::newRow("e sin cifras") << "1e" << false;
        QTest::newRow("coma al principio") << ",5" << false;
        QTest::newRow("dos comas") << "1,,5" << false;
        QTest::newRow("coma en decimales") << "1.2,3" << false;
        QTest::newRow("fecha") << "22/11/2026" << false;
    }
    void esNumero() {
        QFETCH(QString, texto);
        QFETCH(bool, esperado);
        QCOMPARE(EsNumero(texto), esperado);
    }

    // Strict where Val is lenient: what isn't wholly a number is a failure, not 0. NaN marks a failure.
    void cdbl_data() {
        QTest::addColumn<QString>("texto");
        QTest::addColumn<double>("esperado");
        const double falla = std::numeric_limits<double>::quiet_NaN();
        QTest::newRow("importe") << "12.50" << 12.5;
        QTest::newRow("miles") << "1,500.00" << 1500.0;
        QTest::newRow("blancos") << " 0.00 " << 0.0;
        QTest::newRow("vacío") << "" << falla;
        QTest::newRow("asterisco") << "*" << falla;
        QTest::newRow("letra al final") << "12a" << falla;
    }
    void cdbl() {
        QFETCH(QString, texto);
        QFETCH(double, esperado);
        if (std::isnan(esperado)) {
            QVERIFY_THROWS_EXCEPTION(std::invalid_argument, CDbl(texto));
            return;
        }
        QCOMPARE(CDbl(texto), esperado);
    }
};

QTEST_GUILESS_MAIN(TstConversion)
#include "tst_conversion.moc"
