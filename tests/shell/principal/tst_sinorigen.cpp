// Starting the program with no DSNBrenal registered. A test program of its own: unixODBC keeps what it
// read of odbc.ini for a while, so within one process a missing data source would outlive its test.
#include "BaseDePrueba.h"
#include "EntornoDePantallas.h"
#include "shell/common/Common.h"
#include "shell/principal/Main.h"

#include <QFile>
#include <QtTest>

class TstSinOrigen : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void sinOrigenDeDatosDiceComoCrearlo();
};

// The program ends after the splash with the driver's text, and the box tells how the store's database
// is set up.
void TstSinOrigen::sinOrigenDeDatosDiceComoCrearlo() {
    BaseDePrueba base(true);
    QFile odbc(base.directorio() + QStringLiteral("/odbc.ini"));
    QVERIFY(odbc.open(QIODevice::WriteOnly | QIODevice::Truncate));
    odbc.close();
    const QString texto = falloAlIniciar();
    QVERIFY2(texto.contains(QLatin1String("Data source name not found")), qPrintable(texto));
    QVERIFY2(texto.endsWith(QLatin1String("DSNBrenal con: cuentacorriente-db init")), qPrintable(texto));
}

QTEST_MAIN(TstSinOrigen)
#include "tst_sinorigen.moc"
