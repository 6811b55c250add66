// The plan of a credit application and its lines, as the clerk fills them: each plan field works
// on the texts of the others as it is left, the lines add up at every key on the grid, a line comes
// through the article search and the line dialog, and an application brought up reads its amounts
// back from the texts the screen shows.
#include "SolicitudEnPantalla.h"

#include <QLabel>
#include <QtTest>

using namespace credito;

class TstFrmSolicitudPlan : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void plan_data();
    void plan();
    void lineaNuevaTrasElPlan_data();
    void lineaNuevaTrasElPlan();
    void descuentoGuardado_data();
    void descuentoGuardado();
    void cifrasDeMilesAlMostrar_data();
    void cifrasDeMilesAlMostrar();
    void insertarLinea_data();
    void insertarLinea();
    void editarLinea_data();
    void editarLinea();
    void dobleClicEnLaFilaEnBlanco_data();
    void dobleClicEnLaFilaEnBlanco();
    void lineasEnLaRejilla_data();
    void lineasEnLaRejilla();
    void teclasSoloEditando_data();
    void teclasSoloEditando();
    void lineasLeidas_data();
    void lineasLeidas();

private:
    frmSolicitud& pantalla() { return s_->pantalla(); }
    void pulsar(const QString& caption) { s_->pulsar(caption); }
    QString db(const QString& consulta) const { return s_->db(consulta); }
    // The text a control of the screen shows, by its name: a box or a label.
    QString texto(const QString& nombre);
    // "Agregar" and, when a total is given, one line of that amount (a stove at that price).
    void nuevaConTotal(const QString& total);
    std::unique_ptr<SolicitudEnPantalla> s_;
};

void TstFrmSolicitudPlan::init() {
    s_ = std::make_unique<SolicitudEnPantalla>();
}

void TstFrmSolicitudPlan::cleanup() {
    s_.reset();
}

QString TstFrmSolicitudPlan::texto(const QString& nombre) {
    QWidget* c = control(&pantalla(), nombre);
    if (auto* l = qobject_cast<QLabel*>(c)) return l->text();
    if (auto* l = qobject_cast<QLineEdit*>(c)) return l->text();
    QTest::qFail(qPrintable("no box or label " + nombre), __FILE__, __LINE__);
    return {};
}

void TstFrmSolicitudPlan::nuevaConTotal(const QString& total) {
    pulsar("Agregar");
    if (!total.isEmpty()) s_->insertarLinea(QStringLiteral("ESTUFA"), QStringLiteral("1"), total);
    QCOMPARE(pantalla().lblTotalPagar->text(), total.isEmpty() ? QStringLiteral("0.00") : total + ".00");
}

