// The inspector's window: its inner dialog, the focus and the keys.
#include "properties/inspector/prop_control.h"

#include "panes/common/pane_font.h"
#include "properties/model/selection_caption.h"
#include "res/dialog_ids.h"
#include "res/strings.h"
#include "res/text_ids.h"
#include "ui/keys.h"
#include "ui/text_edit.h"

namespace qz {

std::wstring PropControl::Title() const { return LoadText(TextLanguage(), QZ_TEXT_PROPERTIES); }

/// What stands behind the inner dialog, and alone when there is nothing to inspect.
void PropControl::OnDraw(HDC dc, const RECT& bounds) {
    FillSolid(dc, bounds, BackColorRef());
    const std::wstring text = SelectionCaption(false, std::nullopt, {});
    const Font font = MakePaneFont(Ambients());
    const SavedDc saved(dc);
    const SelectScope selected(dc, font.Get());
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(COLOR_GRAYTEXT));
    RECT place = bounds;
    DrawTextW(dc, text.c_str(), -1, &place, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}

void PropControl::OnWindowCreated() {
    RegisterTextEdits();
    MakeDialog();
}

/// Makes the inner dialog in the host's language, in place of the one before.
void PropControl::MakeDialog() {
    CloseEditor();
    if (dialog_) dialog_->Destroy();
    dialogLanguage_ = TextLanguage();
    dialog_ = qz::MakeDialog<InspectorDialog>(static_cast<InspectorDialogListener&>(*this), dialogLanguage_);
    dialog_->Create(WindowHandle());
    dialog_->Arrange(ClientSize());
    // An object that gives no attributes is no reason to have no window; nobody has asked for it here.
    if (FAILED(Guard(IID_NULL, [this] { ShowObject(); }))) ShowErrorInDebugger();
}

/// While the dialog is hidden, as there is nothing to inspect or it is made anew, the control's own window
/// keeps the focus for it.
void PropControl::ShowDialog(bool shown) {
    const std::shared_ptr<InspectorDialog> dialog = dialog_;
    if (shown) {
        ShowChild(dialog->Handle(), true);
        FitControlParent(WindowHandle());
        const int part = std::exchange(focusedPart_, 0);
        if (GetFocus() == WindowHandle()) dialog->FocusPart(part ? part : QZ_INSPECTOR_LIST);
    } else {
        if (const int part = dialog->FocusedPart()) {
            focusedPart_ = part;
            SetFocus(WindowHandle());
            if (ShowsObject()) return;  // the container was told, and has set another object
        }
        ShowChild(dialog->Handle(), false);
        FitControlParent(WindowHandle());
    }
}

/// The parts are painted whole: labels and frames keep what they showed before, and show less or more of it.
void PropControl::OnSized(SIZE client) {
    if (!DialogWindow()) return;
    dialog_->Arrange(client);
    PlaceEditor();
    FitControlParent(WindowHandle());
    RedrawWindow(WindowHandle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

HWND PropControl::FocusChild() const noexcept {
    return ShowsObject() && DialogWindow() && IsWindowVisible(DialogWindow()) ? dialog_->List() : nullptr;
}

HWND PropControl::TabTarget(bool backwards) const {
    const HWND dialog = DialogWindow();
    if (!dialog || !ShowsObject()) return nullptr;
    const HWND focus = GetFocus();
    const TabStops stops = FindTabStops(dialog, focus);
    if (!focus || !IsChild(dialog, focus)) return backwards ? stops.last : stops.first;
    return backwards ? stops.before : stops.after;
}

bool PropControl::IsInputKey(const MSG& message) const {
    if (!DialogWindow() || !IsChild(DialogWindow(), message.hwnd)) return false;
    MSG asked = message;
    const LRESULT code =
        SendMessageW(message.hwnd, WM_GETDLGCODE, message.wParam, reinterpret_cast<LPARAM>(&asked));
    if (code & DLGC_WANTMESSAGE) return true;
    return (code & DLGC_WANTARROWS) && IsNavigationKey(message.wParam);
}

std::optional<LRESULT> PropControl::OnMessage(UINT message, WPARAM, LPARAM) {
    if (message == WM_DESTROY) CloseEditor();
    return std::nullopt;
}

}  // namespace qz
