#pragma once

#include "shell/controles/CajaTexto.h"
#include "shell/controles/ComboDatos.h"
#include "shell/marco/DialogoDeLinea.h"
#include "store/Adodc.h"

namespace credito {

// One line of a client's credit history, typed or changed and handed back through Parametros:
// (1) date, (2) description, (3) value, (4) the classification's text, (5) its key. It writes nothing;
// the client screen stores its lines when it saves. "&Aceptar" checks nothing; "&Cancelar" and the
// close box leave Parametros empty. The caller reads an empty date as a cancellation.
class frmHistorial : public shell::DialogoDeLinea {
    Q_OBJECT
public:
    frmHistorial();

    store::Adodc* adoClasificacion;
    shell::CajaTexto* txtHFecha;
    shell::CajaTexto* txtHDescripcion;
    shell::CajaTexto* txtHValor;
    shell::ComboDatos* dcClasificacion;

    void txtHValor_Validate();

protected:
    void Form_Load() override;
    void cmdBoton_Click(int Index) override;
};

} // namespace credito
