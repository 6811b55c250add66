#pragma once

namespace shell {

// The entry point of the screens: the title colours, the splash shown modally, then the main
// window shown without blocking.
void Main();

} // namespace shell
