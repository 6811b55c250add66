// capturas: renders every screen built so far to PNG with the offscreen platform, one file per
// screen and state (frmBanco-editando.png), over a temporary copy of the sample store, so that
// anyone can look at what a person sees. Run by the build target "screenshots".
#include "shell/principal/Main.h"

#include "BaseDePrueba.h"
#include "app/Registro.h"
#include "cash/frmFactura.h"
#include "cash/frmRecibo.h"
#include "catalogs/frmArticulo.h"
#include "catalogs/frmBanco.h"
#include "catalogs/frmProveedor.h"
#include "credit/frmCliente.h"
#include "credit/frmFiador.h"
#include "credit/frmSolicitud.h"
#include "credit/frmSolicitudArticulo.h"
#include "goods/frmNotaEnvio.h"
#include "goods/frmNotaIngreso.h"
#include "goods/frmNotaIngresoArticulo.h"
#include "payables/frmDocumentoPago.h"
#include "payables/frmDocumentos.h"
#include "shell/busqueda/frmBusca.h"
#include "shell/busqueda/frmListado.h"
#include "shell/common/Common.h"
#include "shell/controles/GloboDeAyuda.h"
#include "shell/dialogos/Dialogos.h"
#include "shell/principal/Apariencia.h"
#include "shell/principal/frmMain.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QRadioButton>
#include <QTableView>
#include <QTest>
#include <cstdio>
#include <functional>

namespace {

QDir carpeta;
QStringList escritos;

void guardar(const QPixmap& imagen, const QString& nombre) {
    const QString ruta = carpeta.filePath(nombre + QStringLiteral(".png"));
    if (!imagen.save(ruta)) qFatal("cannot write %s", qPrintable(ruta));
    escritos << ruta;
}

// Each modal screen shown is captured under the next name queued, then closed as its close box would.
// Instead, kElegir (or "*" and a row number) picks the first (or that) row of a search or a pick
// list, as a double click does; "name|figure" captures a line dialog, then types the figure as its
// price and accepts it; and kActuar runs the next action of `acciones` on the screen.
QStringList pendientes;
const QString kElegir = QStringLiteral("*");
const QString kActuar = QStringLiteral("!");
QList<std::function<void(shell::Formulario&)>> acciones;

void capturarModales() {
    Common::InstalarConductorModal([](shell::Formulario& f) {
        QCoreApplication::processEvents();
        const QString nombre = pendientes.isEmpty() ? f.objectName() : pendientes.takeFirst();
        if (nombre == kActuar) return acciones.takeFirst()(f);
        if (nombre.startsWith(kElegir)) {
            auto* rejilla = f.findChild<QTableView*>();
            const QRect celda = rejilla->visualRect(rejilla->model()->index(nombre.mid(1).toInt(), 1));
            QTest::mouseDClick(rejilla->viewport(), Qt::LeftButton, {}, celda.center());
            return;
        }
        const QStringList partes = nombre.split(QLatin1Char('|'));
        guardar(f.grab(), partes.first());
        if (partes.size() == 1) {
            f.Unload();
            return;
        }
        f.findChild<QLineEdit*>(QStringLiteral("txtPrecio"))->setText(partes.last());
        QTest::mouseClick(f.findChild<QPushButton*>(QStringLiteral("cmdBoton(0)")), Qt::LeftButton);
    });
}

// A record screen in both modes: browsing as it stands, then editing after the given button.
void dosModos(shell::Marco& pantalla, const QString& nombre, int botonEdicion) {
    QCoreApplication::processEvents();
    guardar(pantalla.grab(), nombre + QStringLiteral("-consultando"));
    QTest::mouseClick(pantalla.cmdBoton[botonEdicion], Qt::LeftButton);
    QCoreApplication::processEvents();
    guardar(pantalla.grab(), nombre + QStringLiteral("-editando"));
}

// The main window with its first menu open: both windows painted into one picture.
QPixmap conMenuAbierto(shell::frmMain& principal) {
    QMenu* menu = principal.xMenu->actions().first()->menu();
    const QRect entrada = principal.xMenu->actionGeometry(principal.xMenu->actions().first());
    menu->popup(principal.xMenu->mapToGlobal(entrada.bottomLeft()));
    QCoreApplication::processEvents();
    const QPoint donde = menu->pos() - principal.pos();
    QPixmap lienzo(qMax(principal.width(), donde.x() + menu->width()),
                   qMax(principal.height(), donde.y() + menu->height()));
    lienzo.fill(Qt::white);
    QPainter p(&lienzo);
    p.drawPixmap(0, 0, principal.grab());
    p.drawPixmap(donde, menu->grab());
    p.end();
    menu->hide();
    return lienzo;
}

} // namespace

