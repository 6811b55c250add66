// The receipt, opened from "Recibos" as the clerk opens it: a credit paid receipt by receipt until the
// views say it owes only its instalments; who a receipt is for (an application that must be approved,
// a client, a name typed by hand); the receipt's number; what "Guardar" checks and in which order; a
// save the database refuses, which keeps the edit and its transaction for a second "Guardar"; the
// buttons that do nothing; and another screen's save while the receipt holds the database.
#include "ModosDeRegistro.h"
#include "ReciboEnPantalla.h"
#include "catalogs/frmBanco.h"

#include <QElapsedTimer>
#include <QtTest>

using caja::frmRecibo;

namespace {

const QString kNoActiva = QStringLiteral("La solicitud que desea abonar no esta activa.");
const QString kNoEncontrada = QStringLiteral(
    "No se ha encontrado el numero de solicitud que ingreso. Presione [F2] para obtener una lista.");
const QString kYaExiste = QStringLiteral("El numero de recibo que ingreso ya existe.");
const QString kSinNumero = QStringLiteral("Debe el numero correlativo del recibo.");
const QString kSinNombre =
    QStringLiteral("Debe indicar la solicidut de credito, cliente registrado o nombre de "
                   "la persona a quien se emite el recibo.");
const QString kSinLineas = QStringLiteral("Debe especificar que desea pagar en este recibo.");
const QString kOperacionIncompleta = QStringLiteral(
    "Ha indicado una operación bancaria pero no esta completa. Por favor revise sus datos y trate de nuevo.");
const QString kRecibidoMenor = QStringLiteral("El monto total recibido es menor que el total del recibo.");

// The five balances of an application as the view gives them, and its balance in the search.
QString saldosDeLaVista(const ReciboEnPantalla& r, int solicitudID) {
    return r.db(QStringLiteral("SELECT printf('%.2f|%.2f|%.2f|%.2f|%.2f', Enganche, PrimerPago, Total, "
                               "CuotaMensual, Mora) FROM vwSaldosXSolicitud WHERE SolicitudID = %1")
                    .arg(solicitudID));
}

double saldoEnLaBusqueda(const ReciboEnPantalla& r, int solicitudID) {
    return r.db(QStringLiteral("SELECT Saldo FROM vwBuscaSolicitud WHERE hidID = %1").arg(solicitudID))
        .toDouble();
}

} // namespace

class TstFrmRecibo : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void creditoPagadoReciboTrasRecibo();
    void solicitudRehusada_data();
    void solicitudRehusada();
    void numeroDeRecibo_data();
    void numeroDeRecibo();
    void guardarRevisaEnOrden_data();
    void guardarRevisaEnOrden();
    void guardarRehusadoPorLaBase();
    void paraQuienEsElRecibo_data();
    void paraQuienEsElRecibo();
    void botonesSinEfecto_data();
    void botonesSinEfecto();
    void otraPantallaNoEsperaAlRecibo();

private:
    frmRecibo& pantalla() { return r_->pantalla(); }
    void pulsar(const QString& caption) { r_->pulsar(caption); }
    QString db(const QString& consulta) const { return r_->db(consulta); }
    std::unique_ptr<ReciboEnPantalla> r_;
};

void TstFrmRecibo::init() {
    r_ = std::make_unique<ReciboEnPantalla>();
}

void TstFrmRecibo::cleanup() {
    r_.reset();
}

