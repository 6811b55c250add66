// Goods in, opened from "Ingresos" as the clerk opens it: a delivery with a new article and an
// existing one raising stock through the views (the new article created once, even when the note is
// saved again), what "Guardar" checks and in which order, the deletion of a note (refused when a
// payable document names it), and the line's total that a change leaves stale.
#include "MercaderiaEnPantalla.h"
#include "goods/frmNotaIngreso.h"

#include <QtTest>

using mercaderia::frmNotaIngreso;

class TstFrmNotaIngreso : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { m_ = std::make_unique<MercaderiaEnPantalla>(); }
    void cleanup() { m_.reset(); }
    void ingresoConArticuloNuevoYExistente();
    void guardarRevisaEnOrden_data();
    void guardarRevisaEnOrden();
    void eliminarNota_data();
    void eliminarNota();
    void cambioDeLineaDejaElTotal();

private:
    frmNotaIngreso& pantalla() { return m_->abrir<frmNotaIngreso>(QStringLiteral("Ingresos")); }
    std::unique_ptr<MercaderiaEnPantalla> m_;
};

void TstFrmNotaIngreso::ingresoConArticuloNuevoYExistente() {
    auto& p = pantalla();
    const double refrigeradorasAntes = m_->existencia("REFRIGERADORA").toDouble();
    m_->pulsar(p, "Agregar");
    QCOMPARE(p.txtNumeroIngreso->text(), QStringLiteral("17"));
    QCOMPARE(p.dpFecha->Value(), QDate(2026, 3, 10));
    escribir(p.txtNumeroIngreso, "88");
    m_->proveedor(p, "ELECTRO MAYORISTA");
    QCOMPARE(p.ProveedorID, 2L);
    escribir(p.txtDescripcion, "Factura 88");
    m_->articuloNuevo("LAVADORA", "3", "250", "20", "35");
    m_->tecla(p, Qt::Key_Insert);
    m_->articuloExistente("REFRIGERADORA", "2", "380");
    m_->tecla(p, Qt::Key_Insert);
    // The article found carries its margins, units delivered (0) and stock (3) as the search gives them.
    QCOMPARE(filasDe(*p.fgDetalle),
             (QStringList{"*|LAVADORA|||250.00|20.00|0.00|3.00|||35.00|0.00|750.00",
                          "1|REFRIGERADORA|RT38|BLANCO|380.00|25.00|0.00|2.00|0|3|40.00|0.00|760.00"}));
    QCOMPARE(p.lblTotal->text(), QStringLiteral("1510.00"));

    for (const char* paso : {"primer guardado", "modificada y guardada otra vez"}) {
        if (QByteArray(paso) != "primer guardado") m_->pulsar(p, "Modificar");
        m_->pulsar(p, "Guardar");
        QVERIFY2(!p.lblEstado->isVisible(), paso);
        QCOMPARE(Common::TransaccionActiva, 0L);
        QCOMPARE(m_->db("SELECT count(*) FROM Articulo WHERE Nombre = 'LAVADORA'"), QStringLiteral("1"));
        const QString lavadora = m_->db("SELECT ArticuloID FROM Articulo WHERE Nombre = 'LAVADORA'");
        QCOMPARE(p.fgDetalle->TextMatrix(1, 0), lavadora);
        QCOMPARE(m_->db("SELECT printf('%g|%g|%g|%g', Costo, ContadoPorcentaje, ContadoValor, "
                        "CreditoPorcentaje) FROM Articulo WHERE ArticuloID = " +
                        lavadora),
                 QStringLiteral("250|20|0|35"));
        QCOMPARE(m_->existencia("LAVADORA").toDouble(), 3.0);
        QCOMPARE(m_->existencia("REFRIGERADORA").toDouble(), refrigeradorasAntes + 2);
        QCOMPARE(m_->db("SELECT count(*) FROM NotaIngresoDetalle D JOIN NotaIngreso N USING (IngresoID) "
                        "WHERE N.NumeroIngreso = 88"),
                 QStringLiteral("2"));
    }
    // The line's cost stays on the line.
    QCOMPARE(m_->db("SELECT Costo FROM Articulo WHERE ArticuloID = 1").toDouble(), 400.0);
    m_->buscar(p, "88");
    QCOMPARE(p.lblNombre->text(), QStringLiteral("ELECTRO MAYORISTA"));
    QCOMPARE(p.lblTotal->text(), QStringLiteral("1510.00"));
    QCOMPARE(p.fgDetalle->Rows(), 3);
}

void TstFrmNotaIngreso::guardarRevisaEnOrden_data() {
    QTest::addColumn<QString>("numero");
    QTest::addColumn<bool>("conProveedor");
    QTest::addColumn<QString>("descripcion");
    QTest::addColumn<bool>("conLinea");
    QTest::addColumn<QString>("mensaje");
    QTest::newRow("número 0") << "0" << false << "" << false
                              << "Debe indicar el numero de la nota de ingreso.";
    QTest::newRow("sin proveedor") << "20" << false << "" << false << "Debe indicar el proveedor.";
    QTest::newRow("descripción en blanco")
        << "20" << true << "  " << false << "Debe escribir una descripcion de referencia.";
    QTest::newRow("sólo la fila en blanco")
        << "20" << true << "Factura 20" << false << "Debe especificar la lista de artículos que ingresan.";
    QTest::newRow("última línea quitada")
        << "20" << true << "Factura 20" << true << "Debe especificar la lista de artículos que ingresan.";
}

