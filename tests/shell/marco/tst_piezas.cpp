// The pieces the document screens stand on: a bar declared by the screen, the controls that editing
// enables together, option-button arrays, the line keys of a detail grid with its line dialog, and a
// screen shown modally while it may stand open from the menu.
#include "EntornoDePantallas.h"
#include "shell/common/Common.h"
#include "shell/controles/ArregloDeOpciones.h"
#include "shell/controles/CajaTexto.h"
#include "shell/marco/DialogoDeLinea.h"
#include "shell/marco/LineasDeDetalle.h"
#include "shell/marco/PantallaRegistro.h"

#include <QLineEdit>
#include <QTimer>
#include <QtTest>

using namespace shell;

namespace {

// A bar of nine, as the credit application has: "Rechazar" and "Aprobar" at 7 and 8.
const QList<BotonDeBarra> kNueve = {
    {0, QStringLiteral("Buscar"), 120},     {1, QStringLiteral("Agregar"), 1440},
    {2, QStringLiteral("Modificar"), 2760}, {3, QStringLiteral("Eliminar"), 4080},
    {4, QStringLiteral("Imprimir"), 5400},  {5, QStringLiteral("Guardar"), 120},
    {6, QStringLiteral("Cancelar"), 1440},  {7, QStringLiteral("Rechazar"), 6720},
    {8, QStringLiteral("Aprobar"), 8040}};

// A document screen: a second frame and a button outside fraMain that editing enables with it, a
// detail grid of two columns, and an option array.
class PantallaDocumento : public PantallaRegistro {
public:
    PantallaDocumento()
        : PantallaRegistro(QStringLiteral("Documento de prueba"), 9600, 5000, kNueve) {
        setObjectName(QStringLiteral("PantallaDocumento"));
        fraSubMain = new QFrame(this);
        fraSubMain->setObjectName(QStringLiteral("fraSubMain"));
        cmdCliente = new QPushButton(QStringLiteral("Cliente >"), this);
        HabilitarAlEditar(fraSubMain);
        HabilitarAlEditar(cmdCliente);
        fgDetalle = campo<GrillaDetalle>(QStringLiteral("fgDetalle"), 120, 600, 6000, 2000);
        fgDetalle->setCols(2);
        fgDetalle->setRows(2);
        lineas = new LineasDeDetalle(*this, *fgDetalle, Editando);
        lineas->abrirDialogo = [] { Common::Pantalla<frmLineaDePrueba>().ShowModal(); };
        lineas->despuesDeTecla = [this](int KeyCode, int) { teclas << KeyCode; };
        optTipo = new ArregloDeOpciones(QStringLiteral("optTipo"), this);
        for (int i = 0; i < 3; ++i)
            optTipo->agregar(i, QStringLiteral("Tipo %1").arg(i), fraMain, 120 + i * 1500, 240, 1400);
        optTipo->alHacerClic([this](int Index) { clics << Index; });
    }

    // The line dialog of this screen: two boxes, "Aceptar" writes them into Parametros.
    class frmLineaDePrueba : public DialogoDeLinea {
    public:
        frmLineaDePrueba()
            : DialogoDeLinea(QStringLiteral("Línea"), 4000, 2000) {
            setObjectName(QStringLiteral("frmLineaDePrueba"));
            txtA = campo<QLineEdit>(QStringLiteral("txtA"), 120, 120, 1500);
            txtB = campo<QLineEdit>(QStringLiteral("txtB"), 120, 480, 1500);
            crearBoton(0, QStringLiteral("Aceptar"), 120);
        }
        QLineEdit* txtA;
        QLineEdit* txtB;
        QStringList recibido;

    protected:
        void Form_Load() override {
            AjustarPantalla();
            for (const QVariant& v : Common::Parametros.Lista())
                recibido << v.toString();
            if (!Common::Parametros.Vacio(1)) {
                txtA->setText(Common::Parametros(1).toString());
                txtB->setText(Common::Parametros(2).toString());
            }
        }
        void cmdBoton_Click(int) override {
            Common::Parametros.ReDim(2);
            Common::Parametros(1) = txtA->text();
            Common::Parametros(2) = txtB->text();
            Unload();
        }
    };

