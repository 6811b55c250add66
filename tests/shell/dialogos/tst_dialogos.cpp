// The four dialogs as a person meets them through Common's procedures: texts and titles, where the
// dialog stands, the caller's title dimmed and highlighted, and each answer given with the mouse or
// the keyboard on the real controls, under the modal driver.
#include "EntornoDePantallas.h"
#include "shell/common/Common.h"
#include "shell/common/Twips.h"
#include "shell/dialogos/Dialogos.h"
#include "shell/marco/Marco.h"

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QtTest>

using namespace shell;

namespace {

QColor colorDe(QWidget* w) {
    return w->grab().toImage().pixelColor(2, 2);
}

QLabel* etiquetaDe(Formulario& f, const char* nombre) {
    return f.findChild<QLabel*>(QLatin1String(nombre));
}

QPushButton* boton(Formulario& f, int indice) {
    return f.findChild<QPushButton*>(QStringLiteral("cmdBoton(%1)").arg(indice));
}

QList<QPushButton*> botonesVisibles(Formulario& f) {
    QList<QPushButton*> v;
    for (int i = 0; QPushButton* b = boton(f, i); ++i)
        if (b->isVisible()) v << b;
    return v;
}

// "clicN" clicks button N, "cierre" the close box; "tab", "enter" and "escape" are keys pressed as a
// person presses them, on whatever has the focus.
void hacer(Formulario& f, const QString& gestos) {
    for (const QString& g : gestos.split(u' ', Qt::SkipEmptyParts)) {
        if (g.startsWith("clic")) QTest::mouseClick(boton(f, g.back().digitValue()), Qt::LeftButton);
        if (g == "cierre") QTest::mouseClick(f.findChild<QPushButton*>("cmdClose"), Qt::LeftButton);
        if (g == "tab") QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        if (g == "enter") QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        if (g == "escape") QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    }
}

// Whether a label shows its whole text in the size it has.
bool cabeEntero(QLabel* l) {
    return l->heightForWidth(l->width()) <= l->height();
}

bool dentroDe(QWidget* control, QWidget* ventana) {
    const QRect r(control->mapTo(ventana, QPoint(0, 0)), control->size());
    return ventana->rect().contains(r);
}

void darOpciones(const QStringList& textos) {
    Common::Parametros.ReDim(int(textos.size()));
    for (int i = 0; i < textos.size(); ++i)
        Common::Parametros(i + 1) = textos[i];
}

} // namespace

class TstDialogos : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { entorno_.reset(); }
    void mostrarMensaje_data();
    void mostrarMensaje();
    void cadaDialogoSeColocaSobreSuLlamador_data();
    void cadaDialogoSeColocaSobreSuLlamador();
    void preguntar_data();
    void preguntar();
    void elegirOpcion_data();
    void elegirOpcion();
    void cadaOpcionAlargaElDialogo();
    void pedirTexto_data();
    void pedirTexto();

private:
    std::unique_ptr<EntornoDePantallas> entorno_;
    QPointer<Marco> llamador_;
};

void TstDialogos::init() {
    entorno_ = std::make_unique<EntornoDePantallas>();
    // Any screen can call a dialog; the environment disposes of it with the other windows.
    llamador_ = new Marco(QStringLiteral("Bancos"), 6000, 4000);
    llamador_->Move(1500, 1200);
    llamador_->show();
}

void TstDialogos::mostrarMensaje_data() {
    QTest::addColumn<QString>("mensaje");
    QTest::addColumn<bool>("cabe");
    QTest::newRow("tres lineas") << QStringLiteral("Primera línea\r\nSegunda línea\r\nTercera línea") << true;
    QTest::newRow("ajuste de palabras")
        << QStringLiteral("La información del cliente no es suficiente, debe completarla para crear la "
                          "solicitud de crédito.")
        << true;
    QTest::newRow("mas de tres lineas") << QStringLiteral("Uno\r\nDos\r\nTres\r\nCuatro\r\nCinco") << false;
    // The driver's text is shown as it stands: no markup breaks it into lines.
    QTest::newRow("marcas tal cual") << QStringLiteral("Uno<br>Dos<br>Tres<br>Cuatro<br>Cinco") << true;
}

