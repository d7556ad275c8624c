#include "properties/editors/choice_buttons.h"

#include "res/dialog_ids.h"
#include "ui/gdi.h"
#include "ui/plain_label.h"
#include "ui/screen.h"

namespace qz {

namespace {

constexpr int markWidthAt96 = 20;

bool IsArrow(WPARAM key) noexcept {
    return key == VK_LEFT || key == VK_UP || key == VK_RIGHT || key == VK_DOWN;
}

void SetTabStop(HWND window) noexcept {
    SetWindowLongPtrW(window, GWL_STYLE, GetWindowLongPtrW(window, GWL_STYLE) | WS_TABSTOP);
}

}  // namespace

class ChoiceButtons::Button final : public ChildWindow {
  private:
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        // Asked about a key; without one, the system wants to know what kind of button it is.
        if (message == WM_GETDLGCODE && lParam) return SendToClass(message, wParam, lParam) | DLGC_WANTARROWS;
        if (message != WM_KEYDOWN || !IsArrow(wParam)) return std::nullopt;
        ChooseNext(wParam == VK_LEFT || wParam == VK_UP);
        return 0;
    }

    void ChooseNext(bool backwards) const {
        const HWND dialog = GetParent(Handle());
        const HWND next = GetNextDlgGroupItem(dialog, Handle(), backwards);
        if (!next || next == Handle()) return;
        SetFocus(next);
        SendMessageW(next, BM_CLICK, 0, 0);
    }
};

void ChoiceButtons::Create(HWND dialog, std::span<const Choice> choices) {
    const auto font = reinterpret_cast<HFONT>(SendMessageW(dialog, WM_GETFONT, 0, 0));
    const WindowDc dc(dialog);
    const SelectScope selected(dc.Get(), font);
    HWND before = HWND_TOP;
    for (const Choice& choice : choices) {
        ChildOptions options;
        const std::wstring label = PlainLabel(choice.label);
        options.className = L"BUTTON";
        options.text = label.c_str();
        options.style = BS_AUTORADIOBUTTON | WS_VISIBLE | (buttons_.empty() ? WS_GROUP | WS_TABSTOP : 0u);
        options.id = QZ_EDITOR_CHOICES + static_cast<int>(buttons_.size());
        auto button = std::make_unique<Button>();
        button->Create(dialog, options);
        button->Send(WM_SETFONT, reinterpret_cast<WPARAM>(font));
        button->Send(BM_SETDONTCLICK, TRUE);  // getting the focus chooses nothing
        SetWindowPos(button->Handle(), before, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        before = button->Handle();
        SIZE extent{};
        GetTextExtentPoint32W(dc.Get(), choice.label.data(), static_cast<int>(choice.label.size()), &extent);
        widest_ =
            std::max(widest_, static_cast<int>(extent.cx) + MulDiv(markWidthAt96, WindowDpi(dialog), 96));
        buttons_.push_back(std::move(button));
    }
}

void ChoiceButtons::Place(std::span<const Rect> places, int scrolled) const noexcept {
    for (std::size_t i = 0; i < buttons_.size() && i < places.size(); ++i) {
        const Rect& place = places[i];
        SetWindowPos(buttons_[i]->Handle(), nullptr, place.left, place.top - scrolled, place.Width(),
                     place.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

void ChoiceButtons::Check(std::optional<std::size_t> index) const noexcept {
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        buttons_[i]->Send(BM_SETCHECK, i == index ? BST_CHECKED : BST_UNCHECKED);
    }
    // The system takes the stop from buttons that are not checked; the keyboard must still get there.
    if (!index && !buttons_.empty()) SetTabStop(buttons_.front()->Handle());
}

std::optional<std::size_t> ChoiceButtons::Clicked(int id) const noexcept {
    const std::size_t index = static_cast<std::size_t>(id - QZ_EDITOR_CHOICES);
    if (id < QZ_EDITOR_CHOICES || index >= buttons_.size()) return std::nullopt;
    const bool checked = buttons_[index]->Send(BM_GETCHECK) == BST_CHECKED;
    return checked ? std::optional(index) : std::nullopt;
}

}  // namespace qz
