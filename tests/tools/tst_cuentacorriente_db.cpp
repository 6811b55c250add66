// cuentacorriente-db as a store runs it: creating the database, registering DSNBrenal, the sample
// store, the status report and the online copy. Every case works in its own folder, with HOME,
// XDG_DATA_HOME and the ODBC configuration of the program pointing into it.
#include "BaseSqlite.h"
#include "Creacion.h"
#include "runtime/Conversion.h"
#include "store/Conexion.h"
#include "store/Recordset.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QtTest>
#include <memory>
#include <sqlite3.h>

namespace {

struct Resultado {
    int estado = -1;
    QString salida, errores;
};

QByteArray contenido(const QString& archivo) {
    QFile f(archivo);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void escribir(const QString& archivo, const QByteArray& texto) {
    QFile f(archivo);
    QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    f.write(texto);
}

// The keys of one section of an ini file.
QMap<QString, QString> seccionIni(const QString& archivo, const QString& seccion) {
    QMap<QString, QString> claves;
    bool dentro = false;
    for (const QString& linea : QString::fromUtf8(contenido(archivo)).split(QLatin1Char('\n'))) {
        const QString l = linea.trimmed();
        if (l.startsWith(QLatin1Char('['))) {
            dentro = l == QLatin1Char('[') + seccion + QLatin1Char(']');
        } else if (dentro && l.contains(QLatin1Char('='))) {
            const qsizetype igual = l.indexOf(QLatin1Char('='));
            claves.insert(l.left(igual).trimmed(), l.mid(igual + 1).trimmed());
        }
    }
    return claves;
}

// Straight to the file with SQLite, bypassing the program and the store.
class Sqlite {
public:
    explicit Sqlite(const QString& archivo) {
        if (sqlite3_open_v2(QFile::encodeName(archivo).constData(), &db_, SQLITE_OPEN_READWRITE, nullptr) !=
            SQLITE_OK)
            qFatal("sqlite3_open %s: %s", qPrintable(archivo), sqlite3_errmsg(db_));
        sqlite3_busy_timeout(db_, 5000);
    }
    ~Sqlite() { sqlite3_close(db_); }
    Sqlite(const Sqlite&) = delete;
    Sqlite& operator=(const Sqlite&) = delete;

    void ejecutar(const char* sentencias) {
        char* error = nullptr;
        if (sqlite3_exec(db_, sentencias, nullptr, nullptr, &error) != SQLITE_OK) qFatal("sqlite: %s", error);
    }
    // The first value of the first row as text ("" for Null or no row).
    QString valor(const QString& consulta) { return columna(consulta).value(0); }
    // The first column of every row.
    QStringList columna(const QString& consulta) {
        sqlite3_stmt* st = nullptr;
        if (sqlite3_prepare_v2(db_, consulta.toUtf8().constData(), -1, &st, nullptr) != SQLITE_OK)
            qFatal("sqlite: %s\n%s", sqlite3_errmsg(db_), qPrintable(consulta));
        QStringList valores;
        while (sqlite3_step(st) == SQLITE_ROW)
            valores << QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st, 0)));
        sqlite3_finalize(st);
        return valores;
    }
    // Rows of every table, "Tabla=n", by table name.
    QStringList filasPorTabla() {
        QStringList filas;
        for (const QString& t : columna(QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table' "
                                                       "AND name NOT LIKE 'sqlite%' ORDER BY name")))
            filas << t + QLatin1Char('=') + valor(QStringLiteral("SELECT count(*) FROM ") + t);
        return filas;
    }

private:
    sqlite3* db_ = nullptr;
};

// Puts the variables unixODBC reads into this process, for the store layer; restores them after.
class EntornoOdbc {
public:
    explicit EntornoOdbc(const QProcessEnvironment& entorno) {
        for (const char* v : variables) {
            antes_.append({qgetenv(v), qEnvironmentVariableIsSet(v)});
            qputenv(v, entorno.value(QLatin1String(v)).toLocal8Bit());
        }
    }
    ~EntornoOdbc() {
        for (int i = 0; i < int(std::size(variables)); ++i) {
            if (antes_[i].second)
                qputenv(variables[i], antes_[i].first);
            else
                qunsetenv(variables[i]);
        }
    }

private:
    static constexpr const char* variables[] = {"HOME", "ODBCINI", "ODBCSYSINI"};
    QList<QPair<QByteArray, bool>> antes_;
};

} // namespace

