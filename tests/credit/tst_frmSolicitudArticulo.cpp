// The article line dialog as its callers open it: Parametros laid out as the article search or a grid
// line leaves it, the dialog shown modally, and the clerk typing, leaving fields and pressing its
// buttons. What it proposes on opening, what leaving a field cleans and tells, what "&Aceptar" hands
// back or refuses, and what cancelling leaves.
#include "BaseDePrueba.h"
#include "EntornoDePantallas.h"
#include "Gestos.h"
#include "credit/frmSolicitudArticulo.h"
#include "runtime/Conversion.h"
#include "shell/busqueda/frmBusca.h"
#include "shell/dialogos/frmMensaje.h"

#include <QLabel>
#include <QTableView>
#include <QtTest>

using namespace credito;

namespace {

const QString kMensajeCantidad = QStringLiteral("No es posible operar la cantidad de articulos que ingreso.");
const QString kMensajePrecio = QStringLiteral("No es posible operar el Precio indicado.");
const QString kMensajeAceptar = QStringLiteral("La cantidad y el Precio del articulo deben ser ingresados.");

// A grid line as a double click hands it over: (1) key, (2) description, (5) amount, (8) quantity, the
// rest empty.
QVariantList linea(const QString& clave, const QString& descripcion, const QString& importe,
                   const QString& cantidad) {
    return {clave, descripcion, QVariant(), QVariant(), importe, QVariant(), QVariant(), cantidad};
}

// A row of the article search with the types the database gives: key, name, model, colour, cost, cash
// percentage and amount, starting quantity, then what the dialog doesn't read.
QVariantList busqueda(const QVariant& nombre, const QVariant& modelo, const QVariant& color, double costo,
                      const QVariant& porcentaje, const QVariant& valor) {
    return {12, nombre, modelo, color, costo, porcentaje, valor, 1, 0.0, 4.0, 0.0, 0.0, costo};
}

// Parametros as texts, element by element (Empty reads as "").
QStringList textos() {
    QStringList r;
    for (const QVariant& v : Common::Parametros.Lista())
        r << runtime::TextoDe(v);
    return r;
}

} // namespace

class TstFrmSolicitudArticulo : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void disposicion_data();
    void disposicion();
    void alAbrir_data();
    void alAbrir();
    void propuestaDesdeLaBusqueda_data();
    void propuestaDesdeLaBusqueda();
    void salirDeUnCampo_data();
    void salirDeUnCampo();
    void aceptar_data();
    void aceptar();
    void salirSinAceptar_data();
    void salirSinAceptar();

private:
    // Parametros as the caller leaves them, the dialog opened modally at the caller's Left + 300,
    // Top + 300 and `accion` run on it (activated first, as the window in front takes the keyboard).
    void abrir(const QVariantList& parametros, const std::function<void(frmSolicitudArticulo&)>& accion);
    // Queues the closing of one message, keeping its text: from the dialog's own action, once the
    // dialog has taken its place in the queue.
    void cerrarMensaje();
    // Types into a box that has taken the focus: what it holds must be selected, or the typing adds
    // to it. Nothing to type erases what it holds.
    static void escribir(shell::CajaTexto* caja, const QString& texto);
    QStringList mensajes_;
    std::unique_ptr<EntornoDePantallas> entorno_;
};

void TstFrmSolicitudArticulo::init() {
    entorno_ = std::make_unique<EntornoDePantallas>();
    mensajes_.clear();
}

void TstFrmSolicitudArticulo::cleanup() {
    entorno_.reset();
}

void TstFrmSolicitudArticulo::abrir(const QVariantList& parametros,
                                    const std::function<void(frmSolicitudArticulo&)>& accion) {
    Common::Parametros.ReDim(int(parametros.size()));
    for (int i = 0; i < parametros.size(); ++i)
        Common::Parametros(i + 1) = parametros.at(i);
    bool mostrado = false;
    entorno_->alMostrarModal([&](shell::Formulario& f) {
        mostrado = true;
        auto& d = static_cast<frmSolicitudArticulo&>(f);
        activar(d);
        accion(d);
    });
    auto& d = Common::Pantalla<frmSolicitudArticulo>();
    d.Move(1200 + 300, 900 + 300);
    d.ShowModal();
    QVERIFY(mostrado);
}

