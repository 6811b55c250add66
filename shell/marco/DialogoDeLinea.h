#pragma once

#include "shell/marco/Marco.h"

namespace shell {

// A line dialog: the small modal screen that edits one line of a detail grid through Parametros
// (frmHistorial, frmSolicitudArticulo, frmNotaIngresoArticulo, frmDocumentoPago...). It wears the
// screens' chrome with buttons of its own, and Enter moves on as on a record screen. Leaving without
// accepting (the close box, or a "Cancelar" that calls Anular) leaves Parametros with empty elements
// only, so that the caller sees that nothing was chosen: one, or as many as the dialog says.
class DialogoDeLinea : public Marco {
    Q_OBJECT
public:
    DialogoDeLinea(const QString& titulo, double ancho, double alto, int elementosAlAnular = 1,
                   QWidget* parent = nullptr);

    // The standard layout, with the working frame enabled: a line dialog's fields take input from the
    // moment it opens.
    void AjustarPantalla();

protected:
    void cmdClose_Click() override { Anular(); }
    // Parametros emptied, then the dialog unloads.
    void Anular();

private:
    int elementosAlAnular_;
};

} // namespace shell
