// The balloon tips of the invoice: the name and the discount get theirs when the screen loads, each
// shows under and to the right of the pointer resting on its field and goes when the pointer leaves;
// the balloon is drawn in its shape (a rounded body, a tail at the top left pointing up, the text with
// a light shadow) and keeps the lines of its text.
#include "FacturaEnPantalla.h"
#include "shell/common/CustomToolTip.h"
#include "shell/controles/GloboDeAyuda.h"

#include <QHelpEvent>
#include <QImage>
#include <QScreen>
#include <QtTest>

using caja::frmFactura;
using shell::GloboDeAyuda;

namespace {

const QString kTipNombre = QStringLiteral("Nombres completos del cliente.\r\n\r\nPuede presionar doble click "
                                          "sobre esta\r\ncasilla para escribir el "
                                          "nombre de la\r\npersona a quien se emitirá la factura");
const QString kTipDescuento =
    QStringLiteral("Valor de descuento sobre el total de la factura.\r\n\r\nPuede presionar doble click "
                   "sobre esta casilla\r\n"
                   "casilla para escribir la cantidad de descuento\r\nsobre el total de la factura.");

GloboDeAyuda* globoDe(QWidget& pantalla, QWidget* control) {
    for (GloboDeAyuda* g : pantalla.findChildren<GloboDeAyuda*>())
        if (g->Control() == control) return g;
    return nullptr;
}

// The balloon as it paints itself, on a transparent image of its own size.
QImage pintado(GloboDeAyuda& globo) {
    globo.resize(globo.sizeHint());
    QImage imagen(globo.size(), QImage::Format_ARGB32);
    imagen.fill(Qt::transparent);
    globo.render(&imagen, {}, {}, QWidget::DrawChildren);
    return imagen;
}

bool parecido(QRgb pixel, const QColor& color, int tolerancia = 8) {
    return qAlpha(pixel) == 255 && qAbs(qRed(pixel) - color.red()) <= tolerancia &&
           qAbs(qGreen(pixel) - color.green()) <= tolerancia &&
           qAbs(qBlue(pixel) - color.blue()) <= tolerancia;
}

// The bounding box of the pixels of this colour.
QRect cajaDe(const QImage& imagen, const QColor& color) {
    QRect caja;
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x)
            if (parecido(imagen.pixel(x, y), color, 2)) caja |= QRect(x, y, 1, 1);
    return caja;
}

// The bands of rows holding text, top to bottom: one per line that has any.
QList<QPair<int, int>> renglones(const QImage& imagen, const QColor& texto) {
    QList<QPair<int, int>> bandas;
    bool dentro = false;
    for (int y = 0; y < imagen.height(); ++y) {
        bool hay = false;
        for (int x = 0; x < imagen.width() && !hay; ++x)
            hay = parecido(imagen.pixel(x, y), texto, 60);
        if (hay && !dentro) bandas << qMakePair(y, y);
        if (hay) bandas.last().second = y;
        dentro = hay;
    }
    return bandas;
}

} // namespace

class TstFrmFacturaGlobos : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void tipsAlCargar();
    void globoBajoElPuntero_data();
    void globoBajoElPuntero();
    void formaDelGlobo();
    void renglonesDelTexto();
    void ventanaSinFila();

private:
    std::unique_ptr<FacturaEnPantalla> f_;
};

void TstFrmFacturaGlobos::init() {
    f_ = std::make_unique<FacturaEnPantalla>();
}

void TstFrmFacturaGlobos::cleanup() {
    f_.reset();
}

