#pragma once

#include "cash/BloquePago.h"
#include "shell/controles/CajaTexto.h"
#include "shell/controles/GrillaDetalle.h"
#include "shell/controles/SelectorFecha.h"
#include "shell/marco/LineasDeDetalle.h"
#include "shell/marco/PantallaRegistro.h"
#include "store/Adodc.h"

#include <QColor>
#include <QLabel>
#include <QPushButton>

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
class frmRecibo : public shell::PantallaRegistro {
    Q_OBJECT
public:
    frmRecibo();

    store::Adodc* adoRecibos;
    QFrame* fraMain1; // fraMain(1): the concept and the tender; fraMain is fraMain(0)

    shell::CajaTexto* txtNumeroRecibo;
    shell::SelectorFecha* dpFecha;
    shell::CajaTexto* txtNumeroSolicitud;
    QLabel* lblCodigo;
    QPushButton* cmdCliente;
    shell::CajaTexto* txtNombreCliente;
    shell::GrillaDetalle* fgSaldos;
    shell::GrillaDetalle* fgDetalle;
    QLabel* lblTotal;
    shell::CajaTextoMultilinea* txtConcepto;
    BloquePago* panBanco;

    bool Editando = false;
    long SolicitudID = 0;
    long ClienteID = 0;

    void txtNumeroRecibo_Validate();
    void txtNumeroSolicitud_Validate();
    void txtNumeroSolicitud_KeyDown(int KeyCode, int Shift);
    void txtNombreCliente_DblClick();
    void txtNombreCliente_Validate();
    void cmdCliente_Click();
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
    void Cancelar();
    void CargarRecibo();
    bool GuardarRecibo();
    void EditarEnTransaccion();

    // frmRecibo_diseno.cpp
    void DisenarEncabezado();
    void DisenarLineas();
    void DisenarPago();
    void OrdenDeTabulacion();

    // frmRecibo_persona.cpp
    // The lines and the balances wiped, the name locked again: every change of who pays starts here.
    void OlvidarPersona();
    // The name back to the field's own colour, locked.
    void BloquearNombre();
    void CargarSaldos();

    // frmRecibo_lineas.cpp
    void PrepararGrillas();
    void CalcularTotal();
    bool AgregarMora();
    void AgregarConcepto();
    void AgregarArticulo();
    bool EsLineaReal(int fila) const;
    void AgregarLinea(const QString& concepto, const QString& articulo, double cantidad,
                      const QString& descripcion, double valor);
    void AbrirLinea(bool comoConcepto);

    shell::LineasDeDetalle* lineas_;
    QColor colorNombre_; // the name field's own colour, before a plain name paints it
};

} // namespace caja