void TstFrmSolicitudArticulo::cerrarMensaje() {
    entorno_->alMostrarModal([this](shell::Formulario& m) {
        auto* mensaje = qobject_cast<shell::frmMensaje*>(&m);
        QVERIFY2(mensaje, qPrintable(m.objectName()));
        mensajes_ << mensaje->lblMensaje->text();
        QTest::mouseClick(mensaje->cmdClose, Qt::LeftButton);
    });
}

void TstFrmSolicitudArticulo::escribir(shell::CajaTexto* caja, const QString& texto) {
    QVERIFY2(caja->hasFocus(), qPrintable(caja->objectName()));
    if (texto.isEmpty())
        QTest::keyClick(caja, Qt::Key_Delete);
    else
        teclear(caja, texto);
}

void TstFrmSolicitudArticulo::disposicion_data() {
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("nombre");
    QTest::newRow("descripcion") << "Descripción del artículo"
                                 << "lblNombre";
    QTest::newRow("cantidad") << "Cantidad"
                              << "txtCantidad";
    QTest::newRow("precio") << "Precio de venta"
                            << "txtPrecio";
    QTest::newRow("total") << "Total"
                           << "lblPrecioTotal";
}

// Each caption stands over its figure, whole, inside the working frame; the title and the two buttons
// are the dialog's own, and the price reads from the right.
void TstFrmSolicitudArticulo::disposicion() {
    QFETCH(QString, caption);
    QFETCH(QString, nombre);
    abrir(linea("7", "Estufa", "100.00", "2"), [&](frmSolicitudArticulo& d) {
        QCOMPARE(d.lblTitulo->text().trimmed(), QStringLiteral("Artículos"));
        QCOMPARE(d.cmdBoton.size(), 2);
        QCOMPARE(d.cmdBoton[0]->text(), QStringLiteral("&Aceptar"));
        QCOMPARE(d.cmdBoton[1]->text(), QStringLiteral("&Cancelar"));
        QVERIFY(d.txtPrecio->alignment() & Qt::AlignRight);
        QLabel* etiqueta = nullptr;
        for (auto* l : d.fraMain->findChildren<QLabel*>())
            if (l->text() == caption) etiqueta = l;
        QVERIFY2(etiqueta, qPrintable(caption));
        auto* campo = control<QWidget>(&d, nombre);
        QVERIFY(campo);
        QCOMPARE(campo->parentWidget(), d.fraMain);
        QCOMPARE(etiqueta->x(), campo->x());
        QVERIFY(etiqueta->geometry().bottom() < campo->y());
        QVERIFY2(etiqueta->width() >= etiqueta->sizeHint().width(), "the caption is cut off");
        QVERIFY(d.fraMain->rect().contains(campo->geometry()));
        QVERIFY(campo->isVisible() && campo->isEnabled());
        QTest::mouseClick(d.cmdClose, Qt::LeftButton);
    });
}

