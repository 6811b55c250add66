#include "EnvioEnPantalla.h"

#include "runtime/Conversion.h"
#include "store/Recordset.h"

#include <QAbstractItemModel>
#include <QTableView>
#include <QtTest>

using mercaderia::frmNotaEnvio;

namespace {

// The rows every test starts from, as EnvioEnPantalla.h tells them.
constexpr char kFilas[] =
    "INSERT INTO Cliente (ClienteID, Nombres, Apellidos, NIT, CodigoLetra, CodigoNumero, Limite) VALUES "
    "(1, 'ANA LUCÍA', 'GONZÁLEZ', '1234567-8', 'G', 1, 5000), (2, 'PEDRO', 'RAMÍREZ', 'C/F', 'R', 1, 0);"
    "INSERT INTO Articulo (ArticuloID, Nombre, Modelo, Color, Costo) VALUES "
    "(1, 'REFRIGERADORA', 'RT38', 'BLANCO', 400), (2, 'ESTUFA', 'E4', 'GRIS', 100), "
    "(3, 'TELEVISOR', 'TV32', 'NEGRO', 250);"
    "INSERT INTO Proveedor (ProveedorID, Nombre) VALUES (1, 'DISTRIBUIDORA CENTRAL');"
    "INSERT INTO NotaIngreso (IngresoID, NumeroIngreso, ProveedorID, Fecha, Descripcion) VALUES "
    "(1, 100, 1, '2026-01-05', 'EXISTENCIA INICIAL');"
    "INSERT INTO NotaIngresoDetalle (IngresoID, ArticuloID, Cantidad, Costo) VALUES "
    "(1, 1, 6, 400), (1, 2, 1, 100), (1, 3, 4, 250);"
    "INSERT INTO Solicitud (SolicitudID, NumeroSolicitud, Fecha, ClienteID, CasaDireccion, MesesCredito, "
    "DiaPago, Enganche, PrimerPago, Estado) VALUES "
    "(1, 41, '2026-02-15', 1, '  5A CALLE 3-20 ZONA 1 ', 10, 5, 100, 0, 1),"
    "(2, 45, '2026-02-20', 2, 'COLONIA LAS FLORES', 10, 5, 100, 0, 1),"
    "(3, 46, '2026-03-01', 2, 'COLONIA LAS FLORES', 10, 5, 100, 0, 0);"
    "INSERT INTO SolicitudDetalle (SolicitudID, ArticuloID, Cantidad, Precio) VALUES "
    "(1, 1, 1, 1300), (1, 3, 2, 900), (2, 1, 1, 1300), (2, 2, 3, 400), (2, 3, 1, 900), (3, 1, 1, 1300);"
    "INSERT INTO Factura (FacturaID, NumeroFactura, Fecha, ClienteID, Efectivo) VALUES "
    "(1, 15, '2026-03-02', 2, 1000);"
    "INSERT INTO FacturaDetalle (FacturaID, ArticuloID, Cantidad, Precio) VALUES (1, 1, 2, 500);"
    "INSERT INTO Recibo (ReciboID, NumeroRecibo, Fecha, Nombre, Efectivo) VALUES "
    "(1, 8, '2026-03-03', 'JUAN PÉREZ', 350), (2, 9, '2026-03-04', 'LUIS MÉNDEZ', 500);"
    "INSERT INTO ReciboDetalle (ReciboID, ConceptoID, ArticuloID, Cantidad, Valor) VALUES "
    "(1, 0, 3, 1, 350), (2, 0, 1, 1, 500);"
    "INSERT INTO NotaEnvio (NotaID, NumeroNota, Fecha, ReciboID, Direccion) VALUES "
    "(1, 3, '2026-03-05', 2, 'ZONA 10');"
    "INSERT INTO NotaEnvioDetalle (NotaID, ArticuloID, Cantidad) VALUES (1, 1, 1);";

} // namespace

EnvioEnPantalla::EnvioEnPantalla()
    : EnPantalla(kHoyEnvio, QStringLiteral("Envíos"), kFilas) {
}

void EnvioEnPantalla::buscarNota(const QString& numero) {
    elegirEnBusqueda(entorno(), numero);
    pulsar(QStringLiteral("Buscar"));
}

void EnvioEnPantalla::nuevaPara(int tipo, const QString& numero) {
    pulsar(QStringLiteral("Agregar"));
    QTest::mouseClick(pantalla().optTipo->operator()(tipo), Qt::LeftButton);
    escribir(pantalla().txtNumeroDocumento, numero);
}

QStringList EnvioEnPantalla::f2(const QString& elegir) {
    QStringList listados;
    entorno().alMostrarModal([&listados, elegir](shell::Formulario& busca) {
        auto* rejilla = busca.findChild<QTableView*>(QStringLiteral("dg"));
        const QAbstractItemModel* m = rejilla->model();
        for (int f = 0; f < m->rowCount(); ++f)
            listados << m->index(f, 1).data().toString();
        const int fila = listados.indexOf(elegir);
        if (elegir.isEmpty() || fila < 0)
            return QTest::mouseClick(busca.findChild<QPushButton*>(QStringLiteral("cmdClose")),
                                     Qt::LeftButton);
        QTest::mouseDClick(rejilla->viewport(), Qt::LeftButton, {},
                           rejilla->visualRect(m->index(fila, 1)).center());
    });
    auto& p = pantalla();
    p.txtNumeroDocumento->setFocus();
    QTest::keyClick(p.txtNumeroDocumento, Qt::Key_F2);
    activar(p);
    return listados;
}

QStringList EnvioEnPantalla::lineas() {
    return filasDe(*pantalla().fgDetalle);
}
