#include "credit/Credito.h"

#include "credit/frmCliente.h"
#include "credit/frmFiador.h"
#include "credit/frmSolicitud.h"
#include "shell/common/Common.h"
#include "shell/principal/frmMain.h"

namespace credito {

void registrarPantallas() {
    shell::frmMain::registrarPantalla(QStringLiteral("frmCliente"),
                                      [] { Common::Pantalla<frmCliente>().Show(); });
    shell::frmMain::registrarPantalla(QStringLiteral("frmFiador"),
                                      [] { Common::Pantalla<frmFiador>().Show(); });
    shell::frmMain::registrarPantalla(QStringLiteral("frmSolicitud"),
                                      [] { Common::Pantalla<frmSolicitud>().Show(); });
}

} // namespace credito