class TstCuentacorrienteDb : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void initEnLaRutaPredeterminada_data();
    void initEnLaRutaPredeterminada();
    void laCapaDeDatosAbreLoCreado();
    void initConFile_data();
    void initConFile();
    void initSobreBaseExistenteLaConservaYReregistra();
    void initRechazaSinTocarNada_data();
    void initRechazaSinTocarNada();
    void creacionFallidaNoDejaArchivo();
    void tiendaDeEjemplo_data();
    void tiendaDeEjemplo();
    void statusInforma();
    void statusFalla_data();
    void statusFalla();
    void backupConLaBaseEnUso_data();
    void backupConLaBaseEnUso();
    void backupRechaza_data();
    void backupRechaza();
    void ordenesMalFormadas_data();
    void ordenesMalFormadas();

private:
    Resultado correr(const QStringList& args) const;
    QString ruta(const QString& nombre) const { return dir_->filePath(nombre); }
    QString odbcIni() const { return ruta(QStringLiteral("odbc.ini")); }
    QString archivoPredeterminado() const { return ruta(QStringLiteral("datos/cuentacorriente/brenal.db")); }
    // A database made by the program at `archivo`.
    void crear(const QString& archivo, bool demo);

    std::unique_ptr<QTemporaryDir> dir_;
    QProcessEnvironment entorno_;
};

void TstCuentacorrienteDb::init() {
    dir_ = std::make_unique<QTemporaryDir>();
    QVERIFY(dir_->isValid());
    entorno_ = QProcessEnvironment::systemEnvironment();
    entorno_.insert(QStringLiteral("HOME"), dir_->path());
    entorno_.insert(QStringLiteral("XDG_DATA_HOME"), ruta(QStringLiteral("datos")));
    entorno_.insert(QStringLiteral("ODBCINI"), odbcIni());
    entorno_.insert(QStringLiteral("ODBCSYSINI"), dir_->path());
}

void TstCuentacorrienteDb::cleanup() {
    dir_.reset();
}

Resultado TstCuentacorrienteDb::correr(const QStringList& args) const {
    QProcess p;
    p.setProcessEnvironment(entorno_);
    p.setWorkingDirectory(dir_->path());
    p.start(QStringLiteral(CC_DB_TOOL), args);
    Resultado r;
    if (!p.waitForFinished(60000) || p.exitStatus() != QProcess::NormalExit) return r;
    r.estado = p.exitCode();
    r.salida = QString::fromUtf8(p.readAllStandardOutput());
    r.errores = QString::fromUtf8(p.readAllStandardError());
    return r;
}

void TstCuentacorrienteDb::crear(const QString& archivo, bool demo) {
    QStringList args{QStringLiteral("init"), QStringLiteral("--file"), archivo};
    if (demo) args << QStringLiteral("--demo");
    const Resultado r = correr(args);
    QVERIFY2(r.estado == 0, qPrintable(r.errores));
}

void TstCuentacorrienteDb::initEnLaRutaPredeterminada_data() {
    QTest::addColumn<QString>("xdgDataHome"); // empty: unset; @ stands for the case's folder
    QTest::addColumn<QString>("esperado");    // relative to the case's folder
    QTest::newRow("XDG_DATA_HOME") << "@/datos"
                                   << "datos/cuentacorriente/brenal.db";
    QTest::newRow("sin XDG_DATA_HOME") << ""
                                       << ".local/share/cuentacorriente/brenal.db";
    QTest::newRow("XDG_DATA_HOME relativo se ignora") << "datos"
                                                      << ".local/share/cuentacorriente/brenal.db";
}

