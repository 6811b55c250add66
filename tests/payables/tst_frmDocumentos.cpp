// Payable documents, opened from "Pagos" as the clerk opens them: a note paid in part comes back with
// the rest and is paid in full by a cancelled prompt, deleting a document raises the balance again;
// the line keys wait for a supplier, and "Guardar" wants a note; "Modificar", and "Cancelar" after a save the
// store refused past its Update, end the program with nothing committed changed. Last, the instalment
// dialog that no screen opens.
#include "MercaderiaEnPantalla.h"
#include "payables/frmDocumentoPago.h"
#include "payables/frmDocumentos.h"
#include "store/Fallo.h"

#include <QLineEdit>
#include <QtTest>

using pagos::frmDocumentos;

class TstFrmDocumentos : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { m_ = std::make_unique<MercaderiaEnPantalla>(); }
    void cleanup() { m_.reset(); }
    void notaPagadaEnDosDocumentos();
    void teclasSinProveedor();
    void cambiarUnDocumentoTermina_data();
    void cambiarUnDocumentoTermina();
    void abonoAFactura();

private:
    frmDocumentos& pantalla() { return m_->abrir<frmDocumentos>(QStringLiteral("Pagos")); }
    // "Agregar" for ELECTRO MAYORISTA with a description.
    void nuevoDocumento(frmDocumentos& p);
    // Insert with note 16 picked and the amount prompt answered by `boton` after typing `monto`; the
    // amount it proposed is kept.
    void pagarNota16(frmDocumentos& p, const QString& monto, const QString& boton = "Aceptar");
    QString saldo16() const {
        return m_->db("SELECT shw1200_dbl_Saldo FROM vwSaldosXNotaIngreso WHERE hidID = 2");
    }
    QString propuesto_;
    std::unique_ptr<MercaderiaEnPantalla> m_;
};

void TstFrmDocumentos::nuevoDocumento(frmDocumentos& p) {
    m_->pulsar(p, "Agregar");
    m_->proveedor(p, "ELECTRO MAYORISTA");
    escribir(p.txtDescripcion, "Cheque 2002");
}

void TstFrmDocumentos::pagarNota16(frmDocumentos& p, const QString& monto, const QString& boton) {
    elegirEnBusqueda(m_->entorno(), "16");
    m_->entorno().alMostrarModal([this, monto, boton](shell::Formulario& d) {
        auto* caja = d.findChild<QLineEdit*>("txtTexto");
        QVERIFY2(caja, qPrintable(d.objectName() + " is not the text prompt"));
        propuesto_ = caja->text();
        activar(d);
        caja->setFocus();
        caja->selectAll();
        teclear(caja, monto);
        pulsarBoton(static_cast<shell::Marco&>(d).cmdBoton, boton);
    });
    m_->tecla(p, Qt::Key_Insert, p.fgDetalle->Rows() - 1);
}

void TstFrmDocumentos::notaPagadaEnDosDocumentos() {
    QCOMPARE(saldo16().toDouble(), 100.0);
    auto& p = pantalla();
    nuevoDocumento(p);
    QCOMPARE(p.txtNumeroDocumento->text(), QStringLiteral("4"));
    pagarNota16(p, "40");
    QCOMPARE(propuesto_, QStringLiteral("100.00"));
    QCOMPARE(filasDe(*p.fgDetalle), QStringList{"2|16|02/03/2026|Factura 16|40.00|"});
    QCOMPARE(p.lblTotal->text(), QStringLiteral("40.00"));
    m_->pulsar(p, "Guardar");
    QCOMPARE(Common::TransaccionActiva, 0L);
    QCOMPARE(saldo16().toDouble(), 60.0);

    nuevoDocumento(p);
    pagarNota16(p, "1", "Cancelar");
    QCOMPARE(propuesto_, QStringLiteral("60.00"));
    QCOMPARE(p.lblTotal->text(), QStringLiteral("60.00"));
    m_->pulsar(p, "Guardar");
    QCOMPARE(saldo16().toDouble(), 0.0);
    m_->buscar(p, "5");
    QCOMPARE(filasDe(*p.fgDetalle), QStringList{"2|16|02/03/2026|Factura 16|60.00|"});
    responder(m_->entorno(), "Aceptar");
    m_->pulsar(p, "Eliminar");
    QCOMPARE(saldo16().toDouble(), 60.0);
    QCOMPARE(m_->db("SELECT count(*) FROM Documento WHERE NumeroDocumento = 5"), QStringLiteral("0"));
    QCOMPARE(p.lblTotal->text(), QStringLiteral("0.00"));
}

