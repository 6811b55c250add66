// The invoice's lines and the figures under them, as the clerk works the grid: Insert and Shift+Insert
// (the reverse of the receipt), the concept that can't stand twice, the lines of credit that refuse
// Delete, Enter and the double click, the double click that leaves the figures old until the next
// key, the discount that opens on focus, and the chain sub-total, discount, total, change.
#include "FacturaEnPantalla.h"

#include <QtTest>

using caja::frmFactura;

class TstFrmFacturaLineas : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void insertarSegunShift_data();
    void insertarSegunShift();
    void conceptoRepetido();
    void lineasDeCredito_data();
    void lineasDeCredito();
    void descuentoYVuelto();
    void descuentoCerradoHastaElFoco();
    void cifrasViejasHastaLaTecla_data();
    void cifrasViejasHastaLaTecla();
    void guardarTrasUnDobleClic();
    void ultimaLineaBorrada();
    void teclasSoloAlEditar();

private:
    frmFactura& pantalla() { return f_->pantalla(); }
    // "Agregar" and a client picked, so that lines may be added by hand.
    void ventaAlCliente();
    QString flete() const {
        return f_->db(QStringLiteral("SELECT ConceptoID FROM Concepto WHERE Descripcion = 'Flete'"));
    }
    std::unique_ptr<FacturaEnPantalla> f_;
};

void TstFrmFacturaLineas::init() {
    f_ = std::make_unique<FacturaEnPantalla>();
}

void TstFrmFacturaLineas::cleanup() {
    f_.reset();
}

void TstFrmFacturaLineas::ventaAlCliente() {
    auto& p = pantalla();
    f_->pulsar(QStringLiteral("Agregar"));
    f_->elegir(QStringLiteral("GONZÁLEZ"));
    QTest::mouseClick(p.cmdCliente, Qt::LeftButton);
}

// Shift alone with Insert offers the concepts, only the ordinary ones; Insert alone or with any other
// key held opens the article search. Closing either adds nothing.
void TstFrmFacturaLineas::insertarSegunShift_data() {
    QTest::addColumn<int>("modificadores");
    QTest::addColumn<QString>("titulo");
    QTest::newRow("Insert") << int(Qt::NoModifier) << "Busca artículos";
    QTest::newRow("Shift+Insert") << int(Qt::ShiftModifier) << "Lista de conceptos";
    QTest::newRow("Ctrl+Insert") << int(Qt::ControlModifier) << "Busca artículos";
    QTest::newRow("Shift+Ctrl+Insert") << int(Qt::ShiftModifier | Qt::ControlModifier) << "Busca artículos";
}

void TstFrmFacturaLineas::insertarSegunShift() {
    QFETCH(int, modificadores);
    QFETCH(QString, titulo);
    ventaAlCliente();
    const bool concepto = titulo == QLatin1String("Lista de conceptos");
    QStringList ofrecidos;
    if (concepto) {
        f_->entorno().alMostrarModal([&ofrecidos](shell::Formulario& lista) {
            auto* rejilla = lista.findChild<QAbstractItemView*>(QStringLiteral("DataGrid"));
            for (int r = 0; rejilla && r < rejilla->model()->rowCount(); ++r)
                ofrecidos << rejilla->model()->index(r, 1).data().toString();
            lista.Unload();
        });
    } else {
        f_->elegir(QString());
    }
    f_->tecla(Qt::Key_Insert, 1, Qt::KeyboardModifiers(modificadores));
    QCOMPARE(f_->entorno().titulosModales.last(), titulo);
    QCOMPARE(f_->filas(), QStringList{"||||||"});
    if (!concepto) return;
    const QString ordinarios = f_->db(QStringLiteral(
        "SELECT group_concat(Descripcion, '|') FROM (SELECT Descripcion FROM Concepto WHERE Tipo IS NULL "
        "ORDER BY Descripcion, ConceptoID)"));
    QCOMPARE(ofrecidos.join(u'|'), ordinarios);
}

