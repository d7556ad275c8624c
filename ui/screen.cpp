#include "ui/screen.h"

namespace qz {

Size ScreenDpi() noexcept {
    const HDC screen = GetDC(nullptr);
    if (!screen) return {96, 96};
    const Size dpi{GetDeviceCaps(screen, LOGPIXELSX), GetDeviceCaps(screen, LOGPIXELSY)};
    ReleaseDC(nullptr, screen);
    return dpi.width > 0 && dpi.height > 0 ? dpi : Size{96, 96};
}

int WindowDpi(HWND window) noexcept {
    // Not on every Windows this module is loaded on. By way of void*, for the types have nothing in common.
    using GetDpiForWindowFunction = UINT(WINAPI*)(HWND);
    static const auto getDpiForWindow = reinterpret_cast<GetDpiForWindowFunction>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), "GetDpiForWindow")));
    const int dpi = getDpiForWindow && window ? static_cast<int>(getDpiForWindow(window)) : 0;
    return dpi > 0 ? dpi : ScreenDpi().height;
}

}  // namespace qz
