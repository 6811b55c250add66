// The balance views must read one document in the time it takes to read its own rows, whatever the
// size of the store. Fills a synthetic store at two sizes, ten times apart, and reports the median
// time of each single-document lookup the screens make through the store, and the ratio between the
// sizes: a figure near 1 is flat. The synthetic catalogue grows with the store, so an article's stock,
// the sum of its own movement lines, is such a lookup too. The whole application list and the whole
// article search, which grow with the store, are reported beside them; the article search also per
// article, which must stay flat.
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

// What %1 of a lookup stands for, drawn at random within the store.
enum class Rango { Solicitud, Nota, Articulo };

struct Busqueda {
    const char* nombre;
    const char* sentencia; // %1 is a document number or key within the store
    Rango rango;
};

const Busqueda busquedas[] = {
    {"vwBuscaSolicitud por numero", "Select * From vwBuscaSolicitud Where shw1200_int_Solicitud = %1",
     Rango::Solicitud},
    {"vwSaldosXSolicitud", "Select * From vwSaldosXSolicitud Where SolicitudID = %1", Rango::Solicitud},
    {"vwSaldosArticulosXSolicitud",
     "Select * From vwSaldosArticulosXSolicitud Where shw1200_int_Solicitud = %1", Rango::Solicitud},
    {"vwSaldoXArticuloXSolicitud",
     "Select hidArticuloID, shw3000_str_Descripcion, shw1200_int_Saldo From vwSaldoXArticuloXSolicitud Where "
     "hidSolicitudID = %1 And shw1200_int_Saldo > 0",
     Rango::Solicitud},
    {"vwReciboDetalle", "Select * From vwReciboDetalle Where ReciboID = %1", Rango::Solicitud},
    {"vwSaldosXNotaIngreso", "Select * From vwSaldosXNotaIngreso Where hidID = %1", Rango::Nota},
    // The stock of one article as ValidarVentaArticulo reads it, and the lines of one goods-in note
    // with their articles' stock as the goods-in screen shows them.
    {"vwBuscaArticulo existencia por clave",
     "Select shw3800_str_Descripcion_del_articulo & ' ' & shw1200_str_Modelo & ' '& shw1200_str_Color as "
     "Descripcion, shw900_dbl_Costo as Costo, shw1000_dbl_Existencia as Existencia From vwBuscaArticulo "
     "Where "
     "hidID = %1",
     Rango::Articulo},
    {"vwNotaIngresoDetalle", "Select * From vwNotaIngresoDetalle Where IngresoID = %1", Rango::Nota},
};

constexpr int kRecorridos = 5; // runs of each whole-view read; the median is reported

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
    double articulosCompleta;      // milliseconds: the article search, every field of every row
    int articulos;
};

int tope(Rango rango, int solicitudes) {
    switch (rango) {
    case Rango::Solicitud:
        return solicitudes;
    case Rango::Nota:
        return solicitudes / 20;
    case Rango::Articulo:
        return articulosDeTiendaSintetica(solicitudes);
    }
    return 1;
}

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
            const int n = 1 + azar.bounded(tope(b.rango, solicitudes));
            tiempos.push_back(abrir(cn, QString::fromLatin1(b.sentencia).arg(n)));
        }
        m.busquedas.push_back(mediana(tiempos));
    }
    m.listaCompleta = abrir(cn, QStringLiteral("Select * From vwBuscaSolicitud")) / 1000.0;
    // What the article search screen fetches when it opens.
    long long control = 0;
    std::vector<double> tiempos;
    for (int i = 0; i < kRecorridos; ++i)
        tiempos.push_back(recorrerConRecordset(cn, QStringLiteral("Select * From vwBuscaArticulo"), control));
    m.articulosCompleta = mediana(tiempos);
    m.articulos = articulosDeTiendaSintetica(solicitudes);
    if (control == 0) std::printf("(no article read)\n");
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
    std::printf("%-36s %8.0fms %8.0fms %7.2f   (%d and %d articles, median of %d)\n", "whole vwBuscaArticulo",
                a.articulosCompleta, b.articulosCompleta, b.articulosCompleta / a.articulosCompleta,
                a.articulos, b.articulos, kRecorridos);
    const double porArticuloA = a.articulosCompleta * 1000 / a.articulos,
                 porArticuloB = b.articulosCompleta * 1000 / b.articulos;
    std::printf("%-36s %8.1fus %8.1fus %7.2f\n", "  the same, per article", porArticuloA, porArticuloB,
                porArticuloB / porArticuloA);
    return 0;
}