// Three lines fit; more are cut off, and neither the label nor the window grows for them (against a
// one-line message). The close box leaves; a message answers nothing.
void TstDialogos::mostrarMensaje() {
    QFETCH(QString, mensaje);
    QFETCH(bool, cabe);
    Common::RespuestaDialogo = QStringLiteral("Aceptar");
    QList<QSize> tamanos;
    QString texto;
    bool cabeElTexto = false, tresLineasCaben = false, cerrado = false;
    const auto mirar = [&](Formulario& f) {
        auto* lblMensaje = etiquetaDe(f, "lblMensaje");
        tamanos << lblMensaje->size() << f.size();
        texto = lblMensaje->text();
        cabeElTexto = cabeEntero(lblMensaje);
        tresLineasCaben =
            lblMensaje->height() >= 3 * lblMensaje->fontMetrics().lineSpacing() && dentroDe(lblMensaje, &f);
        hacer(f, QStringLiteral("cierre"));
        cerrado = f.descargado();
    };
    entorno_->alMostrarModal(mirar);
    Common::MostrarMensaje(QStringLiteral("Recibos"), QStringLiteral("Listo."), *llamador_);
    entorno_->alMostrarModal(mirar);
    Common::MostrarMensaje(QStringLiteral("Recibos"), mensaje, *llamador_);

    QCOMPARE(entorno_->modalesMostradas, (QStringList{"frmMensaje", "frmMensaje"}));
    QCOMPARE(texto, mensaje);
    QVERIFY(cerrado);
    QVERIFY(tresLineasCaben);
    QCOMPARE(cabeElTexto, cabe);
    QCOMPARE(tamanos.mid(2), tamanos.mid(0, 2));
    QCOMPARE(Common::RespuestaDialogo, QStringLiteral("Aceptar"));
}

void TstDialogos::cadaDialogoSeColocaSobreSuLlamador_data() {
    QTest::addColumn<QString>("dialogo");
    QTest::addColumn<QPointF>("llamador");
    QTest::addColumn<bool>("conCierre");
    const QPointF centro(1500, 1200);
    QTest::newRow("mensaje") << "frmMensaje" << centro << true;
    QTest::newRow("pregunta") << "frmPregunta" << centro << false;
    QTest::newRow("opcion") << "frmOpcion" << centro << true;
    // No check keeps a dialog on the display: near the lower right corner it stands partly off it.
    QTest::newRow("opcion, fuera de la pantalla") << "frmOpcion" << QPointF(10500, 8250) << true;
    QTest::newRow("texto") << "frmIngresoTexto" << centro << false;
}

void TstDialogos::cadaDialogoSeColocaSobreSuLlamador() {
    QFETCH(QString, dialogo);
    QFETCH(QPointF, llamador);
    QFETCH(bool, conCierre);
    llamador_->Move(llamador.x(), llamador.y());
    darOpciones({"Desactivar este fiador", "Eliminar el registro"});

    QPoint donde;
    QColor tituloDelLlamador;
    QString titulo;
    bool cierreVisible = false;
    entorno_->alMostrarModal([&](Formulario& f) {
        donde = f.pos();
        tituloDelLlamador = colorDe(llamador_->lblTitulo);
        titulo = etiquetaDe(f, "lblTitulo")->text();
        cierreVisible = f.findChild<QPushButton*>(QStringLiteral("cmdClose"))->isVisible();
        f.Unload();
    });
    const QString Titulo = QStringLiteral("Fiadores");
    if (dialogo == "frmMensaje") Common::MostrarMensaje(Titulo, QStringLiteral("Listo."), *llamador_);
    if (dialogo == "frmPregunta") Common::Preguntar(Titulo, QStringLiteral("Desea continuar"), *llamador_);
    if (dialogo == "frmOpcion") Common::ElegirOpcion(Titulo, *llamador_);
    if (dialogo == "frmIngresoTexto") Common::PedirTexto(Titulo, QStringLiteral("Motivo:"), *llamador_, {});

    QCOMPARE(entorno_->modalesMostradas, QStringList{dialogo});
    // 400 twips to the right of and below the caller's top left corner, to the nearest pixel.
    QCOMPARE(donde, QPoint(px(llamador.x() + 400), px(llamador.y() + 400)));
    QCOMPARE(titulo, QStringLiteral("Fiadores ")); // the design caption never shows
    QCOMPARE(cierreVisible, conCierre);
    QCOMPARE(tituloDelLlamador, QColor(128, 128, 128)); // dimmed while the dialog stands
    QCOMPARE(colorDe(llamador_->lblTitulo), QColor(0, 0, 128));
}

