#include "shell/dialogos/AjusteDeDialogo.h"

#include "shell/marco/Marco.h"

namespace shell {

void AjustarDialogo(Marco& dialogo) {
    dialogo.AjustarPantalla();
    dialogo.lblTitulo->resize(dialogo.width(), dialogo.lblTitulo->height());
    // A record screen browses with fraMain disabled; a dialog's frame is always live.
    dialogo.fraMain->setEnabled(true);
}

} // namespace shell
