// An application's balances as the receipt, search and invoice screens read them, step by step from
// saving to paid in full: nothing is posted, every figure comes from the views.
#include "TiendaDePrueba.h"

#include <QtTest>

namespace {

// Concepts the database holds beforehand, by Tipo.
constexpr int kEnganche = 1, kPrimerPago = 2, kCuota = 3, kMora = 4, kGastos = 5;

struct Saldos {
    double enganche, primerPago, total, cuota, mora, saldo;
};

} // namespace

class TstSaldosCredito : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { tienda_.reset(); }
    void delGuardadoAlPagoTotal();
    void palabraDelEstado_data();
    void palabraDelEstado();
    void cuotaMensual_data();
    void cuotaMensual();
    void facturaDeLaSolicitudPagada();
    void montosSonRealesAunqueValganCero_data();
    void montosSonRealesAunqueValganCero();

private:
    Saldos saldos();
    int solicitud(const QVariantMap& campos);

    std::unique_ptr<TiendaDePrueba> tienda_;
    int cliente_ = 0, refrigeradora_ = 0, estufa_ = 0, solicitud_ = 0;
};

void TstSaldosCredito::init() {
    tienda_ = std::make_unique<TiendaDePrueba>();
    auto& t = *tienda_;
    cliente_ = t.agregar("Cliente", {{"Nombres", "MARÍA JOSÉ"},
                                     {"Apellidos", "MUÑOZ LÓPEZ"},
                                     {"NIT", "1234567-8"},
                                     {"CodigoLetra", "M"},
                                     {"CodigoNumero", 17},
                                     {"Limite", 5000}});
    refrigeradora_ = t.agregar(
        "Articulo", {{"Nombre", "Refrigeradora"}, {"Modelo", "RT38"}, {"Color", "Blanco"}, {"Costo", 300}});
    estufa_ =
        t.agregar("Articulo", {{"Nombre", "Estufa"}, {"Modelo", "E4"}, {"Color", "Gris"}, {"Costo", 200}});
    // Two lines: Precio is the amount of the whole line. T = 1500; to finance 1500-300-100-200 = 900.
    solicitud_ = solicitud({{"NumeroSolicitud", 41},
                            {"Fecha", "20/11/2026"},
                            {"ClienteID", cliente_},
                            {"Descuento", 100},
                            {"Enganche", 300},
                            {"PrimerPago", 200},
                            {"MesesCredito", 6}});
    t.ejecutar(QStringLiteral("Insert Into SolicitudDetalle (SolicitudID, ArticuloID, Cantidad, Precio) "
                              "VALUES (%1,%2,2,1000.00)")
                   .arg(solicitud_)
                   .arg(refrigeradora_));
    t.ejecutar(QStringLiteral("Insert Into SolicitudDetalle (SolicitudID, ArticuloID, Cantidad, Precio) "
                              "VALUES (%1,%2,1,500.00)")
                   .arg(solicitud_)
                   .arg(estufa_));
}

int TstSaldosCredito::solicitud(const QVariantMap& campos) {
    return tienda_->agregar("Solicitud", campos);
}

Saldos TstSaldosCredito::saldos() {
    auto& t = *tienda_;
    const auto f =
        t.filas(QStringLiteral("Select * From vwSaldosXSolicitud Where SolicitudID = %1").arg(solicitud_));
    const auto b = t.filas(QStringLiteral("Select * From vwBuscaSolicitud Where shw1200_int_Solicitud = 41"));
    if (f.size() != 1 || b.size() != 1) qFatal("the application is missing from its views");
    const double saldo =
        t.valor(QStringLiteral("Select * From vwBuscaSolicitud Where hidID = %1").arg(solicitud_),
                "shw1200_dbl_Saldo")
            .toDouble();
    const double saldoLlano =
        t.valor(QStringLiteral("Select Saldo From vwBuscaSolicitud Where hidID = %1").arg(solicitud_),
                "Saldo")
            .toDouble();
    if (saldo != saldoLlano) qFatal("Saldo and shw1200_dbl_Saldo differ");
    return {f[0][1].toDouble(), f[0][2].toDouble(), f[0][3].toDouble(),
            f[0][4].toDouble(), f[0][5].toDouble(), saldo};
}