void TstCuentacorrienteDb::initEnLaRutaPredeterminada() {
    QFETCH(QString, xdgDataHome);
    QFETCH(QString, esperado);
    if (xdgDataHome.isEmpty())
        entorno_.remove(QStringLiteral("XDG_DATA_HOME"));
    else
        entorno_.insert(QStringLiteral("XDG_DATA_HOME"), xdgDataHome.replace(QLatin1Char('@'), dir_->path()));
    const QString archivo = ruta(esperado);

    const Resultado r = correr({QStringLiteral("init")});
    QVERIFY2(r.estado == 0, qPrintable(r.errores));
    QVERIFY2(QFile::exists(archivo), qPrintable(r.salida));
    QVERIFY2(r.salida.contains(archivo), qPrintable(r.salida));

    Sqlite base(archivo);
    QCOMPARE(base.valor(QStringLiteral("PRAGMA journal_mode")), QStringLiteral("wal"));
    QCOMPARE(base.valor(QStringLiteral("SELECT max(Version) FROM VersionEsquema")), QStringLiteral("1"));
    QCOMPARE(base.valor(QStringLiteral("SELECT count(*) FROM Concepto WHERE Tipo BETWEEN 1 AND 4")),
             QStringLiteral("4"));
    QCOMPARE(base.valor(QStringLiteral("SELECT count(*) FROM Solicitud")), QStringLiteral("0"));

    const auto dsn = seccionIni(odbcIni(), QStringLiteral("DSNBrenal"));
    QVERIFY2(QFileInfo(dsn.value(QStringLiteral("Driver"))).isFile(),
             qPrintable(dsn.value(QStringLiteral("Driver"))));
    QVERIFY(dsn.value(QStringLiteral("Driver")).contains(QLatin1String("sqlite3odbc")));
    QCOMPARE(dsn.value(QStringLiteral("Database")), archivo);
    QCOMPARE(dsn.value(QStringLiteral("JournalMode")), QStringLiteral("WAL"));
    QCOMPARE(dsn.value(QStringLiteral("Timeout")), QStringLiteral("5000"));
    QCOMPARE(dsn.value(QStringLiteral("FKSupport")), QStringLiteral("1"));
    QCOMPARE(dsn.value(QStringLiteral("Description")),
             QStringLiteral("Sistema de control de cuenta corriente"));
}

// What init registers is enough for the application's own data layer: the view of the application
// search runs through DSNBrenal and gives the rows the file holds.
void TstCuentacorrienteDb::laCapaDeDatosAbreLoCreado() {
    const Resultado r = correr({QStringLiteral("init"), QStringLiteral("--demo")});
    QVERIFY2(r.estado == 0, qPrintable(r.errores));
    Sqlite base(archivoPredeterminado());
    const QStringList estados =
        base.columna(QStringLiteral("SELECT Estado FROM Solicitud ORDER BY SolicitudID"));
    QVERIFY(!estados.isEmpty());

    const EntornoOdbc entorno(entorno_);
    store::Conexion cn(QStringLiteral("DSN=DSNBrenal"));
    cn.Open();
    store::Recordset rs;
    rs.Open(QStringLiteral("Select * From vwBuscaSolicitud Order By hidID"), cn, store::adOpenStatic,
            store::adLockReadOnly);
    QStringList palabras;
    for (; !rs.Eof(); rs.MoveNext())
        palabras << runtime::TextoDe(rs.Fields(QStringLiteral("shw800_str_Estado")).Value());
    rs.Close();
    cn.Close();
    const QStringList nombres{"Pendiente", "Aprobada", "Cancelada", "Rechazada"};
    QStringList esperadas;
    for (const QString& e : estados)
        esperadas << nombres.value(e.toInt());
    QCOMPARE(palabras, esperadas);
}

void TstCuentacorrienteDb::initConFile_data() {
    QTest::addColumn<QString>("argumento");
    QTest::addColumn<QString>("esperado"); // relative to the case's folder
    QTest::newRow("ruta relativa, carpetas nuevas") << "sucursal/zona 1/tienda.db"
                                                    << "sucursal/zona 1/tienda.db";
    QTest::newRow("ruta absoluta") << "@/otra.db"
                                   << "otra.db";
    QTest::newRow("con puntos") << "./a/../b/tienda.db"
                                << "b/tienda.db";
}

void TstCuentacorrienteDb::initConFile() {
    QFETCH(QString, argumento);
    QFETCH(QString, esperado);
    argumento.replace(QLatin1Char('@'), dir_->path());
    const QString archivo = QDir::cleanPath(ruta(esperado));

    const Resultado r = correr({QStringLiteral("init"), QStringLiteral("--file"), argumento});
    QVERIFY2(r.estado == 0, qPrintable(r.errores));
    QVERIFY(QFile::exists(archivo));
    QVERIFY(!QFile::exists(archivoPredeterminado()));
    QCOMPARE(seccionIni(odbcIni(), QStringLiteral("DSNBrenal")).value(QStringLiteral("Database")), archivo);
    QCOMPARE(Sqlite(archivo).valor(QStringLiteral("SELECT max(Version) FROM VersionEsquema")),
             QStringLiteral("1"));
}

