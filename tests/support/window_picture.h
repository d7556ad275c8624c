// What a window shows on the screen, and whether that is what it would paint.
#pragma once

#include "tests/support/pane_window.h"

#include <windows.h>

#include <vector>

namespace qz {

/// The pixels of a window's client area with its children.
inline std::vector<COLORREF> PictureOf(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    const HDC source = GetDCEx(window, nullptr, DCX_CACHE);
    const HDC memory = CreateCompatibleDC(source);
    BITMAPINFO description{};
    description.bmiHeader = {
        sizeof(BITMAPINFOHEADER), client.right, -client.bottom, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    const HBITMAP bitmap = CreateDIBSection(memory, &description, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HGDIOBJ before = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, client.right, client.bottom, source, 0, 0, SRCCOPY);
    GdiFlush();
    const auto* const first = static_cast<const COLORREF*>(bits);
    std::vector<COLORREF> picture(first, first + client.right * client.bottom);
    for (COLORREF& pixel : picture) pixel &= 0xFFFFFF;
    SelectObject(memory, before);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(window, source);
    return picture;
}

/// The number of pixels that painting everything anew changes.
inline int OldPixels(HWND window) {
    PumpMessages();
    const std::vector<COLORREF> shown = PictureOf(window);
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    PumpMessages();
    const std::vector<COLORREF> fresh = PictureOf(window);
    int different = 0;
    for (std::size_t i = 0; i < fresh.size(); ++i) different += shown[i] != fresh[i] ? 1 : 0;
    return different;
}

}  // namespace qz
