// The invoice, opened from "Facturas" as the clerk opens it: a paid-off application invoiced with its
// lines of credit and lines beside them, the balance that refuses an application, the F2 list, the
// three parties and where each one's NIT goes (the question offering "C/F" included), the checks of
// "Guardar", a second invoice of one application, "Imprimir", the date a modified invoice takes, and
// the buttons that do nothing.
#include "FacturaEnPantalla.h"
#include "ModosDeRegistro.h"
#include "runtime/Conversion.h"
#include "store/Recordset.h"

#include <QtTest>

using caja::frmFactura;

namespace {

const QString kTitulo = QStringLiteral("Facturas");

// The row of an invoice by its number, as the database holds it.
QString factura(const FacturaEnPantalla& f, int numero) {
    return f.db(
        QStringLiteral("SELECT ifnull(SolicitudID, 'null') || '|' || ifnull(ClienteID, 'null') || '|' || "
                       "ifnull(Nombre, 'null') || '|' || ifnull(NIT, 'null') FROM Factura WHERE "
                       "NumeroFactura = %1")
            .arg(numero));
}

// Its lines, in the order written: article|concept|quantity|credit|price.
QString lineas(const FacturaEnPantalla& f, int numero) {
    return f.db(
        QStringLiteral(
            "SELECT group_concat(ArticuloID || '|' || ConceptoID || '|' || Cantidad || '|' || EsCredito || "
            "'|' || printf('%.2f', Precio), ';') FROM (SELECT FD.* FROM FacturaDetalle FD JOIN Factura F "
            "ON F.FacturaID = FD.FacturaID WHERE F.NumeroFactura = %1 ORDER BY FD.FacturaDetalleID)")
            .arg(numero));
}

} // namespace

class TstFrmFactura : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void facturaDeUnaSolicitudCancelada();
    void saldoDeLaSolicitud_data();
    void saldoDeLaSolicitud();
    void f2OfreceSoloLasCanceladas();
    void nitDeCadaForma_data();
    void nitDeCadaForma();
    void nitQueElClienteNoGuarda();
    void cambioDePersona_data();
    void cambioDePersona();
    void guardarRehusado_data();
    void guardarRehusado();
    void dosFacturasDeUnaSolicitud();
    void imprimirMarcaLaFactura();
    void imprimirSinFactura();
    void fechaAlModificar_data();
    void fechaAlModificar();
    void botonesQueNoHacenNada();

private:
    frmFactura& pantalla() { return f_->pantalla(); }
    void pulsar(const QString& caption) { f_->pulsar(caption); }
    QString db(const QString& consulta) const { return f_->db(consulta); }
    std::unique_ptr<FacturaEnPantalla> f_;
};

void TstFrmFactura::init() {
    f_ = std::make_unique<FacturaEnPantalla>();
}

void TstFrmFactura::cleanup() {
    f_.reset();
}

