// How a receipt is paid, on its tender panel: cash, a cheque of a bank or both, "Total recibido:" and
// "Vuelto:" worked out as the fields are left, the three refusals at "Guardar", what the row stores,
// the bank a found receipt shows, and the "Total recibido:" a new receipt inherits.
#include "ModosDeRegistro.h"
#include "ReciboEnPantalla.h"

#include <QtTest>

using caja::frmRecibo;

namespace {

const QString kChequeIncompleto =
    QStringLiteral("Al indicar un valor de cheque tambien debe indicar el numero de "
                   "cheque y el banco al que pertenece.");
const QString kOperacionIncompleta = QStringLiteral(
    "Ha indicado una operación bancaria pero no esta completa. Por favor revise sus datos y trate de nuevo.");
const QString kRecibidoMenor = QStringLiteral("El monto total recibido es menor que el total del recibo.");

// What a stored receipt says of its tender.
const QString kPagoGuardado =
    QStringLiteral("SELECT BancoID || '|' || ifnull(ChequeNumero, '') || '|' || printf('%.2f|%.2f|%.2f', "
                   "ChequeValor, Efectivo, Vuelto) FROM Recibo WHERE NumeroRecibo = ");

} // namespace

class TstFrmReciboPago : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void pago_data();
    void pago();
    void totalRecibidoDelReciboAnterior();
    void bancoDelReciboBuscado_data();
    void bancoDelReciboBuscado();

private:
    frmRecibo& pantalla() { return r_->pantalla(); }
    void pulsar(const QString& caption) { r_->pulsar(caption); }
    QString db(const QString& consulta) const { return r_->db(consulta); }
    // The bank chosen in the list by typing its name, as the clerk does.
    void elegirBanco(const QString& nombre);
    std::unique_ptr<ReciboEnPantalla> r_;
};

void TstFrmReciboPago::init() {
    r_ = std::make_unique<ReciboEnPantalla>();
}

void TstFrmReciboPago::cleanup() {
    r_.reset();
}

void TstFrmReciboPago::elegirBanco(const QString& nombre) {
    auto* bancos = pantalla().panBanco->dacBancos;
    bancos->setFocus();
    QTest::keyClicks(bancos, nombre);
    QCOMPARE(bancos->Text(), nombre);
}

void TstFrmReciboPago::pago_data() {
    QTest::addColumn<QString>("efectivo");
    QTest::addColumn<QString>("banco");
    QTest::addColumn<QString>("numero");
    QTest::addColumn<QString>("cheque");
    QTest::addColumn<QString>("recibido"); // "Total recibido:"
    QTest::addColumn<QString>("vuelto");   // "Vuelto:"
    QTest::addColumn<QString>("mensaje");  // the refusal at "Guardar"; "" when it saves
    QTest::addColumn<QString>("guardado"); // BancoID|ChequeNumero|ChequeValor|Efectivo|Vuelto
    QTest::newRow("efectivo con vuelto, sin banco: 0") << "100"
                                                       << ""
                                                       << ""
                                                       << ""
                                                       << "100.00"
                                                       << "19.50"
                                                       << ""
                                                       << "0||0.00|100.00|19.50";
    QTest::newRow("efectivo justo") << "80.50"
                                    << ""
                                    << ""
                                    << ""
                                    << "80.50"
                                    << "0.00"
                                    << ""
                                    << "0||0.00|80.50|0.00";
    QTest::newRow("cheque completo") << ""
                                     << "Banrural"
                                     << "CH-77"
                                     << "80.50"
                                     << "80.50"
                                     << "0.00"
                                     << ""
                                     << "1|CH-77|80.50|0.00|0.00";
    QTest::newRow("cheque y efectivo") << "20"
                                       << "Banco Industrial"
                                       << "CH-5"
                                       << "70"
                                       << "90.00"
                                       << "9.50"
                                       << ""
                                       << "2|CH-5|70.00|20.00|9.50";
    QTest::newRow("cheque sin número") << ""
                                       << "Banrural"
                                       << ""
                                       << "100"
                                       << "100.00"
                                       << "19.50" << kChequeIncompleto << "";
    QTest::newRow("cheque sin banco") << ""
                                      << ""
                                      << "CH-77"
                                      << "100"
                                      << "100.00"
                                      << "19.50" << kChequeIncompleto << "";
    QTest::newRow("número sin cheque") << "100"
                                       << ""
                                       << "CH-77"
                                       << ""
                                       << "100.00"
                                       << "19.50" << kOperacionIncompleta << "";
    QTest::newRow("banco sin cheque") << "100"
                                      << "Banrural"
                                      << ""
                                      << ""
                                      << "100.00"
                                      << "19.50" << kOperacionIncompleta << "";
    QTest::newRow("recibido menor que el total") << "50"
                                                 << ""
                                                 << ""
                                                 << ""
                                                 << "50.00"
                                                 << "-30.50" << kRecibidoMenor << "";
}

