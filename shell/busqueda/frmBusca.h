#pragma once

#include "shell/busqueda/RejillaDeDatos.h"
#include "shell/marco/Marco.h"
#include "store/Adodc.h"

#include <QFrame>
#include <QLineEdit>
#include <QList>

namespace shell {

// The one search screen of the system. It runs Common::ConsultaBusqueda and reads how to show each
// column from its name: shw<width>_<type>_<Caption> is shown (width in twips, type "str", "dat" or
// numeric, underscores of the caption shown as blanks), any other name is hidden. Over each shown
// column stands a filter box; "&Buscar" reruns the query with the filled boxes as a condition. A
// double click hands the row's fields back in Common::Parametros, by position and hidden ones too;
// the close box leaves Parametros(1) empty.
//
// The caller sets ConsultaBusqueda before touching the screen, then its title, place and ShowModal.
// No handler catches a failure: a statement the database refuses ends the program.
class frmBusca : public Marco {
    Q_OBJECT
public:
    frmBusca();

    store::Adodc* ado;
    RejillaDeDatos* dg;
    // Control arrays: element 0 is the hidden template; 1..n are loaded over the shown columns. Each
    // filter box carries in its "Tag" property the raw name of its column.
    QList<QFrame*> shpBox;
    QList<QLineEdit*> txtField;

protected:
    void Form_Load() override;
    void cmdBoton_Click(int Index) override;
    void cmdClose_Click() override;

private:
    void ConstruirColumnas();
    void CargarCaja(int k, double left, double ancho, const QString& columna);
    void Buscar();
    void LimpiarBusqueda();
    void dg_DblClick();

    bool CajasCreadas = false;
};

// The search as every screen opens it: the caller's title dimmed, the query set, the search screen
// with its caption at the caller's Left + 300, Top + 300, shown modally, the caller's title highlighted
// again. True when a row was picked (its fields are in Common::Parametros).
bool Buscar(Formulario& llamador, const QString& consulta, const QString& titulo);

} // namespace shell
