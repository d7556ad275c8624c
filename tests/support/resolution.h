// The screen's resolution, at which tests run as they find it.
#pragma once

#include <windows.h>

namespace qz {

/// The pixels of what has so many at 96 dots an inch.
inline int Scaled(int pixels) noexcept {
    const HDC screen = GetDC(nullptr);
    const int dots = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return MulDiv(pixels, dots, 96);
}

}  // namespace qz
