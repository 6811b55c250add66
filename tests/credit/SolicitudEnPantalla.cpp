#include "SolicitudEnPantalla.h"

#include "credit/frmSolicitudArticulo.h"

#include <QtTest>

using credito::frmSolicitud;

namespace {

// The rows every test starts from, as SolicitudEnPantalla.h tells them.
constexpr char kFilas[] =
    "INSERT INTO Cliente (ClienteID, Nombres, Apellidos, FechaNacimiento, NIT, CedulaRegistro, "
    "CedulaNumero, CedulaExtendida, CodigoLetra, CodigoNumero, Limite) VALUES "
    "(1, 'ANA LUCÍA', 'GONZÁLEZ', '1980-05-17', '1234567-8', ' A-1 ', '45678', 'Capital', 'G', 1, 5000),"
    "(2, 'PEDRO', 'RAMÍREZ', '1975-02-03', 'C/F', 'A-1', '11111', 'Capital', 'R', 1, 0),"
    "(3, 'LUISA', 'MÉNDEZ', '1990-07-08', 'C/F', 'B-2', '22222', 'Escuintla', 'M', 1, NULL);"
    "INSERT INTO Fiador (FiadorID, Nombres, Apellidos, FechaNacimiento, CedulaRegistro, CedulaNumero, "
    "CedulaExtendida, EstadoCivilID, Direccion, Telefonos, CasaPropia, CasaAlquilada, CasaTiempo, "
    "TrabajoNombre, TrabajoPuesto, TrabajoTiempo, TrabajoSueldo) VALUES "
    "(1, 'MARIO', 'LÓPEZ', '1970-05-14', 'A-1', '123456', 'Capital', 2, ' 5a calle 3-20 ', '2233-4455', "
    "1, 1, 14, 'Almacén El Sol', 'Bodeguero', 30, 3500),"
    "(2, 'ROSA', 'PÉREZ', NULL, 'C-3', '98765', 'Chimaltenango', 1, 'Zona 7', '7788-9900', 0, 1, 5, "
    "NULL, NULL, 0, 2800),"
    "(3, 'JUAN', 'SOTO', '1985-01-01', 'A-1', '55555', 'Capital', 3, 'Mixco', '', 0, 0, 0, NULL, NULL, "
    "11, 1800.5);"
    "INSERT INTO Articulo (ArticuloID, Nombre, Modelo, Color, Costo, ContadoPorcentaje, ContadoValor) "
    "VALUES (1, 'REFRIGERADORA', 'RT38', 'BLANCO', 400, 25, 0), (2, 'ESTUFA', 'E4', 'GRIS', 100, 0, 30), "
    "(3, 'TELEVISOR', 'TV50', 'NEGRO', 800, 10, 0);"
    "INSERT INTO NotaIngreso (IngresoID, NumeroIngreso, Fecha) VALUES (1, 1, '2026-01-05');"
    "INSERT INTO NotaIngresoDetalle (IngresoID, ArticuloID, Cantidad, Costo) VALUES "
    "(1, 1, 20, 400), (1, 2, 20, 100), (1, 3, 1, 800);"
    "INSERT INTO Solicitud (SolicitudID, NumeroSolicitud, Fecha, ClienteID, FiadorID, FiadorParentesco, "
    "MesesCredito, DiaPago, Enganche, Estado) VALUES "
    "(1, 40, '2026-02-01', 1, 1, 'HERMANO', 12, 15, 100, 0),"
    "(2, 41, '2026-02-15', 1, 2, 'PRIMA', 10, 5, 0, 1);"
    "INSERT INTO SolicitudDetalle (SolicitudID, ArticuloID, Cantidad, Precio) VALUES "
    "(1, 2, 3, 390), (2, 1, 1, 500);";

} // namespace

SolicitudEnPantalla::SolicitudEnPantalla()
    : EnPantalla(kHoy, QStringLiteral("Créditos"), kFilas) {
}

void SolicitudEnPantalla::buscarSolicitud(const QString& numero) {
    elegir(numero);
    pulsar(QStringLiteral("Buscar"));
}

void SolicitudEnPantalla::elegirCliente(const QString& celda) {
    auto& p = pantalla();
    elegir(celda);
    QTest::mouseClick(p.cmdCliente, Qt::LeftButton);
    activar(p);
}

void SolicitudEnPantalla::elegirFiador(const QString& celda) {
    auto& p = pantalla();
    elegir(celda);
    QTest::mouseClick(p.cmdFiador, Qt::LeftButton);
    activar(p);
}

void SolicitudEnPantalla::responderLinea(const QString& cantidad, const QString& precio,
                                         const QString& cierre) {
    entorno().alMostrarModal([=, this](shell::Formulario& d) {
        auto& linea = static_cast<credito::frmSolicitudArticulo&>(d);
        activar(linea);
        lugarDelDialogo = QPointF(linea.Left() - pantalla().Left(), linea.Top() - pantalla().Top());
        cantidadAlAbrir = linea.txtCantidad->text();
        precioAlAbrir = linea.txtPrecio->text();
        if (!cantidad.isEmpty()) escribir(linea.txtCantidad, cantidad);
        if (!precio.isEmpty()) escribir(linea.txtPrecio, precio);
        if (cierre == QLatin1String("cmdClose")) return QTest::mouseClick(linea.cmdClose, Qt::LeftButton);
        for (QPushButton* b : linea.cmdBoton)
            if (b->text() == cierre) return QTest::mouseClick(b, Qt::LeftButton);
        QFAIL(qPrintable("the line dialog has no button " + cierre));
    });
}

void SolicitudEnPantalla::insertarLinea(const QString& articulo, const QString& cantidad,
                                        const QString& precio, const QString& cierre) {
    elegir(articulo);
    if (!articulo.isEmpty()) responderLinea(cantidad, precio, cierre);
    tecla(Qt::Key_Insert, pantalla().fgDetalle->Rows() - 1);
}

void SolicitudEnPantalla::tecla(Qt::Key k, int fila) {
    auto& p = pantalla();
    teclaEnGrilla(p, *p.fgDetalle, k, fila);
}

void SolicitudEnPantalla::dobleClic(int fila) {
    auto& p = pantalla();
    dobleClicEnGrilla(p, *p.fgDetalle, fila);
}

QStringList SolicitudEnPantalla::filas() {
    return filasDe(*pantalla().fgDetalle);
}

void SolicitudEnPantalla::llenarNueva(const QStringList& articulos) {
    auto& p = pantalla();
    pulsar(QStringLiteral("Agregar"));
    elegirCliente(QStringLiteral("GONZÁLEZ"));
    elegirFiador(QStringLiteral("MARIO"));
    escribir(p.txtFiadorParentesco, QStringLiteral("hermano"));
    for (const QString& articulo : articulos)
        insertarLinea(articulo);
}