// Fields typed and left in order ("txtEnganche=-100" types -100 and leaves with Tab), then what the
// plan shows. The total is one line of that amount; none for "".
void TstFrmSolicitudPlan::plan_data() {
    QTest::addColumn<QString>("total");
    QTest::addColumn<QStringList>("pasos");
    QTest::addColumn<QStringList>("esperado");
    QTest::newRow("12.7 meses se dividen como 12")
        << "1200" << QStringList{"txtMesesCredito=12.7"}
        << QStringList{"txtMesesCredito=12", "lblTotalCredito=1200.00", "lblAbonoMensual=100.00"};
    QTest::newRow("800.00 en 12 meses: 66.67 cada uno")
        << "800" << QStringList{"txtMesesCredito=12"}
        << QStringList{"lblTotalPagar=800.00", "lblTotalCredito=800.00", "lblAbonoMensual=66.67"};
    QTest::newRow("enganche negativo sube el saldo")
        << "800" << QStringList{"txtEnganche=-100"}
        << QStringList{"txtEnganche=-100.00", "lblTotalCredito=900.00", "lblAbonoMensual=75.00"};
    QTest::newRow("descuento, enganche y primer pago; la mitad se redondea hacia arriba")
        << "1000" << QStringList{"txtDescuento=100", "txtEnganche=200", "txtPrimerPago=50.5"}
        << QStringList{"txtDescuento=100.00", "txtDescuentoP=10.00", "txtPrimerPago=50.50",
                       "lblTotalCredito=649.50", "lblAbonoMensual=54.13"};
    QTest::newRow("porcentaje sin total: descuento 0.00")
        << "" << QStringList{"txtDescuentoP=15"}
        << QStringList{"txtDescuentoP=15.00", "txtDescuento=0.00", "lblTotalCredito=0.00"};
    QTest::newRow("descuento sin total: porcentaje 0.00")
        << "" << QStringList{"txtDescuento=50"}
        << QStringList{"txtDescuento=50.00", "txtDescuentoP=0.00", "lblTotalCredito=-50.00"};
    QTest::newRow("descuento que no es un porcentaje redondo: el abono no se mueve")
        << "300" << QStringList{"txtDescuento=100"}
        << QStringList{"txtDescuentoP=33.33", "lblTotalCredito=200.00", "lblAbonoMensual=0.00"};
    QTest::newRow("porcentaje: el monto en centavos")
        << "333" << QStringList{"txtDescuentoP=10"}
        << QStringList{"txtDescuento=33.30", "lblTotalCredito=299.70"};
    QTest::newRow("meses 0: el abono se queda")
        << "800" << QStringList{"txtMesesCredito=12", "txtMesesCredito=0", "txtEnganche=200"}
        << QStringList{"txtMesesCredito=0", "lblTotalCredito=600.00", "lblAbonoMensual=66.67"};
    QTest::newRow("meses con texto: su número") << "600" << QStringList{"txtMesesCredito=6 meses"}
                                                << QStringList{"txtMesesCredito=6", "lblAbonoMensual=100.00"};
    QTest::newRow("día 45: se acepta") << "" << QStringList{"txtDiaPago=45"} << QStringList{"txtDiaPago=45"};
    QTest::newRow("día con decimales: entero")
        << "" << QStringList{"txtDiaPago=7.9"} << QStringList{"txtDiaPago=7"};
    QTest::newRow("monto con coma: hasta la coma")
        << "2000" << QStringList{"txtEnganche=1,500"}
        << QStringList{"txtEnganche=1.00", "lblTotalCredito=1999.00", "lblAbonoMensual=166.58"};
}

void TstFrmSolicitudPlan::plan() {
    QFETCH(QString, total);
    QFETCH(QStringList, pasos);
    QFETCH(QStringList, esperado);
    nuevaConTotal(total);
    for (const QString& paso : pasos) {
        const QString nombre = paso.section(u'=', 0, 0);
        QWidget* caja = control(&pantalla(), nombre);
        QVERIFY2(caja, qPrintable(nombre));
        escribir(caja, paso.section(u'=', 1));
    }
    QStringList visto;
    for (const QString& e : esperado)
        visto << e.section(u'=', 0, 0) + u'=' + texto(e.section(u'=', 0, 0));
    QCOMPARE(visto, esperado);
}

// A line added after the plan was filled raises the total at once; the balance follows only when a
// plan field is left, and the instalment only from the down payment on (the discounts leave it).
void TstFrmSolicitudPlan::lineaNuevaTrasElPlan_data() {
    QTest::addColumn<QString>("campo"); // the plan field left afterwards
    QTest::addColumn<QString>("saldo");
    QTest::addColumn<QString>("abono");
    QTest::newRow("Descuento (%)") << "txtDescuentoP"
                                   << "900.00"
                                   << "58.33";
    QTest::newRow("Descuento (Q)") << "txtDescuento"
                                   << "900.00"
                                   << "58.33";
    QTest::newRow("Enganche") << "txtEnganche"
                              << "900.00"
                              << "75.00";
    QTest::newRow("Primer pago") << "txtPrimerPago"
                                 << "900.00"
                                 << "75.00";
    QTest::newRow("Meses de crédito") << "txtMesesCredito"
                                      << "900.00"
                                      << "75.00";
    QTest::newRow("Día de pago: nada") << "txtDiaPago"
                                       << "700.00"
                                       << "58.33";
}

