#include "dialogs/document/rich_field.h"

#include <richedit.h>

namespace qz {

void RichField::Take(HWND control, int longestText) {
    SendMessageW(control, EM_SETTEXTMODE, TM_PLAINTEXT, 0);
    SendMessageW(control, EM_EXLIMITTEXT, 0, longestText);
    Attach(control);
}

void RichField::Show(const wchar_t* text) const noexcept {
    SETTEXTEX format{ST_DEFAULT, 1200};  // UTF-16
    SendMessageW(Handle(), EM_SETTEXTEX, reinterpret_cast<WPARAM>(&format), reinterpret_cast<LPARAM>(text));
}

std::optional<LRESULT> RichField::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_GETDLGCODE) return std::nullopt;
    return SendToClass(message, wParam, lParam) & ~LRESULT{DLGC_WANTTAB};
}

}  // namespace qz
