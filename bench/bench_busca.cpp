// What the search screen costs over the data store: the time from frmBusca being shown over a
// 100,000-row view (vwBuscaArticulo over 100,000 articles) to its grid being painted, against opening
// a Recordset over the same statement and walking it, reading every field. Prints both medians and
// their ratio; near 1 means the grid adds little to what fetching the rows costs anyway.
#include "BaseDePrueba.h"
#include "Medicion.h"
#include "shell/busqueda/frmBusca.h"
#include "shell/common/Common.h"
#include "store/Conexion.h"
#include "store/Recordset.h"

#include <QApplication>
#include <QElapsedTimer>
#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr int filas = 100000;
constexpr int repeticiones = 5;

const QString consulta = QStringLiteral("Select * From vwBuscaArticulo");

void llenar(const BaseDePrueba& base) {
    base.sqlite(QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %1) "
                               "INSERT INTO Articulo (Nombre, Modelo, Color, Costo, ContadoPorcentaje, "
                               "CreditoValor) "
                               "SELECT 'Refrigeradora ' || i, 'M-' || (i % 97), 'Blanco', i * 1.25, 20, 150 "
                               "FROM n;")
                    .arg(filas));
}

struct TiemposPantalla {
    double carga = 0;   // load: the query, the grid's rows, columns and boxes
    double total = 0;   // and shown, with the grid painted
    double rejilla = 0; // the grid alone reading the rows of the open recordset again
};

TiemposPantalla conPantalla(long long& control) {
    TiemposPantalla r;
    QElapsedTimer t;
    t.start();
    Common::ConsultaBusqueda = consulta;
    auto& f = Common::Pantalla<shell::frmBusca>();
    r.carga = t.nsecsElapsed() / 1e6;
    f.lblTitulo->setText(QStringLiteral("Busca artículos"));
    f.Show();
    QApplication::processEvents();
    f.dg->viewport()->repaint();
    r.total = t.nsecsElapsed() / 1e6;
    control += f.dg->model()->rowCount() + int(f.txtField.size());
    t.restart();
    f.dg->Refresh();
    r.rejilla = t.nsecsElapsed() / 1e6;
    f.Unload();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return r;
}

} // namespace

int main(int argc, char* argv[]) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    BaseDePrueba base(true);
    llenar(base);
    Common::DE().CN.Open();

    store::Conexion cn(QStringLiteral("DSN=DSNBrenal"));
    cn.Open();

    long long control = 0;
    recorrerConRecordset(cn, consulta, control); // warm the database's cache for both
    std::vector<double> tiemposRecordset, tiemposCarga, tiemposPantalla, tiemposRejilla;
    for (int i = 0; i < repeticiones; ++i) {
        tiemposRecordset.push_back(recorrerConRecordset(cn, consulta, control));
        const TiemposPantalla p = conPantalla(control);
        tiemposCarga.push_back(p.carga);
        tiemposPantalla.push_back(p.total);
        tiemposRejilla.push_back(p.rejilla);
    }

    const double r = mediana(tiemposRecordset), c = mediana(tiemposCarga), p = mediana(tiemposPantalla);
    std::printf("%s: %d rows x 14 columns, median of %d runs (control %lld)\n", qPrintable(consulta), filas,
                repeticiones, control);
    std::printf("Recordset open + walk:            %9.1f ms\n", r);
    std::printf("frmBusca loaded (query + grid):   %9.1f ms\n", c);
    std::printf("frmBusca shown, grid painted:     %9.1f ms\n", p);
    std::printf("  of which the grid reading rows: %9.1f ms\n", mediana(tiemposRejilla));
    std::printf("ratio frmBusca / Recordset:       %9.2f\n", p / r);
    return 0;
}
