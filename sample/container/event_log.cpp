#include "sample/container/event_log.h"

#include "com/error.h"
#include "com/module.h"

#include <commctrl.h>

namespace qz {

void EventLog::Create(HWND parent) {
    handle_ = CreateWindowExW(0, WC_LISTBOXW, L"Events",
                              WS_CHILD | WS_VISIBLE | WS_BORDER | WS_VSCROLL | LBS_NOINTEGRALHEIGHT, 0, 0, 0,
                              0, parent, nullptr, ThisModule(), nullptr);
    ThrowLastErrorIf(!handle_, L"The list of events cannot be created");
}

int EventLog::Send(UINT message, WPARAM wParam, LPARAM lParam) const noexcept {
    return static_cast<int>(SendMessageW(handle_, message, wParam, lParam));
}

void EventLog::SetFont(HFONT font) noexcept { Send(WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE); }

void EventLog::Place(const Area& area) noexcept {
    SetWindowPos(handle_, nullptr, area.left, area.top, area.width, area.height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void EventLog::Show(bool shown) noexcept {
    shown_ = shown;
    ShowWindow(handle_, shown ? SW_SHOWNA : SW_HIDE);
}

void EventLog::Add(const std::wstring& line) {
    const std::wstring numbered = std::to_wstring(++added_) + L"  " + line;
    if (Send(LB_GETCOUNT) >= capacity) Send(LB_DELETESTRING, 0);
    const int index = Send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(numbered.c_str()));
    if (index >= 0) Send(LB_SETTOPINDEX, static_cast<WPARAM>(index));
}

}  // namespace qz
