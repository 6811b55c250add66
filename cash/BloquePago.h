#pragma once

#include "shell/controles/CajaTexto.h"
#include "shell/controles/ComboDatos.h"
#include "store/Adodc.h"

#include <QFrame>
#include <QLabel>
#include <functional>

namespace shell {
class Marco;
}

namespace caja {

// How a money document is paid, on the panel panBanco that receipts and invoices both carry: cash, a
// cheque of a bank, or both, "Total recibido:" and the change. The tender must cover the document's
// total; there is no card, no credit and no partial payment here.
//
// The cash, cheque number and cheque amount are bound to the document's row (Efectivo, ChequeNumero,
// ChequeValor), and so is the change (Vuelto), which goes to the row with the bank when the screen
// saves. The bank is not bound: the screen shows the row's BancoID through MostrarBanco and saves it
// through EscribirEnFila, 0 standing for none.
//
// The screen says only what differs: its "Total a pagar:" label, and what runs when a figure of the
// tender has been left (by default the change; the invoice works its totals out first).
class BloquePago : public QFrame {
    Q_OBJECT
public:
    // The panel in `padre`, at left/top (twips), bound to `documento`'s row.
    BloquePago(shell::Marco& pantalla, QWidget* padre, double left, double top, store::Adodc* documento,
               QLabel* lblTotal);

    store::Adodc* adoBancos;
    shell::CajaTexto* txtEfectivo;
    shell::ComboDatos* dacBancos;
    shell::CajaTexto* txtNoCheque;
    shell::CajaTexto* txtChequeValor;
    QLabel* lblTotalRecibido;
    QLabel* lblVuelto;

    // Leaving the cash or the cheque amount: the figure cleaned to "#0.00", "Total recibido:" summed
    // again, then alCambiarRecibido. Neither holds the clerk in the field.
    void txtEfectivo_Validate();
    void txtChequeValor_Validate();
    std::function<void()> alCambiarRecibido;

    // At the screen's load: the banks read, the panel in the bar's colour.
    void Cargar();
    // "Vuelto:" = cheque + cash - "Total a pagar:", negative while the tender falls short. The screen
    // runs it whenever its total changes.
    void CalcularVuelto();
    // "Total recibido:" = cash + cheque, as the fields read now.
    void SumarRecibido();
    // The row's bank chosen in the list (a Null key counts 0, and 0, found in no row, shows none).
    void MostrarBanco(const QVariant& bancoID);
    // No bank chosen ("Agregar").
    void SinBanco();
    // The three refusals at "Guardar", in order: a cheque without number or bank, a number or a bank
    // without a cheque amount, a tender short of the total. False after telling the clerk.
    bool Validar();
    // The bank (0 when none is chosen) and the change into the row, before its Update.
    void EscribirEnFila(store::Recordset& fila);

private:
    shell::Marco& pantalla_;
    QLabel* lblTotal_;
};

} // namespace caja
