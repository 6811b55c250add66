#pragma once

#include "shell/controles/CajaTexto.h"
#include "shell/marco/PantallaRegistro.h"
#include "store/Adodc.h"

namespace catalogos {

// The suppliers goods come from and documents are owed to. Like the bank screen, but it opens empty
// and shows a supplier only through "Buscar", asks before deleting, and catches every failure of its
// bar: the driver's text goes to the clerk and the screen stays in its mode (a supplier still named
// by a goods-in note or a document can't be deleted, and the program goes on).
class frmProveedor : public shell::PantallaRegistro {
    Q_OBJECT
public:
    frmProveedor();

    store::Adodc* adoProveedor;
    shell::CajaTexto* txtNombre;
    shell::CajaTexto* Text1; // NIT
    shell::CajaTexto* Text2; // Direccion
    shell::CajaTexto* Text3; // Telefonos
    shell::CajaTexto* Text4; // Fax
    shell::CajaTexto* Text5; // Contacto
    shell::CajaTexto* txtProveedorID;

protected:
    void Form_Load() override;
    void cmdBoton_Click(int Index) override;

private:
    void Boton(const QString& boton);
    void Buscar();
    void MostrarVacio();
};

} // namespace catalogos
