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

// A key as a person presses it: it goes to whatever has the focus.
void pulsar(Qt::Key tecla) {
    QTest::keyClick(QApplication::focusWidget(), tecla);
}

// Whether a label shows its whole text in the size it has.
bool cabeEntero(QLabel* l) {
    return l->heightForWidth(l->width()) <= l->height();
}

bool dentroDe(QWidget* control, QWidget* ventana) {
    const QRect r(control->mapTo(ventana, QPoint(0, 0)), control->size());
    return ventana->rect().contains(r);
}

} // namespace

class TstDialogos : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void mostrarMensaje_data();
    void mostrarMensaje();
    void cadaDialogoSeColocaSobreSuLlamador_data();
    void cadaDialogoSeColocaSobreSuLlamador();
    void preguntarEnmarcaLaPregunta_data();
    void preguntarEnmarcaLaPregunta();
    void preguntarSeContestaConRatonYTeclado_data();
    void preguntarSeContestaConRatonYTeclado();
    void elegirOpcion_data();
    void elegirOpcion();
    void cadaOpcionAlargaElDialogo();
    void unaOpcionDemasiadoLargaTerminaElPrograma();
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
    llamador_->setObjectName(QStringLiteral("llamador"));
    llamador_->Move(1500, 1200);
    llamador_->show();
}

void TstDialogos::cleanup() {
    entorno_.reset();
}

void TstDialogos::mostrarMensaje_data() {
    QTest::addColumn<QString>("mensaje");
    QTest::addColumn<bool>("cabe");
    QTest::newRow("una linea") << QStringLiteral("El numero de recibo que ingreso ya existe.") << true;
    QTest::newRow("tres lineas") << QStringLiteral("Primera línea\r\nSegunda línea\r\nTercera línea") << true;
    QTest::newRow("ajuste de palabras")
        << QStringLiteral("La información del cliente no es suficiente, debe completarla para crear la "
                          "solicitud de crédito.")
        << true;
    QTest::newRow("mas de tres lineas") << QStringLiteral("Uno\r\nDos\r\nTres\r\nCuatro\r\nCinco") << false;
    // The driver's text is shown as it stands: no markup breaks it into lines.
    QTest::newRow("marcas tal cual") << QStringLiteral("Uno<br>Dos<br>Tres<br>Cuatro<br>Cinco") << true;
}

void TstDialogos::mostrarMensaje() {
    QFETCH(QString, mensaje);
    QFETCH(bool, cabe);
    Common::RespuestaDialogo = QStringLiteral("Aceptar");
    QSize etiquetaCorta, dialogoCorto;
    entorno_->alMostrarModal([&](Formulario& f) {
        etiquetaCorta = etiquetaDe(f, "lblMensaje")->size();
        dialogoCorto = f.size();
        f.Unload();
    });
    Common::MostrarMensaje(QStringLiteral("Recibos"), QStringLiteral("Listo."), *llamador_);

    QString titulo, texto, ayuda;
    QSize tamanoEtiqueta, tamanoDialogo;
    bool cabeElTexto = false, tresLineasCaben = false, cerrado = false;
    entorno_->alMostrarModal([&](Formulario& f) {
        auto* lblMensaje = etiquetaDe(f, "lblMensaje");
        auto* cmdClose = f.findChild<QPushButton*>(QStringLiteral("cmdClose"));
        QVERIFY(lblMensaje && cmdClose);
        titulo = etiquetaDe(f, "lblTitulo")->text();
        texto = lblMensaje->text();
        ayuda = cmdClose->toolTip();
        tamanoEtiqueta = lblMensaje->size();
        tamanoDialogo = f.size();
        cabeElTexto = cabeEntero(lblMensaje);
        tresLineasCaben =
            lblMensaje->height() >= 3 * lblMensaje->fontMetrics().lineSpacing() && dentroDe(lblMensaje, &f);
        QVERIFY(cmdClose->isVisible());
        QTest::mouseClick(cmdClose, Qt::LeftButton);
        cerrado = f.descargado();
    });
    Common::MostrarMensaje(QStringLiteral("Recibos"), mensaje, *llamador_);

    QCOMPARE(entorno_->modalesMostradas, (QStringList{"frmMensaje", "frmMensaje"}));
    QCOMPARE(titulo, QStringLiteral("Recibos "));
    QCOMPARE(texto, mensaje);
    QCOMPARE(ayuda, QStringLiteral("Cerrar esta ventana"));
    QVERIFY(cerrado);
    // Three lines fit; more are cut off, and neither the label nor the window grows for them.
    QVERIFY(tresLineasCaben);
    QCOMPARE(cabeElTexto, cabe);
    QCOMPARE(tamanoEtiqueta, etiquetaCorta);
    QCOMPARE(tamanoDialogo, dialogoCorto);
    QCOMPARE(Common::RespuestaDialogo, QStringLiteral("Aceptar")); // a message answers nothing
}

