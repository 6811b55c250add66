// Goods in, opened from "Ingresos" as the clerk opens it: a delivery with a new article and an
// existing one raising stock through the views (the new article created once, even when the note is
// saved again); the deletion of a note, refused when a
// payable document names it; the stale total a changed line leaves. And the line dialog's rules: its
// checks, the margin test one margin passes, the margins that survive only under a clicked option, and
// the empty margin that then fails the save.
#include "MercaderiaEnPantalla.h"
#include "goods/frmNotaIngreso.h"

#include <QtTest>

using mercaderia::frmNotaIngreso;
using mercaderia::frmNotaIngresoArticulo;

class TstFrmNotaIngreso : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        dicho_.clear();
        m_ = std::make_unique<MercaderiaEnPantalla>();
    }
    void cleanup() { m_.reset(); }
    void ingresoConArticuloNuevoYExistente();
    void eliminarNota_data();
    void eliminarNota();
    void cambioDeLineaDejaElTotal();
    void lineaNueva_data();
    void lineaNueva();

private:
    frmNotaIngreso& pantalla() { return m_->abrir<frmNotaIngreso>(QStringLiteral("Ingresos")); }
    // The next dialog's message, into dicho_; answered by its close box.
    void mensaje() { responder(m_->entorno(), "cmdClose", &dicho_); }
    QString dicho_;
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
    escribir(p.txtDescripcion, "Factura 88");
    m_->articuloNuevo({"LAVADORA", "3", "250", "0", "20", "0", "35"});
    m_->tecla(p, Qt::Key_Insert);
    m_->articuloExistente("REFRIGERADORA", "2", "380");
    m_->tecla(p, Qt::Key_Insert);
    // The article found carries its margins, units delivered (0) and stock (3) from the search.
    QCOMPARE(filasDe(*p.fgDetalle),
             (QStringList{"*|LAVADORA|||250.00|20.00|0.00|3.00|||35.00|0.00|750.00",
                          "1|REFRIGERADORA|RT38|BLANCO|380.00|25.00|0.00|2.00|0|3|40.00|0.00|760.00"}));
    QCOMPARE(p.lblTotal->text(), QStringLiteral("1510.00"));

    for (const bool otraVez : {false, true}) {
        if (otraVez) m_->pulsar(p, "Modificar");
        m_->pulsar(p, "Guardar");
        QVERIFY(!p.lblEstado->isVisible());
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
    }
    // The line's cost stays on the line.
    QCOMPARE(m_->db("SELECT Costo FROM Articulo WHERE ArticuloID = 1").toDouble(), 400.0);
}

void TstFrmNotaIngreso::eliminarNota_data() {
    QTest::addColumn<QString>("numero");
    QTest::addColumn<QString>("esperado");
    QTest::newRow("pagada")
        << "15"
        << "No puede eliminarse porque afectaría la intregridad referencial de sus datos.";
    QTest::newRow("sin pagar") << "16"
                               << "";
}

// A note a payable document names stays whole; any other goes with its lines, and its goods leave stock.
void TstFrmNotaIngreso::eliminarNota() {
    QFETCH(QString, numero);
    QFETCH(QString, esperado);
    auto& p = pantalla();
    m_->buscar(p, numero);
    const QString lineas = "SELECT count(*) FROM NotaIngresoDetalle D JOIN NotaIngreso N USING (IngresoID) "
                           "WHERE N.NumeroIngreso = " +
                           numero;
    const double stock = m_->existencia("REFRIGERADORA").toDouble();
    const double cantidad = p.fgDetalle->TextMatrix(1, 7).toDouble();
    QString pregunta;
    responder(m_->entorno(), "Aceptar", &pregunta);
    if (!esperado.isEmpty()) mensaje();
    m_->pulsar(p, "Eliminar");
    QCOMPARE(pregunta, QStringLiteral("¿Desea eliminar esta nota de ingreso?"));
    QCOMPARE(dicho_, esperado);
    QCOMPARE(Common::DE().CN.nivelTransaccion(), 0);
    QCOMPARE(m_->db(lineas), QString(esperado.isEmpty() ? "0" : "1"));
    QCOMPARE(m_->existencia("REFRIGERADORA").toDouble(), stock - (esperado.isEmpty() ? cantidad : 0));
    if (esperado.isEmpty()) QCOMPARE(filasDe(*p.fgDetalle), QStringList{"||||||||||||"});
}

