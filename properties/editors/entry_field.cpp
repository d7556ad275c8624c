#include "properties/editors/entry_field.h"

#include "properties/model/edit_rules.h"
#include "ui/dialog.h"
#include "ui/gdi.h"
#include "ui/text_edit.h"

namespace qz {

namespace {

/// Messages by which users and programs change the text.
bool IsEntry(UINT message) noexcept {
    switch (message) {
        case WM_CHAR:
        case WM_KEYDOWN:
        case WM_PASTE:
        case WM_CUT:
        case WM_CLEAR:
        case WM_UNDO:
        case EM_UNDO:
        case EM_REPLACESEL:
        case WM_SETTEXT:
        case WM_IME_CHAR:
        case WM_IME_COMPOSITION:
            return true;
        default:
            return false;
    }
}

bool Inserts(UINT message, WPARAM wParam) noexcept {
    return message == WM_PASTE || message == EM_REPLACESEL || (message == WM_CHAR && wParam >= L' ');
}

}  // namespace

void EntryField::Create(HWND dialog, int id, DWORD style) {
    ChildOptions options;
    options.className = inspectorTextEditClass;
    options.style = style | WS_TABSTOP;
    options.extendedStyle = WS_EX_CLIENTEDGE;
    options.id = id;
    ChildWindow::Create(dialog, options);
    Send(WM_SETFONT, static_cast<WPARAM>(SendMessageW(dialog, WM_GETFONT, 0, 0)));
    Send(EM_SETLIMITTEXT, editTextLimit);
    SetWindowPos(Handle(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void EntryField::AttachTo(HWND field) {
    Attach(field);
    Send(EM_SETLIMITTEXT, editTextLimit);
}

std::wstring EntryField::Text() const { return WindowText(Handle()); }

void EntryField::Show(const std::wstring& text) {
    if (Text() != text) SetWindowTextW(Handle(), text.c_str());
    Accept();
}

void EntryField::Revert() {
    const DWORD from = caretFrom_, to = caretTo_;  // setting the text is an entry too
    SetWindowTextW(Handle(), accepted_.c_str());
    Send(EM_SETSEL, from, static_cast<LPARAM>(to));
    Send(EM_SCROLLCARET);
}

void EntryField::NoteCaret() noexcept {
    Send(EM_GETSEL, reinterpret_cast<WPARAM>(&caretFrom_), reinterpret_cast<LPARAM>(&caretTo_));
}

/// Whether a field that does not scroll has no room for more than what is not selected. The system then takes
/// no entry; Wine's field would even remove what stands before the caret, at times what lies before the text.
bool EntryField::IsFull() const {
    if (GetWindowLongPtrW(Handle(), GWL_STYLE) & (ES_MULTILINE | ES_AUTOHSCROLL)) return false;
    std::wstring text = Text();
    if (caretFrom_ <= caretTo_ && caretTo_ <= text.size()) text.erase(caretFrom_, caretTo_ - caretFrom_);
    const WindowDc dc(Handle());
    const auto font = reinterpret_cast<HGDIOBJ>(Send(WM_GETFONT));
    const SelectScope selected(dc.Get(), font ? font : GetStockObject(SYSTEM_FONT));
    SIZE extent{};
    GetTextExtentPoint32W(dc.Get(), text.data(), static_cast<int>(text.size()), &extent);
    RECT room{};
    Send(EM_GETRECT, 0, reinterpret_cast<LPARAM>(&room));
    return extent.cx > room.right - room.left;
}

std::optional<LRESULT> EntryField::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_GETDLGCODE && lParam) {
        const auto& asked = *reinterpret_cast<const MSG*>(lParam);
        const LRESULT code = SendToClass(message, wParam, lParam);
        const bool dialogs = asked.wParam == VK_TAB || asked.wParam == VK_ESCAPE;
        return dialogs ? code & ~LRESULT{DLGC_WANTALLKEYS} : code;
    }
    if (IsEntry(message)) NoteCaret();
    if (Inserts(message, wParam) && IsFull()) {
        MessageBeep(MB_OK);
        return 0;
    }
    return std::nullopt;
}

}  // namespace qz
