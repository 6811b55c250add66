// Starting the program with DSNBrenal on a database file that is not there. A test program of its own,
// as the one without DSNBrenal: unixODBC keeps what it read of odbc.ini for a while.
#include "BaseDePrueba.h"
#include "EntornoDePantallas.h"
#include "shell/common/Common.h"
#include "shell/principal/Main.h"

#include <QDir>
#include <QtTest>

class TstSinArchivo : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void archivoQueNoExisteTerminaNombrandolo_data();
    void archivoQueNoExisteTerminaNombrandolo();
};

void TstSinArchivo::archivoQueNoExisteTerminaNombrandolo_data() {
    QTest::addColumn<QString>("relativa"); // to the case's folder
    QTest::newRow("archivo borrado") << "brenal.db";
    QTest::newRow("disco que no está conectado") << "media/usb/brenal.db";
}

// The program ends after the splash on the fatal path, the box names the missing file and tells how
// the store's database is set up, and no empty database is left where the file should be.
void TstSinArchivo::archivoQueNoExisteTerminaNombrandolo() {
    QFETCH(QString, relativa);
    BaseDePrueba base(true);
    const QString archivo = QDir(base.directorio()).filePath(relativa);
    for (const char* sufijo : {"", "-wal", "-shm"})
        QFile::remove(base.archivo() + QLatin1String(sufijo));
    base.reescribirOrigen({QStringLiteral("Driver=") + BaseDePrueba::controladorSqlite(),
                           QStringLiteral("Database=") + archivo, QStringLiteral("Timeout=5000"),
                           QStringLiteral("FKSupport=1")});
    const QStringList antes = BaseDePrueba::contenido(base.directorio());

    const QString texto = falloAlIniciar();
    QVERIFY2(texto.contains(archivo), qPrintable(texto));
    QVERIFY2(texto.endsWith(QLatin1String("DSNBrenal con: cuentacorriente-db init")), qPrintable(texto));
    QCOMPARE(BaseDePrueba::contenido(base.directorio()), antes);
}

QTEST_MAIN(TstSinArchivo)
#include "tst_sinarchivo.moc"