// Application 50, paid off, brings its client, NIT, discount and two lines of credit, which refuse
// Delete and Enter; an article and a concept go in beside them and are saved with them. The invoice
// stores the application alone: no client, no name, no NIT.
void TstFrmFactura::facturaDeUnaSolicitudCancelada() {
    auto& p = pantalla();
    f_->facturarSolicitud(QStringLiteral("50"));
    QCOMPARE(p.txtNumeroFactura->text(), QStringLiteral("8"));
    QCOMPARE(p.SolicitudID, 1L);
    QCOMPARE(p.txtNombreCliente->text(), QStringLiteral("ANA LUCÍA GONZÁLEZ"));
    QCOMPARE(p.txtNIT->text(), QStringLiteral("1234567-8"));
    QCOMPARE(f_->filas(), (QStringList{"1|0|1|1|REFRIGERADORA RT38 BLANCO|500.00|500.00",
                                       "2|0|2|1|ESTUFA E4 GRIS|130.00|260.00"}));
    QCOMPARE(p.txtDescuento->text(), QStringLiteral("60.00"));
    QCOMPARE(p.lblSubTotal->text(), QStringLiteral("760.00"));
    QCOMPARE(p.lblTotal->text(), QStringLiteral("700.00"));

    QString mensaje;
    f_->responder(QStringLiteral("cmdClose"), &mensaje);
    f_->tecla(Qt::Key_Delete, 1);
    QCOMPARE(mensaje, QStringLiteral("Los artículos que pertenecen a una solicitud de crédito no pueden ser "
                                     "eliminados por separado."));
    f_->responder(QStringLiteral("cmdClose"), &mensaje);
    f_->tecla(Qt::Key_Return, 2);
    QCOMPARE(
        mensaje,
        QStringLiteral("Los artículos que pertenecen a una solicitud de crédito no pueden ser modificados."));
    QCOMPARE(f_->filas().size(), 2);

    f_->agregarArticulo(QStringLiteral("ESTUFA"), QStringLiteral("1"), QStringLiteral("125"));
    f_->agregarConcepto(QStringLiteral("Flete"), QStringLiteral("1"), QStringLiteral("40"));
    const QString flete = db(QStringLiteral("SELECT ConceptoID FROM Concepto WHERE Descripcion = 'Flete'"));
    QCOMPARE(f_->filas().mid(2), (QStringList{"2|0|1|0|ESTUFA|125.00|125.00",
                                              QStringLiteral("0|%1|1|0|Flete|40.00|40.00").arg(flete)}));
    QCOMPARE(p.lblSubTotal->text(), QStringLiteral("925.00"));
    QCOMPARE(p.lblTotal->text(), QStringLiteral("865.00"));
    f_->escribir(p.panBanco->txtEfectivo, QStringLiteral("900"));
    QCOMPARE(p.panBanco->lblVuelto->text(), QStringLiteral("35.00"));
    pulsar(QStringLiteral("Guardar"));
    verificarConsulta(pantalla());
    QCOMPARE(factura(*f_, 8), QStringLiteral("1|0|null|null"));
    QCOMPARE(db("SELECT Fecha || '|' || Descuento || '|' || Efectivo || '|' || Vuelto || '|' || BancoID FROM "
                "Factura WHERE NumeroFactura = 8"),
             QStringLiteral("2026-03-10|60.0|900.0|35.0|0"));
    QCOMPARE(lineas(*f_, 8),
             QStringLiteral("1|0|1|1|500.00;2|0|2|1|130.00;2|0|1|0|125.00;0|%1|1|0|40.00").arg(flete));
    QVERIFY(f_->entorno().modalesSinAccion == 0);
}

// The balance alone decides, whatever the application's state: 0 or less is invoiced, anything above
// is refused with the amount, and a number no application has is told. A refusal leaves the number
// and its Tag at 0 and no line.
void TstFrmFactura::saldoDeLaSolicitud_data() {
    QTest::addColumn<QString>("numero");
    QTest::addColumn<QString>("mensaje"); // "" when invoiced
    QTest::addColumn<long>("solicitud");
    QTest::addColumn<int>("lineas");
    QTest::newRow("saldo 0.00, aprobada") << "50"
                                          << "" << 1L << 2;
    QTest::newRow("saldo -20.00, cancelada") << "53"
                                             << "" << 4L << 1;
    QTest::newRow("saldo 0.01") << "51"
                                << "La solicitud que desea facturar aún tiene un saldo de Q. 0.01" << 0L << 0;
    QTest::newRow("pendiente, sin pagos")
        << "52"
        << "La solicitud que desea facturar aún tiene un saldo de Q. 500.00" << 0L << 0;
    QTest::newRow("no existe")
        << "99"
        << "No se ha encontrado el numero de solicitud que ingreso. Presione [F2] para "
           "obtener una lista."
        << 0L << 0;
}

