#pragma once

#include "BaseDePrueba.h"
#include "store/Conexion.h"

#include <QList>
#include <QVariant>
#include <QVariantMap>

// A store built from the project's schema, written to the way the screens write: header rows through
// an updatable recordset (AddNew, field assignment, Update, Resync for the key) and lines through
// Insert statements on the shared connection.
class TiendaDePrueba {
public:
    explicit TiendaDePrueba(BaseDePrueba::FKSupport fkSupport = BaseDePrueba::FKSupport::Activado);

    store::Conexion& cn() { return cn_; }
    BaseDePrueba& base() { return base_; }

    // Adds a row to a table through "Select * From <tabla> Where <key> < 0" and returns its new key.
    int agregar(const QString& tabla, const QVariantMap& campos);
    void ejecutar(const QString& sentencia) { cn_.Execute(sentencia); }

    // Every row of a statement of the system's dialect, fields in the statement's order.
    QList<QVariantList> filas(const QString& consulta);
    // One field of the first row; an invalid QVariant when there is no row.
    QVariant valor(const QString& consulta, const QString& campo);

    struct Linea {
        int conceptoID;
        int articuloID;
        int cantidad;
        double valor;
    };
    // A receipt for an application, with its lines, as the receipt screen saves it.
    int recibo(int solicitudID, const QList<Linea>& lineas);
    // A delivery note against one origin column ("SolicitudID", "FacturaID" or "ReciboID").
    int notaEnvio(const QString& origen, int origenID, const QList<QPair<int, int>>& articulosYCantidades);
    // A goods-in note of a supplier with lines of (article, quantity, unit cost).
    int notaIngreso(int proveedorID, const QList<std::tuple<int, int, double>>& lineas);

private:
    BaseDePrueba base_;
    store::Conexion cn_;
};
