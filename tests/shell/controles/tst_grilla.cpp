// The detail grid as the screens use it: rows added as tab-separated text and removed, emptied to one
// blank row, hidden and aligned columns, and the keys and double clicks handed to the screen.
#include "EntornoDePantallas.h"
#include "VentanaDePrueba.h"
#include "shell/common/Common.h"
#include "shell/controles/CajaTexto.h"
#include "shell/controles/GrillaDetalle.h"

#include <QHeaderView>
#include <QtTest>

using namespace shell;

namespace {

using Teclas = QList<QPair<int, int>>;

// Rows 1 to Rows - 1, each as its cells joined by tabs.
QStringList lineas(const GrillaDetalle& g) {
    QStringList filas;
    for (int r = 1; r < g.Rows(); ++r) {
        QStringList celdas;
        for (int c = 0; c < g.Cols(); ++c)
            celdas << g.TextMatrix(r, c);
        filas << celdas.join(QLatin1Char('\t'));
    }
    return filas;
}

// "+texto" adds a row (at the end, or "+texto@n" before row n), "-n" removes row n, "Rn" sets Rows,
// "V" empties the grid.
void aplicar(GrillaDetalle& g, const QString& paso) {
    const QString resto = paso.mid(1);
    switch (paso.at(0).toLatin1()) {
    case '+': {
        const qsizetype arroba = resto.lastIndexOf(QLatin1Char('@'));
        if (arroba >= 0)
            g.AddItem(resto.left(arroba), resto.mid(arroba + 1).toInt());
        else
            g.AddItem(resto);
        break;
    }
    case '-':
        g.RemoveItem(resto.toInt());
        break;
    case 'R':
        g.setRows(resto.toInt());
        break;
    case 'V':
        g.Vaciar();
        break;
    default:
        QFAIL("paso desconocido");
    }
}

// A grid of three columns between two fields, as on a document screen.
struct Pantalla {
    explicit Pantalla(bool keyPreview = true)
        : v(keyPreview) {
        fgDetalle->setCols(3);
        fgDetalle->setTextMatrix(0, 0, QStringLiteral("Cantidad"));
        fgDetalle->setTextMatrix(0, 1, QStringLiteral("Descripción del artículo"));
        fgDetalle->setTextMatrix(0, 2, QStringLiteral("Precio"));
        for (const char* fila : {"1\tESTUFA\t1500.00", "2\tREFRIGERADORA\t3200.00", "1\tBATIDORA\t250.00"})
            fgDetalle->AddItem(QString::fromUtf8(fila));
        fgDetalle->RemoveItem(1);
    }
    VentanaDePrueba v;
    CajaTexto* txtAntes = v.agregar<CajaTexto>(QStringLiteral("txtAntes"), 120, 120);
    GrillaDetalle* fgDetalle = v.agregar<GrillaDetalle>(QStringLiteral("fgDetalle"), 120, 480, 8000, 2000);
    CajaTexto* txtDespues = v.agregar<CajaTexto>(QStringLiteral("txtDespues"), 120, 2600);

    QPoint centroDe(int fila, int columna) const {
        return fgDetalle->visualRect(fgDetalle->model()->index(fila - 1, columna)).center();
    }
};

} // namespace

class TstGrilla : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { entorno_ = std::make_unique<EntornoDePantallas>(); }
    void cleanup() { entorno_.reset(); }
    void unaGrillaNuevaTieneUnaFilaEnBlanco();
    void filas_data();
    void filas();
    void fueraDelIntervalo_data();
    void fueraDelIntervalo();
    void anchosDeColumna();
    void alineacion_data();
    void alineacion();
    void encabezados();
    void teclasParaLaPantalla_data();
    void teclasParaLaPantalla();
    void filaActualConElRatonYLasFlechas();
    void dobleClic();
    void lasCeldasNoSeEscribenTecleando();

private:
    std::unique_ptr<EntornoDePantallas> entorno_;
};

void TstGrilla::unaGrillaNuevaTieneUnaFilaEnBlanco() {
    GrillaDetalle g;
    QCOMPARE(g.Rows(), 2);
    QCOMPARE(g.Cols(), 2);
    QCOMPARE(g.Row(), 1);
    QCOMPARE(lineas(g), QStringList{QStringLiteral("\t")});
}

