// The receipt's lines against the application's balances, as the clerk builds them: what each concept
// proposes by its Tipo or refuses, a concept taken twice, the concepts offered to each kind of
// receipt, the mora added to the application inside the receipt's transaction, article lines by
// Shift+Insert, and a line edited by double click while browsing.
#include "ModosDeRegistro.h"
#include "ReciboEnPantalla.h"

#include <QtTest>

using caja::frmRecibo;

namespace {

const QString kEngancheCancelado = QStringLiteral("El valor del enganche ya fue cancelado.");
const QString kPrimerPagoCancelado = QStringLiteral("El valor del primer pago ya fue cancelado.");
const QString kSaldosCancelado = QStringLiteral("El valor del saldos ya fue cancelado.");
const QString kMoraNoValida = QStringLiteral("El monto de mora que ingresó no es válido.");
// The question as the dialog frames it, between the inverted and the plain question mark.
const QString kPreguntaMora =
    QStringLiteral("¿[Aceptar]: Agrega al recibo actual\r\n[Cancelar]: Acumula al saldo de mora?");

const QStringList kTodos = {"Cuota mensual",      "Enganche",    "Flete", "Gastos administrativos",
                            "Gastos de cobranza", "Instalación", "Mora",  "Otros cobros",
                            "Primer pago",        "Reparación"};
const QStringList kOrdinarios = {"Flete",       "Gastos administrativos", "Gastos de cobranza",
                                 "Instalación", "Otros cobros",           "Reparación"};

} // namespace

class TstFrmReciboLineas : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void conceptoSegunSuTipo_data();
    void conceptoSegunSuTipo();
    void conceptoRepetido_data();
    void conceptoRepetido();
    void conceptosOfrecidos_data();
    void conceptosOfrecidos();
    void mora_data();
    void mora();
    void moraSoloAlGuardar_data();
    void moraSoloAlGuardar();
    void lineaDeArticulo_data();
    void lineaDeArticulo();
    void lineaDeCerosCedeSuLugar();
    void borrarLaUltimaLinea();
    void editarLineaAlConsultar_data();
    void editarLineaAlConsultar();

private:
    frmRecibo& pantalla() { return r_->pantalla(); }
    void pulsar(const QString& caption) { r_->pulsar(caption); }
    QString db(const QString& consulta) const { return r_->db(consulta); }
    QString clave(const QString& concepto) const {
        return db("SELECT ConceptoID FROM Concepto WHERE Descripcion = '" + concepto + "'");
    }
    // The application's stored mora, as another workstation reads it and as the receipt's
    // transaction sees it.
    QString moraEnLaBase(int solicitudID) const {
        return db(QStringLiteral("SELECT printf('%.2f', Mora) FROM Solicitud WHERE SolicitudID = %1")
                      .arg(solicitudID));
    }
    static QString moraEnLaConexion(int solicitudID) {
        return QString::number(
            ReciboEnPantalla::enLaConexion(
                QStringLiteral("Select Mora From Solicitud Where SolicitudID = %1").arg(solicitudID))
                .toDouble(),
            'f', 2);
    }
    std::unique_ptr<ReciboEnPantalla> r_;
};

void TstFrmReciboLineas::init() {
    r_ = std::make_unique<ReciboEnPantalla>();
}

void TstFrmReciboLineas::cleanup() {
    r_.reset();
}

void TstFrmReciboLineas::conceptoSegunSuTipo_data() {
    QTest::addColumn<QString>("solicitud"); // the application of a new receipt, or "modificar"
    QTest::addColumn<QString>("concepto");
    QTest::addColumn<QString>("mensaje"); // the refusal; "" when a line goes in
    QTest::addColumn<QString>("valor");   // the line's value
    QTest::newRow("enganche pendiente: el enganche entero") << "41"
                                                            << "Enganche"
                                                            << ""
                                                            << "100.00";
    QTest::newRow("primer pago pendiente: el primer pago entero") << "41"
                                                                  << "Primer pago"
                                                                  << ""
                                                                  << "200.00";
    QTest::newRow("cuota: el saldo probado, la cuota propuesta") << "41"
                                                                 << "Cuota mensual"
                                                                 << ""
                                                                 << "100.00";
    QTest::newRow("saldo sin cuota mensual: cuota de 0.00") << "43"
                                                            << "Cuota mensual"
                                                            << ""
                                                            << "0.00";
    QTest::newRow("enganche cancelado") << "42"
                                        << "Enganche" << kEngancheCancelado << "";
    QTest::newRow("primer pago cancelado") << "42"
                                           << "Primer pago" << kPrimerPagoCancelado << "";
    QTest::newRow("saldo cancelado") << "42"
                                     << "Cuota mensual" << kSaldosCancelado << "";
    QTest::newRow("tras Modificar, sin saldos cargados") << "modificar"
                                                         << "Enganche" << kEngancheCancelado << "";
}

