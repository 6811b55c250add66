// The credit application screen must bring up one application, and save one of 20 lines, in the same
// time whatever the size of the store. Builds a synthetic store of N and of 10 x N applications
// (10,000 and 100,000 unless a smaller N is given) and, on the real frmSolicitud of each, measures:
//
//  (a) bringing up an application picked in the search screen, from the pick on: the key in
//      Parametros and the search screen gone, then the screen's own steps to the end of "Buscar":
//      adoSolicitud's RecordSource by the key, Refresh, MostrarSolicitud (the status, the client
//      panel read on its own connection, the guarantor panel, the lines and the plan). The search
//      screen itself reads the whole of vwBuscaSolicitud on opening, which grows with the store; that
//      is left out of the figure, and the whole click is printed beside it for information.
//  (b) "Guardar" of an application opened with "Modificar" and given 20 lines of articles in stock:
//      each line's sale checked against vwBuscaArticulo, the row updated and the lines written again,
//      all in the one transaction of the edit.
//
// Every statement of both is a lookup by key or through an index on the key, and the screen runs the
// same instructions at both sizes (callgrind over (a): within 2 %). What is left of a difference comes
// from the search screen, which has just read every row of the view, as it has for the clerk: the
// process's memory is fuller, and SQLite's page cache no longer holds the pages of the articles the
// save checks, which at 100,000 it reads again from the file (a few dozen reads per save, none at
// 10,000). Both go when the search screen stops reading the whole view.
//
// Applications are picked across the whole store, a different one each run; the figures are medians.
// Each save is checked: the row and its 20 lines committed together, nothing committed before
// "Guardar", no transaction left open, and no message shown (a stock or cost message would mean the
// data is wrong). Any modal screen other than the search screen fails the run. The machine should be
// quiet: the two stores are measured one after the other.
//
// Prints the milliseconds at each size and their ratio; exits with 1 when a ratio is above 1.2, and
// with 2 when a check fails.
#include "BaseDePrueba.h"
#include "ConductorDePantallas.h"
#include "Medicion.h"
#include "TiendaSintetica.h"
#include "credit/frmSolicitud.h"
#include "runtime/Conversion.h"
#include "shell/busqueda/frmBusca.h"
#include "shell/common/Common.h"
#include "store/Conexion.h"
#include "store/Recordset.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr int kTraidas = 21;   // applications brought up per store, after one to warm up
constexpr int kGuardadas = 21; // applications saved per store, after one to warm up
constexpr int kLineas = 20;    // lines of each saved application
constexpr double kTope = 1.2;  // the largest ratio accepted between the two sizes

QVariant claveBuscada; // the key to pick in the next search

