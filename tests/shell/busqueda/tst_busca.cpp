// The search screen as a clerk uses it: opened by a caller over a view, laid out from the view's
// column names, filtered by typing in the boxes and pressing "&Buscar", a row picked by a double click,
// or left by the close box.
#include "BaseDePrueba.h"
#include "EntornoDePantallas.h"
#include "shell/busqueda/frmBusca.h"
#include "shell/common/Common.h"
#include "shell/common/Twips.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QtTest>

using namespace shell;

namespace {

const QString kVista = QStringLiteral("Select * From vwSaldosXNotaIngreso");
const QString kVistaConWhere = QStringLiteral("Select * From vwSaldosXNotaIngreso Where hidProveedorID = 1");

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
INSERT INTO Cliente (ClienteID, Nombres, Apellidos, NIT, CodigoLetra, CodigoNumero) VALUES
    (1, 'JOSÉ', 'MUÑOZ', '1234567-8', 'M', 1),
    (2, 'ANA', 'PÉREZ', 'C/F', 'P', 1);
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

int filaCon(const frmBusca& f, int columna, const QString& texto) {
    return int(columnaMostrada(f, columna).indexOf(texto));
}

void dobleClicEnFila(frmBusca& f, int fila) {
    const QRect celda = f.dg->visualRect(f.dg->model()->index(fila, 1));
    QTest::mouseDClick(f.dg->viewport(), Qt::LeftButton, {}, celda.center());
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
    void lasCajasSeParanSobreSusColumnas();
    void buscarComponeLaCondicion_data();
    void buscarComponeLaCondicion();
    void limpiarBusqueda();
    void dobleClicDevuelveLaFilaEntera_data();
    void dobleClicDevuelveLaFilaEntera();
    void laCajaDeCierreNoEligeNada();
    void fallosSinManejador_data();
    void fallosSinManejador();
    void enterRecorreLasCajasYPulsaBuscar();
    void cadaCargaArmaSusPropiasCajas();
    void vistaSinColumnasVisibles();

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

void TstBusca::seArmaConLosNombresDeLaVista() {
    Common::ConsultaBusqueda = kVista;
    auto& f = Common::Pantalla<frmBusca>();
    QCOMPARE(f.lblTitulo->text(), QStringLiteral("Búsqueda ")); // the design caption, before the caller's
    QCOMPARE(f.ado->RecordSource(), kVista);

    // hidID, No Nota, Fecha, Descripcion general, Total, Cancelado, hidProveedorID
    const QStringList encabezados = {QStringLiteral("hidID"),         QStringLiteral("No Nota"),
                                     QStringLiteral("Fecha"),         QStringLiteral("Descripcion general"),
                                     QStringLiteral("Total"),         QStringLiteral("Cancelado"),
                                     QStringLiteral("hidProveedorID")};
    const QList<bool> visibles = {false, true, true, true, true, true, false};
    const QList<double> anchos = {0, 1200, 1200, 2500, 1200, 1200, 0};
    const QList<Qt::Alignment> alineaciones = {
        {}, Qt::AlignRight, Qt::AlignHCenter, Qt::AlignLeft, Qt::AlignRight, Qt::AlignRight, {}};
    QCOMPARE(f.dg->ColumnCount(), 7);
    for (int i = 0; i < 7; ++i) {
        QCOMPARE(f.dg->model()->headerData(i, Qt::Horizontal).toString(), encabezados[i]);
        QCOMPARE(!f.dg->isColumnHidden(i), visibles[i]);
        if (!visibles[i]) continue;
        QCOMPARE(f.dg->columnWidth(i), px(anchos[i]));
        QVERIFY(qAbs(f.dg->Columns(i).Width() - anchos[i]) < kTwipsPorPixel);
        const auto alineacion = f.dg->model()->index(0, i).data(Qt::TextAlignmentRole).value<Qt::Alignment>();
        QCOMPARE(alineacion & Qt::AlignHorizontal_Mask, alineaciones[i]);
    }
    QVERIFY(f.dg->horizontalHeader()->font().bold());

    // Dates day first; numbers as the view gives them.
    const int fila = filaCon(f, 1, QStringLiteral("101"));
    QVERIFY(fila >= 0);
    QCOMPARE(f.dg->model()->index(fila, 2).data().toString(), QStringLiteral("22/11/2026"));
    QCOMPARE(f.dg->model()->index(fila, 3).data().toString(), QStringLiteral("Refrigeradoras MUÑOZ"));
    QCOMPARE(f.dg->model()->index(fila, 4).data().toString(), QStringLiteral("1500.5"));
    QCOMPARE(f.dg->model()->index(fila, 5).data().toString(), QStringLiteral("0"));

    // One box per shown column, tagged with the raw name; the templates stay hidden.
    const QStringList tags = {QStringLiteral("shw1200_int_No_Nota"), QStringLiteral("shw1200_dat_Fecha"),
                              QStringLiteral("shw2500_str_Descripcion_general"),
                              QStringLiteral("shw1200_dbl_Total"), QStringLiteral("shw1200_dbl_Cancelado")};
    for (int k = 1; k <= 5; ++k) {
        QVERIFY(caja(&f, k));
        QCOMPARE(caja(&f, k)->property("Tag").toString(), tags[k - 1]);
        QVERIFY(!caja(&f, k)->isHidden());
        QVERIFY(!forma(&f, k)->isHidden());
        QCOMPARE(caja(&f, k)->y(), px(525));
        QCOMPARE(forma(&f, k)->y(), px(480));
    }
    QVERIFY(!caja(&f, 6));
    QVERIFY(caja(&f, 0)->isHidden());
    QVERIFY(forma(&f, 0)->isHidden());
    QVERIFY(!f.findChild<QWidget*>(QStringLiteral("fraMain")));
    QVERIFY(!f.findChild<QWidget*>(QStringLiteral("lblEstado")));

    // The screen is as wide as its columns: grid = X + 300, screen = grid + its left + 180.
    double X = f.dg->Columns(1).Left();
    for (int i = 1; i <= 5; ++i)
        X += f.dg->Columns(i).Width();
    QCOMPARE(f.dg->geometry(), QRect(px(120), px(840), px(X + 300), px(4095)));
    QCOMPARE(f.Width(), anchoTw(f.dg) + 120 + 180);
    QCOMPARE(f.fraBarra->width(), px(f.Width() - 20));
    QCOMPARE(f.cmdClose->x() + f.cmdClose->width(), f.width());
    QCOMPARE(boton(&f, 0)->text(), QStringLiteral("&Buscar"));
    QCOMPARE(boton(&f, 1)->text(), QStringLiteral("&Limpiar busqueda"));
    QCOMPARE(boton(&f, 1)->width(), px(1680));
    f.Unload();
}

void TstBusca::lasCajasSeParanSobreSusColumnas() {
    abrir(kVista, QStringLiteral("Busca notas de ingreso"), [](frmBusca& f) {
        for (int k = 1; k <= 5; ++k) {
            const int columna = k; // hidID comes first and takes no box
            const int x = f.dg->x() + f.dg->viewport()->x() + f.dg->columnViewportPosition(columna);
            QVERIFY2(qAbs(forma(&f, k)->x() - x) <= 1, qPrintable(QString::number(k)));
            QVERIFY(qAbs(forma(&f, k)->width() - f.dg->columnWidth(columna)) <= 1);
            QCOMPARE(caja(&f, k)->x(), forma(&f, k)->x() + px(45));
            QCOMPARE(caja(&f, k)->width(), forma(&f, k)->width() - px(90));
        }
        // The columns fit: the 300 twips to spare hold the grid's frame and a vertical scroll bar.
        QCOMPARE(f.dg->horizontalScrollBar()->maximum(), 0);
    });
    QCOMPARE(entorno_->titulosModales, QStringList{QStringLiteral("Busca notas de ingreso")});
}

void TstBusca::buscarComponeLaCondicion_data() {
    QTest::addColumn<QString>("consulta");
    QTest::addColumn<QStringList>("textos"); // boxes 1-5: No Nota, Fecha, Descripcion, Total, Cancelado
    QTest::addColumn<QString>("condicion");  // what follows the caller's query
    QTest::addColumn<QStringList>("quedan"); // the boxes afterwards
    QTest::addColumn<QStringList>("notas");  // the rows the grid then shows, by No Nota

    const QString descripcion = QStringLiteral("shw2500_str_Descripcion_general");
    QTest::newRow("texto, sin Where")
        << kVista << QStringList{"", "", "estufa"} << " Where " + descripcion + " Like '%estufa%'"
        << QStringList{"", "", "estufa", "", ""} << QStringList{"102"};
    QTest::newRow("texto, con Where")
        << kVistaConWhere << QStringList{"", "", "a"} << " And " + descripcion + " Like '%a%'"
        << QStringList{"", "", "a", "", ""} << QStringList{"101", "250"};
    QTest::newRow("where en minúsculas")
        << "select * from vwSaldosXNotaIngreso where shw1200_dbl_Total > 0" << QStringList{"101"}
        << " And shw1200_int_No_Nota = 101" << QStringList{"101", "", "", "", ""} << QStringList{"101"};
    QTest::newRow("acentos: muñoz halla MUÑOZ")
        << kVista << QStringList{"", "", "muñoz"} << " Where " + descripcion + " Like '%muñoz%'"
        << QStringList{"", "", "muñoz", "", ""} << QStringList{"101"};
    QTest::newRow("fecha") << kVista << QStringList{"", "22/11/2026"}
                           << " Where shw1200_dat_Fecha = #22/11/2026#"
                           << QStringList{"", "22/11/2026", "", "", ""} << QStringList{"101"};
    QTest::newRow("fecha inválida: la columna queda sola")
        << kVista << QStringList{"", "31/02/2026"} << " Where shw1200_dat_Fecha"
        << QStringList{"", "", "", "", ""} << QStringList{"101", "102", "250"};
    QTest::newRow("fecha inválida seguida de otra caja")
        << kVista << QStringList{"", "ayer", "lava"}
        << " Where shw1200_dat_Fecha And " + descripcion + " Like '%lava%'"
        << QStringList{"", "", "lava", "", ""} << QStringList{"250"};
    QTest::newRow("número") << kVista << QStringList{"250"} << " Where shw1200_int_No_Nota = 250"
                            << QStringList{"250", "", "", "", ""} << QStringList{"250"};
    QTest::newRow("número con texto detrás")
        << kVista << QStringList{"  102 unidades"} << " Where shw1200_int_No_Nota = 102"
        << QStringList{"102", "", "", "", ""} << QStringList{"102"};
    QTest::newRow("lo que no es número es 0")
        << kVista << QStringList{"abc"} << " Where shw1200_int_No_Nota = 0"
        << QStringList{"0", "", "", "", ""} << QStringList{};
    QTest::newRow("decimal") << kVista << QStringList{"", "", "", "1500.50"}
                             << " Where shw1200_dbl_Total = 1500.5" << QStringList{"", "", "", "1500.5", ""}
                             << QStringList{"101"};
    QTest::newRow("la coma corta el número")
        << kVista << QStringList{"", "", "", "1,500.50"} << " Where shw1200_dbl_Total = 1"
        << QStringList{"", "", "", "1", ""} << QStringList{};
    QTest::newRow("varias cajas, en el orden de las columnas")
        << kVistaConWhere << QStringList{"250", "", "", "", "0"}
        << " And shw1200_int_No_Nota = 250 And shw1200_dbl_Cancelado = 0"
        << QStringList{"250", "", "", "", "0"} << QStringList{"250"};
    QTest::newRow("todas vacías: la consulta tal cual")
        << kVista << QStringList{} << QString() << QStringList{"", "", "", "", ""}
        << QStringList{"101", "102", "250"};
    QTest::newRow("todas vacías, con Where") << kVistaConWhere << QStringList{} << QString()
                                             << QStringList{"", "", "", "", ""} << QStringList{"101", "250"};
}

void TstBusca::buscarComponeLaCondicion() {
    QFETCH(QString, consulta);
    QFETCH(QStringList, textos);
    QFETCH(QString, condicion);
    QFETCH(QStringList, quedan);
    QFETCH(QStringList, notas);

    QString fuente;
    QStringList cajas, mostradas;
    abrir(consulta, QStringLiteral("Busca notas de ingreso"), [&](frmBusca& f) {
        buscar(f, textos);
        fuente = f.ado->RecordSource();
        for (int k = 1; k <= 5; ++k)
            cajas << caja(&f, k)->text();
        mostradas = columnaMostrada(f, 1);
        // The grid is laid out afresh from the raw names the refresh gave it.
        QCOMPARE(f.dg->model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("No Nota"));
        QVERIFY(f.dg->isColumnHidden(0));
    });
    QVERIFY2(entorno_->fallos.isEmpty(),
             entorno_->fallos.isEmpty() ? "" : qPrintable(entorno_->fallos.first().descripcion()));
    QCOMPARE(fuente, consulta + condicion);
    QCOMPARE(cajas, quedan);
    mostradas.sort();
    QCOMPARE(mostradas, notas);
    QCOMPARE(Common::ConsultaBusqueda, consulta); // the caller's query is never changed
}

void TstBusca::limpiarBusqueda() {
    QString fuente;
    QStringList cajas, mostradas;
    int filasFiltradas = -1;
    abrir(kVistaConWhere, QStringLiteral("Busca notas de ingreso"), [&](frmBusca& f) {
        caja(&f, 0)->setText(QStringLiteral("plantilla"));
        buscar(f, {"", "", "lava", "abc"});
        filasFiltradas = f.dg->model()->rowCount();
        QTest::mouseClick(boton(&f, 1), Qt::LeftButton);
        fuente = f.ado->RecordSource();
        for (int k = 0; k <= 5; ++k)
            cajas << caja(&f, k)->text();
        mostradas = columnaMostrada(f, 1);
        QCOMPARE(f.dg->model()->headerData(3, Qt::Horizontal).toString(),
                 QStringLiteral("Descripcion general"));
    });
    QCOMPARE(filasFiltradas, 1); // "lava", and the total of 0 that "abc" in box 4 came to
    QCOMPARE(fuente, kVistaConWhere);
    QCOMPARE(cajas, QStringList(6, QString()));
    mostradas.sort();
    QCOMPARE(mostradas, (QStringList{"101", "250"}));
}

void TstBusca::dobleClicDevuelveLaFilaEntera_data() {
    QTest::addColumn<QStringList>("textos");
    QTest::addColumn<QString>("nota");
    QTest::addColumn<QVariantList>("fila");

    const QVariantList nota102 = {2, 102, QDate(2026, 11, 23), QStringLiteral("Estufas"), 800.0, 0.0, 2};
    const QVariantList nota250 = {3, 250, QDate(2026, 12, 1), QStringLiteral("Lavadoras"), 0.0, 0.0, 1};
    QTest::newRow("sin filtrar") << QStringList{} << "102" << nota102;
    QTest::newRow("tras filtrar") << QStringList{"", "", "dora"} << "250" << nota250;
}

// hidID comes back first and hidProveedorID last, though the grid never shows them.
void TstBusca::dobleClicDevuelveLaFilaEntera() {
    QFETCH(QStringList, textos);
    QFETCH(QString, nota);
    QFETCH(QVariantList, fila);

    Common::Parametros.ReDim(1);
    abrir(kVista, QStringLiteral("Busca notas de ingreso"), [&](frmBusca& f) {
        if (!textos.isEmpty()) buscar(f, textos);
        const int r = filaCon(f, 1, nota);
        QVERIFY(r >= 0);
        dobleClicEnFila(f, r);
    });
    QVERIFY(entorno_->fallos.isEmpty());
    QCOMPARE(Common::Parametros.UBound(), fila.size());
    for (int i = 0; i < fila.size(); ++i) {
        const QVariant& valor = Common::Parametros(i + 1);
        if (fila[i].typeId() == QMetaType::QDate)
            QCOMPARE(valor.toDate(), fila[i].toDate());
        else if (fila[i].typeId() == QMetaType::QString)
            QCOMPARE(valor.toString(), fila[i].toString());
        else
            QCOMPARE(valor.toDouble(), fila[i].toDouble());
    }
}

void TstBusca::laCajaDeCierreNoEligeNada() {
    Common::Parametros.ReDim(3);
    Common::Parametros(1) = 5; // what an earlier pick left
    abrir(kVista, QStringLiteral("Busca notas de ingreso"), [](frmBusca& f) {
        f.dg->selectRow(1); // a current row is not a pick
        QTest::mouseClick(f.cmdClose, Qt::LeftButton);
    });
    QCOMPARE(Common::Parametros.UBound(), 1);
    QVERIFY(Common::Parametros.Vacio(1));
}

void TstBusca::fallosSinManejador_data() {
    QTest::addColumn<QStringList>("textos");
    QTest::addColumn<bool>("dobleClic");
    QTest::addColumn<int>("numero");

    QTest::newRow("una comilla en una caja de texto") << QStringList{"", "", "O'Brien"} << false << 0;
    QTest::newRow("doble clic sin filas") << QStringList{"999"} << true << int(store::FalloSinRegistroActual);
}

// Nothing here catches a failure: it goes to the fatal path, which ends the program.
void TstBusca::fallosSinManejador() {
    QFETCH(QStringList, textos);
    QFETCH(bool, dobleClic);
    QFETCH(int, numero);

    abrir(kVista, QStringLiteral("Busca notas de ingreso"), [&](frmBusca& f) {
        buscar(f, textos);
        if (dobleClic) {
            QCOMPARE(f.dg->model()->rowCount(), 0);
            QTest::mouseDClick(f.dg->viewport(), Qt::LeftButton, {}, f.dg->viewport()->rect().center());
        }
        QCOMPARE(entorno_->fallos.size(), 1);
        QVERIFY(!f.descargado());
    });
    QCOMPARE(entorno_->fallos.size(), 1);
    if (numero != 0) QCOMPARE(entorno_->fallos.first().numero(), numero);
    QVERIFY(!entorno_->fallos.first().descripcion().isEmpty());
}

void TstBusca::enterRecorreLasCajasYPulsaBuscar() {
    QString fuente;
    abrir(kVista, QStringLiteral("Busca notas de ingreso"), [&](frmBusca& f) {
        QVERIFY(QTest::qWaitForWindowActive(&f));
        QCOMPARE(QApplication::focusWidget(), caja(&f, 1));
        teclear(caja(&f, 1), QStringLiteral("102"));
        for (int k = 2; k <= 5; ++k) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            QCOMPARE(QApplication::focusWidget(), caja(&f, k));
        }
        QCOMPARE(caja(&f, 1)->text(), QStringLiteral("102")); // Enter typed nothing
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(QApplication::focusWidget(), boton(&f, 0));
        QCOMPARE(f.ado->RecordSource(), kVista);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); // on a button, Enter presses it
        fuente = f.ado->RecordSource();
    });
    QCOMPARE(fuente, kVista + QStringLiteral(" Where shw1200_int_No_Nota = 102"));
}

