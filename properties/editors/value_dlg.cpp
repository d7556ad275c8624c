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
    state_.ForgetRefused();
    WithoutNotifications([&] { ShowValue(values.differ ? nullptr : &values.value); });
    ShowSeveral(values.differ);
}

void CValueDlg::ShowSeveral(bool several) {
    if (state_.ShowSeveral(several)) site_->ValuesChanged();
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
    const bool typing = notification == EN_CHANGE || notification == CBN_EDITCHANGE;
    return state_.Hears(typing) && OnEdited(id, notification);
}

std::optional<LRESULT> CValueDlg::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_TIMER && wParam == writeTimer) {
        // One that was in the queue when the timer was stopped comes too late, one during a write comes
        // again.
        if (state_.Waiting() && !state_.Writing()) WriteNow();
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
    state_.Enter();
    ThrowLastErrorIf(SetTimer(Handle(), writeTimer, writeDelay, nullptr) == 0,
                     L"There is no timer to be had");
}

void CValueDlg::WriteSoon() {
    if (state_.Waiting() && Handle()) SetTimer(Handle(), writeTimer, USER_TIMER_MINIMUM, nullptr);
}

bool CValueDlg::Attempt(const std::function<void()>& action) {
    const HRESULT outcome = Guard(IID_NULL, action);
    if (FAILED(outcome)) TellFailure(TakeErrorText(outcome));
    return SUCCEEDED(outcome);
}

void CValueDlg::StopWaiting() noexcept {
    state_.StopWaiting();
    if (Handle()) KillTimer(Handle(), writeTimer);
}

/// Runs a write and tells the user of its failure; whether it succeeded.
template <class Writing>
bool CValueDlg::Write(Writing&& writing) {
    if (ReadOnly() || state_.Writing()) return false;
    state_.BeginWrite();
    const HRESULT outcome = Guard(IID_NULL, std::forward<Writing>(writing));
    state_.EndWrite(SUCCEEDED(outcome));  // before the user is told: what they entered is to stay meanwhile
    if (FAILED(outcome)) TellFailure(TakeErrorText(outcome));
    return SUCCEEDED(outcome);
}

void CValueDlg::WriteNow() {
    if (state_.Writing()) return WriteLater();  // from within the host's taking of a value
    StopWaiting();
    const std::optional<_variant_t> value = EnteredValue();
    if (value) {
        if (Write([&] { WriteBack(edited_, *value); })) ShowSeveral(false);
    } else if (KeepsWhatIsNoValue()) {
        state_.Refuse();
    } else {
        MessageBeep(MB_OK);
        state_.ForgetRefused();
        FollowHost();
    }
}

void CValueDlg::Finish() {
    if (!Handle()) return;
    const std::optional<_variant_t> value = state_.Waiting() ? EnteredValue() : std::nullopt;
    StopWaiting();
    if (value) {
        // The selection may be another one by now: not the selected objects, but those of the editor. What
        // was typed while the host takes another value has no later.
        state_.LeaveWrite();
        Write([&] { WriteInto(edited_, opened_, *value); });
    }
    OnFinished();
}

void CValueDlg::Restore() {
    if (!CanRestore()) return;
    StopWaiting();
    Show(opened_);
    // What could not be taken back can be tried again.
    if (state_.Written() && Write([this] { WriteOpened(edited_, opened_); })) state_.TakenBack();
}

void CValueDlg::FollowHost() {
    if (!state_.FollowsHost() || !Handle()) return;
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
            return state_.Waiting() && !dropped && !KeepsReturn(control);
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
