#pragma once

#include "shell/controles/CajaTexto.h"
#include "shell/marco/PantallaRegistro.h"
#include "store/Adodc.h"

namespace catalogos {

// The banks from which cheques are received: the plainest record screen. It holds the whole table
// and opens on its first row; "Guardar" stores with no check and "Eliminar" deletes with no question,
// each at once on the data control's own connection (no transaction). Nothing here catches a
// failure: a refused row ends the program through the fatal path.
class frmBanco : public shell::PantallaRegistro {
    Q_OBJECT
public:
    frmBanco();

    store::Adodc* adoBanco;
    shell::CajaTexto* txtNombre;
    shell::CajaTexto* txtDireccion;

protected:
    void Form_Load() override;
    void cmdBoton_Click(int Index) override;

private:
    void Buscar();
};

} // namespace catalogos
