// Goods in and out and what the store owes its suppliers, as the goods screens and the search read
// them: stock, pending deliveries and note balances are never stored, only counted by the views.
#include "NumeroDelFallo.h"
#include "TiendaDePrueba.h"
#include "store/Fallo.h"

#include <QtTest>

using namespace store;

class TstMercaderia : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { tienda_.reset(); }
    void ingresoYEntregaDeUnaSolicitud();
    void pendientesPorOrigen_data();
    void pendientesPorOrigen();
    void documentoPorPagarAbonaUnaNota();
    void notaPagadaNoSePuedeBorrar();
    void posicionesQueLeenLosLlamadores();
    void clienteDeUnaNotaDeEnvio_data();
    void clienteDeUnaNotaDeEnvio();
    void filtrosDeLaBusqueda_data();
    void filtrosDeLaBusqueda();
    void personasDesactivadasNoSeOfrecen_data();
    void personasDesactivadasNoSeOfrecen();

private:
    double existencia(int articulo);
    QList<QVariantList> pendientes(const QString& vista, const QString& clave, int id);

    std::unique_ptr<TiendaDePrueba> tienda_;
    int proveedor_ = 0, cliente_ = 0, refri_ = 0, estufa_ = 0;
};

void TstMercaderia::init() {
    tienda_ = std::make_unique<TiendaDePrueba>();
    auto& t = *tienda_;
    proveedor_ = t.agregar("Proveedor", {{"Nombre", "Distribuidora La Económica"}});
    cliente_ = t.agregar("Cliente", {{"Nombres", "JUAN"},
                                     {"Apellidos", "GÓMEZ"},
                                     {"CodigoLetra", "G"},
                                     {"CodigoNumero", 3},
                                     {"NIT", "C/F"}});
    refri_ = t.agregar("Articulo", {{"Nombre", "Refrigeradora"},
                                    {"Modelo", "RT38"},
                                    {"Color", "Blanco"},
                                    {"Costo", 100},
                                    {"ContadoPorcentaje", 25},
                                    {"CreditoValor", 60}});
    estufa_ =
        t.agregar("Articulo", {{"Nombre", "Estufa"}, {"Modelo", "E4"}, {"Color", "Gris"}, {"Costo", 50}});
}

double TstMercaderia::existencia(int articulo) {
    return tienda_
        ->valor(QStringLiteral("Select * From vwBuscaArticulo Where hidID = %1").arg(articulo),
                "shw1000_dbl_Existencia")
        .toDouble();
}

QList<QVariantList> TstMercaderia::pendientes(const QString& vista, const QString& clave, int id) {
    return tienda_->filas(
        QStringLiteral("Select hidArticuloID, shw3000_str_Descripcion, shw1200_int_Saldo From %1 "
                       "Where %2 = %3 And shw1200_int_Saldo > 0")
            .arg(vista, clave, QString::number(id)));
}