void TstFrmFactura::saldoDeLaSolicitud() {
    QFETCH(QString, numero);
    QFETCH(QString, mensaje);
    QFETCH(long, solicitud);
    QFETCH(int, lineas);
    auto& p = pantalla();
    QString dicho;
    if (!mensaje.isEmpty()) f_->responder(QStringLiteral("cmdClose"), &dicho);
    f_->facturarSolicitud(numero);
    QCOMPARE(dicho, mensaje);
    if (!mensaje.isEmpty()) QCOMPARE(f_->entorno().titulosModales.last(), kTitulo);
    QCOMPARE(p.SolicitudID, solicitud);
    int reales = 0;
    for (const QString& fila : f_->filas())
        reales += fila.section(u'|', 3, 3) == QLatin1String("1") ? 1 : 0;
    QCOMPARE(reales, lineas);
    if (mensaje.isEmpty()) return;
    QCOMPARE(p.txtNumeroSolicitud->text(), QStringLiteral("0"));
    QCOMPARE(p.txtNumeroSolicitud->Tag(), QStringLiteral("0"));
    QCOMPARE(p.txtNombreCliente->text(), QString());
}

// F2 lists the applications whose balance is 0 or less, under its own title; the one picked shows its
// client and NIT at once, and its lines come when the field is left.
void TstFrmFactura::f2OfreceSoloLasCanceladas() {
    auto& p = pantalla();
    pulsar(QStringLiteral("Agregar"));
    QStringList ofrecidas;
    f_->elegir(QStringLiteral("53"), &ofrecidas);
    p.txtNumeroSolicitud->setFocus();
    QTest::keyClick(p.txtNumeroSolicitud, Qt::Key_F2);
    ofrecidas.sort();
    QCOMPARE(ofrecidas, (QStringList{"50", "53"}));
    QCOMPARE(f_->entorno().titulosModales,
             QStringList{QStringLiteral("Busca solicitudes de crédito canceladas")});
    QCOMPARE(p.txtNumeroSolicitud->text(), QStringLiteral("53"));
    QCOMPARE(p.txtNombreCliente->text(), QStringLiteral("LUISA MÉNDEZ"));
    QCOMPARE(p.txtNIT->text(), QStringLiteral("C/F"));
    QCOMPARE(p.SolicitudID, 0L);
    QCOMPARE(f_->filas(), QStringList{"||||||"});
    activar(p);
    QTest::keyClick(p.txtNumeroSolicitud, Qt::Key_Tab);
    QCOMPARE(p.SolicitudID, 4L);
    QCOMPARE(f_->filas(), QStringList{"2|0|1|1|ESTUFA E4 GRIS|130.00|130.00"});
}

// Where the NIT goes: an application's is shown and dropped, a client's goes to the client's record,
// a typed name's to the invoice. An empty one is asked about: "Aceptar" makes it "C/F", written like
// any other; any other answer leaves the screen editing with nothing said and nothing written.
void TstFrmFactura::nitDeCadaForma_data() {
    QTest::addColumn<QString>("forma");     // solicitud, cliente or nombre
    QTest::addColumn<QString>("nit");       // typed before "Guardar"
    QTest::addColumn<QString>("respuesta"); // to the question; "" when none is asked
    QTest::addColumn<QString>("fila");      // SolicitudID|ClienteID|Nombre|NIT of the invoice; "" unsaved
    QTest::addColumn<QString>("cliente");   // NIT of client 2 (PEDRO) afterwards
    QTest::newRow("solicitud: el NIT cambiado no se guarda") << "solicitud"
                                                             << "555-5"
                                                             << ""
                                                             << "1|0|null|null"
                                                             << "";
    QTest::newRow("cliente: su NIT a su ficha") << "cliente"
                                                << "4455667-1"
                                                << ""
                                                << "0|2|null|null"
                                                << "4455667-1";
    QTest::newRow("cliente sin NIT: C/F a su ficha") << "cliente"
                                                     << ""
                                                     << "Aceptar"
                                                     << "0|2|null|null"
                                                     << "C/F";
    QTest::newRow("cliente sin NIT, sin aceptar") << "cliente"
                                                  << ""
                                                  << "Cancelar"
                                                  << ""
                                                  << "";
    QTest::newRow("nombre: nombre y NIT en la factura") << "nombre"
                                                        << "778899-0"
                                                        << ""
                                                        << "0|0|JUAN SOTO|778899-0"
                                                        << "";
    QTest::newRow("nombre sin NIT: C/F en la factura") << "nombre"
                                                       << ""
                                                       << "Aceptar"
                                                       << "0|0|JUAN SOTO|C/F"
                                                       << "";
    QTest::newRow("nombre sin NIT, cerrada la pregunta") << "nombre"
                                                         << ""
                                                         << "cmdClose"
                                                         << ""
                                                         << "";
}

