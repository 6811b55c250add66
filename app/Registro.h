#pragma once

namespace aplicacion {

// Tells the main window every screen the program has, subsystem by subsystem: what main() runs, and
// what the tests that open screens through the menu run too.
void RegistrarPantallas();

} // namespace aplicacion