void TstMercaderia::ingresoYEntregaDeUnaSolicitud() {
    auto& t = *tienda_;
    const int nota = t.notaIngreso(proveedor_, {{refri_, 5, 100.0}, {estufa_, 2, 50.0}, {refri_, 1, 110.0}});
    QCOMPARE(existencia(refri_), 6.0);
    QCOMPARE(existencia(estufa_), 2.0);
    const auto lineas =
        t.filas(QStringLiteral("Select * From vwNotaIngresoDetalle Where IngresoID = %1").arg(nota));
    QCOMPARE(lineas.size(), 3);
    QCOMPARE(lineas[0][8].toInt(), 5);         // Ingresos: the line's own quantity
    QCOMPARE(lineas[0][10].toDouble(), 6.0);   // Existencia of the article
    QCOMPARE(lineas[2][13].toDouble(), 110.0); // CostoTotal
    QCOMPARE(t.valor("Select * From vwBuscaNotaIngreso", "shw1200_dbl_Total").toDouble(), 710.0);

    // A pending application sells nothing yet; approved, its articles wait to be delivered.
    const int solicitud = t.agregar(
        "Solicitud",
        {{"NumeroSolicitud", 8}, {"ClienteID", cliente_}, {"CasaDireccion", "3a. calle 4-56 zona 1"}});
    t.ejecutar(
        QStringLiteral("Insert Into SolicitudDetalle (SolicitudID, ArticuloID, Cantidad, Precio) VALUES "
                       "(%1,%2,2,400)")
            .arg(solicitud)
            .arg(refri_));
    t.ejecutar(
        QStringLiteral("Insert Into SolicitudDetalle (SolicitudID, ArticuloID, Cantidad, Precio) VALUES "
                       "(%1,%2,1,90)")
            .arg(solicitud)
            .arg(estufa_));
    const QString lista = "Select * From vwSaldosArticulosXSolicitud Where shw1200_dbl_Saldo > 0";
    const QString porNumero = "Select * From vwSaldosArticulosXSolicitud Where shw1200_int_Solicitud = 8";
    QVERIFY(t.filas(lista).isEmpty());
    t.ejecutar(QStringLiteral("Update Solicitud Set Estado = 1 Where SolicitudID = %1").arg(solicitud));
    QCOMPARE(t.filas(lista).size(), 1);
    QCOMPARE(t.valor(porNumero, "shw1200_dbl_Saldo").toDouble(), 3.0);
    QCOMPARE(t.valor(porNumero, "hidDireccion").toString(), QStringLiteral("3a. calle 4-56 zona 1"));
    auto porArticulo = pendientes("vwSaldoXArticuloXSolicitud", "hidSolicitudID", solicitud);
    QCOMPARE(porArticulo.size(), 2);
    QCOMPARE(porArticulo[0][1].toString(), QStringLiteral("Refrigeradora RT38 Blanco"));
    QCOMPARE(porArticulo[0][2].toInt(), 2);

    // Part of it goes out, then the rest: stock falls with each note.
    t.notaEnvio("SolicitudID", solicitud, {{refri_, 1}});
    QCOMPARE(t.valor(porNumero, "shw1200_dbl_Saldo").toDouble(), 2.0);
    QCOMPARE(existencia(refri_), 5.0);
    t.notaEnvio("SolicitudID", solicitud, {{refri_, 1}, {estufa_, 1}});
    QCOMPARE(existencia(refri_), 4.0);
    QCOMPARE(existencia(estufa_), 1.0);
    QVERIFY(t.filas(lista).isEmpty());
    QVERIFY(pendientes("vwSaldoXArticuloXSolicitud", "hidSolicitudID", solicitud).isEmpty());
    // Delivered in full, it is still found by its number.
    QCOMPARE(t.filas(porNumero).size(), 1);
    QCOMPARE(t.valor(porNumero, "shw1200_dbl_Saldo").toDouble(), 0.0);
    QCOMPARE(t.valor(porNumero, "shw3000_str_Nombre_del_cliente").toString(), QStringLiteral("JUAN GÓMEZ"));

    // Deleting the goods-in note takes its stock with it at once.
    t.ejecutar(QStringLiteral("Delete * From NotaIngresoDetalle Where IngresoID = %1").arg(nota));
    QCOMPARE(existencia(refri_), -2.0);
}

void TstMercaderia::pendientesPorOrigen_data() {
    QTest::addColumn<QString>("documento");
    QTest::addColumn<bool>("lineaDeCredito");
    QTest::addColumn<int>("pendiente");
    QTest::newRow("factura de contado") << "Factura" << false << 3;
    QTest::newRow("factura con lineas traidas de una solicitud") << "Factura" << true << 3;
    QTest::newRow("recibo con articulo") << "Recibo" << false << 3;
}

