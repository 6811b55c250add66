#include "store/Conexion.h"

#include "store/ErrorBase.h"
#include "store/Fallo.h"
#include "store/OpcionesSqlite.h"
#include "store/OrigenConfigurado.h"
#include "store/sql/DialectoSQLite.h"
#include "store/sql/Parser.h"

#include <QAtomicInt>
#include <QHash>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlField>
#include <QSqlQuery>
#include <QSqlRecord>
#include <sql.h>
#include <sqlext.h>

namespace store {
namespace {

// The name the ODBC driver gives its database ("SQLite", "PostgreSQL", ...).
QString nombreGestor(const QSqlDatabase& bd) {
    const QVariant manejador = bd.driver()->handle();
    if (!manejador.isValid() || manejador.data() == nullptr) return {};
    SQLHDBC hdbc = *static_cast<SQLHDBC const*>(manejador.data());
    SQLCHAR nombre[128] = {};
    SQLSMALLINT largo = 0;
    if (!SQL_SUCCEEDED(SQLGetInfo(hdbc, SQL_DBMS_NAME, nombre, sizeof nombre, &largo))) return {};
    return QString::fromUtf8(reinterpret_cast<const char*>(nombre));
}

std::unique_ptr<sql::Dialecto> dialectoPara(const QString& gestor, const QString& origen) {
    if (gestor.compare(QLatin1String("SQLite"), Qt::CaseInsensitive) == 0)
        return std::make_unique<sql::DialectoSQLite>();
    throw Fallo(FalloConexion,
                QStringLiteral("El origen de datos %1 lleva a una base de datos \"%2\", que este sistema "
                               "no sabe usar.")
                    .arg(origen, gestor));
}

QString nombreUnico() {
    static QAtomicInt contador;
    return QStringLiteral("cc-conexion-%1").arg(contador.fetchAndAddRelaxed(1) + 1);
}

// Column types, read once per table from the driver's catalogue.
class CatalogoDeBase : public sql::Catalogo {
public:
    explicit CatalogoDeBase(const QString& conexion)
        : conexion_(conexion) {}

    std::optional<QMetaType::Type> tipoColumna(const QString& tabla, const QString& columna) const override {
        const QSqlRecord& r = registro(tabla);
        const int i = r.indexOf(columna);
        if (i < 0) return std::nullopt;
        return static_cast<QMetaType::Type>(r.field(i).metaType().id());
    }

    QStringList columnas(const QString& tabla) const override {
        const QSqlRecord& r = registro(tabla);
        QStringList nombres;
        for (int i = 0; i < r.count(); ++i)
            nombres << r.fieldName(i);
        return nombres;
    }

private:
    const QSqlRecord& registro(const QString& tabla) const {
        const QString clave = tabla.toLower();
        auto it = tablas_.find(clave);
        if (it == tablas_.end())
            it = tablas_.insert(clave, QSqlDatabase::database(conexion_, false).record(tabla));
        return *it;
    }

    QString conexion_;
    mutable QHash<QString, QSqlRecord> tablas_;
};

} // namespace

struct Conexion::Datos {
    QString cadena;
    QString origen; // the data source, as opened
    QString nombreConexion = nombreUnico();
    std::unique_ptr<sql::Dialecto> dialecto;
    std::unique_ptr<CatalogoDeBase> catalogo;
    int nivel = 0;
    bool escribiendo = false; // the open transaction holds the write lock

    // Which connection of this program holds each data source's write lock.
    static QHash<QString, const Datos*>& titulares() {
        static QHash<QString, const Datos*> t;
        return t;
    }
    void tomarCerrojo() {
        escribiendo = true;
        titulares().insert(origen.toLower(), this);
    }
    void soltarCerrojo() {
        if (escribiendo) titulares().remove(origen.toLower());
        escribiendo = false;
    }
    // Runs one statement of the database's own SQL, outside the translator.
    void ejecutarPropia(const QString& sentencia) {
        QSqlQuery q(bd());
        if (!q.exec(sentencia)) throw falloDeBase(q.lastError());
    }