void TstDialogos::cadaDialogoSeColocaSobreSuLlamador_data() {
    QTest::addColumn<QString>("dialogo");
    QTest::addColumn<QPointF>("llamador");
    QTest::addColumn<bool>("conCierre");
    const QPointF centro(1500, 1200), esquina(0, 0), abajoDerecha(10500, 8250);
    QTest::newRow("mensaje") << "frmMensaje" << centro << true;
    QTest::newRow("mensaje, llamador en la esquina") << "frmMensaje" << esquina << true;
    QTest::newRow("pregunta") << "frmPregunta" << centro << false;
    QTest::newRow("opcion") << "frmOpcion" << centro << true;
    // No check keeps a dialog on the display: near the lower right corner it stands partly off it.
    QTest::newRow("opcion, fuera de la pantalla") << "frmOpcion" << abajoDerecha << true;
    QTest::newRow("texto") << "frmIngresoTexto" << centro << false;
}

void TstDialogos::cadaDialogoSeColocaSobreSuLlamador() {
    QFETCH(QString, dialogo);
    QFETCH(QPointF, llamador);
    QFETCH(bool, conCierre);
    llamador_->Move(llamador.x(), llamador.y());
    Common::Parametros.ReDim(2);
    Common::Parametros(1) = QStringLiteral("Desactivar este fiador");
    Common::Parametros(2) = QStringLiteral("Eliminar el registro");

    QPoint donde;
    QColor tituloDelLlamador;
    QString titulo;
    bool cierreVisible = false, tituloDeLadoALado = false;
    entorno_->alMostrarModal([&](Formulario& f) {
        donde = f.pos();
        tituloDelLlamador = colorDe(llamador_->lblTitulo);
        titulo = etiquetaDe(f, "lblTitulo")->text();
        tituloDeLadoALado = etiquetaDe(f, "lblTitulo")->width() == f.width();
        cierreVisible = f.findChild<QPushButton*>(QStringLiteral("cmdClose"))->isVisible();
        f.Unload();
    });
    const QString Titulo = QStringLiteral("Fiadores");
    if (dialogo == QLatin1String("frmMensaje"))
        Common::MostrarMensaje(Titulo, QStringLiteral("Listo."), *llamador_);
    else if (dialogo == QLatin1String("frmPregunta"))
        Common::Preguntar(Titulo, QStringLiteral("Desea continuar"), *llamador_);
    else if (dialogo == QLatin1String("frmOpcion"))
        Common::ElegirOpcion(Titulo, *llamador_);
    else
        Common::PedirTexto(Titulo, QStringLiteral("Motivo:"), *llamador_, QString());

    QCOMPARE(entorno_->modalesMostradas, QStringList{dialogo});
    // 400 twips to the right of and below the caller's top left corner, to the nearest pixel.
    QCOMPARE(donde, QPoint(px(llamador.x() + 400), px(llamador.y() + 400)));
    QCOMPARE(titulo, QStringLiteral("Fiadores ")); // the design caption never shows
    QVERIFY(tituloDeLadoALado);
    QCOMPARE(cierreVisible, conCierre);
    QCOMPARE(tituloDelLlamador, QColor(128, 128, 128)); // dimmed while the dialog stands
    QCOMPARE(colorDe(llamador_->lblTitulo), QColor(0, 0, 128));
}