void TstFrmSolicitudPlan::lineaNuevaTrasElPlan() {
    QFETCH(QString, campo);
    QFETCH(QString, saldo);
    QFETCH(QString, abono);
    auto& p = pantalla();
    nuevaConTotal(QStringLiteral("800"));
    escribir(p.txtEnganche, QStringLiteral("100"));
    QCOMPARE(p.lblTotalCredito->text(), QStringLiteral("700.00"));
    QCOMPARE(p.lblAbonoMensual->text(), QStringLiteral("58.33"));
    s_->insertarLinea(QStringLiteral("ESTUFA"), QStringLiteral("1"), QStringLiteral("200"));
    QCOMPARE(p.lblTotalPagar->text(), QStringLiteral("1000.00"));
    QCOMPARE(p.lblTotalCredito->text(), QStringLiteral("700.00"));
    QCOMPARE(p.lblAbonoMensual->text(), QStringLiteral("58.33"));
    salirCon(control(&p, campo));
    QCOMPARE(p.lblTotalCredito->text(), saldo);
    QCOMPARE(p.lblAbonoMensual->text(), abono);
}

// The discount is stored in quetzales, whichever field it was typed in; shown again, its percentage is
// worked out anew from the amount.
void TstFrmSolicitudPlan::descuentoGuardado_data() {
    QTest::addColumn<QString>("total");
    QTest::addColumn<QString>("campo");
    QTest::addColumn<QString>("tecleado");
    QTest::addColumn<QString>("porcentaje"); // shown while typing
    QTest::addColumn<QString>("guardado");   // Descuento as stored
    QTest::addColumn<QString>("alMostrar");  // the percentage shown when the application is brought up
    QTest::newRow("100 de 300: 33.33 %, se guardan los 100") << "300"
                                                             << "txtDescuento"
                                                             << "100"
                                                             << "33.33"
                                                             << "100.00"
                                                             << "33.33";
    QTest::newRow("12.5 % de 333: se guardan 41.63, que son 12.50 %") << "333"
                                                                      << "txtDescuentoP"
                                                                      << "12.5"
                                                                      << "12.50"
                                                                      << "41.63"
                                                                      << "12.50";
    QTest::newRow("33.33 % de 100: se guardan 33.33") << "100"
                                                      << "txtDescuentoP"
                                                      << "33.333"
                                                      << "33.33"
                                                      << "33.33"
                                                      << "33.33";
}

void TstFrmSolicitudPlan::descuentoGuardado() {
    QFETCH(QString, total);
    QFETCH(QString, campo);
    QFETCH(QString, tecleado);
    QFETCH(QString, porcentaje);
    QFETCH(QString, guardado);
    QFETCH(QString, alMostrar);
    auto& p = pantalla();
    pulsar("Agregar");
    s_->elegirCliente(QStringLiteral("GONZÁLEZ"));
    s_->elegirFiador(QStringLiteral("MARIO"));
    escribir(p.txtFiadorParentesco, QStringLiteral("hermano"));
    s_->insertarLinea(QStringLiteral("ESTUFA"), QStringLiteral("1"), total);
    escribir(control(&p, campo), tecleado);
    QCOMPARE(p.txtDescuentoP->text(), porcentaje);
    pulsar("Guardar");
    QCOMPARE(db("SELECT printf('%.2f', Descuento) FROM Solicitud WHERE NumeroSolicitud = 42"), guardado);
    s_->buscarSolicitud(QStringLiteral("42"));
    QCOMPARE(p.txtDescuento->text(), guardado);
    QCOMPARE(p.txtDescuentoP->text(), alMostrar);
}

