#pragma once

#include "shell/controles/CajaTexto.h"
#include "shell/marco/DialogoDeLinea.h"

#include <QLabel>

namespace credito {

// One article line of a credit application (and of a receipt or an invoice): how many, at what price.
// It speaks only through Parametros, laid out as the article search returns a row of vwBuscaArticulo:
// (1) the article's key, (2) name, (3) model, (4) colour, (5) cost, (6) cash margin percentage,
// (7) cash margin amount, (8) starting quantity; a grid line opens it with (1) key, (2) description,
// (5) amount of the line and (8) quantity. On opening it proposes the cost plus the cash margin (the
// percentage when above 0, else the amount) as the price. "&Aceptar" needs a quantity and a price above
// 0 and hands back (8) the quantity as "#0" and (5) the price as "#0.00", the rest as it came;
// "&Cancelar" and the close box leave nine empty elements, so the caller reads an empty (1) as nothing
// chosen. With (1) empty (a blank line) the fields keep their design values. It tests neither stock nor
// cost, and places itself nowhere: the caller moves it to its own Left + 300, Top + 300.
class frmSolicitudArticulo : public shell::DialogoDeLinea {
    Q_OBJECT
public:
    frmSolicitudArticulo();

    QLabel* lblRotuloNombre;
    QLabel* lblNombre;
    QLabel* lblRotuloPrecio;
    shell::CajaTexto* txtCantidad;
    shell::CajaTexto* txtPrecio;
    QLabel* lblPrecioTotal;

    // Leaving a field: its text cleaned to a whole quantity or an amount, the total worked out again,
    // and a figure of 0 or less told; focus moves on all the same.
    void txtCantidad_Validate();
    void txtPrecio_Validate();

    // A charge concept instead of an article, as receipts show one: the title and the two captions
    // speak of a concept and its value, and the quantity stays as it came. The dialog wears it until
    // it unloads.
    void VestirComoConcepto();

protected:
    void Form_Load() override;
    void cmdBoton_Click(int Index) override;

private:
    // lblPrecioTotal = quantity x price, as the two fields read.
    void CalcularTotal();
};

} // namespace credito
