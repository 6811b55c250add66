#include "FacturaEnPantalla.h"

#include "credit/frmSolicitudArticulo.h"

#include <QTableView>
#include <QtTest>

using caja::frmFactura;

namespace {

// The rows every test starts from, as FacturaEnPantalla.h tells them.
constexpr char kFilas[] =
    "INSERT INTO Cliente (ClienteID, Nombres, Apellidos, NIT, CodigoLetra, CodigoNumero, Limite) VALUES "
    "(1, 'ANA LUCÍA', 'GONZÁLEZ', '1234567-8', 'G', 1, 5000), (2, 'PEDRO', 'RAMÍREZ', '', 'R', 1, 5000),"
    "(3, 'LUISA', 'MÉNDEZ', 'C/F', 'M', 1, 5000);"
    "INSERT INTO Fiador (FiadorID, Nombres, Apellidos) VALUES (1, 'MARIO', 'LÓPEZ');"
    "INSERT INTO Articulo (ArticuloID, Nombre, Modelo, Color, Costo, ContadoPorcentaje, ContadoValor) "
    "VALUES (1, 'REFRIGERADORA', 'RT38', 'BLANCO', 400, 25, 0), (2, 'ESTUFA', 'E4', 'GRIS', 100, 0, 30);"
    "INSERT INTO Solicitud (SolicitudID, NumeroSolicitud, Fecha, ClienteID, FiadorID, MesesCredito, "
    "DiaPago, Descuento, Enganche, Estado) VALUES "
    "(1, 50, '2026-01-05', 1, 1, 2, 5, 60, 200, 1), (2, 51, '2026-01-06', 2, 1, 1, 5, 0, 0, 1),"
    "(3, 52, '2026-01-07', 1, 1, 1, 5, 0, 0, 0), (4, 53, '2026-01-08', 3, 1, 1, 5, 0, 0, 2);"
    "INSERT INTO SolicitudDetalle (SolicitudID, ArticuloID, Cantidad, Precio) VALUES "
    "(1, 1, 1, 500), (1, 2, 2, 260), (2, 2, 1, 130), (3, 1, 1, 500), (4, 2, 1, 130);"
    "INSERT INTO Recibo (ReciboID, NumeroRecibo, Fecha, SolicitudID, Efectivo) VALUES "
    "(1, 1, '2026-02-01', 1, 700), (2, 2, '2026-02-02', 2, 129.99), (3, 3, '2026-02-03', 4, 150);"
    "INSERT INTO ReciboDetalle (ReciboID, ConceptoID, ArticuloID, Cantidad, Valor) VALUES "
    "(1, 1, 0, 1, 200), (1, 3, 0, 1, 500), (2, 3, 0, 1, 129.99), (3, 3, 0, 1, 150);"
    "INSERT INTO Factura (FacturaID, NumeroFactura, Fecha, ClienteID, Descuento, Efectivo, Vuelto, "
    "Estado) VALUES (1, 7, '2026-02-20', 1, 0, 200, 70, 0);"
    "INSERT INTO FacturaDetalle (FacturaID, ArticuloID, Cantidad, EsCredito, Precio) VALUES "
    "(1, 2, 1, 0, 130);";

} // namespace

FacturaEnPantalla::FacturaEnPantalla()
    : EnPantalla(kHoyFactura, QStringLiteral("Facturas"), kFilas) {
}

void FacturaEnPantalla::elegirDeLista(const QString& descripcion) {
    entorno().alMostrarModal([descripcion](shell::Formulario& lista) {
        auto* rejilla = lista.findChild<QTableView*>(QStringLiteral("DataGrid"));
        if (lista.objectName() != QLatin1String("frmListado") || !rejilla) {
            lista.Unload();
            QFAIL(qPrintable("the pick list was awaited, not " + lista.objectName()));
        }
        const QAbstractItemModel* m = rejilla->model();
        for (int f = 0; f < m->rowCount(); ++f)
            if (m->index(f, 1).data().toString() == descripcion) {
                QTest::mouseDClick(rejilla->viewport(), Qt::LeftButton, {},
                                   rejilla->visualRect(m->index(f, 1)).center());
                return;
            }
        QTest::mouseClick(lista.findChild<QPushButton*>(QStringLiteral("cmdClose")), Qt::LeftButton);
    });
}

void FacturaEnPantalla::responderLinea(const QString& cantidad, const QString& precio, bool aceptar) {
    entorno().alMostrarModal([=, this](shell::Formulario& d) {
        auto* dialogo = qobject_cast<credito::frmSolicitudArticulo*>(&d);
        if (!dialogo) {
            d.Unload();
            QFAIL(qPrintable("the line dialog was awaited, not " + d.objectName()));
        }
        auto& linea = *dialogo;
        if (!cantidad.isEmpty()) escribir(linea.txtCantidad, cantidad);
        if (!precio.isEmpty()) escribir(linea.txtPrecio, precio);
        QTest::mouseClick(aceptar ? linea.cmdBoton[0] : linea.cmdClose, Qt::LeftButton);
    });
}

void FacturaEnPantalla::tecla(Qt::Key k, int fila, Qt::KeyboardModifiers modificadores) {
    auto& p = pantalla();
    teclaEnGrilla(p, *p.fgDetalle, k, fila, modificadores);
}

void FacturaEnPantalla::dobleClic(int fila) {
    auto& p = pantalla();
    dobleClicEnGrilla(p, *p.fgDetalle, fila);
}

void FacturaEnPantalla::facturarSolicitud(const QString& numero) {
    auto& p = pantalla();
    pulsar(QStringLiteral("Agregar"));
    escribir(p.txtNumeroSolicitud, numero);
}

void FacturaEnPantalla::agregarArticulo(const QString& articulo, const QString& cantidad,
                                        const QString& precio) {
    elegir(articulo);
    responderLinea(cantidad, precio);
    tecla(Qt::Key_Insert, pantalla().fgDetalle->Rows() - 1);
}

void FacturaEnPantalla::agregarConcepto(const QString& concepto, const QString& cantidad,
                                        const QString& precio) {
    elegirDeLista(concepto);
    responderLinea(cantidad, precio);
    tecla(Qt::Key_Insert, pantalla().fgDetalle->Rows() - 1, Qt::ShiftModifier);
}