void TstFrmSolicitudArticulo::alAbrir_data() {
    QTest::addColumn<QVariantList>("parametros");
    QTest::addColumn<QString>("nombre");
    QTest::addColumn<QString>("cantidad");
    QTest::addColumn<QString>("precio");
    QTest::addColumn<QString>("total");

    // From the search: cost plus the cash margin, the percentage when above 0, else the amount.
    QTest::newRow("25 % sobre 100") << busqueda("Estufa", "E-400", "Blanca", 100, 25.0, 0.0)
                                    << "Estufa E-400 Blanca"
                                    << "1"
                                    << "125.00"
                                    << "125.00";
    QTest::newRow("0 % y valor 30") << busqueda("Estufa", "E-400", "Blanca", 100, 0.0, 30.0)
                                    << "Estufa E-400 Blanca"
                                    << "1"
                                    << "130.00"
                                    << "130.00";
    QTest::newRow("el porcentaje gana al valor")
        << busqueda("Estufa", "E-400", "Blanca", 100, 10.0, 30.0) << "Estufa E-400 Blanca"
        << "1"
        << "110.00"
        << "110.00";
    QTest::newRow("porcentaje negativo: el valor")
        << busqueda("Estufa", "E-400", "Blanca", 100, -5.0, 30.0) << "Estufa E-400 Blanca"
        << "1"
        << "130.00"
        << "130.00";
    QTest::newRow("porcentaje nulo: el valor")
        << busqueda("Estufa", "E-400", "Blanca", 100, QVariant(), 30.0) << "Estufa E-400 Blanca"
        << "1"
        << "130.00"
        << "130.00";
    QTest::newRow("sin margen alguno: el costo")
        << busqueda("Estufa", "E-400", "Blanca", 100, QVariant(), QVariant()) << "Estufa E-400 Blanca"
        << "1"
        << "100.00"
        << "100.00";
    QTest::newRow("medio centavo sube") << busqueda("Silla", "S", "Roja", 99.99, 12.5, 0.0) << "Silla S Roja"
                                        << "1"
                                        << "112.49"
                                        << "112.49";
    QTest::newRow("sin modelo ni color") << busqueda("Mesa", QVariant(), QVariant(), 50, 0.0, 5.0) << "Mesa  "
                                         << "1"
                                         << "55.00"
                                         << "55.00";

    // From a grid line: the line's amount as the price, its quantity as a whole number.
    QTest::newRow("linea recien agregada")
        << linea("7", "Estufa E-400 Blanca", "250.00", "2") << "Estufa E-400 Blanca  "
        << "2"
        << "250.00"
        << "500.00";
    QTest::newRow("linea leida con decimales") << linea("7", "Estufa", "300.00", "3.00") << "Estufa  "
                                               << "3"
                                               << "300.00"
                                               << "900.00";
    QTest::newRow("media unidad sube") << linea("7", "Estufa", "10", "2.5") << "Estufa  "
                                       << "3"
                                       << "10.00"
                                       << "30.00";
    QTest::newRow("linea sin cantidad") << linea("7", "Estufa", "10", "") << "Estufa  "
                                        << ""
                                        << "10.00"
                                        << "0.00";

    // Fewer elements than a line has: the missing ones read as blank.
    QTest::newRow("solo la clave") << QVariantList{"7"} << "  "
                                   << ""
                                   << "0.00"
                                   << "0.00";
    QTest::newRow("cinco elementos") << QVariantList{"7", "Estufa", "E-400", "Blanca", "80"}
                                     << "Estufa E-400 Blanca"
                                     << ""
                                     << "80.00"
                                     << "0.00";

    // A blank line: the design values, whatever else the array holds.
    QTest::newRow("linea en blanco") << linea("", "", "", "") << ""
                                     << ""
                                     << "0.00"
                                     << "0.00";
    QTest::newRow("clave vacia con cifras") << linea("", "Estufa", "200.00", "3") << ""
                                            << ""
                                            << "0.00"
                                            << "0.00";
    QTest::newRow("un elemento vacio") << QVariantList{QVariant()} << ""
                                       << ""
                                       << "0.00"
                                       << "0.00";
    QTest::newRow("ningun elemento") << QVariantList{} << ""
                                     << ""
                                     << "0.00"
                                     << "0.00";
}

// What the dialog shows as it opens, with the quantity taking the focus all selected.
void TstFrmSolicitudArticulo::alAbrir() {
    QFETCH(QVariantList, parametros);
    QFETCH(QString, nombre);
    QFETCH(QString, cantidad);
    QFETCH(QString, precio);
    QFETCH(QString, total);
    abrir(parametros, [&](frmSolicitudArticulo& d) {
        QCOMPARE(d.lblNombre->text(), nombre);
        QCOMPARE(d.txtCantidad->text(), cantidad);
        QCOMPARE(d.txtPrecio->text(), precio);
        QCOMPARE(d.lblPrecioTotal->text(), total);
        QCOMPARE(d.focusWidget(), d.txtCantidad);
        QCOMPARE(d.txtCantidad->selectedText(), cantidad);
        QCOMPARE(d.Left(), 1500.0); // where its caller put it
        QCOMPARE(d.Top(), 1200.0);
        QTest::mouseClick(d.cmdClose, Qt::LeftButton);
    });
    QCOMPARE(entorno_->modalesMostradas, QStringList{"frmSolicitudArticulo"});
}