void elegirEnBusqueda(shell::frmBusca& busca) {
    // What the search screen's own modal loop does while the clerk reads it: its pending events run.
    QCoreApplication::processEvents();
    store::Recordset* rs = busca.ado->Recordset();
    if (!ponerEnFila(*rs, claveBuscada)) {
        conductor.inesperadas << QStringLiteral("frmBusca without application ") +
                                     runtime::TextoDe(claveBuscada);
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
// other modal screen (a message, the client screen) is written down and closed by the shared driver.
bool responderBusqueda(shell::Formulario& f) {
    auto* busca = qobject_cast<shell::frmBusca*>(&f);
    if (!busca || !claveBuscada.isValid()) return false;
    elegirEnBusqueda(*busca);
    return true;
}

// What the synthetic store lacks for the credit screen: its clients carry no birth date nor identity
// card, which the screen requires of a client before showing it, and it has no guarantors. Every
// client is completed, one guarantor is made for every two applications, and each application names
// one, with the relation and the day of payment that saving requires.
void completarParaSolicitudes(const BaseDePrueba& base, int solicitudes) {
    base.sqlite(
        QStringLiteral(
            "BEGIN;"
            "UPDATE Cliente SET FechaNacimiento = '1980-05-17', CedulaRegistro = 'A-1', "
            "CedulaNumero = CAST(ClienteID AS TEXT), CedulaExtendida = 'Guatemala';"
            "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %1) "
            "INSERT INTO Fiador (Nombres, Apellidos, FechaNacimiento, CedulaRegistro, CedulaNumero, "
            "CedulaExtendida, EstadoCivilID, Direccion, Telefonos, CasaPropia, CasaTiempo, "
            "TrabajoNombre, TrabajoPuesto, TrabajoSueldo, TrabajoTiempo) "
            "SELECT 'FIADOR ' || i, 'APELLIDO ' || i, '1975-02-03', 'A-1', i, 'Guatemala', 1, "
            "'Zona ' || (i % 25), '2222-' || i, 1, 30, 'Empresa ' || i, 'Vendedor', 3500, 40 FROM n;"
            "UPDATE Solicitud SET FiadorID = 1 + (SolicitudID - 1) / 2, FiadorParentesco = 'Hermano', "
            "DiaPago = 1 + SolicitudID % 28;"
            "COMMIT; ANALYZE;")
            .arg(std::max(1, solicitudes / 2)));
}

// The k-th of `cuantas` keys spread evenly over 1..n.
long repartida(int k, int cuantas, int n) {
    return 1 + long((2LL * k + 1) * n / (2LL * cuantas));
}

struct Medida {
    double llenado = 0;      // seconds to build the store
    double traer = 0;        // (a) ms, from the pick on
    double buscarEntero = 0; // the whole "Buscar" click, the search screen included (information)
    double guardar = 0;      // (b) ms
};

credito::frmSolicitud& pantalla() {
    auto& f = Common::Pantalla<credito::frmSolicitud>();
    if (!f.isVisible()) {
        f.Show();
        QCoreApplication::processEvents(); // shown and laid out, as on the clerk's desktop
    }
    return f;
}

// The screen's "Buscar" answered with this key; returns the time from the pick on.
double buscar(credito::frmSolicitud& f, long clave, double* entero = nullptr) {
    claveBuscada = QVariant(qlonglong(clave));
    QElapsedTimer reloj;
    reloj.start();
    botonVisible(f, QStringLiteral("Buscar"))->click();
    const double desdeLaEleccion = conductor.desdeLaEleccion.nsecsElapsed() / 1e6;
    if (entero) *entero = reloj.nsecsElapsed() / 1e6;
    // The search screen's rows go now, outside every figure.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    sinPantallasInesperadas(QStringLiteral("Buscar %1").arg(clave));
    exigir(!claveBuscada.isValid(), QStringLiteral("the search screen was not shown"));
    return desdeLaEleccion;
}

// (a): what the screen shows must be the application picked, its client, guarantor and two lines.
void comprobarTraida(credito::frmSolicitud& f, long clave) {
    const long cliente = 1 + (clave - 1) / 2;
    exigir(f.txtSolicitudID->Text() == QString::number(clave),
           QStringLiteral("shown %1 instead of %2").arg(f.txtSolicitudID->Text()).arg(clave));
    exigir(f.txtNumeroSolicitud->Text() == QString::number(clave), QStringLiteral("number not shown"));
    exigir(f.lblClienteInfo[0]->text() == QStringLiteral("NOMBRE %1 APELLIDO %1").arg(cliente),
           QStringLiteral("client panel: ") + f.lblClienteInfo[0]->text());
    exigir(f.lblFiadorInfo[0]->text() == QStringLiteral("FIADOR %1 APELLIDO %1").arg(cliente),
           QStringLiteral("guarantor panel: ") + f.lblFiadorInfo[0]->text());
    exigir(f.fgDetalle->Rows() == 3, QStringLiteral("%1 grid rows").arg(f.fgDetalle->Rows()));
    exigir(!f.panEstado->text().isEmpty(), QStringLiteral("no status word"));
}

std::vector<double> medirTraidas(credito::frmSolicitud& f, int solicitudes, std::vector<double>& enteros) {
    std::vector<double> tiempos;
    for (int k = -1; k < kTraidas; ++k) {
        const long clave = k < 0 ? solicitudes / 3 : repartida(k, kTraidas, solicitudes);
        double entero = 0;
        const double t = buscar(f, clave, &entero);
        comprobarTraida(f, clave);
        if (k < 0) continue;
        tiempos.push_back(t);
        enteros.push_back(entero);
    }
    return tiempos;
}

// (b): one application brought up, "Modificar", 20 lines of articles in stock in place of its own, a
// changed address, "Guardar". Returns the time of "Guardar".
double guardarUna(const BaseDePrueba& base, credito::frmSolicitud& f, int solicitudes, int corrida,
                  long clave) {
    buscar(f, clave);
    const QString consultaLineas =
        QStringLiteral("SELECT count(*) FROM SolicitudDetalle WHERE SolicitudID = %1").arg(clave);
    const QString antes = base.valor(consultaLineas);

    botonVisible(f, QStringLiteral("Modificar"))->click();
    sinPantallasInesperadas(QStringLiteral("Modificar"));
    exigir(f.enEdicion() && Common::TransaccionActiva > 0 && Common::DE().CN.nivelTransaccion() == 1,
           QStringLiteral("\"Modificar\" opened no transaction"));

    const int articulos = articulosDeTiendaSintetica(solicitudes);
    const QString direccion = QStringLiteral("Avenida %1, corrida %2").arg(clave).arg(corrida);
    f.txtCasaDireccion->setText(direccion);
    f.fgDetalle->Vaciar();
    double total = 0;
    for (int j = 0; j < kLineas; ++j) {
        const long articulo = 1 + (long(j) * articulos / kLineas + corrida * 37L) % articulos;
        const int cantidad = 1 + j % 3;
        const double costo =
            base.valor(QStringLiteral("SELECT Costo FROM Articulo WHERE ArticuloID = %1").arg(articulo))
                .toDouble();
        const QString descripcion =
            base.valor(QStringLiteral("SELECT Nombre || ' ' || Modelo || ' ' || Color FROM Articulo "
                                      "WHERE ArticuloID = %1")
                           .arg(articulo));
        const double monto = cantidad * (costo + 60);
        total += monto;
        f.fgDetalle->AddItem(QStringList{QString::number(articulo), QString::number(cantidad), descripcion,
                                         QString::number(monto, 'f', 2)}
                                 .join(QLatin1Char('\t')));
    }
    f.fgDetalle->RemoveItem(1);
    exigir(f.fgDetalle->Rows() == kLineas + 1, QStringLiteral("%1 grid rows").arg(f.fgDetalle->Rows()));
    // Nothing of the edit is committed yet: the file, read beside the store, still has the old lines.
    exigir(base.valor(consultaLineas) == antes, QStringLiteral("lines committed before \"Guardar\""));

    QElapsedTimer reloj;
    reloj.start();
    botonVisible(f, QStringLiteral("Guardar"))->click();
    const double tiempo = reloj.nsecsElapsed() / 1e6;

    sinPantallasInesperadas(QStringLiteral("Guardar %1").arg(clave));
    exigir(!f.enEdicion(), QStringLiteral("\"Guardar\" left the screen editing"));
    exigir(Common::TransaccionActiva == 0,
           QStringLiteral("TransaccionActiva left at %1").arg(Common::TransaccionActiva));
    exigir(Common::DE().CN.nivelTransaccion() == 0, QStringLiteral("a transaction left open"));
    // The row and its lines, committed together: read from the file beside the store.
    exigir(base.valor(consultaLineas) == QString::number(kLineas),
           QStringLiteral("%1 lines committed").arg(base.valor(consultaLineas)));
    const double guardado =
        base.valor(QStringLiteral("SELECT total(Precio) FROM SolicitudDetalle WHERE SolicitudID = %1")
                       .arg(clave))
            .toDouble();
    exigir(qAbs(guardado - total) < 0.005,
           QStringLiteral("lines total %1, expected %2").arg(guardado).arg(total));
    exigir(
        base.valor(QStringLiteral("SELECT CasaDireccion FROM Solicitud WHERE SolicitudID = %1").arg(clave)) ==
            direccion,
        QStringLiteral("the row was not committed"));
    return tiempo;
}

std::vector<double> medirGuardadas(const BaseDePrueba& base, credito::frmSolicitud& f, int solicitudes) {
    std::vector<double> tiempos;
    for (int k = -1; k < kGuardadas; ++k) {
        const long clave = k < 0 ? 2 * solicitudes / 3 : repartida(k, kGuardadas, solicitudes) + 1;
        const double t = guardarUna(base, f, solicitudes, k + 1, clave);
        if (k >= 0) tiempos.push_back(t);
    }
    return tiempos;
}

Medida medir(int solicitudes) {
    BaseDePrueba base(true);
    QElapsedTimer llenado;
    llenado.start();
    llenarTiendaSintetica(base, solicitudes);
    completarParaSolicitudes(base, solicitudes);
    Medida m;
    m.llenado = llenado.elapsed() / 1000.0;
    std::printf("store of %d applications built in %.1f s\n", solicitudes, m.llenado);
    std::fflush(stdout);

    Common::DE().CN.Open();
    {
        auto& f = pantalla();
        std::vector<double> enteros;
        m.traer = mediana(medirTraidas(f, solicitudes, enteros));
        m.buscarEntero = mediana(enteros);
        m.guardar = mediana(medirGuardadas(base, f, solicitudes));
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
    if (!medirAmbas("bench_solicitud", medir, pequena, a, b)) return 2;
    const double razonTraer = b.traer / a.traer, razonGuardar = b.guardar / a.guardar;
    std::printf("\nfrmSolicitud, milliseconds (median)           %10d %10d   ratio\n", pequena, pequena * 10);
    std::printf("%-44s %10.2f %10.2f %7.2f\n", "(a) application brought up, from the pick on", a.traer,
                b.traer, razonTraer);
    std::printf("%-44s %10.2f %10.2f %7.2f\n", "(b) \"Guardar\" of 20 lines, one transaction", a.guardar,
                b.guardar, razonGuardar);
    std::printf("%-44s %10.1f %10.1f %7.2f   (not held to the limit)\n",
                "    whole \"Buscar\", search screen included", a.buscarEntero, b.buscarEntero,
                b.buscarEntero / a.buscarEntero);
    std::printf("(a) leaves out the search screen, which reads the whole of vwBuscaSolicitud on opening\n");
    std::printf("stores built in %.1f s and %.1f s; (a) median of %d, (b) median of %d\n", a.llenado,
                b.llenado, kTraidas, kGuardadas);
    return salidaPorRazones({{"(a)", razonTraer}, {"(b)", razonGuardar}}, kTope);
}
