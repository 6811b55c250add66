#include "payables/Pagos.h"

#include "payables/frmDocumentos.h"
#include "shell/common/Common.h"
#include "shell/principal/frmMain.h"

namespace pagos {

void registrarPantallas() {
    shell::frmMain::registrarPantalla(QStringLiteral("frmDocumentos"),
                                      [] { Common::Pantalla<frmDocumentos>().Show(); });
}

} // namespace pagos