// An invoice or a receipt that sold articles leaves them pending until a note takes them: every line
// with an article counts, those an invoice brought in from an application too.
void TstMercaderia::pendientesPorOrigen() {
    QFETCH(QString, documento);
    QFETCH(bool, lineaDeCredito);
    QFETCH(int, pendiente);
    auto& t = *tienda_;
    const int id = t.agregar(documento, {{"Numero" + documento, 12}, {"ClienteID", cliente_}});
    if (documento == "Factura")
        t.ejecutar(
            QStringLiteral("Insert Into FacturaDetalle (FacturaID, ArticuloID, Cantidad, EsCredito, Precio) "
                           "VALUES (%1,%2,3,%3,125.00)")
                .arg(id)
                .arg(refri_)
                .arg(lineaDeCredito ? 1 : 0));
    else
        t.ejecutar(
            QStringLiteral("Insert Into ReciboDetalle (ReciboID, ConceptoID, ArticuloID, Cantidad, Valor) "
                           "VALUES (%1,0,%2,3,125.00)")
                .arg(id)
                .arg(refri_));
    // A concept line is no article to deliver.
    t.ejecutar(QStringLiteral("Insert Into %1Detalle (%1ID, ConceptoID, Cantidad) VALUES (%2,7,1)")
                   .arg(documento)
                   .arg(id));

    const QString vista = "vwSaldosArticulosX" + documento;
    const QString lista = QStringLiteral("Select * From %1 Where shw1200_dbl_Saldo > 0").arg(vista);
    const QString porNumero =
        QStringLiteral("Select * From %1 Where shw1200_int_%2 = 12").arg(vista, documento);
    QCOMPARE(t.filas(lista).size(), pendiente > 0 ? 1 : 0);
    if (pendiente == 0) return;
    QCOMPARE(t.valor(porNumero, "shw3200_str_Nombre_del_cliente").toString(), QStringLiteral("JUAN GÓMEZ"));
    const QString porArticulo = "vwSaldoXArticuloX" + documento;
    const QString clave = "hid" + documento + "ID";
    QCOMPARE(pendientes(porArticulo, clave, id).size(), 1);
    QCOMPARE(pendientes(porArticulo, clave, id)[0][2].toInt(), pendiente);

    t.notaEnvio(documento + "ID", id, {{refri_, pendiente}});
    QVERIFY(t.filas(lista).isEmpty());
    QCOMPARE(t.valor(porNumero, "shw1200_dbl_Saldo").toDouble(), 0.0);
    QVERIFY(pendientes(porArticulo, clave, id).isEmpty());
}