// Application 41, one receipt for each thing it owes: the whole enganche, the whole first payment,
// then one instalment (offered while "Saldo" is above 0, at the figure of "Cuota Mens."). Each
// receipt shows the balances as the view gives them, and once saved the view's balance of what it
// paid falls by the line's value, and so do "Saldo" and the balance of the application's search.
void TstFrmRecibo::creditoPagadoReciboTrasRecibo() {
    struct Pago {
        QString concepto;
        QString valor;   // what the line proposes
        QString columna; // the view's column of that pending amount; none for an instalment
    };
    const QList<Pago> pagos = {
        {QStringLiteral("Enganche"), QStringLiteral("100.00"), QStringLiteral("Enganche")},
        {QStringLiteral("Primer pago"), QStringLiteral("200.00"), QStringLiteral("PrimerPago")},
        {QStringLiteral("Cuota mensual"), QStringLiteral("100.00"), QString()}};
    auto& p = pantalla();
    for (const Pago& pago : pagos) {
        const auto cifra = [this](const QString& columna) {
            return db("SELECT " + columna + " FROM vwSaldosXSolicitud WHERE SolicitudID = 1").toDouble();
        };
        const double pendienteAntes = pago.columna.isEmpty() ? 0 : cifra(pago.columna);
        const double totalAntes = cifra(QStringLiteral("Total"));
        const double busquedaAntes = saldoEnLaBusqueda(*r_, 1);

        r_->nuevoPara(QStringLiteral("41"));
        QCOMPARE(p.txtNombreCliente->text(), QStringLiteral("ANA LUCÍA GONZÁLEZ"));
        QCOMPARE(p.lblCodigo->text(), QStringLiteral("G1"));
        QCOMPARE(p.SolicitudID, 1L);
        QCOMPARE(r_->saldos(), saldosDeLaVista(*r_, 1));
        r_->insertarConcepto(pago.concepto);
        const QString clave =
            db("SELECT ConceptoID FROM Concepto WHERE Descripcion = '" + pago.concepto + "'");
        QCOMPARE(r_->lineas(),
                 QStringList{clave + "|0|1|" + pago.concepto + "|" + pago.valor + "|" + pago.valor});
        QCOMPARE(p.lblTotal->text(), pago.valor);
        r_->efectivo(pago.valor);
        pulsar("Guardar");
        verificarConsulta(pantalla());

        const double valor = pago.valor.toDouble();
        if (!pago.columna.isEmpty()) QCOMPARE(cifra(pago.columna), pendienteAntes - valor);
        QCOMPARE(cifra(QStringLiteral("Total")), totalAntes - valor);
        QCOMPARE(saldoEnLaBusqueda(*r_, 1), busquedaAntes - valor);
        QCOMPARE(db("SELECT printf('%d|%d|%d|%.2f', RD.ConceptoID, RD.ArticuloID, RD.Cantidad, RD.Valor) "
                    "FROM ReciboDetalle RD JOIN Recibo R ON R.ReciboID = RD.ReciboID "
                    "WHERE R.SolicitudID = 1 AND R.NumeroRecibo = " +
                    p.txtNumeroRecibo->text()),
                 clave + "|0|1|" + pago.valor);
    }
    // Enganche and first payment paid off; what remains is the plan less one instalment, and the mora.
    QCOMPARE(saldosDeLaVista(*r_, 1), QStringLiteral("0.00|0.00|900.00|100.00|10.00"));
    QCOMPARE(db("SELECT group_concat(NumeroRecibo, ' ') FROM Recibo WHERE SolicitudID = 1"),
             QStringLiteral("9 10 11"));
}

void TstFrmRecibo::solicitudRehusada_data() {
    QTest::addColumn<QString>("numero");
    QTest::addColumn<bool>("porF2"); // picked in the F2 search, then the field left
    QTest::addColumn<QString>("mensaje");
    QTest::newRow("pendiente") << "40" << false << kNoActiva;
    QTest::newRow("rechazada") << "44" << false << kNoActiva;
    QTest::newRow("pendiente, elegida con F2") << "40" << true << kNoActiva;
    QTest::newRow("número que no existe") << "99" << false << kNoEncontrada;
    QTest::newRow("letras: se busca la solicitud 0") << "abc" << false << kNoEncontrada;
}

