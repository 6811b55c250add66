#pragma once

#include "shell/marco/Marco.h"

#include <QLabel>

namespace shell {

// A message: three word-wrapped lines in lblMensaje and the close box as the only way out. A longer
// text is cut off, since the label doesn't grow. Shown through Common::MostrarMensaje.
class frmMensaje : public Marco {
    Q_OBJECT
public:
    frmMensaje();

    QLabel* lblMensaje = nullptr;

protected:
    void Form_Load() override;
};

} // namespace shell
