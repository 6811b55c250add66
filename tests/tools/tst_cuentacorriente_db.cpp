// cuentacorriente-db as a store runs it: creating the database, registering DSNBrenal, the sample
// store, the status report and the online copy. Every case works in its own folder, with HOME,
// XDG_DATA_HOME and the ODBC configuration of the program pointing into it.
#include "BaseSqlite.h"
#include "Creacion.h"
#include "runtime/Conversion.h"
#include "store/Conexion.h"
#include "store/Recordset.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QtTest>
#include <csignal>
#include <functional>
#include <memory>
#include <sqlite3.h>
#include <sys/resource.h>

namespace {

struct Resultado {
    int estado = -1;    // -1: it did not end by itself
    bool murio = false; // ended by a signal
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

} // namespace

class TstCuentacorrienteDb : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void initCreaYRegistra_data();
    void initCreaYRegistra();
    void initSobreBaseExistenteLaConservaYReregistra();
    void creacionFallidaNoDejaArchivo();
    void tiendaDeEjemplo_data();
    void tiendaDeEjemplo();
    void statusInforma();
    void statusAvisaSinFKSupport_data();
    void statusAvisaSinFKSupport();
    void backupConLaBaseEnUso_data();
    void backupConLaBaseEnUso();
    void rechazaSinTocarNada_data();
    void rechazaSinTocarNada();
    void backupCortadoNoDejaLaCopia_data();
    void backupCortadoNoDejaLaCopia();
    void initDejaLaBaseEnSuArchivo_data();
    void initDejaLaBaseEnSuArchivo();
    void medioDeSoloLectura_data();
    void medioDeSoloLectura();

private:
    // Runs the program in the case's folder; `enElHijo` runs in the child just before the program.
    Resultado correr(const QStringList& args, const std::function<void()>& enElHijo = {}) const;
    // Runs it in a mount namespace of its own (unshare -Urm, which needs no root where the kernel lets
    // users have one), after the shell commands `montar` (a small disk, read-only media nobody else
    // sees) and with `despues` run once it has ended, while those mounts still stand.
    Resultado correrConMontajes(const QString& montar, const QStringList& args,
                                const QString& despues = {}) const;
    // Whether this machine lets the tests have mounts of their own.
    static bool hayMontajesPropios();
    QString ruta(const QString& nombre) const { return dir_->filePath(nombre); }
    QString odbcIni() const { return ruta(QStringLiteral("odbc.ini")); }
    QString archivoPredeterminado() const { return ruta(QStringLiteral("datos/cuentacorriente/brenal.db")); }
    // A database made by the program at `archivo`.
    void crear(const QString& archivo, bool demo);
    // DSNBrenal in odbc.ini: the SQLite3 driver's file on `archivo`, and nothing left of an earlier entry.
    void dsnApuntaA(const QString& archivo) {
        auto dsn = seccionIni(odbcIni(), QStringLiteral("DSNBrenal"));
        const QString driver = dsn.take(QStringLiteral("Driver"));
        QVERIFY2(QFileInfo(driver).isFile() && driver.contains(QLatin1String("sqlite3odbc")),
                 qPrintable(driver));
        dsn.remove(QStringLiteral("Description"));
        QCOMPARE(
            dsn,
            (QMap<QString, QString>{
                {"Database", archivo}, {"JournalMode", "WAL"}, {"Timeout", "5000"}, {"FKSupport", "1"}}));
    }
    // Every file and folder under the case's folder, with the contents of the files.
    QMap<QString, QByteArray> archivos() const {
        QMap<QString, QByteArray> todos;
        for (QDirIterator it(dir_->path(), QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden,
                             QDirIterator::Subdirectories);
             it.hasNext();) {
            const QString archivo = it.next();
            // A reader of a database in WAL mode may leave its index and an empty log behind.
            if (archivo.endsWith("-shm") || (archivo.endsWith("-wal") && it.fileInfo().size() == 0)) continue;
            todos.insert(archivo, contenido(archivo));
        }
        return todos;
    }

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
    // The same for the store layer in this process; nothing else here reads them.
    for (const char* variable : {"HOME", "ODBCINI", "ODBCSYSINI"})
        qputenv(variable, entorno_.value(QLatin1String(variable)).toLocal8Bit());
}