void TstFrmSolicitudArticulo::propuestaDesdeLaBusqueda_data() {
    QTest::addColumn<QString>("articulo"); // Nombre, Modelo, Color, Costo, ContadoPorcentaje, ContadoValor
    QTest::addColumn<QString>("nombre");
    QTest::addColumn<QString>("precio");
    QTest::newRow("25 % sobre 100") << "'Estufa', 'E-400', 'Blanca', 100, 25, 0"
                                    << "Estufa E-400 Blanca"
                                    << "125.00";
    QTest::newRow("0 % y valor 30") << "'Estufa', 'E-400', 'Blanca', 100, 0, 30"
                                    << "Estufa E-400 Blanca"
                                    << "130.00";
    QTest::newRow("porcentaje negativo") << "'Estufa', 'E-400', 'Blanca', 100, -10, 30"
                                         << "Estufa E-400 Blanca"
                                         << "130.00";
    QTest::newRow("margen nulo") << "'Estufa', NULL, NULL, 100, NULL, NULL"
                                 << "Estufa  "
                                 << "100.00";
}

// The article picked in the search screen, then the dialog on the row that screen handed back, with
// the values and types the view gives: the proposal and the view's starting quantity.
void TstFrmSolicitudArticulo::propuestaDesdeLaBusqueda() {
    QFETCH(QString, articulo);
    QFETCH(QString, nombre);
    QFETCH(QString, precio);
    BaseDePrueba base(true);
    base.sqlite("INSERT INTO Articulo (Nombre, Modelo, Color, Costo, ContadoPorcentaje, ContadoValor) VALUES "
                "('Televisor', 'T-1', 'Negro', 900, 20, 0), (" +
                articulo + ");");
    entorno_->alMostrarModal([](shell::Formulario& busca) {
        auto* rejilla = busca.findChild<QTableView*>(QStringLiteral("dg"));
        const QAbstractItemModel* m = rejilla->model();
        for (int f = 0; f < m->rowCount(); ++f)
            if (m->index(f, 1).data().toString() == QLatin1String("Estufa"))
                return QTest::mouseDClick(rejilla->viewport(), Qt::LeftButton, {},
                                          rejilla->visualRect(m->index(f, 1)).center());
        QFAIL("the article is not in the search");
    });
    Common::ConsultaBusqueda = QStringLiteral("Select * From vwBuscaArticulo");
    Common::Pantalla<shell::frmBusca>().ShowModal();
    QVERIFY(Common::Parametros.UBound() >= 8);
    QVariantList fila = Common::Parametros.Lista();
    QCOMPARE(runtime::TextoDe(fila.at(1)), QStringLiteral("Estufa"));
    abrir(fila, [&](frmSolicitudArticulo& d) {
        QCOMPARE(d.lblNombre->text(), nombre);
        QCOMPARE(d.txtCantidad->text(), QStringLiteral("1"));
        QCOMPARE(d.txtPrecio->text(), precio);
        QCOMPARE(d.lblPrecioTotal->text(), precio);
        QTest::mouseClick(d.cmdBoton[0], Qt::LeftButton);
    });
    // Accepted as proposed: the figures come back as text, the rest of the row as it was.
    fila[4] = precio;
    fila[7] = QStringLiteral("1");
    QCOMPARE(Common::Parametros.Lista(), fila);
}

