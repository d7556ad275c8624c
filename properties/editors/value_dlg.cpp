#include "properties/editors/value_dlg.h"

#include "res/strings.h"
#include "res/text_ids.h"

namespace qz {

namespace {

constexpr UINT_PTR writeTimer = 100;
constexpr UINT writeDelay = 2000;  // milliseconds

/// The control is a combo box, or the text field in one, whose list is open.
bool IsDropped(HWND control) noexcept {
    return SendMessageW(control, CB_GETDROPPEDSTATE, 0, 0) != 0 ||
           SendMessageW(GetParent(control), CB_GETDROPPEDSTATE, 0, 0) != 0;
}

}  // namespace

void CValueDlg::SetInputs(EditedAttribute edited, ValueDlgSite& site) {
    edited_ = std::move(edited);
    site_ = &site;
}

_variant_t CValueDlg::ReadObjectAttribute(std::wstring_view name) const {
    return edited_.members->objects.Attribute(edited_.object.Get(), name);
}

void CValueDlg::OnInit() {
    opened_ = ReadValues(edited_);
    WithoutNotifications([this] { OnEditorInit(); });
    keys_.Watch(Handle());
    Show(opened_);
    if (ReadOnly()) DisableAll();
}

void CValueDlg::Show(const AttributeValues& values) {
    refused_ = false;
    WithoutNotifications([&] { ShowValue(values.differ ? nullptr : &values.value); });
    SetSeveralShown(values.differ);
}

void CValueDlg::SetSeveralShown(bool several) {
    if (std::exchange(severalShown_, several) != several) site_->ValuesChanged();
}

/// A text field that is read-only can still be read and copied from; anything else is disabled.
void CValueDlg::DisableAll() const noexcept {
    for (HWND child = GetWindow(Handle(), GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        const bool isEdit = (SendMessageW(child, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0;
        if (isEdit)
            SendMessageW(child, EM_SETREADONLY, TRUE, 0);
        else
            EnableChild(child, false);
    }
}

bool CValueDlg::OnCommand(int id, int notification) {
    if (showing_) return false;
    // While the host takes a value, typing may go on: it is written later.
    const bool typed = notification == EN_CHANGE || notification == CBN_EDITCHANGE;
    return !writing_ || typed ? OnEdited(id, notification) : false;
}

std::optional<LRESULT> CValueDlg::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_TIMER && wParam == writeTimer) {
        // One that was in the queue when the timer was stopped comes too late, one during a write comes
        // again.
        if (waiting_ && !writing_) WriteNow();
        return 0;
    }
    if (message == WM_SIZE) {
        WithoutNotifications([&] { OnSized({LOWORD(lParam), HIWORD(lParam)}); });
        return 0;
    }
    return std::nullopt;
}

void CValueDlg::WriteLater() {
    if (ReadOnly()) return;
    waiting_ = true;
    ThrowLastErrorIf(SetTimer(Handle(), writeTimer, writeDelay, nullptr) == 0,
                     L"There is no timer to be had");
}

void CValueDlg::WriteSoon() {
    if (waiting_ && Handle()) SetTimer(Handle(), writeTimer, USER_TIMER_MINIMUM, nullptr);
}

bool CValueDlg::Attempt(const std::function<void()>& action) {
    const HRESULT outcome = Guard(IID_NULL, action);
    if (FAILED(outcome)) TellFailure(TakeErrorText(outcome));
    return SUCCEEDED(outcome);
}

void CValueDlg::StopWaiting() noexcept {
    waiting_ = false;
    if (Handle()) KillTimer(Handle(), writeTimer);
}

/// Runs a write and tells the user of its failure; whether it succeeded.
template <class Writing>
bool CValueDlg::Write(Writing&& writing) {
    if (ReadOnly() || writing_) return false;
    writing_ = true;
    written_ = true;  // also when it fails, as nothing is known then
    const HRESULT outcome = Guard(IID_NULL, std::forward<Writing>(writing));
    writing_ = false;
    refused_ = FAILED(outcome);  // before the user is told: what he entered is to stay meanwhile
    if (refused_) TellFailure(TakeErrorText(outcome));
    return SUCCEEDED(outcome);
}

void CValueDlg::WriteNow() {
    if (writing_) return WriteLater();  // from within the host's taking of a value
    StopWaiting();
    const std::optional<_variant_t> value = EnteredValue();
    if (value) {
        if (Write([&] { WriteBack(edited_, *value); })) SetSeveralShown(false);
    } else if (KeepsWhatIsNoValue()) {
        refused_ = true;
    } else {
        MessageBeep(MB_OK);
        refused_ = false;
        FollowHost();
    }
}

void CValueDlg::Finish() {
    if (!Handle()) return;
    const std::optional<_variant_t> value = waiting_ ? EnteredValue() : std::nullopt;
    StopWaiting();
    if (value) {
        // The selection may be another one by now: not the selected objects, but those of the editor. What
        // was typed while the host takes another value has no later.
        writing_ = false;
        Write([&] { WriteInto(edited_, opened_, *value); });
    }
    OnFinished();
}

void CValueDlg::Restore() {
    if (!CanRestore()) return;
    StopWaiting();
    Show(opened_);
    // What could not be taken back can be tried again.
    if (written_) written_ = !Write([this] { WriteOpened(edited_, opened_); });
}

void CValueDlg::FollowHost() {
    if (waiting_ || writing_ || refused_ || !Handle()) return;
    Show(ReadValues(edited_));
}

void CValueDlg::TellFailure(const std::wstring& reason) {
    const std::wstring what = LoadText(TextLanguage(), QZ_TEXT_VALUE_NOT_WRITTEN);
    const std::wstring caption = LoadText(TextLanguage(), QZ_TEXT_PROPERTIES);
    const ChildDialogScope modal(*site_);
    site_->ShowMessage(what + L"\n\n" + reason, caption, MB_OK | MB_ICONWARNING);
}

bool CValueDlg::WantsKey(HWND control, UINT message, WPARAM key) {
    const bool dropped = IsDropped(control);
    if (message == WM_SYSKEYDOWN) return key == VK_DOWN && !dropped;
    switch (key) {
        case VK_ESCAPE:
            return !dropped && CanRestore();
        case VK_RETURN:
            return waiting_ && !dropped && !KeepsReturn(control);
        case VK_F4:
            return !dropped;
        default:
            return false;
    }
}

void CValueDlg::OnKey(HWND, UINT, WPARAM key) {
    // The key came from a control, past the dialog's own messages; what follows may end the editor.
    const std::shared_ptr<Dialog> self = weak_from_this().lock();
    const ComPtr<IUnknown> owner = KeepAlive();
    switch (key) {
        case VK_ESCAPE:
            return Restore();
        case VK_RETURN:
            return WriteNow();
        default:
            return OpenPicker();
    }
}

}  // namespace qz