void TstCuentacorrienteDb::cleanup() {
    dir_.reset();
}

Resultado TstCuentacorrienteDb::correr(const QStringList& args, const std::function<void()>& enElHijo) const {
    QProcess p;
    p.setProcessEnvironment(entorno_);
    p.setWorkingDirectory(dir_->path());
    if (enElHijo) p.setChildProcessModifier(enElHijo);
    p.start(QStringLiteral(CC_DB_TOOL), args);
    Resultado r;
    if (!p.waitForFinished(60000)) return r;
    r.murio = p.exitStatus() != QProcess::NormalExit;
    if (r.murio) return r;
    r.estado = p.exitCode();
    r.salida = QString::fromUtf8(p.readAllStandardOutput());
    r.errores = QString::fromUtf8(p.readAllStandardError());
    return r;
}

Resultado TstCuentacorrienteDb::correrConMontajes(const QString& montar, const QStringList& args,
                                                  const QString& despues) const {
    QProcess p;
    p.setProcessEnvironment(entorno_);
    p.setWorkingDirectory(dir_->path());
    const QString guion = QStringLiteral("set -e\n%1\nset +e\n\"$0\" \"$@\"\nestado=$?\n%2\nexit $estado\n")
                              .arg(montar, despues);
    p.start(QStringLiteral("unshare"), QStringList{QStringLiteral("-Urm"), QStringLiteral("sh"),
                                                   QStringLiteral("-c"), guion, QStringLiteral(CC_DB_TOOL)} +
                                           args);
    Resultado r;
    if (!p.waitForFinished(60000) || p.exitStatus() != QProcess::NormalExit) return r;
    r.estado = p.exitCode();
    r.salida = QString::fromUtf8(p.readAllStandardOutput());
    r.errores = QString::fromUtf8(p.readAllStandardError());
    return r;
}

bool TstCuentacorrienteDb::hayMontajesPropios() {
    static const bool hay = [] {
        QTemporaryDir dir;
        QProcess p;
        p.start(QStringLiteral("unshare"),
                {QStringLiteral("-Urm"), QStringLiteral("sh"), QStringLiteral("-c"),
                 QStringLiteral("mount -t tmpfs -o size=64k tmpfs \"$0\" && mount --bind \"$0\" \"$0\" && "
                                "mount -o remount,bind,ro \"$0\""),
                 dir.path()});
        return p.waitForFinished(10000) && p.exitStatus() == QProcess::NormalExit && p.exitCode() == 0;
    }();
    return hay;
}

void TstCuentacorrienteDb::crear(const QString& archivo, bool demo) {
    QStringList args{QStringLiteral("init"), QStringLiteral("--file"), archivo};
    if (demo) args << QStringLiteral("--demo");
    const Resultado r = correr(args);
    QVERIFY2(r.estado == 0, qPrintable(r.errores));
}

void TstCuentacorrienteDb::initCreaYRegistra_data() {
    QTest::addColumn<QString>("xdgDataHome"); // empty: unset; @ stands for the case's folder
    QTest::addColumn<QString>("file");        // the --file argument, if any
    QTest::addColumn<QString>("esperado");    // relative to the case's folder
    const auto fila = [](const char* nombre, const char* xdg, const char* file, const char* esperado) {
        QTest::newRow(nombre) << QString(xdg) << QString(file) << QString(esperado);
    };
    fila("XDG_DATA_HOME", "@/datos", "", "datos/cuentacorriente/brenal.db");
    fila("sin XDG_DATA_HOME", "", "", ".local/share/cuentacorriente/brenal.db");
    fila("XDG_DATA_HOME relativo se ignora", "datos", "", ".local/share/cuentacorriente/brenal.db");
    fila("--file, ruta relativa, carpetas nuevas", "@/datos", "sucursal/zona 1/tienda.db",
         "sucursal/zona 1/tienda.db");
    fila("--file, ruta absoluta", "@/datos", "@/otra.db", "otra.db");
    fila("--file con puntos", "@/datos", "./a/../b/tienda.db", "b/tienda.db");
}

