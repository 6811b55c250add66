// Text fields as a person uses them: the six kinds of field through typing and leaving, Validate
// running when focus leaves for another control (and before a pressed button's click), locked fields,
// the keys handed to the screen, and the box of several lines.
#include "EntornoDePantallas.h"
#include "VentanaDePrueba.h"
#include "runtime/Fechas.h"
#include "shell/controles/CajaTexto.h"
#include "shell/controles/CamposDeTexto.h"
#include "shell/controles/Teclas.h"

#include <QPushButton>
#include <QtTest>

using namespace shell;

namespace {

enum Clase { Mayusculas, Digitos, Numero, Entero, Fecha };

void aplicar(Clase clase, CajaTexto* caja) {
    switch (clase) {
    case Mayusculas:
        return MayusculasAlTeclear(caja);
    case Digitos:
        return SoloDigitos(caja);
    case Numero:
        return NumeroAlSalir(caja);
    case Entero:
        return EnteroAlSalir(caja);
    case Fecha:
        return FechaAlSalir(caja);
    }
}

enum Salida { PorTab, PorTabAtras, PorEnter, ClicEnOtroCampo, ClicEnBoton, PorPrograma };

// A window with a field under test, another field, and a button that notes the field's text.
struct Pantalla {
    VentanaDePrueba v;
    CajaTexto* txtCampo = v.agregar<CajaTexto>(QStringLiteral("txtCampo"), 120, 120);
    CajaTexto* txtOtro = v.agregar<CajaTexto>(QStringLiteral("txtOtro"), 120, 480);
    QPushButton* cmdAceptar = v.agregar<QPushButton>(QStringLiteral("cmdAceptar"), 120, 840, 1200, 375);
    QStringList sucesos;

