// Requests for a context menu.
#pragma once

#include <windows.h>
#include <windowsx.h>

namespace qz {

/// One WM_CONTEXTMENU, to be made while it is being handled.
struct MenuRequest {
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    LONG time = 0;

    MenuRequest() = default;
    MenuRequest(WPARAM word, LPARAM place) noexcept : wParam(word), lParam(place), time(GetMessageTime()) {}

    /// By a key rather than at a point.
    bool ByKeyboard() const noexcept { return lParam == -1; }
    /// Signed screen pixels.
    POINT ScreenPoint() const noexcept { return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}; }

    /// Scroll bars have menus of their own.
    bool OnScrollBarOf(HWND window) const noexcept {
        if (ByKeyboard()) return false;
        const LRESULT place = SendMessageW(window, WM_NCHITTEST, 0, lParam);
        return place == HTVSCROLL || place == HTHSCROLL;
    }

    /// The very message again, as it comes back when a container passes it on.
    bool operator==(const MenuRequest&) const = default;
};

}  // namespace qz
