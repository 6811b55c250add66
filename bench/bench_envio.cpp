// The delivery note screen must save a note and show it again in the same time whatever the number of
// notes in the store. Builds a synthetic store of N and of 10 x N delivery notes (10,000 and 100,000
// unless another N is given; the store holds three applications per note) and, on the real
// frmNotaEnvio of each, measures:
//
//  (a) "Guardar" of a note of 10 lines made as the clerk makes it: "Agregar", the option "Solicitud",
//      the number of an approved application with 10 articles pending typed and the field left (its
//      customer, home address and the 10 pending articles come in), then "Guardar": the checks, the
//      row written and read back by its key, the note's lines deleted by its key, and per line the
//      article's stock read from vwBuscaArticulo before its insert, then the commit.
//  (b) showing that note again, picked in the search screen, from the pick on: the key in Parametros
//      and the search screen gone, then the screen's own steps to the end of "Buscar": adoNota's
//      RecordSource by the key, Refresh, MostrarNota (the option and the document's number from the
//      search's row, the 10 lines from vwNotaEnvioDetalle). The search screen itself reads the whole
//      of vwBuscaNotaEnvio on opening, which grows with the store; that is left out of the figure, and
//      the whole click is printed beside it for information.
//
// Every statement of both is a lookup by key or through an index on the key: the application by its
// number, its pending articles through its own lines and its own notes, each article's stock through
// its movement lines, the note's row by its key, its lines by their note. None reads a row of another
// note, so the work does not grow with the store.
//
// The applications delivered are added to the synthetic store, one per save, each with 10 lines of
// articles spread over the whole catalogue; the 22 notes are saved first (one to warm up), then shown
// again in the same order, so that no save follows the search screen's reading of the whole view; the
// figures are medians. Each save is checked: the row and
// its 10 lines committed together, nothing committed before "Guardar", no transaction left open, the
// application left with nothing pending. Each showing is checked: the option, the number, the customer,
// the 10 lines and their total. Any modal screen other than the search screen, a message above all,
// fails the run. The machine should be quiet: the two stores are measured one after the other.
//
// Prints the milliseconds at each size and their ratio; exits with 1 when a ratio is above 1.2, and
// with 2 when a check fails.
#include "BaseDePrueba.h"
#include "ConductorDePantallas.h"
#include "Medicion.h"
#include "TiendaSintetica.h"
#include "goods/frmNotaEnvio.h"
#include "runtime/Conversion.h"
#include "shell/busqueda/frmBusca.h"
#include "shell/common/Common.h"
#include "store/Conexion.h"
#include "store/Recordset.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <cstdio>
#include <vector>

