// The search screen as a clerk uses it: opened by a caller over a view, laid out from the view's
// column names, filtered by typing in the boxes and pressing "&Buscar", a row picked by a double click,
// or left by the close box.
#include "BaseDePrueba.h"
#include "EntornoDePantallas.h"
#include "runtime/Conversion.h"
#include "shell/busqueda/frmBusca.h"
#include "shell/common/Common.h"
#include "shell/common/Twips.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QtTest>

using namespace shell;

namespace {

// The columns are named, so that what the view adds later beside them leaves these layouts alone.
const QString kColumnas = QStringLiteral("hidID, shw1200_int_No_Nota, shw1200_dat_Fecha, "
                                         "shw2500_str_Descripcion_general, shw1200_dbl_Total, "
                                         "shw1200_dbl_Cancelado, hidProveedorID");
const QString kVista = QStringLiteral("Select %1 From vwSaldosXNotaIngreso").arg(kColumnas);
const QString kVistaConWhere =
    QStringLiteral("Select %1 From vwSaldosXNotaIngreso Where hidProveedorID = 1").arg(kColumnas);
const QString kTitulo = QStringLiteral("Busca notas de ingreso");

// Three goods-in notes: 101 (1,500.50, "Refrigeradoras MUÑOZ"), 102 (800.00, "Estufas", another
// supplier) and 250 (nothing brought in yet, "Lavadoras").
const char* const kNotas = R"(
INSERT INTO Proveedor (ProveedorID, Nombre) VALUES (1, 'Distribuidora Central'), (2, 'Electro Sur');
INSERT INTO Articulo (ArticuloID, Nombre) VALUES (1, 'Refrigeradora'), (2, 'Estufa');
INSERT INTO NotaIngreso (IngresoID, NumeroIngreso, ProveedorID, Fecha, Descripcion) VALUES
    (1, 101, 1, '2026-11-22', 'Refrigeradoras MUÑOZ'),
    (2, 102, 2, '2026-11-23', 'Estufas'),
    (3, 250, 1, '2026-12-01', 'Lavadoras');
INSERT INTO NotaIngresoDetalle (IngresoID, ArticuloID, Cantidad, Costo) VALUES (1, 1, 2, 750.25), (2, 2, 1, 800);
)";

QLineEdit* caja(QWidget* f, int k) {
    return control<QLineEdit>(f, QStringLiteral("txtField(%1)").arg(k));
}
QFrame* forma(QWidget* f, int k) {
    return control<QFrame>(f, QStringLiteral("shpBox(%1)").arg(k));
}
QPushButton* boton(QWidget* f, int i) {
    return control<QPushButton>(f, QStringLiteral("cmdBoton(%1)").arg(i));
}

// What the grid shows in one column, row by row.
QStringList columnaMostrada(const frmBusca& f, int columna) {
    QStringList celdas;
    for (int fila = 0; fila < f.dg->model()->rowCount(); ++fila)
        celdas << f.dg->model()->index(fila, columna).data().toString();
    return celdas;
}

// The text of the boxes 1 to 5.
QStringList cajas(frmBusca& f) {
    QStringList textos;
    for (int k = 1; k <= 5; ++k)
        textos << caja(&f, k)->text();
    return textos;
}

// Types in the boxes (1 to n, an empty text leaves the box alone) and presses "&Buscar".
void buscar(frmBusca& f, const QStringList& textos) {
    for (int k = 0; k < textos.size(); ++k)
        if (!textos[k].isEmpty()) teclear(caja(&f, k + 1), textos[k]);
    QTest::mouseClick(boton(&f, 0), Qt::LeftButton);
}

} // namespace

class TstBusca : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void seArmaConLosNombresDeLaVista();
    void buscarComponeLaCondicion_data();
    void buscarComponeLaCondicion();
    void devuelveLaFilaEntera_data();
    void devuelveLaFilaEntera();
    void cadaCargaArmaSusPropiasCajas();
    void filtroDelSaldoDeLosPagos_data();
    void filtroDelSaldoDeLosPagos();

private:
    // Opens the search as a caller does, runs `accion` while it is shown and, if the action did not
    // leave the screen, closes it with the close box.
    void abrir(const QString& consulta, const QString& titulo, const std::function<void(frmBusca&)>& accion);

    std::unique_ptr<BaseDePrueba> base_;
    std::unique_ptr<EntornoDePantallas> entorno_;
};