// A changed line keeps its old total, and so does the note, until the note is read again; the quantity
// must be typed again and the name typed over is dropped.
void TstFrmNotaIngreso::cambioDeLineaDejaElTotal() {
    auto& p = pantalla();
    m_->buscar(p, "15");
    QCOMPARE(p.lblTotal->text(), QStringLiteral("800.00"));
    m_->pulsar(p, "Modificar");
    QString cantidadAlAbrir;
    m_->enLinea([&](frmNotaIngresoArticulo& d) {
        cantidadAlAbrir = d.txtCantidad->text();
        escribir(d.txtNombre, "OTRO NOMBRE");
        escribir(d.txtCantidad, "3");
        escribir(d.txtCosto, "410");
        pulsarBoton(d.cmdBoton, "&Aceptar");
    });
    dobleClicEnGrilla(p, *p.fgDetalle, 1);
    QCOMPARE(cantidadAlAbrir, QStringLiteral("0.00"));
    QCOMPARE(filasDe(*p.fgDetalle),
             QStringList{"1|REFRIGERADORA|RT38|BLANCO|410.00|25.00|0.00|3.00|0|3|40.00|0.00|800.00"});
    QCOMPARE(p.lblTotal->text(), QStringLiteral("800.00"));
    m_->pulsar(p, "Guardar");
    m_->buscar(p, "15");
    QCOMPARE(p.lblTotal->text(), QStringLiteral("1230.00"));
}

// The line typed after "Nuevo" ("Nuevo" opens the percentages). What comes back: the message of
// "&Aceptar", or the line's cells 5, 6, 10 and 11; then what "Guardar" tells ("" when it saves).
void TstFrmNotaIngreso::lineaNueva_data() {
    QTest::addColumn<QStringList>("tecleado");
    QTest::addColumn<QString>("esperado");
    QTest::addColumn<QString>("alGuardar");
    const auto fila = [](const char* nombre, const char* tecleado, const char* esperado,
                         const char* alGuardar = "") {
        QTest::newRow(nombre) << QString(tecleado).split(',') << esperado << alGuardar;
    };
    fila("sin nombre", " ,1,10,0,20,0,35", "Debe escribir al menos el nombre del artículo.");
    fila("cantidad 0", "ESTUFA,0,10,0,20,0,35", "La cantidad de artículos que ingresan no es válida.");
    fila("costo no numérico", "ESTUFA,1,abc,0,20,0,35", "El costo del artículo no es válido.");
    fila("ningún margen", "ESTUFA,1,10,0,0,1,",
         "Debe especificar el margen de ganancia estimado al contado y a crédito.");
    fila("porcentajes elegidos", "ESTUFA,2.50,10,0,20,0,35", "20.00|0.00|35.00|0.00");
    fila("un solo margen", "ESTUFA,1.00,10,1,50,1,", "0.00|50.00|0.00|0.00");
    fila("porcentaje sin su opción", "ESTUFA,1.00,10,-,20,-,", "0.00||0.00|", "No coinciden los tipos");
}

void TstFrmNotaIngreso::lineaNueva() {
    QFETCH(QStringList, tecleado);
    QFETCH(QString, esperado);
    QFETCH(QString, alGuardar);
    const bool rehusada = !esperado.contains('|');
    auto& p = pantalla();
    m_->pulsar(p, "Agregar");
    m_->proveedor(p, "DISTRIBUIDORA CENTRAL");
    escribir(p.txtDescripcion, "Factura 17");
    m_->articuloNuevo(tecleado, rehusada ? &dicho_ : nullptr);
    m_->tecla(p, Qt::Key_Insert);
    const QStringList celdas = filasDe(*p.fgDetalle).value(0).split('|');
    if (rehusada) {
        QCOMPARE(dicho_, esperado);
        QCOMPARE(celdas.join('|'), QStringLiteral("||||||||||||"));
        return;
    }
    QCOMPARE(celdas.mid(0, 5).join('|'), "*|" + tecleado[0] + "|||10.00");
    QCOMPARE(celdas.at(7), tecleado[1]);
    QCOMPARE(QStringList({celdas.at(5), celdas.at(6), celdas.at(10), celdas.at(11)}).join('|'), esperado);

    const int articulos = m_->db("SELECT count(*) FROM Articulo").toInt();
    if (!alGuardar.isEmpty()) mensaje();
    m_->pulsar(p, "Guardar");
    QCOMPARE(dicho_, alGuardar);
    if (!alGuardar.isEmpty()) m_->pulsar(p, "Cancelar");
    QCOMPARE(m_->db("SELECT count(*) FROM Articulo").toInt(), articulos + (alGuardar.isEmpty() ? 1 : 0));
    QCOMPARE(Common::TransaccionActiva, 0L);
}

QTEST_MAIN(TstFrmNotaIngreso)
#include "tst_frmNotaIngreso.moc"
