// The messages of the control's window, around those that the derived control handles.
#include "ui/control.h"

#include "ui/child_window.h"
#include "ui/gdi.h"

namespace qz {

void Control::OnMessageFailed(UINT, HRESULT) noexcept { ShowErrorInDebugger(); }

std::optional<LRESULT> Control::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    Anticipate(message, wParam, lParam);
    // The container may have taken the window away.
    if (!window_.Handle()) return 0;
    if (const auto result = OnMessage(message, wParam, lParam)) return result;
    return HandleDefault(message, wParam, lParam);
}

/// What must happen whatever the derived control does with the message. A control that has left its place
/// calls the site no more, whatever its window hears while it goes.
void Control::Anticipate(UINT message, WPARAM wParam, LPARAM lParam) {
    if (!inPlaceActive_) return;
    switch (message) {
        case WM_CREATE:
            return OnWindowCreated();
        case WM_DESTROY:
            return LeaveInPlace();  // the parent goes and takes the window along without a word
        case WM_MOUSEACTIVATE:
            if (UserMode()) ActivateUserInterface();  // the container may refuse
            return;
        case WM_LBUTTONDOWN:
        case WM_RBUTTONDOWN:
        case WM_MBUTTONDOWN:
            return TakeFocus();
        case WM_SETFOCUS:
            if (UserMode()) ActivateUserInterface();
            return TellFocus(true);
        case WM_KILLFOCUS:
            if (!Owns(reinterpret_cast<HWND>(wParam))) TellFocus(false);
            return;
        case childFocusMessage:
            return OnChildFocus(wParam != 0, reinterpret_cast<HWND>(lParam));
        default:
            return;
    }
}

/// The focus in one of the control's child windows is the control's.
void Control::OnChildFocus(bool got, HWND other) {
    if (got) {
        if (UserMode()) ActivateUserInterface();
        TellFocus(true);
    } else if (!Owns(other)) {
        TellFocus(false);
    }
}

std::optional<LRESULT> Control::HandleDefault(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SETFOCUS:
            if (const HWND child = inPlaceActive_ ? FocusChild() : nullptr) SetFocus(child);
            return {};
        case WM_ERASEBKGND:
            return 1;  // OnDraw fills the background
        case WM_PAINT:
            Paint();
            return 0;
        case WM_PRINTCLIENT: {
            const SIZE client = ClientSize();
            OnDraw(reinterpret_cast<HDC>(wParam), RECT{0, 0, client.cx, client.cy});
            return 0;
        }
        case WM_SIZE:
            OnSized(SIZE{LOWORD(lParam), HIWORD(lParam)});
            return 0;
        case WM_SYSCOLORCHANGE:
            Invalidate();
            return {};
        case WM_GETDLGCODE:
            return DialogCode(reinterpret_cast<const MSG*>(lParam));
        default:
            return {};
    }
}

void Control::Paint() {
    const PaintScope paint(window_.Handle());
    const SIZE client = ClientSize();
    if (client.cx > 0 && client.cy > 0) OnDraw(paint.Get(), RECT{0, 0, client.cx, client.cy});
}

}  // namespace qz