// A user who lost the data source gets it back over the database as it is; writing DSNBrenal again
// drops its stale keys and leaves other data sources alone.
void TstCuentacorrienteDb::initSobreBaseExistenteLaConservaYReregistra() {
    const QString archivo = ruta(QStringLiteral("tienda.db"));
    crear(archivo, false);
    {
        Sqlite base(archivo);
        base.ejecutar("INSERT INTO Banco (Nombre, Direccion) VALUES ('Bantrab', 'Zona 1')");
    }
    escribir(odbcIni(), "[OtraTienda]\nDriver=SQLite3\nDatabase=/srv/otra.db\n\n"
                        "[DSNBrenal]\nDriver=SQLite3\nDatabase=/perdida/brenal.db\nSobrante=1\n");

    const Resultado r = correr({QStringLiteral("init"), QStringLiteral("--file"), archivo});
    QVERIFY2(r.estado == 0, qPrintable(r.errores));
    QVERIFY2(r.salida.contains(QLatin1String("ya existe")), qPrintable(r.salida));
    Sqlite base(archivo);
    QCOMPARE(base.valor(QStringLiteral("SELECT Nombre || '/' || Direccion FROM Banco")),
             QStringLiteral("Bantrab/Zona 1"));
    QCOMPARE(base.valor(QStringLiteral("SELECT count(*) FROM Concepto")), QStringLiteral("10"));

    const auto dsn = seccionIni(odbcIni(), QStringLiteral("DSNBrenal"));
    QCOMPARE(dsn.value(QStringLiteral("Database")), archivo);
    QVERIFY(!dsn.contains(QStringLiteral("Sobrante")));
    QVERIFY(dsn.value(QStringLiteral("Driver")).contains(QLatin1String("sqlite3odbc")));
    QCOMPARE(seccionIni(odbcIni(), QStringLiteral("OtraTienda")).value(QStringLiteral("Database")),
             QStringLiteral("/srv/otra.db"));
}

void TstCuentacorrienteDb::initRechazaSinTocarNada_data() {
    QTest::addColumn<QString>("previo"); // what stands at the path before
    QTest::addColumn<bool>("demo");
    QTest::newRow("--demo sobre una base de la tienda") << "tienda" << true;
    QTest::newRow("archivo de texto") << "texto" << false;
    QTest::newRow("archivo de texto, --demo") << "texto" << true;
    QTest::newRow("base SQLite ajena") << "ajena" << false;
    QTest::newRow("archivo vacío") << "vacio" << false;
}

void TstCuentacorrienteDb::initRechazaSinTocarNada() {
    QFETCH(QString, previo);
    QFETCH(bool, demo);
    const QString archivo = ruta(QStringLiteral("brenal.db"));
    if (previo == QLatin1String("tienda")) {
        crear(archivo, false);
    } else if (previo == QLatin1String("texto")) {
        escribir(archivo, "Cuentas de enero\n");
    } else if (previo == QLatin1String("ajena")) {
        sqlite3* db = nullptr;
        sqlite3_open(QFile::encodeName(archivo).constData(), &db);
        sqlite3_exec(db, "CREATE TABLE Notas (Texto TEXT); INSERT INTO Notas VALUES ('x')", nullptr, nullptr,
                     nullptr);
        sqlite3_close(db);
    } else {
        escribir(archivo, {});
    }
    const QByteArray antes = contenido(archivo), iniAntes = contenido(odbcIni());
    const bool habiaIni = QFile::exists(odbcIni());

    QStringList args{QStringLiteral("init"), QStringLiteral("--file"), archivo};
    if (demo) args << QStringLiteral("--demo");
    const Resultado r = correr(args);
    QCOMPARE(r.estado, 1);
    QVERIFY2(r.errores.contains(archivo), qPrintable(r.errores));
    QVERIFY(!r.salida.contains(QLatin1String("DSNBrenal")));
    QCOMPARE(contenido(archivo), antes);
    QCOMPARE(QFile::exists(odbcIni()), habiaIni);
    QCOMPARE(contenido(odbcIni()), iniAntes);
    if (previo == QLatin1String("tienda"))
        QCOMPARE(Sqlite(archivo).valor(QStringLiteral("SELECT count(*) FROM Solicitud")),
                 QStringLiteral("0"));
}

