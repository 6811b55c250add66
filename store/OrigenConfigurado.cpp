#include "store/OrigenConfigurado.h"

#include <QFile>
#include <QFileInfo>
#include <dlfcn.h>

namespace store {
namespace {

// unixODBC's installer library, loaded only while it is read, as the SQLite driver loads it only while
// connected. It keeps every value it reads for 20 seconds, keyed by "odbc.ini" rather than by the file
// it read: linked to the program for good, it would hand the driver an earlier odbc.ini's Database
// (another test's data source, or DSNBrenal before it was registered again).
class Instalador {
public:
    Instalador() {
        for (const char* nombre : {"libodbcinst.so.2", "libodbcinst.so"})
            if ((biblioteca_ = dlopen(nombre, RTLD_NOW | RTLD_LOCAL))) break;
        if (biblioteca_)
            leerPerfil_ = reinterpret_cast<LeerPerfil>(dlsym(biblioteca_, "SQLGetPrivateProfileString"));
    }
    ~Instalador() {
        if (biblioteca_) dlclose(biblioteca_);
    }
    Instalador(const Instalador&) = delete;
    Instalador& operator=(const Instalador&) = delete;

    // The key's value, "" when absent or unreadable.
    QString leer(const QByteArray& seccion, const char* clave, const char* archivo) const {
        char valor[largoMaximo] = {};
        if (!leerPerfil_ || leerPerfil_(seccion.constData(), clave, "", valor, sizeof valor, archivo) < 0)
            return {};
        return QFile::decodeName(valor).trimmed();
    }

private:
    using LeerPerfil = int (*)(const char*, const char*, const char*, char*, int, const char*);
    // unixODBC keeps no value longer than this.
    static constexpr int largoMaximo = 1024;

    void* biblioteca_ = nullptr;
    LeerPerfil leerPerfil_ = nullptr;
};

} // namespace

bool OrigenConfigurado::deSqlite() const {
    const QFileInfo biblioteca(controlador);
    const QString nombre =
        (biblioteca.exists() ? QFileInfo(biblioteca.canonicalFilePath()) : biblioteca).fileName();
    return nombre.startsWith(QLatin1String("libsqlite3odbc"));
}

OrigenConfigurado leerOrigenConfigurado(const QString& nombre) {
    const Instalador instalador;
    const QByteArray seccion = nombre.toLocal8Bit();
    OrigenConfigurado origen{instalador.leer(seccion, "Driver", "odbc.ini"),
                             instalador.leer(seccion, "Database", "odbc.ini"),
                             instalador.leer(seccion, "Timeout", "odbc.ini")};
    // A driver named rather than given by its file is described in odbcinst.ini.
    if (!origen.controlador.isEmpty() && !origen.controlador.contains(QLatin1Char('/'))) {
        const QString archivo = instalador.leer(origen.controlador.toLocal8Bit(), "Driver", "odbcinst.ini");
        if (!archivo.isEmpty()) origen.controlador = archivo;
    }
    return origen;
}

} // namespace store