void TstFrmFactura::nitDeCadaForma() {
    QFETCH(QString, forma);
    QFETCH(QString, nit);
    QFETCH(QString, respuesta);
    QFETCH(QString, fila);
    QFETCH(QString, cliente);
    auto& p = pantalla();
    if (forma == QLatin1String("solicitud")) {
        f_->facturarSolicitud(QStringLiteral("50"));
    } else {
        pulsar(QStringLiteral("Agregar"));
        if (forma == QLatin1String("cliente")) {
            f_->elegir(QStringLiteral("RAMÍREZ"));
            QTest::mouseClick(p.cmdCliente, Qt::LeftButton);
            QCOMPARE(p.txtNombreCliente->text(), QStringLiteral("PEDRO RAMÍREZ"));
        } else {
            activar(p);
            QTest::mouseDClick(p.txtNombreCliente, Qt::LeftButton);
            f_->escribir(p.txtNombreCliente, QStringLiteral("juan soto"));
        }
        f_->agregarConcepto(QStringLiteral("Flete"), QStringLiteral("1"), QStringLiteral("40"));
    }
    f_->escribir(p.txtNIT, nit);
    f_->escribir(p.panBanco->txtEfectivo, QStringLiteral("1000"));
    QString pregunta;
    if (!respuesta.isEmpty()) f_->responder(respuesta, &pregunta);
    const int antes = f_->entorno().modalesMostradas.size();
    pulsar(QStringLiteral("Guardar"));
    QCOMPARE(f_->entorno().modalesMostradas.size(), antes + (respuesta.isEmpty() ? 0 : 1));
    if (!respuesta.isEmpty()) {
        QCOMPARE(pregunta,
                 QStringLiteral("¿No ha especificado un numero de NIT\r\nDesea emitir a consumidor final "
                                "(C/F)?"));
        QCOMPARE(f_->entorno().titulosModales.last(), kTitulo);
    }
    QCOMPARE(factura(*f_, 8), fila);
    if (fila.isEmpty()) {
        verificarEdicion(pantalla());
        QCOMPARE(p.txtNIT->text(), QString());
    } else {
        verificarConsulta(pantalla());
    }
    QCOMPARE(db("SELECT NIT FROM Cliente WHERE ClienteID = 2"), cliente);
    QCOMPARE(db("SELECT NIT FROM Cliente WHERE ClienteID = 1"), QStringLiteral("1234567-8"));
}

// The client's NIT goes into the statement unescaped: an apostrophe makes the save fail, which is
// told; the screen keeps editing with its transaction open, and "Cancelar" leaves nothing written.
void TstFrmFactura::nitQueElClienteNoGuarda() {
    auto& p = pantalla();
    pulsar(QStringLiteral("Agregar"));
    f_->elegir(QStringLiteral("RAMÍREZ"));
    QTest::mouseClick(p.cmdCliente, Qt::LeftButton);
    f_->agregarConcepto(QStringLiteral("Flete"), QStringLiteral("1"), QStringLiteral("40"));
    f_->escribir(p.txtNIT, QStringLiteral("12'3"));
    f_->escribir(p.panBanco->txtEfectivo, QStringLiteral("40"));
    QString mensaje;
    f_->responder(QStringLiteral("cmdClose"), &mensaje);
    pulsar(QStringLiteral("Guardar"));
    QVERIFY(!mensaje.isEmpty());
    QCOMPARE(f_->entorno().titulosModales.last(), kTitulo);
    verificarEdicion(pantalla());
    pulsar(QStringLiteral("Cancelar"));
    verificarConsulta(pantalla());
    QCOMPARE(db("SELECT count(*) FROM Factura"), QStringLiteral("1"));
    QCOMPARE(db("SELECT NIT FROM Cliente WHERE ClienteID = 2"), QString());
    QCOMPARE(f_->filas().size(), 1); // the grid keeps what it showed
}

