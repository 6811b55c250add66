#include "cash/Caja.h"

#include "cash/frmFactura.h"
#include "cash/frmRecibo.h"
#include "shell/common/Common.h"
#include "shell/principal/frmMain.h"

namespace caja {

void registrarPantallas() {
    shell::frmMain::registrarPantalla(QStringLiteral("frmRecibo"),
                                      [] { Common::Pantalla<frmRecibo>().Show(); });
    shell::frmMain::registrarPantalla(QStringLiteral("frmFactura"),
                                      [] { Common::Pantalla<frmFactura>().Show(); });
}

} // namespace caja
