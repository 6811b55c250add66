#pragma once

namespace shell {

class Marco;

// The standard layout for a dialog with a button bar but neither close box nor mode word (they are
// hidden from the start): the title strip takes the whole width, and the working frame stays enabled
// so that its field takes input.
void AjustarDialogo(Marco& dialogo);

} // namespace shell