// A script that fails midway leaves neither the database nor its side files, and the message names it.
void TstCuentacorrienteDb::creacionFallidaNoDejaArchivo() {
    const QString archivo = ruta(QStringLiteral("nueva/brenal.db"));
    QList<basedatos::Script> scripts = basedatos::scriptsDelEsquema(false);
    QVERIFY(scripts.size() > 1);
    scripts.insert(1, {QStringLiteral("015-roto.sql"), QStringLiteral("INSERT INTO NoExiste VALUES (1);")});
    try {
        basedatos::crearBase(archivo, scripts);
        QFAIL("the broken script was accepted");
    } catch (const basedatos::Error& e) {
        QVERIFY2(e.texto().contains(QLatin1String("015-roto.sql")) &&
                     e.texto().contains(QLatin1String("NoExiste")),
                 qPrintable(e.texto()));
    }
    const QStringList quedan = QDir(ruta(QStringLiteral("nueva"))).entryList(QDir::Files | QDir::Hidden);
    QVERIFY2(quedan.isEmpty(), qPrintable(quedan.join(QLatin1Char(' '))));

    // Never over a file that exists: the clean-up would take it away.
    escribir(archivo, "ajeno");
    QVERIFY_THROWS_EXCEPTION(basedatos::Error,
                             basedatos::crearBase(archivo, basedatos::scriptsDelEsquema(false)));
    QCOMPARE(contenido(archivo), QByteArray("ajeno"));
}

