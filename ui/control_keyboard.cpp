// The keyboard: who gets a key, the control or its container.
#include "ui/control.h"

#include "ui/keys.h"

namespace qz {

namespace {

bool IsKeyMessage(UINT message) noexcept { return message >= WM_KEYFIRST && message <= WM_KEYLAST; }

/// Key messages that name a key, not a character.
bool NamesKey(UINT message) noexcept {
    return message == WM_KEYDOWN || message == WM_KEYUP || message == WM_SYSKEYDOWN || message == WM_SYSKEYUP;
}

/// The modifier keys as IOleControlSite::TranslateAccelerator wants them.
constexpr DWORD shiftDown = 1;
constexpr DWORD controlDown = 2;
constexpr DWORD altDown = 4;

DWORD Modifiers() noexcept {
    return (KeyIsDown(VK_SHIFT) ? shiftDown : 0u) | (KeyIsDown(VK_CONTROL) ? controlDown : 0u) |
           (KeyIsDown(VK_MENU) ? altDown : 0u);
}

}  // namespace

bool Control::IsInputKey(const MSG&) const { return false; }

bool Control::Keeps(const MSG& message) const {
    return NamesKey(message.message) && message.wParam != VK_TAB && IsInputKey(message);
}

bool Control::MovesFocusWithin(const MSG& message) const {
    if (message.message != WM_KEYDOWN || message.wParam != VK_TAB) return false;
    const DWORD modifiers = Modifiers();
    if (modifiers & (controlDown | altDown)) return false;
    const HWND target = TabTarget((modifiers & shiftDown) != 0);
    if (target) SetFocus(target);
    return target != nullptr;
}

STDMETHODIMP Control::TranslateAccelerator(LPMSG message) {
    return Run(IID_IOleInPlaceActiveObject, [&]() -> HRESULT {
        RequirePointer(message);
        if (!place_.UIActive() || !IsKeyMessage(message->message)) return S_FALSE;
        if (place_.Owns(message->hwnd) && Keeps(*message)) {
            MSG own = *message;
            TranslateMessage(&own);
            DispatchMessageW(&own);
            return S_OK;
        }
        if (place_.Owns(message->hwnd) && MovesFocusWithin(*message)) return S_OK;
        const ComPtr<IOleControlSite> site = place_.SiteOfControl();
        if (!site) return S_FALSE;
        return site->TranslateAccelerator(message, Modifiers()) == S_OK ? S_OK : S_FALSE;
    });
}

/// What a dialog that hosts the control shall leave to it.
std::optional<LRESULT> Control::DialogCode(const MSG* message) const {
    if (message) return Keeps(*message) ? DLGC_WANTMESSAGE : 0;
    MSG arrow{};
    arrow.hwnd = window_.Handle();
    arrow.message = WM_KEYDOWN;
    arrow.wParam = VK_DOWN;
    return Keeps(arrow) ? DLGC_WANTARROWS : 0;
}

}  // namespace qz