void TstDialogos::preguntarEnmarcaLaPregunta_data() {
    QTest::addColumn<QString>("pregunta");
    QTest::addColumn<QString>("mostrada");
    QTest::newRow("vacia") << QString() << QStringLiteral("¿?");
    QTest::newRow("una linea") << QStringLiteral("Desea aprobar la solicitud de crédito")
                               << QStringLiteral("¿Desea aprobar la solicitud de crédito?");
    QTest::newRow("dos lineas") << QStringLiteral("Hay una transaccion de datos activa\r\nDesea anularla")
                                << QStringLiteral("¿Hay una transaccion de datos activa\r\nDesea anularla?");
}

void TstDialogos::preguntarEnmarcaLaPregunta() {
    QFETCH(QString, pregunta);
    QFETCH(QString, mostrada);
    QString texto;
    bool cabe = false;
    entorno_->alMostrarModal([&](Formulario& f) {
        auto* lblPregunta = etiquetaDe(f, "lblPregunta");
        texto = lblPregunta->text();
        cabe = cabeEntero(lblPregunta);
        QTest::mouseClick(boton(f, 0), Qt::LeftButton);
    });
    QCOMPARE(Common::Preguntar(QStringLiteral("Solicitud de crédito"), pregunta, *llamador_),
             QStringLiteral("Aceptar"));
    QCOMPARE(texto, mostrada);
    QVERIFY(cabe);
}

void TstDialogos::preguntarSeContestaConRatonYTeclado_data() {
    QTest::addColumn<QString>("gesto");
    QTest::addColumn<QString>("respuesta");
    QTest::newRow("clic en Aceptar") << "clic 0"
                                     << "Aceptar";
    QTest::newRow("clic en Cancelar") << "clic 1"
                                      << "Cancelar";
    QTest::newRow("Enter en el boton enfocado al abrir") << "enter"
                                                         << "Aceptar";
    QTest::newRow("Tab y Enter") << "tab enter"
                                 << "Cancelar";
    QTest::newRow("Escape no contesta") << "escape"
                                        << "";
}

void TstDialogos::preguntarSeContestaConRatonYTeclado() {
    QFETCH(QString, gesto);
    QFETCH(QString, respuesta);
    Common::RespuestaDialogo = QStringLiteral("Aceptar"); // the last answer mustn't leak into this one
    QStringList captions;
    bool cerrado = false;
    entorno_->alMostrarModal([&](Formulario& f) {
        QVERIFY(QTest::qWaitForWindowActive(&f));
        for (QPushButton* b : botonesVisibles(f))
            captions << b->text();
        QCOMPARE(QApplication::focusWidget(), boton(f, 0));
        if (gesto.startsWith(QLatin1String("clic")))
            QTest::mouseClick(boton(f, gesto.back().digitValue()), Qt::LeftButton);
        if (gesto.startsWith(QLatin1String("tab"))) pulsar(Qt::Key_Tab);
        if (gesto.endsWith(QLatin1String("enter"))) pulsar(Qt::Key_Return);
        if (gesto == QLatin1String("escape")) pulsar(Qt::Key_Escape);
        cerrado = f.descargado();
    });
    const QString obtenida =
        Common::Preguntar(QStringLiteral("Clientes"), QStringLiteral("Desea eliminarlo"), *llamador_);

    QCOMPARE(captions, (QStringList{"Aceptar", "Cancelar"}));
    // The two buttons are the only way out; a dialog left standing answers "Cancelar".
    QCOMPARE(cerrado, !respuesta.isEmpty());
    QCOMPARE(obtenida, respuesta.isEmpty() ? QStringLiteral("Cancelar") : respuesta);
    QCOMPARE(Common::RespuestaDialogo, obtenida);
}

