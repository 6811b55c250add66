#pragma once

namespace catalogos {

// Tells the main window how to show each catalogue screen.
void registrarPantallas();

} // namespace catalogos