int main(int argc, char* argv[]) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    shell::AplicarApariencia(CC_VERSION);
    carpeta = QDir(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("screenshots"));
    if (!carpeta.mkpath(QStringLiteral("."))) qFatal("cannot create %s", qPrintable(carpeta.path()));

    BaseDePrueba base(true);
    QFile demo(BaseDePrueba::rutaEsquema() + QStringLiteral("/demo/demo.sql"));
    if (!demo.open(QIODevice::ReadOnly)) qFatal("cannot read the sample store");
    base.sqlite(QString::fromUtf8(demo.readAll()));

    aplicacion::RegistrarPantallas();
    capturarModales();
    pendientes << QStringLiteral("frmSplash");
    shell::Main();
    auto& principal = Common::Pantalla<shell::frmMain>();
    principal.move(40, 20);
    guardar(principal.grab(), QStringLiteral("frmMain"));
    guardar(conMenuAbierto(principal), QStringLiteral("frmMain-menu"));

    auto& banco = Common::Pantalla<catalogos::frmBanco>();
    banco.Show();
    banco.move(60, 120);
    QCoreApplication::processEvents();
    guardar(banco.grab(), QStringLiteral("frmBanco-consultando"));

    const QString titulo = QStringLiteral("Bancos del sistema");
    pendientes << QStringLiteral("frmMensaje");
    Common::MostrarMensaje(
        titulo, QStringLiteral("No puede eliminarse el banco: hay recibos o facturas que lo nombran."),
        banco);
    pendientes << QStringLiteral("frmPregunta");
    Common::Preguntar(titulo, QStringLiteral("En realidad desea eliminar este banco"), banco);
    pendientes << QStringLiteral("frmOpcion");
    Common::Parametros.ReDim(2);
    Common::Parametros(1) = QStringLiteral("Desactivar este fiador");
    Common::Parametros(2) = QStringLiteral("Eliminar el registro");
    Common::ElegirOpcion(QStringLiteral("Fiadores"), banco);
    pendientes << QStringLiteral("frmIngresoTexto");
    Common::PedirTexto(QStringLiteral("Pagos a proveedores"), QStringLiteral("Ingrese el monto del pago."),
                       banco, QStringLiteral("60.00"));

    pendientes << QStringLiteral("frmListado");
    QTest::mouseClick(banco.cmdBoton[0], Qt::LeftButton); // "Buscar" opens the pick list of banks

    pendientes << QStringLiteral("frmBusca");
    Common::ConsultaBusqueda = QStringLiteral("Select * From vwBuscaArticulo");
    auto& busca = Common::Pantalla<shell::frmBusca>();
    busca.lblTitulo->setText(QStringLiteral("Busca articulos"));
    busca.ShowModal();

    QTest::mouseClick(banco.cmdBoton[1], Qt::LeftButton); // "Agregar"
    QCoreApplication::processEvents();
    guardar(banco.grab(), QStringLiteral("frmBanco-editando"));

    auto& proveedor = Common::Pantalla<catalogos::frmProveedor>();
    proveedor.Show();
    proveedor.move(80, 140);
    pendientes << QStringLiteral("frmListado-proveedores");
    QTest::mouseClick(proveedor.cmdBoton[0], Qt::LeftButton); // the list, captured and closed
    Common::IDSeleccionado = 0;
    proveedor.adoProveedor->setRecordSource(QStringLiteral("Select * From Proveedor Where ProveedorID = 1"));
    proveedor.adoProveedor->Refresh();
    dosModos(proveedor, QStringLiteral("frmProveedor"), 2); // "Modificar"

    // A record screen shown at (x, y) on the first row its "Buscar" finds, in both modes.
    const auto buscadaEnDosModos = [&](shell::Marco& pantalla, const QString& nombre, int x, int y,
                                       int botonEdicion) {
        pantalla.Show();
        pantalla.move(x, y);
        pendientes << kElegir;
        QTest::mouseClick(pantalla.cmdBoton[0], Qt::LeftButton);
        dosModos(pantalla, nombre, botonEdicion);
    };
    auto& articulo = Common::Pantalla<catalogos::frmArticulo>();
    buscadaEnDosModos(articulo, QStringLiteral("frmArticulo"), 100, 160,
                      1); // the first article, then "Modificar"

    auto& fiador = Common::Pantalla<credito::frmFiador>();
    buscadaEnDosModos(fiador, QStringLiteral("frmFiador"), 120, 180,
                      2); // the first guarantor, then "Modificar"
    // The first client found, with a second line in its history; then the dialog on its first line.
    base.sqlite(
        QStringLiteral("INSERT INTO ClienteHistorial (ClienteID, Fecha, Descripcion, Valor, "
                       "ClasificacionID) SELECT hidID, '2025-11-03', 'Refrigeradora RT38 al crédito', "
                       "4850, 1 FROM vwBuscaCliente LIMIT 1;"));
    auto& cliente = Common::Pantalla<credito::frmCliente>();
    buscadaEnDosModos(cliente, QStringLiteral("frmCliente"), 120, 180,
                      2); // the first client, then "Modificar"
    pendientes << QStringLiteral("frmHistorial");
    cliente.fgDetalle->setFocus();
    cliente.fgDetalle->setRow(1);
    QTest::keyClick(cliente.fgDetalle, Qt::Key_Return);     // the line in its dialog
    QTest::mouseClick(cliente.cmdBoton[6], Qt::LeftButton); // "Cancelar" ends its transaction

    // The first application found (approved), then a new one with its client, guarantor and a line.
    auto& solicitud = Common::Pantalla<credito::frmSolicitud>();
    solicitud.Show();
    solicitud.move(10, 10);
    pendientes << kElegir;
    QTest::mouseClick(solicitud.cmdBoton[0], Qt::LeftButton);
    QCoreApplication::processEvents();
    guardar(solicitud.grab(), QStringLiteral("frmSolicitud-consultando"));
    QTest::mouseClick(solicitud.cmdBoton[1], Qt::LeftButton); // "Agregar"
    pendientes << kElegir;
    QTest::mouseClick(solicitud.cmdCliente, Qt::LeftButton);
    pendientes << kElegir;
    QTest::mouseClick(solicitud.cmdFiador, Qt::LeftButton);
    solicitud.txtFiadorParentesco->setText(QStringLiteral("Hermana"));
    solicitud.txtCasaDireccion->setText(QStringLiteral("4a. calle 3-20 zona 1"));
    pendientes << kElegir << QStringLiteral("frmSolicitud-linea");
    solicitud.fgDetalle->setFocus();
    QTest::keyClick(solicitud.fgDetalle, Qt::Key_Insert); // an article, its dialog captured
    QCoreApplication::processEvents();
    guardar(solicitud.grab(), QStringLiteral("frmSolicitud-editando"));

    QTest::mouseClick(solicitud.cmdBoton[6], Qt::LeftButton); // "Cancelar"

    // The first receipt found; then a new one for application 2: its balances, the instalment
    // proposed, a line of "Flete" through the dialog dressed for a concept, and 1,000.00 in cash.
    auto& recibo = Common::Pantalla<caja::frmRecibo>();
    recibo.Show();
    recibo.move(10, 10);
    pendientes << kElegir;
    QTest::mouseClick(recibo.cmdBoton[0], Qt::LeftButton);
    QCoreApplication::processEvents();
    guardar(recibo.grab(), QStringLiteral("frmRecibo-consultando"));
    QTest::mouseClick(recibo.cmdBoton[1], Qt::LeftButton); // "Agregar"
    // Each modal shown leaves no window active; the receipt is made active again before typing, so
    // that leaving a field runs its validate step.
    const auto escribirYSalir = [&recibo](QWidget* campo, const QString& texto) {
        QApplication::setActiveWindow(&recibo);
        campo->setFocus();
        QTest::keyClick(campo, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(campo, texto);
        QTest::keyClick(campo, Qt::Key_Tab);
    };
    escribirYSalir(recibo.txtNumeroSolicitud, QStringLiteral("2")); // the application loaded
    recibo.fgDetalle->setFocus();
    pendientes << kElegir; // "Cuota mensual", first in the list
    QTest::keyClick(recibo.fgDetalle, Qt::Key_Insert);
    pendientes << QStringLiteral("*2") << QStringLiteral("frmSolicitudArticulo-concepto|150"); // "Flete"
    QTest::keyClick(recibo.fgDetalle, Qt::Key_Insert);
    escribirYSalir(recibo.panBanco->txtEfectivo, QStringLiteral("1000"));
    recibo.txtConcepto->setFocus();
    QTest::keyClicks(recibo.txtConcepto, QStringLiteral("Cuota de noviembre"));
    QCoreApplication::processEvents();
    guardar(recibo.grab(), QStringLiteral("frmRecibo-editando"));
    QTest::mouseClick(recibo.cmdBoton[6], Qt::LeftButton); // "Cancelar"

    // The second invoice found (an article sold to a client, paid by cheque); then a new one for
    // application 1, paid off: its two articles as lines of credit with its discount, a line of
    // "Instalación" beside them (the dialog undressed), and the cash. Last, the balloon tip of the
    // discount under the pointer resting on it.
    auto& factura = Common::Pantalla<caja::frmFactura>();
    factura.Show();
    factura.move(10, 10);
    pendientes << QStringLiteral("*1");
    QTest::mouseClick(factura.cmdBoton[0], Qt::LeftButton);
    QCoreApplication::processEvents();
    guardar(factura.grab(), QStringLiteral("frmFactura-consultando"));
    QTest::mouseClick(factura.cmdBoton[1], Qt::LeftButton); // "Agregar"
    const auto enLaFactura = [&factura](QWidget* campo, const QString& texto) {
        QApplication::setActiveWindow(&factura);
        campo->setFocus();
        QTest::keyClick(campo, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(campo, texto);
        QTest::keyClick(campo, Qt::Key_Tab);
    };
    enLaFactura(factura.txtNumeroSolicitud, QStringLiteral("1"));
    factura.fgDetalle->setFocus();
    pendientes << QStringLiteral("*3") << QStringLiteral("frmSolicitudArticulo-factura|350"); // "Instalación"
    QTest::keyClick(factura.fgDetalle, Qt::Key_Insert, Qt::ShiftModifier);
    enLaFactura(factura.panBanco->txtEfectivo, QStringLiteral("5500"));
    factura.txtObservaciones->setFocus();
    QTest::keyClicks(factura.txtObservaciones, QStringLiteral("Cancelada con el recibo 5"));
    QCoreApplication::processEvents();
    guardar(factura.grab(), QStringLiteral("frmFactura-editando"));
    const QPoint sobreElDescuento(40, 10);
    QHelpEvent reposo(QEvent::ToolTip, sobreElDescuento, factura.txtDescuento->mapToGlobal(sobreElDescuento));
    QApplication::sendEvent(factura.txtDescuento, &reposo);
    QCoreApplication::processEvents();
    for (auto* globo : factura.findChildren<shell::GloboDeAyuda*>())
        if (globo->isVisible()) {
            const QPoint donde = globo->pos() - factura.pos();
            QPixmap lienzo(qMax(factura.width(), donde.x() + globo->width()),
                           qMax(factura.height(), donde.y() + globo->height()));
            lienzo.fill(Qt::white);
            QPainter p(&lienzo);
            p.drawPixmap(0, 0, factura.grab());
            p.drawPixmap(donde, globo->grab());
            // The pointer, which the offscreen platform doesn't draw: an arrow with its tip where it
            // rests.
            const QPoint punta = factura.txtDescuento->mapTo(&factura, sobreElDescuento);
            const QPolygon flecha({{0, 0}, {0, 16}, {4, 12}, {7, 18}, {9, 17}, {6, 11}, {11, 11}});
            p.setRenderHint(QPainter::Antialiasing);
            p.setPen(Qt::black);
            p.setBrush(Qt::white);
            p.drawPolygon(flecha.translated(punta));
            p.end();
            guardar(lienzo, QStringLiteral("frmFactura-globo"));
        }
    QTest::mouseClick(factura.cmdBoton[6], Qt::LeftButton); // "Cancelar"

    // The delivery note already made for application 2; then a new one for application 1: its
    // customer, its home address and its pending articles, the total under them, and a remark.
    auto& envio = Common::Pantalla<mercaderia::frmNotaEnvio>();
    envio.Show();
    envio.move(10, 10);
    pendientes << kElegir;
    QTest::mouseClick(envio.cmdBoton[0], Qt::LeftButton);
    QCoreApplication::processEvents();
    guardar(envio.grab(), QStringLiteral("frmNotaEnvio-consultando"));
    QTest::mouseClick(envio.cmdBoton[1], Qt::LeftButton); // "Agregar"
    QApplication::setActiveWindow(&envio);
    QTest::mouseClick(envio.optTipo->operator()(0), Qt::LeftButton);
    QTest::keyClicks(envio.txtNumeroDocumento, QStringLiteral("1"));
    QTest::keyClick(envio.txtNumeroDocumento, Qt::Key_Tab); // the application's pending articles
    envio.txtObservaciones->setFocus();
    QTest::keyClicks(envio.txtObservaciones, QStringLiteral("Llamar antes de llegar"));
    QCoreApplication::processEvents();
    guardar(envio.grab(), QStringLiteral("frmNotaEnvio-editando"));
    QTest::mouseClick(envio.cmdBoton[6], Qt::LeftButton); // "Cancelar"

    // Goods in: the first note found; then a new one from the first supplier listed, with a new article
    // typed in the line dialog (captured) and an existing one found in it.
    const auto teclearEn = [](QWidget& ventana, QWidget* campo, const QString& texto) {
        QApplication::setActiveWindow(&ventana);
        campo->setFocus();
        QTest::keyClick(campo, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(campo, texto);
        QTest::keyClick(campo, Qt::Key_Tab);
    };
    auto& ingreso = Common::Pantalla<mercaderia::frmNotaIngreso>();
    ingreso.Show();
    ingreso.move(10, 10);
    pendientes << kElegir;
    QTest::mouseClick(ingreso.cmdBoton[0], Qt::LeftButton);
    QCoreApplication::processEvents();
    guardar(ingreso.grab(), QStringLiteral("frmNotaIngreso-consultando"));
    QTest::mouseClick(ingreso.cmdBoton[1], Qt::LeftButton); // "Agregar"
    pendientes << kElegir;
    QTest::mouseClick(ingreso.cmdProveedor, Qt::LeftButton);
    teclearEn(ingreso, ingreso.txtDescripcion, QStringLiteral("Factura 2291, pedido de marzo"));
    const auto boton = [](QWidget& d, const QString& caption) {
        for (QPushButton* b : d.findChildren<QPushButton*>())
            if (b->text() == caption) QTest::mouseClick(b, Qt::LeftButton);
    };
    pendientes << kActuar;
    acciones << [&](shell::Formulario& f) {
        auto& d = static_cast<mercaderia::frmNotaIngresoArticulo&>(f);
        boton(d, QStringLiteral("Nuevo"));
        teclearEn(d, d.txtNombre, QStringLiteral("Secadora"));
        teclearEn(d, d.txtModelo, QStringLiteral("DV45 7.5 pies"));
        teclearEn(d, d.txtColor, QStringLiteral("Blanco"));
        teclearEn(d, d.txtCantidad, QStringLiteral("3"));
        teclearEn(d, d.txtCosto, QStringLiteral("2950"));
        QTest::mouseClick((*d.optContado)(0), Qt::LeftButton);
        teclearEn(d, d.txtContadoPorcentaje, QStringLiteral("25"));
        QTest::mouseClick((*d.optCredito)(0), Qt::LeftButton);
        teclearEn(d, d.txtCreditoPorcentaje, QStringLiteral("45"));
        QCoreApplication::processEvents();
        guardar(d.grab(), QStringLiteral("frmNotaIngresoArticulo"));
        boton(d, QStringLiteral("&Aceptar"));
    };
    ingreso.fgDetalle->setFocus();
    QTest::keyClick(ingreso.fgDetalle, Qt::Key_Insert);
    pendientes << kActuar << kElegir;
    acciones << [&](shell::Formulario& f) {
        auto& d = static_cast<mercaderia::frmNotaIngresoArticulo&>(f);
        boton(d, QStringLiteral("Buscar")); // the first article
        teclearEn(d, d.txtCantidad, QStringLiteral("2"));
        teclearEn(d, d.txtCosto, QStringLiteral("4150"));
        boton(d, QStringLiteral("&Aceptar"));
    };
    ingreso.fgDetalle->setFocus();
    QTest::keyClick(ingreso.fgDetalle, Qt::Key_Insert);
    QCoreApplication::processEvents();
    guardar(ingreso.grab(), QStringLiteral("frmNotaIngreso-editando"));
    QTest::mouseClick(ingreso.cmdBoton[6], Qt::LeftButton); // "Cancelar"

    // Payables: the first document found; then a new one for the first supplier listed, paying part of
    // its first open note (the amount typed in the prompt).
    auto& documentos = Common::Pantalla<pagos::frmDocumentos>();
    documentos.Show();
    documentos.move(30, 30);
    pendientes << kElegir;
    QTest::mouseClick(documentos.cmdBoton[0], Qt::LeftButton);
    QCoreApplication::processEvents();
    guardar(documentos.grab(), QStringLiteral("frmDocumentos-consultando"));
    QTest::mouseClick(documentos.cmdBoton[1], Qt::LeftButton); // "Agregar"
    pendientes << kElegir;
    QTest::mouseClick(documentos.cmdProveedor, Qt::LeftButton);
    teclearEn(documentos, documentos.txtDescripcion, QStringLiteral("Cheque 10245 Banrural"));
    pendientes << kElegir << kActuar;
    acciones << [&](shell::Formulario& f) {
        auto* caja = f.findChild<QLineEdit*>(QStringLiteral("txtTexto"));
        caja->selectAll();
        QTest::keyClicks(caja, QStringLiteral("1500"));
        boton(f, QStringLiteral("Aceptar"));
    };
    documentos.fgDetalle->setFocus();
    QTest::keyClick(documentos.fgDetalle, Qt::Key_Insert);
    QCoreApplication::processEvents();
    guardar(documentos.grab(), QStringLiteral("frmDocumentos-editando"));
    QTest::mouseClick(documentos.cmdBoton[6], Qt::LeftButton); // "Cancelar"

    // The instalment dialog, which no screen opens yet.
    pendientes << QStringLiteral("frmDocumentoPago");
    auto& pago = Common::Pantalla<pagos::frmDocumentoPago>();
    pago.Move(documentos.Left() + 300, documentos.Top() + 300);
    pago.ShowModal();

    // The article line dialog as a search for an article leaves it: cost 100 with a cash margin of 25 %,
    // one unit; opened at its caller's Left + 300, Top + 300.
    Common::Parametros.ReDim(8);
    const QVariantList fila = {1,
                               QStringLiteral("Refrigeradora"),
                               QStringLiteral("RT38"),
                               QStringLiteral("Blanca"),
                               100.0,
                               25.0,
                               0.0,
                               1};
    for (int i = 0; i < fila.size(); ++i)
        Common::Parametros(i + 1) = fila.at(i);
    pendientes << QStringLiteral("frmSolicitudArticulo");
    auto& lineaArticulo = Common::Pantalla<credito::frmSolicitudArticulo>();
    lineaArticulo.Move(cliente.Left() + 300, cliente.Top() + 300);
    lineaArticulo.ShowModal();

    for (const QString& e : escritos)
        std::printf("%s\n", qPrintable(e));
    std::fflush(stdout);
    std::_Exit(0); // as the program ends: nothing to unload
}