void TstMercaderia::documentoPorPagarAbonaUnaNota() {
    auto& t = *tienda_;
    const int nota = t.notaIngreso(proveedor_, {{refri_, 4, 100.0}, {estufa_, 4, 50.0}});
    const int otroProveedor = t.agregar("Proveedor", {{"Nombre", "Otro"}});
    t.notaIngreso(otroProveedor, {{estufa_, 1, 50.0}});
    // The payable screen's own statement, subtracting the two columns itself.
    const QString abiertas =
        QStringLiteral(
            "Select hidID, shw1200_int_No_Nota, shw1200_dat_Fecha, shw2500_str_Descripcion_general, "
            "Format(shw1200_dbl_Total - shw1200_dbl_Cancelado,'#0.00') as shw1200_dbl_Saldo From "
            "vwSaldosXNotaIngreso Where hidProveedorID = %1 And shw1200_dbl_Total - shw1200_dbl_Cancelado > "
            "0 ")
            .arg(proveedor_);
    auto filas = t.filas(abiertas);
    QCOMPARE(filas.size(), 1);
    QCOMPARE(filas[0][4].toString(), QStringLiteral("600.00"));
    QCOMPARE(
        t.base().valor(
            QStringLiteral("SELECT typeof(shw1200_dbl_Cancelado) FROM vwSaldosXNotaIngreso WHERE hidID = %1")
                .arg(nota)),
        QStringLiteral("real")); // 0, not Null, before any payment

    const int documento = t.agregar("Documento", {{"NumeroDocumento", 1},
                                                  {"ProveedorID", proveedor_},
                                                  {"Fecha", "24/11/2026"},
                                                  {"Descripcion", "Abono"}});
    const auto pagar = [&](const QString& valor) {
        t.ejecutar(
            QStringLiteral("Insert Into DocumentoDetalle (DocumentoID, IngresoID, Valor) VALUES (%1,%2,%3)")
                .arg(QString::number(documento), QString::number(nota), valor));
    };
    pagar("200.01");
    filas = t.filas(abiertas);
    QCOMPARE(filas.size(), 1);
    QCOMPARE(filas[0][4].toString(), QStringLiteral("399.99"));
    const auto detalle =
        t.filas(QStringLiteral("Select * From vwDocumentoDetalle Where DocumentoID = %1").arg(documento));
    QCOMPARE(detalle.size(), 1);
    QCOMPARE(detalle[0][2].toInt(), 100 + proveedor_); // NumeroIngreso of the note
    QCOMPARE(detalle[0][5].toDouble(), 200.01);
    QCOMPARE(t.valor("Select * From vwBuscaDocumento", "shw1200_dbl_Valor").toDouble(), 200.01);

    // Paid to the cent, the note leaves the list.
    pagar("333.33");
    pagar("66.66");
    QVERIFY(t.filas(abiertas).isEmpty());
    QCOMPARE(t.valor(QStringLiteral("Select * From vwSaldosXNotaIngreso Where hidID = %1").arg(nota),
                     "shw1200_dbl_Cancelado")
                 .toDouble(),
             600.0);
}

// Deleting a paid goods-in note, as its screen does inside one transaction, is refused with the
// general failure; rolled back, the note and its stock are whole again.
void TstMercaderia::notaPagadaNoSePuedeBorrar() {
    auto& t = *tienda_;
    const int nota = t.notaIngreso(proveedor_, {{refri_, 4, 100.0}});
    const int documento = t.agregar("Documento", {{"NumeroDocumento", 1}, {"ProveedorID", proveedor_}});
    t.ejecutar(
        QStringLiteral("Insert Into DocumentoDetalle (DocumentoID, IngresoID, Valor) VALUES (%1,%2,150.00)")
            .arg(documento)
            .arg(nota));
    t.cn().BeginTrans();
    const qint32 numero = numeroDelFallo([&] {
        t.ejecutar(QStringLiteral("Delete * From NotaIngresoDetalle Where IngresoID = %1").arg(nota));
        t.ejecutar(QStringLiteral("Delete * From NotaIngreso Where IngresoID = %1").arg(nota));
    });
    QCOMPARE(numero, FalloGeneral);
    t.cn().RollbackTrans();
    QCOMPARE(existencia(refri_), 4.0);
    QCOMPARE(t.filas(QStringLiteral("Select * From vwSaldosXNotaIngreso Where hidID = %1").arg(nota)).size(),
             1);
}

