#pragma once

#include "shell/marco/Marco.h"

#include <QLabel>
#include <QLineEdit>

namespace shell {

// A one-line text prompt: lblPregunta over txtTexto, "Aceptar" (also Enter) and "Cancelar" (also
// Escape), no close box. Shown through Common::PedirTexto; the text comes back in
// Common::TextoSeleccionado.
class frmIngresoTexto : public Marco {
    Q_OBJECT
public:
    frmIngresoTexto();

    QLabel* lblPregunta = nullptr;
    QLineEdit* txtTexto = nullptr;

protected:
    void Form_Load() override;
    void cmdBoton_Click(int Index) override;
    void txtTexto_GotFocus();
    void keyPressEvent(QKeyEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;
};

} // namespace shell
