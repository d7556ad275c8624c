// IOleObject's verbs, IOleInPlaceObject and the frame's side of IOleInPlaceActiveObject.
#include "ui/control.h"

namespace qz {

STDMETHODIMP Control::DoVerb(LONG verb, LPMSG, IOleClientSite*, LONG, HWND, LPCRECT) {
    return Run(IID_IOleObject, [&]() -> HRESULT {
        if (verb > OLEIVERB_PRIMARY) {
            RunVerb(OLEIVERB_PRIMARY);
            return OLEOBJ_S_INVALIDVERB;
        }
        RunVerb(verb);
        return S_OK;
    });
}

void Control::RunVerb(LONG verb) {
    switch (verb) {
        case OLEIVERB_PRIMARY:
        case OLEIVERB_UIACTIVATE:
            place_.Activate(Title());
            return ThrowIfFailed(place_.ActivateUserInterface(Title()),
                                 L"The container refuses to make the control the active one");
        case OLEIVERB_SHOW:
        case OLEIVERB_INPLACEACTIVATE:
            return place_.Activate(Title());
        case OLEIVERB_HIDE:
            place_.LeaveUserInterface();
            ShowWindow(window_.Handle(), SW_HIDE);
            return;
        case OLEIVERB_DISCARDUNDOSTATE:
            return;
        default:
            Throw(E_NOTIMPL, L"The control does not know this verb");
    }
}

STDMETHODIMP Control::GetWindow(HWND* window) {
    return Run(IID_IOleWindow, [&] {
        RequirePointer(window);
        *window = window_.Handle();
        if (!*window) Throw(E_FAIL, L"The control is not active and has no window");
    });
}

STDMETHODIMP Control::ContextSensitiveHelp(BOOL) { return S_OK; }  // no help mode of its own

STDMETHODIMP Control::InPlaceDeactivate() {
    return Run(IID_IOleInPlaceObject, [&] { place_.End(); });
}

STDMETHODIMP Control::UIDeactivate() {
    return Run(IID_IOleInPlaceObject, [&] { place_.LeaveUserInterface(); });
}

STDMETHODIMP Control::SetObjectRects(LPCRECT position, LPCRECT clip) {
    return Run(IID_IOleInPlaceObject, [&] {
        RequirePointer(position);
        if (position->right < position->left || position->bottom < position->top) {
            Throw(E_INVALIDARG, L"The control's rectangle is turned inside out");
        }
        // Without a window there is nothing to move; activation asks for the place again.
        if (window_.Handle()) place_.MoveTo(*position, clip ? *clip : *position);
    });
}

int Control::ShowMessageBox(const std::wstring& text, UINT style, const std::wstring& caption) {
    const ComPtr<IUnknown> alive = Self();
    const ModelessPause pause(place_.Frame());
    const HWND window = window_.Handle();
    return MessageBoxW(window ? GetAncestor(window, GA_ROOT) : nullptr, text.c_str(), caption.c_str(), style);
}

STDMETHODIMP Control::ReactivateAndUndo() { return INPLACE_E_NOTUNDOABLE; }

STDMETHODIMP Control::OnFrameWindowActivate(BOOL) { return S_OK; }

STDMETHODIMP Control::OnDocWindowActivate(BOOL) { return S_OK; }

STDMETHODIMP Control::ResizeBorder(LPCRECT, IOleInPlaceUIWindow*, BOOL) { return S_OK; }

STDMETHODIMP Control::EnableModeless(BOOL) { return S_OK; }

}  // namespace qz