// A receipt pays only an approved application. Whatever else the number is, the clerk is told, the
// number goes back to 0, and the lines and balances of the application loaded before are gone.
void TstFrmRecibo::solicitudRehusada() {
    QFETCH(QString, numero);
    QFETCH(bool, porF2);
    QFETCH(QString, mensaje);
    auto& p = pantalla();
    r_->nuevoPara(QStringLiteral("41"));
    r_->insertarConcepto(QStringLiteral("Enganche"));
    QCOMPARE(r_->lineas().size(), 1);

    QString texto;
    if (porF2) {
        elegirEnBusqueda(r_->entorno(), numero);
        p.txtNumeroSolicitud->setFocus();
        QTest::keyClick(p.txtNumeroSolicitud, Qt::Key_F2);
        activar(p);
        QCOMPARE(r_->entorno().titulosModales.last(), QStringLiteral("Busca solicitudes de crédito"));
        QCOMPARE(p.txtNumeroSolicitud->text(), numero);
        QCOMPARE(p.txtNombreCliente->text(), QStringLiteral("PEDRO RAMÍREZ")); // as listed, not yet tested
        responder(r_->entorno(), QStringLiteral("cmdClose"), &texto);
        salirCon(p.txtNumeroSolicitud);
    } else {
        responder(r_->entorno(), QStringLiteral("cmdClose"), &texto);
        escribir(p.txtNumeroSolicitud, numero);
    }
    QCOMPARE(texto, mensaje);
    QCOMPARE(r_->entorno().titulosModales.last(), kTitulo);
    QCOMPARE(p.txtNumeroSolicitud->text(), QStringLiteral("0"));
    QCOMPARE(p.txtNumeroSolicitud->Tag(), QStringLiteral("0"));
    QCOMPARE(p.txtNombreCliente->text(), QString());
    QCOMPARE(p.lblCodigo->text(), QString());
    QCOMPARE(p.SolicitudID, 0L);
    QCOMPARE(r_->lineas(), QStringList{"|||||"});
    QCOMPARE(r_->saldos(), QStringLiteral("||||"));
}

void TstFrmRecibo::numeroDeRecibo_data() {
    QTest::addColumn<bool>("modificar"); // receipt 7 modified; otherwise a new receipt for 41
    QTest::addColumn<QString>("tecleado");
    QTest::addColumn<bool>("repetido");     // the clerk is told the number exists
    QTest::addColumn<QString>("queda");     // the field after leaving it
    QTest::addColumn<QString>("alGuardar"); // what "Guardar" says; "" when it saves
    QTest::addColumn<QString>("numeros");   // the receipts' numbers in the database afterwards
    QTest::newRow("nuevo con el número de otro: queda vacío")
        << false << "8" << true << "" << kSinNumero << "7 8";
    QTest::newRow("nuevo con un número libre") << false << "20" << false << "20"
                                               << ""
                                               << "7 8 20";
    QTest::newRow("modificado con su propio número") << true << "7" << false << "7"
                                                     << ""
                                                     << "7 8";
    QTest::newRow("modificado con el número de otro: vuelve al suyo") << true << "8" << true << "7"
                                                                      << ""
                                                                      << "7 8";
    QTest::newRow("modificado y borrado: se rehúsa al guardar")
        << true << "" << false << "" << kSinNumero << "7 8";
}

// Leaving the number looks it up among the stored receipts; one that exists is told and the field
// goes back to the number the edit began with: the receipt's own while modifying, nothing at all on a
// new receipt, which "Guardar" then refuses.
void TstFrmRecibo::numeroDeRecibo() {
    QFETCH(bool, modificar);
    QFETCH(QString, tecleado);
    QFETCH(bool, repetido);
    QFETCH(QString, queda);
    QFETCH(QString, alGuardar);
    QFETCH(QString, numeros);
    auto& p = pantalla();
    if (modificar) {
        r_->buscarRecibo(QStringLiteral("7"));
        pulsar("Modificar");
    } else {
        pulsar("Agregar");
        QCOMPARE(p.txtNumeroRecibo->text(), QStringLiteral("9")); // the next after the highest
    }
    QCOMPARE(QApplication::focusWidget(), p.txtNumeroRecibo);
    QString texto;
    if (repetido) responder(r_->entorno(), QStringLiteral("cmdClose"), &texto);
    escribir(p.txtNumeroRecibo, tecleado);
    QCOMPARE(texto, repetido ? kYaExiste : QString());
    QCOMPARE(p.txtNumeroRecibo->text(), queda);

    if (!modificar) {
        escribir(p.txtNumeroSolicitud, QStringLiteral("41"));
        r_->insertarConcepto(QStringLiteral("Enganche"));
    }
    r_->efectivo(p.lblTotal->text());
    QString dicho;
    if (!alGuardar.isEmpty()) responder(r_->entorno(), QStringLiteral("cmdClose"), &dicho);
    pulsar("Guardar");
    QCOMPARE(dicho, alGuardar);
    if (alGuardar.isEmpty())
        verificarConsulta(pantalla());
    else
        verificarEdicion(pantalla());
    QCOMPARE(db("SELECT group_concat(NumeroRecibo, ' ') FROM (SELECT NumeroRecibo FROM Recibo ORDER BY 1)"),
             numeros);
}