void TstGrilla::filas_data() {
    QTest::addColumn<QStringList>("pasos");
    QTest::addColumn<QStringList>("quedan");
    const QString blanca = QStringLiteral("\t\t");

    QTest::newRow("vacía") << QStringList{} << QStringList{blanca};
    QTest::newRow("agregar deja la fila en blanco delante")
        << QStringList{"+1\tPAN\t5.00"} << QStringList{blanca, "1\tPAN\t5.00"};
    QTest::newRow("quitar la fila en blanco")
        << QStringList{"+1\tPAN\t5.00", "-1"} << QStringList{"1\tPAN\t5.00"};
    QTest::newRow("celdas de más se pierden") << QStringList{"+1\t2\t3\t4", "-1"} << QStringList{"1\t2\t3"};
    QTest::newRow("celdas de menos quedan vacías") << QStringList{"+A", "-1"} << QStringList{"A\t\t"};
    QTest::newRow("agregar una fila vacía") << QStringList{"+"} << QStringList{blanca, blanca};
    QTest::newRow("agregar antes de una fila")
        << QStringList{"+A", "+B", "+C@2"} << QStringList{blanca, "C\t\t", "A\t\t", "B\t\t"};
    QTest::newRow("agregar en la posición siguiente a la última")
        << QStringList{"+A@2", "-1"} << QStringList{"A\t\t"};
    QTest::newRow("quitar una fila del medio")
        << QStringList{"+A", "+B", "+C", "-1", "-2"} << QStringList{"A\t\t", "C\t\t"};
    QTest::newRow("Rows a 2 conserva lo que tenía la fila 1")
        << QStringList{"+A", "-1", "+B", "R2"} << QStringList{"A\t\t"};
    QTest::newRow("vaciar deja una sola fila en blanco")
        << QStringList{"+A", "+B", "-1", "V"} << QStringList{blanca};
    QTest::newRow("vaciar una grilla ya vacía") << QStringList{"V"} << QStringList{blanca};
    QTest::newRow("Rows crece con filas en blanco")
        << QStringList{"+A", "-1", "R4"} << QStringList{"A\t\t", blanca, blanca};
    QTest::newRow("quitar la única línea: antes una fila vacía")
        << QStringList{"+A", "-1", "+", "-1"} << QStringList{blanca};
}

void TstGrilla::filas() {
    QFETCH(QStringList, pasos);
    QFETCH(QStringList, quedan);
    GrillaDetalle g;
    g.setCols(3);
    for (const QString& paso : pasos)
        aplicar(g, paso);
    QCOMPARE(lineas(g), quedan);
    QCOMPARE(g.Rows(), quedan.size() + 1);
    QVERIFY(g.Row() >= 1 && g.Row() < g.Rows());
    QVERIFY(entorno_->fallos.isEmpty());
}

void TstGrilla::fueraDelIntervalo_data() {
    QTest::addColumn<QString>("accion");
    QTest::newRow("quitar la última fila de datos") << "quitar 1";
    QTest::newRow("quitar la fila fija") << "quitar 0";
    QTest::newRow("leer más allá de la última fila") << "leer fila 2";
    QTest::newRow("leer más allá de la última columna") << "leer columna 3";
    QTest::newRow("escribir en una columna negativa") << "escribir columna -1";
    QTest::newRow("Rows a 0") << "Rows 0";
    QTest::newRow("fila actual en la fila fija") << "Row 0";
    QTest::newRow("agregar más allá del final") << "agregar en 3";
}

// Each is an error of the program: through the handler wrapper it reaches the fatal path, and the
// grid is left as it was.
void TstGrilla::fueraDelIntervalo() {
    QFETCH(QString, accion);
    GrillaDetalle g;
    g.setCols(3);
    g.setTextMatrix(1, 0, QStringLiteral("X"));
    Common::Manejar([&] {
        if (accion == QLatin1String("quitar 1")) g.RemoveItem(1);
        if (accion == QLatin1String("quitar 0")) g.RemoveItem(0);
        if (accion == QLatin1String("leer fila 2")) g.TextMatrix(2, 0);
        if (accion == QLatin1String("leer columna 3")) g.TextMatrix(1, 3);
        if (accion == QLatin1String("escribir columna -1")) g.setTextMatrix(1, -1, QStringLiteral("Y"));
        if (accion == QLatin1String("Rows 0")) g.setRows(0);
        if (accion == QLatin1String("Row 0")) g.setRow(0);
        if (accion == QLatin1String("agregar en 3")) g.AddItem(QStringLiteral("Z"), 3);
    });
    QCOMPARE(entorno_->fallos.size(), 1);
    QCOMPARE(lineas(g), QStringList{QStringLiteral("X\t\t")});
}