void TstBusca::init() {
    base_ = std::make_unique<BaseDePrueba>(true);
    base_->sqlite(QString::fromUtf8(kNotas));
    entorno_ = std::make_unique<EntornoDePantallas>();
    Common::DE().CN.Open();
}

void TstBusca::cleanup() {
    entorno_.reset();
    if (Common::DE().CN.State() == store::adStateOpen) Common::DE().CN.Close();
    base_.reset();
}

void TstBusca::abrir(const QString& consulta, const QString& titulo,
                     const std::function<void(frmBusca&)>& accion) {
    Common::ConsultaBusqueda = consulta;
    auto& f = Common::Pantalla<frmBusca>();
    f.lblTitulo->setText(titulo);
    f.Move(300, 300);
    entorno_->alMostrarModal([&](Formulario& p) {
        QVERIFY(QTest::qWaitForWindowExposed(&p));
        accion(static_cast<frmBusca&>(p));
        if (!p.descargado())
            QTest::mouseClick(control<QPushButton>(&p, QStringLiteral("cmdClose")), Qt::LeftButton);
    });
    f.ShowModal();
    QVERIFY(f.descargado());
}

// Each column by its name: shw columns shown with their caption, width and the alignment of their
// type, one box over each tagged with the raw name; hid columns hidden. The screen is as wide as its
// columns, with room for the grid's frame and a vertical scroll bar.
void TstBusca::seArmaConLosNombresDeLaVista() {
    abrir(kVista, kTitulo, [](frmBusca& f) {
        struct Columna {
            const char* encabezado;
            double ancho; // 0: hidden
            Qt::Alignment alineacion;
            const char* tag;
        };
        const Columna columnas[] = {
            {"hidID", 0, {}, nullptr},
            {"No Nota", 1200, Qt::AlignRight, "shw1200_int_No_Nota"},
            {"Fecha", 1200, Qt::AlignHCenter, "shw1200_dat_Fecha"},
            {"Descripcion general", 2500, Qt::AlignLeft, "shw2500_str_Descripcion_general"},
            {"Total", 1200, Qt::AlignRight, "shw1200_dbl_Total"},
            {"Cancelado", 1200, Qt::AlignRight, "shw1200_dbl_Cancelado"},
            {"hidProveedorID", 0, {}, nullptr}};
        QCOMPARE(f.dg->ColumnCount(), 7);
        double X = f.dg->Columns(1).Left();
        for (int i = 0, k = 0; i < 7; ++i) {
            const Columna& c = columnas[i];
            QCOMPARE(f.dg->model()->headerData(i, Qt::Horizontal).toString(), QString(c.encabezado));
            QCOMPARE(f.dg->isColumnHidden(i), c.ancho == 0);
            if (c.ancho == 0) continue;
            X += c.ancho;
            QCOMPARE(f.dg->columnWidth(i), px(c.ancho));
            const auto alineacion =
                f.dg->model()->index(0, i).data(Qt::TextAlignmentRole).value<Qt::Alignment>();
            QCOMPARE(alineacion & Qt::AlignHorizontal_Mask, c.alineacion);
            ++k;
            QCOMPARE(caja(&f, k)->property("Tag").toString(), QString(c.tag));
            QVERIFY(caja(&f, k)->isVisible() && forma(&f, k)->isVisible());
            const int x = f.dg->x() + f.dg->viewport()->x() + f.dg->columnViewportPosition(i);
            QVERIFY2(qAbs(forma(&f, k)->x() - x) <= 1, c.encabezado);
            QVERIFY(qAbs(forma(&f, k)->width() - f.dg->columnWidth(i)) <= 1);
        }
        QVERIFY(!caja(&f, 6));
        QVERIFY(caja(&f, 0)->isHidden() && forma(&f, 0)->isHidden());
        QCOMPARE(f.dg->width(), px(X + 300));
        QCOMPARE(f.Width(), anchoTw(f.dg) + 120 + 180);
        QCOMPARE(f.dg->horizontalScrollBar()->maximum(), 0);

        // Dates day first; numbers as the view gives them.
        const int fila = int(columnaMostrada(f, 1).indexOf(QStringLiteral("101")));
        QStringList celdas;
        for (int i = 2; i <= 5; ++i)
            celdas << f.dg->model()->index(fila, i).data().toString();
        QCOMPARE(celdas, (QStringList{"22/11/2026", "Refrigeradoras MUÑOZ", "1500.5", "0"}));
        QCOMPARE(boton(&f, 0)->text(), QStringLiteral("&Buscar"));
        QCOMPARE(boton(&f, 1)->text(), QStringLiteral("&Limpiar busqueda"));
    });
    QCOMPARE(entorno_->titulosModales, QStringList{kTitulo});
}

