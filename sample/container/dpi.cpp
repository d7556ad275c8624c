#include "sample/container/dpi.h"

namespace qz {

namespace {

constexpr int himetricPerInch = 2540;

using GetDpiForWindowFunction = UINT(WINAPI*)(HWND);

/// Not on every Windows this program starts on.
GetDpiForWindowFunction FindGetDpiForWindow() noexcept {
    const HMODULE user = GetModuleHandleW(L"user32.dll");
    // By way of void*, for the types of the two functions have nothing in common.
    return reinterpret_cast<GetDpiForWindowFunction>(
        reinterpret_cast<void*>(GetProcAddress(user, "GetDpiForWindow")));
}

int SystemDpi() noexcept {
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return dpi;
}

}  // namespace

int DpiOf(HWND window) noexcept {
    static const GetDpiForWindowFunction getDpiForWindow = FindGetDpiForWindow();
    const int dpi = getDpiForWindow && window ? static_cast<int>(getDpiForWindow(window)) : SystemDpi();
    return dpi > 0 ? dpi : USER_DEFAULT_SCREEN_DPI;
}

int Scaled(HWND window, int length) noexcept {
    return MulDiv(length, DpiOf(window), USER_DEFAULT_SCREEN_DPI);
}

long ToHimetric(HWND window, long pixels) noexcept { return MulDiv(pixels, himetricPerInch, DpiOf(window)); }

long FromHimetric(HWND window, long himetric) noexcept {
    return MulDiv(himetric, DpiOf(window), himetricPerInch);
}

}  // namespace qz