// Each change of party wipes the lines; "Cliente >" and the typed name also put the application's
// number at 0 and the discount and sub-total at 0.00. The name is pale yellow and open only for a
// typed name.
void TstFrmFactura::cambioDePersona_data() {
    QTest::addColumn<QString>("gesto");
    QTest::addColumn<QString>("nombre");
    QTest::addColumn<QString>("nit");
    QTest::addColumn<bool>("abierto");
    QTest::newRow("Cliente >") << "cliente"
                               << "ANA LUCÍA GONZÁLEZ"
                               << "1234567-8" << false;
    QTest::newRow("Cliente > cerrado sin elegir") << "ninguno"
                                                  << "ANA LUCÍA GONZÁLEZ"
                                                  << "1234567-8" << false;
    QTest::newRow("doble clic en el nombre") << "nombre"
                                             << ""
                                             << "" << true;
}

void TstFrmFactura::cambioDePersona() {
    QFETCH(QString, gesto);
    QFETCH(QString, nombre);
    QFETCH(QString, nit);
    QFETCH(bool, abierto);
    auto& p = pantalla();
    f_->facturarSolicitud(QStringLiteral("50"));
    const QColor propio = p.txtNombreCliente->BackColor(); // as the editing frame shows it
    QCOMPARE(p.lblSubTotal->text(), QStringLiteral("760.00"));
    if (gesto == QLatin1String("nombre")) {
        QTest::mouseDClick(p.txtNombreCliente, Qt::LeftButton);
    } else {
        f_->elegir(gesto == QLatin1String("cliente") ? QStringLiteral("GONZÁLEZ") : QString());
        QTest::mouseClick(p.cmdCliente, Qt::LeftButton);
    }
    QCOMPARE(p.ClienteID, gesto == QLatin1String("cliente") ? 1L : 0L);
    QCOMPARE(p.SolicitudID, 0L);
    QCOMPARE(p.txtNombreCliente->text(), nombre);
    QCOMPARE(p.txtNIT->text(), nit);
    QCOMPARE(f_->filas(), QStringList{"||||||"});
    QCOMPARE(p.txtNumeroSolicitud->text(), QStringLiteral("0"));
    QCOMPARE(p.txtDescuento->text(), QStringLiteral("0.00"));
    QCOMPARE(p.lblSubTotal->text(), QStringLiteral("0.00"));
    QCOMPARE(p.lblTotal->text(), QStringLiteral("0.00"));
    QCOMPARE(p.txtNombreCliente->Locked(), !abierto);
    QCOMPARE(p.txtNombreCliente->BackColor(), abierto ? QColor(255, 255, 192) : propio);
}

// The checks of "Guardar" in their order, each ending in editing mode with nothing written. The number
// and the lines are told in the receipt's words; the two bank refusals bear the receipt's title.
void TstFrmFactura::guardarRehusado_data() {
    QTest::addColumn<QString>("caso");
    QTest::addColumn<QString>("mensaje");
    QTest::addColumn<QString>("titulo");
    QTest::newRow("sin número") << "numero"
                                << "Debe el numero correlativo del recibo." << kTitulo;
    QTest::newRow("sin nombre") << "nombre"
                                << "Debe indicar el nombre a quien se emitirá la factura." << kTitulo;
    QTest::newRow("sin líneas") << "lineas"
                                << "Debe especificar que desea pagar en este recibo." << kTitulo;
    QTest::newRow("cheque sin número ni banco") << "cheque"
                                                << "Al indicar un valor de cheque tambien debe indicar el "
                                                   "numero de cheque y el banco al que pertenece."
                                                << "Recibos";
    QTest::newRow("pago menor que el total")
        << "corto"
        << "El monto total recibido es menor que el total del recibo." << kTitulo;
}