void TstDialogos::preguntar_data() {
    QTest::addColumn<QString>("pregunta");
    QTest::addColumn<QString>("mostrada");
    QTest::addColumn<QString>("gestos");
    QTest::addColumn<QString>("respuesta"); // empty: the dialog is left standing
    const auto fila = [](const char* nombre, const char* pregunta, const char* mostrada, const char* gestos,
                         const char* respuesta) {
        QTest::newRow(nombre) << QString(pregunta) << QString(mostrada) << QString(gestos)
                              << QString(respuesta);
    };
    fila("vacía; clic en Aceptar", "", "¿?", "clic0", "Aceptar");
    fila("clic en Cancelar", "Desea aprobar la solicitud de crédito",
         "¿Desea aprobar la solicitud de crédito?", "clic1", "Cancelar");
    fila("dos líneas; Enter en el botón enfocado al abrir", "Hay una transaccion activa\r\nDesea anularla",
         "¿Hay una transaccion activa\r\nDesea anularla?", "enter", "Aceptar");
    fila("Tab y Enter", "Desea eliminarlo", "¿Desea eliminarlo?", "tab enter", "Cancelar");
    fila("Escape no contesta", "Desea eliminarlo", "¿Desea eliminarlo?", "escape", "");
}

// The question is framed in "¿?" and fits; the two buttons are the only way out, and a dialog left
// standing answers "Cancelar" (the last answer mustn't leak into this one).
void TstDialogos::preguntar() {
    QFETCH(QString, pregunta);
    QFETCH(QString, mostrada);
    QFETCH(QString, gestos);
    QFETCH(QString, respuesta);
    Common::RespuestaDialogo = QStringLiteral("Aceptar");
    QStringList captions;
    QString texto;
    bool cabe = false, cerrado = false;
    entorno_->alMostrarModal([&](Formulario& f) {
        QVERIFY(QTest::qWaitForWindowActive(&f));
        for (QPushButton* b : botonesVisibles(f))
            captions << b->text();
        texto = etiquetaDe(f, "lblPregunta")->text();
        cabe = cabeEntero(etiquetaDe(f, "lblPregunta"));
        QCOMPARE(QApplication::focusWidget(), boton(f, 0));
        hacer(f, gestos);
        cerrado = f.descargado();
    });
    const QString obtenida = Common::Preguntar(QStringLiteral("Clientes"), pregunta, *llamador_);

    QCOMPARE(captions, (QStringList{"Aceptar", "Cancelar"}));
    QCOMPARE(texto, mostrada);
    QVERIFY(cabe);
    QCOMPARE(cerrado, !respuesta.isEmpty());
    QCOMPARE(obtenida, respuesta.isEmpty() ? QStringLiteral("Cancelar") : respuesta);
    QCOMPARE(Common::RespuestaDialogo, obtenida);
}

void TstDialogos::elegirOpcion_data() {
    QTest::addColumn<QStringList>("opciones");
    QTest::addColumn<QString>("gesto");
    QTest::addColumn<QString>("respuesta");
    const QStringList fiador{"Desactivar este fiador", "Eliminar el registro"};
    QTest::newRow("dos, la segunda") << fiador << "clic1" << QString("Eliminar el registro");
    QTest::newRow("dos, cierre") << fiador << "cierre" << QString("Cancelar");
    QTest::newRow("una sola") << QStringList{"Eliminar"} << "clic0" << QString("Eliminar");
    // Options are plain buttons, whatever their text: no picture of the bar's "Eliminar".
    QTest::newRow("sin dibujos") << QStringList{"Eliminar", "Desactivar"} << "clic1" << QString("Desactivar");
}

// One button per option, in order, one under another, the text of each in full view.
void TstDialogos::elegirOpcion() {
    QFETCH(QStringList, opciones);
    QFETCH(QString, gesto);
    QFETCH(QString, respuesta);
    darOpciones(opciones);
    QStringList captions;
    bool todoALaVista = true, sinDibujos = true, apiladas = true, cerrado = false;
    entorno_->alMostrarModal([&](Formulario& f) {
        auto* fraMain = f.findChild<QWidget*>(QStringLiteral("fraMain"));
        QPushButton* anterior = nullptr;
        for (QPushButton* b : botonesVisibles(f)) {
            captions << b->text();
            sinDibujos = sinDibujos && b->icon().isNull();
            apiladas = apiladas && (!anterior || b->y() >= anterior->geometry().bottom());
            todoALaVista = todoALaVista && dentroDe(b, fraMain) &&
                           b->fontMetrics().horizontalAdvance(b->text()) < b->width();
            anterior = b;
        }
        todoALaVista = todoALaVista && dentroDe(fraMain, &f);
        hacer(f, gesto);
        cerrado = f.descargado();
    });
    QCOMPARE(Common::ElegirOpcion(QStringLiteral("Clientes"), *llamador_), respuesta);

    QCOMPARE(captions, opciones); // "Opciones multiples" is gone
    QVERIFY(apiladas);
    QVERIFY(todoALaVista);
    QVERIFY(sinDibujos);
    QVERIFY(cerrado);
    QCOMPARE(Common::RespuestaDialogo, respuesta);
}

