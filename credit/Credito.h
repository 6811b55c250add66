#pragma once

namespace credito {

// Tells the main window how to show each screen of clients, their history and guarantors.
void registrarPantallas();

} // namespace credito