// No supplier, no key: no search opens (the strict driver would fail on it) and nothing changes; the
// blank row alone is no note to pay.
void TstFrmDocumentos::teclasSinProveedor() {
    auto& p = pantalla();
    m_->pulsar(p, "Agregar");
    escribir(p.txtDescripcion, "Cheque 2002");
    for (Qt::Key k : {Qt::Key_Insert, Qt::Key_Return, Qt::Key_Delete})
        m_->tecla(p, k);
    QCOMPARE(filasDe(*p.fgDetalle), QStringList{"|||||"});
    m_->proveedor(p, "ELECTRO MAYORISTA");
    QString dicho;
    responder(m_->entorno(), "cmdClose", &dicho);
    m_->pulsar(p, "Guardar");
    QCOMPARE(dicho, QStringLiteral("Debe especificar la lista de notas de ingreso a pagar."));
    QVERIFY(Common::TransaccionActiva > 0);
}

void TstFrmDocumentos::cambiarUnDocumentoTermina_data() {
    QTest::addColumn<QString>("boton");
    QTest::newRow("Modificar") << "Modificar";
    QTest::newRow("Cancelar tras un guardado rehusado") << "Cancelar";
}

// Both read the goods-in note's key column, which a document's row lacks: the failure reaches the
// fatal path, and the store holds what it held.
void TstFrmDocumentos::cambiarUnDocumentoTermina() {
    QFETCH(QString, boton);
    auto& p = pantalla();
    const QString antes = m_->db("SELECT count(*) || '|' || total(Valor) FROM DocumentoDetalle");
    if (boton == "Modificar") {
        m_->buscar(p, "3");
    } else {
        nuevoDocumento(p);
        pagarNota16(p, "40");
        // Another workstation takes the note away before the save.
        m_->base().sqlite("DELETE FROM NotaIngresoDetalle WHERE IngresoID = 2; DELETE FROM NotaIngreso WHERE "
                          "IngresoID = 2;");
        QString dicho;
        responder(m_->entorno(), "cmdClose", &dicho);
        m_->pulsar(p, "Guardar");
        QVERIFY(dicho.contains("no existe"));
    }
    m_->entorno().esperaFallos();
    m_->pulsar(p, boton);
    QCOMPARE(m_->entorno().fallos.size(), 1);
    QCOMPARE(m_->entorno().fallos.first().numero(), store::FalloCampoInexistente);
    QVERIFY(m_->entorno().fallos.first().descripcion().contains("IngresoID"));
    QCOMPARE(Common::DE().CN.nivelTransaccion(), 0);
    QCOMPARE(m_->db("SELECT count(*) FROM Documento"), QStringLiteral("1"));
    QCOMPARE(m_->db("SELECT count(*) || '|' || total(Valor) FROM DocumentoDetalle"), antes);
}

// Reached by no screen: shown on its own, it insists on an amount and hands nothing back.
void TstFrmDocumentos::abonoAFactura() {
    auto& d = Common::Pantalla<pagos::frmDocumentoPago>();
    QString dicho, cheque;
    m_->entorno().alMostrarModal([&](shell::Formulario&) {
        activar(d);
        escribir(d.txtChequeNumero, "abc");
        cheque = d.txtChequeNumero->text();
        responder(m_->entorno(), "cmdClose", &dicho);
        pulsarBoton(d.cmdBoton, "&Aceptar");
        escribir(d.txtValor, "250");
        pulsarBoton(d.cmdBoton, "&Aceptar");
    });
    Common::Parametros.ReDim(2);
    d.ShowModal();
    QCOMPARE(cheque, QString());
    QCOMPARE(dicho, QStringLiteral("El valor del abono debe ser ingresado."));
    QVERIFY(d.descargado());
    QCOMPARE(Common::Parametros.UBound(), 2);
}

QTEST_MAIN(TstFrmDocumentos)
#include "tst_frmDocumentos.moc"