// A concept already on the invoice is refused with its message; an article may stand twice.
void TstFrmFacturaLineas::conceptoRepetido() {
    auto& p = pantalla();
    ventaAlCliente();
    f_->agregarConcepto(QStringLiteral("Flete"), QStringLiteral("1"), QStringLiteral("40"));
    QString mensaje;
    f_->elegirDeLista(QStringLiteral("Flete"));
    f_->responder(QStringLiteral("cmdClose"), &mensaje);
    f_->tecla(Qt::Key_Insert, 1, Qt::ShiftModifier);
    QCOMPARE(mensaje, QStringLiteral("El concepto que desea agregar al recibo ya fue incluido."));
    QCOMPARE(f_->entorno().titulosModales.last(), QStringLiteral("Facturas"));
    f_->agregarArticulo(QStringLiteral("ESTUFA"), QStringLiteral("1"), QString());
    f_->agregarArticulo(QStringLiteral("ESTUFA"), QStringLiteral("2"), QString());
    QCOMPARE(f_->filas(), (QStringList{QStringLiteral("0|%1|1|0|Flete|40.00|40.00").arg(flete()),
                                       "2|0|1|0|ESTUFA|130.00|130.00", "2|0|2|0|ESTUFA|130.00|260.00"}));
    QCOMPARE(p.lblSubTotal->text(), QStringLiteral("430.00"));
}

// A line brought in from the application keeps its quantity and price: Delete, Enter and the double
// click each refuse it with their message. A line typed beside it is edited (here to a quantity of 3
// for a concept, which the receipt wouldn't allow) and removed as on any invoice.
void TstFrmFacturaLineas::lineasDeCredito_data() {
    QTest::addColumn<QString>("gesto");
    QTest::addColumn<int>("fila");
    QTest::addColumn<QString>("mensaje"); // "" when the gesture works
    QTest::addColumn<QStringList>("lineas");
    const QString eliminados = QStringLiteral(
        "Los artículos que pertenecen a una solicitud de crédito no pueden ser eliminados por separado.");
    const QString modificados =
        QStringLiteral("Los artículos que pertenecen a una solicitud de crédito no pueden ser modificados.");
    const QStringList todas = {"1|0|1|1|REFRIGERADORA RT38 BLANCO|500.00|500.00",
                               "2|0|2|1|ESTUFA E4 GRIS|130.00|260.00", "0|7|1|0|Flete|40.00|40.00"};
    QTest::newRow("Delete en una línea de crédito") << "Delete" << 1 << eliminados << todas;
    QTest::newRow("Enter en una línea de crédito") << "Enter" << 2 << modificados << todas;
    QTest::newRow("doble clic en una línea de crédito") << "doble clic" << 1 << modificados << todas;
    QTest::newRow("Delete en la línea escrita") << "Delete" << 3 << "" << todas.mid(0, 2);
    QTest::newRow("Enter en la línea escrita")
        << "Enter" << 3 << "" << (todas.mid(0, 2) << QStringLiteral("0|7|3|0|Flete|40.00|120.00"));
}

void TstFrmFacturaLineas::lineasDeCredito() {
    QFETCH(QString, gesto);
    QFETCH(int, fila);
    QFETCH(QString, mensaje);
    QFETCH(QStringList, lineas);
    QCOMPARE(flete(), QStringLiteral("7"));
    f_->facturarSolicitud(QStringLiteral("50"));
    f_->agregarConcepto(QStringLiteral("Flete"), QStringLiteral("1"), QStringLiteral("40"));
    QString dicho;
    if (!mensaje.isEmpty())
        f_->responder(QStringLiteral("cmdClose"), &dicho);
    else if (gesto != QLatin1String("Delete"))
        f_->responderLinea(QStringLiteral("3"), QString());
    if (gesto == QLatin1String("doble clic"))
        f_->dobleClic(fila);
    else
        f_->tecla(gesto == QLatin1String("Delete") ? Qt::Key_Delete : Qt::Key_Return, fila);
    QCOMPARE(dicho, mensaje);
    QCOMPARE(f_->filas(), lineas);
    QCOMPARE(f_->entorno().modalesSinAccion, 0);
}