// Each concept of a Tipo proposes the pending figure of its balance, read from fgSaldos; a balance of
// 0 or less is told and adds no line. "Modificar" doesn't load the balances, so there every pending
// figure reads as paid.
void TstFrmReciboLineas::conceptoSegunSuTipo() {
    QFETCH(QString, solicitud);
    QFETCH(QString, concepto);
    QFETCH(QString, mensaje);
    QFETCH(QString, valor);
    auto& p = pantalla();
    if (solicitud == QLatin1String("modificar")) {
        r_->base().sqlite("INSERT INTO Recibo (ReciboID, NumeroRecibo, Fecha, SolicitudID, Efectivo) VALUES "
                          "(3, 9, '2026-03-05', 1, 15);"
                          "INSERT INTO ReciboDetalle (ReciboID, ConceptoID, ArticuloID, Cantidad, Valor) "
                          "VALUES (3, 5, 0, 1, 15);");
        r_->buscarRecibo(QStringLiteral("9"));
        pulsar("Modificar");
        QCOMPARE(p.SolicitudID, 1L);
    } else {
        r_->nuevoPara(solicitud);
    }
    const QStringList antes = r_->lineas();
    const QString totalAntes = p.lblTotal->text();
    QString texto;
    r_->elegirConcepto(concepto);
    if (!mensaje.isEmpty()) responder(r_->entorno(), QStringLiteral("cmdClose"), &texto);
    r_->tecla(Qt::Key_Insert, p.fgDetalle->Rows() - 1);
    QCOMPARE(texto, mensaje);
    if (mensaje.isEmpty()) {
        QCOMPARE(r_->lineas(), QStringList{clave(concepto) + "|0|1|" + concepto + "|" + valor + "|" + valor});
        QCOMPARE(p.lblTotal->text(), valor);
    } else {
        QCOMPARE(r_->entorno().titulosModales.last(), kTitulo);
        QCOMPARE(r_->lineas(), antes);
        QCOMPARE(p.lblTotal->text(), totalAntes);
    }
}

void TstFrmReciboLineas::conceptoRepetido_data() {
    QTest::addColumn<QString>("concepto");
    QTest::addColumn<QString>("tecleado"); // the value typed in the line dialog of an ordinary concept
    QTest::addColumn<QString>("valor");    // the first line's value
    QTest::newRow("enganche") << "Enganche"
                              << ""
                              << "100.00";
    QTest::newRow("ordinario: la segunda vez sin diálogo") << "Flete"
                                                           << "30"
                                                           << "30.00";
}

// A concept already on the receipt goes in again at 0.00, with no message and no dialog, for the
// clerk to change or delete.
void TstFrmReciboLineas::conceptoRepetido() {
    QFETCH(QString, concepto);
    QFETCH(QString, tecleado);
    QFETCH(QString, valor);
    auto& p = pantalla();
    r_->nuevoPara(QStringLiteral("41"));
    r_->insertarConcepto(concepto, tecleado);
    r_->insertarConcepto(concepto);
    const QString linea = clave(concepto) + "|0|1|" + concepto + "|";
    QCOMPARE(r_->lineas(), (QStringList{linea + valor + "|" + valor, linea + "0.00|0.00"}));
    QCOMPARE(p.lblTotal->text(), valor);
    QStringList modales{"frmListado"};
    if (!tecleado.isEmpty()) modales << "frmSolicitudArticulo";
    modales << "frmListado";
    QCOMPARE(r_->entorno().modalesMostradas, modales);
}

void TstFrmReciboLineas::conceptosOfrecidos_data() {
    QTest::addColumn<QString>("forma");
    QTest::addColumn<QStringList>("conceptos"); // as listed
    QTest::newRow("solicitud: todos") << "solicitud" << kTodos;
    QTest::newRow("cliente: solo los ordinarios") << "cliente" << kOrdinarios;
    QTest::newRow("nombre escrito: solo los ordinarios") << "nombre" << kOrdinarios;
}

