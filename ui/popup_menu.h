// A context menu.
#pragma once

#include "com/error.h"

#include <windows.h>

#include <string>

namespace qz {

/// Owns a popup menu. Commands are 16-bit ids, none of them 0.
class PopupMenu {
  public:
    PopupMenu() : menu_(CreatePopupMenu()) { ThrowLastErrorIf(!menu_, L"The menu cannot be made"); }
    ~PopupMenu() { DestroyMenu(menu_); }
    PopupMenu(const PopupMenu&) = delete;
    PopupMenu& operator=(const PopupMenu&) = delete;

    void Append(UINT id, const std::wstring& text, bool enabled = true) {
        const UINT flags = MF_STRING | (enabled ? MF_ENABLED : MF_GRAYED);
        ThrowLastErrorIf(!AppendMenuW(menu_, flags, id, text.c_str()), L"The menu cannot be filled");
    }
    /// Marks one of the entries from `first` to `last` as the one that holds; none when it is not among them.
    void CheckOne(UINT first, UINT last, UINT checked) {
        CheckMenuRadioItem(menu_, first, last, checked, MF_BYCOMMAND);
    }
    void AppendSeparator() { AppendMenuW(menu_, MF_SEPARATOR, 0, nullptr); }

    /// Shows the menu at a screen point until the user has chosen; 0 when he did not. Handles messages
    /// meanwhile: look again at everything afterwards.
    UINT Track(HWND owner, POINT screen) {
        const UINT flags = TPM_RETURNCMD | TPM_RIGHTBUTTON;
        return static_cast<UINT>(TrackPopupMenu(menu_, flags, screen.x, screen.y, 0, owner, nullptr));
    }

  private:
    HMENU menu_;
};

}  // namespace qz
