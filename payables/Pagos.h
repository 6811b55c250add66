#pragma once

namespace pagos {

// Tells the main window which screens of supplier payables it opens, by name.
void registrarPantallas();

} // namespace pagos
