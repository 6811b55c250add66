// The delivery note, opened from "Envíos" as the clerk opens it: a note made against an application,
// an invoice and a receipt, which leaves the document with nothing pending and the articles with less
// stock, through the views alone, and is shown again from the search; a stock shortage on a line in
// the middle of the note; the "Modificar" that ends the program; what "Guardar" checks; the document's
// number looked up, found or not, with or without a kind chosen.
#include "EnvioEnPantalla.h"

#include <QtTest>

using mercaderia::frmNotaEnvio;

namespace {

const QString kSinNumero = QStringLiteral("Debe indicar el numero de la nota de envío.");
const QString kSinDireccion = QStringLiteral("Debe indicar la dirección de entrega de la mercadería.");

// Per kind of document: the view of its pending articles, the column that names it there, and the
// origin column of the note.
const char* const kVistaPendiente[] = {"vwSaldoXArticuloXSolicitud", "vwSaldoXArticuloXFactura",
                                       "vwSaldoXArticuloXRecibo"};
const char* const kFiltro[] = {"hidSolicitudID", "hidFacturaID", "hidReciboID"};
const char* const kListaF2[] = {"vwSaldosArticulosXSolicitud", "vwSaldosArticulosXFactura",
                                "vwSaldosArticulosXRecibo"};
const char* const kOrigen[] = {"SolicitudID", "FacturaID", "ReciboID"};

} // namespace

class TstFrmNotaEnvio : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { e_ = std::make_unique<EnvioEnPantalla>(); }
    void cleanup() { e_.reset(); }
    void entregaDeUnDocumento_data();
    void entregaDeUnDocumento();
    void faltaExistenciaEnLaSegundaLinea_data();
    void faltaExistenciaEnLaSegundaLinea();
    void modificarTerminaElPrograma_data();
    void modificarTerminaElPrograma();
    void guardarRevisaEnOrden_data();
    void guardarRevisaEnOrden();
    void numeroDelDocumento_data();
    void numeroDelDocumento();

private:
    frmNotaEnvio& pantalla() { return e_->pantalla(); }
    QString db(const QString& consulta) const { return e_->db(consulta); }
    // The stock of an article, as the article search gives it.
    QString existencia(const QString& articulo) const {
        return db(QStringLiteral("SELECT shw1000_dbl_Existencia FROM vwBuscaArticulo WHERE hidID = ") +
                  articulo);
    }
    void verificarEdicion();
    std::unique_ptr<EnvioEnPantalla> e_;
};

// Still adding, with the note's transaction open and nothing of it seen by another workstation,
// after the one message told.
void TstFrmNotaEnvio::verificarEdicion() {
    auto& p = pantalla();
    QCOMPARE(e_->entorno().titulosModales.value(0), kTituloEnvio);
    QCOMPARE(e_->entorno().modalesMostradas.size(), 1);
    QVERIFY(p.enEdicion());
    QCOMPARE(p.lblEstado->text(), QStringLiteral("Agregar nuevo registro"));
    QVERIFY(Common::TransaccionActiva > 0);
    QCOMPARE(db(QStringLiteral("SELECT count(*) FROM NotaEnvio")), QStringLiteral("1"));
}

void TstFrmNotaEnvio::entregaDeUnDocumento_data() {
    QTest::addColumn<int>("tipo");
    QTest::addColumn<QString>("numero");
    QTest::addColumn<QString>("cliente");
    QTest::addColumn<QString>("direccionPropuesta"); // what leaving the number leaves in "Dirección:"
    QTest::newRow("solicitud") << 0 << "41"
                               << "ANA LUCÍA GONZÁLEZ"
                               << "5A CALLE 3-20 ZONA 1";
    QTest::newRow("factura") << 1 << "15"
                             << "PEDRO RAMÍREZ"
                             << "";
    QTest::newRow("recibo") << 2 << "8"
                            << "JUAN PÉREZ"
                            << "";
}

