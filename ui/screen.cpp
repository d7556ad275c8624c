#include "ui/screen.h"

#include <windows.h>

namespace qz {

Size ScreenDpi() noexcept {
    const HDC screen = GetDC(nullptr);
    if (!screen) return {96, 96};
    const Size dpi{GetDeviceCaps(screen, LOGPIXELSX), GetDeviceCaps(screen, LOGPIXELSY)};
    ReleaseDC(nullptr, screen);
    return dpi.width > 0 && dpi.height > 0 ? dpi : Size{96, 96};
}

}  // namespace qz