// The callers read the picked row by position; these are the values they find there.
void TstMercaderia::posicionesQueLeenLosLlamadores() {
    auto& t = *tienda_;
    t.notaIngreso(proveedor_, {{refri_, 5, 100.0}});
    const auto articulo =
        t.filas(QStringLiteral("Select * From vwBuscaArticulo Where hidID = %1").arg(refri_));
    QCOMPARE(articulo[0][0].toInt(), refri_);
    QCOMPARE(articulo[0][1].toString(), QStringLiteral("Refrigeradora"));
    QCOMPARE(articulo[0][4].toDouble(), 100.0);
    QCOMPARE(articulo[0][5].toDouble(), 25.0);
    QCOMPARE(articulo[0][7].toInt(), 1); // the starting quantity of a line
    QCOMPARE(articulo[0][9].toDouble(), 5.0);
    QCOMPARE(articulo[0][11].toDouble(), 60.0);
    QCOMPARE(t.valor(QStringLiteral("Select * From vwBuscaArticulo Where hidID = %1").arg(refri_),
                     "shw1300_dbl_Precio_contado")
                 .toDouble(),
             125.0);
    QCOMPARE(t.valor(QStringLiteral("Select * From vwBuscaArticulo Where hidID = %1").arg(refri_),
                     "shw1300_dbl_Precio_credito")
                 .toDouble(),
             160.0);

    const auto cliente = t.filas("Select * From vwBuscaCliente");
    QCOMPARE(cliente[0].mid(0, 5), (QVariantList{cliente_, "G3", "JUAN", "GÓMEZ", "C/F"}));

    const int solicitud = t.agregar("Solicitud", {{"NumeroSolicitud", 8}, {"ClienteID", cliente_}});
    const int conCliente =
        t.agregar("Recibo", {{"NumeroRecibo", 1}, {"ClienteID", cliente_}, {"Nombre", "viejo"}});
    const int deSolicitud = t.agregar("Recibo", {{"NumeroRecibo", 2}, {"SolicitudID", solicitud}});
    const int suelto = t.agregar("Recibo", {{"NumeroRecibo", 3}, {"Nombre", "PEDRO PÉREZ"}});
    const auto recibos = t.filas("Select * From vwBuscaRecibo Order By 2");
    QCOMPARE(recibos.size(), 3);
    QCOMPARE(recibos[0].mid(3, 5), (QVariantList{0, 0, cliente_, "G3", "JUAN GÓMEZ"}));
    QCOMPARE(recibos[1].mid(3, 5), (QVariantList{solicitud, 8, 0, "G3", "JUAN GÓMEZ"}));
    QCOMPARE(recibos[2].mid(3, 5), (QVariantList{0, 0, 0, "", "PEDRO PÉREZ"}));
    QCOMPARE(recibos[0][0].toInt(), conCliente);
    QCOMPARE(recibos[1][0].toInt(), deSolicitud);
    QCOMPARE(recibos[2][0].toInt(), suelto);

    const int factura = t.agregar("Factura", {{"NumeroFactura", 4}, {"Nombre", "ANA"}, {"NIT", "555-1"}});
    t.notaEnvio("FacturaID", factura, {{refri_, 1}});
    const auto notas = t.filas("Select * From vwBuscaNotaEnvio");
    QCOMPARE(notas.size(), 1);
    QCOMPARE(notas[0][2].toDate(), QDate(2026, 11, 23));
    QCOMPARE(notas[0].mid(3, 7), (QVariantList{0, 0, factura, 4, 0, 0, "ANA"}));
}

void TstMercaderia::clienteDeUnaNotaDeEnvio_data() {
    QTest::addColumn<QString>("documento"); // the note's origin
    QTest::addColumn<QString>("de");        // the document is for: "solicitud", "cliente" or a typed name
    QTest::addColumn<QString>("nombre");    // position 10 of the note's row
    QTest::newRow("solicitud") << "Solicitud"
                               << "cliente"
                               << "JUAN GÓMEZ";
    for (const char* documento : {"Factura", "Recibo"}) {
        QTest::addRow("%s de una solicitud", documento) << documento << "solicitud"
                                                        << "JUAN GÓMEZ";
        QTest::addRow("%s de un cliente", documento) << documento << "cliente"
                                                     << "JUAN GÓMEZ";
        QTest::addRow("%s a nombre escrito", documento) << documento << "PEDRO PÉREZ"
                                                        << "PEDRO PÉREZ";
    }
}