void TstDialogos::elegirOpcion_data() {
    QTest::addColumn<QStringList>("opciones");
    QTest::addColumn<int>("pulsado"); // -1: the close box
    QTest::addColumn<QString>("respuesta");
    const QStringList fiador{"Desactivar este fiador", "Eliminar el registro"};
    const QStringList tres{"Desactivar este cliente", "Eliminar el registro", "Ver el historial del cliente"};
    QTest::newRow("dos, la primera") << fiador << 0 << "Desactivar este fiador";
    QTest::newRow("dos, la segunda") << fiador << 1 << "Eliminar el registro";
    QTest::newRow("dos, cierre") << fiador << -1 << "Cancelar";
    QTest::newRow("tres, la tercera") << tres << 2 << "Ver el historial del cliente";
    QTest::newRow("tres, cierre") << tres << -1 << "Cancelar";
    QTest::newRow("una sola") << QStringList{"Eliminar"} << 0 << "Eliminar";
    // Options are plain buttons, whatever their text: no picture of the bar's "Eliminar".
    QTest::newRow("sin dibujos") << QStringList{"Eliminar", "Desactivar"} << 1 << "Desactivar";
}

void TstDialogos::elegirOpcion() {
    QFETCH(QStringList, opciones);
    QFETCH(int, pulsado);
    QFETCH(QString, respuesta);
    Common::Parametros.ReDim(opciones.size());
    qsizetype largoMayor = 0;
    for (int i = 0; i < opciones.size(); ++i) {
        Common::Parametros(i + 1) = opciones[i];
        largoMayor = qMax(largoMayor, opciones[i].size());
    }

    QStringList captions;
    QList<double> tops;
    QList<int> anchos;
    bool todoALaVista = true, sinDibujos = true, cerrado = false;
    entorno_->alMostrarModal([&](Formulario& f) {
        auto* fraMain = f.findChild<QWidget*>(QStringLiteral("fraMain"));
        for (QPushButton* b : botonesVisibles(f)) {
            captions << b->text();
            tops << topTw(b);
            anchos << b->width();
            sinDibujos = sinDibujos && b->icon().isNull();
            todoALaVista = todoALaVista && dentroDe(b, fraMain) &&
                           b->fontMetrics().horizontalAdvance(b->text()) < b->width();
        }
        todoALaVista = todoALaVista && dentroDe(fraMain, &f);
        if (pulsado < 0)
            QTest::mouseClick(f.findChild<QPushButton*>(QStringLiteral("cmdClose")), Qt::LeftButton);
        else
            QTest::mouseClick(boton(f, pulsado), Qt::LeftButton);
        cerrado = f.descargado();
    });
    QCOMPARE(Common::ElegirOpcion(QStringLiteral("Clientes"), *llamador_), respuesta);

    QCOMPARE(captions, opciones); // "Opciones multiples" is gone
    for (int i = 1; i < tops.size(); ++i)
        QCOMPARE(tops[i] - tops[i - 1], 495.0);
    // Every button as wide as the longest option needs: 160 twips a character and 350 more.
    QCOMPARE(anchos, QList<int>(opciones.size(), px(largoMayor * 160 + 350)));
    QVERIFY(todoALaVista);
    QVERIFY(sinDibujos);
    QVERIFY(cerrado);
    QCOMPARE(Common::RespuestaDialogo, respuesta);
}

void TstDialogos::cadaOpcionAlargaElDialogo() {
    // Nothing stays from one showing to the next: three options, then two.
    QList<int> altos, botones;
    for (const QStringList& opciones : {QStringList{"Uno", "Dos", "Tres"}, QStringList{"Uno", "Dos"}}) {
        Common::Parametros.ReDim(opciones.size());
        for (int i = 0; i < opciones.size(); ++i)
            Common::Parametros(i + 1) = opciones[i];
        entorno_->alMostrarModal([&](Formulario& f) {
            altos << f.height();
            botones << int(f.findChildren<QPushButton*>(QRegularExpression("^cmdBoton")).size());
            f.Unload();
        });
        Common::ElegirOpcion(QStringLiteral("Clientes"), *llamador_);
    }
    QCOMPARE(botones, (QList<int>{3, 2}));
    QCOMPARE(altos[0] - altos[1], px(495));
}