void TstFrmFactura::guardarRehusado() {
    QFETCH(QString, caso);
    QFETCH(QString, mensaje);
    QFETCH(QString, titulo);
    auto& p = pantalla();
    if (caso == QLatin1String("numero") || caso == QLatin1String("nombre")) {
        pulsar(QStringLiteral("Agregar"));
        if (caso == QLatin1String("numero")) f_->escribir(p.txtNumeroFactura, QString());
    } else if (caso == QLatin1String("lineas")) {
        pulsar(QStringLiteral("Agregar"));
        f_->elegir(QStringLiteral("GONZÁLEZ"));
        QTest::mouseClick(p.cmdCliente, Qt::LeftButton);
    } else {
        f_->facturarSolicitud(QStringLiteral("50")); // 700.00 to pay
        if (caso == QLatin1String("cheque"))
            f_->escribir(p.panBanco->txtChequeValor, QStringLiteral("700"));
        else
            f_->escribir(p.panBanco->txtEfectivo, QStringLiteral("699.99"));
    }
    QString dicho;
    f_->responder(QStringLiteral("cmdClose"), &dicho);
    pulsar(QStringLiteral("Guardar"));
    QCOMPARE(dicho, mensaje);
    QCOMPARE(f_->entorno().titulosModales.last(), titulo);
    verificarEdicion(pantalla());
    QCOMPARE(db("SELECT count(*) FROM Factura"), QStringLiteral("1"));
}

// Nothing keeps an application to one invoice: the second is saved like the first, each with its
// lines of credit.
void TstFrmFactura::dosFacturasDeUnaSolicitud() {
    auto& p = pantalla();
    for (const int numero : {8, 9}) {
        f_->facturarSolicitud(QStringLiteral("50"));
        QCOMPARE(p.txtNumeroFactura->text(), QString::number(numero));
        f_->escribir(p.panBanco->txtEfectivo, QStringLiteral("700"));
        pulsar(QStringLiteral("Guardar"));
        verificarConsulta(pantalla());
        QCOMPARE(factura(*f_, numero), QStringLiteral("1|0|null|null"));
        QCOMPARE(lineas(*f_, numero), QStringLiteral("1|0|1|1|500.00;2|0|2|1|130.00"));
    }
    QCOMPARE(db("SELECT count(*) FROM Factura WHERE SolicitudID = 1"), QStringLiteral("2"));
}

// "Imprimir" marks the invoice found as printed, once or twice alike; it prints nothing, asks
// nothing and changes nothing on the screen.
void TstFrmFactura::imprimirMarcaLaFactura() {
    auto& p = pantalla();
    f_->elegir(QStringLiteral("7"), nullptr);
    pulsar(QStringLiteral("Buscar"));
    QCOMPARE(p.txtNumeroFactura->text(), QStringLiteral("7"));
    const QStringList antes = f_->filas();
    QCOMPARE(antes, QStringList{"2|0|1|0|ESTUFA E4 GRIS|130.00|130.00"});
    const QString fila =
        QStringLiteral("SELECT NumeroFactura || '|' || Fecha || '|' || ClienteID || '|' || Efectivo "
                       "|| '|' || Vuelto || '|' || Estado FROM Factura WHERE FacturaID = 1");
    QCOMPARE(db(fila), QStringLiteral("7|2026-02-20|1|200.0|70.0|0"));
    const int modales = f_->entorno().modalesMostradas.size();
    for (int vez = 0; vez < 2; ++vez) {
        pulsar(QStringLiteral("Imprimir"));
        QCOMPARE(db(fila), QStringLiteral("7|2026-02-20|1|200.0|70.0|1"));
    }
    QCOMPARE(f_->entorno().modalesMostradas.size(), modales);
    verificarConsulta(pantalla());
    QCOMPARE(f_->filas(), antes);
    QCOMPARE(p.txtNombreCliente->text(), QStringLiteral("ANA LUCÍA GONZÁLEZ"));
    QCOMPARE(p.lblTotal->text(), QStringLiteral("130.00"));
    QCOMPARE(p.panBanco->lblTotalRecibido->text(), QStringLiteral("200.00"));
}

