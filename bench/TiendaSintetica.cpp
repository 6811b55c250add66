#include "TiendaSintetica.h"

#include "BaseDePrueba.h"

#include <QString>
#include <algorithm>

namespace {

// Rows 1..n of a recursive count, ready to be inserted from.
QString contar(int n) {
    return QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %1) ")
        .arg(n);
}

} // namespace

int articulosDeTiendaSintetica(int solicitudes) {
    return std::max(1, solicitudes / 20);
}

void llenarTiendaSintetica(const BaseDePrueba& base, int solicitudes) {
    llenarTiendaSintetica(base, solicitudes, solicitudes / 20);
}

void llenarTiendaSintetica(const BaseDePrueba& base, int solicitudes, int ingresos) {
    constexpr int proveedores = 20;
    const int articulos = articulosDeTiendaSintetica(solicitudes);
    const int clientes = solicitudes / 2, notas = ingresos;
    QString s = QStringLiteral("BEGIN;");
    s += contar(proveedores) +
         "INSERT INTO Proveedor (Nombre, NIT) SELECT 'Proveedor ' || i, i || '-K' FROM n;";
    s += contar(articulos) +
         "INSERT INTO Articulo (Nombre, Modelo, Color, Costo, ContadoPorcentaje, CreditoValor) "
         "SELECT 'Articulo ' || i, 'M' || (i % 37), 'Blanco', 100 + i, 25, 60 FROM n;";
    s += contar(clientes) +
         "INSERT INTO Cliente (Nombres, Apellidos, CodigoLetra, CodigoNumero, NIT, Limite) "
         "SELECT 'NOMBRE ' || i, 'APELLIDO ' || i, 'A', i, 'C/F', 5000 FROM n;";
    // Goods in: five lines of 50 units per note, the articles in turn.
    s += contar(notas) +
         "INSERT INTO NotaIngreso (NumeroIngreso, ProveedorID, Fecha, Descripcion) "
         "SELECT i, 1 + i % " +
         QString::number(proveedores) + ", '2026-01-01', 'Compra ' || i FROM n;";
    s += contar(notas * 5) +
         "INSERT INTO NotaIngresoDetalle (IngresoID, ArticuloID, Cantidad, Costo) "
         "SELECT 1 + (i - 1) / 5, 1 + i % " +
         QString::number(articulos) + ", 50, 100 FROM n;";
    s += contar(notas) +
         "INSERT INTO Documento (NumeroDocumento, ProveedorID, Fecha, Descripcion) "
         "SELECT i, 1 + i % " +
         QString::number(proveedores) + ", '2026-02-01', 'Pago ' || i FROM n;";
    s += contar(notas) +
         "INSERT INTO DocumentoDetalle (DocumentoID, IngresoID, Valor) SELECT i, i, 12500 FROM n;";
    // Applications: most approved, one in ten pending, one in ten rejected. The mora charged covers
    // what the receipts below pay of it (a line of 50 on an odd application, two on an even one) and
    // leaves 0, 25 or 50 owed, so that no balance of the receipt screen reads below 0.
    s += contar(solicitudes) +
         "INSERT INTO Solicitud (NumeroSolicitud, Fecha, ClienteID, Estado, Enganche, PrimerPago, "
         "MesesCredito, Mora) "
         "SELECT i, '2026-03-01', 1 + (i - 1) / 2, CASE i % 10 WHEN 0 THEN 0 WHEN 9 THEN 3 ELSE 1 END, "
         "100, 100, 12, 50 * (2 - i % 2) + 25 * (i % 3) FROM n;";
    s += contar(solicitudes * 2) +
         "INSERT INTO SolicitudDetalle (SolicitudID, ArticuloID, Cantidad, Precio) "
         // A prime stride spreads the lines over every article.
         "SELECT 1 + (i - 1) / 2, 1 + (i * 7919) % " +
         QString::number(articulos) + ", 1, 1500 FROM n;";
    s += contar(solicitudes * 3) + "INSERT INTO Recibo (NumeroRecibo, Fecha, SolicitudID, Efectivo) "
                                   "SELECT i, '2026-04-01', 1 + (i - 1) / 3, 200 FROM n;";
    // Concepts 1 to 4 in turn, one for each Tipo: application i pays 50 of its enganche or of its
    // first payment (the other one whole), one or two instalments and one or two lines of mora.
    s += contar(solicitudes * 6) + "INSERT INTO ReciboDetalle (ReciboID, ConceptoID, Cantidad, Valor) "
                                   "SELECT 1 + (i - 1) / 2, 1 + i % 4, 1, 50 FROM n;";
    s += contar(solicitudes / 3) + "INSERT INTO NotaEnvio (NumeroNota, Fecha, SolicitudID, Direccion) "
                                   "SELECT i, '2026-05-01', i * 3 - 1, 'Zona ' || i % 25 FROM n;";
    s += "INSERT INTO NotaEnvioDetalle (NotaID, ArticuloID, Cantidad) "
         "SELECT N.NotaID, SD.ArticuloID, 1 FROM NotaEnvio N JOIN SolicitudDetalle SD "
         "ON SD.SolicitudID = N.SolicitudID;";
    s += "COMMIT; ANALYZE;";
    base.sqlite(s);
}
