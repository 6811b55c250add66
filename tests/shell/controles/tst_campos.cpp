// Text fields as a person uses them: the six kinds of field through typing and leaving, Validate
// running when focus leaves for another control (and before a pressed button's click), locked fields,
// the keys handed to the screen, and the box of several lines.
#include "EntornoDePantallas.h"
#include "VentanaDePrueba.h"
#include "shell/controles/CajaTexto.h"
#include "shell/controles/CamposDeTexto.h"

#include <QPushButton>
#include <QtTest>

using namespace shell;

namespace {

using Teclas = QList<QPair<int, int>>;

enum Clase { Mayusculas, Digitos, Numero, Entero, Fecha };
void (*const kClases[])(ControlDeTexto*) = {MayusculasAlTeclear, SoloDigitos, NumeroAlSalir, EnteroAlSalir,
                                            FechaAlSalir};

// A window with a field under test, another field, and a button that notes the field's text.
struct Pantalla {
    VentanaDePrueba v;
    CajaTexto* txtCampo = v.agregar<CajaTexto>(QStringLiteral("txtCampo"), 120, 120);
    CajaTexto* txtOtro = v.agregar<CajaTexto>(QStringLiteral("txtOtro"), 120, 480);
    QPushButton* cmdAceptar = v.agregar<QPushButton>(QStringLiteral("cmdAceptar"), 120, 840, 1200, 375);
    QStringList sucesos;

    Pantalla() {
        QObject::connect(cmdAceptar, &QPushButton::clicked,
                         [this] { sucesos << QStringLiteral("Click ") + txtCampo->Text(); });
    }
    void contarValidaciones() {
        txtCampo->alValidar([this] { sucesos << QStringLiteral("Validate ") + txtCampo->Text(); });
    }
    void entrar() { QTest::mouseClick(txtCampo, Qt::LeftButton); }
    // Keys go to whatever has the focus.
    void hacer(const QString& gestos) {
        for (const QString& g : gestos.split(u' ')) {
            QWidget* foco = QApplication::focusWidget();
            if (g == "tab") QTest::keyClick(foco, Qt::Key_Tab);
            if (g == "shift+tab") QTest::keyClick(foco, Qt::Key_Backtab, Qt::ShiftModifier);
            if (g == "enter") QTest::keyClick(foco, Qt::Key_Return);
            if (g == "clic-otro") QTest::mouseClick(txtOtro, Qt::LeftButton);
            if (g == "clic-boton") QTest::mouseClick(cmdAceptar, Qt::LeftButton);
            if (g == "programa") txtOtro->setFocus();
        }
    }
};

} // namespace

class TstCampos : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { entorno_ = std::make_unique<EntornoDePantallas>(); }
    void cleanup() { entorno_.reset(); }
    void clasesDeCampo_data();
    void clasesDeCampo();
    void validarAlSalir_data();
    void validarAlSalir();
    void sinValidarAlCambiarDeVentanaNiAlDeshabilitar();
    void seleccionarTodoAlEntrar_data();
    void seleccionarTodoAlEntrar();
    void campoBloqueadoYFueraDelOrdenDeTabulacion();
    void teclasParaLaPantalla_data();
    void teclasParaLaPantalla();
    void manejadoresDeLaPantalla();
    void cajaDeVariasLineas();

private:
    std::unique_ptr<EntornoDePantallas> entorno_;
};