// Discount 10.00 on a sub-total of 100.00 gives 90.00 to pay, and 100.00 in cash 10.00 of change; the
// invoice keeps the discount.
void TstFrmFacturaLineas::descuentoYVuelto() {
    auto& p = pantalla();
    ventaAlCliente();
    f_->agregarConcepto(QStringLiteral("Instalación"), QStringLiteral("1"), QStringLiteral("100"));
    QCOMPARE(p.lblSubTotal->text(), QStringLiteral("100.00"));
    QCOMPARE(p.lblTotal->text(), QStringLiteral("100.00"));
    activar(p);
    QTest::mouseClick(p.txtDescuento, Qt::LeftButton);
    f_->escribir(p.txtDescuento, QStringLiteral("10"));
    QCOMPARE(p.txtDescuento->text(), QStringLiteral("10.00"));
    QCOMPARE(p.lblSubTotal->text(), QStringLiteral("100.00"));
    QCOMPARE(p.lblTotal->text(), QStringLiteral("90.00"));
    f_->escribir(p.panBanco->txtEfectivo, QStringLiteral("100"));
    QCOMPARE(p.panBanco->lblTotalRecibido->text(), QStringLiteral("100.00"));
    QCOMPARE(p.panBanco->lblVuelto->text(), QStringLiteral("10.00"));
    f_->pulsar(QStringLiteral("Guardar"));
    QCOMPARE(
        f_->db("SELECT Descuento || '|' || Efectivo || '|' || Vuelto FROM Factura WHERE NumeroFactura = 8"),
        QStringLiteral("10.0|100.0|10.0"));
}

// The discount stands grey and red, locked and out of the tab order; the pointer's focus opens it with
// its text selected, and leaving locks it again.
void TstFrmFacturaLineas::descuentoCerradoHastaElFoco() {
    auto& p = pantalla();
    ventaAlCliente();
    QCOMPARE(p.txtDescuento->BackColor(), QColor(224, 224, 224));
    QCOMPARE(p.txtDescuento->ForeColor(), QColor(255, 0, 0));
    QVERIFY(p.txtDescuento->Locked());
    QVERIFY(!p.txtDescuento->TabStop());
    p.txtNIT->setFocus();
    QTest::keyClick(p.txtNIT, Qt::Key_Tab);
    QVERIFY(!p.txtDescuento->hasFocus());
    activar(p);
    QTest::mouseClick(p.txtDescuento, Qt::LeftButton);
    QVERIFY(p.txtDescuento->hasFocus());
    QVERIFY(!p.txtDescuento->Locked());
    QCOMPARE(p.txtDescuento->selectedText(), p.txtDescuento->text());
    QVERIFY(!p.txtDescuento->text().isEmpty());
    QTest::keyClick(p.txtDescuento, Qt::Key_Tab);
    QVERIFY(p.txtDescuento->Locked());
}

// A double click that changes a price shows the line's new total over the old figures; the next key
// in the grid (an arrow) works them out again. Enter works them out at once.
void TstFrmFacturaLineas::cifrasViejasHastaLaTecla_data() {
    QTest::addColumn<QString>("gesto");
    QTest::addColumn<QString>("subTotalAntes"); // right after the line changed
    QTest::newRow("doble clic, luego una flecha") << "doble clic"
                                                  << "100.00";
    QTest::newRow("Enter") << "Enter"
                           << "150.00";
}