// With no invoice on the screen there is no row to mark: the failure nothing catches.
void TstFrmFactura::imprimirSinFactura() {
    f_->entorno().esperaFallos();
    pulsar(QStringLiteral("Imprimir"));
    QCOMPARE(f_->entorno().fallos.size(), 1);
    QCOMPARE(db("SELECT group_concat(Estado) FROM Factura"), QStringLiteral("0"));
}

// Loading an invoice leaves the date picker as it was; "Guardar" after "Modificar" stores the date
// shown, so modifying an invoice moves its date.
void TstFrmFactura::fechaAlModificar_data() {
    QTest::addColumn<int>("dias"); // the day moved up with the arrow key before "Guardar"
    QTest::addColumn<QString>("guardada");
    QTest::newRow("la fecha que el selector mostraba") << 0 << "2026-03-10";
    QTest::newRow("otra fecha escogida") << 5 << "2026-03-15";
}

void TstFrmFactura::fechaAlModificar() {
    QFETCH(int, dias);
    QFETCH(QString, guardada);
    auto& p = pantalla();
    f_->elegir(QStringLiteral("7"), nullptr);
    pulsar(QStringLiteral("Buscar"));
    QCOMPARE(p.dpFecha->Value(), kHoyFactura);
    pulsar(QStringLiteral("Modificar"));
    verificarEdicion(p, QStringLiteral("Modificar registro actual"));
    QCOMPARE(p.txtNumeroFactura->Tag(), QStringLiteral("7"));
    p.dpFecha->setFocus();
    p.dpFecha->setCurrentSection(QDateTimeEdit::DaySection);
    for (int d = 0; d < dias; ++d)
        QTest::keyClick(p.dpFecha, Qt::Key_Up);
    pulsar(QStringLiteral("Guardar"));
    verificarConsulta(pantalla());
    QCOMPARE(db("SELECT Fecha FROM Factura WHERE FacturaID = 1"), guardada);
    QCOMPARE(lineas(*f_, 7), QStringLiteral("2|0|1|0|130.00"));
    QCOMPARE(db("SELECT count(*) FROM Factura"), QStringLiteral("1"));
}

// On the fresh screen "Modificar" does nothing; "Eliminar" never does anything, with or without an
// invoice, and says nothing.
void TstFrmFactura::botonesQueNoHacenNada() {
    auto& p = pantalla();
    pulsar(QStringLiteral("Modificar"));
    verificarConsulta(pantalla());
    pulsar(QStringLiteral("Eliminar"));
    f_->elegir(QStringLiteral("7"), nullptr);
    pulsar(QStringLiteral("Buscar"));
    pulsar(QStringLiteral("Eliminar"));
    verificarConsulta(pantalla());
    QCOMPARE(p.txtNumeroFactura->text(), QStringLiteral("7"));
    QCOMPARE(db("SELECT count(*) || '|' || (SELECT count(*) FROM FacturaDetalle) FROM Factura"),
             QStringLiteral("1|1"));
    QCOMPARE(f_->entorno().modalesMostradas, QStringList{QStringLiteral("frmBusca")});
}

QTEST_MAIN(TstFrmFactura)
#include "tst_frmFactura.moc"
