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

MercaderiaEnPantalla::~MercaderiaEnPantalla() {
    entorno_.reset();
    programa_.reset();
    base_.reset();
    reloj_.reset();
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

void MercaderiaEnPantalla::articuloNuevo(const QString& nombre, const QString& cantidad, const QString& costo,
                                         const QString& contado, const QString& credito) {
    enLinea([=](frmNotaIngresoArticulo& d) {
        pulsarBotonDe(d, QStringLiteral("Nuevo"));
        escribir(d.txtNombre, nombre);
        escribir(d.txtCantidad, cantidad);
        escribir(d.txtCosto, costo);
        QTest::mouseClick((*d.optContado)(0), Qt::LeftButton);
        escribir(d.txtContadoPorcentaje, contado);
        QTest::mouseClick((*d.optCredito)(0), Qt::LeftButton);
        escribir(d.txtCreditoPorcentaje, credito);
        pulsarBotonDe(d, QStringLiteral("&Aceptar"));
    });
}

void MercaderiaEnPantalla::articuloExistente(const QString& nombre, const QString& cantidad,
                                             const QString& costo) {
    enLinea([=](frmNotaIngresoArticulo& d) {
        pulsarBotonDe(d, QStringLiteral("Buscar"));
        activar(d);
        escribir(d.txtCantidad, cantidad);
        escribir(d.txtCosto, costo);
        pulsarBotonDe(d, QStringLiteral("&Aceptar"));
    });
    elegirEnBusqueda(*entorno_, nombre);
}

void MercaderiaEnPantalla::tecla(DocumentoDeProveedor& p, Qt::Key k, int fila) {
    teclaEnGrilla(p, *p.fgDetalle, k, fila);
}

void pulsarBotonDe(QWidget& dialogo, const QString& caption) {
    for (QPushButton* b : dialogo.findChildren<QPushButton*>())
        if (b->text() == caption) return QTest::mouseClick(b, Qt::LeftButton);
    QFAIL(qPrintable(dialogo.objectName() + " has no button " + caption));
}