// Two tips per load, with the texts of the system; a screen loaded again adds two more rows to the
// table, beside the rows of the first load, whose windows went with that screen.
void TstFrmFacturaGlobos::tipsAlCargar() {
    const int antes = Common::TablaTips.size();
    auto& p = f_->pantalla();
    GloboDeAyuda* nombre = globoDe(p, p.txtNombreCliente);
    GloboDeAyuda* descuento = globoDe(p, p.txtDescuento);
    QVERIFY(nombre && descuento);
    QCOMPARE(nombre->Texto(), kTipNombre);
    QCOMPARE(descuento->Texto(), kTipDescuento);
    QCOMPARE(p.findChildren<GloboDeAyuda*>().size(), 2);
    QCOMPARE(Common::TablaTips.size(), antes + 2);
    QCOMPARE(Common::CantidadTips, long(antes + 2));
    QVERIFY(!nombre->isVisible());

    QTest::mouseClick(p.cmdClose, Qt::LeftButton);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    auto& otra = f_->pantalla();
    QVERIFY(globoDe(otra, otra.txtDescuento));
    QCOMPARE(Common::TablaTips.size(), antes + 4);
    QVERIFY(!Common::TablaTips[antes].VentanaTip);
    QCOMPARE(Common::TablaTips[antes + 2].VentanaTip.data(), globoDe(otra, otra.txtNombreCliente));
}

// The pointer resting on the field shows the balloon at the pointer's x - 2 and y + 20, so that the
// tail's point stands just under it; near the foot of the display it isn't flipped. The pointer
// leaving the field takes it away. The tips show whether or not the screen is editing.
void TstFrmFacturaGlobos::globoBajoElPuntero_data() {
    QTest::addColumn<QString>("campo");
    QTest::addColumn<bool>("alPie"); // the pointer a few pixels above the display's foot
    QTest::addColumn<bool>("editando");
    QTest::newRow("descuento, consultando") << "txtDescuento" << false << false;
    QTest::newRow("nombre, editando") << "txtNombreCliente" << false << true;
    QTest::newRow("descuento al pie de la pantalla") << "txtDescuento" << true << true;
}

void TstFrmFacturaGlobos::globoBajoElPuntero() {
    QFETCH(QString, campo);
    QFETCH(bool, alPie);
    QFETCH(bool, editando);
    auto& p = f_->pantalla();
    if (editando) f_->pulsar(QStringLiteral("Agregar"));
    auto* control = p.findChild<QWidget*>(campo);
    GloboDeAyuda* globo = globoDe(p, control);
    QVERIFY(globo);
    const QPoint local(10, 5);
    QPoint puntero = control->mapToGlobal(local);
    if (alPie) puntero.setY(control->screen()->geometry().bottom() - 4);
    QHelpEvent reposo(QEvent::ToolTip, local, puntero);
    QApplication::sendEvent(control, &reposo);
    QVERIFY(globo->isVisible());
    QCOMPARE(globo->pos(), puntero + QPoint(-2, 20));
    QCOMPARE(globo->size(), globo->sizeHint());
    const QPoint punta = globo->pos() + QPoint(GloboDeAyuda::kMargen, 0);
    QVERIFY(punta.y() > puntero.y());
    QVERIFY(punta.x() > puntero.x());
    QEvent salida(QEvent::Leave);
    QApplication::sendEvent(control, &salida);
    QVERIFY(!globo->isVisible());
}