    QFrame* fraSubMain;
    QPushButton* cmdCliente;
    GrillaDetalle* fgDetalle;
    LineasDeDetalle* lineas;
    ArregloDeOpciones* optTipo;
    bool Editando = false;
    QList<int> teclas;
    QList<int> clics;

    void editar() {
        Editando = true;
        ModoEdicion(QStringLiteral("Agregar nuevo registro"));
    }

protected:
    void Form_Load() override { AjustarPantalla(); }
};

using Linea = PantallaDocumento::frmLineaDePrueba;

QStringList visibles(const PantallaRegistro& p) {
    QStringList r;
    for (QPushButton* b : p.cmdBoton)
        if (b->isVisibleTo(&p)) r << b->text();
    return r;
}

QStringList filas(const GrillaDetalle& g) {
    QStringList r;
    for (int f = 1; f < g.Rows(); ++f)
        r << g.TextMatrix(f, 0) + QLatin1Char('|') + g.TextMatrix(f, 1);
    return r;
}

// The line dialog's answer: the two values and "Aceptar", or the close box.
EntornoDePantallas::Accion responder(const QString& a, const QString& b, QStringList* recibido = nullptr) {
    return [=](Formulario& f) {
        auto& d = static_cast<Linea&>(f);
        if (recibido) *recibido = d.recibido;
        if (a.isNull()) return QTest::mouseClick(d.cmdClose, Qt::LeftButton);
        d.txtA->setText(a);
        d.txtB->setText(b);
        QTest::mouseClick(d.cmdBoton[0], Qt::LeftButton);
    };
}

// A click as the platform delivers it, through the window: what a modal screen keeps from the others.
void clicEnLaVentana(QWidget* boton) {
    const QPoint donde = boton->mapTo(boton->window(), boton->rect().center());
    QTest::mouseClick(boton->window()->windowHandle(), Qt::LeftButton, {}, donde);
}

} // namespace

class TstPiezas : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { entorno_ = std::make_unique<EntornoDePantallas>(); }
    void cleanup() { entorno_.reset(); }
    void barraDeclarada();
    void losControlesDeEdicionVanJuntos();
    void arregloDeOpciones();
    void teclasDeLaGrilla_data();
    void teclasDeLaGrilla();
    void editarUnaLineaIdaYVuelta();
    void lasTeclasSoloMientrasSeEdita();
    void dialogoDeLineaAnulaParametros_data();
    void dialogoDeLineaAnulaParametros();
    void modalSobreUnaPantallaYaAbierta_data();
    void modalSobreUnaPantallaYaAbierta();
    void modalSobreSiMismaSinNadaPendiente();
    void modalDeVerdadEspera();

private:
    PantallaDocumento& documento() {
        auto& p = Common::Pantalla<PantallaDocumento>();
        p.Show();
        return p;
    }
    std::unique_ptr<EntornoDePantallas> entorno_;
};

void TstPiezas::barraDeclarada() {
    auto& p = documento();
    QCOMPARE(p.cmdBoton.size(), 9);
    QCOMPARE(p.findChild<QPushButton*>(QStringLiteral("cmdBoton(8)"))->text(), QStringLiteral("Aprobar"));
    QCOMPARE(visibles(p),
             (QStringList{"Buscar", "Agregar", "Modificar", "Eliminar", "Imprimir", "Rechazar", "Aprobar"}));
    p.editar();
    QCOMPARE(visibles(p), (QStringList{"Guardar", "Cancelar"}));
    QCOMPARE(p.cmdBoton[5]->geometry(), p.findChild<QPushButton*>(QStringLiteral("cmdBoton(0)"))->geometry());
    QVERIFY(p.enEdicion());
    QVERIFY(p.tieneCambiosPendientes());
}