void TstGrilla::anchosDeColumna() {
    Pantalla p;
    p.fgDetalle->setColWidth(0, 0);
    p.fgDetalle->setColWidth(1, 4400);
    p.fgDetalle->setColWidth(2, 1200);
    QVERIFY(p.v.mostrar());
    QCOMPARE(p.fgDetalle->ColWidth(0), 0.0);
    QCOMPARE(p.fgDetalle->ColWidth(1), 4400.0);
    QCOMPARE(p.fgDetalle->columnWidth(1), px(4400));
    // The hidden column takes no room: the description starts at the left edge.
    QCOMPARE(p.fgDetalle->columnViewportPosition(1), 0);
    QCOMPARE(p.fgDetalle->columnViewportPosition(2), px(4400));
    // Its cells keep their text for the screen.
    QCOMPARE(p.fgDetalle->TextMatrix(2, 0), QStringLiteral("2"));
    // Given a width again, it shows.
    p.fgDetalle->setColWidth(0, 1300);
    QCOMPARE(p.fgDetalle->ColWidth(0), 1300.0);
    QCOMPARE(p.fgDetalle->columnViewportPosition(1), px(1300));
}

void TstGrilla::alineacion_data() {
    QTest::addColumn<int>("alineacion");
    QTest::addColumn<QString>("texto");
    QTest::addColumn<int>("horizontal");
    QTest::newRow("izquierda") << int(GrillaDetalle::flexAlignLeftCenter) << "1500.00" << int(Qt::AlignLeft);
    QTest::newRow("derecha") << int(GrillaDetalle::flexAlignRightCenter) << "ESTUFA" << int(Qt::AlignRight);
    QTest::newRow("centro") << int(GrillaDetalle::flexAlignCenterCenter) << "22/11/2026"
                            << int(Qt::AlignHCenter);
    QTest::newRow("general: número a la derecha")
        << int(GrillaDetalle::flexAlignGeneral) << "1500.00" << int(Qt::AlignRight);
    QTest::newRow("general: texto a la izquierda")
        << int(GrillaDetalle::flexAlignGeneral) << "ESTUFA" << int(Qt::AlignLeft);
}

// What the view paints by: the cells of a column, those already there and those added after.
void TstGrilla::alineacion() {
    QFETCH(int, alineacion);
    QFETCH(QString, texto);
    QFETCH(int, horizontal);
    GrillaDetalle g;
    g.setCols(2);
    g.setTextMatrix(1, 1, texto);
    g.setColAlignment(1, GrillaDetalle::Alineacion(alineacion));
    g.AddItem(QStringLiteral("x\t") + texto);
    QCOMPARE(g.ColAlignment(1), GrillaDetalle::Alineacion(alineacion));
    for (int fila : {0, 1}) {
        const int dada = g.model()->index(fila, 1).data(Qt::TextAlignmentRole).toInt();
        QCOMPARE(dada & int(Qt::AlignHorizontal_Mask), horizontal);
    }
}

