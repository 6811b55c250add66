#pragma once

#include "shell/controles/CajaTexto.h"
#include "shell/controles/GrillaDetalle.h"
#include "shell/controles/SelectorFecha.h"
#include "shell/marco/LineasDeDetalle.h"
#include "shell/marco/PantallaRegistro.h"
#include "store/Adodc.h"

namespace credito {

// The clients and their credit history. Opened from the menu it starts empty and shows a client
// through "Buscar"; opened modally with Common::ClienteAbrir set (the credit application does it) it
// shows that client straight in "Modificar" and leaves by itself on "Guardar" and "Cancelar".
//
// Editing runs inside the shared transaction, joined when one is open, begun otherwise; "Guardar"
// commits it. The history lines live in fgDetalle and are written again as a whole on saving. Only
// the deletion catches failures: any other failure ends the program, which rolls back what was not
// committed. Closing the screen mid-edit asks nothing and leaves the transaction open.
class frmCliente : public shell::PantallaRegistro {
    Q_OBJECT
public:
    frmCliente();

    store::Adodc* adoCliente;
    shell::CajaTexto* txtNombres;
    shell::CajaTexto* txtApellidos;
    shell::SelectorFecha* txtFecha;
    shell::CajaTexto* txtFechaNacimiento; // hidden; takes the picker's date on saving
    shell::CajaTexto* txtNIT;
    shell::CajaTexto* txtCedulaRegistro;
    shell::CajaTexto* txtCedulaNumero;
    shell::CajaTexto* txtCedulaExtendida;
    shell::CajaTexto* txtCodigoLetra;
    shell::CajaTexto* txtCodigoNumero;
    shell::CajaTexto* txtLimite;
    shell::GrillaDetalle* fgDetalle;

    bool Editando = false;

    void txtApellidos_Validate();
    void txtCedulaRegistro_Validate();

protected:
    void Form_Load() override;
    void cmdBoton_Click(int Index) override;
    void cmdClose_Click() override;

private:
    void ConfigurarDetalle();
    void CargarHistorial();
    bool GuardarCliente();
    void EliminarCliente();
    long SiguienteCodigo(const QString& letra);
    void Buscar();
    void Editar(const QString& estado);
    void TerminarEdicion();
    void fgDetalle_Historial();

    shell::LineasDeDetalle* lineas_;
};

} // namespace credito
