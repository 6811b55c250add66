#include "OrigenDatos.h"

#include "BaseSqlite.h"

#include <QFile>
#include <odbcinst.h>
#include <utility>

namespace basedatos {

namespace {

// The installer's configuration mode is process-wide; put back whatever it was.
class ModoConfiguracion {
public:
    explicit ModoConfiguracion(UWORD modo) {
        SQLGetConfigMode(&anterior_);
        SQLSetConfigMode(modo);
    }
    ~ModoConfiguracion() { SQLSetConfigMode(anterior_); }
    ModoConfiguracion(const ModoConfiguracion&) = delete;
    ModoConfiguracion& operator=(const ModoConfiguracion&) = delete;

private:
    UWORD anterior_ = ODBC_BOTH_DSN;
};

QString errorDelInstalador() {
    DWORD codigo = 0;
    char texto[SQL_MAX_MESSAGE_LENGTH] = {};
    WORD largo = 0;
    const SQLRETURN r = SQLInstallerError(1, &codigo, texto, sizeof texto, &largo);
    if (r == SQL_SUCCESS || r == SQL_SUCCESS_WITH_INFO) return QString::fromLocal8Bit(texto);
    return QStringLiteral("el instalador de unixODBC no dio detalles");
}

QString leerClave(const char* clave) {
    char valor[4096] = {};
    SQLGetPrivateProfileString(nombreOrigen.toLatin1().constData(), clave, "", valor, sizeof valor,
                               "odbc.ini");
    return QFile::decodeName(valor);
}

} // namespace

void registrarOrigen(const QString& archivo) {
    const QByteArray seccion = nombreOrigen.toLatin1();
    const QByteArray ruta = QFile::encodeName(archivo);
    const std::pair<const char*, const char*> claves[] = {
        {"Description", "Sistema de control de cuenta corriente"},
        {"Database", ruta.constData()},
        {"JournalMode", "WAL"},
        {"Timeout", "5000"},
        {"FKSupport", "1"},
    };
    ModoConfiguracion modo(ODBC_USER_DSN);
    // Writing the data source removes what it held before, then sets Driver.
    bool bien = SQLWriteDSNToIni(seccion.constData(), CC_SQLITE3_ODBC_DRIVER);
    for (const auto& [clave, valor] : claves) {
        if (!bien) break;
        bien = SQLWritePrivateProfileString(seccion.constData(), clave, valor, "odbc.ini");
    }
    if (!bien)
        throw Error(QStringLiteral("No se pudo registrar el origen de datos %1: %2")
                        .arg(nombreOrigen, errorDelInstalador()));
}

Origen leerOrigen() {
    ModoConfiguracion modo(ODBC_BOTH_DSN);
    return {leerClave("Driver"), leerClave("Database"), leerClave("FKSupport")};
}

bool Origen::conFKSupport() const {
    return !fkSupport.isEmpty() && QStringLiteral("123456789YyTt").contains(fkSupport.front());
}

} // namespace basedatos
