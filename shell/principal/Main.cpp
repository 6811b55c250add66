#include "shell/principal/Main.h"

#include "shell/common/Common.h"
#include "shell/principal/frmMain.h"
#include "shell/principal/frmSplash.h"

namespace shell {

void Main() {
    Common::ColorTituloFondo = QColor(0, 0, 128);
    Common::ColorTituloTexto = QColor(255, 255, 255);
    Common::ColorInactivoFondo = QColor(128, 128, 128);
    Common::ColorInactivoTexto = QColor(224, 224, 224);
    Common::Pantalla<frmSplash>().ShowModal();
    Common::Pantalla<frmMain>().Show();
}

} // namespace shell