void TstFrmRecibo::guardarRevisaEnOrden_data() {
    // What the receipt has when "Guardar" is pressed; each row fails its check and those after it.
    QTest::addColumn<bool>("numero");
    QTest::addColumn<bool>("solicitud");
    QTest::addColumn<bool>("linea");
    QTest::addColumn<QString>("cheque"); // a cheque number typed with no cheque amount
    QTest::addColumn<QString>("mensaje");
    QTest::newRow("1. sin número") << false << false << false << "CH-1" << kSinNumero;
    QTest::newRow("2. sin nadie a quien emitirlo") << true << false << false << "CH-1" << kSinNombre;
    QTest::newRow("3. sin líneas") << true << true << false << "CH-1" << kSinLineas;
    QTest::newRow("4. operación bancaria incompleta")
        << true << true << true << "CH-1" << kOperacionIncompleta;
    QTest::newRow("5. recibido menor que el total") << true << true << true << "" << kRecibidoMenor;
}

// "Guardar" tells the first thing missing, titled as the screen, and the receipt stays as it was:
// still editing, its transaction open, nothing stored.
void TstFrmRecibo::guardarRevisaEnOrden() {
    QFETCH(bool, numero);
    QFETCH(bool, solicitud);
    QFETCH(bool, linea);
    QFETCH(QString, cheque);
    QFETCH(QString, mensaje);
    auto& p = pantalla();
    pulsar("Agregar");
    if (!numero) escribir(p.txtNumeroRecibo, QString());
    if (solicitud) escribir(p.txtNumeroSolicitud, QStringLiteral("41"));
    if (linea) r_->insertarConcepto(QStringLiteral("Enganche"));
    if (!cheque.isEmpty()) escribir(p.panBanco->txtNoCheque, cheque);
    QString texto;
    responder(r_->entorno(), QStringLiteral("cmdClose"), &texto);
    pulsar("Guardar");
    QCOMPARE(texto, mensaje);
    QCOMPARE(r_->entorno().modalesMostradas.last(), QStringLiteral("frmMensaje"));
    QCOMPARE(r_->entorno().titulosModales.last(), kTitulo);
    verificarEdicion(pantalla());
    QCOMPARE(p.lblEstado->text(), QStringLiteral("Agregar nuevo registro"));
    QCOMPARE(db("SELECT count(*) FROM Recibo"), QStringLiteral("2"));
}

// The database refuses a line as "Guardar" writes it (here a rule of its own on the value): the clerk
// reads its text, the screen keeps editing, and the transaction stays open with the receipt's row
// written in it and nothing committed. The line corrected, "Guardar" again stores the receipt once,
// with the corrected line alone.
void TstFrmRecibo::guardarRehusadoPorLaBase() {
    r_->base().sqlite("CREATE TRIGGER trgTopeDeCaja BEFORE INSERT ON ReciboDetalle WHEN NEW.Valor > 150 "
                      "BEGIN SELECT RAISE(ABORT, 'El valor excede el tope de la caja.'); END;");
    r_->nuevoPara(QStringLiteral("41"));
    r_->insertarConcepto(QStringLiteral("Primer pago"));
    r_->efectivo(QStringLiteral("200"));
    QString texto;
    responder(r_->entorno(), QStringLiteral("cmdClose"), &texto);
    pulsar("Guardar");
    QVERIFY2(texto.contains(QLatin1String("El valor excede el tope de la caja.")), qPrintable(texto));
    QCOMPARE(r_->entorno().titulosModales.last(), kTitulo);
    verificarEdicion(pantalla());
    QCOMPARE(db("SELECT count(*) FROM Recibo"), QStringLiteral("2"));
    QCOMPARE(ReciboEnPantalla::enLaConexion(QStringLiteral("Select Count(*) From Recibo")),
             QStringLiteral("3"));

    r_->responderLinea(QStringLiteral("150"));
    r_->dobleClic(1);
    QCOMPARE(r_->lineas(), QStringList{"2|0|1|Primer pago|150.00|150.00"});
    pulsar("Guardar");
    verificarConsulta(pantalla());
    QCOMPARE(db("SELECT count(*) FROM Recibo"), QStringLiteral("3"));
    QCOMPARE(db("SELECT group_concat(printf('%d|%.2f', RD.ConceptoID, RD.Valor), ' ') FROM ReciboDetalle RD "
                "JOIN Recibo R ON R.ReciboID = RD.ReciboID WHERE R.NumeroRecibo = 9"),
             QStringLiteral("2|150.00"));
    QCOMPARE(db("SELECT printf('%.2f', PrimerPago) FROM vwSaldosXSolicitud WHERE SolicitudID = 1"),
             QStringLiteral("50.00"));
}

