// The receipt screen must load an application and save a receipt in the same time whatever the size
// of the store. Builds a synthetic store of N and of 10 x N applications with their receipts (10,000
// and 100,000 unless another N is given) and, on the real frmRecibo of each, measures:
//
//  (a) loading an application into a new receipt: after "Agregar", the application's number typed
//      into "No. Solicitud:" and the field left with Tab, timed from the Tab to the end of the
//      field's validate step: the application looked up in vwBuscaSolicitud by its number (state,
//      client's name and code), then its five balances read from vwSaldosXSolicitud into fgSaldos.
//  (b) "Guardar" of a receipt of 5 lines entered as the clerk enters them, Insert on the lines and a
//      concept from the pick list: the enganche or the first payment (whichever the balances show
//      pending), the monthly instalment, the mora (an amount added through its prompt, which updates
//      the application at once, inside the receipt's transaction), and two ordinary concepts given
//      their value in the line dialog; then cash enough to cover the total. "Guardar" runs the
//      screen's checks, writes the row (insert, then the row read back by its key), deletes the
//      receipt's lines by its key, inserts the 5 lines and commits.
//
// Every statement of both is a lookup by key or through an index on the key: the application by
// ixSolicitudNumero and its client by key; each balance a sum over the application's own receipts
// (ixReciboSolicitud) and their lines (ixReciboDetalleRecibo) and over its own lines
// (ixSolicitudDetalleSolicitud); the receipt's row by its key, its lines by ixReciboDetalleRecibo.
// None reads a row of another application or receipt, so the work does not grow with the store: only
// the depth of the B-trees does, by one level at most between the two sizes. Counted by callgrind, the
// instructions of the field's validate step and of "Guardar" over a run of 1,000 and 10,000
// applications and over one of 10,000 and 100,000 differ by 0.4 % and 0.05 %.
//
// Applications are picked across the whole store among the approved ones, a different one each run;
// the figures are medians. Each load is checked: the application's client and code shown, and the
// balances of fgSaldos those of the view. Each save is checked: the row and its 5 lines committed
// together with the mora added, nothing of them committed before "Guardar", no transaction left open.
// The modal screens expected (the pick list, the line dialog, the mora's prompt and question) are
// answered in their order; any other one, a message included, fails the run. The machine should be
// quiet: the two stores are measured one after the other.
//
// Prints the milliseconds at each size and their ratio; exits with 1 when a ratio is above 1.2, and
// with 2 when a check fails.
#include "BaseDePrueba.h"
#include "ConductorDePantallas.h"
#include "Medicion.h"
#include "TiendaSintetica.h"
#include "cash/frmRecibo.h"
#include "credit/frmSolicitudArticulo.h"
#include "runtime/Conversion.h"
#include "runtime/Formato.h"
#include "shell/busqueda/frmListado.h"
#include "shell/common/Common.h"
#include "shell/dialogos/frmIngresoTexto.h"
#include "shell/dialogos/frmPregunta.h"
#include "store/Conexion.h"
#include "store/Recordset.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

