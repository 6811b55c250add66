#include "credit/Credito.h"

#include "shell/common/Common.h"
#include "shell/principal/frmMain.h"

namespace credito {

void registrarPantallas() {
}

} // namespace credito