// Amounts come from the row as "#,##0.00" and are read up to the comma: brought up, an amount of
// 1,000 or more enters the plan as its thousands, so the balance and the instalment are too high; and
// leaving the field under "Modificar" rewrites it so, which "Guardar" stores. Under 1,000 nothing moves.
void TstFrmSolicitudPlan::cifrasDeMilesAlMostrar_data() {
    QTest::addColumn<QString>("columna");
    QTest::addColumn<QString>("valor");
    QTest::addColumn<QString>("mostrado");
    QTest::addColumn<QString>("porcentaje");
    QTest::addColumn<QString>("saldo");
    QTest::addColumn<QString>("abono");
    QTest::addColumn<QString>("alSalir");
    QTest::addColumn<QString>("guardado");
    QTest::newRow("enganche de 1,500.00: entra 1") << "Enganche"
                                                   << "1500"
                                                   << "1,500.00"
                                                   << "0.00"
                                                   << "2999.00"
                                                   << "249.92"
                                                   << "1.00"
                                                   << "1.00";
    QTest::newRow("enganche de 999.50: entra entero") << "Enganche"
                                                      << "999.5"
                                                      << "999.50"
                                                      << "0.00"
                                                      << "2000.50"
                                                      << "166.71"
                                                      << "999.50"
                                                      << "999.50";
    QTest::newRow("descuento de 1,200.00: 1 y su porcentaje") << "Descuento"
                                                              << "1200"
                                                              << "1,200.00"
                                                              << "0.03"
                                                              << "2999.00"
                                                              << "249.92"
                                                              << "1.00"
                                                              << "1.00";
    QTest::newRow("primer pago de 2,000.00: entra 2") << "PrimerPago"
                                                      << "2000"
                                                      << "2,000.00"
                                                      << "0.00"
                                                      << "2998.00"
                                                      << "249.83"
                                                      << "2.00"
                                                      << "2.00";
}

void TstFrmSolicitudPlan::cifrasDeMilesAlMostrar() {
    QFETCH(QString, columna);
    QFETCH(QString, valor);
    QFETCH(QString, mostrado);
    QFETCH(QString, porcentaje);
    QFETCH(QString, saldo);
    QFETCH(QString, abono);
    QFETCH(QString, alSalir);
    QFETCH(QString, guardado);
    s_->base().sqlite(
        QStringLiteral("UPDATE SolicitudDetalle SET ArticuloID = 1, Cantidad = 6, Precio = 3000 "
                       "WHERE SolicitudID = 1; UPDATE Solicitud SET Enganche = 0, %1 = %2 WHERE "
                       "SolicitudID = 1;")
            .arg(columna, valor));
    auto& p = pantalla();
    s_->buscarSolicitud(QStringLiteral("40"));
    auto* caja = control<QLineEdit>(&p, "txt" + columna);
    QCOMPARE(caja->text(), mostrado);
    QCOMPARE(p.lblTotalPagar->text(), QStringLiteral("3000.00"));
    QCOMPARE(p.txtDescuentoP->text(), porcentaje);
    QCOMPARE(p.lblTotalCredito->text(), saldo);
    QCOMPARE(p.lblAbonoMensual->text(), abono);
    pulsar("Modificar");
    QCOMPARE(caja->text(), mostrado);
    QCOMPARE(p.lblTotalCredito->text(), saldo);
    salirCon(caja);
    QCOMPARE(caja->text(), alSalir);
    pulsar("Guardar");
    QCOMPARE(db("SELECT printf('%.2f', " + columna + ") FROM Solicitud WHERE SolicitudID = 1"), guardado);
}

// Insert: the article picked, its proposed price (the cost and the cash margin: the percentage when
// above 0, else the amount) and the view's starting quantity of 1; the line takes quantity times price.
void TstFrmSolicitudPlan::insertarLinea_data() {
    QTest::addColumn<QString>("articulo");
    QTest::addColumn<QString>("cantidad"); // typed in the dialog, if any
    QTest::addColumn<QString>("precio");   // typed in the dialog, if any
    QTest::addColumn<QString>("propuesto");
    QTest::addColumn<QString>("linea");
    QTest::newRow("margen en porcentaje: 400 + 25 %") << "REFRIGERADORA"
                                                      << ""
                                                      << ""
                                                      << "500.00"
                                                      << "1|1|REFRIGERADORA RT38 BLANCO|500.00";
    QTest::newRow("margen en valor: 100 + 30") << "ESTUFA"
                                               << ""
                                               << ""
                                               << "130.00"
                                               << "2|1|ESTUFA E4 GRIS|130.00";
    QTest::newRow("3 unidades: el precio por 3") << "ESTUFA"
                                                 << "3"
                                                 << ""
                                                 << "130.00"
                                                 << "2|3|ESTUFA E4 GRIS|390.00";
    QTest::newRow("precio tecleado, 2 unidades") << "REFRIGERADORA"
                                                 << "2"
                                                 << "450.25"
                                                 << "500.00"
                                                 << "1|2|REFRIGERADORA RT38 BLANCO|900.50";
}

