#include "Gestos.h"

#include "shell/controles/GrillaDetalle.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QtTest>

void activar(QWidget& ventana) {
    ventana.activateWindow();
    if (!QTest::qWaitForWindowActive(&ventana))
        qWarning("%s did not become active", qPrintable(ventana.objectName()));
}

void escribir(QWidget* caja, const QString& texto) {
    caja->setFocus();
    if (auto* linea = qobject_cast<QLineEdit*>(caja)) linea->selectAll();
    if (texto.isEmpty())
        QTest::keyClick(caja, Qt::Key_Delete);
    else
        teclear(caja, texto);
    QTest::keyClick(caja, Qt::Key_Tab);
}

namespace {

// The button of this caption or name; fails the test when the screen has none.
void pulsarEn(shell::Formulario& d, const QString& boton) {
    for (QPushButton* b : d.findChildren<QPushButton*>())
        if (b->text() == boton || b->objectName() == boton) return QTest::mouseClick(b, Qt::LeftButton);
    QFAIL(qPrintable(QStringLiteral("%1 has no button %2").arg(d.objectName(), boton)));
}

} // namespace

void responder(EntornoDePantallas& entorno, const QString& boton, QString* texto) {
    entorno.alMostrarModal([boton, texto](shell::Formulario& d) {
        if (texto)
            for (const char* nombre : {"lblPregunta", "lblMensaje"})
                if (auto* l = d.findChild<QLabel*>(QLatin1String(nombre))) *texto = l->text();
        pulsarEn(d, boton);
    });
}

void responderTexto(EntornoDePantallas& entorno, const QString& texto, const QString& boton) {
    entorno.alMostrarModal([texto, boton](shell::Formulario& d) {
        activar(d);
        auto* caja = d.findChild<QLineEdit*>(QStringLiteral("txtTexto"));
        QVERIFY2(caja, qPrintable(d.objectName() + " is not a text prompt"));
        caja->setFocus();
        caja->selectAll();
        teclear(caja, texto);
        pulsarEn(d, boton);
    });
}

void elegirEnBusqueda(EntornoDePantallas& entorno, const QString& celda, QStringList* vistos,
                      const QString& columna) {
    entorno.alMostrarModal([celda, vistos, columna](shell::Formulario& busca) {
        auto* rejilla = busca.findChild<QTableView*>(QStringLiteral("dg"));
        if (busca.objectName() != QLatin1String("frmBusca") || !rejilla) {
            busca.Unload();
            QFAIL(qPrintable("the search screen was awaited, not " + busca.objectName()));
        }
        QTest::mouseClick(busca.findChild<QPushButton*>(QStringLiteral("cmdBoton(0)")), Qt::LeftButton);
        const QAbstractItemModel* m = rejilla->model();
        if (vistos)
            for (int c = 0; c < m->columnCount(); ++c)
                if (m->headerData(c, Qt::Horizontal).toString() == columna)
                    for (int f = 0; f < m->rowCount(); ++f)
                        *vistos << m->index(f, c).data().toString();
        if (!celda.isEmpty())
            for (int f = 0; f < m->rowCount(); ++f)
                for (int c = 0; c < m->columnCount(); ++c)
                    if (m->index(f, c).data().toString() == celda) {
                        QTest::mouseDClick(rejilla->viewport(), Qt::LeftButton, {},
                                           rejilla->visualRect(m->index(f, c)).center());
                        return;
                    }
        QTest::mouseClick(busca.findChild<QPushButton*>(QStringLiteral("cmdClose")), Qt::LeftButton);
    });
}

void teclaEnGrilla(QWidget& pantalla, shell::GrillaDetalle& grilla, Qt::Key k, int fila,
                   Qt::KeyboardModifiers modificadores) {
    activar(pantalla);
    grilla.setFocus();
    grilla.setRow(fila);
    QTest::keyClick(&grilla, k, modificadores);
    activar(pantalla);
}

void dobleClicEnGrilla(QWidget& pantalla, shell::GrillaDetalle& grilla, int fila) {
    activar(pantalla);
    // On the first column the clerk can see: a grid may hide its key columns.
    int columna = 0;
    while (columna + 1 < grilla.Cols() && grilla.ColWidth(columna) <= 0)
        ++columna;
    QTest::mouseDClick(grilla.viewport(), Qt::LeftButton, {},
                       grilla.visualItemRect(grilla.item(fila - 1, columna)).center());
    activar(pantalla);
}

QStringList filasDe(const shell::GrillaDetalle& grilla) {
    QStringList r;
    for (int f = 1; f < grilla.Rows(); ++f) {
        QStringList celdas;
        for (int c = 0; c < grilla.Cols(); ++c)
            celdas << grilla.TextMatrix(f, c);
        r << celdas.join(u'|');
    }
    return r;
}
