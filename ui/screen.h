// What is asked of the screen.
#pragma once

#include "ui/geometry.h"

#include <windows.h>

namespace qz {

/// Pixels per inch across and down; the usual 96 when the screen cannot be asked.
Size ScreenDpi() noexcept;

/// Pixels per inch of the screen that a window is on; without a window those of the main one.
int WindowDpi(HWND window) noexcept;

}  // namespace qz