void TstFrmSolicitudArticulo::salirDeUnCampo_data() {
    QTest::addColumn<QString>("campo");
    QTest::addColumn<QString>("tecleado");
    QTest::addColumn<int>("tecla");
    QTest::addColumn<QString>("queda");   // the field's text once left
    QTest::addColumn<QString>("total");   // lblPrecioTotal afterwards
    QTest::addColumn<QString>("mensaje"); // "" for none
    QTest::addColumn<QString>("siguiente");

    // The line opens with 2 at 100.00.
    QTest::newRow("cantidad 3") << "txtCantidad"
                                << "3" << int(Qt::Key_Tab) << "3"
                                << "300.00"
                                << ""
                                << "txtPrecio";
    QTest::newRow("cantidad 2.6 redondeada, con Enter") << "txtCantidad"
                                                        << "2.6" << int(Qt::Key_Return) << "3"
                                                        << "300.00"
                                                        << ""
                                                        << "txtPrecio";
    QTest::newRow("cantidad 0") << "txtCantidad"
                                << "0" << int(Qt::Key_Tab) << "0"
                                << "0.00" << kMensajeCantidad << "txtPrecio";
    QTest::newRow("cantidad 0.4 es 0") << "txtCantidad"
                                       << "0.4" << int(Qt::Key_Return) << "0"
                                       << "0.00" << kMensajeCantidad << "txtPrecio";
    QTest::newRow("cantidad negativa") << "txtCantidad"
                                       << "-2" << int(Qt::Key_Tab) << "-2"
                                       << "-200.00" << kMensajeCantidad << "txtPrecio";
    QTest::newRow("cantidad que no es numero") << "txtCantidad"
                                               << "dos" << int(Qt::Key_Tab) << "0"
                                               << "0.00" << kMensajeCantidad << "txtPrecio";
    QTest::newRow("precio 150.5") << "txtPrecio"
                                  << "150.5" << int(Qt::Key_Tab) << "150.50"
                                  << "301.00"
                                  << ""
                                  << "cmdBoton(0)";
    QTest::newRow("precio hasta la coma, con Enter") << "txtPrecio"
                                                     << "1,500" << int(Qt::Key_Return) << "1.00"
                                                     << "2.00"
                                                     << ""
                                                     << "cmdBoton(0)";
    QTest::newRow("precio 0") << "txtPrecio"
                              << "0" << int(Qt::Key_Tab) << "0.00"
                              << "0.00" << kMensajePrecio << "cmdBoton(0)";
    QTest::newRow("precio borrado") << "txtPrecio"
                                    << "" << int(Qt::Key_Tab) << "0.00"
                                    << "0.00" << kMensajePrecio << "cmdBoton(0)";
    QTest::newRow("precio negativo") << "txtPrecio"
                                     << "-5" << int(Qt::Key_Return) << "-5.00"
                                     << "-10.00" << kMensajePrecio << "cmdBoton(0)";
}

// Leaving a field cleans its text and works the total out again; a figure of 0 or less is told under
// the dialog's title, and the focus moves on all the same.
void TstFrmSolicitudArticulo::salirDeUnCampo() {
    QFETCH(QString, campo);
    QFETCH(QString, tecleado);
    QFETCH(int, tecla);
    QFETCH(QString, queda);
    QFETCH(QString, total);
    QFETCH(QString, mensaje);
    QFETCH(QString, siguiente);
    abrir(linea("7", "Estufa", "100.00", "2"), [&](frmSolicitudArticulo& d) {
        if (!mensaje.isEmpty()) cerrarMensaje();
        if (campo == QLatin1String("txtPrecio")) QTest::keyClick(d.txtCantidad, Qt::Key_Tab);
        auto* caja = control<shell::CajaTexto>(&d, campo);
        QCOMPARE(caja->selectedText(), caja->text()); // all selected on arrival
        escribir(caja, tecleado);
        QTest::keyClick(caja, Qt::Key(tecla));
        QCOMPARE(caja->text(), queda);
        QCOMPARE(d.lblPrecioTotal->text(), total);
        QCOMPARE(d.focusWidget()->objectName(), siguiente);
        if (auto* proxima = qobject_cast<shell::CajaTexto*>(d.focusWidget()))
            QCOMPARE(proxima->selectedText(), proxima->text());
        QVERIFY(!d.descargado());
        QTest::mouseClick(d.cmdClose, Qt::LeftButton);
    });
    QCOMPARE(mensajes_, mensaje.isEmpty() ? QStringList() : QStringList{mensaje});
    QCOMPARE(entorno_->titulosModales,
             mensaje.isEmpty() ? QStringList{"Artículos"} : (QStringList{"Artículos", "Artículos"}));
}