void TstSaldosCredito::delGuardadoAlPagoTotal() {
    auto& t = *tienda_;
    const QString id = QString::number(solicitud_);
    struct Paso {
        const char* nombre;
        std::function<void()> accion;
        const char* estado;
        Saldos esperado;
    };
    const QList<Paso> pasos = {
        {"guardada, pendiente", [] {}, "Pendiente", {300, 200, 1400, 150, 0, 1400}},
        {"aprobada",
         [&] {
             t.ejecutar(
                 "Update Solicitud Set Estado = 1, FechaAprobacion = '22/11/2026' Where SolicitudID = " + id);
         },
         "Aprobada",
         {300, 200, 1400, 150, 0, 1400}},
        {"enganche en parte",
         [&] {
             t.recibo(solicitud_, {{kEnganche, 0, 1, 100}});
         },
         "Aprobada",
         {200, 200, 1300, 150, 0, 1300}},
        {"resto del enganche y primer pago en un recibo",
         [&] {
             t.recibo(solicitud_, {{kEnganche, 0, 1, 200}, {kPrimerPago, 0, 1, 200}});
         },
         "Aprobada",
         {0, 0, 900, 150, 0, 900}},
        {"mora cargada",
         [&] { t.ejecutar("Update Solicitud Set Mora = Mora + 50 Where SolicitudID = " + id); },
         "Aprobada",
         {0, 0, 900, 150, 50, 950}},
        {"cuota y mora pagadas",
         [&] {
             t.recibo(solicitud_, {{kCuota, 0, 1, 150}, {kMora, 0, 1, 50}});
         },
         "Aprobada",
         {0, 0, 750, 150, 0, 750}},
        {"un concepto ordinario no abona",
         [&] {
             t.recibo(solicitud_, {{kGastos, 0, 1, 25}});
         },
         "Aprobada",
         {0, 0, 750, 150, 0, 750}},
        {"cuotas con centavos",
         [&] {
             t.recibo(solicitud_, {{kCuota, 0, 1, 66.67}});
         },
         "Aprobada",
         {0, 0, 683.33, 150, 0, 683.33}},
        {"ultima cuota: saldo exactamente cero",
         [&] {
             t.recibo(solicitud_, {{kCuota, 0, 1, 683.33}});
         },
         "Aprobada",
         {0, 0, 0, 150, 0, 0}},
    };
    for (const Paso& paso : pasos) {
        paso.accion();
        const Saldos s = saldos();
        const Saldos& e = paso.esperado;
        const QByteArray donde = QByteArray("paso: ") + paso.nombre;
        QVERIFY2(qFuzzyCompare(1 + s.enganche, 1 + e.enganche), donde);
        QVERIFY2(qFuzzyCompare(1 + s.primerPago, 1 + e.primerPago), donde);
        QVERIFY2(qFuzzyCompare(1 + s.total, 1 + e.total), donde);
        QVERIFY2(qFuzzyCompare(1 + s.cuota, 1 + e.cuota), donde);
        QVERIFY2(qFuzzyCompare(1 + s.mora, 1 + e.mora), donde);
        QVERIFY2(qFuzzyCompare(1 + s.saldo, 1 + e.saldo), donde);
        QCOMPARE(
            t.valor("Select shw800_str_Estado From vwBuscaSolicitud Where hidID = " + id, "shw800_str_Estado")
                .toString(),
            QString::fromLatin1(paso.estado));
    }
    // Paid in full reads exactly 0, so the invoice screen's list of paid-off applications holds it.
    QCOMPARE(saldos().saldo, 0.0);
    QCOMPARE(t.filas("Select * From vwBuscaSolicitud Where shw1200_dbl_Saldo <= 0").size(), 1);
    // Pending and rejected applications are still owed in full.
    solicitud({{"NumeroSolicitud", 42}, {"Estado", 3}});
    QCOMPARE(t.filas("Select * From vwBuscaSolicitud Where shw1200_dbl_Saldo <= 0").size(), 2);
}

void TstSaldosCredito::palabraDelEstado_data() {
    QTest::addColumn<int>("estado");
    QTest::addColumn<QString>("palabra");
    QTest::newRow("0") << 0 << "Pendiente";
    QTest::newRow("1") << 1 << "Aprobada";
    QTest::newRow("2") << 2 << "Cancelada";
    QTest::newRow("3") << 3 << "Rechazada";
    QTest::newRow("fuera de rango") << 7 << "";
}

void TstSaldosCredito::palabraDelEstado() {
    QFETCH(int, estado);
    QFETCH(QString, palabra);
    tienda_->ejecutar(QStringLiteral("Update Solicitud Set Estado = %1 Where SolicitudID = %2")
                          .arg(estado)
                          .arg(solicitud_));
    QCOMPARE(
        tienda_->valor("Select * From vwBuscaSolicitud Where shw1200_int_Solicitud = 41", "shw800_str_Estado")
            .toString(),
        palabra);
}

void TstSaldosCredito::cuotaMensual_data() {
    QTest::addColumn<int>("meses");
    QTest::addColumn<double>("descuento");
    QTest::addColumn<double>("cuota");
    QTest::newRow("seis meses") << 6 << 100.0 << 150.0;
    QTest::newRow("redondeada a centavos") << 7 << 100.0 << 128.57;
    QTest::newRow("centavos hacia arriba") << 6 << 99.95 << 150.01;
    QTest::newRow("sin meses") << 0 << 100.0 << 0.0;
}

