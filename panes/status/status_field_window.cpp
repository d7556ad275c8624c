#include "panes/status/status_field_window.h"

#include "ui/platform_geometry.h"

namespace qz {

namespace {

constexpr WPARAM longestEntry = 40;

bool EndsEntry(WPARAM key) noexcept { return key == VK_RETURN || key == VK_ESCAPE; }

bool AsksForEndingKey(LPARAM lParam) noexcept {
    const auto* message = reinterpret_cast<const MSG*>(lParam);
    return message && message->message == WM_KEYDOWN && EndsEntry(message->wParam);
}

ChildOptions OptionsOf(StatusField field) {
    ChildOptions options;
    options.id = ChildId(field);
    if (IsButton(field)) {
        options.className = L"BUTTON";
        options.style = WS_TABSTOP | BS_OWNERDRAW;
    } else if (IsEntry(field)) {
        options.className = L"EDIT";
        options.style = WS_TABSTOP | WS_BORDER | ES_CENTER | ES_AUTOHSCROLL;
    } else {
        options.className = L"STATIC";
        options.style = SS_LEFT | SS_NOPREFIX | SS_CENTERIMAGE | SS_ENDELLIPSIS;
    }
    return options;
}

}  // namespace

void StatusFieldWindow::CreateFor(StatusField field, HWND bar) {
    field_ = field;
    Create(bar, OptionsOf(field));
    if (IsEntry(field)) Send(EM_LIMITTEXT, longestEntry);
}

std::wstring StatusFieldWindow::Text() const {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(Handle())), L'\0');
    if (text.empty()) return text;
    const int length = GetWindowTextW(Handle(), text.data(), static_cast<int>(text.size()) + 1);
    text.resize(static_cast<std::size_t>(length));
    return text;
}

void StatusFieldWindow::SetText(const std::wstring& text) const {
    if (Text() != text) SetWindowTextW(Handle(), text.c_str());
}

void StatusFieldWindow::SetEnabled(bool enabled) const {
    if ((IsWindowEnabled(Handle()) != FALSE) != enabled) EnableWindow(Handle(), enabled);
}

void StatusFieldWindow::Place(const Rect& place) const {
    constexpr UINT alike = SWP_NOZORDER | SWP_NOACTIVATE;
    if (place.Empty()) {
        SetWindowPos(Handle(), nullptr, 0, 0, 0, 0, alike | SWP_NOMOVE | SWP_NOSIZE | SWP_HIDEWINDOW);
        return;
    }
    RECT before{};
    GetClientRect(Handle(), &before);
    SetWindowPos(Handle(), nullptr, place.left, place.top, place.Width(), place.Height(),
                 alike | SWP_SHOWWINDOW);
    RECT after{};
    GetClientRect(Handle(), &after);
    // A text is cut elsewhere, and an arrow drawn elsewhere, in another size.
    if (!EqualRect(&before, &after)) InvalidateRect(Handle(), nullptr, TRUE);
}

bool StatusFieldWindow::TakesFocus() const noexcept {
    const LONG_PTR style = GetWindowLongPtrW(Handle(), GWL_STYLE);
    return Handle() && (style & WS_TABSTOP) && (style & WS_VISIBLE) && !(style & WS_DISABLED);
}

std::optional<LRESULT> StatusFieldWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (!IsEntry(field_)) return std::nullopt;
    switch (message) {
        case WM_KEYDOWN:
            if (!EndsEntry(wParam)) return std::nullopt;
            // The bar keeps itself alive while it handles this; nothing of the field is used afterwards.
            SendMessageW(GetParent(Handle()), entryKeyMessage, wParam, static_cast<LPARAM>(field_));
            return 0;
        case WM_CHAR:
            // The field would beep.
            return EndsEntry(wParam) || wParam == VK_TAB ? std::optional<LRESULT>(0) : std::nullopt;
        case WM_GETDLGCODE:
            return AsksForEndingKey(lParam) ? std::optional<LRESULT>(DLGC_WANTMESSAGE) : std::nullopt;
        default:
            return std::nullopt;
    }
}

}  // namespace qz
