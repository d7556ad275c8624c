#include "ui/child_keys.h"

#include "ui/dialog_keyboard.h"

#include <algorithm>

namespace qz {

namespace {

bool IsKeyPress(UINT message) noexcept { return message == WM_KEYDOWN || message == WM_SYSKEYDOWN; }

}  // namespace

class ChildKeys::Control final : public ChildWindow {
  public:
    Control(HWND window, ChildKeyListener& listener) : listener_(listener) { Attach(window); }

  private:
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_GETDLGCODE) return DialogCode(wParam, lParam);
        // From a control inside this one, such as the field of a combo box.
        if (message == childFocusMessage) return SendMessageW(GetParent(Handle()), message, wParam, lParam);
        if (IsKeyPress(message)) {
            dropsCharacter_ = listener_.WantsKey(Handle(), message, wParam);
            if (!dropsCharacter_) return std::nullopt;
            listener_.OnKey(Handle(), message, wParam);
            return 0;
        }
        // The character of a key that the dialog took: the control would beep at it.
        if (message == WM_CHAR || message == WM_SYSCHAR) {
            if (std::exchange(dropsCharacter_, false)) return 0;
        }
        if (message == WM_KEYUP || message == WM_SYSKEYUP) dropsCharacter_ = false;
        return std::nullopt;
    }

    std::optional<LRESULT> DialogCode(WPARAM wParam, LPARAM lParam) const {
        const auto* const asked = reinterpret_cast<const MSG*>(lParam);
        if (!asked || !IsKeyPress(asked->message)) return std::nullopt;
        if (!listener_.WantsKey(Handle(), asked->message, asked->wParam)) return std::nullopt;
        return SendToClass(WM_GETDLGCODE, wParam, lParam) | DLGC_WANTMESSAGE;
    }

    ChildKeyListener& listener_;
    bool dropsCharacter_ = false;
};

void ChildKeys::Watch(HWND window) {
    std::erase_if(controls_, [](const auto& control) { return !*control; });
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (IsDialog(child)) continue;
        if (!Watches(child)) controls_.push_back(std::make_unique<Control>(child, listener_));
        Watch(child);
    }
}

bool ChildKeys::Watches(HWND window) const noexcept {
    return std::ranges::any_of(controls_, [&](const auto& control) { return control->Handle() == window; });
}

}  // namespace qz