// An empty store of the current schema in WAL mode, and DSNBrenal registered on it.
void TstCuentacorrienteDb::initCreaYRegistra() {
    QFETCH(QString, xdgDataHome);
    QFETCH(QString, file);
    QFETCH(QString, esperado);
    if (xdgDataHome.isEmpty())
        entorno_.remove(QStringLiteral("XDG_DATA_HOME"));
    else
        entorno_.insert(QStringLiteral("XDG_DATA_HOME"), xdgDataHome.replace(u'@', dir_->path()));
    const QString archivo = QDir::cleanPath(ruta(esperado));

    QStringList args{QStringLiteral("init")};
    if (!file.isEmpty()) args << QStringLiteral("--file") << file.replace(u'@', dir_->path());
    const Resultado r = correr(args);
    QVERIFY2(r.estado == 0, qPrintable(r.errores));
    QVERIFY2(QFile::exists(archivo), qPrintable(r.salida));
    QVERIFY2(r.salida.contains(archivo), qPrintable(r.salida));
    if (!file.isEmpty()) QVERIFY(!QFile::exists(archivoPredeterminado()));

    Sqlite base(archivo);
    QCOMPARE(base.valor(QStringLiteral("PRAGMA journal_mode")), QStringLiteral("wal"));
    QCOMPARE(
        base.valor(QStringLiteral(
            "SELECT (SELECT max(Version) FROM VersionEsquema) || ' ' || (SELECT count(*) FROM Solicitud)")),
        QStringLiteral("1 0"));

    dsnApuntaA(archivo);

    // That is enough for the application's own data layer to read the rows the file holds.
    store::Conexion cn(QStringLiteral("DSN=DSNBrenal"));
    cn.Open();
    store::Recordset rs;
    rs.Open(QStringLiteral("Select Count(*) From Concepto Where Tipo Between 1 And 4"), cn);
    QCOMPARE(rs.Fields(0).Value().toInt(), 4);
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

    dsnApuntaA(archivo);
    QCOMPARE(seccionIni(odbcIni(), QStringLiteral("OtraTienda")).value(QStringLiteral("Database")),
             QStringLiteral("/srv/otra.db"));
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

// What the sample store must show a newcomer, above all balances the views give, each fact a query that
// reads 1 when it holds.
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
    QTest::newRow("recibos con cada tipo de concepto")
        << "SELECT count(DISTINCT Tipo) = 4 FROM vwAbonoSolicitud WHERE Tipo IS NOT NULL";
    QTest::newRow("factura al crédito de la solicitud pagada")
        << "SELECT count(*) >= 1 FROM Factura F JOIN FacturaDetalle D ON D.FacturaID = F.FacturaID "
           "JOIN vwBuscaSolicitud V ON V.hidID = F.SolicitudID WHERE D.EsCredito = 1 AND V.shw1200_dbl_Saldo "
           "= 0";
    QTest::newRow("nota de envío de una solicitud aprobada")
        << "SELECT count(*) >= 1 FROM NotaEnvio N JOIN Solicitud S ON S.SolicitudID = N.SolicitudID "
           "WHERE S.Estado = 1 AND N.FacturaID = 0 AND N.ReciboID = 0 "
           "AND EXISTS (SELECT 1 FROM NotaEnvioDetalle D WHERE D.NotaID = N.NotaID)";
    QTest::newRow("nada entregado de más")
        << "SELECT count(*) = 0 FROM vwSaldoXArticuloXSolicitud WHERE shw1200_int_Saldo < 0";
    QTest::newRow("todo artículo con existencia")
        << "SELECT count(*) >= 8 AND min(shw1000_dbl_Existencia) > 0 FROM vwBuscaArticulo";
    QTest::newRow("documento que paga parte de una nota")
        << "SELECT count(*) >= 1 FROM vwSaldosXNotaIngreso "
           "WHERE shw1200_dbl_Cancelado > 0 AND shw1200_dbl_Cancelado < shw1200_dbl_Total";
    QTest::newRow("fiadores con estado civil del catálogo")
        << "SELECT count(*) >= 3 AND sum(EstadoCivilID NOT IN (SELECT EstadoCivilID FROM EstadoCivil)) = 0 "
           "FROM Fiador";
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
    for (const char* linea : {"^Versión del esquema: 1$", "^Tabla +Filas$", "^Concepto +10$"})
        QVERIFY2(r.salida.contains(
                     QRegularExpression(QString::fromUtf8(linea), QRegularExpression::MultilineOption)),
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
}

void TstCuentacorrienteDb::statusAvisaSinFKSupport_data() {
    QTest::addColumn<QString>("archivo"); // relative to the case's folder
    QTest::addColumn<QString>("clave");   // the FKSupport line of DSNBrenal, if any
    QTest::addColumn<QString>("aviso");   // the line that tells how to register it again; empty: none
    QTest::newRow("FKSupport=1") << "tienda.db"
                                 << "FKSupport=1"
                                 << "";
    QTest::newRow("FKSupport=yes, que el controlador lee como 1") << "tienda.db"
                                                                  << "FKSupport=yes"
                                                                  << "";
    QTest::newRow("sin FKSupport") << "tienda.db"
                                   << ""
                                   << "init --file @/tienda.db";
    QTest::newRow("FKSupport=0") << "tienda.db"
                                 << "FKSupport=0"
                                 << "init --file @/tienda.db";
    QTest::newRow("FKSupport=no, ruta con espacios") << "mi tienda/brenal.db"
                                                     << "FKSupport=no"
                                                     << "init --file '@/mi tienda/brenal.db'";
}

// A DSNBrenal written by hand without the option the database expects is still reported in full, with
// a warning that names the option and how to register the data source again; done so, the warning
// goes.
void TstCuentacorrienteDb::statusAvisaSinFKSupport() {
    QFETCH(QString, archivo);
    QFETCH(QString, clave);
    QFETCH(QString, aviso);
    const QString enDisco = ruta(archivo);
    QVERIFY(QDir().mkpath(QFileInfo(enDisco).absolutePath()));
    crear(enDisco, false);
    escribir(odbcIni(),
             QStringLiteral("[DSNBrenal]\nDriver=SQLite3\nDatabase=%1\n%2\n").arg(enDisco, clave).toUtf8());

    const QRegularExpression lineaDeAviso(
        QStringLiteral("^Aviso: el origen de datos DSNBrenal no tiene FKSupport=1, .*$"),
        QRegularExpression::MultilineOption);
    Resultado r = correr({QStringLiteral("status")});
    QVERIFY2(r.estado == 0, qPrintable(r.errores));
    QVERIFY2(r.salida.contains(
                 QRegularExpression(QStringLiteral("^Concepto +10$"), QRegularExpression::MultilineOption)),
             qPrintable(r.salida));
    QCOMPARE(r.salida.contains(lineaDeAviso), !aviso.isEmpty());
    if (aviso.isEmpty()) return;
    const QString comando = aviso.replace(u'@', dir_->path());
    QVERIFY2(r.salida.contains(QRegularExpression(
                 QStringLiteral("^.*: cuentacorriente-db %1$").arg(QRegularExpression::escape(comando)),
                 QRegularExpression::MultilineOption)),
             qPrintable(r.salida));

    crear(enDisco, false); // what the warning says to run: the database stays, DSNBrenal is written anew
    r = correr({QStringLiteral("status")});
    QVERIFY2(r.estado == 0 && !r.salida.contains(lineaDeAviso), qPrintable(r.salida + r.errores));
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
    QCOMPARE(leida.filasPorTabla(), otro.filasPorTabla()); // the committed bank in, the other out
    QCOMPARE(leida.valor(QStringLiteral("SELECT group_concat(Saldo, ' ') FROM vwBuscaSolicitud")),
             otro.valor(QStringLiteral("SELECT group_concat(Saldo, ' ') FROM vwBuscaSolicitud")));
}

// "tienda F", "texto F", "ajena F" and "vacio F" put at F a database of the store, a text file, another
// program's SQLite database or an empty file; "ini TEXT" writes odbc.ini, "sin-ini" removes it. @ stands
// for the case's folder.
void TstCuentacorrienteDb::rechazaSinTocarNada_data() {
    QTest::addColumn<QStringList>("antes");
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<QString>("motivo"); // in the message; empty: any message
    const auto fila = [](const char* nombre, const QStringList& antes, const QStringList& args,
                         const char* motivo) {
        QTest::newRow(nombre) << antes << args << QString::fromUtf8(motivo);
    };
    const QStringList initEnBrenal{"init", "--file", "@/brenal.db"};
    fila("init --demo sobre una base de la tienda", {"tienda brenal.db"},
         initEnBrenal + QStringList{"--demo"}, "@/brenal.db");
    fila("init sobre un archivo de texto", {"texto brenal.db"}, initEnBrenal, "@/brenal.db");
    fila("init sobre una base SQLite ajena", {"ajena brenal.db"}, initEnBrenal, "@/brenal.db");
    fila("init sobre un archivo vacío", {"vacio brenal.db"}, initEnBrenal, "@/brenal.db");

    fila("status sin odbc.ini", {"tienda brenal.db", "sin-ini"}, {"status"}, "no está registrado");
    fila("status con otro origen, no DSNBrenal",
         {"tienda brenal.db", "ini [OtraTienda]\nDriver=SQLite3\nDatabase=@/brenal.db\n"}, {"status"},
         "no está registrado");
    fila("status, archivo que no existe", {"ini [DSNBrenal]\nDriver=SQLite3\nDatabase=@/perdida.db\n"},
         {"status"}, "no existe");
    fila("status, archivo que no es base",
         {"texto texto.db", "ini [DSNBrenal]\nDriver=SQLite3\nDatabase=@/texto.db\n"}, {"status"},
         "no es una base de datos");
    fila("status sin Database", {"ini [DSNBrenal]\nDriver=SQLite3\n"}, {"status"}, "Database");

    const QStringList backup{"backup", "@/copia.db", "--file"};
    fila("backup: la copia ya existe", {"tienda tienda.db", "texto copia.db"},
         backup + QStringList{"@/tienda.db"}, "");
    fila("backup: el origen no es una base", {"texto texto.db"}, backup + QStringList{"@/texto.db"}, "");
    fila("backup: el origen no existe", {}, backup + QStringList{"@/perdida.db"}, "");

    fila("sin orden", {}, {}, "");
    fila("orden desconocida", {}, {"crear"}, "");
    fila("opción desconocida", {}, {"init", "--forzar"}, "");
    fila("--file sin ruta", {}, {"init", "--file"}, "");
    fila("status con --demo", {}, {"status", "--demo"}, "");
    fila("backup sin archivo", {}, {"backup"}, "");
    fila("init con argumento de más", {}, {"init", "tienda.db"}, "");
}

// A command that can't be done, or is not understood, says why and changes no file: no database, no
// data source, no copy.
void TstCuentacorrienteDb::rechazaSinTocarNada() {
    QFETCH(QStringList, antes);
    QFETCH(QStringList, args);
    QFETCH(QString, motivo);
    const auto conCarpeta = [this](QString texto) { return texto.replace(u'@', dir_->path()); };
    for (const QString& paso : antes) {
        const QString clase = paso.section(u' ', 0, 0), resto = conCarpeta(paso.section(u' ', 1));
        if (clase == "tienda") crear(ruta(resto), false);
        if (clase == "texto") escribir(ruta(resto), "Cuentas de enero\n");
        if (clase == "vacio") escribir(ruta(resto), {});
        if (clase == "ini") escribir(odbcIni(), resto.toUtf8());
        if (clase == "sin-ini") QVERIFY(QFile::remove(odbcIni()));
        if (clase == "ajena") {
            sqlite3* db = nullptr;
            sqlite3_open(QFile::encodeName(ruta(resto)).constData(), &db);
            sqlite3_exec(db, "CREATE TABLE Notas (Texto TEXT); INSERT INTO Notas VALUES ('x')", nullptr,
                         nullptr, nullptr);
            sqlite3_close(db);
        }
    }
    const QMap<QString, QByteArray> previo = archivos();
    for (QString& a : args)
        a = conCarpeta(a);

    const Resultado r = correr(args);
    QCOMPARE(r.estado, 1);
    QCOMPARE(r.salida, QString());
    QVERIFY2(!r.errores.isEmpty() && r.errores.contains(conCarpeta(motivo)), qPrintable(r.errores));
    QMap<QString, QByteArray> despues = archivos();
    // Looking DSNBrenal up, unixODBC leaves an empty odbc.ini where there was none.
    if (!previo.contains(odbcIni()) && despues.value(odbcIni()) == QByteArray()) despues.remove(odbcIni());
    QCOMPARE(despues, previo);
}

void TstCuentacorrienteDb::backupCortadoNoDejaLaCopia_data() {
    QTest::addColumn<bool>("muere"); // killed by the system at the limit, or only refused the write
    QTest::newRow("el programa muere a mitad de la copia") << true;
    QTest::newRow("la escritura falla a mitad de la copia") << false;
}

// A copy cut short never stands under the name asked for. The program runs with a limit on the size
// of the files it writes, well under the database's: past it the system kills it (SIGXFSZ), as a
// power cut or a kill would, or, with that signal ignored, refuses the write as a full disk does.
// Killed, it leaves at most its partial copy under a name that says so; failing, it leaves nothing.
void TstCuentacorrienteDb::backupCortadoNoDejaLaCopia() {
    QFETCH(bool, muere);
    const QString archivo = ruta(QStringLiteral("tienda.db"));
    crear(archivo, true);
    constexpr rlim_t limite = 64 * 1024;
    QVERIFY(QFileInfo(archivo).size() > 2 * qint64(limite));
    const QString carpeta = ruta(QStringLiteral("copias"));
    QVERIFY(QDir().mkpath(carpeta));

    const Resultado r = correr(
        {QStringLiteral("backup"), QStringLiteral("copias/copia.db"), QStringLiteral("--file"), archivo},
        [muere] {
            const rlimit tamano{limite, limite}, nucleo{0, 0};
            setrlimit(RLIMIT_FSIZE, &tamano);
            setrlimit(RLIMIT_CORE, &nucleo);
            signal(SIGXFSZ, muere ? SIG_DFL : SIG_IGN);
        });
    const QFileInfoList quedan = QDir(carpeta).entryInfoList(QDir::Files | QDir::Hidden);
    QStringList nombres;
    for (const QFileInfo& f : quedan)
        nombres << f.fileName() + QLatin1Char('=') + QString::number(f.size());
    if (muere) {
        QVERIFY2(r.murio, qPrintable(r.salida + r.errores));
        // Cut in the middle of the copy: what it had written stays, under its own name.
        QVERIFY2(quedan.size() >= 1 && quedan.size() <= 2, qPrintable(nombres.join(u' ')));
        for (const QFileInfo& f : quedan)
            QVERIFY2(f.fileName().startsWith(QLatin1String("copia.db.incompleta-")),
                     qPrintable(nombres.join(u' ')));
        QVERIFY2(quedan.first().size() > 0, qPrintable(nombres.join(u' ')));
    } else {
        QCOMPARE(r.estado, 1);
        QVERIFY2(r.errores.contains(ruta(QStringLiteral("copias/copia.db"))), qPrintable(r.errores));
        QVERIFY2(quedan.isEmpty(), qPrintable(nombres.join(u' ')));
    }
    QVERIFY(!QFileInfo::exists(ruta(QStringLiteral("copias/copia.db"))));

    // Done again without the limit, the copy is whole and nothing partial is added.
    const Resultado otra = correr(
        {QStringLiteral("backup"), QStringLiteral("copias/copia.db"), QStringLiteral("--file"), archivo});
    QVERIFY2(otra.estado == 0, qPrintable(otra.errores));
    QCOMPARE(QDir(carpeta).entryList(QDir::Files | QDir::Hidden).size(), quedan.size() + 1);
    Sqlite copia(ruta(QStringLiteral("copias/copia.db")));
    QCOMPARE(copia.valor(QStringLiteral("PRAGMA integrity_check")), QStringLiteral("ok"));
    QCOMPARE(copia.filasPorTabla(), Sqlite(archivo).filasPorTabla());
}

void TstCuentacorrienteDb::initDejaLaBaseEnSuArchivo_data() {
    QTest::addColumn<bool>("demo");
    QTest::addColumn<bool>("casiLleno"); // on a disk with room for the -wal file, not for the database too
    for (const bool demo : {false, true})
        for (const bool casiLleno : {false, true})
            QTest::addRow("%s, %s", demo ? "con datos de ejemplo" : "vacía",
                          casiLleno ? "disco casi lleno" : "disco con espacio")
                << demo << casiLleno;
}

// Once init says the database is made, its file alone is the whole database: copied without the -wal
// file, it holds every row. On a disk that takes what the scripts write (into the -wal file) but not
// that moved into the database, init fails saying so and leaves neither database nor data source.
void TstCuentacorrienteDb::initDejaLaBaseEnSuArchivo() {
    QFETCH(bool, demo);
    QFETCH(bool, casiLleno);
    if (casiLleno && !hayMontajesPropios())
        QSKIP("this machine lets no user mount a small disk of their own (unshare -Urm)");
    const QString referencia = ruta(QStringLiteral("referencia/brenal.db"));
    QVERIFY(QDir().mkpath(ruta(QStringLiteral("referencia"))));
    crear(referencia, demo);
    const QStringList filas = Sqlite(referencia).filasPorTabla();
    QFile::remove(odbcIni());

    const QString disco = ruta(QStringLiteral("disco"));
    const QString archivo = disco + QStringLiteral("/brenal.db");
    QVERIFY(QDir().mkpath(disco));
    QStringList args{QStringLiteral("init"), QStringLiteral("--file"), archivo};
    if (demo) args << QStringLiteral("--demo");
    if (!casiLleno) {
        const Resultado r = correr(args);
        QVERIFY2(r.estado == 0, qPrintable(r.errores));
        const QFileInfo registro(archivo + QStringLiteral("-wal"));
        QVERIFY(!registro.exists() || registro.size() == 0);
        const QString solo = ruta(QStringLiteral("solo/brenal.db"));
        QVERIFY(QDir().mkpath(ruta(QStringLiteral("solo"))) && QFile::copy(archivo, solo));
        Sqlite copia(solo);
        QCOMPARE(copia.valor(QStringLiteral("PRAGMA integrity_check")), QStringLiteral("ok"));
        QCOMPARE(copia.filasPorTabla(), filas);
        return;
    }
    // Room for the -wal file (the database's pages and a header for each), its index and half the
    // database: what the checkpoint writes into the database runs out of room. What the small disk
    // holds at the end is copied out before it goes.
    const qint64 tamano = QFileInfo(referencia).size();
    const qint64 kb = (tamano + tamano / 4096 * 24 + 32 + 32768 + tamano / 2 + 4095) / 4096 * 4;
    const QString quedo = ruta(QStringLiteral("quedo"));
    QVERIFY(QDir().mkpath(quedo));
    const Resultado r =
        correrConMontajes(QStringLiteral("mount -t tmpfs -o size=%1k tmpfs '%2'").arg(kb).arg(disco), args,
                          QStringLiteral("cp -a '%1/.' '%2/'").arg(disco, quedo));
    QCOMPARE(r.estado, 1);
    QVERIFY2(r.errores.contains(archivo) && r.errores.contains(QLatin1String("espacio")),
             qPrintable(r.errores));
    QCOMPARE(QDir(quedo).entryList(QDir::Files | QDir::Hidden), QStringList());
    QVERIFY(seccionIni(odbcIni(), QStringLiteral("DSNBrenal")).isEmpty());
}

void TstCuentacorrienteDb::medioDeSoloLectura_data() {
    QTest::addColumn<QString>("soloLectura"); // what is mounted read-only, under the case's folder
    QTest::addColumn<QStringList>("args");    // @ stands for the case's folder
    QTest::addColumn<int>("estado");
    QTest::addColumn<QString>("dice"); // in what the program writes
    const auto fila = [](const char* nombre, const char* soloLectura, const QStringList& args, int estado,
                         const char* dice) {
        QTest::newRow(nombre) << QString::fromUtf8(soloLectura) << args << estado << QString::fromUtf8(dice);
    };
    const QStringList initTienda{"init", "--file", "@/tienda/brenal.db"};
    fila("status, carpeta", "tienda", {"status"}, 1, "en un medio de solo lectura (la carpeta @/tienda no");
    fila("status, archivo", "tienda/brenal.db", {"status"}, 0,
         "Aviso: la base de datos está en un medio de solo lectura (el archivo no admite escritura)");
    fila("backup desde una carpeta", "tienda", {"backup", "@/copia.db"}, 1,
         "en un medio de solo lectura (la carpeta @/tienda no");
    fila("backup desde un archivo", "tienda/brenal.db", {"backup", "@/copia.db"}, 0,
         "Copia de @/tienda/brenal.db");
    fila("backup a una carpeta", "copias", {"backup", "@/copias/copia.db"}, 1,
         "La carpeta @/copias no admite escritura");
    fila("init sobre la base, carpeta", "tienda", initTienda, 1,
         "en un medio de solo lectura (la carpeta @/tienda no");
    fila("init sobre la base, archivo", "tienda/brenal.db", initTienda, 1,
         "en un medio de solo lectura (el archivo no admite escritura)");
    fila("init de una base nueva", "copias", {"init", "--file", "@/copias/nueva/brenal.db"}, 1,
         "La carpeta @/copias no admite escritura");
}

// A store's database on read-only media is said to be so, never "not a database": what can be read is
// read (with a warning that the application could not save), what cannot is refused naming the file
// and what is read-only, and nothing changes: no database, data source or copy.
void TstCuentacorrienteDb::medioDeSoloLectura() {
    QFETCH(QString, soloLectura);
    QFETCH(QStringList, args);
    QFETCH(int, estado);
    QFETCH(QString, dice);
    if (!hayMontajesPropios())
        QSKIP("this machine lets no user mount read-only media of their own (unshare -Urm)");
    QVERIFY(QDir().mkpath(ruta(QStringLiteral("tienda"))) && QDir().mkpath(ruta(QStringLiteral("copias"))));
    crear(ruta(QStringLiteral("tienda/brenal.db")), true);
    const auto conCarpeta = [this](QString texto) { return texto.replace(u'@', dir_->path()); };
    for (QString& a : args)
        a = conCarpeta(a);
    const QMap<QString, QByteArray> previo = archivos();

    const QString medio = ruta(soloLectura);
    const Resultado r = correrConMontajes(
        QStringLiteral("mount --bind '%1' '%1'\nmount -o remount,bind,ro '%1'").arg(medio), args);
    QCOMPARE(r.estado, estado);
    const QString escrito = r.salida + r.errores;
    QVERIFY2(escrito.contains(conCarpeta(dice)), qPrintable(escrito));
    QVERIFY2(!escrito.contains(QLatin1String("no es una base de datos")), qPrintable(escrito));
    QMap<QString, QByteArray> despues = archivos();
    if (estado == 0 && args.first() == QLatin1String("backup")) {
        const bool copiada = despues.remove(args.at(1)) == 1;
        QVERIFY(copiada);
        QCOMPARE(Sqlite(args.at(1)).filasPorTabla(),
                 Sqlite(ruta(QStringLiteral("tienda/brenal.db"))).filasPorTabla());
    }
    QCOMPARE(despues.keys(), previo.keys());
    QCOMPARE(despues, previo);
}

QTEST_GUILESS_MAIN(TstCuentacorrienteDb)
#include "tst_cuentacorriente_db.moc"
