#include "tests/support/message_box_answer.h"

#include <iterator>

namespace qz {

MessageBoxAnswer* MessageBoxAnswer::current_ = nullptr;

MessageBoxAnswer::MessageBoxAnswer(int button) : button_(button), timer_(SetTimer(nullptr, 0, 20, &OnTimer)) {
    current_ = this;
}

MessageBoxAnswer::~MessageBoxAnswer() {
    KillTimer(nullptr, timer_);
    current_ = nullptr;
}

void CALLBACK MessageBoxAnswer::OnTimer(HWND, UINT, UINT_PTR, DWORD) noexcept {
    if (current_) current_->Look();
}

void MessageBoxAnswer::Look() {
    constexpr int textId = 0xFFFF;
    HWND box = nullptr;
    // Other programs on the desktop have such boxes too.
    const auto isOurs = [](HWND dialog) {
        return GetWindowThreadProcessId(dialog, nullptr) == GetCurrentThreadId() &&
               GetDlgItem(dialog, textId);
    };
    while ((box = FindWindowExW(nullptr, box, L"#32770", nullptr)) && !isOurs(box)) {
    }
    if (!box || box == answered_) return;
    const int button = GetDlgItem(box, button_) ? button_ : IDOK;
    answered_ = box;
    shown_ = true;
    wchar_t text[1000] = L"";
    GetWindowTextW(box, text, static_cast<int>(std::size(text)));
    caption_ = text;
    GetDlgItemTextW(box, textId, text, static_cast<int>(std::size(text)));
    text_ = text;
    PostMessageW(box, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
                 reinterpret_cast<LPARAM>(GetDlgItem(box, button)));
}

}  // namespace qz
