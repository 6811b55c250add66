#pragma once

#include "cash/PantallaDeCaja.h"

#include <QLabel>

namespace caja {

// The invoice, the fiscal document: for a credit application that has been paid off (its articles
// come in as protected lines, its discount with them), or a direct sale to a registered client or a
// typed name, with lines picked by hand. Its class is written in four files:
//   frmFactura.cpp          the bar: search, add, modify, print, cancel, save; loading and saving
//   frmFactura_diseno.cpp   the layout: everything in the one fraMain, the grid and the tender included
//   frmFactura_persona.cpp  who the invoice is for: a paid-off application, "Cliente >", a typed name
//   frmFactura_lineas.cpp   the lines and the chain of figures under them: sub-total, discount, total
//
// Nothing is posted: an invoice is its row and its lines. The one other row it writes is the client's
// NIT, inside its transaction. The edit runs in a transaction of the shared connection from "Agregar"
// or "Modificar" to "Guardar" or "Cancelar"; a save that fails keeps it open for a second "Guardar".
// An invoice is never deleted; "Imprimir" prints nothing and marks it printed (Estado 1).
class frmFactura : public PantallaDeCaja {
    Q_OBJECT
public:
    frmFactura();

    store::Adodc* adoFacturas;

    shell::CajaTexto* txtNumeroFactura;
    shell::CajaTexto* txtNIT;
    QLabel* lblSubTotal;
    shell::CajaTexto* txtDescuento;
    QLabel* lblTotal;
    shell::CajaTextoMultilinea* txtObservaciones;

    // Key of the invoice under "Modificar".
    long FacturaActual = 0;

    void txtNumeroSolicitud_Validate() override;
    void txtNumeroSolicitud_KeyDown(int KeyCode, int Shift) override;
    void txtNombreCliente_DblClick() override;
    void cmdCliente_Click() override;
    void txtDescuento_GotFocus();
    void txtDescuento_Validate();
    // Enter and the double click on a line.
    void fgDetalle_DblClick();
    // The figures under the lines: a new sub-total works the total out again, a new total the change.
    void lblSubTotal_Change();
    void lblTotal_Change();

    // The texts of the two balloon tips the screen gives at load.
    static const QString kTipNombre;
    static const QString kTipDescuento;

protected:
    void Form_Load() override;
    void cmdBoton_Click(int Index) override;

private:
    // frmFactura.cpp
    void Buscar();
    void Agregar();
    void Modificar();
    void Imprimir();
    void Guardar();
    void CargarFactura();
    bool GuardarFactura();

    // frmFactura_diseno.cpp
    void DisenarEncabezado();
    void DisenarLineas();
    void DisenarPago();
    void OrdenDeTabulacion();

    // frmFactura_persona.cpp
    // "Cliente >" and the typed name start a direct sale: who paid is forgotten with the lines, the
    // application's number goes back to 0, the discount and the sub-total to 0.00.
    void OlvidarSolicitud();

    // frmFactura_lineas.cpp
    void PrepararGrilla();
    void CalcularTotal();
    void AgregarArticulo();
    void AgregarConcepto();
    void QuitarLinea();
    bool EsLineaDeCredito(int fila) const;
    // lblSubTotal (or lblTotal) given a figure, through "#0.00", and its change step run.
    void MostrarSubTotal(double subTotal);
    void MostrarTotal(double total);

    // A key whose path ended without working the totals out again (no concept picked).
    bool sinRecalcular_ = false;
};

} // namespace caja
