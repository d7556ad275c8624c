// Answers a popup menu in place of the user.
#pragma once

#include <windows.h>

#include <string>

namespace qz {

/// Chooses an entry of the next menu that this thread shows, counted from 1, or leaves it (0), and keeps what
/// it offered.
class MenuAnswer {
  public:
    explicit MenuAnswer(int entry) : timer_(SetTimer(nullptr, 0, 30, &OnTimer)) {
        entry_ = entry;
        offered_.clear();
        SetCursorPos(900, 900);  // not on the menu, where it would choose too
    }
    ~MenuAnswer() { KillTimer(nullptr, timer_); }  // still there when no menu came up
    MenuAnswer(const MenuAnswer&) = delete;
    MenuAnswer& operator=(const MenuAnswer&) = delete;

    /// The entries, "|" after each; "*" before those that are checked, "~" before those that are greyed.
    static const std::wstring& Offered() noexcept { return offered_; }
    /// On the screen.
    static POINT Corner() noexcept { return {place_.left, place_.top}; }

  private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR timer, DWORD) {
        const HWND window = FindWindowW(L"#32768", nullptr);
        if (!window || !IsWindowVisible(window)) return;
        const auto menu = reinterpret_cast<HMENU>(SendMessageW(window, 0x01E1 /* MN_GETHMENU */, 0, 0));
        if (!IsMenu(menu)) return;
        KillTimer(nullptr, timer);
        GetWindowRect(window, &place_);
        for (int i = 0; i < GetMenuItemCount(menu); ++i) {
            wchar_t text[100] = L"";
            GetMenuStringW(menu, static_cast<UINT>(i), text, 100, MF_BYPOSITION);
            const UINT state = GetMenuState(menu, static_cast<UINT>(i), MF_BYPOSITION);
            if (!*text) continue;  // between groups
            offered_ += (state & MF_CHECKED ? L"*" : L"") + std::wstring(state & MF_GRAYED ? L"~" : L"");
            offered_ += text + std::wstring(L"|");
        }
        for (int i = 0; i < entry_; ++i) PostMessageW(window, WM_KEYDOWN, VK_DOWN, 0);
        PostMessageW(window, WM_KEYDOWN, entry_ > 0 ? VK_RETURN : VK_ESCAPE, 0);
    }

    static inline int entry_ = 0;
    static inline std::wstring offered_;
    static inline RECT place_{};
    UINT_PTR timer_;
};

}  // namespace qz
