// The detail grid as the screens use it: rows added as tab-separated text and removed, emptied to one
// blank row, hidden and aligned columns, and the keys and double clicks handed to the screen.
#include "EntornoDePantallas.h"
#include "VentanaDePrueba.h"
#include "shell/common/Common.h"
#include "shell/controles/CajaTexto.h"
#include "shell/controles/GrillaDetalle.h"

#include <QLineEdit>
#include <QtTest>

using namespace shell;

namespace {

using Teclas = QList<QPair<int, int>>;
using Accion = std::function<void(GrillaDetalle&)>;

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
    const qsizetype arroba = resto.lastIndexOf(QLatin1Char('@'));
    if (paso.startsWith(u'+') && arroba >= 0) g.AddItem(resto.left(arroba), resto.mid(arroba + 1).toInt());
    if (paso.startsWith(u'+') && arroba < 0) g.AddItem(resto);
    if (paso.startsWith(u'-')) g.RemoveItem(resto.toInt());
    if (paso.startsWith(u'R')) g.setRows(resto.toInt());
    if (paso.startsWith(u'V')) g.Vaciar();
}

// A grid of three lines between two fields, as on a document screen.
struct Pantalla {
    explicit Pantalla(bool keyPreview = true)
        : v(keyPreview) {
        fgDetalle->setCols(3);
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
    void filas_data();
    void filas();
    void fueraDelIntervalo_data();
    void fueraDelIntervalo();
    void encabezadoYColumnaOculta();
    void alineacion_data();
    void alineacion();
    void teclasParaLaPantalla_data();
    void teclasParaLaPantalla();
    void filaActualConElRatonYLasFlechas();
    void dobleClicSinEscribirEnLasCeldas();

private:
    std::unique_ptr<EntornoDePantallas> entorno_;
};

// Steps apart by spaces; lines apart by "|", their cells by ",".
void TstGrilla::filas_data() {
    QTest::addColumn<QStringList>("pasos");
    QTest::addColumn<QStringList>("quedan");
    const auto fila = [](const char* nombre, const char* pasos, const char* quedan) {
        const auto tabulados = [](const char* texto, char separador) {
            return QString::fromUtf8(texto)
                .replace(u',', u'\t')
                .split(QLatin1Char(separador), Qt::SkipEmptyParts);
        };
        QTest::newRow(nombre) << tabulados(pasos, ' ') << tabulados(quedan, '|');
    };
    fila("nueva: una fila en blanco", "", ",,");
    fila("agregar deja la fila en blanco delante", "+1,PAN,5.00", ",,|1,PAN,5.00");
    fila("celdas de más se pierden", "+1,2,3,4 -1", "1,2,3");
    fila("celdas de menos quedan vacías", "+A -1", "A,,");
    fila("agregar antes de una fila", "+A +B +C@2", ",,|C,,|A,,|B,,");
    fila("agregar en la posición siguiente a la última", "+A@2 -1", "A,,");
    fila("quitar una fila del medio", "+A +B +C -1 -2", "A,,|C,,");
    fila("Rows a 2 conserva lo que tenía la fila 1", "+A -1 +B R2", "A,,");
    fila("Rows crece con filas en blanco", "+A -1 R4", "A,,|,,|,,");
    fila("vaciar deja una sola fila en blanco", "+A +B -1 V", ",,");
    fila("quitar la única línea: antes una fila vacía", "+A -1 + -1", ",,");
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
    QTest::addColumn<Accion>("accion");
    QTest::newRow("quitar la última fila de datos") << Accion([](auto& g) { g.RemoveItem(1); });
    QTest::newRow("quitar la fila fija") << Accion([](auto& g) { g.RemoveItem(0); });
    QTest::newRow("leer más allá de la última fila") << Accion([](auto& g) { g.TextMatrix(2, 0); });
    QTest::newRow("leer más allá de la última columna") << Accion([](auto& g) { g.TextMatrix(1, 3); });
    QTest::newRow("escribir en una columna negativa") << Accion([](auto& g) { g.setTextMatrix(1, -1, "Y"); });
    QTest::newRow("Rows a 0") << Accion([](auto& g) { g.setRows(0); });
    QTest::newRow("fila actual en la fila fija") << Accion([](auto& g) { g.setRow(0); });
    QTest::newRow("agregar más allá del final") << Accion([](auto& g) { g.AddItem("Z", 3); });
}

// Each is an error of the program: through the handler wrapper it reaches the fatal path, and the
// grid is left as it was.
void TstGrilla::fueraDelIntervalo() {
    entorno_->esperaFallos(); // checked below
    QFETCH(Accion, accion);
    GrillaDetalle g;
    g.setCols(3);
    g.setTextMatrix(1, 0, QStringLiteral("X"));
    Common::Manejar([&] { accion(g); });
    QCOMPARE(entorno_->fallos.size(), 1);
    QCOMPARE(lineas(g), QStringList{QStringLiteral("X\t\t")});
}

// Row 0 is the header. A column of width 0 takes no room but keeps its cells for the screen; given a
// width again, it shows.
void TstGrilla::encabezadoYColumnaOculta() {
    Pantalla p;
    p.fgDetalle->setTextMatrix(0, 1, QStringLiteral("Descripción"));
    QCOMPARE(p.fgDetalle->model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("Descripción"));
    p.fgDetalle->setColWidth(0, 0);
    p.fgDetalle->setColWidth(1, 4400);
    QVERIFY(p.v.mostrar());
    QCOMPARE(p.fgDetalle->columnViewportPosition(1), 0);
    QCOMPARE(p.fgDetalle->columnViewportPosition(2), px(4400));
    QCOMPARE(p.fgDetalle->TextMatrix(2, 0), QStringLiteral("2"));
    p.fgDetalle->setColWidth(0, 1300);
    QCOMPARE(p.fgDetalle->columnViewportPosition(1), px(1300));
}

void TstGrilla::alineacion_data() {
    QTest::addColumn<int>("alineacion");
    QTest::addColumn<QString>("texto");
    QTest::addColumn<int>("horizontal");
    const auto fila = [](const char* nombre, GrillaDetalle::Alineacion a, const char* texto, int horizontal) {
        QTest::newRow(nombre) << int(a) << QString::fromUtf8(texto) << horizontal;
    };
    fila("derecha", GrillaDetalle::flexAlignRightCenter, "ESTUFA", Qt::AlignRight);
    fila("general: número a la derecha", GrillaDetalle::flexAlignGeneral, "1500.00", Qt::AlignRight);
    fila("general: texto a la izquierda", GrillaDetalle::flexAlignGeneral, "ESTUFA", Qt::AlignLeft);
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
    for (int fila : {0, 1}) {
        const int dada = g.model()->index(fila, 1).data(Qt::TextAlignmentRole).toInt();
        QCOMPARE(dada & int(Qt::AlignHorizontal_Mask), horizontal);
    }
}

void TstGrilla::teclasParaLaPantalla_data() {
    QTest::addColumn<int>("tecla");
    QTest::addColumn<int>("modificadores");
    QTest::addColumn<bool>("keyPreview");
    QTest::addColumn<Teclas>("recibidas");
    const auto fila = [](const char* nombre, Qt::Key tecla, Qt::KeyboardModifiers mod, bool kp, Teclas t) {
        QTest::newRow(nombre) << int(tecla) << int(mod) << kp << t;
    };
    fila("Supr", Qt::Key_Delete, Qt::NoModifier, true, {{46, 0}});
    fila("Enter en una pantalla donde Enter avanza", Qt::Key_Return, Qt::NoModifier, true, {{13, 0}});
    fila("Enter en una pantalla sin esa regla", Qt::Key_Return, Qt::NoModifier, false, {{13, 0}});
    fila("Enter del teclado numérico", Qt::Key_Enter, Qt::KeypadModifier, true, {{13, 0}});
    fila("Shift+F2", Qt::Key_F2, Qt::ShiftModifier, true, {{16, 1}, {113, 1}});
    fila("flecha abajo", Qt::Key_Down, Qt::NoModifier, true, {{40, 0}});
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

// The screen sees the row before the grid moves; Tab leaves the grid, not its cell; removing the current
// row keeps the row number where it can.
void TstGrilla::filaActualConElRatonYLasFlechas() {
    Pantalla p;
    QList<int> filaAlPresionar;
    p.fgDetalle->alPresionarTecla([&](int, int) { filaAlPresionar << p.fgDetalle->Row(); });
    QVERIFY(p.v.mostrar());
    QTest::mouseClick(p.fgDetalle->viewport(), Qt::LeftButton, {}, p.centroDe(3, 1));
    QCOMPARE(p.fgDetalle->Row(), 3);
    QTest::keyClick(p.fgDetalle, Qt::Key_Up);
    QTest::keyClick(p.fgDetalle, Qt::Key_Up);
    QCOMPARE(p.fgDetalle->Row(), 1);
    QCOMPARE(filaAlPresionar, (QList<int>{3, 2}));
    QTest::keyClick(p.fgDetalle, Qt::Key_Tab);
    QVERIFY(p.txtDespues->hasFocus());
    p.fgDetalle->setRow(2);
    p.fgDetalle->RemoveItem(p.fgDetalle->Row());
    QCOMPARE(p.fgDetalle->Row(), 2);
    QCOMPARE(p.fgDetalle->TextMatrix(p.fgDetalle->Row(), 1), QStringLiteral("BATIDORA"));
}

// A double click reaches the screen on the row clicked; it, letters, Backspace or F2 don't edit a
// cell, nor do letters jump to a row.
void TstGrilla::dobleClicSinEscribirEnLasCeldas() {
    Pantalla p;
    QStringList abiertas;
    p.fgDetalle->alHacerDobleClic([&] { abiertas << p.fgDetalle->TextMatrix(p.fgDetalle->Row(), 1); });
    QVERIFY(p.v.mostrar());
    const QStringList antes = lineas(*p.fgDetalle);
    QTest::mouseDClick(p.fgDetalle->viewport(), Qt::LeftButton, {}, p.centroDe(2, 1));
    QCOMPARE(abiertas, QStringList{QStringLiteral("REFRIGERADORA")});
    teclear(p.fgDetalle, QStringLiteral("BAÑO"));
    QTest::keyClicks(p.fgDetalle, QStringLiteral("BAT"));
    QTest::keyClick(p.fgDetalle, Qt::Key_F2);
    QTest::keyClick(p.fgDetalle, Qt::Key_Backspace);
    QCOMPARE(lineas(*p.fgDetalle), antes);
    QCOMPARE(p.fgDetalle->Row(), 2);
    QVERIFY(!p.fgDetalle->findChild<QLineEdit*>());
}

QTEST_MAIN(TstGrilla)
#include "tst_grilla.moc"
