// Resolution-dependent lengths.
#pragma once

#include <windows.h>

namespace qz {

/// Dots per inch of the screen that a window is on.
int DpiOf(HWND window) noexcept;

/// A length designed at 96 dots per inch, in pixels of the window.
int Scaled(HWND window, int length) noexcept;

/// Between a window's pixels and HIMETRIC, the unit of control extents (1/100 mm).
long ToHimetric(HWND window, long pixels) noexcept;
long FromHimetric(HWND window, long himetric) noexcept;

}  // namespace qz