// The balloon on an image: nothing drawn beside the tail above the body, the tail's point at the top
// near the left, the body's rounded corners left out, the body in the hint colour framed in dark grey,
// and the text in the hint's text colour with its light shadow one pixel to the right and below.
void TstFrmFacturaGlobos::formaDelGlobo() {
    auto& p = f_->pantalla();
    GloboDeAyuda* globo = globoDe(p, p.txtDescuento);
    QVERIFY(globo);
    const QImage imagen = pintado(*globo);
    const int w = imagen.width(), h = imagen.height();
    const QColor cuerpo = globo->palette().color(QPalette::ToolTipBase);
    const QColor texto = globo->palette().color(QPalette::ToolTipText);
    const QColor sombra = globo->palette().color(QPalette::Midlight);
    QVERIFY(sombra != cuerpo && sombra != texto);

    const auto transparente = [&imagen](int x, int y) { return qAlpha(imagen.pixel(x, y)) == 0; };
    // Above the body: the tail from 8 to 16 pixels, its point at the top; nothing else.
    QVERIFY(transparente(3, 3));
    QVERIFY(transparente(w / 2, 3));
    QVERIFY(transparente(w - 3, 3));
    QVERIFY(!transparente(9, 2));
    QVERIFY(!transparente(10, 6));
    QVERIFY(transparente(14, 2));
    int filaDeLaPunta = -1;
    for (int y = 0; y < 8 && filaDeLaPunta < 0; ++y)
        for (int x = 0; x < w; ++x)
            if (!transparente(x, y)) {
                filaDeLaPunta = y;
                QVERIFY2(x >= 7 && x <= 9, qPrintable(QStringLiteral("the point stands at x %1").arg(x)));
                break;
            }
    QCOMPARE(filaDeLaPunta, 0);
    // The body's corners are rounded off.
    for (const QPoint esquina : {QPoint(0, 8), QPoint(w - 1, 8), QPoint(0, h - 1), QPoint(w - 1, h - 1)})
        QVERIFY2(qAlpha(imagen.pixel(esquina)) < 128,
                 qPrintable(QStringLiteral("corner %1,%2 drawn").arg(esquina.x()).arg(esquina.y())));
    // The body in the hint colour (the margin right of the text) and its dark grey frame.
    QVERIFY(parecido(imagen.pixel(w - 4, h / 2), cuerpo));
    QVERIFY(parecido(imagen.pixel(w / 2, 12), cuerpo));
    QVERIFY(parecido(imagen.pixel(w / 2, h - 1), QColor(64, 64, 64), 24));
    QVERIFY(parecido(imagen.pixel(0, h / 2), QColor(64, 64, 64), 24));
    // The text inside its margins. Its shadow shows where the text, drawn one pixel up and to the
    // left of it, leaves it uncovered: each pixel of the shadow's colour has text one pixel up and to
    // the left, and the shadow reaches one pixel further down than the text.
    const QRect letras = cajaDe(imagen, texto);
    QVERIFY(!letras.isEmpty());
    QVERIFY(letras.left() >= 7 && letras.top() >= 15);
    QVERIFY(letras.right() <= w - 8 && letras.bottom() <= h - 8);
    int sombras = 0, bajoElTexto = 0;
    for (int y = 1; y < h; ++y)
        for (int x = 1; x < w; ++x)
            if (parecido(imagen.pixel(x, y), sombra, 2)) {
                ++sombras;
                bajoElTexto += parecido(imagen.pixel(x - 1, y - 1), texto, 60) ? 1 : 0;
            }
    QVERIFY2(sombras >= 20, qPrintable(QStringLiteral("%1 pixels of shadow").arg(sombras)));
    QVERIFY2(bajoElTexto * 10 >= sombras * 9,
             qPrintable(QStringLiteral("%1 of %2 under the text").arg(bajoElTexto).arg(sombras)));
    QCOMPARE(cajaDe(imagen, sombra).bottom(), letras.bottom() + 1);
}

// The text's line breaks are kept: four lines of text with the empty one between the first two, and a
// balloon as tall as its five lines.
void TstFrmFacturaGlobos::renglonesDelTexto() {
    auto& p = f_->pantalla();
    for (QWidget* control :
         {static_cast<QWidget*>(p.txtNombreCliente), static_cast<QWidget*>(p.txtDescuento)}) {
        GloboDeAyuda* globo = globoDe(p, control);
        const QImage imagen = pintado(*globo);
        const auto bandas = renglones(imagen, globo->palette().color(QPalette::ToolTipText));
        QCOMPARE(bandas.size(), 4);
        const int paso = bandas[2].first - bandas[1].first;
        QVERIFY(paso > 0);
        QCOMPARE(bandas[3].first - bandas[2].first, paso);
        QCOMPARE(bandas[1].first - bandas[0].first, 2 * paso);
        QVERIFY(imagen.height() >= 5 * paso + 16);
    }
}

// A balloon window with no row in the table yet leaves its events unhandled; once CrearTip has made
// one, its events go to the window's own handling.
void TstFrmFacturaGlobos::ventanaSinFila() {
    auto& p = f_->pantalla();
    GloboDeAyuda suelto(*p.txtNIT, QStringLiteral("NIT"), p);
    QEvent cambio(QEvent::FontChange);
    QVERIFY(!QApplication::sendEvent(&suelto, &cambio));
    QVERIFY(QApplication::sendEvent(globoDe(p, p.txtDescuento), &cambio));
}

QTEST_MAIN(TstFrmFacturaGlobos)
#include "tst_frmFactura_globos.moc"