void TstSaldosCredito::cuotaMensual() {
    QFETCH(int, meses);
    QFETCH(double, descuento);
    QFETCH(double, cuota);
    tienda_->ejecutar(
        QStringLiteral("Update Solicitud Set MesesCredito = %1, Descuento = %2 Where SolicitudID = %3")
            .arg(meses)
            .arg(descuento)
            .arg(solicitud_));
    QCOMPARE(saldos().cuota, cuota);
}

void TstSaldosCredito::facturaDeLaSolicitudPagada() {
    auto& t = *tienda_;
    const QString id = QString::number(solicitud_);
    // The invoice screen's own join, with the application's discount beside the search columns.
    const auto busca =
        t.filas("Select vwBS.*, S.Descuento From vwBuscaSolicitud vwBS, Solicitud S Where vwBS.hidID = "
                "S.SolicitudID And vwBS.shw1200_int_Solicitud = 41");
    QCOMPARE(busca.size(), 1);
    QCOMPARE(busca[0].last().toDouble(), 100.0);
    // Lines brought in from the application: unit price and whole-line total.
    const auto lineas = t.filas(
        "Select ArticuloID, Nombre & ' ' & Modelo & ' ' & Color as Descripcion, Cantidad, Precio, Total From "
        "vwSolicitudDetalle Where SolicitudID = " +
        id);
    QCOMPARE(lineas.size(), 2);
    QCOMPARE(lineas[0][1].toString(), QStringLiteral("Refrigeradora RT38 Blanco"));
    QCOMPARE(lineas[0][3].toDouble(), 500.0);
    QCOMPARE(lineas[0][4].toDouble(), 1000.0);

    const int factura = t.agregar(
        "Factura",
        {{"NumeroFactura", 7}, {"Fecha", "25/11/2026"}, {"SolicitudID", solicitud_}, {"Descuento", 100}});
    for (const auto& l : lineas)
        t.ejecutar(
            QStringLiteral("Insert Into FacturaDetalle (FacturaID, ArticuloID, Cantidad, EsCredito, Precio) "
                           "VALUES (%1,%2,%3,1,%4)")
                .arg(factura)
                .arg(l[0].toInt())
                .arg(l[2].toInt())
                .arg(l[3].toDouble()));
    const auto detalle =
        t.filas("Select * From vwFacturaDetalle Where FacturaID = " + QString::number(factura));
    QCOMPARE(detalle.size(), 2);
    QCOMPARE(detalle[1][2].toInt(), 0); // ConceptoID takes its default, 0 and not Null
    QCOMPARE(detalle[1][4].toInt(), 1); // EsCredito
    QCOMPARE(detalle[1][7].toDouble(), 500.0);

    // The search hands the invoice back by position: 4 client, 5 application, 6 its number, 7 name, 8 NIT.
    const auto factura1 = t.filas("Select * From vwBuscaFactura");
    QCOMPARE(factura1.size(), 1);
    QCOMPARE(factura1[0][0].toInt(), factura);
    QCOMPARE(factura1[0][4].toInt(), solicitud_);
    QCOMPARE(factura1[0][5].toInt(), 41);
    QCOMPARE(factura1[0][6].toString(), QStringLiteral("MARÍA JOSÉ MUÑOZ LÓPEZ"));
    QCOMPARE(factura1[0][7].toString(), QStringLiteral("1234567-8"));
    QCOMPARE(t.valor("Select * From vwBuscaFactura", "shw1200_dbl_Total").toDouble(), 1400.0);
}

void TstSaldosCredito::montosSonRealesAunqueValganCero_data() {
    QTest::addColumn<QString>("vista");
    QTest::addColumn<QString>("columna");
    for (const char* c : {"Enganche", "PrimerPago", "Total", "CuotaMensual", "Mora"})
        QTest::newRow(c) << "vwSaldosXSolicitud" << c;
    QTest::newRow("shw1200_dbl_Saldo") << "vwBuscaSolicitud"
                                       << "shw1200_dbl_Saldo";
    QTest::newRow("Saldo") << "vwBuscaSolicitud"
                           << "Saldo";
}

// The SQLite driver types a computed column from its first row: a 0 written as an integer would turn
// every later 22.75 of the column into 22 for an ODBC client.
void TstSaldosCredito::montosSonRealesAunqueValganCero() {
    QFETCH(QString, vista);
    QFETCH(QString, columna);
    const int vacia = solicitud({{"NumeroSolicitud", 99}});
    const QString clave = vista == "vwSaldosXSolicitud" ? "SolicitudID" : "hidID";
    QCOMPARE(
        tienda_->base().valor(
            QStringLiteral("SELECT typeof(%1) FROM %2 WHERE %3 = %4").arg(columna, vista, clave).arg(vacia)),
        QStringLiteral("real"));
}

QTEST_GUILESS_MAIN(TstSaldosCredito)
#include "tst_saldos_credito.moc"
