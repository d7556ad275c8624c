// What is asked of the screen.
#pragma once

#include "ui/geometry.h"

namespace qz {

/// Pixels per inch across and down; the usual 96 when the screen cannot be asked.
Size ScreenDpi() noexcept;

}  // namespace qz