// Nothing stays from one showing to the next: three options, then two, and a shorter dialog. The width
// is reckoned in 16-bit integers: no option in use comes near, but one of 250 characters overflows.
void TstDialogos::cadaOpcionAlargaElDialogo() {
    entorno_->esperaFallos(); // checked below
    QList<int> altos, botones;
    for (const QStringList& textos :
         {QStringList{"Uno", "Dos", "Tres"}, QStringList{"Uno", "Dos"}, QStringList{QString(250, u'x')}}) {
        darOpciones(textos);
        entorno_->alMostrarModal([&](Formulario& f) {
            altos << f.height();
            botones << int(f.findChildren<QPushButton*>(QRegularExpression("^cmdBoton")).size());
            f.Unload();
        });
        Common::ElegirOpcion(QStringLiteral("Clientes"), *llamador_);
        QCOMPARE(entorno_->fallos.size(), textos.size() == 1 ? 1 : 0);
    }
    QCOMPARE(botones.mid(0, 2), (QList<int>{3, 2}));
    QVERIFY(altos[0] > altos[1]);
    QCOMPARE(entorno_->fallos[0].numero(), 6);
}

void TstDialogos::pedirTexto_data() {
    QTest::addColumn<QString>("valor");
    QTest::addColumn<QString>("abre");
    QTest::addColumn<QString>("tecleado");
    QTest::addColumn<QString>("gestos");
    QTest::addColumn<QString>("respuesta");
    QTest::addColumn<QString>("texto");
    const auto fila = [](const char* nombre, const char* valor, const char* abre, const char* tecleado,
                         const char* gestos, const char* respuesta, const char* texto) {
        QTest::newRow(nombre) << QString(valor) << QString(abre) << QString(tecleado) << QString(gestos)
                              << QString(respuesta) << QString(texto);
    };
    fila("blancos abren vacío; vacío aceptado", "    ", "", "", "clic0", "Aceptar", "");
    fila("acentos, recortado", "", "", "  Ñandú según él  ", "enter", "Aceptar", "Ñandú según él");
    // The field opens with its text selected, so typing replaces it.
    fila("lo tecleado reemplaza", " 0.00 ", "0.00", "25.50", "enter", "Aceptar", "25.50");
    fila("Escape cancela", "abc", "abc", "xyz", "escape", "Cancelar", "");
    fila("clic en Cancelar", "abc", "abc", "xyz", "clic1", "Cancelar", "");
    // On a focused button Enter presses that button, not "Aceptar".
    fila("Enter en Cancelar", "abc", "abc", "xyz", "tab tab enter", "Cancelar", "");
}

void TstDialogos::pedirTexto() {
    QFETCH(QString, valor);
    QFETCH(QString, abre);
    QFETCH(QString, tecleado);
    QFETCH(QString, gestos);
    QFETCH(QString, respuesta);
    QFETCH(QString, texto);
    Common::TextoSeleccionado = QStringLiteral("de una vez anterior");
    const QString pregunta =
        QStringLiteral("Ingrese el motivo por el cual será rechazada esta solicitud de crédito:");
    QString abierto, mostrada;
    bool enfocado = false, cabe = false, cerrado = false;
    entorno_->alMostrarModal([&](Formulario& f) {
        QVERIFY(QTest::qWaitForWindowActive(&f));
        auto* txtTexto = f.findChild<QLineEdit*>(QStringLiteral("txtTexto"));
        abierto = txtTexto->text();
        mostrada = etiquetaDe(f, "lblPregunta")->text();
        cabe = cabeEntero(etiquetaDe(f, "lblPregunta"));
        enfocado = QApplication::focusWidget() == txtTexto;
        teclear(txtTexto, tecleado);
        hacer(f, gestos);
        cerrado = f.descargado();
    });
    const QString obtenida =
        Common::PedirTexto(QStringLiteral("Solicitud de crédito"), pregunta, *llamador_, valor);

    QCOMPARE(mostrada, pregunta);
    QVERIFY(cabe);
    QCOMPARE(abierto, abre);
    QVERIFY(enfocado);
    QVERIFY(cerrado);
    QCOMPARE(obtenida, respuesta);
    QCOMPARE(Common::TextoSeleccionado, texto);
}

QTEST_MAIN(TstDialogos)
#include "tst_dialogos.moc"
