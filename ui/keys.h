// What many handlers of key messages ask.
#pragma once

#include <windows.h>

namespace qz {

/// Whether a key was down when the message now handled was made.
inline bool KeyIsDown(int key) noexcept { return GetKeyState(key) < 0; }

/// The keys that move within a list, a tree or a page of items.
constexpr bool IsNavigationKey(WPARAM key) noexcept {
    switch (key) {
        case VK_HOME:
        case VK_END:
        case VK_LEFT:
        case VK_UP:
        case VK_RIGHT:
        case VK_DOWN:
        case VK_PRIOR:
        case VK_NEXT:
            return true;
        default:
            return false;
    }
}

}  // namespace qz