// F2 lists the document; after the pick the grid waits for the number to be left; then every pending
// article with all its pending quantity. Saved, the note leaves the document with nothing pending, off
// the F2 list and still found by its number, and the stock of each article lower by what it delivered.
// Found again, the note shows its kind, number, customer and lines.
void TstFrmNotaEnvio::entregaDeUnDocumento() {
    QFETCH(int, tipo);
    QFETCH(QString, numero);
    QFETCH(QString, cliente);
    QFETCH(QString, direccionPropuesta);
    auto& p = pantalla();
    const QString clave = db(QStringLiteral("SELECT hid%1 FROM %2 WHERE shw1200_int_%3 = %4")
                                 .arg(tipo == 0 ? "ID" : kOrigen[tipo], kListaF2[tipo],
                                      tipo == 0   ? "Solicitud"
                                      : tipo == 1 ? "Factura"
                                                  : "Recibo",
                                      numero));
    const QString pendientes =
        QStringLiteral("SELECT group_concat(hidArticuloID || '|' || shw3000_str_Descripcion "
                       "|| '|' || shw1200_int_Saldo, ',') FROM %1 WHERE %2 = %3 AND "
                       "shw1200_int_Saldo > 0")
            .arg(kVistaPendiente[tipo], kFiltro[tipo], clave);
    const QStringList esperadas = db(pendientes).split(QLatin1Char(','));
    QVERIFY(!esperadas.isEmpty());
    QMap<QString, QString> antes;
    for (const QString& l : esperadas)
        antes[l.section(QLatin1Char('|'), 0, 0)] = existencia(l.section(QLatin1Char('|'), 0, 0));

    e_->pulsar(QStringLiteral("Agregar"));
    QCOMPARE(p.txtNumeroNota->Text(), QStringLiteral("4"));
    QTest::mouseClick((*p.optTipo)(tipo), Qt::LeftButton);
    QVERIFY(e_->f2(numero).contains(numero));
    QCOMPARE(p.txtNumeroDocumento->Text(), numero);
    QCOMPARE(p.txtNombreCliente->Text(), cliente);
    QCOMPARE(e_->lineas(), QStringList{QStringLiteral("||")});
    salirCon(p.txtNumeroDocumento);
    QCOMPARE(e_->lineas(), esperadas);
    int total = 0;
    for (const QString& l : esperadas)
        total += l.section(QLatin1Char('|'), 2).toInt();
    QCOMPARE(p.lblSaldo->text(), QString::number(total));
    QCOMPARE(p.txtDireccion->Text(), direccionPropuesta);
    if (direccionPropuesta.isEmpty()) escribir(p.txtDireccion, QStringLiteral("BARRIO EL CENTRO"));
    escribir(p.txtObservaciones, QStringLiteral("ENTREGAR POR LA TARDE"));
    e_->pulsar(QStringLiteral("Guardar"));

    QVERIFY(!p.enEdicion());
    QCOMPARE(Common::TransaccionActiva, 0L);
    QCOMPARE(
        db(QStringLiteral("SELECT NumeroNota || '|' || Fecha || '|' || SolicitudID || '|' || FacturaID || "
                          "'|' || ReciboID FROM NotaEnvio WHERE NotaID = 2")),
        QStringLiteral("4|2026-03-10|%1|%2|%3")
            .arg(tipo == 0 ? clave : "0", tipo == 1 ? clave : "0", tipo == 2 ? clave : "0"));
    QCOMPARE(db(QStringLiteral("SELECT shw1200_dbl_Saldo FROM %1 WHERE %2 = %3")
                    .arg(kListaF2[tipo], tipo == 0 ? "hidID" : kFiltro[tipo], clave))
                 .toDouble(),
             0.0);
    QVERIFY(db(pendientes).isEmpty());
    for (const QString& l : esperadas) {
        const QString articulo = l.section(QLatin1Char('|'), 0, 0);
        QCOMPARE(existencia(articulo).toDouble(),
                 antes[articulo].toDouble() - l.section(QLatin1Char('|'), 2).toDouble());
    }
    e_->pulsar(QStringLiteral("Agregar"));
    QTest::mouseClick((*p.optTipo)(tipo), Qt::LeftButton);
    QVERIFY(!e_->f2().contains(numero));
    e_->pulsar(QStringLiteral("Cancelar"));

    e_->buscarNota(QStringLiteral("4"));
    QCOMPARE(p.optTipo->Valor(), tipo);
    QCOMPARE(p.txtNumeroDocumento->Text(), numero);
    QCOMPARE(p.txtNombreCliente->Text(), cliente);
    QCOMPARE(p.dpFecha->Value(), kHoyEnvio);
    QCOMPARE(p.txtObservaciones->Text(), QStringLiteral("ENTREGAR POR LA TARDE"));
    QCOMPARE(e_->lineas(), esperadas);
    QCOMPARE(p.lblSaldo->text(), QString::number(total));
}

void TstFrmNotaEnvio::faltaExistenciaEnLaSegundaLinea_data() {
    QTest::addColumn<QString>("despues"); // the bar's button pressed after the message
    QTest::newRow("Cancelar deshace la primera línea") << "Cancelar";
    QTest::newRow("un segundo Guardar la reescribe") << "Guardar";
}

