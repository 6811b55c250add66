#pragma once

namespace shell {

class Marco;

// The chrome of the search screen and the pick list, which have no mode word: the title gets one
// blank, the title strip spans the width but for the close box, the close box sits at the right end,
// the bar runs along the foot and takes the bar colour with its buttons.
void AjustarTituloYBarra(Marco& pantalla);

} // namespace shell