void TstPiezas::losControlesDeEdicionVanJuntos() {
    auto& p = documento();
    for (QWidget* w : {static_cast<QWidget*>(p.fraMain), static_cast<QWidget*>(p.fraSubMain),
                       static_cast<QWidget*>(p.cmdCliente)})
        QVERIFY2(!w->isEnabled(), qPrintable(w->objectName()));
    p.editar();
    for (QWidget* w : {static_cast<QWidget*>(p.fraMain), static_cast<QWidget*>(p.fraSubMain),
                       static_cast<QWidget*>(p.cmdCliente)})
        QVERIFY2(w->isEnabled(), qPrintable(w->objectName()));
    QCOMPARE(p.fraBarra->palette().color(QPalette::Window), QColor(216, 212, 208));
}

// By index, in code as by a click; the click logic runs on a change; "none" is a state of its own.
void TstPiezas::arregloDeOpciones() {
    auto& p = documento();
    p.editar();
    QCOMPARE(p.optTipo->Valor(), -1);
    QCOMPARE(p.optTipo->Count(), 3);
    QCOMPARE(p.findChild<QRadioButton*>(QStringLiteral("optTipo(2)")), (*p.optTipo)[2]);
    p.optTipo->Seleccionar(1);
    QCOMPARE(p.clics, QList<int>{1});
    QTest::mouseClick((*p.optTipo)[2], Qt::LeftButton);
    QCOMPARE(p.clics, (QList<int>{1, 2}));
    QCOMPARE(p.optTipo->Valor(), 2);
    QVERIFY(!(*p.optTipo)[1]->isChecked());
    p.optTipo->Ninguna();
    QCOMPARE(p.optTipo->Valor(), -1);
    QCOMPARE(p.clics.size(), 2);
    // Enter on an option moves on without choosing it.
    (*p.optTipo)[0]->setFocus();
    QTest::keyClick((*p.optTipo)[0], Qt::Key_Return);
    QCOMPARE(p.optTipo->Valor(), -1);
}

void TstPiezas::teclasDeLaGrilla_data() {
    QTest::addColumn<QStringList>("pasos"); // "ins a b", "ins" (closed), "del", "fila N"
    QTest::addColumn<QStringList>("quedan");
    QTest::newRow("la primera línea reemplaza la fila en blanco")
        << QStringList{"ins a 1"} << QStringList{"a|1"};
    QTest::newRow("la segunda va debajo") << QStringList{"ins a 1", "ins b 2"} << QStringList{"a|1", "b|2"};
    QTest::newRow("cerrar el diálogo no agrega nada") << QStringList{"ins a 1", "ins"} << QStringList{"a|1"};
    QTest::newRow("aceptar vacío no agrega nada") << QStringList{"ins - 1"} << QStringList{"|"};
    QTest::newRow("suprimir la única línea deja la fila en blanco")
        << QStringList{"ins a 1", "del"} << QStringList{"|"};
    QTest::newRow("suprimir en la grilla vacía") << QStringList{"del"} << QStringList{"|"};
    QTest::newRow("suprimir la fila actual")
        << QStringList{"ins a 1", "ins b 2", "ins c 3", "fila 2", "del"} << QStringList{"a|1", "c|3"};
}

void TstPiezas::teclasDeLaGrilla() {
    QFETCH(QStringList, pasos);
    QFETCH(QStringList, quedan);
    auto& p = documento();
    p.editar();
    int teclas = 0;
    for (const QString& paso : pasos) {
        const QStringList partes = paso.split(QLatin1Char(' '));
        if (partes[0] == QLatin1String("fila")) {
            p.fgDetalle->setRow(partes[1].toInt());
            continue;
        }
        if (partes[0] == QLatin1String("ins")) {
            const QString a =
                partes.size() > 1 ? (partes[1] == QLatin1String("-") ? QString("") : partes[1]) : QString();
            entorno_->alMostrarModal(responder(a, partes.value(2)));
        }
        p.fgDetalle->setFocus();
        QTest::keyClick(p.fgDetalle, partes[0] == QLatin1String("ins") ? Qt::Key_Insert : Qt::Key_Delete);
        ++teclas;
    }
    QCOMPARE(filas(*p.fgDetalle), quedan);
    QCOMPARE(p.teclas.size(), teclas); // every key ends in the screen's step after a key
    QCOMPARE(p.lblTitulo->grab().toImage().pixelColor(2, 2), QColor(0, 0, 128));
}