void TstBusca::buscarComponeLaCondicion_data() {
    QTest::addColumn<QString>("consulta");
    QTest::addColumn<QStringList>("textos"); // boxes 1-5: No Nota, Fecha, Descripcion, Total, Cancelado
    QTest::addColumn<QString>("condicion");  // what follows the caller's query
    QTest::addColumn<QStringList>("quedan"); // the boxes afterwards
    QTest::addColumn<QStringList>("notas");  // the rows the grid then shows, by No Nota; "!": refused
    QTest::addColumn<QString>("modo");       // "teclado": Enter from box to box and on "&Buscar";
                                             // "limpiar": "&Limpiar busqueda" pressed after "&Buscar"
    // Boxes apart by "|", notes by spaces.
    const auto fila = [](const char* nombre, const QString& consulta, const char* textos,
                         const char* condicion, const char* quedan, const char* notas,
                         const char* modo = "") {
        QTest::newRow(nombre) << consulta << QString::fromUtf8(textos).split(u'|')
                              << QString::fromUtf8(condicion) << QString::fromUtf8(quedan).split(u'|')
                              << QString::fromUtf8(notas).split(u' ', Qt::SkipEmptyParts) << QString(modo);
    };
    const QString select =
        QStringLiteral("select %1 from vwSaldosXNotaIngreso where shw1200_dbl_Total > 0").arg(kColumnas);
    fila("acentos: muñoz halla MUÑOZ", kVista, "||muñoz",
         " Where shw2500_str_Descripcion_general Like '%muñoz%'", "||muñoz||", "101");
    fila("texto, con Where", kVistaConWhere, "||a", " And shw2500_str_Descripcion_general Like '%a%'",
         "||a||", "101 250");
    fila("where en minúsculas", select, "101", " And shw1200_int_No_Nota = 101", "101||||", "101");
    fila("fecha", kVista, "|22/11/2026", " Where shw1200_dat_Fecha = #22/11/2026#", "|22/11/2026|||", "101");
    fila("fecha inválida: la columna queda sola", kVista, "|31/02/2026", " Where shw1200_dat_Fecha", "||||",
         "101 102 250");
    fila("fecha inválida seguida de otra caja", kVista, "|ayer|lava",
         " Where shw1200_dat_Fecha And shw2500_str_Descripcion_general Like '%lava%'", "||lava||", "250");
    fila("número con texto detrás", kVista, "  102 unidades", " Where shw1200_int_No_Nota = 102", "102||||",
         "102");
    fila("lo que no es número es 0", kVista, "abc", " Where shw1200_int_No_Nota = 0", "0||||", "");
    fila("decimal", kVista, "|||1500.50", " Where shw1200_dbl_Total = 1500.5", "|||1500.5|", "101");
    fila("varias cajas, en el orden de las columnas", kVistaConWhere, "250||||0",
         " And shw1200_int_No_Nota = 250 And shw1200_dbl_Cancelado = 0", "250||||0", "250");
    fila("todas vacías: la consulta tal cual", kVista, "", "", "||||", "101 102 250");
    fila("limpiar: las cajas vacías y la consulta tal cual", kVistaConWhere, "||lava|abc", "", "||||",
         "101 250", "limpiar");
    fila("por teclado", kVista, "102", " Where shw1200_int_No_Nota = 102", "102||||", "102", "teclado");
    // Sent as typed: the database refuses it, and nothing here catches that (the program would end).
    fila("una comilla", kVista, "||O'Brien", " Where shw2500_str_Descripcion_general Like '%O'Brien%'",
         "||O'Brien||", "!");
}