// The one shared screen builds its boxes once per load, for the query of that load.
void TstBusca::cadaCargaArmaSusPropiasCajas() {
    int cajasTrasBuscar = 0;
    abrir(kVista, QStringLiteral("Busca notas de ingreso"), [&](frmBusca& f) {
        buscar(f, {"101"});
        buscar(f, {});
        cajasTrasBuscar = int(f.txtField.size()) - 1;
    });
    QCOMPARE(cajasTrasBuscar, 5);

    QStringList tags;
    QStringList apellidos;
    abrir(QStringLiteral("Select * From vwBuscaCliente"), QStringLiteral("Busca clientes"), [&](frmBusca& f) {
        for (int k = 1; caja(&f, k); ++k)
            tags << caja(&f, k)->property("Tag").toString();
        QCOMPARE(caja(&f, 1)->text(), QString()); // nothing of the last load's typing
        buscar(f, {"", "", "muñoz"});
        apellidos = columnaMostrada(f, 3);
    });
    QCOMPARE(tags, (QStringList{"shw680_str_Codigo", "shw2200_str_Nombres", "shw2200_str_Apellidos",
                                "shw1200_str_NIT", "shw1400_str_Cedula"}));
    QCOMPARE(apellidos, QStringList{"MUÑOZ"});
    QCOMPARE(entorno_->titulosModales, (QStringList{"Busca notas de ingreso", "Busca clientes"}));
}

// No shw column: no box, an empty grid 300 wide; the hidden values still go back by position.
void TstBusca::vistaSinColumnasVisibles() {
    int anchoRejilla = 0;
    double anchoPantalla = 0;
    int cajas = -1;
    abrir(QStringLiteral("Select hidID, hidProveedorID From vwSaldosXNotaIngreso Where hidID = 2"),
          QStringLiteral("Busca"), [&](frmBusca& f) {
              anchoRejilla = f.dg->width();
              anchoPantalla = f.Width();
              cajas = int(f.txtField.size()) - 1;
              QCOMPARE(f.dg->model()->rowCount(), 1);
              f.dg->selectRow(0);
              QTest::mouseDClick(f.dg->viewport(), Qt::LeftButton, {}, QPoint(2, 2));
          });
    QCOMPARE(cajas, 0);
    QCOMPARE(anchoRejilla, px(300));
    QCOMPARE(anchoPantalla, twips(px(300)) + 120 + 180);
    QCOMPARE(Common::Parametros.UBound(), 2);
    QCOMPARE(Common::Parametros(1).toInt(), 2);
    QCOMPARE(Common::Parametros(2).toInt(), 2);
}

QTEST_MAIN(TstBusca)
#include "tst_busca.moc"
