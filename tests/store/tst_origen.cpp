// Opening a data source that names a database file that is not there, or no file at all. Each case that
// reaches the driver manager has a data source of its own name: unixODBC keeps what it read of one for
// 20 seconds.
#include "BaseDePrueba.h"
#include "runtime/Conversion.h"
#include "store/Conexion.h"
#include "store/Fallo.h"
#include "store/Recordset.h"

#include <QDir>
#include <QtTest>

using namespace store;

class TstOrigen : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void archivoQueNoExiste_data();
    void archivoQueNoExiste();
    void origenQueNoNombraUnArchivo_data();
    void origenQueNoNombraUnArchivo();
};

void TstOrigen::archivoQueNoExiste_data() {
    QTest::addColumn<QString>("baseDatos"); // @ stands for the case's folder
    QTest::addColumn<bool>("porNombre");    // the driver named as odbcinst.ini registers it
    QTest::newRow("archivo que falta") << "@/perdida.db" << false;
    QTest::newRow("carpeta que no existe") << "@/disco/externo/brenal.db" << false;
    QTest::newRow("ruta con espacios y acentos") << "@/año 2026/mi tienda.db" << false;
    QTest::newRow("controlador por su nombre") << "@/perdida.db" << true;
}

// The connection fails before the driver opens anything, with a failure that names the file, and no
// file or folder is made in its place (the driver would make an empty database there).
void TstOrigen::archivoQueNoExiste() {
    QFETCH(QString, baseDatos);
    QFETCH(bool, porNombre);
    BaseDePrueba base(true);
    baseDatos.replace(u'@', base.directorio());
    base.reescribirOrigen({QStringLiteral("Driver=") +
                               (porNombre ? QStringLiteral("SQLite3") : BaseDePrueba::controladorSqlite()),
                           QStringLiteral("Database=") + baseDatos, QStringLiteral("Timeout=5000")});
    const QStringList antes = BaseDePrueba::contenido(base.directorio());

    Conexion cn(QStringLiteral("DSN=DSNBrenal"));
    try {
        cn.Open();
        QFAIL("a data source on a missing file opened");
    } catch (const Fallo& f) {
        QCOMPARE(f.numero(), FalloConexion);
        QVERIFY2(f.descripcion().contains(baseDatos) && f.descripcion().contains(QLatin1String("DSNBrenal")),
                 qPrintable(f.descripcion()));
    }
    QCOMPARE(cn.State(), int(adStateClosed));
    QCOMPARE(BaseDePrueba::contenido(base.directorio()), antes);
}

void TstOrigen::origenQueNoNombraUnArchivo_data() {
    QTest::addColumn<QString>("origen");
    QTest::addColumn<QStringList>("claves");
    QTest::addColumn<QString>("resultado"); // "abre", or what the failure's text holds
    const QString sqlite = QStringLiteral("Driver=") + BaseDePrueba::controladorSqlite();
    QTest::newRow("base en memoria") << "DSNMemoria" << QStringList{sqlite, "Database=:memory:"} << "abre";
    QTest::newRow("sin Database") << "DSNSinBase" << QStringList{sqlite} << "Database";
    // Another engine's Database is a name on its server, not a file: the driver manager speaks.
    QTest::newRow("otro controlador") << "DSNServidor"
                                      << QStringList{"Driver=/usr/lib/odbc/no-instalado/psqlodbcw.so",
                                                     "Database=brenal", "Servername=servidor"}
                                      << "no-instalado/psqlodbcw.so";
}

// Only a file path is looked for: an in-memory database opens, a source without Database is refused
// saying so, and another driver's source is left to that driver.
void TstOrigen::origenQueNoNombraUnArchivo() {
    QFETCH(QString, origen);
    QFETCH(QStringList, claves);
    QFETCH(QString, resultado);
    BaseDePrueba base;
    base.reescribirOrigen(claves, origen);
    const QStringList antes = BaseDePrueba::contenido(base.directorio());

    Conexion cn(QStringLiteral("DSN=") + origen);
    if (resultado == QLatin1String("abre")) {
        cn.Open();
        Recordset rs;
        rs.Open(QStringLiteral("Select 6 * 7"), cn);
        QCOMPARE(runtime::TextoDe(rs.Fields(0).Value()), QStringLiteral("42"));
        return;
    }
    try {
        cn.Open();
        QFAIL("the data source opened");
    } catch (const Fallo& f) {
        QCOMPARE(f.numero(), FalloConexion);
        QVERIFY2(f.descripcion().contains(resultado), qPrintable(f.descripcion()));
    }
    QCOMPARE(BaseDePrueba::contenido(base.directorio()), antes);
}

QTEST_GUILESS_MAIN(TstOrigen)
#include "tst_origen.moc"
