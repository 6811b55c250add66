#include "app/Registro.h"

#include "catalogs/Catalogos.h"
#include "credit/Credito.h"

namespace aplicacion {

void RegistrarPantallas() {
    catalogos::registrarPantallas();
    credito::registrarPantallas();
}

} // namespace aplicacion