    ~Datos() {
        soltarCerrojo();
        if (QSqlDatabase::contains(nombreConexion)) {
            QSqlDatabase::database(nombreConexion, false).close();
            QSqlDatabase::removeDatabase(nombreConexion);
        }
    }
    bool abierta() const {
        return QSqlDatabase::contains(nombreConexion) &&
               QSqlDatabase::database(nombreConexion, false).isOpen();
    }
    QSqlDatabase bd() const { return QSqlDatabase::database(nombreConexion, false); }
};

Conexion::Conexion()
    : d_(std::make_shared<Datos>()) {
}

Conexion::Conexion(QString cadenaConexion)
    : Conexion() {
    d_->cadena = std::move(cadenaConexion);
}

QString Conexion::ConnectionString() const {
    return d_->cadena;
}

void Conexion::setConnectionString(const QString& cadena) {
    if (State() == adStateOpen)
        throw Fallo(FalloOperacionNoPermitida,
                    QStringLiteral("No se permite la operación cuando el objeto está abierto."));
    d_->cadena = cadena;
}

QString Conexion::nombreOrigen(const QString& cadena) {
    const QStringList partes = cadena.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (const QString& parte : partes) {
        const qsizetype igual = parte.indexOf(QLatin1Char('='));
        if (igual < 0) continue;
        const QString clave = parte.left(igual).trimmed();
        if (clave.compare(QLatin1String("DSN"), Qt::CaseInsensitive) == 0 ||
            clave.compare(QLatin1String("Data Source"), Qt::CaseInsensitive) == 0)
            return parte.mid(igual + 1).trimmed();
    }
    return cadena.contains(QLatin1Char('=')) ? QString() : cadena.trimmed();
}

void Conexion::Open(const QString& cadena, const QString& usuario, const QString& clave) {
    if (State() == adStateOpen)
        throw Fallo(FalloOperacionNoPermitida,
                    QStringLiteral("No se permite la operación cuando el objeto está abierto."));
    if (!cadena.isEmpty()) d_->cadena = cadena;
    const QString origen = nombreOrigen(d_->cadena);
    if (origen.isEmpty())
        throw Fallo(
            FalloConexion,
            QStringLiteral("No se encontró el nombre del origen de datos en \"%1\".").arg(d_->cadena));

    // What odbc.ini says is looked at first: the SQLite driver needs options of its own.
    const OrigenConfigurado configurado = leerOrigenConfigurado(origen);
    const QString paraElControlador = configurado.deSqlite() ? cadenaParaSqlite(origen, configurado) : origen;

    QString error;
    {
        QSqlDatabase bd = QSqlDatabase::contains(d_->nombreConexion)
                              ? QSqlDatabase::database(d_->nombreConexion, false)
                              : QSqlDatabase::addDatabase(QStringLiteral("QODBC"), d_->nombreConexion);
        // Qt's ODBC driver writes "DSN=" itself: it takes the bare name, and any options after it.
        bd.setDatabaseName(paraElControlador);
        if (bd.open(usuario, clave)) {
            try {
                d_->dialecto = dialectoPara(nombreGestor(bd), origen);
            } catch (...) {
                bd.close();
                throw;
            }
        } else {
            error = textoError(bd.lastError());
        }
    }
    if (!error.isNull()) {
        QSqlDatabase::removeDatabase(d_->nombreConexion);
        throw Fallo(FalloConexion, error);
    }
    d_->catalogo = std::make_unique<CatalogoDeBase>(d_->nombreConexion);
    d_->origen = origen;
    d_->nivel = 0;
}

void Conexion::Close() {
    if (State() != adStateOpen)
        throw Fallo(FalloObjetoCerrado,
                    QStringLiteral("No se permite la operación cuando el objeto está cerrado."));
    if (d_->nivel > 0) {
        try {
            RollbackTrans();
        } catch (const Fallo&) {
            // Closing drops the transaction all the same.
        }
    }
    d_->bd().close();
}

int Conexion::State() const {
    return d_->abierta() ? adStateOpen : adStateClosed;
}

Conexion::Datos& Conexion::datosAbiertos() const {
    if (!d_->abierta())
        throw Fallo(FalloObjetoCerrado,
                    QStringLiteral("No se permite la operación cuando el objeto está cerrado."));
    return *d_;
}

QString Conexion::traducir(const QString& sentencia) const {
    Datos& d = datosAbiertos();
    return d.dialecto->traducir(sql::analizar(sentencia), d.catalogo.get());
}

long Conexion::Execute(const QString& sentencia) {
    Datos& d = datosAbiertos();
    // Parsed first: a statement the translator refuses takes no lock.
    const sql::Sentencia analizada = sql::analizar(sentencia);
    const QString traducida = d.dialecto->traducir(analizada, d.catalogo.get());
    if (analizada.tipo != sql::Sentencia::Tipo::Select) prepararEscritura();
    QSqlQuery q(d.bd());
    if (!q.exec(traducida)) throw falloDeBase(q.lastError());
    return q.isSelect() ? -1 : q.numRowsAffected();
}

int Conexion::BeginTrans() {
    Datos& d = datosAbiertos();
    if (d.nivel > 0)
        throw Fallo(
            FalloOperacionNoPermitida,
            QStringLiteral(
                "Ya hay una transacción abierta en esta conexión: no se admiten transacciones anidadas."));
    if (!d.dialecto->cerrojoAlEscribir()) {
        QSqlDatabase bd = d.bd();
        if (!bd.transaction()) throw falloDeBase(bd.lastError());
    }
    d.nivel = 1;
    return d.nivel;
}

void Conexion::prepararEscritura() {
    Datos& d = datosAbiertos();
    if (!d.dialecto->cerrojoAlEscribir() || d.escribiendo) return;
    const Datos* titular = Datos::titulares().value(d.origen.toLower());
    if (titular && titular != &d)
        throw Fallo(FalloBaseOcupada,
                    QStringLiteral("La base de datos está ocupada: otra pantalla tiene estos datos en una "
                                   "transacción abierta. Termine esa pantalla (Guardar o Cancelar) y "
                                   "vuelva a intentarlo."));
    if (d.nivel == 0) return;
    d.ejecutarPropia(d.dialecto->inicioEscritura());
    d.tomarCerrojo();
}

bool Conexion::escribiendo() const {
    return d_->escribiendo;
}

void Conexion::CommitTrans() {
    Datos& d = datosAbiertos();
    if (d.nivel == 0)
        throw Fallo(FalloOperacionNoPermitida, QStringLiteral("No hay ninguna transacción activa."));
    if (d.escribiendo) {
        d.ejecutarPropia(QStringLiteral("COMMIT"));
        d.soltarCerrojo();
    } else if (!d.dialecto->cerrojoAlEscribir()) {
        QSqlDatabase bd = d.bd();
        if (!bd.commit()) throw falloDeBase(bd.lastError());
    }
    d.nivel = 0;
}

void Conexion::RollbackTrans() {
    Datos& d = datosAbiertos();
    if (d.nivel == 0)
        throw Fallo(FalloOperacionNoPermitida, QStringLiteral("No hay ninguna transacción activa."));
    d.nivel = 0;
    if (d.escribiendo) {
        d.soltarCerrojo();
        d.ejecutarPropia(QStringLiteral("ROLLBACK"));
    } else if (!d.dialecto->cerrojoAlEscribir()) {
        QSqlDatabase bd = d.bd();
        if (!bd.rollback()) throw falloDeBase(bd.lastError());
    }
}

int Conexion::nivelTransaccion() const {
    return d_->nivel;
}

const sql::Dialecto& Conexion::dialecto() const {
    return *datosAbiertos().dialecto;
}

const sql::Catalogo& Conexion::catalogo() const {
    return *datosAbiertos().catalogo;
}

QSqlDatabase Conexion::baseDatos() const {
    return datosAbiertos().bd();
}

} // namespace store