void TstCampos::clasesDeCampo_data() {
    QTest::addColumn<int>("clase");
    QTest::addColumn<int>("largo"); // MaxLength, if not -1
    QTest::addColumn<QString>("tecleado");
    QTest::addColumn<QString>("queda");
    const auto fila = [](const char* nombre, int clase, const char* tecleado, const char* queda,
                         int largo = -1) {
        QTest::newRow(nombre) << clase << largo << QString::fromUtf8(tecleado) << QString::fromUtf8(queda);
    };
    fila("mayúsculas: ñ; largo 0 es sin límite", Mayusculas, "muñoz", "MUÑOZ", 0);
    fila("el largo cuenta lo que la clase deja", Mayusculas, "ñb", "Ñ", 1);
    fila("dígitos: letras, signo, punto y ñ tragados", Digitos, "-1a2.ñ3", "123");
    fila("número con decimales", Numero, "12.5", "12.50");
    fila("número: nada numérico", Numero, "abc", "0.00");
    fila("entero: nada numérico", Entero, "abc", "0");
    fila("entero: texto decimal de Val", Entero, "12.50", "12.5");
    fila("fecha: día que no existe", Fecha, "31/02/2026", "");
    fila("fecha: guiones, completa los ceros", Fecha, "5-1-2026", "05/01/2026");
}

// Typed key by key into the field, then left with Tab.
void TstCampos::clasesDeCampo() {
    QFETCH(int, clase);
    QFETCH(int, largo);
    QFETCH(QString, tecleado);
    QFETCH(QString, queda);
    Pantalla p;
    kClases[clase](p.txtCampo);
    if (largo >= 0) p.txtCampo->setMaxLength(largo);
    QVERIFY(p.v.mostrar());
    p.entrar();
    teclear(p.txtCampo, tecleado);
    QTest::keyClick(p.txtCampo, Qt::Key_Tab);
    QCOMPARE(p.txtCampo->Text(), queda);
    QVERIFY(p.txtOtro->hasFocus());
}

void TstCampos::validarAlSalir_data() {
    QTest::addColumn<QString>("gestos");
    QTest::addColumn<bool>("pulsaElBoton");
    QTest::newRow("Tab") << "tab" << false;
    QTest::newRow("Enter avanza") << "enter" << false;
    QTest::newRow("foco puesto por el programa") << "programa" << false;
    QTest::newRow("clic en un botón") << "clic-boton" << true;
    QTest::newRow("Enter hasta el botón y Enter en él") << "enter enter enter" << true;
}

// Validate runs once on leaving, after the field's kind (it sees the cleaned text), and before the
// click of the button the user pressed to leave.
void TstCampos::validarAlSalir() {
    QFETCH(QString, gestos);
    QFETCH(bool, pulsaElBoton);
    Pantalla p;
    EnteroAlSalir(p.txtCampo);
    p.contarValidaciones();
    QVERIFY(p.v.mostrar());
    p.entrar();
    teclear(p.txtCampo, QStringLiteral("12abc"));
    QVERIFY(p.sucesos.isEmpty()); // typing doesn't validate
    p.hacer(gestos);
    QVERIFY(!p.txtCampo->hasFocus());
    QStringList esperados{QStringLiteral("Validate 12")};
    if (pulsaElBoton) esperados << QStringLiteral("Click 12");
    QCOMPARE(p.sucesos, esperados);
}

// Switching to another window and back, or the field's frame being disabled (as at "Guardar"), is no
// leaving by the user: no Validate, and no new GotFocus on coming back.
void TstCampos::sinValidarAlCambiarDeVentanaNiAlDeshabilitar() {
    Pantalla p;
    p.contarValidaciones();
    int llegadas = 0;
    p.txtCampo->alRecibirFoco([&] { ++llegadas; });
    QVERIFY(p.v.mostrar());
    p.txtCampo->setFocus();

    QWidget otra;
    otra.show();
    QApplication::setActiveWindow(&otra);
    QVERIFY(QTest::qWaitForWindowActive(&otra));
    QApplication::setActiveWindow(p.v.ventana());
    QVERIFY(QTest::qWaitForWindowActive(p.v.ventana()));
    QVERIFY(p.txtCampo->hasFocus());
    QCOMPARE(llegadas, 1);

    p.txtCampo->setEnabled(false);
    QVERIFY(p.sucesos.isEmpty());

    // Once enabled again, a real leaving validates as always.
    p.txtCampo->setEnabled(true);
    p.txtCampo->setFocus();
    QCOMPARE(llegadas, 2);
    QTest::keyClick(p.txtCampo, Qt::Key_Tab);
    QCOMPARE(p.sucesos, QStringList{QStringLiteral("Validate ")});
}