namespace {

constexpr int kCargas = 21;    // applications loaded per store, after one to warm up
constexpr int kGuardados = 21; // receipts saved per store, after one to warm up
constexpr int kLineas = 5;     // lines of each saved receipt
constexpr double kMora = 25;   // mora added to the application by each saved receipt
constexpr double kTope = 1.2;  // the largest ratio accepted between the two sizes

// The pick list answered with the row of this description, as a double click on it would.
void elegirConcepto(const QString& descripcion) {
    conductor.esperadas.push_back([descripcion](shell::Formulario& f) {
        auto* lista = qobject_cast<shell::frmListado*>(&f);
        if (!lista) return false;
        store::Recordset* rs = lista->Adodc->Recordset();
        for (rs->MoveFirst(); !rs->Eof(); rs->MoveNext())
            if (runtime::TextoDe(rs->Fields(1).Value()) == descripcion) {
                pulsarEn(f, QStringLiteral("&Aceptar"));
                return true;
            }
        conductor.inesperadas << QStringLiteral("no concept ") + descripcion + QStringLiteral(" in the list");
        pulsarEn(f, QStringLiteral("Cancelar"));
        return true;
    });
}

// The line dialog, dressed for a concept, given this value and accepted.
void darValor(const QString& valor) {
    conductor.esperadas.push_back([valor](shell::Formulario& f) {
        auto* linea = qobject_cast<credito::frmSolicitudArticulo*>(&f);
        if (!linea) return false;
        if (linea->lblTitulo->text() != QLatin1String("  Concepto de cobro"))
            conductor.inesperadas << QStringLiteral("line dialog not dressed for a concept: ") + textos(f);
        linea->txtPrecio->setText(valor);
        pulsarEn(f, QStringLiteral("&Aceptar"));
        return true;
    });
}

// The mora's prompt answered with this amount, and its question with "Aceptar".
void agregarMora(const QString& monto) {
    conductor.esperadas.push_back([monto](shell::Formulario& f) {
        auto* pedido = qobject_cast<shell::frmIngresoTexto*>(&f);
        if (!pedido) return false;
        pedido->txtTexto->setText(monto);
        pulsarEn(f, QStringLiteral("Aceptar"));
        return true;
    });
    conductor.esperadas.push_back([](shell::Formulario& f) {
        if (!qobject_cast<shell::frmPregunta*>(&f)) return false;
        pulsarEn(f, QStringLiteral("Aceptar"));
        return true;
    });
}

// The screen in front, taking the keyboard, as after the clerk's click on it.
void activar(caja::frmRecibo& f) {
    f.activateWindow();
    QCoreApplication::processEvents();
    exigir(QApplication::activeWindow() == &f, QStringLiteral("frmRecibo did not become active"));
}

// Into a box as the clerk does: focus (which selects all of it), the digits typed over; the field is
// left by the caller.
void escribir(caja::frmRecibo& f, shell::CajaTexto* caja, const QString& texto) {
    caja->setFocus(Qt::TabFocusReason);
    exigir(f.focusWidget() == caja, caja->objectName() + QStringLiteral(" did not take the focus"));
    caja->selectAll();
    for (const QChar c : texto)
        tecla(caja, c.isDigit() ? Qt::Key(Qt::Key_0 + c.digitValue()) : Qt::Key_Period, QString(c));
    exigir(caja->Text() == texto, caja->objectName() + QStringLiteral(" reads ") + caja->Text());
}

// The k-th of `cuantas` keys spread evenly over 1..n, moved down to an approved application (the
// synthetic store leaves pending the applications ending in 0 and rejected those ending in 9).
long aprobada(int k, int cuantas, int n, int desplazamiento = 0) {
    long clave = std::min<long>(n, 1 + long((2LL * k + 1) * n / (2LL * cuantas)) + desplazamiento);
    while (clave % 10 == 0 || clave % 10 == 9)
        --clave;
    return clave;
}

struct Medida {
    double llenado = 0; // seconds to build the store
    double agregar = 0; // "Agregar", ms (information)
    double cargar = 0;  // (a) ms
    double guardar = 0; // (b) ms
};

caja::frmRecibo& pantalla() {
    auto& f = Common::Pantalla<caja::frmRecibo>();
    if (!f.isVisible()) {
        f.Show();
        QCoreApplication::processEvents(); // shown and laid out, as on the clerk's desktop
    }
    activar(f);
    return f;
}

double agregar(caja::frmRecibo& f) {
    QElapsedTimer reloj;
    reloj.start();
    botonVisible(f, QStringLiteral("Agregar"))->click();
    const double t = reloj.nsecsElapsed() / 1e6;
    sinPantallasInesperadas(QStringLiteral("Agregar"));
    exigir(f.enEdicion() && f.Agregando && Common::DE().CN.nivelTransaccion() == 1,
           QStringLiteral("\"Agregar\" opened no transaction"));
    return t;
}

// (a): the number typed, then Tab; returns the time of the Tab, the field's validate step in it.
double cargarSolicitud(caja::frmRecibo& f, long clave) {
    QCoreApplication::processEvents(); // what the screen had pending, outside the figure
    escribir(f, f.txtNumeroSolicitud, QString::number(clave));
    QElapsedTimer reloj;
    reloj.start();
    tecla(f.txtNumeroSolicitud, Qt::Key_Tab);
    const double t = reloj.nsecsElapsed() / 1e6;
    sinPantallasInesperadas(QStringLiteral("application %1").arg(clave));
    exigir(f.focusWidget() != f.txtNumeroSolicitud, QStringLiteral("Tab did not leave the field"));
    return t;
}

// What the screen shows after (a) must be the application's: its client and code, and the five
// balances as the view gives them, read from the file beside the store.
void comprobarCarga(const BaseDePrueba& base, caja::frmRecibo& f, long clave) {
    const long cliente = 1 + (clave - 1) / 2;
    exigir(f.SolicitudID == clave,
           QStringLiteral("SolicitudID %1 instead of %2").arg(f.SolicitudID).arg(clave));
    exigir(f.txtNombreCliente->Text() == QStringLiteral("NOMBRE %1 APELLIDO %1").arg(cliente),
           QStringLiteral("name shown: ") + f.txtNombreCliente->Text());
    exigir(f.lblCodigo->text() == QStringLiteral("A%1").arg(cliente),
           QStringLiteral("code shown: ") + f.lblCodigo->text());
    exigir(f.fgSaldos->Rows() == 2, QStringLiteral("%1 rows of balances").arg(f.fgSaldos->Rows()));
    const QStringList vista =
        base.valor(QStringLiteral("SELECT printf('%.2f|%.2f|%.2f|%.2f|%.2f', Enganche, PrimerPago, Total, "
                                  "CuotaMensual, Mora) FROM vwSaldosXSolicitud WHERE SolicitudID = %1")
                       .arg(clave))
            .split(QLatin1Char('|'));
    for (int c = 0; c < 5; ++c)
        exigir(f.fgSaldos->TextMatrix(1, c) == vista.value(c),
               QStringLiteral("balance %1 shows %2, the view %3")
                   .arg(c)
                   .arg(f.fgSaldos->TextMatrix(1, c), vista.value(c)));
}

void cancelar(caja::frmRecibo& f) {
    botonVisible(f, QStringLiteral("Cancelar"))->click();
    sinPantallasInesperadas(QStringLiteral("Cancelar"));
    exigir(!f.enEdicion() && Common::DE().CN.nivelTransaccion() == 0,
           QStringLiteral("\"Cancelar\" left a transaction open"));
}

void medirCargas(const BaseDePrueba& base, caja::frmRecibo& f, int solicitudes, std::vector<double>& cargas,
                 std::vector<double>& agregados) {
    for (int k = -1; k < kCargas; ++k) {
        const long clave = k < 0 ? aprobada(0, 3, solicitudes) : aprobada(k, kCargas, solicitudes);
        activar(f);
        const double a = agregar(f);
        const double t = cargarSolicitud(f, clave);
        comprobarCarga(base, f, clave);
        cancelar(f);
        if (k < 0) continue;
        agregados.push_back(a);
        cargas.push_back(t);
    }
}

// Insert on the lines, as the clerk presses it with the grid in focus.
void insertar(caja::frmRecibo& f) {
    f.fgDetalle->setFocus(Qt::TabFocusReason);
    f.fgDetalle->setRow(f.fgDetalle->Rows() - 1);
    tecla(f.fgDetalle, Qt::Key_Insert);
}

// (b): a receipt of the application with its 5 lines and the cash; returns the time of "Guardar".
double guardarUno(const BaseDePrueba& base, caja::frmRecibo& f, long clave) {
    activar(f);
    agregar(f);
    const QString numero = f.txtNumeroRecibo->Text();
    cargarSolicitud(f, clave);
    comprobarCarga(base, f, clave);
    const QString moraAntes = base.valor(
        QStringLiteral("SELECT printf('%.2f', Mora) FROM Solicitud WHERE SolicitudID = %1").arg(clave));

    // The balances as the clerk reads them decide the first line.
    const auto saldo = [&f](int c) { return runtime::Val(f.fgSaldos->TextMatrix(1, c)); };
    const bool enganche = saldo(0) > 0;
    exigir(enganche || saldo(1) > 0, QStringLiteral("neither enganche nor first payment pending"));
    struct Linea {
        QString concepto;
        double valor;
    };
    const std::vector<Linea> lineas = {
        {enganche ? QStringLiteral("Enganche") : QStringLiteral("Primer pago"), saldo(enganche ? 0 : 1)},
        {QStringLiteral("Cuota mensual"), saldo(3)},
        {QStringLiteral("Mora"), saldo(4) + kMora},
        {QStringLiteral("Gastos de cobranza"), 35},
        {QStringLiteral("Flete"), 75},
    };
    double total = 0;
    for (const Linea& l : lineas) {
        activar(f);
        elegirConcepto(l.concepto);
        if (l.concepto == QLatin1String("Mora"))
            agregarMora(runtime::Format(kMora, QStringLiteral("#0.00")));
        else if (l.concepto.startsWith(QLatin1String("Gastos")) || l.concepto == QLatin1String("Flete"))
            darValor(runtime::Format(l.valor, QStringLiteral("#0.00")));
        insertar(f);
        sinPantallasInesperadas(QStringLiteral("line ") + l.concepto);
        const int fila = f.fgDetalle->Rows() - 1;
        exigir(f.fgDetalle->TextMatrix(fila, 3) == l.concepto &&
                   f.fgDetalle->TextMatrix(fila, 4) == runtime::Format(l.valor, QStringLiteral("#0.00")),
               QStringLiteral("line %1: %2 at %3")
                   .arg(l.concepto, f.fgDetalle->TextMatrix(fila, 3), f.fgDetalle->TextMatrix(fila, 4)));
        total += l.valor;
    }
    exigir(f.fgDetalle->Rows() == kLineas + 1, QStringLiteral("%1 grid rows").arg(f.fgDetalle->Rows()));
    exigir(f.lblTotal->text() == QString::number(total, 'f', 2),
           QStringLiteral("total %1, expected %2").arg(f.lblTotal->text()).arg(total, 0, 'f', 2));

    // Cash to the next hundred above the total, the field left.
    activar(f);
    const double efectivo = std::ceil(total / 100) * 100 + 100;
    escribir(f, f.panBanco->txtEfectivo, QString::number(efectivo, 'f', 0));
    tecla(f.panBanco->txtEfectivo, Qt::Key_Tab);
    sinPantallasInesperadas(QStringLiteral("Efectivo"));
    exigir(runtime::Val(f.panBanco->lblTotalRecibido->text()) == efectivo,
           QStringLiteral("\"Total recibido:\" reads ") + f.panBanco->lblTotalRecibido->text());

    // Nothing of the receipt is committed yet: the file, read beside the store, has neither the row
    // nor the mora added.
    const QString consultaRecibo =
        QStringLiteral("SELECT count(*) FROM Recibo WHERE NumeroRecibo = %1").arg(numero);
    exigir(base.valor(consultaRecibo) == QLatin1String("0"),
           QStringLiteral("receipt committed before \"Guardar\""));
    exigir(base.valor(QStringLiteral("SELECT printf('%.2f', Mora) FROM Solicitud WHERE SolicitudID = %1")
                          .arg(clave)) == moraAntes,
           QStringLiteral("mora committed before \"Guardar\""));
    QCoreApplication::processEvents();

    QElapsedTimer reloj;
    reloj.start();
    botonVisible(f, QStringLiteral("Guardar"))->click();
    const double tiempo = reloj.nsecsElapsed() / 1e6;

    sinPantallasInesperadas(QStringLiteral("Guardar for application %1").arg(clave));
    exigir(!f.enEdicion() && !f.Editando, QStringLiteral("\"Guardar\" left the screen editing"));
    exigir(Common::TransaccionActiva == 0,
           QStringLiteral("TransaccionActiva left at %1").arg(Common::TransaccionActiva));
    exigir(Common::DE().CN.nivelTransaccion() == 0, QStringLiteral("a transaction left open"));
    // The row, its lines and the mora, committed together: read from the file beside the store.
    exigir(base.valor(consultaRecibo) == QLatin1String("1"), QStringLiteral("the receipt was not committed"));
    const QString fila = base.valor(
        QStringLiteral(
            "SELECT SolicitudID || '|' || printf('%.2f', Efectivo) || '|' || printf('%.2f', Vuelto) || "
            "'|' || (SELECT count(*) FROM ReciboDetalle RD WHERE RD.ReciboID = R.ReciboID) || '|' || "
            "(SELECT printf('%.2f', total(Cantidad * Valor)) FROM ReciboDetalle RD "
            "WHERE RD.ReciboID = R.ReciboID) FROM Recibo R WHERE NumeroRecibo = %1")
            .arg(numero));
    const QString esperada = QStringLiteral("%1|%2|%3|%4|%5")
                                 .arg(clave)
                                 .arg(efectivo, 0, 'f', 2)
                                 .arg(efectivo - total, 0, 'f', 2)
                                 .arg(kLineas)
                                 .arg(total, 0, 'f', 2);
    exigir(fila == esperada, QStringLiteral("receipt committed as %1, expected %2").arg(fila, esperada));
    const QString moraDespues = base.valor(
        QStringLiteral("SELECT printf('%.2f', Mora) FROM Solicitud WHERE SolicitudID = %1").arg(clave));
    exigir(runtime::Val(moraDespues) == runtime::Val(moraAntes) + kMora,
           QStringLiteral("mora %1 after the save, %2 before").arg(moraDespues, moraAntes));
    return tiempo;
}

std::vector<double> medirGuardados(const BaseDePrueba& base, caja::frmRecibo& f, int solicitudes) {
    std::vector<double> tiempos;
    for (int k = -1; k < kGuardados; ++k) {
        // Not the applications (a) loaded: one key further on, or two.
        const long clave = k < 0 ? aprobada(1, 3, solicitudes) : aprobada(k, kGuardados, solicitudes, 3);
        const double t = guardarUno(base, f, clave);
        if (k >= 0) tiempos.push_back(t);
    }
    return tiempos;
}

Medida medir(int solicitudes) {
    BaseDePrueba base(true);
    QElapsedTimer llenado;
    llenado.start();
    llenarTiendaSintetica(base, solicitudes);
    Medida m;
    m.llenado = llenado.elapsed() / 1000.0;
    std::printf("store of %d applications built in %.1f s\n", solicitudes, m.llenado);
    std::fflush(stdout);

    Common::DE().CN.Open();
    {
        auto& f = pantalla();
        std::vector<double> cargas, agregados;
        medirCargas(base, f, solicitudes, cargas, agregados);
        m.cargar = mediana(cargas);
        m.agregar = mediana(agregados);
        m.guardar = mediana(medirGuardados(base, f, solicitudes));
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
    instalarConductor();
    Medida a, b;
    if (!medirAmbas("bench_recibo", medir, pequena, a, b)) return 2;
    const double razonCargar = b.cargar / a.cargar, razonGuardar = b.guardar / a.guardar;
    std::printf("\nfrmRecibo, milliseconds (median)             %10d %10d   ratio\n", pequena, pequena * 10);
    std::printf("%-44s %10.2f %10.2f %7.2f\n", "(a) application loaded, number left", a.cargar, b.cargar,
                razonCargar);
    std::printf("%-44s %10.2f %10.2f %7.2f\n", "(b) \"Guardar\" of 5 lines, one transaction", a.guardar,
                b.guardar, razonGuardar);
    std::printf("%-44s %10.2f %10.2f %7.2f   (not held to the limit)\n", "    \"Agregar\", the next number",
                a.agregar, b.agregar, b.agregar / a.agregar);
    std::printf("stores built in %.1f s and %.1f s; (a) median of %d, (b) median of %d\n", a.llenado,
                b.llenado, kCargas, kGuardados);
    return salidaPorRazones({{"(a)", razonCargar}, {"(b)", razonGuardar}}, kTope);
}
