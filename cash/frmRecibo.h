#pragma once

#include "cash/PantallaDeCaja.h"

#include <QLabel>

namespace caja {

// The receipt: money taken for a credit application (how a credit is paid), for a registered client,
// or for a name typed by hand. Its class is written in four files:
//   frmRecibo.cpp          the bar: search, add, modify, cancel, save, and the receipt's number
//   frmRecibo_diseno.cpp   the layout: two frames, the grids between them, the tender
//   frmRecibo_persona.cpp  who the receipt is for: an application, "Cliente >", a plain name
//   frmRecibo_lineas.cpp   the application's balances, the lines, the mora and the total
//
// Nothing is posted: a receipt is its row and its lines, and every balance comes from the views. The
// one stored figure it changes is the application's mora, inside the receipt's own transaction. That
// transaction runs on the shared connection from "Agregar" or "Modificar" to "Guardar" or "Cancelar";
// a save that fails keeps it open for a second "Guardar". A receipt is never deleted nor printed.
// What it shares with the invoice (the party, the lines' dialog and pick list, the edit) is in
// PantallaDeCaja.
class frmRecibo : public PantallaDeCaja {
    Q_OBJECT
public:
    frmRecibo();

    store::Adodc* adoRecibos;
    QFrame* fraMain1; // fraMain(1): the concept and the tender; fraMain is fraMain(0)

    shell::CajaTexto* txtNumeroRecibo;
    QLabel* lblCodigo;
    shell::GrillaDetalle* fgSaldos;
    QLabel* lblTotal;
    shell::CajaTextoMultilinea* txtConcepto;

    void txtNumeroRecibo_Validate();
    void txtNumeroSolicitud_Validate() override;
    void txtNumeroSolicitud_KeyDown(int KeyCode, int Shift) override;
    void txtNombreCliente_DblClick() override;
    void cmdCliente_Click() override;
    void fgDetalle_DblClick();

protected:
    void Form_Load() override;
    void cmdBoton_Click(int Index) override;

private:
    // frmRecibo.cpp
    void Buscar();
    void Agregar();
    void Modificar();
    void Guardar();
    void CargarRecibo();
    bool GuardarRecibo();

    // frmRecibo_diseno.cpp
    void DisenarEncabezado();
    void DisenarLineas();
    void DisenarPago();
    void OrdenDeTabulacion();

    // frmRecibo_persona.cpp
    // The balances go with the lines whenever who pays changes.
    void OlvidarPersona() override;
    void CargarSaldos();

    // frmRecibo_lineas.cpp
    void PrepararGrillas();
    void CalcularTotal();
    bool AgregarMora();
    void AgregarConcepto();
    void AgregarArticulo();
    void AgregarLinea(const QString& concepto, const QString& articulo, double cantidad,
                      const QString& descripcion, double valor);
};

} // namespace caja