void TstGrilla::encabezados() {
    Pantalla p;
    auto* modelo = p.fgDetalle->model();
    QCOMPARE(p.fgDetalle->TextMatrix(0, 1), QStringLiteral("Descripción del artículo"));
    QVERIFY(!modelo->headerData(1, Qt::Horizontal, Qt::FontRole).value<QFont>().bold());
    p.fgDetalle->FormatoEncabezado();
    for (int c = 0; c < 3; ++c) {
        QVERIFY(modelo->headerData(c, Qt::Horizontal, Qt::FontRole).value<QFont>().bold());
        QCOMPARE(modelo->headerData(c, Qt::Horizontal, Qt::TextAlignmentRole).toInt(), int(Qt::AlignCenter));
    }
    QCOMPARE(modelo->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Cantidad"));
}

void TstGrilla::teclasParaLaPantalla_data() {
    QTest::addColumn<int>("tecla");
    QTest::addColumn<int>("modificadores");
    QTest::addColumn<bool>("keyPreview");
    QTest::addColumn<Teclas>("recibidas");
    QTest::newRow("Insert") << int(Qt::Key_Insert) << int(Qt::NoModifier) << true << Teclas{{45, 0}};
    QTest::newRow("Supr") << int(Qt::Key_Delete) << int(Qt::NoModifier) << true << Teclas{{46, 0}};
    QTest::newRow("Enter en una pantalla donde Enter avanza")
        << int(Qt::Key_Return) << int(Qt::NoModifier) << true << Teclas{{13, 0}};
    QTest::newRow("Enter en una pantalla sin esa regla")
        << int(Qt::Key_Return) << int(Qt::NoModifier) << false << Teclas{{13, 0}};
    QTest::newRow("Enter del teclado numérico")
        << int(Qt::Key_Enter) << int(Qt::KeypadModifier) << true << Teclas{{13, 0}};
    QTest::newRow("F2") << int(Qt::Key_F2) << int(Qt::NoModifier) << true << Teclas{{113, 0}};
    QTest::newRow("Shift+F2") << int(Qt::Key_F2) << int(Qt::ShiftModifier) << true
                              << Teclas{{16, 1}, {113, 1}};
    QTest::newRow("flecha abajo") << int(Qt::Key_Down) << int(Qt::NoModifier) << true << Teclas{{40, 0}};
}

// Each key reaches the screen's KeyDown once, with its code and shift state.
void TstGrilla::teclasParaLaPantalla() {
    QFETCH(int, tecla);
    QFETCH(int, modificadores);
    QFETCH(bool, keyPreview);
    QFETCH(Teclas, recibidas);
    Pantalla p(keyPreview);
    Teclas llegadas;
    p.fgDetalle->alPresionarTecla([&](int KeyCode, int Shift) { llegadas << qMakePair(KeyCode, Shift); });
    QVERIFY(p.v.mostrar());
    p.fgDetalle->setFocus();
    QTest::keyClick(p.fgDetalle, Qt::Key(tecla), Qt::KeyboardModifiers(modificadores));
    QCOMPARE(llegadas, recibidas);
    // Enter then moves on, where the screen says so.
    const bool avanza = keyPreview && (tecla == Qt::Key_Return || tecla == Qt::Key_Enter);
    QCOMPARE(p.txtDespues->hasFocus(), avanza);
    QCOMPARE(lineas(*p.fgDetalle).size(), 3); // the grid itself adds or removes nothing
}

void TstGrilla::filaActualConElRatonYLasFlechas() {
    Pantalla p;
    QList<int> filaAlPresionar;
    p.fgDetalle->alPresionarTecla([&](int, int) { filaAlPresionar << p.fgDetalle->Row(); });
    QVERIFY(p.v.mostrar());
    QTest::mouseClick(p.fgDetalle->viewport(), Qt::LeftButton, {}, p.centroDe(3, 1));
    QVERIFY(p.fgDetalle->hasFocus());
    QCOMPARE(p.fgDetalle->Row(), 3);
    QTest::keyClick(p.fgDetalle, Qt::Key_Up);
    QCOMPARE(p.fgDetalle->Row(), 2);
    QTest::keyClick(p.fgDetalle, Qt::Key_Up);
    QTest::keyClick(p.fgDetalle, Qt::Key_Up); // no further than the first line
    QCOMPARE(p.fgDetalle->Row(), 1);
    QCOMPARE(filaAlPresionar, (QList<int>{3, 2, 1})); // the screen sees the row before the grid moves
    // Tab leaves the grid.
    QTest::keyClick(p.fgDetalle, Qt::Key_Tab);
    QVERIFY(p.txtDespues->hasFocus());
    // The screen moves it too, and removing the current row keeps the row number where it can.
    p.fgDetalle->setRow(2);
    p.fgDetalle->RemoveItem(p.fgDetalle->Row());
    QCOMPARE(p.fgDetalle->Row(), 2);
    QCOMPARE(p.fgDetalle->TextMatrix(p.fgDetalle->Row(), 1), QStringLiteral("BATIDORA"));
}

void TstGrilla::dobleClic() {
    Pantalla p;
    QStringList abiertas;
    p.fgDetalle->alHacerDobleClic([&] { abiertas << p.fgDetalle->TextMatrix(p.fgDetalle->Row(), 1); });
    QVERIFY(p.v.mostrar());
    QTest::mouseDClick(p.fgDetalle->viewport(), Qt::LeftButton, {}, p.centroDe(2, 2));
    QCOMPARE(abiertas, QStringList{QStringLiteral("REFRIGERADORA")});
}

// Letters, Backspace, F2 or a double click don't edit a cell, nor do letters jump to a row.
void TstGrilla::lasCeldasNoSeEscribenTecleando() {
    Pantalla p;
    QVERIFY(p.v.mostrar());
    const QStringList antes = lineas(*p.fgDetalle);
    QTest::mouseDClick(p.fgDetalle->viewport(), Qt::LeftButton, {}, p.centroDe(1, 1));
    QCOMPARE(p.fgDetalle->Row(), 1);
    teclear(p.fgDetalle, QStringLiteral("BAÑO"));
    QTest::keyClicks(p.fgDetalle, QStringLiteral("REF"));
    QTest::keyClick(p.fgDetalle, Qt::Key_F2);
    QTest::keyClick(p.fgDetalle, Qt::Key_Backspace);
    QCOMPARE(lineas(*p.fgDetalle), antes);
    QCOMPARE(p.fgDetalle->Row(), 1);
    QVERIFY(!p.fgDetalle->findChild<QLineEdit*>());
}

QTEST_MAIN(TstGrilla)
#include "tst_grilla.moc"
