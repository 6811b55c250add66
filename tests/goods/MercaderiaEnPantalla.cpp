#include "MercaderiaEnPantalla.h"

#include "shell/busqueda/frmListado.h"

#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

using mercaderia::DocumentoDeProveedor;
using mercaderia::frmNotaIngresoArticulo;

MercaderiaEnPantalla::MercaderiaEnPantalla() {
    reloj_ = std::make_unique<runtime::RelojFijo>(QDateTime(QDate(2026, 3, 10), QTime(9, 30)));
    base_ = std::make_unique<BaseDePrueba>(true);
    base_->sqlite(
        "INSERT INTO Proveedor (ProveedorID, Nombre) VALUES (1, 'DISTRIBUIDORA CENTRAL'), "
        "(2, 'ELECTRO MAYORISTA');"
        "INSERT INTO Articulo (ArticuloID, Nombre, Modelo, Color, Costo, ContadoPorcentaje, ContadoValor, "
        "CreditoPorcentaje, CreditoValor) VALUES (1, 'REFRIGERADORA', 'RT38', 'BLANCO', 400, 25, 0, 40, 0);"
        "INSERT INTO NotaIngreso (IngresoID, NumeroIngreso, ProveedorID, Fecha, Descripcion) VALUES "
        "(1, 15, 1, '2026-03-01', 'Factura 15'), (2, 16, 2, '2026-03-02', 'Factura 16');"
        "INSERT INTO NotaIngresoDetalle (IngresoID, ArticuloID, Cantidad, Costo) VALUES "
        "(1, 1, 2, 400), (2, 1, 1, 100);"
        "INSERT INTO Documento (DocumentoID, NumeroDocumento, ProveedorID, Fecha, Descripcion) VALUES "
        "(1, 3, 1, '2026-03-05', 'Cheque 1001');"
        "INSERT INTO DocumentoDetalle (DocumentoID, IngresoID, Valor) VALUES (1, 1, 300);");
    entorno_ = std::make_unique<EntornoDePantallas>();
    programa_ = std::make_unique<ProgramaDePrueba>();
}

QString MercaderiaEnPantalla::existencia(const QString& nombre) const {
    return db(
        "SELECT shw1000_dbl_Existencia FROM vwBuscaArticulo WHERE shw3800_str_Descripcion_del_articulo = '" +
        nombre + "'");
}

void MercaderiaEnPantalla::pulsar(DocumentoDeProveedor& p, const QString& caption) {
    pulsarBoton(p.cmdBoton, caption);
    if (p.isVisible()) activar(p);
}

void MercaderiaEnPantalla::buscar(DocumentoDeProveedor& p, const QString& celda) {
    elegirEnBusqueda(*entorno_, celda);
    pulsar(p, QStringLiteral("Buscar"));
}

void MercaderiaEnPantalla::proveedor(DocumentoDeProveedor& p, const QString& nombre) {
    entorno_->alMostrarModal([nombre](shell::Formulario& f) {
        auto* lista = qobject_cast<shell::frmListado*>(&f);
        QVERIFY2(lista, qPrintable(f.objectName() + " is not the pick list"));
        const QAbstractItemModel* m = lista->DataGrid->model();
        for (int r = 0; r < m->rowCount(); ++r)
            if (m->index(r, 1).data().toString() == nombre)
                QTest::mouseClick(lista->DataGrid->viewport(), Qt::LeftButton, {},
                                  lista->DataGrid->visualRect(m->index(r, 1)).center());
        QTest::mouseClick(lista->cmdBoton[0], Qt::LeftButton); // "&Aceptar"
    });
    QTest::mouseClick(p.cmdProveedor, Qt::LeftButton);
    activar(p);
}

void MercaderiaEnPantalla::enLinea(std::function<void(frmNotaIngresoArticulo&)> accion) {
    entorno_->alMostrarModal([accion](shell::Formulario& f) {
        auto* dialogo = qobject_cast<frmNotaIngresoArticulo*>(&f);
        QVERIFY2(dialogo, qPrintable(f.objectName() + " is not the goods-in line"));
        activar(*dialogo);
        accion(*dialogo);
    });
}

void MercaderiaEnPantalla::articuloNuevo(const QStringList& t, QString* mensaje) {
    enLinea([=, this](frmNotaIngresoArticulo& d) {
        pulsarBoton(d.cmdBoton, QStringLiteral("Nuevo"));
        escribir(d.txtNombre, t[0]);
        escribir(d.txtCantidad, t[1]);
        escribir(d.txtCosto, t[2]);
        const auto margen = [](shell::ArregloDeOpciones* opciones, const QString& opcion,
                               shell::CajaTexto* porcentaje, shell::CajaTexto* valor, const QString& cifra) {
            if (opcion != "-") QTest::mouseClick((*opciones)(opcion.toInt()), Qt::LeftButton);
            if (!cifra.isEmpty()) escribir(opcion == "1" ? valor : porcentaje, cifra);
            // Only a click selects an option.
            QCOMPARE(opciones->Valor(), opcion == "-" ? -1 : opcion.toInt());
        };
        margen(d.optContado, t[3], d.txtContadoPorcentaje, d.txtContadoValor, t[4]);
        margen(d.optCredito, t[5], d.txtCreditoPorcentaje, d.txtCreditoValor, t[6]);
        QCOMPARE(d.lblContadoPrecio->text(), QStringLiteral("0.00")); // no price is worked out
        if (mensaje) responder(*entorno_, QStringLiteral("cmdClose"), mensaje);
        pulsarBoton(d.cmdBoton, QStringLiteral("&Aceptar"));
        if (mensaje) pulsarBoton(d.cmdBoton, QStringLiteral("&Cancelar"));
    });
}

void MercaderiaEnPantalla::articuloExistente(const QString& nombre, const QString& cantidad,
                                             const QString& costo) {
    enLinea([=](frmNotaIngresoArticulo& d) {
        pulsarBoton(d.cmdBoton, QStringLiteral("Buscar"));
        activar(d);
        escribir(d.txtCantidad, cantidad);
        escribir(d.txtCosto, costo);
        pulsarBoton(d.cmdBoton, QStringLiteral("&Aceptar"));
    });
    elegirEnBusqueda(*entorno_, nombre);
}

void MercaderiaEnPantalla::tecla(DocumentoDeProveedor& p, Qt::Key k, int fila) {
    teclaEnGrilla(p, *p.fgDetalle, k, fila);
}