void TstFrmSolicitudPlan::insertarLinea() {
    QFETCH(QString, articulo);
    QFETCH(QString, cantidad);
    QFETCH(QString, precio);
    QFETCH(QString, propuesto);
    QFETCH(QString, linea);
    auto& p = pantalla();
    pulsar("Agregar");
    s_->insertarLinea(articulo, cantidad, precio);
    QCOMPARE(s_->entorno().modalesMostradas, (QStringList{"frmBusca", "frmSolicitudArticulo"}));
    QCOMPARE(s_->entorno().titulosModales, (QStringList{"Busca articulos", "Artículos"}));
    QCOMPARE(s_->cantidadAlAbrir, QStringLiteral("1"));
    QCOMPARE(s_->precioAlAbrir, propuesto);
    QVERIFY2(qAbs(s_->lugarDelDialogo.x() - 300) < 20 && qAbs(s_->lugarDelDialogo.y() - 300) < 20,
             "at the screen's Left + 300, Top + 300");
    QCOMPARE(s_->filas(), QStringList{linea});
    QCOMPARE(p.lblTotalPagar->text(), linea.section(u'|', 3));
}

// Editing a line (Enter or a double click) opens the dialog on its quantity and its amount, and the
// line takes back the dialog's price as it stands, not multiplied. Enter adds up the lines at once; a
// double click only at the next key on the grid.
void TstFrmSolicitudPlan::editarLinea_data() {
    QTest::addColumn<bool>("enter");
    QTest::addColumn<QString>("cantidad");
    QTest::addColumn<QString>("precio");
    QTest::addColumn<QString>("cierre");
    QTest::addColumn<QString>("linea");
    QTest::addColumn<QString>("totalAlVolver");
    QTest::addColumn<QString>("totalTrasTecla");
    QTest::newRow("Enter, otra cantidad: el importe no se multiplica")
        << true << "3"
        << ""
        << "&Aceptar"
        << "1|3|REFRIGERADORA RT38 BLANCO|1000.00"
        << "1000.00"
        << "1000.00";
    QTest::newRow("Enter, otro precio: el total al momento") << true << ""
                                                             << "900"
                                                             << "&Aceptar"
                                                             << "1|2|REFRIGERADORA RT38 BLANCO|900.00"
                                                             << "900.00"
                                                             << "900.00";
    QTest::newRow("doble clic, otro precio: el total a la tecla siguiente")
        << false << ""
        << "900"
        << "&Aceptar"
        << "1|2|REFRIGERADORA RT38 BLANCO|900.00"
        << "1000.00"
        << "900.00";
    QTest::newRow("doble clic, otra cantidad") << false << "5"
                                               << ""
                                               << "&Aceptar"
                                               << "1|5|REFRIGERADORA RT38 BLANCO|1000.00"
                                               << "1000.00"
                                               << "1000.00";
    QTest::newRow("Enter, cancelado: la línea queda") << true << "7"
                                                      << "10"
                                                      << "&Cancelar"
                                                      << "1|2|REFRIGERADORA RT38 BLANCO|1000.00"
                                                      << "1000.00"
                                                      << "1000.00";
}

void TstFrmSolicitudPlan::editarLinea() {
    QFETCH(bool, enter);
    QFETCH(QString, cantidad);
    QFETCH(QString, precio);
    QFETCH(QString, cierre);
    QFETCH(QString, linea);
    QFETCH(QString, totalAlVolver);
    QFETCH(QString, totalTrasTecla);
    auto& p = pantalla();
    pulsar("Agregar");
    s_->insertarLinea(QStringLiteral("REFRIGERADORA"), QStringLiteral("2"));
    QCOMPARE(s_->filas(), QStringList{"1|2|REFRIGERADORA RT38 BLANCO|1000.00"});
    s_->responderLinea(cantidad, precio, cierre);
    if (enter)
        s_->tecla(Qt::Key_Return);
    else
        s_->dobleClic(1);
    QCOMPARE(s_->entorno().modalesMostradas.last(), QStringLiteral("frmSolicitudArticulo"));
    QCOMPARE(s_->cantidadAlAbrir, QStringLiteral("2"));
    QCOMPARE(s_->precioAlAbrir, QStringLiteral("1000.00")); // the line's amount
    QCOMPARE(s_->filas(), QStringList{linea});
    QCOMPARE(p.lblTotalPagar->text(), totalAlVolver);
    s_->tecla(Qt::Key_Right);
    QCOMPARE(p.lblTotalPagar->text(), totalTrasTecla);
}

