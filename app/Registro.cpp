#include "app/Registro.h"

#include "catalogs/Catalogos.h"

namespace aplicacion {

void RegistrarPantallas() {
    catalogos::registrarPantallas();
}

} // namespace aplicacion
