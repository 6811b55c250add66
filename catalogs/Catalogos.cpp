#include "catalogs/Catalogos.h"

#include "catalogs/frmArticulo.h"
#include "catalogs/frmBanco.h"
#include "catalogs/frmProveedor.h"
#include "shell/common/Common.h"
#include "shell/principal/frmMain.h"

namespace catalogos {

void registrarPantallas() {
    shell::frmMain::registrarPantalla(QStringLiteral("frmBanco"),
                                      [] { Common::Pantalla<frmBanco>().Show(); });
    shell::frmMain::registrarPantalla(QStringLiteral("frmProveedor"),
                                      [] { Common::Pantalla<frmProveedor>().Show(); });
    shell::frmMain::registrarPantalla(QStringLiteral("frmArticulo"),
                                      [] { Common::Pantalla<frmArticulo>().Show(); });
}

} // namespace catalogos