// A double click on the blank row of an empty grid opens the dialog with nothing loaded, and whatever
// the clerk does there no line comes of it: there is no article.
void TstFrmSolicitudPlan::dobleClicEnLaFilaEnBlanco_data() {
    QTest::addColumn<QString>("cierre");
    QTest::newRow("aceptado con cantidad y precio") << "&Aceptar";
    QTest::newRow("cancelado") << "&Cancelar";
}

void TstFrmSolicitudPlan::dobleClicEnLaFilaEnBlanco() {
    QFETCH(QString, cierre);
    auto& p = pantalla();
    pulsar("Agregar");
    s_->responderLinea(QStringLiteral("2"), QStringLiteral("10"), cierre);
    s_->dobleClic(1);
    QCOMPARE(s_->entorno().modalesMostradas, QStringList{"frmSolicitudArticulo"});
    QCOMPARE(s_->cantidadAlAbrir, QString());
    QCOMPARE(s_->precioAlAbrir, QStringLiteral("0.00"));
    QCOMPARE(s_->filas(), QStringList{"|||"});
    s_->tecla(Qt::Key_Right);
    QCOMPARE(p.lblTotalPagar->text(), QStringLiteral("0.00"));
}

// Lines added ("+ESTUFA"; "+ESTUFA:&Cancelar" closes the dialog that way; "+" closes the search) and
// removed ("-2", Delete on that row), then the grid and its total.
void TstFrmSolicitudPlan::lineasEnLaRejilla_data() {
    QTest::addColumn<QStringList>("pasos");
    QTest::addColumn<QStringList>("filas");
    QTest::addColumn<QString>("total");
    const QString estufa = QStringLiteral("2|1|ESTUFA E4 GRIS|130.00");
    const QString refri = QStringLiteral("1|1|REFRIGERADORA RT38 BLANCO|500.00");
    QTest::newRow("la primera reemplaza la fila en blanco")
        << QStringList{"+ESTUFA"} << QStringList{estufa} << "130.00";
    QTest::newRow("la segunda va debajo")
        << QStringList{"+ESTUFA", "+REFRIGERADORA"} << QStringList{estufa, refri} << "630.00";
    QTest::newRow("quitar la única deja una fila en blanco")
        << QStringList{"+ESTUFA", "-1"} << QStringList{"|||"} << "0.00";
    QTest::newRow("quitar la primera de dos")
        << QStringList{"+ESTUFA", "+REFRIGERADORA", "-1"} << QStringList{refri} << "500.00";
    QTest::newRow("quitar la segunda de dos")
        << QStringList{"+ESTUFA", "+REFRIGERADORA", "-2"} << QStringList{estufa} << "130.00";
    QTest::newRow("vaciada, la siguiente reemplaza la fila en blanco")
        << QStringList{"+ESTUFA", "-1", "+REFRIGERADORA"} << QStringList{refri} << "500.00";
    QTest::newRow("búsqueda cerrada: nada") << QStringList{"+"} << QStringList{"|||"} << "0.00";
    QTest::newRow("diálogo cancelado tras elegir: nada")
        << QStringList{"+ESTUFA:&Cancelar"} << QStringList{"|||"} << "0.00";
    QTest::newRow("diálogo cerrado con su caja: nada")
        << QStringList{"+ESTUFA:cmdClose"} << QStringList{"|||"} << "0.00";
    QTest::newRow("cancelado con líneas: quedan las que había")
        << QStringList{"+ESTUFA", "+REFRIGERADORA:&Cancelar"} << QStringList{estufa} << "130.00";
}

