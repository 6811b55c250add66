// The goods-in note screen must save a note and show it again in the same time whatever the number of
// notes in the store. Builds a synthetic store of N and of 10 x N goods-in notes (10,000 and 100,000
// unless another N is given; the store holds as many applications as notes, one article per 20 of
// them, so each article has received 100 goods-in lines at either size) and, on the real
// frmNotaIngreso of each, measures:
//
//  (a) "Guardar" of a note of 20 lines made as the clerk makes it: "Agregar" (the next number
//      proposed), "Proveedor >" with a supplier picked in the list, a description typed, then 20 lines
//      added with Insert through frmNotaIngresoArticulo: 18 existing articles found with the dialog's
//      "Buscar" in the article search, and 2 new articles described after "Nuevo" (a "*" line), each
//      given its quantity and cost. "Guardar" runs the checks, writes the row and reads it back by its
//      key, deletes the note's lines by its key, creates the 2 new articles (each inserted and read
//      back by its key) and inserts the 20 lines, then commits.
//  (b) showing that note again, picked in the search screen, from the pick on: the key in Parametros
//      and the search screen gone, then the screen's own steps to the end of "Buscar": adoIngreso's
//      RecordSource by the key joined to the supplier, Refresh, MostrarIngreso (the date, supplier and
//      number from the row, the 20 lines from vwNotaIngresoDetalle with each article's stock). The
//      search screen itself reads the whole of vwBuscaNotaIngreso on opening, which grows with the
//      store; that is left out of the figure, and the whole click is printed beside it for
//      information.
//
// Every statement of both is a lookup by key or through an index on the key: the note's row by its
// key, its lines by ixNotaIngresoDetalleNota, a new article by its key, and in (b) each line's article
// by its key and its stock through the movement indexes by article (ixNotaIngresoDetalleArticulo,
// ixNotaEnvioDetalleArticulo), which hold as many lines per article at both sizes. None reads a row of
// another note, so the work does not grow with the store; only the B-trees get deeper. The article
// search of the line dialog reads the whole catalogue (500 and 5,000 articles) for every line; that is
// the clerk's way and comes before "Guardar", outside the figure.
//
// The existing articles are spread over the whole catalogue (a prime stride), none twice in a store.
// The 22 notes are saved first (one to warm up), then shown again in the same order, so that no save
// follows the search screen's reading of the whole view; the figures are medians. Each save is checked
// against the file: nothing of the note or its new articles committed before "Guardar", then the row
// with its supplier and description and its 20 lines committed together, each existing article's stock
// in vwBuscaArticulo risen by its line's quantity and each new article created with the line's
// quantity in stock, no transaction left open. Each showing is checked: the number, the supplier, the
// description, the 20 lines and their total. The modal screens expected (the supplier list, the line
// dialog, the article and note searches) are answered in their order; any other one, a message above
// all, fails the run. The machine should be quiet: the two stores are measured one after the other.
//
// Prints the milliseconds at each size and their ratio; exits with 1 when a ratio is above 1.2, and
// with 2 when a check fails.
#include "BaseDePrueba.h"
#include "ConductorDePantallas.h"
#include "Medicion.h"
#include "TiendaSintetica.h"
#include "goods/frmNotaIngreso.h"
#include "goods/frmNotaIngresoArticulo.h"
#include "runtime/Conversion.h"
#include "runtime/Formato.h"
#include "shell/busqueda/frmBusca.h"
#include "shell/busqueda/frmListado.h"
#include "shell/common/Common.h"
#include "store/Conexion.h"
#include "store/Recordset.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <cstdio>
#include <vector>

