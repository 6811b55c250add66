#include "goods/Mercaderia.h"

#include "goods/frmNotaEnvio.h"
#include "goods/frmNotaIngreso.h"
#include "shell/common/Common.h"
#include "shell/principal/frmMain.h"

namespace mercaderia {

void registrarPantallas() {
    shell::frmMain::registrarPantalla(QStringLiteral("frmNotaEnvio"),
                                      [] { Common::Pantalla<frmNotaEnvio>().Show(); });
    shell::frmMain::registrarPantalla(QStringLiteral("frmNotaIngreso"),
                                      [] { Common::Pantalla<frmNotaIngreso>().Show(); });
}

} // namespace mercaderia
