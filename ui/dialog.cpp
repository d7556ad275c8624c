#include "ui/dialog.h"

#include "com/scope.h"
#include "res/strings.h"
#include "ui/accessible_name.h"
#include "ui/child_window.h"
#include "ui/window.h"

#include <cwchar>

namespace qz {

namespace {

/// The string table's text when `text` refers to it; nothing when it stands for itself.
std::optional<std::wstring> Translation(const std::wstring& text, Language language) {
    if (text.size() < 2 || text[0] != L'@') return std::nullopt;
    wchar_t* end = nullptr;
    const unsigned long id = std::wcstoul(text.c_str() + 1, &end, 10);
    if (*end) return std::nullopt;
    return LoadText(language, static_cast<unsigned>(id));
}

void Translate(HWND window, Language language) {
    if (const auto text = Translation(WindowText(window), language)) SetWindowTextW(window, text->c_str());
}

/// Messages whose answer is the dialog procedure's own return value.
bool AnswersDirectly(UINT message) noexcept {
    switch (message) {
        case WM_CHARTOITEM:
        case WM_COMPAREITEM:
        case WM_CTLCOLORBTN:
        case WM_CTLCOLORDLG:
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORMSGBOX:
        case WM_CTLCOLORSCROLLBAR:
        case WM_CTLCOLORSTATIC:
        case WM_QUERYDRAGICON:
        case WM_VKEYTOITEM:
            return true;
        default:
            return false;
    }
}

/// What the system does for a dialog that leaves the focus to it, but no longer under the module's activation
/// context, as it takes the focus from other windows. Dialogs within others wait for the user to come to
/// them.
void FocusFirstControl(HWND dialog) noexcept {
    if (GetWindowLongW(dialog, GWL_STYLE) & WS_CHILD) return;
    const HWND first = GetNextDlgTabItem(dialog, nullptr, FALSE);
    if (first) {
        SendMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(first), TRUE);
    } else {
        SetFocus(dialog);
    }
}

}  // namespace

std::wstring WindowText(HWND window) {
    std::wstring text(static_cast<size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

Dialog::~Dialog() {
    if (!handle_) return;
    ForgetNames();
    SetWindowLongPtrW(handle_, DWLP_USER, 0);
    DestroyWindow(handle_);
}

void Dialog::Create(HWND parent) {
    if (handle_) Throw(E_UNEXPECTED, L"The dialog is there already");
    MakeWindow(parent);
}

INT_PTR Dialog::RunModal(HWND owner) {
    if (handle_) Throw(E_UNEXPECTED, L"The dialog is there already");
    ModalLoop loop(owner);
    const ScopedValue running(modal_, &loop);
    MakeWindow(owner);
    const INT_PTR result = loop.Run(handle_);
    Destroy();
    return result;
}

void Dialog::MakeWindow(HWND parent) {
    caller_.Capture();
    initFailure_ = S_OK;
    {
        const ModuleActivation activation;
        const HWND made = CreateDialogParamW(ThisModule(), MAKEINTRESOURCEW(templateId_), parent, &Procedure,
                                             reinterpret_cast<LPARAM>(this));
        ThrowLastErrorIf(!made, L"The dialog cannot be made");
    }
    if (FAILED(initFailure_)) {
        Destroy();
        Rethrow(initFailure_, initFailureText_);
    }
    FocusFirstControl(handle_);
}

void Dialog::Destroy() noexcept {
    if (handle_) DestroyWindow(handle_);
}

void Dialog::EndModal(INT_PTR result) noexcept {
    if (handle_ && modal_) modal_->End(handle_, result);
}

void Dialog::OnMessageFailed(HRESULT) noexcept { ShowErrorInDebugger(); }

std::wstring Dialog::ItemText(int id) const { return WindowText(Item(id)); }

void Dialog::SetItemText(int id, const std::wstring& text) const noexcept {
    SetDlgItemTextW(handle_, id, text.c_str());
}

void Dialog::NameControl(HWND control, const std::wstring& name) {
    named_.push_back(control);
    SetAccessibleName(control, name.c_str());
}

void Dialog::ForgetNames() noexcept {
    for (const HWND control : named_) SetAccessibleName(control, L"");
    named_.clear();
}

void Dialog::PlaceItem(int id, const RECT& bounds) const noexcept {
    const HWND item = Item(id);
    ShowChild(item, !IsRectEmpty(&bounds));
    SetWindowPos(item, nullptr, bounds.left, bounds.top, bounds.right - bounds.left,
                 bounds.bottom - bounds.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

RECT Dialog::ItemBounds(int id) const noexcept {
    RECT bounds{};
    GetWindowRect(Item(id), &bounds);
    MapWindowPoints(nullptr, handle_, reinterpret_cast<POINT*>(&bounds), 2);
    return bounds;
}

SIZE Dialog::Pixels(SIZE dialogUnits) const noexcept {
    RECT mapped{0, 0, dialogUnits.cx, dialogUnits.cy};
    MapDialogRect(handle_, &mapped);
    return {mapped.right, mapped.bottom};
}

INT_PTR CALLBACK Dialog::Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    if (message == WM_INITDIALOG) {
        auto* dialog = reinterpret_cast<Dialog*>(lParam);
        dialog->handle_ = handle;
        SetWindowLongPtrW(handle, DWLP_USER, lParam);
    }
    auto* dialog = reinterpret_cast<Dialog*>(GetWindowLongPtrW(handle, DWLP_USER));
    return dialog ? dialog->Dispatch(message, wParam, lParam) : FALSE;
}

INT_PTR Dialog::Dispatch(UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    const std::shared_ptr<Dialog> self = weak_from_this().lock();
    const ComPtr<IUnknown> owner = KeepAlive();
    const CallerActivation caller(caller_);
    const HWND handle = handle_;
    if (message == WM_INITDIALOG) return Initialize();
    bool handled = false;
    LRESULT answer = 0;
    const HRESULT outcome = Guard(IID_NULL, [&] {
        const std::optional<LRESULT> result = Handle(message, wParam, lParam);
        handled = result.has_value();
        answer = result.value_or(0);
    });
    if (FAILED(outcome)) OnMessageFailed(outcome);
    if (message == WM_DESTROY) ForgetNames();
    if (message == WM_NCDESTROY) {
        SetWindowLongPtrW(handle, DWLP_USER, 0);
        handle_ = nullptr;
    }
    return handled && handle_ == handle ? Answer(message, answer) : handled;
}

INT_PTR Dialog::Initialize() noexcept {
    try {
        Translate(handle_, language_);
        for (HWND child = GetWindow(handle_, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
            Translate(child, language_);
        }
        OnInit();
    } catch (const ComError& error) {
        initFailure_ = error.code;
        initFailureText_ = error.text;
    } catch (...) {
        initFailure_ = TurnException(IID_NULL);
    }
    return FALSE;  // MakeWindow sets the focus, and destroys a dialog that failed
}

std::optional<LRESULT> Dialog::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_COMMAND && OnCommand(LOWORD(wParam), HIWORD(wParam))) return 0;
    const std::optional<LRESULT> result = OnMessage(message, wParam, lParam);
    // A dialog within a control: its focus is the control's.
    if (!result && message == childFocusMessage && (GetWindowLongW(handle_, GWL_STYLE) & WS_CHILD)) {
        return SendMessageW(GetParent(handle_), message, wParam, lParam);
    }
    return result;
}

INT_PTR Dialog::Answer(UINT message, LRESULT result) const noexcept {
    if (AnswersDirectly(message)) return result;
    SetWindowLongPtrW(handle_, DWLP_MSGRESULT, result);
    return TRUE;
}

}  // namespace qz
