// What the control asks of its site and tells it.
#include "sample/container/pane_site.h"

#include "sample/container/dpi.h"

namespace qz {

// IOleClientSite
// -------------------------------------------------------------------------------------------------

/// The program keeps no state of its controls.
STDMETHODIMP PaneSite::SaveObject() { return S_OK; }

STDMETHODIMP PaneSite::GetMoniker(DWORD, DWORD, IMoniker** moniker) {
    if (!moniker) return E_POINTER;
    *moniker = nullptr;
    return E_NOTIMPL;
}

STDMETHODIMP PaneSite::GetContainer(IOleContainer** container) {
    if (!container) return E_POINTER;
    *container = nullptr;
    return E_NOINTERFACE;
}

STDMETHODIMP PaneSite::ShowObject() { return S_OK; }

STDMETHODIMP PaneSite::OnShowWindow(BOOL) { return S_OK; }

STDMETHODIMP PaneSite::RequestNewObjectLayout() { return E_NOTIMPL; }

// IOleControlSite
// ------------------------------------------------------------------------------------------------

STDMETHODIMP PaneSite::OnControlInfoChanged() { return S_OK; }

/// Controls stay active until they are closed anyway.
STDMETHODIMP PaneSite::LockInPlaceActive(BOOL) { return S_OK; }

STDMETHODIMP PaneSite::GetExtendedControl(IDispatch** control) {
    if (!control) return E_POINTER;
    *control = nullptr;
    return E_NOTIMPL;
}

/// The container's own coordinates are pixels.
STDMETHODIMP PaneSite::TransformCoords(POINTL* himetric, POINTF* pixels, DWORD flags) {
    if (!himetric || !pixels) return E_POINTER;
    if (flags & XFORMCOORDS_HIMETRICTOCONTAINER) {
        *pixels = {static_cast<float>(FromHimetric(options_.window, himetric->x)),
                   static_cast<float>(FromHimetric(options_.window, himetric->y))};
    } else if (flags & XFORMCOORDS_CONTAINERTOHIMETRIC) {
        *himetric = {ToHimetric(options_.window, static_cast<long>(pixels->x)),
                     ToHimetric(options_.window, static_cast<long>(pixels->y))};
    } else {
        return E_INVALIDARG;
    }
    return S_OK;
}

STDMETHODIMP PaneSite::TranslateAccelerator(MSG* message, DWORD) {
    return Guard(IID_IOleControlSite, [&]() -> HRESULT {
        RequirePointer(message);
        return options_.frame->UseKey(*message) ? S_OK : S_FALSE;
    });
}

STDMETHODIMP PaneSite::OnFocus(BOOL got) {
    return Guard(IID_IOleControlSite, [&] {
        const auto told = options_.onFocus;  // Close inside the call empties it
        if (told) told(got != FALSE);
    });
}

STDMETHODIMP PaneSite::ShowPropertyFrame() { return E_NOTIMPL; }

// IOleInPlaceSite
// ------------------------------------------------------------------------------------------------

STDMETHODIMP PaneSite::GetWindow(HWND* window) {
    if (!window) return E_POINTER;
    *window = options_.window;
    return S_OK;
}

STDMETHODIMP PaneSite::ContextSensitiveHelp(BOOL) { return S_OK; }

STDMETHODIMP PaneSite::CanInPlaceActivate() { return object_ ? S_OK : S_FALSE; }

STDMETHODIMP PaneSite::OnInPlaceActivate() {
    return object_ ? object_.CopyTo(IID_PPV_ARGS(inPlace_.ReleaseAndGetAddressOf())) : E_UNEXPECTED;
}

STDMETHODIMP PaneSite::OnUIActivate() {
    if (!inPlace_) return E_UNEXPECTED;
    options_.frame->OnUIActivate(inPlace_.Get());
    return S_OK;
}

STDMETHODIMP PaneSite::GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document,
                                        LPRECT position, LPRECT clip, LPOLEINPLACEFRAMEINFO info) {
    if (frame) *frame = nullptr;
    if (document) *document = nullptr;
    if (!frame || !document || !position || !clip || !info) return E_POINTER;
    options_.frame.CopyTo(frame);
    *position = position_;
    *clip = position_;
    info->fMDIApp = FALSE;
    info->hwndFrame = nullptr;
    options_.frame->GetWindow(&info->hwndFrame);
    info->haccel = nullptr;  // keys go through the frame's TranslateAccelerator
    info->cAccelEntries = 0;
    return S_OK;
}

STDMETHODIMP PaneSite::Scroll(SIZE) { return S_FALSE; }

STDMETHODIMP PaneSite::OnUIDeactivate(BOOL) {
    options_.frame->OnUIDeactivate(inPlace_.Get());
    return S_OK;
}

STDMETHODIMP PaneSite::OnInPlaceDeactivate() {
    inPlace_.Reset();
    return S_OK;
}

STDMETHODIMP PaneSite::DiscardUndoState() { return S_OK; }

/// There is nothing to undo, but the control asks to be left.
STDMETHODIMP PaneSite::DeactivateAndUndo() {
    const ComPtr<IOleInPlaceObject> active = inPlace_;
    return active ? active->UIDeactivate() : E_UNEXPECTED;
}

/// The window's layout decides; a control that wants another place gets its own back.
STDMETHODIMP PaneSite::OnPosRectChange(LPCRECT position) {
    if (!position) return E_POINTER;
    const ComPtr<IOleInPlaceObject> active = inPlace_;
    return active ? active->SetObjectRects(&position_, &position_) : E_UNEXPECTED;
}

}  // namespace qz