// A line added and removed again leaves the blank row, which is no line.
void TstFrmNotaIngreso::guardarRevisaEnOrden() {
    QFETCH(QString, numero);
    QFETCH(bool, conProveedor);
    QFETCH(QString, descripcion);
    QFETCH(bool, conLinea);
    QFETCH(QString, mensaje);
    auto& p = pantalla();
    m_->pulsar(p, "Agregar");
    escribir(p.txtNumeroIngreso, numero);
    if (conProveedor) m_->proveedor(p, "DISTRIBUIDORA CENTRAL");
    escribir(p.txtDescripcion, descripcion);
    if (conLinea) {
        m_->articuloExistente("REFRIGERADORA", "1", "400");
        m_->tecla(p, Qt::Key_Insert);
        m_->tecla(p, Qt::Key_Delete);
        QCOMPARE(filasDe(*p.fgDetalle), QStringList{"||||||||||||"});
        QCOMPARE(p.lblTotal->text(), QStringLiteral("0.00"));
    }
    QString dicho;
    responder(m_->entorno(), "cmdClose", &dicho);
    m_->pulsar(p, "Guardar");
    QCOMPARE(dicho, mensaje);
    QVERIFY(p.lblEstado->isVisible());
    QVERIFY(Common::TransaccionActiva > 0);
    m_->pulsar(p, "Cancelar");
    QCOMPARE(m_->db("SELECT count(*) FROM NotaIngreso"), QStringLiteral("2"));
}

void TstFrmNotaIngreso::eliminarNota_data() {
    QTest::addColumn<QString>("numero");
    QTest::addColumn<QString>("mensaje");
    QTest::newRow("pagada")
        << "15"
        << "No puede eliminarse porque afectaría la intregridad referencial de sus datos.";
    QTest::newRow("sin pagar") << "16"
                               << "";
}

// A note a payable document names stays whole; any other goes with its lines, and its goods leave stock.
void TstFrmNotaIngreso::eliminarNota() {
    QFETCH(QString, numero);
    QFETCH(QString, mensaje);
    auto& p = pantalla();
    m_->buscar(p, numero);
    const QString clave = m_->db("SELECT IngresoID FROM NotaIngreso WHERE NumeroIngreso = " + numero);
    const QString lineas = "SELECT count(*) FROM NotaIngresoDetalle WHERE IngresoID = " + clave;
    const double stock = m_->existencia("REFRIGERADORA").toDouble();
    const double cantidad =
        m_->db("SELECT total(Cantidad) FROM NotaIngresoDetalle WHERE IngresoID = " + clave).toDouble();
    QString pregunta, dicho;
    responder(m_->entorno(), "Aceptar", &pregunta);
    if (!mensaje.isEmpty()) responder(m_->entorno(), "cmdClose", &dicho);
    m_->pulsar(p, "Eliminar");
    QCOMPARE(pregunta, QStringLiteral("¿Desea eliminar esta nota de ingreso?"));
    QCOMPARE(dicho, mensaje);
    QCOMPARE(Common::DE().CN.nivelTransaccion(), 0);
    if (mensaje.isEmpty()) {
        QCOMPARE(m_->db(lineas), QStringLiteral("0"));
        QCOMPARE(m_->existencia("REFRIGERADORA").toDouble(), stock - cantidad);
        QCOMPARE(filasDe(*p.fgDetalle), QStringList{"||||||||||||"});
        QCOMPARE(p.lblTotal->text(), QStringLiteral("0.00"));
        QCOMPARE(p.txtNumeroIngreso->text(), QString());
    } else {
        QCOMPARE(m_->db(lineas), QStringLiteral("1"));
        QCOMPARE(m_->existencia("REFRIGERADORA").toDouble(), stock);
    }
}

// A changed line keeps its old total, and so does the note, until the note is read again; the quantity
// must be typed again.
void TstFrmNotaIngreso::cambioDeLineaDejaElTotal() {
    auto& p = pantalla();
    m_->buscar(p, "15");
    QCOMPARE(p.lblTotal->text(), QStringLiteral("800.00"));
    m_->pulsar(p, "Modificar");
    QString cantidadAlAbrir;
    m_->enLinea([&](mercaderia::frmNotaIngresoArticulo& d) {
        cantidadAlAbrir = d.txtCantidad->text();
        escribir(d.txtNombre, "OTRO NOMBRE");
        escribir(d.txtCantidad, "3");
        escribir(d.txtCosto, "410");
        pulsarBotonDe(d, "&Aceptar");
    });
    dobleClicEnGrilla(p, *p.fgDetalle, 1);
    QCOMPARE(cantidadAlAbrir, QStringLiteral("0.00"));
    QCOMPARE(filasDe(*p.fgDetalle).value(0).section('|', 1, 1), QStringLiteral("REFRIGERADORA"));
    QCOMPARE(filasDe(*p.fgDetalle).value(0).section('|', 4),
             QStringLiteral("410.00|25.00|0.00|3.00|0|3|40.00|0.00|800.00"));
    QCOMPARE(p.lblTotal->text(), QStringLiteral("800.00"));
    m_->pulsar(p, "Guardar");
    m_->buscar(p, "15");
    QCOMPARE(p.lblTotal->text(), QStringLiteral("1230.00"));
}

QTEST_MAIN(TstFrmNotaIngreso)
#include "tst_frmNotaIngreso.moc"