// What the sample store must show a newcomer, each fact a query that reads 1 when it holds.
void TstCuentacorrienteDb::tiendaDeEjemplo_data() {
    QTest::addColumn<QString>("consulta");
    QTest::newRow("solicitudes en cada estado")
        << "SELECT count(DISTINCT Estado) = 4 AND min(Estado) = 0 AND max(Estado) = 3 FROM Solicitud";
    QTest::newRow("una aprobada pagada en parte")
        << "SELECT count(*) = 1 FROM vwBuscaSolicitud V JOIN Solicitud S ON S.SolicitudID = V.hidID "
           "WHERE S.Estado = 1 AND V.shw1200_dbl_Saldo > 0 "
           "AND EXISTS (SELECT 1 FROM Recibo R WHERE R.SolicitudID = S.SolicitudID)";
    QTest::newRow("una aprobada pagada por completo")
        << "SELECT count(*) = 1 FROM vwBuscaSolicitud V JOIN Solicitud S ON S.SolicitudID = V.hidID "
           "WHERE S.Estado = 1 AND V.shw1200_dbl_Saldo = 0";
    QTest::newRow("cancelada sin saldo")
        << "SELECT count(*) > 0 AND max(abs(V.shw1200_dbl_Saldo)) = 0 FROM vwBuscaSolicitud V "
           "JOIN Solicitud S ON S.SolicitudID = V.hidID WHERE S.Estado = 2";
    QTest::newRow("rechazadas con motivo y fecha")
        << "SELECT count(*) > 0 AND count(*) = count(nullif(Observaciones, '')) AND count(*) = "
           "count(FechaAprobacion) "
           "FROM Solicitud WHERE Estado = 3";
    QTest::newRow("pendientes sin recibos") << "SELECT count(*) > 0 AND sum(EXISTS (SELECT 1 FROM Recibo R "
                                               "WHERE R.SolicitudID = S.SolicitudID)) = 0 "
                                               "FROM Solicitud S WHERE Estado = 0";
    QTest::newRow("números de solicitud seguidos")
        << "SELECT min(NumeroSolicitud) = 1 AND max(NumeroSolicitud) = count(DISTINCT NumeroSolicitud) FROM "
           "Solicitud";
    QTest::newRow("cada solicitud con una o dos líneas")
        << "SELECT min(n) >= 1 AND max(n) <= 2 FROM (SELECT count(D.SolicitudDetalleID) AS n FROM Solicitud "
           "S "
           "LEFT JOIN SolicitudDetalle D ON D.SolicitudID = S.SolicitudID GROUP BY S.SolicitudID)";
    QTest::newRow("recibos con cada tipo de concepto")
        << "SELECT count(DISTINCT Tipo) = 4 FROM vwAbonoSolicitud WHERE Tipo IS NOT NULL";
    QTest::newRow("un recibo a nombre suelto con concepto ordinario")
        << "SELECT count(*) >= 1 FROM Recibo R JOIN ReciboDetalle D ON D.ReciboID = R.ReciboID "
           "JOIN Concepto C ON C.ConceptoID = D.ConceptoID "
           "WHERE R.SolicitudID = 0 AND R.ClienteID = 0 AND R.Nombre <> '' AND C.Tipo IS NULL";
    QTest::newRow("recibos solo de solicitudes aprobadas o canceladas")
        << "SELECT count(*) = 0 FROM Recibo R JOIN Solicitud S ON S.SolicitudID = R.SolicitudID "
           "WHERE S.Estado NOT IN (1, 2)";
    QTest::newRow("factura al crédito de la solicitud pagada")
        << "SELECT count(*) >= 1 FROM Factura F JOIN FacturaDetalle D ON D.FacturaID = F.FacturaID "
           "JOIN vwBuscaSolicitud V ON V.hidID = F.SolicitudID WHERE D.EsCredito = 1 AND V.shw1200_dbl_Saldo "
           "= 0";
    QTest::newRow("factura al contado a un cliente")
        << "SELECT count(*) >= 1 FROM Factura F JOIN FacturaDetalle D ON D.FacturaID = F.FacturaID "
           "WHERE F.SolicitudID = 0 AND F.ClienteID > 0 AND D.ArticuloID > 0 AND D.EsCredito = 0";
    QTest::newRow("cada factura nombra una sola forma de cliente")
        << "SELECT count(*) = 0 FROM Factura WHERE (SolicitudID > 0) + (ClienteID > 0) + (Nombre IS NOT "
           "NULL) <> 1";
    QTest::newRow("nota de envío de una solicitud aprobada")
        << "SELECT count(*) >= 1 FROM NotaEnvio N JOIN Solicitud S ON S.SolicitudID = N.SolicitudID "
           "WHERE S.Estado = 1 AND N.FacturaID = 0 AND N.ReciboID = 0 "
           "AND EXISTS (SELECT 1 FROM NotaEnvioDetalle D WHERE D.NotaID = N.NotaID)";
    QTest::newRow("nada entregado de más")
        << "SELECT count(*) = 0 FROM vwSaldoXArticuloXSolicitud WHERE shw1200_int_Saldo < 0";
    QTest::newRow("todo artículo con existencia")
        << "SELECT count(*) >= 8 AND min(shw1000_dbl_Existencia) > 0 FROM vwBuscaArticulo";
    QTest::newRow("márgenes por porcentaje y por valor")
        << "SELECT sum(ContadoPorcentaje > 0) > 0 AND sum(ContadoPorcentaje = 0 AND ContadoValor > 0) > 0 "
           "FROM Articulo";
    QTest::newRow("documento que paga parte de una nota")
        << "SELECT count(*) >= 1 FROM vwSaldosXNotaIngreso "
           "WHERE shw1200_dbl_Cancelado > 0 AND shw1200_dbl_Cancelado < shw1200_dbl_Total";
    QTest::newRow("código de cliente por letra del apellido")
        << "SELECT count(*) = 0 FROM Cliente WHERE CodigoLetra <> substr(Apellidos, 1, 1)";
    QTest::newRow("códigos contados desde 1 por letra")
        << "SELECT count(*) = 0 FROM (SELECT min(CodigoNumero) AS d, max(CodigoNumero) AS h, count(*) AS n "
           "FROM Cliente GROUP BY CodigoLetra) WHERE d <> 1 OR h <> n";
    QTest::newRow("nombres en mayúsculas") << "SELECT count(*) = 0 FROM Cliente WHERE Nombres <> "
                                              "upper(Nombres) OR Apellidos <> upper(Apellidos)";
    QTest::newRow("fiadores con estado civil del catálogo")
        << "SELECT count(*) >= 3 AND sum(EstadoCivilID NOT IN (SELECT EstadoCivilID FROM EstadoCivil)) = 0 "
           "FROM Fiador";
    QTest::newRow("tres bancos") << "SELECT count(*) = 3 FROM Banco";
    QTest::newRow("relaciones íntegras") << "SELECT count(*) = 0 FROM pragma_foreign_key_check";
}

void TstCuentacorrienteDb::tiendaDeEjemplo() {
    QFETCH(QString, consulta);
    const QString archivo = ruta(QStringLiteral("demo.db"));
    crear(archivo, true);
    Sqlite base(archivo);
    QCOMPARE(base.valor(consulta), QStringLiteral("1"));
}

