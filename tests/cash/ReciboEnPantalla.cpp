#include "ReciboEnPantalla.h"

#include "credit/frmSolicitudArticulo.h"
#include "runtime/Conversion.h"
#include "shell/busqueda/frmListado.h"
#include "store/Recordset.h"

#include <QtTest>

using caja::frmRecibo;

namespace {

// The rows every test starts from, as ReciboEnPantalla.h tells them.
constexpr char kFilas[] =
    "INSERT INTO Cliente (ClienteID, Nombres, Apellidos, NIT, CodigoLetra, CodigoNumero, Limite) VALUES "
    "(1, 'ANA LUCÍA', 'GONZÁLEZ', '1234567-8', 'G', 1, 5000), (2, 'PEDRO', 'RAMÍREZ', 'C/F', 'R', 1, 0);"
    "INSERT INTO Articulo (ArticuloID, Nombre, Modelo, Color, Costo, ContadoPorcentaje, ContadoValor) "
    "VALUES (1, 'REFRIGERADORA', 'RT38', 'BLANCO', 400, 25, 0);"
    "INSERT INTO Banco (BancoID, Nombre, Direccion) VALUES (1, 'Banrural', 'Zona 9'), "
    "(2, 'Banco Industrial', 'Zona 4');"
    "INSERT INTO Solicitud (SolicitudID, NumeroSolicitud, Fecha, ClienteID, MesesCredito, DiaPago, "
    "Enganche, PrimerPago, Estado, Mora) VALUES "
    "(1, 41, '2026-02-15', 1, 10, 5, 100, 200, 1, 10),"
    "(2, 40, '2026-02-01', 2, 12, 15, 100, 0, 0, 0),"
    "(3, 42, '2026-01-10', 2, 0, 5, 0, 0, 1, 0),"
    "(4, 43, '2026-01-20', 2, 0, 5, 0, 0, 1, 0),"
    "(5, 44, '2025-12-01', 1, 6, 5, 50, 0, 3, 0);"
    "INSERT INTO SolicitudDetalle (SolicitudID, ArticuloID, Cantidad, Precio) VALUES "
    "(1, 1, 1, 1300), (2, 1, 1, 390), (4, 1, 1, 500), (5, 1, 1, 600);"
    "INSERT INTO Recibo (ReciboID, NumeroRecibo, Fecha, SolicitudID, ClienteID, Nombre, BancoID, "
    "ChequeNumero, ChequeValor, Efectivo, Vuelto) VALUES "
    "(1, 7, '2026-03-01', 0, 0, 'JUAN PÉREZ', 0, NULL, 0, 25, 0),"
    "(2, 8, '2026-03-02', 0, 2, NULL, 1, 'CH-1', 500, 0, 0);"
    "INSERT INTO ReciboDetalle (ReciboID, ConceptoID, ArticuloID, Cantidad, Valor) VALUES "
    "(1, 7, 0, 1, 25), (2, 0, 1, 1, 500);";

} // namespace

ReciboEnPantalla::ReciboEnPantalla()
    : EnPantalla(kHoy, QStringLiteral("Recibos"), kFilas) {
}

void ReciboEnPantalla::buscarRecibo(const QString& numero) {
    elegirEnBusqueda(entorno(), numero);
    pulsar(QStringLiteral("Buscar"));
}

void ReciboEnPantalla::nuevoPara(const QString& solicitud) {
    pulsar(QStringLiteral("Agregar"));
    escribir(pantalla().txtNumeroSolicitud, solicitud);
}

void ReciboEnPantalla::elegirConcepto(const QString& descripcion) {
    entorno().alMostrarModal([this, descripcion](shell::Formulario& f) {
        auto* lista = qobject_cast<shell::frmListado*>(&f);
        QVERIFY2(lista, qPrintable(f.objectName() + " is not the pick list"));
        const QAbstractItemModel* m = lista->DataGrid->model();
        conceptosOfrecidos.clear();
        int fila = -1;
        for (int r = 0; r < m->rowCount(); ++r) {
            conceptosOfrecidos << m->index(r, 1).data().toString();
            if (conceptosOfrecidos.last() == descripcion && fila < 0) fila = r;
        }
        if (fila < 0) return QTest::mouseClick(lista->cmdBoton[1], Qt::LeftButton); // "Cancelar"
        QTest::mouseClick(lista->DataGrid->viewport(), Qt::LeftButton, {},
                          lista->DataGrid->visualRect(m->index(fila, 1)).center());
        QTest::mouseClick(lista->cmdBoton[0], Qt::LeftButton); // "&Aceptar"
    });
}

void ReciboEnPantalla::responderLinea(const QString& valor, const QString& cierre, const QString& cantidad) {
    entorno().alMostrarModal([=, this](shell::Formulario& d) {
        auto* linea = qobject_cast<credito::frmSolicitudArticulo*>(&d);
        QVERIFY2(linea, qPrintable(d.objectName() + " is not the line dialog"));
        activar(*linea);
        tituloDelDialogo = linea->lblTitulo->text().trimmed();
        valorAlAbrir = linea->txtPrecio->text();
        cantidadHabilitada = linea->txtCantidad->isEnabled();
        if (!cantidad.isEmpty()) escribir(linea->txtCantidad, cantidad);
        if (!valor.isEmpty()) escribir(linea->txtPrecio, valor);
        if (cierre == QLatin1String("cmdClose")) return QTest::mouseClick(linea->cmdClose, Qt::LeftButton);
        for (QPushButton* b : linea->cmdBoton)
            if (b->text() == cierre) return QTest::mouseClick(b, Qt::LeftButton);
        QFAIL(qPrintable("the line dialog has no button " + cierre));
    });
}

void ReciboEnPantalla::insertarConcepto(const QString& descripcion, const QString& valor) {
    elegirConcepto(descripcion);
    if (!valor.isEmpty()) responderLinea(valor);
    tecla(Qt::Key_Insert, pantalla().fgDetalle->Rows() - 1);
}

void ReciboEnPantalla::tecla(Qt::Key k, int fila, Qt::KeyboardModifiers modificadores) {
    auto& p = pantalla();
    teclaEnGrilla(p, *p.fgDetalle, k, fila, modificadores);
}

void ReciboEnPantalla::dobleClic(int fila) {
    auto& p = pantalla();
    dobleClicEnGrilla(p, *p.fgDetalle, fila);
}

QStringList ReciboEnPantalla::lineas() {
    return filasDe(*pantalla().fgDetalle);
}

QString ReciboEnPantalla::saldos() {
    return filasDe(*pantalla().fgSaldos).value(0);
}

void ReciboEnPantalla::efectivo(const QString& monto) {
    escribir(pantalla().panBanco->txtEfectivo, monto);
}