void TstFrmRecibo::paraQuienEsElRecibo_data() {
    // The clerk's gestures: "dobleClic" on the name, "escribir:<text>" in it, "cliente:<cell>" picked
    // with "Cliente >" (nothing after the colon: the search closed with no pick).
    QTest::addColumn<QStringList>("gestos");
    QTest::addColumn<QString>("nombre"); // on the screen
    QTest::addColumn<QString>("codigo");
    QTest::addColumn<bool>("abierto");     // the name field pale yellow and open for typing
    QTest::addColumn<QString>("guardado"); // SolicitudID|ClienteID|Nombre of the stored receipt
    QTest::newRow("Cliente >") << QStringList{"cliente:RAMÍREZ"} << "PEDRO RAMÍREZ"
                               << "R1" << false << "0|2|";
    QTest::newRow("nombre abierto, luego Cliente >: cerrado otra vez")
        << QStringList{"dobleClic", "cliente:RAMÍREZ"} << "PEDRO RAMÍREZ"
        << "R1" << false << "0|2|";
    QTest::newRow("Cliente > sin elegir: queda el nombre, como nombre escrito")
        << QStringList{"cliente:"} << "ANA LUCÍA GONZÁLEZ"
        << "G1" << false << "0|0|ANA LUCÍA GONZÁLEZ";
    QTest::newRow("nombre escrito, en mayúsculas")
        << QStringList{"dobleClic", "escribir:juan pérez"} << "JUAN PÉREZ"
        << "" << true << "0|0|JUAN PÉREZ";
}

// A receipt for application 41 with its line turns into a receipt for a client or for a name typed
// by hand: the application and its lines go, and the receipt is stored for whom the screen shows.
void TstFrmRecibo::paraQuienEsElRecibo() {
    QFETCH(QStringList, gestos);
    QFETCH(QString, nombre);
    QFETCH(QString, codigo);
    QFETCH(bool, abierto);
    QFETCH(QString, guardado);
    auto& p = pantalla();
    r_->nuevoPara(QStringLiteral("41"));
    r_->insertarConcepto(QStringLiteral("Enganche"));
    const QColor colorDelCampo = p.txtNombreCliente->BackColor();
    QVERIFY(p.txtNombreCliente->Locked());
    for (const QString& gesto : gestos) {
        const QString dato = gesto.section(u':', 1);
        if (gesto == QLatin1String("dobleClic")) {
            QTest::mouseDClick(p.txtNombreCliente, Qt::LeftButton);
            QCOMPARE(p.txtNombreCliente->text(), QString());
        } else if (gesto.startsWith(QLatin1String("escribir:"))) {
            escribir(p.txtNombreCliente, dato);
        } else {
            elegirEnBusqueda(r_->entorno(), dato);
            QTest::mouseClick(p.cmdCliente, Qt::LeftButton);
            activar(p);
            QCOMPARE(r_->entorno().titulosModales.last(), QStringLiteral("Busca clientes"));
        }
    }
    QCOMPARE(p.txtNombreCliente->text(), nombre);
    QCOMPARE(p.lblCodigo->text(), codigo);
    QCOMPARE(p.txtNombreCliente->Locked(), !abierto);
    QCOMPARE(p.txtNombreCliente->BackColor(), abierto ? QColor(255, 255, 192) : colorDelCampo);
    QCOMPARE(p.txtNumeroSolicitud->text(), QStringLiteral("0"));
    QCOMPARE(p.SolicitudID, 0L);
    QCOMPARE(r_->lineas(), QStringList{"|||||"});
    QCOMPARE(r_->saldos(), QStringLiteral("||||"));

    r_->insertarConcepto(QStringLiteral("Flete"), QStringLiteral("30"));
    r_->efectivo(QStringLiteral("30"));
    pulsar("Guardar");
    verificarConsulta(pantalla());
    QCOMPARE(db("SELECT SolicitudID || '|' || ClienteID || '|' || ifnull(Nombre, '') FROM Recibo "
                "WHERE NumeroRecibo = 9"),
             guardado);
}

