#include "BaseDePrueba.h"

#include "EsquemaDelProyecto.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTextStream>
#include <sqlite3.h>

namespace {

void guardar(const char* variable, QByteArray& valor, bool& habia) {
    habia = qEnvironmentVariableIsSet(variable);
    valor = qgetenv(variable);
}

void restaurar(const char* variable, const QByteArray& valor, bool habia) {
    if (habia)
        qputenv(variable, valor);
    else
        qunsetenv(variable);
}

struct Sqlite {
    explicit Sqlite(const QString& archivo) {
        if (sqlite3_open(archivo.toUtf8().constData(), &db) != SQLITE_OK)
            qFatal("sqlite3_open: %s", sqlite3_errmsg(db));
        sqlite3_exec(db, "PRAGMA foreign_keys = ON", nullptr, nullptr, nullptr);
    }
    ~Sqlite() { sqlite3_close(db); }
    sqlite3* db = nullptr;
};

QString ejecutarEn(const QString& archivo, const QString& script) {
    Sqlite s(archivo);
    char* error = nullptr;
    if (sqlite3_exec(s.db, script.toUtf8().constData(), nullptr, nullptr, &error) == SQLITE_OK) return {};
    const QString mensaje = QString::fromUtf8(error);
    sqlite3_free(error);
    return mensaje;
}

// The schema is built once per test program into a template file; every database then starts as a
// copy of it, which keeps a test of many cases quick.
QString plantillaConEsquema() {
    static QTemporaryDir dir;
    static const QString archivo = [] {
        const QString plantilla = dir.filePath(QStringLiteral("plantilla.db"));
        const QString script =
            QStringLiteral("PRAGMA journal_mode = WAL;") + scriptDelEsquema(BaseDePrueba::rutaEsquema());
        if (const QString error = ejecutarEn(plantilla, script); !error.isEmpty())
            qFatal("schema: %s", qPrintable(error));
        return plantilla;
    }();
    return archivo;
}

} // namespace

BaseDePrueba::BaseDePrueba(bool esquema, FKSupport fkSupport, int esperaMs)
    : fkSupport_(fkSupport)
    , esperaMs_(esperaMs) {
    if (!dir_.isValid()) qFatal("no temporary directory");
    guardar("ODBCSYSINI", odbcSysIni_, habiaOdbcSysIni_);
    guardar("ODBCINI", odbcIni_, habiaOdbcIni_);
    guardar("HOME", home_, habiaHome_);
    escribirConfiguracionOdbc();
    qputenv("ODBCSYSINI", QFile::encodeName(dir_.path()));
    qputenv("ODBCINI", QFile::encodeName(dir_.filePath(QStringLiteral("odbc.ini"))));
    qputenv("HOME", QFile::encodeName(dir_.path()));
    if (esquema && !QFile::copy(plantillaConEsquema(), archivo())) qFatal("cannot copy the schema template");
    sqlite(QStringLiteral("PRAGMA journal_mode = WAL;"));
}

BaseDePrueba::~BaseDePrueba() {
    restaurar("ODBCSYSINI", odbcSysIni_, habiaOdbcSysIni_);
    restaurar("ODBCINI", odbcIni_, habiaOdbcIni_);
    restaurar("HOME", home_, habiaHome_);
}

QString BaseDePrueba::archivo() const {
    return dir_.filePath(QStringLiteral("brenal.db"));
}

QString BaseDePrueba::rutaEsquema() {
    return QStringLiteral(CC_SCHEMA_DIR);
}

QString BaseDePrueba::controladorSqlite() {
    return QStringLiteral(CC_SQLITE3_ODBC_DRIVER);
}

void BaseDePrueba::reescribirOrigen(const QStringList& claves, const QString& nombre) const {
    QFile odbc(dir_.filePath(QStringLiteral("odbc.ini")));
    if (!odbc.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text))
        qFatal("cannot write odbc.ini");
    QTextStream(&odbc) << "[" << nombre << "]\n" << claves.join(QLatin1Char('\n')) << "\n";
}

void BaseDePrueba::escribirConfiguracionOdbc() const {
    QFile odbc(dir_.filePath(QStringLiteral("odbc.ini")));
    if (!odbc.open(QIODevice::WriteOnly | QIODevice::Text)) qFatal("cannot write odbc.ini");
    QTextStream(&odbc) << "[DSNBrenal]\n"
                       << "Description=Base de prueba\n"
                       << "Driver=" << CC_SQLITE3_ODBC_DRIVER << "\n"
                       << "Database=" << archivo() << "\n"
                       << "JournalMode=WAL\nTimeout=" << esperaMs_ << "\n";
    if (fkSupport_ != FKSupport::Ausente)
        QTextStream(&odbc) << "FKSupport=" << (fkSupport_ == FKSupport::Activado ? 1 : 0) << "\n";
    QFile instalados(dir_.filePath(QStringLiteral("odbcinst.ini")));
    if (!instalados.open(QIODevice::WriteOnly | QIODevice::Text)) qFatal("cannot write odbcinst.ini");
    QTextStream(&instalados) << "[SQLite3]\nDescription=SQLite3 ODBC Driver\nDriver="
                             << CC_SQLITE3_ODBC_DRIVER << "\n";
}

void BaseDePrueba::sqlite(const QString& script) const {
    const QString error = intentar(script);
    if (!error.isEmpty()) qFatal("sqlite: %s\n%s", qPrintable(error), qPrintable(script));
}

QString BaseDePrueba::intentar(const QString& script) const {
    return ejecutarEn(archivo(), script);
}

QString BaseDePrueba::valor(const QString& consulta) const {
    Sqlite s(archivo());
    sqlite3_stmt* st = nullptr;
    if (sqlite3_prepare_v2(s.db, consulta.toUtf8().constData(), -1, &st, nullptr) != SQLITE_OK)
        qFatal("sqlite: %s\n%s", sqlite3_errmsg(s.db), qPrintable(consulta));
    QString r;
    if (sqlite3_step(st) == SQLITE_ROW && sqlite3_column_type(st, 0) != SQLITE_NULL)
        r = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st, 0)));
    sqlite3_finalize(st);
    return r;
}

QStringList BaseDePrueba::contenido(const QString& carpeta) {
    QStringList todo;
    for (QDirIterator it(carpeta, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden,
                         QDirIterator::Subdirectories);
         it.hasNext();)
        todo << it.next();
    todo.sort();
    return todo;
}