namespace {

constexpr int kNotas = 21;       // notes saved and shown again per store, after one to warm up
constexpr int kLineas = 20;      // lines of each note
constexpr int kProveedores = 20; // the synthetic store's suppliers
constexpr double kTope = 1.2;    // the largest ratio accepted between the two sizes

// The search screen answered with the row of this key, as a double click on it would; `cronometrar`
// starts the clock of (b) once it has gone.
void elegirEnBusqueda(long clave, bool cronometrar) {
    conductor.esperadas.push_back([clave, cronometrar](shell::Formulario& f) {
        auto* busca = qobject_cast<shell::frmBusca*>(&f);
        if (!busca) return false;
        QCoreApplication::processEvents();
        store::Recordset* rs = busca->ado->Recordset();
        if (!ponerEnFila(*rs, QVariant(qlonglong(clave)))) {
            conductor.inesperadas << QStringLiteral("frmBusca without the key %1").arg(clave);
            Common::Parametros.ReDim(1);
        } else {
            Common::Parametros.ReDim(rs->FieldCount());
            for (int i = 0; i < rs->FieldCount(); ++i)
                Common::Parametros(i + 1) = rs->Fields(i).Value();
        }
        busca->Unload();
        if (cronometrar) conductor.desdeLaEleccion.start();
        return true;
    });
}

// The supplier list answered with the row of this name, as a double click on it would.
void elegirProveedor(const QString& nombre) {
    conductor.esperadas.push_back([nombre](shell::Formulario& f) {
        auto* lista = qobject_cast<shell::frmListado*>(&f);
        if (!lista) return false;
        store::Recordset* rs = lista->Adodc->Recordset();
        for (rs->MoveFirst(); !rs->Eof(); rs->MoveNext())
            if (runtime::TextoDe(rs->Fields(1).Value()) == nombre) {
                pulsarEn(f, QStringLiteral("&Aceptar"));
                return true;
            }
        conductor.inesperadas << QStringLiteral("no supplier ") + nombre + QStringLiteral(" in the list");
        pulsarEn(f, QStringLiteral("Cancelar"));
        return true;
    });
}

// One line of the note: the article, or 0 for a new one described by its name.
struct Linea {
    long articulo = 0;
    QString nombre; // a new article's
    int cantidad = 0;
    double costo = 0;
};

QString importe(double valor) {
    return runtime::Format(valor, QStringLiteral("#0.00"));
}

// The line dialog: an existing article found with "Buscar" (the article search answered next), or a
// new one after "Nuevo" with both margins given as a percentage; then quantity and cost, "&Aceptar".
void darLinea(const Linea& l) {
    conductor.esperadas.push_back([l](shell::Formulario& f) {
        auto* d = qobject_cast<mercaderia::frmNotaIngresoArticulo*>(&f);
        if (!d) return false;
        if (l.articulo > 0) {
            pulsarEn(f, QStringLiteral("Buscar"));
            if (d->txtNombre->Text() != QStringLiteral("Articulo %1").arg(l.articulo))
                conductor.inesperadas
                    << QStringLiteral("article %1 shown as %2").arg(l.articulo).arg(d->txtNombre->Text());
        } else {
            pulsarEn(f, QStringLiteral("Nuevo"));
            d->txtNombre->setText(l.nombre);
            d->txtModelo->setText(QStringLiteral("N1"));
            d->txtColor->setText(QStringLiteral("Negro"));
            (*d->optContado)(0)->click();
            d->txtContadoPorcentaje->setText(QStringLiteral("25"));
            (*d->optCredito)(0)->click();
            d->txtCreditoPorcentaje->setText(QStringLiteral("40"));
        }
        d->txtCantidad->setText(QString::number(l.cantidad));
        d->txtCosto->setText(importe(l.costo));
        pulsarEn(f, QStringLiteral("&Aceptar"));
        return true;
    });
    if (l.articulo > 0) elegirEnBusqueda(l.articulo, false);
}

void activar(mercaderia::frmNotaIngreso& f) {
    f.activateWindow();
    QCoreApplication::processEvents();
    exigir(QApplication::activeWindow() == &f, QStringLiteral("frmNotaIngreso did not become active"));
}

// Insert on the lines, as the clerk presses it with the grid in focus.
void insertar(mercaderia::frmNotaIngreso& f) {
    f.fgDetalle->setFocus(Qt::TabFocusReason);
    f.fgDetalle->setRow(f.fgDetalle->Rows() - 1);
    tecla(f.fgDetalle, Qt::Key_Insert);
}

struct Medida {
    double llenado = 0;      // seconds to build the store
    double guardar = 0;      // (a) ms
    double mostrar = 0;      // (b) ms, from the pick on
    double buscarEntero = 0; // the whole "Buscar" click, the search screen included (information)
};

// What a saved note must show again.
struct NotaGuardada {
    long clave = 0;
    QString numero, proveedor, descripcion, total;
};

mercaderia::frmNotaIngreso& pantalla() {
    auto& f = Common::Pantalla<mercaderia::frmNotaIngreso>();
    if (!f.isVisible()) {
        f.Show();
        QCoreApplication::processEvents();
    }
    activar(f);
    return f;
}

QString existencia(const BaseDePrueba& base, long articulo) {
    return base.valor(
        QStringLiteral("SELECT shw1000_dbl_Existencia FROM vwBuscaArticulo WHERE hidID = %1").arg(articulo));
}

// (a): the k-th note of the store (k from -1, the warm-up); returns the time of "Guardar".
double guardarUna(const BaseDePrueba& base, mercaderia::frmNotaIngreso& f, int k, int articulos,
                  NotaGuardada& nota) {
    activar(f);
    botonVisible(f, QStringLiteral("Agregar"))->click();
    sinPantallasInesperadas(QStringLiteral("Agregar"));
    exigir(f.Editando && Common::DE().CN.nivelTransaccion() == 1,
           QStringLiteral("\"Agregar\" opened no transaction"));
    nota.numero = f.txtNumeroIngreso->Text();
    exigir(runtime::Val(nota.numero) > 0, QStringLiteral("no number proposed"));

    activar(f);
    nota.proveedor = QStringLiteral("Proveedor %1").arg(1 + (k + 1) % kProveedores);
    elegirProveedor(nota.proveedor);
    f.cmdProveedor->click();
    sinPantallasInesperadas(QStringLiteral("Proveedor >"));
    exigir(f.lblNombre->text() == nota.proveedor, QStringLiteral("supplier shown: ") + f.lblNombre->text());

    activar(f);
    nota.descripcion = QStringLiteral("Compra %1").arg(nota.numero);
    f.txtDescripcion->setFocus(Qt::TabFocusReason);
    f.txtDescripcion->selectAll();
    for (const QChar c : nota.descripcion)
        tecla(f.txtDescripcion,
              c.isDigit() ? Qt::Key(Qt::Key_0 + c.digitValue())
                          : (c == QLatin1Char(' ') ? Qt::Key_Space : Qt::Key_A),
              QString(c));
    tecla(f.txtDescripcion, Qt::Key_Tab);
    sinPantallasInesperadas(QStringLiteral("description"));
    exigir(f.txtDescripcion->Text() == nota.descripcion,
           QStringLiteral("description reads ") + f.txtDescripcion->Text());

    // 18 articles of the catalogue, a prime stride over it, and 2 new ones.
    std::vector<Linea> lineas;
    double total = 0;
    for (int j = 0; j < kLineas; ++j) {
        Linea l;
        if (j % 10 == 9)
            l.nombre = QStringLiteral("Nuevo %1-%2").arg(nota.numero).arg(j);
        else
            l.articulo = 1 + (long((k + 1) * kLineas + j) * 104729) % articulos;
        l.cantidad = 1 + j % 5;
        l.costo = 100 + 5 * j + 0.5;
        total += l.cantidad * l.costo;
        lineas.push_back(l);

        activar(f);
        darLinea(l);
        insertar(f);
        sinPantallasInesperadas(QStringLiteral("line %1").arg(j + 1));
        exigir(f.fgDetalle->Rows() == j + 2,
               QStringLiteral("%1 grid rows after line %2").arg(f.fgDetalle->Rows()).arg(j + 1));
        const QString clave = l.articulo > 0 ? QString::number(l.articulo) : QStringLiteral("*");
        exigir(f.fgDetalle->TextMatrix(j + 1, 0) == clave &&
                   f.fgDetalle->TextMatrix(j + 1, 7) == QString::number(l.cantidad),
               QStringLiteral("line %1 reads %2 x %3")
                   .arg(j + 1)
                   .arg(f.fgDetalle->TextMatrix(j + 1, 0), f.fgDetalle->TextMatrix(j + 1, 7)));
    }
    activar(f);
    nota.total = importe(total);
    exigir(f.lblTotal->text() == nota.total,
           QStringLiteral("total %1, expected %2").arg(f.lblTotal->text(), nota.total));

    // Nothing committed yet: the file, read beside the store, has neither the note nor its new
    // articles; each existing article's stock as it stands.
    const QString consultaNota =
        QStringLiteral("SELECT max(IngresoID) FROM NotaIngreso WHERE NumeroIngreso = %1").arg(nota.numero);
    exigir(base.valor(consultaNota).isEmpty(), QStringLiteral("note committed before \"Guardar\""));
    std::vector<double> antes;
    for (const Linea& l : lineas) {
        if (l.articulo > 0)
            antes.push_back(existencia(base, l.articulo).toDouble());
        else
            exigir(base.valor(
                       QStringLiteral("SELECT count(*) FROM Articulo WHERE Nombre = '%1'").arg(l.nombre)) ==
                       QLatin1String("0"),
                   QStringLiteral("article %1 committed before \"Guardar\"").arg(l.nombre));
    }
    QCoreApplication::processEvents();

    QElapsedTimer reloj;
    reloj.start();
    botonVisible(f, QStringLiteral("Guardar"))->click();
    const double tiempo = reloj.nsecsElapsed() / 1e6;

    sinPantallasInesperadas(QStringLiteral("Guardar of note %1").arg(nota.numero));
    exigir(!f.Editando && !f.enEdicion(), QStringLiteral("\"Guardar\" left the screen editing"));
    exigir(Common::TransaccionActiva == 0 && Common::DE().CN.nivelTransaccion() == 0,
           QStringLiteral("a transaction left open"));
    nota.clave = base.valor(consultaNota).toLong();
    exigir(nota.clave > 0, QStringLiteral("the note was not committed"));
    const QString fila = base.valor(
        QStringLiteral("SELECT P.Nombre || '|' || N.Descripcion || '|' || (SELECT count(*) || '|' || "
                       "total(Cantidad) || '|' || printf('%.2f', total(Cantidad * Costo)) FROM "
                       "NotaIngresoDetalle D WHERE D.IngresoID = N.IngresoID) FROM NotaIngreso N JOIN "
                       "Proveedor P ON P.ProveedorID = N.ProveedorID WHERE N.IngresoID = %1")
            .arg(nota.clave));
    int unidades = 0;
    for (const Linea& l : lineas)
        unidades += l.cantidad;
    const QString esperada = QStringLiteral("%1|%2|%3|%4.0|%5")
                                 .arg(nota.proveedor, nota.descripcion)
                                 .arg(kLineas)
                                 .arg(unidades)
                                 .arg(nota.total);
    exigir(fila == esperada, QStringLiteral("note committed as %1, expected %2").arg(fila, esperada));
    auto previa = antes.begin();
    for (const Linea& l : lineas) {
        if (l.articulo > 0) {
            const double ahora = existencia(base, l.articulo).toDouble();
            exigir(ahora == *previa++ + l.cantidad,
                   QStringLiteral("article %1: stock %2 after the save").arg(l.articulo).arg(ahora));
        } else {
            const QString creado = base.valor(
                QStringLiteral("SELECT A.hidID || '|' || A.shw1000_dbl_Existencia || '|' || (SELECT count(*) "
                               "FROM NotaIngresoDetalle D WHERE D.IngresoID = %1 AND D.ArticuloID = "
                               "A.hidID) FROM vwBuscaArticulo A WHERE shw3800_str_Descripcion_del_articulo "
                               "= '%2'")
                    .arg(nota.clave)
                    .arg(l.nombre));
            const QStringList partes = creado.split(QLatin1Char('|'));
            exigir(partes.size() == 3 && partes[1].toDouble() == l.cantidad &&
                       partes[2] == QLatin1String("1"),
                   QStringLiteral("new article %1 committed as %2").arg(l.nombre, creado));
        }
    }
    return tiempo;
}

// (b): the note picked in "Buscar"; returns the time from the pick on.
double mostrarUna(mercaderia::frmNotaIngreso& f, const NotaGuardada& nota, double& entero) {
    activar(f);
    elegirEnBusqueda(nota.clave, true);
    QElapsedTimer reloj;
    reloj.start();
    botonVisible(f, QStringLiteral("Buscar"))->click();
    const double desdeLaEleccion = conductor.desdeLaEleccion.nsecsElapsed() / 1e6;
    entero = reloj.nsecsElapsed() / 1e6;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    sinPantallasInesperadas(QStringLiteral("Buscar %1").arg(nota.clave));
    exigir(f.txtNumeroIngreso->Text() == nota.numero && f.lblNombre->text() == nota.proveedor &&
               f.txtDescripcion->Text() == nota.descripcion,
           QStringLiteral("note shown: %1, %2, %3")
               .arg(f.txtNumeroIngreso->Text(), f.lblNombre->text(), f.txtDescripcion->Text()));
    exigir(f.fgDetalle->Rows() == kLineas + 1 && f.lblTotal->text() == nota.total,
           QStringLiteral("%1 grid rows, total %2").arg(f.fgDetalle->Rows()).arg(f.lblTotal->text()));
    return desdeLaEleccion;
}

Medida medir(int notas) {
    const int solicitudes = notas; // one application per note: the catalogue grows with the store
    BaseDePrueba base(true);
    QElapsedTimer llenado;
    llenado.start();
    llenarTiendaSintetica(base, solicitudes, notas);
    Medida m;
    m.llenado = llenado.elapsed() / 1000.0;
    const int articulos = articulosDeTiendaSintetica(solicitudes);
    exigir(base.valor(QStringLiteral("SELECT count(*) FROM NotaIngreso")) == QString::number(notas),
           QStringLiteral("the store holds %1 notes")
               .arg(base.valor(QStringLiteral("SELECT count(*) FROM NotaIngreso"))));
    std::printf("store of %d goods-in notes (%d articles) built in %.1f s\n", notas, articulos, m.llenado);
    std::fflush(stdout);

    Common::DE().CN.Open();
    {
        auto& f = pantalla();
        // All the saves first, then all the showings: a save that followed a search would find
        // SQLite's page cache emptied by the search screen's whole view, at 100,000 more than at 10,000.
        std::vector<double> guardados, mostrados, enteros;
        std::vector<NotaGuardada> guardadas;
        for (int k = -1; k < kNotas; ++k) {
            NotaGuardada nota;
            const double g = guardarUna(base, f, k, articulos, nota);
            guardadas.push_back(nota);
            if (k >= 0) guardados.push_back(g);
        }
        for (int k = -1; k < kNotas; ++k) {
            double entero = 0;
            const double t = mostrarUna(f, guardadas[k + 1], entero);
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
    instalarConductor();
    Medida a, b;
    if (!medirAmbas("bench_ingreso", medir, pequena, a, b)) return 2;
    const double razonGuardar = b.guardar / a.guardar, razonMostrar = b.mostrar / a.mostrar;
    std::printf("\nfrmNotaIngreso, milliseconds (median)        %10d %10d   ratio\n", pequena, pequena * 10);
    std::printf("%-44s %10.2f %10.2f %7.2f\n", "(a) \"Guardar\" of 20 lines, one transaction", a.guardar,
                b.guardar, razonGuardar);
    std::printf("%-44s %10.2f %10.2f %7.2f\n", "(b) note shown again, from the pick on", a.mostrar, b.mostrar,
                razonMostrar);
    std::printf("%-44s %10.1f %10.1f %7.2f   (not held to the limit)\n",
                "    whole \"Buscar\", search screen included", a.buscarEntero, b.buscarEntero,
                b.buscarEntero / a.buscarEntero);
    std::printf("(b) leaves out the search screen, which reads the whole of vwBuscaNotaIngreso on opening\n");
    std::printf("stores built in %.1f s and %.1f s; medians of %d\n", a.llenado, b.llenado, kNotas);
    return salidaPorRazones({{"(a)", razonGuardar}, {"(b)", razonMostrar}}, kTope);
}
