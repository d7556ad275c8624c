#include "ui/modeless_keyboard.h"

#include "com/error.h"
#include "ui/dialog_keyboard.h"

namespace qz {

namespace {

thread_local ModelessKeyboard* first = nullptr;

bool IsKey(UINT message) noexcept { return message >= WM_KEYFIRST && message <= WM_KEYLAST; }

/// Keys are then those of a menu, or move or size the window.
bool InMenuOrMoving() noexcept {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    constexpr DWORD modes = GUI_INMENUMODE | GUI_POPUPMENUMODE | GUI_SYSTEMMENUMODE | GUI_INMOVESIZE;
    return GetGUIThreadInfo(GetCurrentThreadId(), &info) && (info.flags & modes);
}

}  // namespace

ModelessKeyboard::ModelessKeyboard(HWND dialog)
    : dialog_(dialog),
      hook_(SetWindowsHookExW(WH_GETMESSAGE, &OnMessage, nullptr, GetCurrentThreadId())),
      next_(first) {
    ThrowLastErrorIf(!hook_, L"The keyboard of the dialog cannot be followed");
    first = this;
}

ModelessKeyboard::~ModelessKeyboard() {
    UnhookWindowsHookEx(hook_);
    ModelessKeyboard** link = &first;
    while (*link != this) link = &(*link)->next_;
    *link = next_;
}

/// Every dialog has a hook of its own; each sees to the keys of its dialog only, which is the first in the
/// list that the message is for.
LRESULT CALLBACK ModelessKeyboard::OnMessage(int code, WPARAM removed, LPARAM lParam) noexcept {
    auto* const message = reinterpret_cast<MSG*>(lParam);
    if (code == HC_ACTION && removed == PM_REMOVE && IsKey(message->message) && !InMenuOrMoving()) {
        for (ModelessKeyboard* each = first; each; each = each->next_) {
            const HWND dialog = each->dialog_;
            if (message->hwnd != dialog && !IsChild(dialog, message->hwnd)) continue;
            if (HandleDialogMessage(dialog, *message)) message->message = WM_NULL;
            break;  // the list may be another one by now
        }
    }
    return CallNextHookEx(nullptr, code, removed, lParam);
}

}  // namespace qz