void TstCampos::seleccionarTodoAlEntrar_data() {
    QTest::addColumn<bool>("conClase");
    QTest::addColumn<QString>("gesto");
    QTest::newRow("Tab") << true << "tab";
    QTest::newRow("clic") << true << "clic-otro";
    QTest::newRow("sin la clase, Tab no selecciona") << false << "tab";
}

// The kind selects the whole text however the field is entered, so typing replaces it.
void TstCampos::seleccionarTodoAlEntrar() {
    QFETCH(bool, conClase);
    QFETCH(QString, gesto);
    Pantalla p;
    if (conClase) SeleccionarTodoAlEntrar(p.txtOtro);
    p.txtOtro->setText(QStringLiteral("1250"));
    QVERIFY(p.v.mostrar());
    p.txtCampo->setFocus();
    p.hacer(gesto);
    QVERIFY(p.txtOtro->hasFocus());
    teclear(p.txtOtro, QStringLiteral("9"));
    QCOMPARE(p.txtOtro->Text().size(), conClase ? 1 : 5);
}

// A locked field takes focus by the pointer and by Tab, and its text can be selected, but typing,
// deleting and pasting change nothing; leaving it still validates. Out of the tab order (the
// invoice's discount), Tab passes a field by and the pointer still enters it.
void TstCampos::campoBloqueadoYFueraDelOrdenDeTabulacion() {
    Pantalla p;
    auto* txtDescuento = p.v.agregar<CajaTexto>(QStringLiteral("txtDescuento"), 3000, 120);
    txtDescuento->setTabStop(false);
    QWidget::setTabOrder(p.txtOtro, txtDescuento);
    p.contarValidaciones();
    p.txtCampo->setText(QStringLiteral("JUAN"));
    p.txtCampo->setLocked(true);
    QVERIFY(p.v.mostrar());

    p.entrar();
    QVERIFY(p.txtCampo->hasFocus());
    p.hacer(QStringLiteral("tab tab")); // passes txtDescuento by
    QVERIFY(p.cmdAceptar->hasFocus());
    p.hacer(QStringLiteral("shift+tab shift+tab"));
    QVERIFY(p.txtCampo->hasFocus());
    p.txtCampo->setSelStart(0);
    p.txtCampo->setSelLength(2);
    QCOMPARE(p.txtCampo->SelText(), QStringLiteral("JU"));
    teclear(p.txtCampo, QStringLiteral("Ñx"));
    QTest::keyClick(p.txtCampo, Qt::Key_Backspace);
    QTest::keyClick(p.txtCampo, Qt::Key_Delete);
    QCOMPARE(p.txtCampo->Text(), QStringLiteral("JUAN"));
    QTest::mouseClick(txtDescuento, Qt::LeftButton);
    QVERIFY(txtDescuento->hasFocus());
    QCOMPARE(p.sucesos.count(QStringLiteral("Validate JUAN")), 2);

    p.txtCampo->setLocked(false);
    p.txtCampo->setFocus();
    p.txtCampo->setSelStart(4);
    teclear(p.txtCampo, QStringLiteral("A"));
    QCOMPARE(p.txtCampo->Text(), QStringLiteral("JUANA"));
}

void TstCampos::teclasParaLaPantalla_data() {
    QTest::addColumn<int>("tecla");
    QTest::addColumn<int>("modificadores");
    QTest::addColumn<Teclas>("recibidas");
    // The shift key is a key too, pressed before the other one.
    QTest::newRow("Shift+F2") << int(Qt::Key_F2) << int(Qt::ShiftModifier) << Teclas{{16, 1}, {113, 1}};
    QTest::newRow("Supr") << int(Qt::Key_Delete) << int(Qt::NoModifier) << Teclas{{46, 0}};
    QTest::newRow("letra") << int(Qt::Key_A) << int(Qt::NoModifier) << Teclas{{65, 0}};
    QTest::newRow("Enter, que además avanza")
        << int(Qt::Key_Return) << int(Qt::NoModifier) << Teclas{{13, 0}};
}

