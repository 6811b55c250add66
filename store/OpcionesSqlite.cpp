#include "store/OpcionesSqlite.h"

#include "store/Fallo.h"

#include <QFileInfo>

namespace store {
namespace {

// An in-memory database or a URI is not a file to look for.
bool esRutaDeArchivo(const QString& baseDatos) {
    return baseDatos != QLatin1String(":memory:") && !baseDatos.startsWith(QLatin1String("file:"));
}

// Found the database locked, the driver lets SQLite wait through its busy handler, then calls that
// handler once more itself and runs the statement again; the handler starts its clock afresh on that
// first call, so the second run waits the whole Timeout again. Half of it each time is the whole.
QString esperaParaElControlador(const QString& espera) {
    bool numero = false;
    const int milisegundos = espera.toInt(&numero);
    // Without a figure of its own the driver keeps its default, as before.
    if (!numero || milisegundos <= 0) return {};
    return QString::number((milisegundos + 1) / 2);
}

} // namespace

QString cadenaParaSqlite(const QString& origen, const OrigenConfigurado& configurado) {
    const QString& archivo = configurado.baseDatos;
    if (archivo.isEmpty())
        throw Fallo(FalloConexion, QStringLiteral("El origen de datos %1 no indica el archivo de la base de "
                                                  "datos (la clave Database de odbc.ini).")
                                       .arg(origen));
    QString cadena = origen;
    if (esRutaDeArchivo(archivo)) {
        if (!QFileInfo::exists(archivo))
            throw Fallo(FalloConexion,
                        QStringLiteral("No se encuentra el archivo de la base de datos %1, al que apunta el "
                                       "origen de datos %2; no se creó ninguno en su lugar. Si la base se "
                                       "movió o está en un disco que no está conectado, conéctelo o registre "
                                       "el origen de datos donde está ahora; si se perdió, restáurela desde "
                                       "una copia.")
                            .arg(archivo, origen));
        cadena += QStringLiteral(";NoCreat=1");
    }
    if (const QString espera = esperaParaElControlador(configurado.espera); !espera.isEmpty())
        cadena += QStringLiteral(";Timeout=") + espera;
    return cadena;
}

} // namespace store