// Application 45 sells 1 refrigerator, 3 stoves (1 in stock) and 1 TV: the stove's line is told and
// stops the save with the refrigerator's line already in the open transaction. A second "Guardar"
// writes the note again from the start and stops at the same line; "Cancelar" undoes all of it.
void TstFrmNotaEnvio::faltaExistenciaEnLaSegundaLinea() {
    QFETCH(QString, despues);
    auto& p = pantalla();
    e_->nuevaPara(0, QStringLiteral("45"));
    QCOMPARE(e_->lineas().size(), 3);
    QCOMPARE(e_->lineas().value(1), QStringLiteral("2|ESTUFA E4 GRIS|3"));
    QString texto;
    responder(e_->entorno(), QStringLiteral("cmdClose"), &texto);
    e_->pulsar(QStringLiteral("Guardar"));
    QCOMPARE(texto, QStringLiteral("El articulo ESTUFA E4 GRIS tiene 1 unidades en existencia."));
    verificarEdicion();
    // On the shared connection: the note (key 2) and the refrigerator's line, the stoves' not.
    const QString lineasDeLaNota =
        QStringLiteral("SELECT Count(*) & 'x' & Sum(ArticuloID) FROM NotaEnvioDetalle WHERE NotaID = 2");
    QCOMPARE(EnvioEnPantalla::enLaConexion(lineasDeLaNota), QStringLiteral("1x1"));

    if (despues == QLatin1String("Guardar")) responder(e_->entorno(), QStringLiteral("cmdClose"));
    e_->pulsar(despues);
    if (despues == QLatin1String("Guardar")) {
        QCOMPARE(EnvioEnPantalla::enLaConexion(lineasDeLaNota), QStringLiteral("1x1"));
        QCOMPARE(EnvioEnPantalla::enLaConexion(QStringLiteral("SELECT count(*) FROM NotaEnvio")),
                 QStringLiteral("2"));
        QVERIFY(p.enEdicion());
        e_->pulsar(QStringLiteral("Cancelar"));
    }
    QVERIFY(!p.enEdicion());
    QCOMPARE(Common::TransaccionActiva, 0L);
    QCOMPARE(EnvioEnPantalla::enLaConexion(QStringLiteral("SELECT count(*) FROM NotaEnvio")),
             QStringLiteral("1"));
    QCOMPARE(EnvioEnPantalla::enLaConexion(QStringLiteral("SELECT count(*) FROM NotaEnvioDetalle")),
             QStringLiteral("1"));
    QCOMPARE(e_->lineas().size(), 3); // the grid keeps what it showed
}

void TstFrmNotaEnvio::modificarTerminaElPrograma_data() {
    QTest::addColumn<QString>("nota"); // the note shown first, none when empty
    QTest::newRow("con una nota a la vista") << "3";
    QTest::newRow("sin nota") << "";
}

// A saved note can't be changed: "Modificar" opens the edit and its transaction, then fails with
// nothing to catch it, which ends the program. Nothing committed has changed.
void TstFrmNotaEnvio::modificarTerminaElPrograma() {
    QFETCH(QString, nota);
    auto& p = pantalla();
    if (!nota.isEmpty()) e_->buscarNota(nota);
    const QString antes =
        db(QStringLiteral("SELECT group_concat(NotaID || NumeroNota || Direccion) FROM NotaEnvio"));
    e_->entorno().esperaFallos();
    e_->pulsar(QStringLiteral("Modificar"));
    QCOMPARE(e_->entorno().fallos.size(), 1);
    QCOMPARE(e_->entorno().fallos[0].descripcion(), QStringLiteral("Se requiere un objeto"));
    QCOMPARE(p.lblEstado->text(), QStringLiteral("Modificar registro actual"));
    QVERIFY(Common::TransaccionActiva > 0);
    QCOMPARE(p.txtNumeroNota->Tag(), nota);
    QCOMPARE(db(QStringLiteral("SELECT group_concat(NotaID || NumeroNota || Direccion) FROM NotaEnvio")),
             antes);
    QCOMPARE(db(QStringLiteral("SELECT count(*) FROM NotaEnvioDetalle")), QStringLiteral("1"));
}

