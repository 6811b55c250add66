#include "app/Registro.h"

#include "cash/Caja.h"
#include "catalogs/Catalogos.h"
#include "credit/Credito.h"
#include "goods/Mercaderia.h"
#include "payables/Pagos.h"

namespace aplicacion {

void RegistrarPantallas() {
    catalogos::registrarPantallas();
    credito::registrarPantallas();
    caja::registrarPantallas();
    mercaderia::registrarPantallas();
    pagos::registrarPantallas();
}

} // namespace aplicacion