void TstCuentacorrienteDb::statusInforma() {
    const QString archivo = ruta(QStringLiteral("tienda.db"));
    crear(archivo, true);
    const QStringList filas = Sqlite(archivo).filasPorTabla();

    const Resultado r = correr({QStringLiteral("status")});
    QVERIFY2(r.estado == 0, qPrintable(r.errores));
    QVERIFY2(r.salida.contains(archivo), qPrintable(r.salida));
    QVERIFY2(r.salida.contains(QRegularExpression(QStringLiteral("^Versión del esquema: 1$"),
                                                  QRegularExpression::MultilineOption)),
             qPrintable(r.salida));
    QVERIFY2(r.salida.contains(
                 QRegularExpression(QStringLiteral("^Concepto +10$"), QRegularExpression::MultilineOption)),
             qPrintable(r.salida));

    // One line per table, "name   count", every count ending in the same column.
    const QRegularExpression linea(QStringLiteral("^(\\w+) +(\\d+)$"), QRegularExpression::MultilineOption);
    QStringList leidas;
    QSet<qsizetype> anchos;
    for (auto it = linea.globalMatch(r.salida); it.hasNext();) {
        const auto m = it.next();
        leidas << m.captured(1) + QLatin1Char('=') + m.captured(2);
        anchos << m.capturedLength(0);
    }
    QCOMPARE(leidas, filas);
    QCOMPARE(anchos.size(), 1);
    QVERIFY2(r.salida.contains(
                 QRegularExpression(QStringLiteral("^Tabla +Filas$"), QRegularExpression::MultilineOption)),
             qPrintable(r.salida));
}

void TstCuentacorrienteDb::statusFalla_data() {
    QTest::addColumn<QByteArray>("ini"); // odbc.ini; @ stands for the case's folder
    QTest::addColumn<QString>("motivo");
    QTest::newRow("sin odbc.ini") << QByteArray() << "no está registrado";
    QTest::newRow("otro origen, no DSNBrenal")
        << QByteArray("[OtraTienda]\nDriver=SQLite3\nDatabase=@/brenal.db\n") << "no está registrado";
    QTest::newRow("archivo que no existe")
        << QByteArray("[DSNBrenal]\nDriver=SQLite3\nDatabase=@/perdida.db\n") << "no existe";
    QTest::newRow("archivo que no es base")
        << QByteArray("[DSNBrenal]\nDriver=SQLite3\nDatabase=@/texto.db\n") << "no es una base de datos";
    QTest::newRow("sin Database") << QByteArray("[DSNBrenal]\nDriver=SQLite3\n") << "Database";
}

void TstCuentacorrienteDb::statusFalla() {
    QFETCH(QByteArray, ini);
    QFETCH(QString, motivo);
    crear(ruta(QStringLiteral("brenal.db")), false);
    escribir(ruta(QStringLiteral("texto.db")), "Cuentas de enero\n");
    if (ini.isEmpty())
        QVERIFY(QFile::remove(odbcIni()));
    else
        escribir(odbcIni(), ini.replace('@', QFile::encodeName(dir_->path())));

    const Resultado r = correr({QStringLiteral("status")});
    QCOMPARE(r.estado, 1);
    QCOMPARE(r.salida, QString());
    QVERIFY2(r.errores.contains(motivo), qPrintable(r.errores));
    QCOMPARE(contenido(ruta(QStringLiteral("texto.db"))), QByteArray("Cuentas de enero\n"));
}

void TstCuentacorrienteDb::backupConLaBaseEnUso_data() {
    QTest::addColumn<bool>("porOrigen"); // through DSNBrenal, or --file
    QTest::newRow("la base de DSNBrenal") << true;
    QTest::newRow("--file") << false;
}