// KeyDown reaches the screen once per key, Enter included although the window then moves on.
void TstCampos::teclasParaLaPantalla() {
    QFETCH(int, tecla);
    QFETCH(int, modificadores);
    QFETCH(Teclas, recibidas);
    Pantalla p;
    Teclas llegadas;
    p.txtCampo->alPresionarTecla([&](int KeyCode, int Shift) { llegadas << qMakePair(KeyCode, Shift); });
    QVERIFY(p.v.mostrar());
    p.txtCampo->setFocus();
    QTest::keyClick(p.txtCampo, Qt::Key(tecla), Qt::KeyboardModifiers(modificadores));
    QCOMPARE(llegadas, recibidas);
    QCOMPARE(p.txtOtro->hasFocus(), tecla == Qt::Key_Return);
}

// The screen's handlers: KeyPress gets each character's code and may replace it or swallow it (0);
// Change runs for every change, the program's included; DblClick reaches the screen too.
void TstCampos::manejadoresDeLaPantalla() {
    Pantalla p;
    QList<int> codigos;
    int cambios = 0, dobles = 0;
    p.txtCampo->alTeclear([&](int& KeyAscii) {
        codigos << KeyAscii;
        if (KeyAscii == '.') KeyAscii = ',';
        if (KeyAscii == 'x') KeyAscii = 0;
    });
    p.txtCampo->alCambiar([&] { ++cambios; });
    p.txtCampo->alHacerDobleClic([&] {
        ++dobles;
        p.txtCampo->setText(QString());
    });
    QVERIFY(p.v.mostrar());
    p.entrar();
    teclear(p.txtCampo, QStringLiteral("1.5xñ"));
    QTest::keyClick(p.txtCampo, Qt::Key_Backspace);
    QTest::keyClick(p.txtCampo, Qt::Key_Left); // no character: not a KeyPress
    QCOMPARE(p.txtCampo->Text(), QStringLiteral("1,5"));
    QCOMPARE(codigos, (QList<int>{'1', '.', '5', 'x', 0xF1, 8}));
    QCOMPARE(cambios, 5);
    p.txtCampo->setText(QStringLiteral("CLIENTE"));
    QTest::mouseDClick(p.txtCampo, Qt::LeftButton);
    QCOMPARE(dobles, 1);
    QCOMPARE(cambios, 7);
}

void TstCampos::cajaDeVariasLineas() {
    VentanaDePrueba v;
    auto* txtConcepto = v.agregar<CajaTextoMultilinea>(QStringLiteral("txtConcepto"), 120, 120, 4000, 900);
    auto* txtOtro = v.agregar<CajaTexto>(QStringLiteral("txtOtro"), 120, 1200);
    QStringList validados;
    txtConcepto->alValidar([&] { validados << txtConcepto->Text(); });
    MayusculasAlTeclear(txtConcepto);
    QVERIFY(v.mostrar());
    QTest::mouseClick(txtConcepto->viewport(), Qt::LeftButton);
    QVERIFY(txtConcepto->hasFocus());
    teclear(txtConcepto, QStringLiteral("abono de señor"));
    QTest::keyClick(txtConcepto, Qt::Key_Tab); // moves on, types no tab
    QVERIFY(txtOtro->hasFocus());
    QCOMPARE(validados, QStringList{QStringLiteral("ABONO DE SEÑOR")});

    txtConcepto->setLocked(true);
    QTest::keyClick(txtOtro, Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(txtConcepto->hasFocus());
    teclear(txtConcepto, QStringLiteral("x"));
    QCOMPARE(txtConcepto->Text(), QStringLiteral("ABONO DE SEÑOR"));
    txtConcepto->setSelStart(6);
    txtConcepto->setSelLength(2);
    QCOMPARE(txtConcepto->textCursor().selectedText(), QStringLiteral("DE"));
}

QTEST_MAIN(TstCampos)
#include "tst_campos.moc"