void TstBusca::buscarComponeLaCondicion() {
    entorno_->esperaFallos(); // checked below
    QFETCH(QString, consulta);
    QFETCH(QStringList, textos);
    QFETCH(QString, condicion);
    QFETCH(QStringList, quedan);
    QFETCH(QStringList, notas);
    QFETCH(QString, modo);

    QString fuente;
    QStringList quedaron, mostradas;
    abrir(consulta, kTitulo, [&](frmBusca& f) {
        if (modo == "teclado") {
            QVERIFY(QTest::qWaitForWindowActive(&f));
            for (int k = 1; k <= 5; ++k) {
                QCOMPARE(QApplication::focusWidget(), caja(&f, k));
                teclear(caja(&f, k), textos.value(k - 1));
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            }
            QCOMPARE(QApplication::focusWidget(), boton(&f, 0));
            QCOMPARE(f.ado->RecordSource(), consulta);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); // on a button, Enter presses it
        } else {
            buscar(f, textos);
        }
        if (modo == "limpiar") QTest::mouseClick(boton(&f, 1), Qt::LeftButton);
        fuente = f.ado->RecordSource();
        quedaron = cajas(f);
        mostradas = columnaMostrada(f, 1);
        // The grid is laid out afresh from the raw names the refresh gave it.
        QCOMPARE(f.dg->model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("No Nota"));
        QVERIFY(f.dg->isColumnHidden(0));
    });
    const bool rechazada = notas == QStringList{"!"};
    QCOMPARE(entorno_->fallos.size(), rechazada ? 1 : 0);
    QCOMPARE(fuente, consulta + condicion);
    QCOMPARE(quedaron, quedan);
    mostradas.sort();
    if (!rechazada) QCOMPARE(mostradas, notas);
    QCOMPARE(Common::ConsultaBusqueda, consulta); // the caller's query is never changed
}

void TstBusca::devuelveLaFilaEntera_data() {
    QTest::addColumn<QStringList>("textos");
    QTest::addColumn<QString>("nota"); // double-clicked; empty: the close box, with a row current
    QTest::addColumn<QStringList>("fila");
    QTest::addColumn<int>("fallo");
    QTest::newRow("sin filtrar") << QStringList{} << "102"
                                 << QStringList{"2", "102", "23/11/2026", "Estufas", "800", "0", "2"} << 0;
    QTest::newRow("tras filtrar") << QStringList{"", "", "dora"} << "250"
                                  << QStringList{"3", "250", "01/12/2026", "Lavadoras", "0", "0", "1"} << 0;
    QTest::newRow("caja de cierre: nada elegido") << QStringList{} << "" << QStringList{""} << 0;
    // With no rows there is no current row to read, and nothing catches that; the screen stays, and its
    // close box still leaves.
    QTest::newRow("doble clic sin filas")
        << QStringList{"999"} << "999" << QStringList{""} << int(store::FalloSinRegistroActual);
}

// hidID comes back first and hidProveedorID last, though the grid never shows them. The close box
// leaves one empty element in place of what an earlier pick left.
void TstBusca::devuelveLaFilaEntera() {
    entorno_->esperaFallos(); // checked below
    QFETCH(QStringList, textos);
    QFETCH(QString, nota);
    QFETCH(QStringList, fila);
    QFETCH(int, fallo);

    Common::Parametros.ReDim(3);
    Common::Parametros(1) = 5;
    abrir(kVista, kTitulo, [&](frmBusca& f) {
        if (!textos.isEmpty()) buscar(f, textos);
        if (nota.isEmpty()) {
            f.dg->selectRow(1); // a current row is not a pick
            QTest::mouseClick(f.cmdClose, Qt::LeftButton);
            return;
        }
        const QRect celda =
            f.dg->visualRect(f.dg->model()->index(int(columnaMostrada(f, 1).indexOf(nota)), 1));
        QTest::mouseDClick(f.dg->viewport(), Qt::LeftButton, {},
                           celda.isValid() ? celda.center() : f.dg->viewport()->rect().center());
    });
    QCOMPARE(entorno_->fallos.size(), fallo ? 1 : 0);
    if (fallo) QCOMPARE(entorno_->fallos.first().numero(), fallo);
    QStringList devuelta;
    for (int i = 1; i <= Common::Parametros.UBound(); ++i)
        devuelta << runtime::TextoDe(Common::Parametros(i));
    QCOMPARE(devuelta, fila);
    if (nota.isEmpty()) QVERIFY(Common::Parametros.Vacio(1));
}

