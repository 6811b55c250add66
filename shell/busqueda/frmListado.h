#pragma once

#include "shell/busqueda/RejillaDeDatos.h"
#include "shell/marco/Marco.h"
#include "store/Adodc.h"

namespace shell {

// The pick list: a two-column list of a short catalogue (banks, suppliers, concepts) from which the
// user picks one row. The caller touches the screen (which loads it), calls CargarLista with a query
// returning Codigo (numeric) and Descripcion (text) in that order, sets the title and shows it
// modally; then Common::IDSeleccionado and Common::TextoSeleccionado hold the picked row, or 0 and ""
// on every other way out.
class frmListado : public Marco {
    Q_OBJECT
public:
    frmListado();

    // Clears the results and shows the rows of the query.
    void CargarLista(const QString& Consulta);

    store::Adodc* Adodc;
    RejillaDeDatos* DataGrid;

protected:
    void Form_Load() override;
    void cmdBoton_Click(int Index) override;

private:
    void Elegir();
};

} // namespace shell