void TstFrmNotaEnvio::guardarRevisaEnOrden_data() {
    QTest::addColumn<int>("tipo");
    QTest::addColumn<QString>("documento");
    QTest::addColumn<QString>("numeroNota"); // typed over the proposed number; "-" leaves it
    QTest::addColumn<QString>("direccion");  // typed; "-" leaves what the document gave
    QTest::addColumn<QString>("mensaje");
    QTest::newRow("sin número, solicitud") << 0 << "41"
                                           << ""
                                           << "-" << kSinNumero;
    QTest::newRow("número 0, factura") << 1 << "15"
                                       << "0"
                                       << "CENTRO" << kSinNumero;
    QTest::newRow("factura sin dirección") << 1 << "15"
                                           << "-"
                                           << "-" << kSinDireccion;
    QTest::newRow("dirección en blanco") << 0 << "41"
                                         << "-"
                                         << "   " << kSinDireccion;
    // A document with nothing pending: the blank row's empty cell can't be a key.
    QTest::newRow("sin artículos") << 2 << "9"
                                   << "-"
                                   << "ZONA 10"
                                   << "No coinciden los tipos";
}

// One message, the first that applies, and the edit kept with its transaction: the document's number
// is never tested, and the check of the application's number reads the note's number again.
void TstFrmNotaEnvio::guardarRevisaEnOrden() {
    QFETCH(int, tipo);
    QFETCH(QString, documento);
    QFETCH(QString, numeroNota);
    QFETCH(QString, direccion);
    QFETCH(QString, mensaje);
    auto& p = pantalla();
    e_->nuevaPara(tipo, documento);
    if (numeroNota != QLatin1String("-")) escribir(p.txtNumeroNota, numeroNota);
    if (direccion != QLatin1String("-")) escribir(p.txtDireccion, direccion);
    QString texto;
    responder(e_->entorno(), QStringLiteral("cmdClose"), &texto);
    e_->pulsar(QStringLiteral("Guardar"));
    QCOMPARE(texto, mensaje);
    verificarEdicion();
}

void TstFrmNotaEnvio::numeroDelDocumento_data() {
    QTest::addColumn<int>("tipo"); // -1: no option clicked
    QTest::addColumn<QString>("numero");
    QTest::addColumn<QString>("mensaje");
    QTest::addColumn<QString>("cliente");
    QTest::newRow("sin opción, nada se busca") << -1 << "41"
                                               << ""
                                               << "";
    QTest::newRow("solicitud inexistente")
        << 0 << "99"
        << "No se ha encontrado el numero de solicitud que ingreso. Presione "
           "[F2] para obtener una lista."
        << "";
    QTest::newRow("solicitud sin aprobar")
        << 0 << "46"
        << "No se ha encontrado el numero de solicitud que ingreso. Presione "
           "[F2] para obtener una lista."
        << "";
    QTest::newRow("recibo inexistente")
        << 2 << "77"
        << "No se ha encontrado el numero de recibo que ingreso. Presione [F2] "
           "para obtener una lista."
        << "";
    QTest::newRow("recibo ya entregado") << 2 << "9"
                                         << ""
                                         << "LUIS MÉNDEZ";
}

// With no kind chosen F2 opens nothing and leaving the number looks nothing up; a number not found is
// told; a document found with nothing pending fills the customer and leaves the grid blank, total 0.
void TstFrmNotaEnvio::numeroDelDocumento() {
    QFETCH(int, tipo);
    QFETCH(QString, numero);
    QFETCH(QString, mensaje);
    QFETCH(QString, cliente);
    auto& p = pantalla();
    e_->pulsar(QStringLiteral("Agregar"));
    if (tipo >= 0) QTest::mouseClick((*p.optTipo)(tipo), Qt::LeftButton);
    QString texto;
    if (!mensaje.isEmpty()) responder(e_->entorno(), QStringLiteral("cmdClose"), &texto);
    teclear(p.txtNumeroDocumento, numero);
    if (tipo < 0) {
        QTest::keyClick(p.txtNumeroDocumento, Qt::Key_F2);
        QVERIFY(e_->entorno().modalesMostradas.isEmpty());
    }
    salirCon(p.txtNumeroDocumento);
    QCOMPARE(texto, mensaje);
    QCOMPARE(p.txtNombreCliente->Text(), cliente);
    QCOMPARE(e_->lineas(), QStringList{QStringLiteral("||")});
    QCOMPARE(p.lblSaldo->text(), QStringLiteral("0"));
    QCOMPARE(p.SolicitudID + p.FacturaID + (tipo == 2 ? 0 : p.ReciboID), 0L);
    QCOMPARE(p.ReciboID > 0, !cliente.isEmpty());
}

QTEST_MAIN(TstFrmNotaEnvio)
#include "tst_frmNotaEnvio.moc"
