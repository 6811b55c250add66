#include "store/OpcionesSqlite.h"

namespace store {
namespace {

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
    QString cadena = origen;
    if (const QString espera = esperaParaElControlador(configurado.espera); !espera.isEmpty())
        cadena += QStringLiteral(";Timeout=") + espera;
    return cadena;
}

} // namespace store
