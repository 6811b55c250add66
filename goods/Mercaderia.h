#pragma once

namespace mercaderia {

// Tells the main window which screens of goods movement it opens, by name.
void registrarPantallas();

} // namespace mercaderia
