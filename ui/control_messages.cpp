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
    if (!place_.Active()) return;
    switch (message) {
        case WM_CREATE:
            return OnWindowCreated();
        case WM_DESTROY:
            return place_.Leave();  // the parent goes and takes the window along without a word
        case WM_MOUSEACTIVATE:
            return ActivateByUser();
        case WM_LBUTTONDOWN:
        case WM_RBUTTONDOWN:
        case WM_MBUTTONDOWN:
            return place_.TakeFocus();
        case WM_SETFOCUS:
            return OnFocusGot();
        case WM_KILLFOCUS:
            return OnFocusLost(reinterpret_cast<HWND>(wParam));
        case childFocusMessage:
            return wParam != 0 ? OnFocusGot() : OnFocusLost(reinterpret_cast<HWND>(lParam));
        default:
            return;
    }
}

/// The container may refuse.
void Control::ActivateByUser() {
    if (UserMode()) place_.ActivateUserInterface(Title());
}

/// The focus in one of the control's child windows is the control's.
void Control::OnFocusGot() {
    ActivateByUser();
    place_.TellFocus(true);
}

void Control::OnFocusLost(HWND to) {
    if (!place_.Owns(to)) place_.TellFocus(false);
}

std::optional<LRESULT> Control::HandleDefault(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SETFOCUS:
            if (const HWND child = place_.Active() ? FocusChild() : nullptr) SetFocus(child);
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
