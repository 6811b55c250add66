#pragma once

#include "shell/marco/Marco.h"

namespace shell {

// A choice among buttons made up at run time: one cmdBoton per option in Common::Parametros, stacked
// in fraMain, each as wide as the longest option needs. The close box answers "Cancelar". Shown
// through Common::ElegirOpcion.
class frmOpcion : public Marco {
    Q_OBJECT
public:
    frmOpcion();

protected:
    void Form_Load() override;
    void cmdBoton_Click(int Index) override;
    void cmdClose_Click() override;

private:
    void CrearOpciones();
    void AjustarOpciones();
    // A new element of the cmdBoton array, a hidden copy of cmdBoton(0).
    void cargarBoton(int indice);
};

} // namespace shell