// Insert opens the list of concepts by description: every concept for a receipt of an application,
// the ordinary ones (no Tipo) for any other. Cancelled, it adds nothing.
void TstFrmReciboLineas::conceptosOfrecidos() {
    QFETCH(QString, forma);
    QFETCH(QStringList, conceptos);
    auto& p = pantalla();
    if (forma == QLatin1String("solicitud")) {
        r_->nuevoPara(QStringLiteral("41"));
    } else if (forma == QLatin1String("cliente")) {
        pulsar("Agregar");
        elegirEnBusqueda(r_->entorno(), QStringLiteral("RAMÍREZ"));
        QTest::mouseClick(p.cmdCliente, Qt::LeftButton);
        activar(p);
    } else {
        pulsar("Agregar");
        QTest::mouseDClick(p.txtNombreCliente, Qt::LeftButton);
        escribir(p.txtNombreCliente, QStringLiteral("juan pérez"));
    }
    r_->insertarConcepto(QString());
    QCOMPARE(r_->conceptosOfrecidos, conceptos);
    QCOMPARE(r_->entorno().titulosModales.last(), QStringLiteral("Lista de conceptos"));
    QCOMPARE(r_->lineas(), QStringList{"|||||"});
    QCOMPARE(p.lblTotal->text(), QStringLiteral("0.00"));
}

void TstFrmReciboLineas::mora_data() {
    QTest::addColumn<QString>("solicitud");
    QTest::addColumn<QString>("monto");     // typed in the prompt; "" cancels it
    QTest::addColumn<QString>("respuesta"); // to the question; "" when it isn't asked
    QTest::addColumn<QString>("mensaje");   // the refusal of the amount
    QTest::addColumn<QString>("valor");     // the mora line's value; "" when none goes in
    QTest::addColumn<QString>("mora");      // "Mora" of the balances, and the mora the transaction holds
    QTest::newRow("Aceptar: la mora entera en una línea") << "41"
                                                          << "50"
                                                          << "Aceptar"
                                                          << ""
                                                          << "60.00"
                                                          << "60.00";
    QTest::newRow("Cancelar: acumulada, sin línea") << "41"
                                                    << "50"
                                                    << "Cancelar"
                                                    << ""
                                                    << ""
                                                    << "60.00";
    QTest::newRow("aviso cancelado: línea de 0.00") << "41"
                                                    << ""
                                                    << ""
                                                    << ""
                                                    << "0.00"
                                                    << "10.00";
    QTest::newRow("monto 0: rehusado, línea de 0.00") << "41"
                                                      << "0"
                                                      << "" << kMoraNoValida << "0.00"
                                                      << "10.00";
    QTest::newRow("monto negativo: rehusado, línea de 0.00") << "41"
                                                             << "-5"
                                                             << "" << kMoraNoValida << "0.00"
                                                             << "10.00";
    QTest::newRow("sin cuota mensual: acumulada, sin pregunta ni línea") << "43"
                                                                         << "50"
                                                                         << ""
                                                                         << ""
                                                                         << ""
                                                                         << "50.00";
}

// The mora concept asks for an amount to add to the application's mora, which is written at once
// inside the receipt's transaction and added to "Mora" on the screen; then, where there is an
// instalment, it asks whether the whole mora goes on this receipt. The database file keeps its mora
// until the receipt is saved.
void TstFrmReciboLineas::mora() {
    QFETCH(QString, solicitud);
    QFETCH(QString, monto);
    QFETCH(QString, respuesta);
    QFETCH(QString, mensaje);
    QFETCH(QString, valor);
    QFETCH(QString, mora);
    auto& entorno = r_->entorno();
    const int id = db("SELECT SolicitudID FROM Solicitud WHERE NumeroSolicitud = " + solicitud).toInt();
    const QString moraGuardada = moraEnLaBase(id);
    r_->nuevoPara(solicitud);
    entorno.modalesMostradas.clear();
    entorno.titulosModales.clear();

    r_->elegirConcepto(QStringLiteral("Mora"));
    responderTexto(entorno, monto, monto.isEmpty() ? QStringLiteral("Cancelar") : QStringLiteral("Aceptar"));
    QString texto, pregunta;
    if (!mensaje.isEmpty()) responder(entorno, QStringLiteral("cmdClose"), &texto);
    if (!respuesta.isEmpty()) responder(entorno, respuesta, &pregunta);
    r_->tecla(Qt::Key_Insert);

    QStringList modales{"frmListado", "frmIngresoTexto"};
    if (!mensaje.isEmpty()) modales << "frmMensaje";
    if (!respuesta.isEmpty()) modales << "frmPregunta";
    QCOMPARE(entorno.modalesMostradas, modales);
    QCOMPARE(entorno.titulosModales.mid(1), QStringList(modales.size() - 1, kTitulo));
    QCOMPARE(texto, mensaje);
    QCOMPARE(pregunta, respuesta.isEmpty() ? QString() : kPreguntaMora);
    QCOMPARE(r_->lineas(), valor.isEmpty() ? QStringList{"|||||"}
                                           : QStringList{clave("Mora") + "|0|1|Mora|" + valor + "|" + valor});
    QCOMPARE(r_->saldos().section(u'|', 4), mora);
    QCOMPARE(moraEnLaConexion(id), mora);
    QCOMPARE(moraEnLaBase(id), moraGuardada);
}