void TstDialogos::unaOpcionDemasiadoLargaTerminaElPrograma() {
    // The width is reckoned in 16-bit integers: no option in use comes near, but one this long overflows.
    Common::Parametros.ReDim(1);
    Common::Parametros(1) = QString(250, QLatin1Char('x'));
    entorno_->alMostrarModal([](Formulario& f) { f.Unload(); });
    Common::ElegirOpcion(QStringLiteral("Clientes"), *llamador_);
    QCOMPARE(entorno_->fallos.size(), 1);
    QCOMPARE(entorno_->fallos[0].numero(), 6);
}

void TstDialogos::pedirTexto_data() {
    QTest::addColumn<QString>("valor");
    QTest::addColumn<QString>("abre");
    QTest::addColumn<QString>("tecleado");
    QTest::addColumn<QString>("gesto");
    QTest::addColumn<QString>("respuesta");
    QTest::addColumn<QString>("texto");
    QTest::newRow("blancos abren vacio") << "    "
                                         << ""
                                         << "Juan Pérez"
                                         << "clic 0"
                                         << "Aceptar"
                                         << "Juan Pérez";
    QTest::newRow("acentos, recortado") << ""
                                        << ""
                                        << "  Ñandú según él  "
                                        << "enter"
                                        << "Aceptar"
                                        << "Ñandú según él";
    // The field opens with its text selected, so typing replaces it.
    QTest::newRow("lo tecleado reemplaza") << " 0.00 "
                                           << "0.00"
                                           << "25.50"
                                           << "enter"
                                           << "Aceptar"
                                           << "25.50";
    QTest::newRow("valor aceptado tal cual") << "0.00"
                                             << "0.00"
                                             << ""
                                             << "enter"
                                             << "Aceptar"
                                             << "0.00";
    QTest::newRow("vacio aceptado") << ""
                                    << ""
                                    << ""
                                    << "clic 0"
                                    << "Aceptar"
                                    << "";
    QTest::newRow("Escape cancela") << "abc"
                                    << "abc"
                                    << "xyz"
                                    << "escape"
                                    << "Cancelar"
                                    << "";
    QTest::newRow("clic en Cancelar") << "abc"
                                      << "abc"
                                      << "xyz"
                                      << "clic 1"
                                      << "Cancelar"
                                      << "";
    // On a focused button Enter presses that button, not "Aceptar".
    QTest::newRow("Enter en Cancelar") << "abc"
                                       << "abc"
                                       << "xyz"
                                       << "tab tab enter"
                                       << "Cancelar"
                                       << "";
}

void TstDialogos::pedirTexto() {
    QFETCH(QString, valor);
    QFETCH(QString, abre);
    QFETCH(QString, tecleado);
    QFETCH(QString, gesto);
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
        if (gesto.startsWith(QLatin1String("clic")))
            QTest::mouseClick(boton(f, gesto.back().digitValue()), Qt::LeftButton);
        for (const QString& tecla : gesto.split(QLatin1Char(' ')))
            if (tecla == QLatin1String("tab")) pulsar(Qt::Key_Tab);
        if (gesto.endsWith(QLatin1String("enter"))) pulsar(Qt::Key_Return);
        if (gesto == QLatin1String("escape")) pulsar(Qt::Key_Escape);
        cerrado = f.descargado();
    });
    const QString obtenida =
        Common::PedirTexto(QStringLiteral("Solicitud de crédito"), pregunta, *llamador_, valor);

    QCOMPARE(entorno_->titulosModales, QStringList{"Solicitud de crédito"});
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
