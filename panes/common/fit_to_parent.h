// Fitting a pane to the window it stands in.
#pragma once

#include <windows.h>

namespace qz {

/// Gives a control's window the size of its parent's client area; its position and order stay. Nothing
/// without a window.
inline void FitToParent(HWND window) noexcept {
    RECT client{};
    if (!window || !GetClientRect(GetParent(window), &client)) return;
    SetWindowPos(window, nullptr, 0, 0, client.right, client.bottom,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace qz