// Enter and the double click hand the line to the dialog by Parametros and take back what it says.
void TstPiezas::editarUnaLineaIdaYVuelta() {
    auto& p = documento();
    p.editar();
    p.fgDetalle->AddItem(QStringLiteral("a\t1"));
    p.fgDetalle->RemoveItem(1);
    QStringList recibido;
    QColor tituloMientras;
    entorno_->alMostrarModal([&](Formulario& f) {
        tituloMientras = p.lblTitulo->grab().toImage().pixelColor(2, 2);
        responder(QStringLiteral("z"), QStringLiteral("9"), &recibido)(f);
    });
    p.fgDetalle->setFocus();
    QTest::keyClick(p.fgDetalle, Qt::Key_Return);
    QCOMPARE(recibido, (QStringList{"a", "1"}));
    QCOMPARE(tituloMientras, QColor(128, 128, 128));
    QCOMPARE(filas(*p.fgDetalle), QStringList{"z|9"});
    QCOMPARE(p.teclas, QList<int>{13});

    // The double click: the same, and no step after a key; the close box changes nothing.
    entorno_->alMostrarModal(responder(QString(), QString(), &recibido));
    QTest::mouseDClick(p.fgDetalle->viewport(), Qt::LeftButton, {},
                       p.fgDetalle->visualItemRect(p.fgDetalle->item(1, 0)).center());
    QCOMPARE(recibido, (QStringList{"z", "9"}));
    QCOMPARE(filas(*p.fgDetalle), QStringList{"z|9"});
    QCOMPARE(p.teclas, QList<int>{13});
}

void TstPiezas::lasTeclasSoloMientrasSeEdita() {
    auto& p = documento();
    p.fgDetalle->setFocus();
    for (Qt::Key k : {Qt::Key_Insert, Qt::Key_Return, Qt::Key_Delete, Qt::Key_Down})
        QTest::keyClick(p.fgDetalle, k);
    QTest::mouseDClick(p.fgDetalle->viewport(), Qt::LeftButton, {},
                       p.fgDetalle->visualItemRect(p.fgDetalle->item(1, 0)).center());
    QVERIFY(entorno_->modalesMostradas.isEmpty());
    QVERIFY(p.teclas.isEmpty());
    QCOMPARE(p.fgDetalle->Rows(), 2);
}

void TstPiezas::dialogoDeLineaAnulaParametros_data() {
    QTest::addColumn<int>("elementos");
    QTest::newRow("uno") << 1;
    QTest::newRow("nueve, como el de las líneas de una solicitud") << 9;
}

void TstPiezas::dialogoDeLineaAnulaParametros() {
    QFETCH(int, elementos);
    class Dialogo : public DialogoDeLinea {
    public:
        explicit Dialogo(int n)
            : DialogoDeLinea(QStringLiteral("Línea"), 4000, 2000, n) {}
    };
    Common::Parametros.ReDim(3);
    Common::Parametros(1) = QStringLiteral("7");
    auto* d = new Dialogo(elementos);
    d->Show();
    QCOMPARE(d->cmdClose->toolTip(), QStringLiteral("Cerrar esta ventana"));
    QVERIFY(d->KeyPreview());
    QTest::mouseClick(d->cmdClose, Qt::LeftButton);
    QVERIFY(d->descargado());
    QCOMPARE(Common::Parametros.UBound(), elementos);
    for (int i = 1; i <= elementos; ++i)
        QVERIFY(Common::Parametros.Vacio(i));
}