namespace {

constexpr int kNotas = 21;    // notes saved and shown again per store, after one to warm up
constexpr int kLineas = 10;   // lines of each note
constexpr double kTope = 1.2; // the largest ratio accepted between the two sizes

QVariant claveBuscada; // the key to pick in the next search

void elegirEnBusqueda(shell::frmBusca& busca) {
    QCoreApplication::processEvents();
    store::Recordset* rs = busca.ado->Recordset();
    if (!ponerEnFila(*rs, claveBuscada)) {
        conductor.inesperadas << QStringLiteral("frmBusca without note ") + runtime::TextoDe(claveBuscada);
        Common::Parametros.ReDim(1);
    } else {
        Common::Parametros.ReDim(rs->FieldCount());
        for (int i = 0; i < rs->FieldCount(); ++i)
            Common::Parametros(i + 1) = rs->Fields(i).Value();
    }
    claveBuscada = QVariant();
    busca.Unload();
    conductor.desdeLaEleccion.start();
}

// The search screen answered with the row of the key asked for, as a double click on it would; any
// other modal screen is written down and closed by the shared driver.
bool responderBusqueda(shell::Formulario& f) {
    auto* busca = qobject_cast<shell::frmBusca*>(&f);
    if (!busca || !claveBuscada.isValid()) return false;
    elegirEnBusqueda(*busca);
    return true;
}

void activar(mercaderia::frmNotaEnvio& f) {
    f.activateWindow();
    QCoreApplication::processEvents();
    exigir(QApplication::activeWindow() == &f, QStringLiteral("frmNotaEnvio did not become active"));
}

// The applications to deliver, after the store's own: approved, a client and a home address each, and
// 10 lines of one unit of articles spread over the catalogue (a prime stride), all in stock.
void agregarPorEntregar(const BaseDePrueba& base, int solicitudes) {
    const int articulos = articulosDeTiendaSintetica(solicitudes);
    QString s = QStringLiteral("BEGIN;");
    for (int k = 0; k <= kNotas; ++k) {
        const int numero = solicitudes + 1 + k;
        s += QStringLiteral("INSERT INTO Solicitud (SolicitudID, NumeroSolicitud, Fecha, ClienteID, Estado, "
                            "CasaDireccion) VALUES (%1, %1, '2026-06-01', %2, 1, 'Avenida %1');")
                 .arg(numero)
                 .arg(1 + k);
        for (int j = 0; j < kLineas; ++j)
            s += QStringLiteral("INSERT INTO SolicitudDetalle (SolicitudID, ArticuloID, Cantidad, Precio) "
                                "VALUES (%1, %2, 1, 1500);")
                     .arg(numero)
                     .arg(1 + (long(k * kLineas + j) * 104729) % articulos);
    }
    base.sqlite(s + QStringLiteral("COMMIT; ANALYZE;"));
}

struct Medida {
    double llenado = 0;      // seconds to build the store
    double guardar = 0;      // (a) ms
    double mostrar = 0;      // (b) ms, from the pick on
    double buscarEntero = 0; // the whole "Buscar" click, the search screen included (information)
};

mercaderia::frmNotaEnvio& pantalla() {
    auto& f = Common::Pantalla<mercaderia::frmNotaEnvio>();
    if (!f.isVisible()) {
        f.Show();
        QCoreApplication::processEvents();
    }
    activar(f);
    return f;
}

// (a): a note for the application of this number; returns the time of "Guardar" and the note's key.
double guardarUna(const BaseDePrueba& base, mercaderia::frmNotaEnvio& f, long numero, long& nota) {
    activar(f);
    botonVisible(f, QStringLiteral("Agregar"))->click();
    sinPantallasInesperadas(QStringLiteral("Agregar"));
    exigir(f.enEdicion() && Common::DE().CN.nivelTransaccion() == 1,
           QStringLiteral("\"Agregar\" opened no transaction"));
    activar(f);
    f.optTipo->Seleccionar(0);
    f.txtNumeroDocumento->setFocus(Qt::TabFocusReason);
    f.txtNumeroDocumento->selectAll();
    for (const QChar c : QString::number(numero))
        tecla(f.txtNumeroDocumento, Qt::Key(Qt::Key_0 + c.digitValue()), QString(c));
    tecla(f.txtNumeroDocumento, Qt::Key_Tab);
    sinPantallasInesperadas(QStringLiteral("application %1").arg(numero));
    exigir(f.SolicitudID == numero, QStringLiteral("application %1 not loaded").arg(numero));
    exigir(f.fgDetalle->Rows() == kLineas + 1 && f.lblSaldo->text() == QString::number(kLineas),
           QStringLiteral("%1 grid rows, total %2").arg(f.fgDetalle->Rows()).arg(f.lblSaldo->text()));
    exigir(f.txtDireccion->Text() == QStringLiteral("Avenida %1").arg(numero),
           QStringLiteral("address ") + f.txtDireccion->Text());
    const QString consultaNota =
        QStringLiteral("SELECT max(NotaID) FROM NotaEnvio WHERE SolicitudID = %1").arg(numero);
    exigir(base.valor(consultaNota).isEmpty(), QStringLiteral("note committed before \"Guardar\""));
    QCoreApplication::processEvents();

    QElapsedTimer reloj;
    reloj.start();
    botonVisible(f, QStringLiteral("Guardar"))->click();
    const double tiempo = reloj.nsecsElapsed() / 1e6;

    sinPantallasInesperadas(QStringLiteral("Guardar for application %1").arg(numero));
    exigir(!f.enEdicion(), QStringLiteral("\"Guardar\" left the screen editing"));
    exigir(Common::TransaccionActiva == 0 && Common::DE().CN.nivelTransaccion() == 0,
           QStringLiteral("a transaction left open"));
    nota = base.valor(consultaNota).toLong();
    exigir(nota > 0, QStringLiteral("the note was not committed"));
    exigir(base.valor(QStringLiteral("SELECT count(*) || '|' || total(Cantidad) FROM NotaEnvioDetalle "
                                     "WHERE NotaID = %1")
                          .arg(nota)) == QStringLiteral("%1|%1.0").arg(kLineas),
           QStringLiteral("the lines were not committed"));
    exigir(base.valor(QStringLiteral("SELECT shw1200_dbl_Saldo FROM vwSaldosArticulosXSolicitud WHERE "
                                     "shw1200_int_Solicitud = %1")
                          .arg(numero))
                   .toDouble() == 0,
           QStringLiteral("application %1 still has articles pending").arg(numero));
    return tiempo;
}

// (b): the note picked in "Buscar"; returns the time from the pick on.
double mostrarUna(mercaderia::frmNotaEnvio& f, long nota, long numero, double& entero) {
    activar(f);
    claveBuscada = QVariant(qlonglong(nota));
    QElapsedTimer reloj;
    reloj.start();
    botonVisible(f, QStringLiteral("Buscar"))->click();
    const double desdeLaEleccion = conductor.desdeLaEleccion.nsecsElapsed() / 1e6;
    entero = reloj.nsecsElapsed() / 1e6;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    sinPantallasInesperadas(QStringLiteral("Buscar %1").arg(nota));
    exigir(!claveBuscada.isValid(), QStringLiteral("the search screen was not shown"));
    exigir(f.optTipo->Valor() == 0 && f.txtNumeroDocumento->Text() == QString::number(numero),
           QStringLiteral("document shown: %1 %2").arg(f.optTipo->Valor()).arg(f.txtNumeroDocumento->Text()));
    exigir(!f.txtNombreCliente->Text().isEmpty(), QStringLiteral("no customer shown"));
    exigir(f.fgDetalle->Rows() == kLineas + 1 && f.lblSaldo->text() == QString::number(kLineas),
           QStringLiteral("%1 grid rows, total %2").arg(f.fgDetalle->Rows()).arg(f.lblSaldo->text()));
    return desdeLaEleccion;
}

Medida medir(int notas) {
    const int solicitudes = notas * 3; // the synthetic store delivers one application in three
    BaseDePrueba base(true);
    QElapsedTimer llenado;
    llenado.start();
    llenarTiendaSintetica(base, solicitudes);
    agregarPorEntregar(base, solicitudes);
    Medida m;
    m.llenado = llenado.elapsed() / 1000.0;
    exigir(base.valor(QStringLiteral("SELECT count(*) FROM NotaEnvio")) == QString::number(notas),
           QStringLiteral("the store holds %1 notes")
               .arg(base.valor(QStringLiteral("SELECT count(*) FROM NotaEnvio"))));
    std::printf("store of %d notes (%d applications) built in %.1f s\n", notas, solicitudes, m.llenado);
    std::fflush(stdout);

    Common::DE().CN.Open();
    {
        auto& f = pantalla();
        // All the saves first, then all the showings: a save that followed a search would find
        // SQLite's page cache emptied by the search screen's whole view, at 100,000 more than at 10,000.
        std::vector<double> guardados, mostrados, enteros;
        std::vector<long> notasGuardadas;
        for (int k = -1; k < kNotas; ++k) {
            long nota = 0;
            const double g = guardarUna(base, f, solicitudes + 2 + k, nota);
            notasGuardadas.push_back(nota);
            if (k >= 0) guardados.push_back(g);
        }
        for (int k = -1; k < kNotas; ++k) {
            double entero = 0;
            const double t = mostrarUna(f, notasGuardadas[k + 1], solicitudes + 2 + k, entero);
            if (k < 0) continue;
            mostrados.push_back(t);
            enteros.push_back(entero);
        }
        m.guardar = mediana(guardados);
        m.mostrar = mediana(mostrados);
        m.buscarEntero = mediana(enteros);
        f.Unload();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    Common::DE().CN.Close();
    return m;
}

} // namespace

int main(int argc, char* argv[]) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const int pequena = argc > 1 ? QString::fromLatin1(argv[1]).toInt() : 10000;
    instalarConductor(responderBusqueda);
    Medida a, b;
    if (!medirAmbas("bench_envio", medir, pequena, a, b)) return 2;
    const double razonGuardar = b.guardar / a.guardar, razonMostrar = b.mostrar / a.mostrar;
    std::printf("\nfrmNotaEnvio, milliseconds (median)          %10d %10d   ratio\n", pequena, pequena * 10);
    std::printf("%-44s %10.2f %10.2f %7.2f\n", "(a) \"Guardar\" of 10 lines, one transaction", a.guardar,
                b.guardar, razonGuardar);
    std::printf("%-44s %10.2f %10.2f %7.2f\n", "(b) note shown again, from the pick on", a.mostrar, b.mostrar,
                razonMostrar);
    std::printf("%-44s %10.1f %10.1f %7.2f   (not held to the limit)\n",
                "    whole \"Buscar\", search screen included", a.buscarEntero, b.buscarEntero,
                b.buscarEntero / a.buscarEntero);
    std::printf("(b) leaves out the search screen, which reads the whole of vwBuscaNotaEnvio on opening\n");
    std::printf("stores built in %.1f s and %.1f s; medians of %d\n", a.llenado, b.llenado, kNotas);
    return salidaPorRazones({{"(a)", razonGuardar}, {"(b)", razonMostrar}}, kTope);
}