// A receipt of 80.50 paid in the ways the clerk may try. Leaving a figure works out what was received
// and the change; "Guardar" refuses a cheque without its number and bank, a number or a bank without
// a cheque, and a tender short of the total, titled "Recibos" and still editing; otherwise the row
// stores the tender, with bank 0 when none is chosen.
void TstFrmReciboPago::pago() {
    QFETCH(QString, efectivo);
    QFETCH(QString, banco);
    QFETCH(QString, numero);
    QFETCH(QString, cheque);
    QFETCH(QString, recibido);
    QFETCH(QString, vuelto);
    QFETCH(QString, mensaje);
    QFETCH(QString, guardado);
    auto& p = pantalla();
    auto* pago = p.panBanco;
    r_->nuevoPara(QStringLiteral("41"));
    r_->insertarConcepto(QStringLiteral("Gastos administrativos"), QStringLiteral("80.50"));
    QCOMPARE(p.lblTotal->text(), QStringLiteral("80.50"));
    if (!efectivo.isEmpty()) r_->efectivo(efectivo);
    if (!banco.isEmpty()) elegirBanco(banco);
    if (!numero.isEmpty()) escribir(pago->txtNoCheque, numero);
    if (!cheque.isEmpty()) escribir(pago->txtChequeValor, cheque);
    QCOMPARE(pago->lblTotalRecibido->text(), recibido);
    QCOMPARE(pago->lblVuelto->text(), vuelto);

    QString texto;
    if (!mensaje.isEmpty()) responder(r_->entorno(), QStringLiteral("cmdClose"), &texto);
    pulsar("Guardar");
    QCOMPARE(texto, mensaje);
    if (!mensaje.isEmpty()) {
        QCOMPARE(r_->entorno().titulosModales.last(), kTitulo);
        verificarEdicion(p);
        QCOMPARE(db("SELECT count(*) FROM Recibo"), QStringLiteral("2"));
    } else {
        verificarConsulta(p);
        QCOMPARE(db(kPagoGuardado + "9"), guardado);
    }
}

// "Total recibido:" keeps the last sum worked out. After a receipt paid with 100.00 in cash, "Agregar"
// brings "Total a pagar:" back to 0.00, and with it the change, but not "Total recibido:": a new
// receipt of 100.00 whose tender is never touched passes the test of the tender on that old figure
// and is stored with no cash, its change the whole total short.
void TstFrmReciboPago::totalRecibidoDelReciboAnterior() {
    auto& p = pantalla();
    r_->nuevoPara(QStringLiteral("41"));
    r_->insertarConcepto(QStringLiteral("Cuota mensual"));
    r_->efectivo(QStringLiteral("100"));
    pulsar("Guardar");
    QCOMPARE(db(kPagoGuardado + "9"), QStringLiteral("0||0.00|100.00|0.00"));

    pulsar("Agregar");
    QCOMPARE(p.lblTotal->text(), QStringLiteral("0.00"));
    QCOMPARE(p.panBanco->lblVuelto->text(), QStringLiteral("0.00")); // the total changed: worked out again
    QCOMPARE(p.panBanco->lblTotalRecibido->text(), QStringLiteral("100.00"));
    escribir(p.txtNumeroSolicitud, QStringLiteral("41"));
    r_->insertarConcepto(QStringLiteral("Cuota mensual"));
    QCOMPARE(p.lblTotal->text(), QStringLiteral("100.00"));
    pulsar("Guardar");
    verificarConsulta(p);
    QCOMPARE(db(kPagoGuardado + "10"), QStringLiteral("0||0.00|0.00|-100.00"));
}

void TstFrmReciboPago::bancoDelReciboBuscado_data() {
    QTest::addColumn<QString>("antes"); // a receipt found before it; "" none
    QTest::addColumn<QString>("recibo");
    QTest::addColumn<QString>("banco"); // what the list shows
    QTest::newRow("con banco") << ""
                               << "8"
                               << "Banrural";
    QTest::newRow("banco 0: ninguno") << ""
                                      << "7"
                                      << "";
    QTest::newRow("banco 0 tras uno con banco: ninguno") << "8"
                                                         << "7"
                                                         << "";
    QTest::newRow("banco nulo: ninguno") << "8"
                                         << "9"
                                         << "";
}

// A found receipt shows its bank; BancoID 0, or none at all, finds no bank in the list, which then
// shows none and reports no bank chosen.
void TstFrmReciboPago::bancoDelReciboBuscado() {
    QFETCH(QString, antes);
    QFETCH(QString, recibo);
    QFETCH(QString, banco);
    r_->base().sqlite("INSERT INTO Recibo (ReciboID, NumeroRecibo, Fecha, Nombre, BancoID, Efectivo) VALUES "
                      "(3, 9, '2026-03-05', 'ROSA PÉREZ', NULL, 10);");
    auto* bancos = pantalla().panBanco->dacBancos;
    if (!antes.isEmpty()) r_->buscarRecibo(antes);
    r_->buscarRecibo(recibo);
    QCOMPARE(pantalla().txtNumeroRecibo->text(), recibo);
    QCOMPARE(bancos->Text(), banco);
    QCOMPARE(bancos->BoundText().isEmpty(), banco.isEmpty());
}

QTEST_MAIN(TstFrmReciboPago)
#include "tst_frmRecibo_pago.moc"