void TstFrmReciboLineas::moraSoloAlGuardar_data() {
    QTest::addColumn<QString>("boton");
    QTest::addColumn<QString>("mora");      // Solicitud.Mora afterwards
    QTest::addColumn<QString>("pendiente"); // Mora of vwSaldosXSolicitud afterwards
    QTest::newRow("Guardar la deja, pagada por la línea") << "Guardar"
                                                          << "60.00"
                                                          << "0.00";
    QTest::newRow("Cancelar la deshace") << "Cancelar"
                                         << "10.00"
                                         << "10.00";
}

// Mora of 50.00 added to a mora of 10.00 and taken whole on the receipt: the application's mora
// becomes 60.00 when the receipt is saved, and stays 10.00 when the receipt is cancelled.
void TstFrmReciboLineas::moraSoloAlGuardar() {
    QFETCH(QString, boton);
    QFETCH(QString, mora);
    QFETCH(QString, pendiente);
    auto& p = pantalla();
    r_->nuevoPara(QStringLiteral("41"));
    r_->elegirConcepto(QStringLiteral("Mora"));
    responderTexto(r_->entorno(), QStringLiteral("50"));
    responder(r_->entorno(), QStringLiteral("Aceptar"));
    r_->tecla(Qt::Key_Insert);
    QCOMPARE(p.lblTotal->text(), QStringLiteral("60.00"));
    QCOMPARE(moraEnLaBase(1), QStringLiteral("10.00"));
    r_->efectivo(QStringLiteral("60"));
    pulsar(boton);
    verificarConsulta(p);
    QCOMPARE(moraEnLaBase(1), mora);
    QCOMPARE(db("SELECT printf('%.2f', Mora) FROM vwSaldosXSolicitud WHERE SolicitudID = 1"), pendiente);
}

void TstFrmReciboLineas::lineaDeArticulo_data() {
    QTest::addColumn<QString>("articulo"); // picked in the search; "" closes it
    QTest::addColumn<QString>("cantidad"); // typed in the dialog; "" keeps its proposal
    QTest::addColumn<QString>("cierre");
    QTest::addColumn<QString>("linea");    // the grid's line
    QTest::addColumn<QString>("guardado"); // ConceptoID|ArticuloID|Cantidad|Valor stored; "" when none
    QTest::newRow("artículo aceptado") << "REFRIGERADORA"
                                       << ""
                                       << "&Aceptar"
                                       << "0|1|1|REFRIGERADORA|500.00|500.00"
                                       << "0|1|1|500.00";
    QTest::newRow("dos unidades") << "REFRIGERADORA"
                                  << "2"
                                  << "&Aceptar"
                                  << "0|1|2|REFRIGERADORA|500.00|1000.00"
                                  << "0|1|2|500.00";
    QTest::newRow("diálogo cancelado: ninguna línea") << "REFRIGERADORA"
                                                      << ""
                                                      << "&Cancelar"
                                                      << "|||||"
                                                      << "";
    QTest::newRow("búsqueda cerrada: una línea de ceros, que se guarda") << ""
                                                                         << ""
                                                                         << ""
                                                                         << "0|0|0||0.00|0.00"
                                                                         << "0|0|0|0.00";
}

// Shift+Insert adds an article: the search, then the line dialog as articles wear it, proposing the
// cash price. Neither stock nor cost stops it. A search closed with no pick adds a line of zeros,
// which "Guardar" takes as it stands.
void TstFrmReciboLineas::lineaDeArticulo() {
    QFETCH(QString, articulo);
    QFETCH(QString, cantidad);
    QFETCH(QString, cierre);
    QFETCH(QString, linea);
    QFETCH(QString, guardado);
    auto& p = pantalla();
    r_->nuevoPara(QStringLiteral("41"));
    elegirEnBusqueda(r_->entorno(), articulo);
    if (!articulo.isEmpty()) r_->responderLinea(QString(), cierre, cantidad);
    r_->tecla(Qt::Key_Insert, 1, Qt::ShiftModifier);
    QCOMPARE(r_->entorno().titulosModales.value(0), QStringLiteral("Busca artículos"));
    if (!articulo.isEmpty()) {
        QCOMPARE(r_->tituloDelDialogo, QStringLiteral("Artículos"));
        QVERIFY(r_->cantidadHabilitada);
        QCOMPARE(r_->valorAlAbrir, QStringLiteral("500.00"));
    }
    QCOMPARE(r_->lineas(), QStringList{linea});
    if (guardado.isEmpty()) return;

    r_->efectivo(p.lblTotal->text());
    pulsar("Guardar");
    verificarConsulta(p);
    QCOMPARE(db("SELECT printf('%d|%d|%d|%.2f', ConceptoID, ArticuloID, Cantidad, Valor) FROM ReciboDetalle "
                "WHERE ReciboID = (SELECT ReciboID FROM Recibo WHERE NumeroRecibo = 9)"),
             guardado);
}

