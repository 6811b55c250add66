// cuentacorriente-sql: runs statements of the system's dialect on the data source DSNBrenal, as the
// application would, and prints what they return. For administrators and for end-to-end tests.
//
//   cuentacorriente-sql -e "Select * From Banco"     one statement (-e may be repeated)
//   cuentacorriente-sql < statements.sql             one statement per line
//
// A Select prints a header line of column names and one line per row, tab-separated; any other
// statement prints how many rows it touched. A failure prints its number and the driver's text on
// standard error and ends with status 1.
#include "Consola.h"

#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char* argv[]) {
    QCoreApplication app(argc, argv);
    QStringList sentencias;
    const QStringList args = app.arguments().mid(1);
    for (int i = 0; i < args.size(); ++i) {
        if (args[i] == QLatin1String("-e") && i + 1 < args.size()) {
            sentencias << args[++i];
        } else if (args[i] == QLatin1String("-h") || args[i] == QLatin1String("--help")) {
            QTextStream(stdout) << "Uso: cuentacorriente-sql [-e \"sentencia\"]...\n"
                                   "Sin -e, lee una sentencia por línea de la entrada estándar.\n";
            return 0;
        } else {
            QTextStream(stderr) << "Argumento no reconocido: " << args[i] << "\n";
            return 2;
        }
    }
    QTextStream salida(stdout);
    QTextStream errores(stderr);
    if (sentencias.isEmpty()) {
        QTextStream entrada(stdin);
        return ejecutarEntrada(entrada, salida, errores);
    }
    return ejecutarSentencias(sentencias, salida, errores);
}
