#pragma once

namespace caja {

// Tells the main window which screens of receipts and invoices it opens, by name.
void registrarPantallas();

} // namespace caja
