#pragma once

#include "shell/marco/Marco.h"

#include <QLabel>

namespace shell {

// A yes-or-no question: lblPregunta, two centred lines, over "Aceptar" and "Cancelar", which are the
// only way out (no close box). Shown through Common::Preguntar.
class frmPregunta : public Marco {
    Q_OBJECT
public:
    frmPregunta();

    QLabel* lblPregunta = nullptr;

protected:
    void Form_Load() override;
    void cmdBoton_Click(int Index) override;
};

} // namespace shell
