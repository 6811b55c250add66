// The balance views must read one document in the time it takes to read its own rows, whatever the
// size of the store. Fills a synthetic store at two sizes, ten times apart, and reports the median
// time of each single-document lookup the screens make through the store, and the ratio between the
// sizes: a figure near 1 is flat. The whole application list, which grows with the store, is
// reported beside them.
#include "BaseDePrueba.h"
#include "Medicion.h"
#include "TiendaSintetica.h"
#include "store/Conexion.h"
#include "store/Recordset.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr int kConsultas = 200;

struct Busqueda {
    const char* nombre;
    const char* sentencia; // %1 is a document number or key within the store
    bool porNota;          // %1 is a goods-in note, one for every 20 applications
};

const Busqueda busquedas[] = {
    {"vwBuscaSolicitud por numero", "Select * From vwBuscaSolicitud Where shw1200_int_Solicitud = %1", false},
    {"vwSaldosXSolicitud", "Select * From vwSaldosXSolicitud Where SolicitudID = %1", false},
    {"vwSaldosArticulosXSolicitud",
     "Select * From vwSaldosArticulosXSolicitud Where shw1200_int_Solicitud = %1", false},
    {"vwSaldoXArticuloXSolicitud",
     "Select hidArticuloID, shw3000_str_Descripcion, shw1200_int_Saldo From vwSaldoXArticuloXSolicitud Where "
     "hidSolicitudID = %1 And shw1200_int_Saldo > 0",
     false},
    {"vwReciboDetalle", "Select * From vwReciboDetalle Where ReciboID = %1", false},
    {"vwSaldosXNotaIngreso", "Select * From vwSaldosXNotaIngreso Where hidID = %1", true},
};

double abrir(store::Conexion& cn, const QString& sentencia) {
    QElapsedTimer t;
    t.start();
    store::Recordset rs;
    rs.Open(sentencia, cn, store::adOpenStatic, store::adLockReadOnly);
    for (; !rs.Eof(); rs.MoveNext())
        rs.Fields(0).Value();
    return t.nsecsElapsed() / 1e3;
}

struct Medida {
    std::vector<double> busquedas; // microseconds, in the order of `busquedas`
    double listaCompleta;          // milliseconds
};

Medida medir(int solicitudes) {
    BaseDePrueba base(true);
    QElapsedTimer llenado;
    llenado.start();
    llenarTiendaSintetica(base, solicitudes);
    std::printf("store of %d applications filled in %.1f s\n", solicitudes, llenado.elapsed() / 1000.0);
    store::Conexion cn(QStringLiteral("DSN=DSNBrenal"));
    cn.Open();
    QRandomGenerator azar(42);
    Medida m;
    for (const Busqueda& b : busquedas) {
        std::vector<double> tiempos;
        for (int i = 0; i < kConsultas; ++i) {
            const int n = 1 + azar.bounded(b.porNota ? solicitudes / 20 : solicitudes);
            tiempos.push_back(abrir(cn, QString::fromLatin1(b.sentencia).arg(n)));
        }
        m.busquedas.push_back(mediana(tiempos));
    }
    m.listaCompleta = abrir(cn, QStringLiteral("Select * From vwBuscaSolicitud")) / 1000.0;
    return m;
}

} // namespace

int main(int argc, char* argv[]) {
    QCoreApplication app(argc, argv);
    const int pequena = argc > 1 ? QString::fromLatin1(argv[1]).toInt() : 10000;
    const Medida a = medir(pequena), b = medir(pequena * 10);
    std::printf("\nmedian of %d lookups, microseconds   %10d %10d   ratio\n", kConsultas, pequena,
                pequena * 10);
    for (size_t i = 0; i < a.busquedas.size(); ++i)
        std::printf("%-36s %10.0f %10.0f %7.2f\n", busquedas[i].nombre, a.busquedas[i], b.busquedas[i],
                    b.busquedas[i] / a.busquedas[i]);
    std::printf("%-36s %8.0fms %8.0fms %7.2f\n", "whole vwBuscaSolicitud (one run)", a.listaCompleta,
                b.listaCompleta, b.listaCompleta / a.listaCompleta);
    return 0;
}