void TstFrmRecibo::botonesSinEfecto_data() {
    QTest::addColumn<QString>("boton");
    QTest::newRow("Eliminar") << "Eliminar";
    QTest::newRow("Imprimir") << "Imprimir";
}

// A receipt can be neither deleted nor printed: the button shows nothing and changes nothing.
void TstFrmRecibo::botonesSinEfecto() {
    QFETCH(QString, boton);
    auto& p = pantalla();
    r_->buscarRecibo(QStringLiteral("7"));
    const QStringList lineas = r_->lineas();
    QCOMPARE(lineas, QStringList{"7|0|1|Flete|25.00|25.00"});
    const QStringList modales = r_->entorno().modalesMostradas;
    pulsar(boton);
    QCOMPARE(r_->entorno().modalesMostradas, modales);
    QCOMPARE(r_->lineas(), lineas);
    QCOMPARE(p.txtNumeroRecibo->text(), QStringLiteral("7"));
    verificarConsulta(pantalla());
    QCOMPARE(db("SELECT count(*) || '/' || (SELECT count(*) FROM ReciboDetalle) FROM Recibo"),
             QStringLiteral("2/2"));
}

// The receipt's mora is written and its transaction holds the database. The bank screen, opened
// from the main window meanwhile, has its own connection and no handler of its own: its save is
// refused at once, without waiting for a lock that only the clerk can release, and ends the program
// with a text that names the other screen. The receipt's write is untouched and it still saves.
void TstFrmRecibo::otraPantallaNoEsperaAlRecibo() {
    auto& p = pantalla();
    auto& entorno = r_->entorno();
    r_->nuevoPara(QStringLiteral("41"));
    r_->elegirConcepto(QStringLiteral("Mora"));
    responderTexto(entorno, QStringLiteral("50"));
    responder(entorno, QStringLiteral("Aceptar"));
    r_->tecla(Qt::Key_Insert);
    QCOMPARE(r_->lineas(), QStringList{"4|0|1|Mora|60.00|60.00"});
    QVERIFY(Common::DE().CN.escribiendo());

    auto& bancos = r_->programa().abrir<catalogos::frmBanco>(QStringLiteral("Bancos"));
    activar(bancos);
    pulsarBoton(bancos.cmdBoton, QStringLiteral("Agregar"));
    teclear(bancos.txtNombre, QStringLiteral("Banco G&T"));
    entorno.esperaFallos();
    QElapsedTimer reloj;
    reloj.start();
    pulsarBoton(bancos.cmdBoton, QStringLiteral("Guardar"));
    const qint64 ms = reloj.elapsed();
    QVERIFY2(ms < 1000, qPrintable(QStringLiteral("the refusal took %1 ms").arg(ms)));
    QCOMPARE(entorno.fallos.size(), 1);
    QCOMPARE(entorno.fallos[0].numero(), store::FalloBaseOcupada);
    QVERIFY2(entorno.fallos[0].descripcion().contains(QLatin1String("otra pantalla")),
             qPrintable(entorno.fallos[0].descripcion()));
    QCOMPARE(db("SELECT count(*) FROM Banco"), QStringLiteral("2"));

    activar(p);
    r_->efectivo(QStringLiteral("60"));
    pulsar("Guardar");
    verificarConsulta(pantalla());
    QCOMPARE(entorno.fallos.size(), 1);
    QCOMPARE(db("SELECT printf('%.2f', Mora) FROM Solicitud WHERE SolicitudID = 1"), QStringLiteral("60.00"));
    QCOMPARE(db("SELECT count(*) FROM Recibo WHERE SolicitudID = 1"), QStringLiteral("1"));
}

QTEST_MAIN(TstFrmRecibo)
#include "tst_frmRecibo.moc"
