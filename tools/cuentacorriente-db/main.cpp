// cuentacorriente-db: the set-up a store runs once, and its upkeep.
//
//   cuentacorriente-db init [--file RUTA] [--demo]   creates the database (never over an existing one)
//                                                    and registers DSNBrenal on it
//   cuentacorriente-db status                        where DSNBrenal points, schema version, rows per table,
//                                                    and a warning when DSNBrenal lacks FKSupport=1
//   cuentacorriente-db backup ARCHIVO [--file RUTA]  a consistent copy while the store keeps working
//
// Without --file the database is DSNBrenal's file (init: $XDG_DATA_HOME/cuentacorriente/brenal.db).
// Failures go to standard error with status 1.
#include "BaseSqlite.h"
#include "Creacion.h"
#include "Estado.h"
#include "OrigenDatos.h"
#include "Respaldo.h"
#include "SoloLectura.h"

#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>
#include <QTextStream>
#include <optional>

using namespace basedatos;

namespace {

const char* const uso = "Uso:\n"
                        "  cuentacorriente-db init [--file RUTA] [--demo]\n"
                        "  cuentacorriente-db status\n"
                        "  cuentacorriente-db backup ARCHIVO [--file RUTA]\n";

struct Argumentos {
    QString orden;
    std::optional<QString> archivo; // --file
    bool demo = false;
    QStringList posicionales;
};

Argumentos leerArgumentos(const QStringList& args) {
    Argumentos a;
    for (int i = 0; i < args.size(); ++i) {
        const QString& arg = args[i];
        if (arg == QLatin1String("--file")) {
            if (i + 1 >= args.size()) throw Error(QStringLiteral("Falta la ruta después de --file."));
            a.archivo = args[++i];
        } else if (arg.startsWith(QLatin1String("--file="))) {
            a.archivo = arg.mid(7);
        } else if (arg == QLatin1String("--demo")) {
            a.demo = true;
        } else if (arg.startsWith(QLatin1Char('-')) && arg.size() > 1) {
            throw Error(QStringLiteral("Opción no reconocida: %1").arg(arg));
        } else if (a.orden.isEmpty()) {
            a.orden = arg;
        } else {
            a.posicionales << arg;
        }
    }
    if (a.archivo && a.archivo->isEmpty()) throw Error(QStringLiteral("La ruta de --file está vacía."));
    return a;
}

QString absoluta(const QString& ruta) {
    return QDir::cleanPath(QDir::current().absoluteFilePath(ruta));
}

void exigirSinSobrantes(const Argumentos& a, int posicionales, bool admiteArchivo, bool admiteDemo) {
    if (a.posicionales.size() > posicionales)
        throw Error(QStringLiteral("Argumento de más: %1").arg(a.posicionales.value(posicionales)));
    if (a.archivo && !admiteArchivo) throw Error(QStringLiteral("%1 no admite --file.").arg(a.orden));
    if (a.demo && !admiteDemo) throw Error(QStringLiteral("%1 no admite --demo.").arg(a.orden));
}

// The file DSNBrenal names; an Error when it names none.
QString archivoDelOrigen(const Origen& origen = leerOrigen()) {
    if (!origen.registrado())
        throw Error(QStringLiteral("El origen de datos %1 no está registrado. Para crear la base y "
                                   "registrarlo: cuentacorriente-db init")
                        .arg(nombreOrigen));
    if (origen.archivo.isEmpty())
        throw Error(QStringLiteral("El origen de datos %1 no indica un archivo de base de datos (Database).")
                        .arg(nombreOrigen));
    return origen.archivo;
}

// A path as typed at a shell prompt: quoted when it holds anything but plain characters.
QString paraLaConsola(QString ruta) {
    static const QRegularExpression especial(QStringLiteral("[^\\w@%+=:,./-]"));
    if (!ruta.contains(especial)) return ruta;
    return QLatin1Char('\'') + ruta.replace(QLatin1Char('\''), QLatin1String("'\\''")) + QLatin1Char('\'');
}

int init(const Argumentos& a, QTextStream& salida) {
    exigirSinSobrantes(a, 0, true, true);
    const QString archivo = a.archivo ? absoluta(*a.archivo) : archivoPredeterminado();
    QString motivo;
    switch (clasificarArchivo(archivo, &motivo)) {
    case ClaseDeArchivo::NoExiste:
        crearBase(archivo, scriptsDelEsquema(a.demo));
        salida << "Base de datos creada: " << archivo << (a.demo ? " (con los datos de ejemplo)\n" : "\n");
        break;
    case ClaseDeArchivo::BaseDelSistema:
    case ClaseDeArchivo::BaseEnSoloLectura:
        // Sample rows never mix with a store's own.
        if (a.demo)
            throw Error(QStringLiteral("La base de datos %1 ya existe; los datos de ejemplo solo se cargan "
                                       "en una base nueva.")
                            .arg(archivo));
        // The application could not save a thing in it.
        if (const QString soloLectura = motivoDeSoloLectura(archivo); !soloLectura.isEmpty())
            throw Error(
                QStringLiteral("La base de datos %1 está %2: la aplicación no podría guardar en ella. "
                               "No se registró el origen de datos.")
                    .arg(archivo, enSoloLectura(soloLectura)));
        salida << "La base de datos " << archivo << " ya existe; su contenido queda como estaba.\n";
        break;
    case ClaseDeArchivo::Otro:
        throw Error(QStringLiteral("%1 existe y no es una base de datos de cuenta corriente (%2); "
                                   "no se modificó.")
                        .arg(archivo, motivo));
    }
    registrarOrigen(archivo);
    salida << "El origen de datos " << nombreOrigen << " apunta a " << archivo << '\n';
    return 0;
}

int status(const Argumentos& a, QTextStream& salida) {
    exigirSinSobrantes(a, 0, false, false);
    const Origen origen = leerOrigen();
    const QString archivo = archivoDelOrigen(origen);
    QString motivo;
    switch (clasificarArchivo(archivo, &motivo)) {
    case ClaseDeArchivo::NoExiste:
        throw Error(
            QStringLiteral("El origen de datos %1 apunta a %2, que no existe.").arg(nombreOrigen, archivo));
    case ClaseDeArchivo::Otro:
        throw Error(QStringLiteral("El origen de datos %1 apunta a %2, que no es una base de datos de cuenta "
                                   "corriente (%3).")
                        .arg(nombreOrigen, archivo, motivo));
    case ClaseDeArchivo::BaseEnSoloLectura:
        throw Error(
            QStringLiteral("El origen de datos %1 apunta a la base de datos %2, que está %3, donde no se "
                           "puede abrir: una base en modo WAL necesita escribir junto a ella sus "
                           "archivos -wal y -shm. Cópiela a una carpeta con escritura y regístrela allí "
                           "con: cuentacorriente-db init --file RUTA")
                .arg(nombreOrigen, archivo, enSoloLectura(motivo)));
    case ClaseDeArchivo::BaseDelSistema:
        break;
    }
    escribirEstado(archivo, leerEstado(archivo), salida);
    if (const QString soloLectura = motivoDeSoloLectura(archivo); !soloLectura.isEmpty())
        salida << "\nAviso: la base de datos está " << enSoloLectura(soloLectura)
               << ": se puede consultar, pero la aplicación no podrá guardar en ella.\n";
    // The schema's guards hold on any connection, but a data source registered by hand may lack what
    // init writes; say so, and how to put it right without touching the database.
    if (!origen.conFKSupport())
        salida << "\nAviso: el origen de datos " << nombreOrigen
               << " no tiene FKSupport=1, la opción que la base de datos espera de él.\n"
               << "Para registrarlo de nuevo con ella, sin tocar la base: cuentacorriente-db init --file "
               << paraLaConsola(archivo) << '\n';
    return 0;
}

int backup(const Argumentos& a, QTextStream& salida) {
    if (a.posicionales.isEmpty()) throw Error(QStringLiteral("Falta el archivo de la copia: backup ARCHIVO"));
    exigirSinSobrantes(a, 1, true, false);
    const QString origen = a.archivo ? absoluta(*a.archivo) : archivoDelOrigen();
    const QString destino = absoluta(a.posicionales.first());
    const Respaldo hecho = respaldar(origen, destino);
    salida << "Copia de " << origen << " guardada en " << destino << ": " << hecho.paginas << " páginas, "
           << hecho.bytes << " bytes.\n";
    return 0;
}

} // namespace

int main(int argc, char* argv[]) {
    QCoreApplication app(argc, argv);
    QTextStream salida(stdout), errores(stderr);
    const QStringList args = app.arguments().mid(1);
    if (args.contains(QLatin1String("--help")) || args.contains(QLatin1String("-h"))) {
        salida << uso;
        return 0;
    }
    try {
        const Argumentos a = leerArgumentos(args);
        if (a.orden == QLatin1String("init")) return init(a, salida);
        if (a.orden == QLatin1String("status")) return status(a, salida);
        if (a.orden == QLatin1String("backup")) return backup(a, salida);
        errores << (a.orden.isEmpty() ? QStringLiteral("Falta la orden.\n")
                                      : QStringLiteral("Orden no reconocida: %1\n").arg(a.orden))
                << uso;
        return 1;
    } catch (const Error& e) {
        salida.flush();
        errores << "Error: " << e.texto() << '\n';
        return 1;
    }
}