// The line of zeros has no key: standing in row 1, it gives its place to the next line added.
void TstFrmReciboLineas::lineaDeCerosCedeSuLugar() {
    r_->nuevoPara(QStringLiteral("41"));
    elegirEnBusqueda(r_->entorno(), QString());
    r_->tecla(Qt::Key_Insert, 1, Qt::ShiftModifier);
    QCOMPARE(r_->lineas(), QStringList{"0|0|0||0.00|0.00"});
    r_->insertarConcepto(QStringLiteral("Enganche"));
    QCOMPARE(r_->lineas(), QStringList{"1|0|1|Enganche|100.00|100.00"});
}

// Delete takes a line away whatever its Tipo, asking nothing; the last one leaves the blank row, a
// total of 0.00, and a receipt that "Guardar" refuses for having nothing to pay.
void TstFrmReciboLineas::borrarLaUltimaLinea() {
    auto& p = pantalla();
    r_->nuevoPara(QStringLiteral("41"));
    r_->insertarConcepto(QStringLiteral("Enganche"));
    r_->insertarConcepto(QStringLiteral("Primer pago"));
    QCOMPARE(p.lblTotal->text(), QStringLiteral("300.00"));
    r_->tecla(Qt::Key_Delete, 1);
    QCOMPARE(r_->lineas(), QStringList{"2|0|1|Primer pago|200.00|200.00"});
    QCOMPARE(p.lblTotal->text(), QStringLiteral("200.00"));
    r_->tecla(Qt::Key_Delete, 1);
    QCOMPARE(r_->lineas(), QStringList{"|||||"});
    QCOMPARE(p.lblTotal->text(), QStringLiteral("0.00"));
    QString texto;
    responder(r_->entorno(), QStringLiteral("cmdClose"), &texto);
    pulsar("Guardar");
    QCOMPARE(texto, QStringLiteral("Debe especificar que desea pagar en este recibo."));
    verificarEdicion(p);
}

void TstFrmReciboLineas::editarLineaAlConsultar_data() {
    QTest::addColumn<QString>("recibo");
    QTest::addColumn<QString>("valor");
    QTest::addColumn<QString>("titulo"); // of the line dialog
    QTest::addColumn<QString>("linea");  // afterwards
    QTest::addColumn<QString>("guardado");
    QTest::newRow("concepto") << "7"
                              << "40"
                              << "Concepto de cobro"
                              << "7|0|1|Flete|40.00|40.00"
                              << "25.00";
    QTest::newRow("artículo") << "8"
                              << "450"
                              << "Artículos"
                              << "0|1|1|REFRIGERADORA RT38 BLANCO|450.00|450.00"
                              << "500.00";
}

// The grid stands outside the frames: on a receipt found and only browsed, a double click opens the
// line's dialog all the same (a concept's line dressed as a concept, with its quantity fixed), and
// what is accepted changes the screen and its total, never the stored receipt.
void TstFrmReciboLineas::editarLineaAlConsultar() {
    QFETCH(QString, recibo);
    QFETCH(QString, valor);
    QFETCH(QString, titulo);
    QFETCH(QString, linea);
    QFETCH(QString, guardado);
    auto& p = pantalla();
    r_->buscarRecibo(recibo);
    r_->responderLinea(valor);
    r_->dobleClic(1);
    QCOMPARE(r_->tituloDelDialogo, titulo);
    QCOMPARE(r_->cantidadHabilitada, titulo == QStringLiteral("Artículos"));
    QCOMPARE(r_->lineas(), QStringList{linea});
    QCOMPARE(p.lblTotal->text(), linea.section(u'|', 5));
    verificarConsulta(p);
    QCOMPARE(
        db("SELECT printf('%.2f', Valor) FROM ReciboDetalle WHERE ReciboID = (SELECT ReciboID FROM Recibo "
           "WHERE NumeroRecibo = " +
           recibo + ")"),
        guardado);
}

QTEST_MAIN(TstFrmReciboLineas)
#include "tst_frmRecibo_lineas.moc"
