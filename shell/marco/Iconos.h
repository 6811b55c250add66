#pragma once

#include <QIcon>
#include <QString>

namespace shell::Iconos {

// The icon of a button or toolbar entry by its caption or key ("&Buscar" and "Buscar" alike); an
// empty icon for a caption that has none. Drawn from the SVG files in shell/iconos.
QIcon para(const QString& caption);

} // namespace shell::Iconos