void TstFrmSolicitudArticulo::aceptar_data() {
    QTest::addColumn<QVariantList>("parametros");
    QTest::addColumn<QString>("cantidad");
    QTest::addColumn<QString>("precio");
    QTest::addColumn<QString>("pulsarCon"); // "clic", "Alt+A" or "Enter" (Tab to the button, then Enter)
    QTest::addColumn<QStringList>("mensajes");
    QTest::addColumn<QStringList>("devueltos"); // Parametros afterwards, as texts; empty when it stays

    const QVariantList estufa = linea("7", "Estufa", "100.00", "2");
    QTest::newRow("aceptada") << estufa << "3"
                              << "125.5"
                              << "clic" << QStringList()
                              << QStringList{"7", "Estufa", "", "", "125.50", "", "", "3"};
    QTest::newRow("cantidad redondeada, con Alt+A")
        << estufa << "2.5"
        << "80"
        << "Alt+A" << QStringList() << QStringList{"7", "Estufa", "", "", "80.00", "", "", "3"};
    QTest::newRow("con Enter en el boton")
        << estufa << "1"
        << "99.999"
        << "Enter" << QStringList() << QStringList{"7", "Estufa", "", "", "100.00", "", "", "1"};
    QTest::newRow("fila de la busqueda: el resto tal como vino")
        << busqueda("Estufa", "E-400", "Blanca", 100, 25.0, 0.0) << "4"
        << "125"
        << "clic" << QStringList() << QStringList{"12", "Estufa", "E-400", "Blanca", "125.00", "25", "0",
                                                  "4",  "0",      "4",     "0",      "0",      "100"};
    QTest::newRow("linea en blanco: las cifras sin clave")
        << linea("", "", "", "") << "2"
        << "50"
        << "clic" << QStringList() << QStringList{"", "", "", "", "50.00", "", "", "2"};
    QTest::newRow("arreglo corto: crece hasta la cantidad")
        << QVariantList{"7", "Estufa"} << "1"
        << "10"
        << "clic" << QStringList() << QStringList{"7", "Estufa", "", "", "10.00", "", "", "1"};

    QTest::newRow("cantidad 0") << estufa << "0"
                                << "100"
                                << "clic" << QStringList{kMensajeCantidad, kMensajeAceptar} << QStringList();
    QTest::newRow("precio 0, con Alt+A")
        << estufa << "2"
        << "0"
        << "Alt+A" << QStringList{kMensajePrecio, kMensajeAceptar} << QStringList();
    QTest::newRow("precio negativo") << estufa << "2"
                                     << "-1"
                                     << "clic" << QStringList{kMensajePrecio, kMensajeAceptar}
                                     << QStringList();
    QTest::newRow("ninguna de las dos, con Enter")
        << estufa << ""
        << ""
        << "Enter" << QStringList{kMensajeCantidad, kMensajePrecio, kMensajeAceptar} << QStringList();
}

// Typed, left, and "&Aceptar" pressed: with both figures above 0 they go back in (8) and (5) and the
// dialog unloads; otherwise the clerk is told and the dialog stays, Parametros untouched.
void TstFrmSolicitudArticulo::aceptar() {
    QFETCH(QVariantList, parametros);
    QFETCH(QString, cantidad);
    QFETCH(QString, precio);
    QFETCH(QString, pulsarCon);
    QFETCH(QStringList, mensajes);
    QFETCH(QStringList, devueltos);
    QStringList alAbrir;
    bool seQuedo = false;
    abrir(parametros, [&](frmSolicitudArticulo& d) {
        for (int i = 0; i < mensajes.size(); ++i)
            cerrarMensaje();
        alAbrir = textos();
        escribir(d.txtCantidad, cantidad);
        QTest::keyClick(d.txtCantidad, Qt::Key_Tab);
        escribir(d.txtPrecio, precio);
        if (pulsarCon == QLatin1String("clic")) {
            QTest::mouseClick(d.cmdBoton[0], Qt::LeftButton);
        } else if (pulsarCon == QLatin1String("Alt+A")) {
            // The button takes the focus at once, and clicks itself a moment later, as it shows
            // itself pressed.
            QSignalSpy pulsado(d.cmdBoton[0], &QAbstractButton::clicked);
            QTest::keyClick(d.windowHandle(), Qt::Key_A, Qt::AltModifier);
            QVERIFY(!pulsado.isEmpty() || pulsado.wait(2000));
        } else {
            QTest::keyClick(d.txtPrecio, Qt::Key_Tab);
            QCOMPARE(d.focusWidget(), d.cmdBoton[0]);
            QTest::keyClick(d.cmdBoton[0], Qt::Key_Return);
        }
        seQuedo = !d.descargado();
        if (seQuedo) {
            QVERIFY(d.isVisible());
            QCOMPARE(textos(), alAbrir);
            QTest::mouseClick(d.cmdBoton[1], Qt::LeftButton);
        }
    });
    QCOMPARE(mensajes_, mensajes);
    QCOMPARE(entorno_->titulosModales.size(), mensajes.size() + 1);
    for (const QString& titulo : std::as_const(entorno_->titulosModales))
        QCOMPARE(titulo, QStringLiteral("Artículos"));
    QCOMPARE(seQuedo, devueltos.isEmpty());
    if (!seQuedo) QCOMPARE(textos(), devueltos);
}

