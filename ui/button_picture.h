// Pictures on buttons.
#pragma once

#include "ui/gdi.h"

namespace qz {

/// A bitmap of this module, `side` pixels wide and high. The colour of its lower left pixel, which must come
/// from a colour table, becomes that of the button's face. The button that shows it does not own it. Throws
/// when there is none.
Bitmap LoadButtonPicture(unsigned id, int side);

/// The same with its own colours, for a disabled button: the system draws a shadow of all that is not white,
/// so the lower left pixel should be.
Bitmap LoadDisabledPicture(unsigned id, int side);

}  // namespace qz