void TstFrmSolicitudPlan::lineasEnLaRejilla() {
    QFETCH(QStringList, pasos);
    QFETCH(QStringList, filas);
    QFETCH(QString, total);
    auto& p = pantalla();
    pulsar("Agregar");
    QCOMPARE(s_->filas(), QStringList{"|||"});
    for (const QString& paso : pasos) {
        if (paso.startsWith(u'-')) {
            s_->tecla(Qt::Key_Delete, paso.mid(1).toInt());
            continue;
        }
        const QString articulo = paso.mid(1).section(u':', 0, 0);
        const QString cierre = paso.contains(u':') ? paso.section(u':', 1) : QStringLiteral("&Aceptar");
        s_->insertarLinea(articulo, {}, {}, cierre);
    }
    QCOMPARE(s_->filas(), filas);
    QCOMPARE(p.lblTotalPagar->text(), total);
}

// While browsing, the grid's keys and the double click do nothing: no dialog (one would fail the
// test), no line changed.
void TstFrmSolicitudPlan::teclasSoloEditando_data() {
    QTest::addColumn<int>("tecla"); // 0: a double click
    QTest::newRow("Insert") << int(Qt::Key_Insert);
    QTest::newRow("Delete") << int(Qt::Key_Delete);
    QTest::newRow("Enter") << int(Qt::Key_Return);
    QTest::newRow("doble clic") << 0;
}

void TstFrmSolicitudPlan::teclasSoloEditando() {
    QFETCH(int, tecla);
    auto& p = pantalla();
    s_->buscarSolicitud(QStringLiteral("40"));
    const int mostradas = s_->entorno().modalesMostradas.size();
    if (tecla)
        s_->tecla(Qt::Key(tecla));
    else
        s_->dobleClic(1);
    QCOMPARE(s_->entorno().modalesMostradas.size(), mostradas);
    QCOMPARE(s_->filas(), QStringList{"2|3.00|ESTUFA E4 GRIS|390.00"});
    QCOMPARE(p.lblTotalPagar->text(), QStringLiteral("390.00"));
}

// Lines read back: the quantity with two decimals, which is the text a later save inserts; a line
// whose article no longer exists isn't read, and that save leaves it out.
void TstFrmSolicitudPlan::lineasLeidas_data() {
    QTest::addColumn<QString>("arreglo");
    QTest::addColumn<QString>("antes"); // the application's lines in the table before saving
    QTest::newRow("3 unidades: 3.00") << ""
                                      << "2x3=390.00";
    QTest::newRow("artículo que ya no existe") << "INSERT INTO SolicitudDetalle (SolicitudID, ArticuloID, "
                                                  "Cantidad, Precio) VALUES (1, 99, 1, 250);"
                                               << "2x3=390.00;99x1=250.00";
}

void TstFrmSolicitudPlan::lineasLeidas() {
    QFETCH(QString, arreglo);
    QFETCH(QString, antes);
    if (!arreglo.isEmpty()) s_->base().sqlite(arreglo);
    const QString lineas = QStringLiteral("SELECT group_concat(ArticuloID || 'x' || Cantidad || '=' || "
                                          "printf('%.2f', Precio), ';') FROM (SELECT * FROM SolicitudDetalle "
                                          "WHERE SolicitudID = 1 ORDER BY SolicitudDetalleID)");
    QCOMPARE(db(lineas), antes);
    auto& p = pantalla();
    s_->buscarSolicitud(QStringLiteral("40"));
    QCOMPARE(s_->filas(), QStringList{"2|3.00|ESTUFA E4 GRIS|390.00"});
    QCOMPARE(p.lblTotalPagar->text(), QStringLiteral("390.00"));
    QCOMPARE(p.lblTotalCredito->text(), QStringLiteral("290.00")); // less the down payment of 100
    QCOMPARE(p.lblAbonoMensual->text(), QStringLiteral("24.17"));
    pulsar("Modificar");
    QCOMPARE(s_->filas(), QStringList{"2|3.00|ESTUFA E4 GRIS|390.00"});
    pulsar("Guardar");
    QCOMPARE(db(lineas), QStringLiteral("2x3=390.00"));
    QCOMPARE(db("SELECT typeof(Cantidad) FROM SolicitudDetalle WHERE SolicitudID = 1"),
             QStringLiteral("integer"));
    s_->buscarSolicitud(QStringLiteral("40"));
    QCOMPARE(s_->filas(), QStringList{"2|3.00|ESTUFA E4 GRIS|390.00"});
}

QTEST_MAIN(TstFrmSolicitudPlan)
#include "tst_frmSolicitud_plan.moc"