void TstFrmFacturaLineas::cifrasViejasHastaLaTecla() {
    QFETCH(QString, gesto);
    QFETCH(QString, subTotalAntes);
    auto& p = pantalla();
    ventaAlCliente();
    f_->agregarConcepto(QStringLiteral("Flete"), QStringLiteral("1"), QStringLiteral("100"));
    f_->escribir(p.panBanco->txtEfectivo, QStringLiteral("200"));
    QCOMPARE(p.panBanco->lblVuelto->text(), QStringLiteral("100.00"));
    f_->responderLinea(QString(), QStringLiteral("150"));
    if (gesto == QLatin1String("Enter"))
        f_->tecla(Qt::Key_Return, 1);
    else
        f_->dobleClic(1);
    QCOMPARE(f_->filas(), QStringList{QStringLiteral("0|%1|1|0|Flete|150.00|150.00").arg(flete())});
    QCOMPARE(p.lblSubTotal->text(), subTotalAntes);
    QCOMPARE(p.lblTotal->text(), subTotalAntes);
    f_->tecla(Qt::Key_Down, 1);
    QCOMPARE(p.lblSubTotal->text(), QStringLiteral("150.00"));
    QCOMPARE(p.lblTotal->text(), QStringLiteral("150.00"));
    QCOMPARE(p.panBanco->lblVuelto->text(), QStringLiteral("50.00"));
}

// Saved right after a double click, the invoice stores the new line; the tender was checked against
// the old total.
void TstFrmFacturaLineas::guardarTrasUnDobleClic() {
    auto& p = pantalla();
    ventaAlCliente();
    f_->agregarConcepto(QStringLiteral("Flete"), QStringLiteral("1"), QStringLiteral("100"));
    f_->escribir(p.panBanco->txtEfectivo, QStringLiteral("100"));
    f_->responderLinea(QString(), QStringLiteral("150"));
    f_->dobleClic(1);
    f_->pulsar(QStringLiteral("Guardar"));
    QCOMPARE(Common::TransaccionActiva, 0L);
    QCOMPARE(f_->db("SELECT FD.ConceptoID || '|' || FD.Cantidad || '|' || FD.Precio FROM FacturaDetalle FD "
                    "JOIN Factura F ON F.FacturaID = FD.FacturaID WHERE F.NumeroFactura = 8"),
             QStringLiteral("%1|1|150.0").arg(flete()));
}

// With one line left, Delete leaves the blank row, and the total is 0.00 less the discount.
void TstFrmFacturaLineas::ultimaLineaBorrada() {
    auto& p = pantalla();
    ventaAlCliente();
    f_->agregarConcepto(QStringLiteral("Flete"), QStringLiteral("1"), QStringLiteral("100"));
    activar(p);
    QTest::mouseClick(p.txtDescuento, Qt::LeftButton);
    f_->escribir(p.txtDescuento, QStringLiteral("10"));
    f_->tecla(Qt::Key_Delete, 1);
    QCOMPARE(f_->filas(), QStringList{"||||||"});
    QCOMPARE(p.lblSubTotal->text(), QStringLiteral("0.00"));
    QCOMPARE(p.lblTotal->text(), QStringLiteral("-10.00"));
}

// While browsing the grid takes no line keys and no double click.
void TstFrmFacturaLineas::teclasSoloAlEditar() {
    auto& p = pantalla();
    f_->elegir(QStringLiteral("7"));
    f_->pulsar(QStringLiteral("Buscar"));
    const QStringList antes = f_->filas();
    QCOMPARE(antes.size(), 1);
    for (const Qt::Key k : {Qt::Key_Insert, Qt::Key_Delete, Qt::Key_Return})
        f_->tecla(k, 1);
    f_->dobleClic(1);
    QCOMPARE(f_->filas(), antes);
    QCOMPARE(f_->entorno().modalesMostradas, QStringList{QStringLiteral("frmBusca")});
    QVERIFY(!p.Editando);
}

QTEST_MAIN(TstFrmFacturaLineas)
#include "tst_frmFactura_lineas.moc"
