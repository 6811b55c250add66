// The goods-in line dialog, opened by Insert on a new note as the clerk opens it: its checks in order,
// the margin test that one margin passes, and the margins that survive only where their option was
// clicked; a line left with an empty margin then fails the save, since a new article's figures must
// read as numbers.
#include "MercaderiaEnPantalla.h"
#include "goods/frmNotaIngreso.h"

#include <QtTest>

using mercaderia::frmNotaIngreso;
using mercaderia::frmNotaIngresoArticulo;

class TstFrmNotaIngresoArticulo : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { m_ = std::make_unique<MercaderiaEnPantalla>(); }
    void cleanup() { m_.reset(); }
    void articuloNuevo_data();
    void articuloNuevo();

private:
    std::unique_ptr<MercaderiaEnPantalla> m_;
};

// Each margin group: the option clicked (-1 none) and the figure typed in the field it opened ("Nuevo"
// opens the percentage). `margenes` are the line's cells 5, 6, 10 and 11; `alGuardar` what "Guardar"
// then tells ("" when it saves).
void TstFrmNotaIngresoArticulo::articuloNuevo_data() {
    QTest::addColumn<QString>("nombre");
    QTest::addColumn<QString>("cantidad");
    QTest::addColumn<QString>("costo");
    QTest::addColumn<int>("opcionContado");
    QTest::addColumn<QString>("contado");
    QTest::addColumn<int>("opcionCredito");
    QTest::addColumn<QString>("credito");
    QTest::addColumn<QString>("mensaje");
    QTest::addColumn<QString>("margenes");
    QTest::addColumn<QString>("alGuardar");
    const QString sinMargen = "Debe especificar el margen de ganancia estimado al contado y a crédito.";
    QTest::newRow("sin nombre") << " "
                                << "1"
                                << "10" << 0 << "20" << 0 << "35"
                                << "Debe escribir al menos el nombre del artículo."
                                << ""
                                << "";
    QTest::newRow("cantidad 0") << "ESTUFA"
                                << "0"
                                << "10" << 0 << "20" << 0 << "35"
                                << "La cantidad de artículos que ingresan no es válida."
                                << ""
                                << "";
    QTest::newRow("costo 0") << "ESTUFA"
                             << "1"
                             << "abc" << 0 << "20" << 0 << "35"
                             << "El costo del artículo no es válido."
                             << ""
                             << "";
    QTest::newRow("ningún margen") << "ESTUFA"
                                   << "1"
                                   << "10" << 0 << "0" << 1 << "" << sinMargen << ""
                                   << "";
    QTest::newRow("porcentajes elegidos") << "ESTUFA"
                                          << "2.50"
                                          << "10" << 0 << "20" << 0 << "35"
                                          << ""
                                          << "20.00|0.00|35.00|0.00"
                                          << "";
    QTest::newRow("un solo margen") << "ESTUFA"
                                    << "1.00"
                                    << "10" << 1 << "50" << 1 << ""
                                    << ""
                                    << "0.00|50.00|0.00|0.00"
                                    << "";
    QTest::newRow("porcentaje sin su opción") << "ESTUFA"
                                              << "1.00"
                                              << "10" << -1 << "20" << -1 << ""
                                              << ""
                                              << "0.00||0.00|"
                                              << "No coinciden los tipos";
}

void TstFrmNotaIngresoArticulo::articuloNuevo() {
    QFETCH(QString, nombre);
    QFETCH(QString, cantidad);
    QFETCH(QString, costo);
    QFETCH(int, opcionContado);
    QFETCH(QString, contado);
    QFETCH(int, opcionCredito);
    QFETCH(QString, credito);
    QFETCH(QString, mensaje);
    QFETCH(QString, margenes);
    QFETCH(QString, alGuardar);
    auto& p = m_->abrir<frmNotaIngreso>("Ingresos");
    m_->pulsar(p, "Agregar");
    m_->proveedor(p, "DISTRIBUIDORA CENTRAL");
    escribir(p.txtDescripcion, "Factura 17");
    QString dicho;
    m_->enLinea([&](frmNotaIngresoArticulo& d) {
        pulsarBotonDe(d, "Nuevo");
        escribir(d.txtNombre, nombre);
        escribir(d.txtCantidad, cantidad);
        escribir(d.txtCosto, costo);
        const auto margen = [](shell::ArregloDeOpciones* opciones, int opcion, shell::CajaTexto* porcentaje,
                               shell::CajaTexto* valor, const QString& cifra) {
            if (opcion >= 0) QTest::mouseClick((*opciones)(opcion), Qt::LeftButton);
            if (!cifra.isEmpty()) escribir(opcion == 1 ? valor : porcentaje, cifra);
        };
        margen(d.optContado, opcionContado, d.txtContadoPorcentaje, d.txtContadoValor, contado);
        margen(d.optCredito, opcionCredito, d.txtCreditoPorcentaje, d.txtCreditoValor, credito);
        QCOMPARE(d.optContado->Valor(), opcionContado);
        QCOMPARE(d.lblContadoPrecio->text(), QStringLiteral("0.00"));
        if (!mensaje.isEmpty()) responder(m_->entorno(), "cmdClose", &dicho);
        pulsarBotonDe(d, "&Aceptar");
        if (!mensaje.isEmpty()) pulsarBotonDe(d, "&Cancelar");
    });
    m_->tecla(p, Qt::Key_Insert);
    QCOMPARE(dicho, mensaje);
    const QStringList celdas = filasDe(*p.fgDetalle).value(0).split('|');
    if (!mensaje.isEmpty()) {
        QCOMPARE(celdas.join('|'), QStringLiteral("||||||||||||"));
        return;
    }
    QCOMPARE(celdas.mid(0, 5).join('|'), "*|" + nombre + "|||10.00");
    QCOMPARE(celdas.at(7), cantidad);
    QCOMPARE(QStringList({celdas.at(5), celdas.at(6), celdas.at(10), celdas.at(11)}).join('|'), margenes);

    const QString articulos = m_->db("SELECT count(*) FROM Articulo");
    QString tras;
    if (!alGuardar.isEmpty()) responder(m_->entorno(), "cmdClose", &tras);
    m_->pulsar(p, "Guardar");
    QCOMPARE(tras, alGuardar);
    if (!alGuardar.isEmpty()) {
        QVERIFY(Common::TransaccionActiva > 0);
        m_->pulsar(p, "Cancelar");
    }
    QCOMPARE(m_->db("SELECT count(*) FROM Articulo").toInt(),
             articulos.toInt() + (alGuardar.isEmpty() ? 1 : 0));
    QCOMPARE(Common::TransaccionActiva, 0L);
}

QTEST_MAIN(TstFrmNotaIngresoArticulo)
#include "tst_frmNotaIngresoArticulo.moc"