    Pantalla() {
        cmdAceptar->setText(QStringLiteral("Aceptar"));
        QObject::connect(cmdAceptar, &QPushButton::clicked,
                         [this] { sucesos << QStringLiteral("Click ") + txtCampo->Text(); });
    }
    void contarValidaciones() {
        txtCampo->alValidar([this] { sucesos << QStringLiteral("Validate ") + txtCampo->Text(); });
    }
    void entrar() { QTest::mouseClick(txtCampo, Qt::LeftButton); }
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
    void validarAntesDelClicDelBoton_data();
    void validarAntesDelClicDelBoton();
    void seleccionarTodoAlEntrar_data();
    void seleccionarTodoAlEntrar();
    void campoBloqueado();
    void fueraDelOrdenDeTabulacion();
    void teclasParaLaPantalla_data();
    void teclasParaLaPantalla();
    void teclearPuedeCambiarOTragarElCaracter();
    void largoMaximo();
    void cambioYDobleClic();
    void colores();
    void cajaDeVariasLineas();

private:
    std::unique_ptr<EntornoDePantallas> entorno_;
};

void TstCampos::clasesDeCampo_data() {
    QTest::addColumn<int>("clase");
    QTest::addColumn<QString>("tecleado");
    QTest::addColumn<QString>("queda");

    QTest::newRow("mayúsculas: ñ") << int(Mayusculas) << "muñoz"
                                   << "MUÑOZ";
    QTest::newRow("mayúsculas: acentos y espacio") << int(Mayusculas) << "josé álvarez"
                                                   << "JOSÉ ÁLVAREZ";
    QTest::newRow("mayúsculas: cifras y signos quedan") << int(Mayusculas) << "a-1 b"
                                                        << "A-1 B";
    QTest::newRow("dígitos: letras tragadas") << int(Digitos) << "12abc34"
                                              << "1234";
    QTest::newRow("dígitos: signo y punto tragados") << int(Digitos) << "-5.5"
                                                     << "55";
    QTest::newRow("dígitos: ñ tragada") << int(Digitos) << "9ñ"
                                        << "9";
    QTest::newRow("número con decimales") << int(Numero) << "12.5"
                                          << "12.50";
    QTest::newRow("número: Val para en la coma") << int(Numero) << "1,500"
                                                 << "1.00";
    QTest::newRow("número: nada numérico") << int(Numero) << "abc"
                                           << "0.00";
    QTest::newRow("número: vacío") << int(Numero) << ""
                                   << "0.00";
    QTest::newRow("número: blancos delante") << int(Numero) << "  7"
                                             << "7.00";
    QTest::newRow("número: mitad hacia arriba") << int(Numero) << "2.675"
                                                << "2.68";
    QTest::newRow("número: negativo") << int(Numero) << "-3.1x"
                                      << "-3.10";
    QTest::newRow("entero: letras detrás") << int(Entero) << "12abc"
                                           << "12";
    QTest::newRow("entero: nada numérico") << int(Entero) << "abc"
                                           << "0";
    QTest::newRow("entero: texto decimal de Val") << int(Entero) << "12.50"
                                                  << "12.5";
    QTest::newRow("fecha: día que no existe") << int(Fecha) << "31/02/2026"
                                              << "";
    QTest::newRow("fecha: completa los ceros") << int(Fecha) << "5/1/2026"
                                               << "05/01/2026";
    QTest::newRow("fecha: con guiones") << int(Fecha) << "22-11-2026"
                                        << "22/11/2026";
    QTest::newRow("fecha: texto") << int(Fecha) << "mañana"
                                  << "";
    QTest::newRow("fecha: 29 de febrero bisiesto") << int(Fecha) << "29/02/2028"
                                                   << "29/02/2028";
}

// Typed key by key into the field, then left with Tab.
void TstCampos::clasesDeCampo() {
    QFETCH(int, clase);
    QFETCH(QString, tecleado);
    QFETCH(QString, queda);
    Pantalla p;
    aplicar(Clase(clase), p.txtCampo);
    QVERIFY(p.v.mostrar());
    p.entrar();
    QVERIFY(p.txtCampo->hasFocus());
    teclear(p.txtCampo, tecleado);
    QTest::keyClick(p.txtCampo, Qt::Key_Tab);
    QCOMPARE(p.txtCampo->Text(), queda);
    QVERIFY(p.txtOtro->hasFocus());
}

void TstCampos::validarAlSalir_data() {
    QTest::addColumn<int>("salida");
    QTest::newRow("Tab") << int(PorTab);
    QTest::newRow("Shift+Tab") << int(PorTabAtras);
    QTest::newRow("Enter avanza") << int(PorEnter);
    QTest::newRow("clic en otro campo") << int(ClicEnOtroCampo);
    QTest::newRow("clic en un botón") << int(ClicEnBoton);
    QTest::newRow("foco puesto por el programa") << int(PorPrograma);
}

void TstCampos::validarAlSalir() {
    QFETCH(int, salida);
    Pantalla p;
    p.contarValidaciones();
    QVERIFY(p.v.mostrar());
    p.entrar();
    teclear(p.txtCampo, QStringLiteral("abc"));
    QVERIFY(p.sucesos.isEmpty()); // typing doesn't validate
    switch (Salida(salida)) {
    case PorTab:
        QTest::keyClick(p.txtCampo, Qt::Key_Tab);
        break;
    case PorTabAtras:
        QTest::keyClick(p.txtCampo, Qt::Key_Backtab, Qt::ShiftModifier);
        break;
    case PorEnter:
        QTest::keyClick(p.txtCampo, Qt::Key_Return);
        QCOMPARE(p.txtCampo->Text(), QStringLiteral("abc")); // Enter types nothing
        break;
    case ClicEnOtroCampo:
        QTest::mouseClick(p.txtOtro, Qt::LeftButton);
        break;
    case ClicEnBoton:
        QTest::mouseClick(p.cmdAceptar, Qt::LeftButton);
        break;
    case PorPrograma:
        p.txtOtro->setFocus();
        break;
    }
    QVERIFY(!p.txtCampo->hasFocus());
    QCOMPARE(p.sucesos.value(0), QStringLiteral("Validate abc"));
    QCOMPARE(p.sucesos.count(QStringLiteral("Validate abc")), 1);
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
    QCOMPARE(llegadas, 1);

    QWidget otra;
    otra.resize(200, 100);
    otra.show();
    QApplication::setActiveWindow(&otra);
    QVERIFY(QTest::qWaitForWindowActive(&otra));
    QApplication::setActiveWindow(p.v.ventana());
    QVERIFY(QTest::qWaitForWindowActive(p.v.ventana()));
    QVERIFY(p.txtCampo->hasFocus());
    QCOMPARE(llegadas, 1);

    p.txtCampo->setEnabled(false);
    QVERIFY(!p.txtCampo->hasFocus());
    QVERIFY(p.sucesos.isEmpty());

    // Once enabled again, a real leaving validates as always.
    p.txtCampo->setEnabled(true);
    p.txtCampo->setFocus();
    QCOMPARE(llegadas, 2);
    QTest::keyClick(p.txtCampo, Qt::Key_Tab);
    QCOMPARE(p.sucesos, QStringList{QStringLiteral("Validate ")});
}

void TstCampos::validarAntesDelClicDelBoton_data() {
    QTest::addColumn<bool>("conTeclado");
    QTest::newRow("clic con el ratón") << false;
    QTest::newRow("Enter hasta el botón y Enter en él") << true;
}

// The screen's Validate handler, after the field's kind, sees the cleaned text; the button's click
// comes after both.
void TstCampos::validarAntesDelClicDelBoton() {
    QFETCH(bool, conTeclado);
    Pantalla p;
    EnteroAlSalir(p.txtCampo);
    p.contarValidaciones();
    QVERIFY(p.v.mostrar());
    p.entrar();
    QTest::keyClicks(p.txtCampo, QStringLiteral("12abc"));
    if (conTeclado) {
        QTest::keyClick(p.txtCampo, Qt::Key_Return);
        QTest::keyClick(p.txtOtro, Qt::Key_Return);
        QVERIFY(p.cmdAceptar->hasFocus());
        QTest::keyClick(p.cmdAceptar, Qt::Key_Return);
    } else {
        QTest::mouseClick(p.cmdAceptar, Qt::LeftButton);
    }
    QCOMPARE(p.sucesos, (QStringList{QStringLiteral("Validate 12"), QStringLiteral("Click 12")}));
}

void TstCampos::seleccionarTodoAlEntrar_data() {
    QTest::addColumn<bool>("conClase");
    QTest::addColumn<int>("como");
    QTest::newRow("Tab") << true << int(PorTab);
    QTest::newRow("clic") << true << int(ClicEnOtroCampo);
    QTest::newRow("foco puesto por el programa") << true << int(PorPrograma);
    QTest::newRow("sin la clase, Tab no selecciona") << false << int(PorTab);
    QTest::newRow("sin la clase, el clic no selecciona") << false << int(ClicEnOtroCampo);
}

// The kind selects the whole text however the field is entered, so typing replaces it.
void TstCampos::seleccionarTodoAlEntrar() {
    QFETCH(bool, conClase);
    QFETCH(int, como);
    Pantalla p;
    if (conClase) SeleccionarTodoAlEntrar(p.txtOtro);
    p.txtOtro->setText(QStringLiteral("1250"));
    QVERIFY(p.v.mostrar());
    p.txtCampo->setFocus();
    switch (como) {
    case PorTab:
        QTest::keyClick(p.txtCampo, Qt::Key_Tab);
        break;
    case ClicEnOtroCampo:
        QTest::mouseClick(p.txtOtro, Qt::LeftButton);
        break;
    default:
        p.txtOtro->setFocus();
        break;
    }
    QVERIFY(p.txtOtro->hasFocus());
    QCOMPARE(p.txtOtro->SelLength(), conClase ? 4 : 0);
    teclear(p.txtOtro, QStringLiteral("9"));
    if (conClase)
        QCOMPARE(p.txtOtro->Text(), QStringLiteral("9"));
    else
        QCOMPARE(p.txtOtro->Text().size(), 5);
}

void TstCampos::campoBloqueado() {
    Pantalla p;
    p.contarValidaciones();
    p.txtCampo->setText(QStringLiteral("JUAN"));
    p.txtCampo->setLocked(true);
    QVERIFY(p.txtCampo->Locked());
    QVERIFY(p.v.mostrar());

    // It takes focus by the pointer and by Tab, and its text can be selected...
    p.entrar();
    QVERIFY(p.txtCampo->hasFocus());
    QTest::keyClick(p.txtCampo, Qt::Key_Tab);
    QTest::keyClick(p.txtOtro, Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(p.txtCampo->hasFocus());
    p.txtCampo->setSelStart(0);
    p.txtCampo->setSelLength(2);
    QCOMPARE(p.txtCampo->SelText(), QStringLiteral("JU"));
    // ...but typing, deleting and pasting change nothing.
    teclear(p.txtCampo, QStringLiteral("Ñx"));
    QTest::keyClick(p.txtCampo, Qt::Key_Backspace);
    QTest::keyClick(p.txtCampo, Qt::Key_Delete);
    QCOMPARE(p.txtCampo->Text(), QStringLiteral("JUAN"));
    // Leaving it still validates.
    QTest::keyClick(p.txtCampo, Qt::Key_Tab);
    QCOMPARE(p.sucesos.count(QStringLiteral("Validate JUAN")), 2);

    p.txtCampo->setLocked(false);
    p.txtCampo->setFocus();
    p.txtCampo->setSelStart(4);
    teclear(p.txtCampo, QStringLiteral("A"));
    QCOMPARE(p.txtCampo->Text(), QStringLiteral("JUANA"));
}

// Out of the tab order (the invoice's discount): Tab passes it by, the pointer still enters it.
void TstCampos::fueraDelOrdenDeTabulacion() {
    Pantalla p;
    auto* txtDescuento = p.v.agregar<CajaTexto>(QStringLiteral("txtDescuento"), 3000, 120);
    txtDescuento->setTabStop(false);
    QVERIFY(!txtDescuento->TabStop());
    QWidget::setTabOrder(p.txtCampo, txtDescuento);
    QWidget::setTabOrder(txtDescuento, p.txtOtro);
    QVERIFY(p.v.mostrar());
    p.txtCampo->setFocus();
    QTest::keyClick(p.txtCampo, Qt::Key_Tab);
    QVERIFY(p.txtOtro->hasFocus());
    QTest::keyClick(p.txtOtro, Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(p.txtCampo->hasFocus());
    QTest::mouseClick(txtDescuento, Qt::LeftButton);
    QVERIFY(txtDescuento->hasFocus());
}

void TstCampos::teclasParaLaPantalla_data() {
    using Teclas = QList<QPair<int, int>>;
    QTest::addColumn<int>("tecla");
    QTest::addColumn<int>("modificadores");
    QTest::addColumn<Teclas>("recibidas");
    QTest::newRow("F2") << int(Qt::Key_F2) << int(Qt::NoModifier) << Teclas{{113, 0}};
    // The shift key is a key too, pressed before the other one.
    QTest::newRow("Shift+F2") << int(Qt::Key_F2) << int(Qt::ShiftModifier) << Teclas{{16, 1}, {113, 1}};
    QTest::newRow("Ctrl+Insert") << int(Qt::Key_Insert) << int(Qt::ControlModifier)
                                 << Teclas{{17, 2}, {45, 2}};
    QTest::newRow("Supr") << int(Qt::Key_Delete) << int(Qt::NoModifier) << Teclas{{46, 0}};
    QTest::newRow("letra") << int(Qt::Key_A) << int(Qt::NoModifier) << Teclas{{65, 0}};
    QTest::newRow("Enter, que además avanza")
        << int(Qt::Key_Return) << int(Qt::NoModifier) << Teclas{{13, 0}};
}

// KeyDown reaches the screen once per key, Enter included although the window then moves on.
void TstCampos::teclasParaLaPantalla() {
    using Teclas = QList<QPair<int, int>>;
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

// KeyPress hands the character code to the screen, which may replace it or swallow it (0).
void TstCampos::teclearPuedeCambiarOTragarElCaracter() {
    Pantalla p;
    QList<int> codigos;
    p.txtCampo->alTeclear([&](int& KeyAscii) {
        codigos << KeyAscii;
        if (KeyAscii == '.') KeyAscii = ',';
        if (KeyAscii == 'x') KeyAscii = 0;
    });
    QVERIFY(p.v.mostrar());
    p.entrar();
    teclear(p.txtCampo, QStringLiteral("1.5xñ"));
    QTest::keyClick(p.txtCampo, Qt::Key_Backspace);
    QTest::keyClick(p.txtCampo, Qt::Key_Left); // no character: not a KeyPress
    QCOMPARE(p.txtCampo->Text(), QStringLiteral("1,5"));
    QCOMPARE(codigos, (QList<int>{'1', '.', '5', 'x', 0xF1, 8}));
}

void TstCampos::largoMaximo() {
    Pantalla p;
    QCOMPARE(p.txtCampo->MaxLength(), 0);
    p.txtCampo->setMaxLength(1);
    MayusculasAlTeclear(p.txtCampo);
    QVERIFY(p.v.mostrar());
    p.entrar();
    teclear(p.txtCampo, QStringLiteral("ñb"));
    QCOMPARE(p.txtCampo->Text(), QStringLiteral("Ñ"));
    p.txtCampo->setMaxLength(0);
    teclear(p.txtCampo, QStringLiteral("ab"));
    QCOMPARE(p.txtCampo->Text(), QStringLiteral("ÑAB"));
}

void TstCampos::cambioYDobleClic() {
    Pantalla p;
    int cambios = 0, dobles = 0;
    p.txtCampo->alCambiar([&] { ++cambios; });
    p.txtCampo->alHacerDobleClic([&] {
        ++dobles;
        p.txtCampo->setText(QString());
        p.txtCampo->setBackColor(QColor(255, 255, 192));
    });
    QVERIFY(p.v.mostrar());
    p.entrar();
    teclear(p.txtCampo, QStringLiteral("ab"));
    QCOMPARE(cambios, 2);
    p.txtCampo->setText(QStringLiteral("CLIENTE"));
    QCOMPARE(cambios, 3);
    QTest::mouseDClick(p.txtCampo, Qt::LeftButton);
    QCOMPARE(dobles, 1);
    QCOMPARE(p.txtCampo->Text(), QString());
    QCOMPARE(cambios, 4);
}

void TstCampos::colores() {
    Pantalla p;
    p.txtCampo->setBackColor(QColor(224, 224, 224));
    p.txtCampo->setForeColor(QColor(255, 0, 0));
    QCOMPARE(p.txtCampo->BackColor(), QColor(224, 224, 224));
    QCOMPARE(p.txtCampo->ForeColor(), QColor(255, 0, 0));
    QVERIFY(p.v.mostrar());
    const QImage imagen = p.txtCampo->grab().toImage();
    QCOMPARE(imagen.pixelColor(imagen.width() / 2, imagen.height() / 2), QColor(224, 224, 224));
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
    QCOMPARE(txtConcepto->SelLength(), 2);
    QCOMPARE(txtConcepto->textCursor().selectedText(), QStringLiteral("DE"));
}

QTEST_MAIN(TstCampos)
#include "tst_campos.moc"