// The boxes are built once per load, for the query of that load: five for the notes however often it
// searches; none for a query with no shw column, whose grid is then 300 wide and whose hidden values
// still go back by position.
void TstBusca::cadaCargaArmaSusPropiasCajas() {
    int cajasTrasBuscar = 0, cajasSinColumnas = -1, anchoRejilla = 0;
    double anchoPantalla = 0;
    abrir(kVista, kTitulo, [&](frmBusca& f) {
        buscar(f, {"101"});
        buscar(f, {});
        cajasTrasBuscar = int(f.txtField.size()) - 1;
    });
    abrir(QStringLiteral("Select hidID, hidProveedorID From vwSaldosXNotaIngreso Where hidID = 2"),
          QStringLiteral("Busca"), [&](frmBusca& f) {
              cajasSinColumnas = int(f.txtField.size()) - 1;
              anchoRejilla = f.dg->width();
              anchoPantalla = f.Width();
              QCOMPARE(f.dg->model()->rowCount(), 1);
              f.dg->selectRow(0);
              QTest::mouseDClick(f.dg->viewport(), Qt::LeftButton, {}, QPoint(2, 2));
          });
    QCOMPARE(cajasTrasBuscar, 5);
    QCOMPARE(cajasSinColumnas, 0);
    QCOMPARE(anchoRejilla, px(300));
    QCOMPARE(anchoPantalla, twips(px(300)) + 120 + 180);
    QCOMPARE(Common::Parametros.UBound(), 2);
    QCOMPARE(Common::Parametros(1).toInt(), 2);
    QCOMPARE(Common::Parametros(2).toInt(), 2);
    QCOMPARE(entorno_->titulosModales, (QStringList{kTitulo, "Busca"}));
}

void TstBusca::filtroDelSaldoDeLosPagos_data() {
    QTest::addColumn<int>("proveedor");
    QTest::addColumn<QString>("texto");     // typed in the Saldo box
    QTest::addColumn<QString>("condicion"); // what "&Buscar" appends
    QTest::addColumn<QStringList>("notas"); // the rows the grid then shows, by No Nota
    QTest::addColumn<QStringList>("saldosMostrados");
    QTest::newRow("saldo con centavos de una nota pagada en parte")
        << 1 << "1000.25"
        << " And shw1200_dbl_Saldo = 1000.25" << QStringList{"101"} << QStringList{"1000.25"};
    QTest::newRow("saldo entero") << 2 << "800"
                                  << " And shw1200_dbl_Saldo = 800" << QStringList{"102"}
                                  << QStringList{"800.00"};
    QTest::newRow("escrito como se muestra")
        << 2 << "800.00"
        << " And shw1200_dbl_Saldo = 800" << QStringList{"102"} << QStringList{"800.00"};
    QTest::newRow("el total no es el saldo")
        << 1 << "1500.50"
        << " And shw1200_dbl_Saldo = 1500.5" << QStringList{} << QStringList{};
    QTest::newRow("otro saldo") << 1 << "1000.2"
                                << " And shw1200_dbl_Saldo = 1000.2" << QStringList{} << QStringList{};
}

// The payables screen lists the open notes of a supplier with their balance as formatted text under
// the name shw1200_dbl_Saldo; the number typed in that column's box must find the note it names.
void TstBusca::filtroDelSaldoDeLosPagos() {
    QFETCH(int, proveedor);
    QFETCH(QString, texto);
    QFETCH(QString, condicion);
    QFETCH(QStringList, notas);
    QFETCH(QStringList, saldosMostrados);
    base_->sqlite(QStringLiteral(
        "INSERT INTO Documento (DocumentoID, NumeroDocumento, ProveedorID, Fecha, Descripcion) "
        "VALUES (1, 1, 1, '2026-11-24', 'Abono');"
        "INSERT INTO DocumentoDetalle (DocumentoID, IngresoID, Valor) VALUES (1, 1, 500.25);"));
    const QString consulta =
        QStringLiteral(
            "Select hidID, shw1200_int_No_Nota, shw1200_dat_Fecha, shw2500_str_Descripcion_general, "
            "Format(shw1200_dbl_Total - shw1200_dbl_Cancelado,'#0.00') as shw1200_dbl_Saldo From "
            "vwSaldosXNotaIngreso Where hidProveedorID = %1 And shw1200_dbl_Total - "
            "shw1200_dbl_Cancelado > 0 ")
            .arg(proveedor);
    QString fuente;
    QStringList antes, mostradas, saldos;
    abrir(consulta, kTitulo, [&](frmBusca& f) {
        QCOMPARE(caja(&f, 4)->property("Tag").toString(), QStringLiteral("shw1200_dbl_Saldo"));
        antes = columnaMostrada(f, 1);
        buscar(f, {"", "", "", texto});
        fuente = f.ado->RecordSource();
        mostradas = columnaMostrada(f, 1);
        saldos = columnaMostrada(f, 4);
    });
    QCOMPARE(entorno_->fallos.size(), 0);
    // Unfiltered, the supplier's open notes are there to be found.
    QCOMPARE(antes.size(), 1);
    QCOMPARE(fuente, consulta + condicion);
    QCOMPARE(mostradas, notas);
    QCOMPARE(saldos, saldosMostrados); // still the formatted text the screen shows
}

QTEST_MAIN(TstBusca)
#include "tst_busca.moc"