// Another program holds the database: a change it committed is in the copy even though it still sits
// in the WAL file, and the change it is writing is not.
void TstCuentacorrienteDb::backupConLaBaseEnUso() {
    QFETCH(bool, porOrigen);
    const QString archivo = ruta(QStringLiteral("tienda.db"));
    const QString copia = ruta(QStringLiteral("copias/copia.db"));
    crear(archivo, true);
    QVERIFY(QDir().mkpath(ruta(QStringLiteral("copias"))));

    Sqlite otro(archivo);
    otro.ejecutar("PRAGMA wal_autocheckpoint = 0;"
                  "INSERT INTO Banco (Nombre) VALUES ('Banco de América Central');"
                  "BEGIN IMMEDIATE; INSERT INTO Banco (Nombre) VALUES ('Sin confirmar');");
    QVERIFY(QFileInfo(archivo + QStringLiteral("-wal")).size() > 0);

    QStringList args{QStringLiteral("backup"), QStringLiteral("copias/copia.db")};
    if (!porOrigen) args << QStringLiteral("--file") << archivo;
    const Resultado r = correr(args);
    otro.ejecutar("ROLLBACK");
    QVERIFY2(r.estado == 0, qPrintable(r.errores));
    QVERIFY2(r.salida.contains(copia) && r.salida.contains(QStringLiteral("páginas")), qPrintable(r.salida));

    Sqlite leida(copia);
    QCOMPARE(leida.valor(QStringLiteral("PRAGMA integrity_check")), QStringLiteral("ok"));
    QCOMPARE(leida.filasPorTabla(), otro.filasPorTabla());
    QCOMPARE(
        leida.valor(QStringLiteral("SELECT count(*) FROM Banco WHERE Nombre = 'Banco de América Central'")),
        QStringLiteral("1"));
    QCOMPARE(leida.valor(QStringLiteral("SELECT count(*) FROM Banco WHERE Nombre = 'Sin confirmar'")),
             QStringLiteral("0"));
    QCOMPARE(leida.valor(QStringLiteral("SELECT group_concat(Saldo, ' ') FROM vwBuscaSolicitud")),
             otro.valor(QStringLiteral("SELECT group_concat(Saldo, ' ') FROM vwBuscaSolicitud")));
}

void TstCuentacorrienteDb::backupRechaza_data() {
    QTest::addColumn<QString>("caso");
    QTest::newRow("la copia ya existe") << "existe";
    QTest::newRow("el origen no es una base") << "ajeno";
    QTest::newRow("el origen no existe") << "falta";
}

void TstCuentacorrienteDb::backupRechaza() {
    QFETCH(QString, caso);
    const QString archivo = ruta(QStringLiteral("tienda.db"));
    const QString copia = ruta(QStringLiteral("copia.db"));
    crear(archivo, false);
    QString origen = archivo;
    if (caso == QLatin1String("existe")) {
        escribir(copia, "copia de ayer");
    } else if (caso == QLatin1String("ajeno")) {
        origen = ruta(QStringLiteral("texto.db"));
        escribir(origen, "Cuentas de enero\n");
    } else {
        origen = ruta(QStringLiteral("perdida.db"));
    }
    const QByteArray antes = contenido(copia);

    const Resultado r = correr({QStringLiteral("backup"), copia, QStringLiteral("--file"), origen});
    QCOMPARE(r.estado, 1);
    QVERIFY2(!r.errores.isEmpty(), qPrintable(r.salida));
    QCOMPARE(QFile::exists(copia), caso == QLatin1String("existe"));
    QCOMPARE(contenido(copia), antes);
}

void TstCuentacorrienteDb::ordenesMalFormadas_data() {
    QTest::addColumn<QStringList>("args");
    QTest::newRow("sin orden") << QStringList{};
    QTest::newRow("orden desconocida") << QStringList{"crear"};
    QTest::newRow("opción desconocida") << QStringList{"init", "--forzar"};
    QTest::newRow("--file sin ruta") << QStringList{"init", "--file"};
    QTest::newRow("status con --demo") << QStringList{"status", "--demo"};
    QTest::newRow("backup sin archivo") << QStringList{"backup"};
    QTest::newRow("backup con --demo") << QStringList{"backup", "copia.db", "--demo"};
    QTest::newRow("init con argumento de más") << QStringList{"init", "tienda.db"};
}

// A command line that is not understood does nothing: no database, no data source.
void TstCuentacorrienteDb::ordenesMalFormadas() {
    QFETCH(QStringList, args);
    const Resultado r = correr(args);
    QCOMPARE(r.estado, 1);
    QVERIFY(!r.errores.isEmpty());
    QCOMPARE(r.salida, QString());
    const QStringList quedan =
        QDir(dir_->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
    QVERIFY2(quedan.isEmpty(), qPrintable(quedan.join(QLatin1Char(' '))));
}

QTEST_GUILESS_MAIN(TstCuentacorrienteDb)
#include "tst_cuentacorriente_db.moc"
