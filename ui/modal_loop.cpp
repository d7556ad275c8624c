#include "ui/modal_loop.h"

#include "com/error.h"
#include "ui/dialog_keyboard.h"

#include <utility>

namespace qz {

ModalLoop::ModalLoop(HWND owner) noexcept {
    if (!owner || owner == GetDesktopWindow()) return;
    const HWND top = GetAncestor(owner, GA_ROOT);
    const bool wasDisabled = EnableWindow(top, FALSE) != FALSE;
    if (!wasDisabled) owner_ = top;
}

INT_PTR ModalLoop::Run(HWND dialog) {
    if (!ended_) ShowWindow(dialog, SW_SHOWNORMAL);
    while (!ended_ && IsWindow(dialog)) {
        MSG message;
        if (!PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE)) TellIdle(dialog);
        if (ended_ || !IsWindow(dialog)) break;
        const BOOL got = GetMessageW(&message, nullptr, 0, 0);
        ThrowLastErrorIf(got == -1, L"The dialog gets no messages");
        if (got) {
            Handle(dialog, message);
        } else {
            PostQuitMessage(static_cast<int>(message.wParam));
            End(dialog, 0);
        }
    }
    return result_;
}

void ModalLoop::Handle(HWND dialog, MSG& message) {
    if (HandleDialogMessage(dialog, message)) return;
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

/// Owners do their own idle work then.
void ModalLoop::TellIdle(HWND dialog) const noexcept {
    const HWND owner = GetWindow(dialog, GW_OWNER);
    if (!owner || (GetWindowLongW(dialog, GWL_STYLE) & DS_NOIDLEMSG)) return;
    SendMessageW(owner, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(dialog));
}

void ModalLoop::End(HWND dialog, INT_PTR result) noexcept {
    if (std::exchange(ended_, true)) return;
    result_ = result;
    EnableOwner();  // before the dialog goes, or another program's window would become the active one
    if (IsChild(dialog, GetFocus())) SetFocus(dialog);
    SetWindowPos(dialog, nullptr, 0, 0, 0, 0,
                 SWP_HIDEWINDOW | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    const HWND owner = GetWindow(dialog, GW_OWNER);
    if (owner && GetActiveWindow() == dialog) SetActiveWindow(owner);
    PostMessageW(dialog, WM_NULL, 0, 0);  // the loop may be waiting
}

void ModalLoop::EnableOwner() noexcept {
    if (const HWND owner = std::exchange(owner_, nullptr)) EnableWindow(owner, TRUE);
}

}  // namespace qz
