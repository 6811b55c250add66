#pragma once

namespace shell {

// The look every window shares: the system's font (a sans serif of Arial's metrics at 8 points, so
// that captions fit the widths the screens give in twips; DejaVu Sans where it is missing) and the
// application's name and version.
void AplicarApariencia(const char* version);

} // namespace shell