// The delivery screen takes the customer's name from position 10 of the note it finds: the client of
// the application, whether the note is made against the application itself or against a receipt or
// an invoice of it; the client of a document made out to a client; else the name typed on it.
void TstMercaderia::clienteDeUnaNotaDeEnvio() {
    QFETCH(QString, documento);
    QFETCH(QString, de);
    QFETCH(QString, nombre);
    auto& t = *tienda_;
    const int solicitud =
        t.agregar("Solicitud", {{"NumeroSolicitud", 8}, {"ClienteID", cliente_}, {"Estado", 1}});
    int origen = solicitud;
    if (documento != "Solicitud") {
        QVariantMap campos{{"Numero" + documento, 12}};
        if (de == "solicitud")
            campos.insert("SolicitudID", solicitud);
        else if (de == "cliente")
            campos.insert("ClienteID", cliente_);
        else
            campos.insert("Nombre", de);
        origen = t.agregar(documento, campos);
    }
    t.notaEnvio(documento + "ID", origen, {{refri_, 1}});
    const auto notas = t.filas("Select * From vwBuscaNotaEnvio");
    QCOMPARE(notas.size(), 1);
    QCOMPARE(notas[0][9].toString(), nombre);
}

void TstMercaderia::filtrosDeLaBusqueda_data() {
    QTest::addColumn<QString>("sentencia");
    QTest::addColumn<int>("filas");
    const QString recibos = "Select * From vwBuscaRecibo Where ";
    QTest::newRow("texto contiene, en minusculas") << recibos + "shw3000_str_Nombre Like '%gómez%'" << 1;
    QTest::newRow("texto que no esta") << recibos + "shw3000_str_Nombre Like '%PEREZ%'" << 0;
    QTest::newRow("fecha") << recibos + "shw1100_dat_Fecha = #22/11/2026#" << 1;
    QTest::newRow("otra fecha") << recibos + "shw1100_dat_Fecha = #23/11/2026#" << 0;
    QTest::newRow("fecha mal escrita: la columna sola") << recibos + "shw1100_dat_Fecha" << 1;
    QTest::newRow("numero") << recibos + "shw1000_int_Recibo = 5" << 1;
    QTest::newRow("dos filtros") << recibos + "shw1000_int_Recibo = 5 And shw680_str_Codigo Like '%G3%'" << 1;
    QTest::newRow("existencia cero") << "Select * From vwBuscaArticulo Where shw1000_dbl_Existencia = 0" << 2;
    QTest::newRow("con un Where del llamador")
        << "Select * From vwBuscaSolicitud Where shw1200_dbl_Saldo <= 0 And shw800_str_Estado Like '%pend%'"
        << 1;
}

// The conditions the search screen composes from its filter boxes, on the columns of the views.
void TstMercaderia::filtrosDeLaBusqueda() {
    QFETCH(QString, sentencia);
    QFETCH(int, filas);
    tienda_->agregar("Recibo", {{"NumeroRecibo", 5}, {"Fecha", "22/11/2026"}, {"ClienteID", cliente_}});
    tienda_->agregar("Solicitud", {{"NumeroSolicitud", 1}, {"ClienteID", cliente_}});
    QCOMPARE(tienda_->filas(sentencia).size(), filas);
}

void TstMercaderia::personasDesactivadasNoSeOfrecen_data() {
    QTest::addColumn<QString>("tabla");
    QTest::newRow("cliente") << "Cliente";
    QTest::newRow("fiador") << "Fiador";
}

void TstMercaderia::personasDesactivadasNoSeOfrecen() {
    QFETCH(QString, tabla);
    auto& t = *tienda_;
    const int otro = t.agregar(tabla, {{"Nombres", "ROSA"}, {"Apellidos", "AJCÚ"}});
    const QString busca = "Select hidID From vwBusca" + tabla;
    const int antes = t.filas(busca).size();
    t.ejecutar(QStringLiteral("Update %1 Set Activo = 0 Where %1ID = %2").arg(tabla).arg(otro));
    const auto despues = t.filas(busca);
    QCOMPARE(despues.size(), antes - 1);
    for (const auto& fila : despues)
        QVERIFY(fila[0].toInt() != otro);
}

QTEST_GUILESS_MAIN(TstMercaderia)
#include "tst_mercaderia.moc"