void TstPiezas::modalSobreUnaPantallaYaAbierta_data() {
    QTest::addColumn<bool>("editando");
    QTest::newRow("abierta sin nada pendiente: se carga de nuevo, modal") << false;
    QTest::newRow("abierta con cambios: se avisa y no se pierde nada") << true;
}

// Shown modally as it stands, with nothing pending: it becomes modal, no message.
void TstPiezas::modalSobreSiMismaSinNadaPendiente() {
    auto& abierta = documento();
    bool eraModal = false;
    entorno_->alMostrarModal([&](Formulario& f) {
        eraModal = f.isModal() && &f == &abierta;
        f.Unload();
    });
    abierta.ShowModal();
    QVERIFY(eraModal);
    QCOMPARE(entorno_->modalesMostradas, QStringList{QStringLiteral("PantallaDocumento")});
}

// A screen another opens modally while the clerk has it open from the menu.
void TstPiezas::modalSobreUnaPantallaYaAbierta() {
    QFETCH(bool, editando);
    auto& abierta = documento();
    QPointer<PantallaDocumento> primera(&abierta);
    if (editando) {
        abierta.editar();
        abierta.fgDetalle->setTextMatrix(1, 0, QStringLiteral("escrito"));
    }
    QString modal;
    bool eraModal = false;
    entorno_->alMostrarModal([&](Formulario& f) {
        modal = f.objectName();
        eraModal = f.isModal();
        if (editando)
            QTest::mouseClick(f.findChild<QPushButton*>(QStringLiteral("cmdClose")), Qt::LeftButton);
        else
            f.Unload();
    });
    auto& mostrada = Common::PantallaModal<PantallaDocumento>();
    mostrada.ShowModal();
    QVERIFY(eraModal);
    if (editando) {
        QCOMPARE(modal, QStringLiteral("frmMensaje"));
        QVERIFY(entorno_->titulosModales.first().startsWith(QLatin1String("Documento de prueba")));
        QCOMPARE(&mostrada, primera.data());
        QVERIFY(primera->isVisible());
        QCOMPARE(primera->fgDetalle->TextMatrix(1, 0), QStringLiteral("escrito"));
    } else {
        QCOMPARE(modal, QStringLiteral("PantallaDocumento"));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!primera); // the one from the menu went; a fresh one was shown modally
    }
}

// Without a test's driver: the caller waits in ShowModal until the screen unloads, and meanwhile the
// screen is the application's modal window, so the rest of the program takes no input.
void TstPiezas::modalDeVerdadEspera() {
    Common::InstalarConductorModal({});
    auto* otra = new PantallaRegistro(QStringLiteral("Otra"), 4000, 2000);
    otra->Show();
    auto& p = Common::PantallaModal<PantallaDocumento>();
    int clicsEnLaOtra = 0;
    connect(otra->cmdBoton[0], &QPushButton::clicked, this, [&] { ++clicsEnLaOtra; });
    bool volvio = false, volvioAntes = true;
    QWidget* modalActiva = nullptr;
    QTimer::singleShot(0, [&] {
        volvioAntes = volvio;
        modalActiva = QApplication::activeModalWidget();
        clicEnLaVentana(otra->cmdBoton[0]); // the clerk tries the other screen
        QTest::mouseClick(p.cmdClose, Qt::LeftButton);
    });
    p.ShowModal();
    volvio = true;
    QVERIFY(!volvioAntes);
    QCOMPARE(modalActiva, static_cast<QWidget*>(&p));
    QCOMPARE(clicsEnLaOtra, 0);
    QVERIFY(p.descargado());
    clicEnLaVentana(otra->cmdBoton[0]);
    QCOMPARE(clicsEnLaOtra, 1); // and takes input again once the modal screen is gone
    otra->Unload();
}

QTEST_MAIN(TstPiezas)
#include "tst_piezas.moc"