void TstFrmSolicitudArticulo::salirSinAceptar_data() {
    QTest::addColumn<QVariantList>("parametros");
    QTest::addColumn<QString>("salida");   // "&Cancelar" or "cmdClose"
    QTest::addColumn<QString>("cantidad"); // typed in the quantity, where the focus stays
    QTest::addColumn<QStringList>("mensajes");
    const QVariantList estufa = linea("7", "Estufa", "100.00", "2");
    const QVariantList deLaBusqueda = busqueda("Estufa", "E-400", "Blanca", 100, 25.0, 0.0);
    QTest::newRow("Cancelar una linea") << estufa << "&Cancelar"
                                        << "5" << QStringList();
    QTest::newRow("Cancelar la fila de una busqueda") << deLaBusqueda << "&Cancelar"
                                                      << "5" << QStringList();
    QTest::newRow("caja de cerrar una linea") << estufa << "cmdClose"
                                              << "5" << QStringList();
    QTest::newRow("caja de cerrar la fila de una busqueda") << deLaBusqueda << "cmdClose"
                                                            << "5" << QStringList();
    QTest::newRow("caja de cerrar un arreglo corto") << QVariantList{"7"} << "cmdClose"
                                                     << "" << QStringList();
    // The button takes the focus, so the quantity is left and told first; the close box takes none.
    QTest::newRow("Cancelar con cantidad 0") << estufa << "&Cancelar"
                                             << "0" << QStringList{kMensajeCantidad};
    QTest::newRow("caja de cerrar con cantidad 0") << estufa << "cmdClose"
                                                   << "0" << QStringList();
}

// Leaving without accepting: nine empty elements, so the caller reads an empty (1) as nothing chosen.
void TstFrmSolicitudArticulo::salirSinAceptar() {
    QFETCH(QVariantList, parametros);
    QFETCH(QString, salida);
    QFETCH(QString, cantidad);
    QFETCH(QStringList, mensajes);
    bool descargado = false;
    QPointer<frmSolicitudArticulo> dialogo;
    abrir(parametros, [&](frmSolicitudArticulo& d) {
        for (int i = 0; i < mensajes.size(); ++i)
            cerrarMensaje();
        dialogo = &d;
        escribir(d.txtCantidad, cantidad);
        if (salida == QLatin1String("cmdClose"))
            QTest::mouseClick(d.cmdClose, Qt::LeftButton);
        else
            pulsarBoton(d.cmdBoton, salida);
        descargado = d.descargado();
    });
    QVERIFY(descargado);
    QCOMPARE(mensajes_, mensajes);
    QCOMPARE(Common::Parametros.UBound(), 9);
    QCOMPARE(textos(), QStringList(9, QString()));
    for (const QVariant& v : Common::Parametros.Lista())
        QVERIFY(runtime::EsNulo(v));
    // The next opening is a fresh dialog.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(dialogo.isNull());
}

QTEST_MAIN(TstFrmSolicitudArticulo)
#include "tst_frmSolicitudArticulo.moc"
