#include "ui/control.h"

#include "ui/himetric.h"
#include "ui/platform_geometry.h"
#include "ui/screen.h"

namespace qz {

Control::Control() : propertyNotify_(Self(), IID_IPropertyNotifySink) {}

void* Control::FindInterface(Control* self, REFIID iid) noexcept {
    if (iid == IID_IOleObject) return static_cast<IOleObject*>(self);
    if (iid == IID_IOleInPlaceObject || iid == IID_IOleWindow) return static_cast<IOleInPlaceObject*>(self);
    if (iid == IID_IOleInPlaceActiveObject) return static_cast<IOleInPlaceActiveObject*>(self);
    if (iid == IID_IOleControl) return static_cast<IOleControl*>(self);
    if (iid == IID_IViewObject2 || iid == IID_IViewObject) return static_cast<IViewObject2*>(self);
    if (iid == IID_IPersistStreamInit || iid == IID_IPersist) return static_cast<IPersistStreamInit*>(self);
    if (iid == IID_IPersistPropertyBag) return static_cast<IPersistPropertyBag*>(self);
    return nullptr;
}

void Control::FinalRelease() noexcept {
    place_.Leave();
    viewAdvice_.Set(0, 0, nullptr);
    propertyNotify_.DisconnectAll();
    adviseHolder_.Reset();
    place_.PutSite(nullptr);
}

std::optional<LRESULT> Control::OnMessage(UINT, WPARAM, LPARAM) { return {}; }

void Control::OnSized(SIZE) {}

void Control::OnAmbientChanged(DISPID) { Invalidate(); }

SIZE Control::ClientSize() const noexcept {
    RECT client{};
    if (GetClientRect(window_.Handle(), &client)) return {client.right, client.bottom};
    const SIZEL extent = ExtentHimetric();
    return ToPlatform(HimetricToPixels({extent.cx, extent.cy}, ScreenDpi()));
}

void Control::Invalidate() noexcept {
    if (window_.Handle()) InvalidateRect(window_.Handle(), nullptr, FALSE);
    ViewChanged();
}

HRESULT Control::RequestEdit(DISPID id) {
    if (EventsFrozen()) return S_OK;
    bool vetoed = false;
    propertyNotify_.ForEachSink([&](IUnknown* sink) {
        vetoed = vetoed || static_cast<IPropertyNotifySink*>(sink)->OnRequestEdit(id) == S_FALSE;
    });
    return vetoed ? S_FALSE : S_OK;
}

void Control::NotifyChanged(DISPID id) {
    const ComPtr<IUnknown> alive = Self();
    SetDirty(true);
    if (!EventsFrozen()) {
        propertyNotify_.ForEachSink(
            [&](IUnknown* sink) { static_cast<IPropertyNotifySink*>(sink)->OnChanged(id); });
    }
    Invalidate();
}

HRESULT Control::GetBackColor(OLE_COLOR* colour) noexcept {
    return Run(IID_NULL, [&] {
        RequirePointer(colour);
        *colour = BackColorOle();
    });
}

HRESULT Control::PutBackColor(OLE_COLOR colour) noexcept {
    return Run(IID_NULL, [&]() -> HRESULT {
        COLORREF translated = 0;
        if (FAILED(OleTranslateColor(colour, nullptr, &translated))) {
            Throw(E_INVALIDARG, L"BackColor is neither a colour nor a system colour");
        }
        const HRESULT allowed = RequestEdit(DISPID_BACKCOLOR);
        if (allowed != S_OK) return allowed;
        backColor_ = colour;
        NotifyChanged(DISPID_BACKCOLOR);
        return S_OK;
    });
}

COLORREF Control::BackColorRef() const {
    COLORREF translated = 0;
    ThrowIfFailed(OleTranslateColor(BackColorOle(), nullptr, &translated),
                  L"The background colour is not known");
    return translated;
}

// IOleControl
// --------------------------------------------------------------------------------------------------

STDMETHODIMP Control::GetControlInfo(CONTROLINFO* info) {
    return Run(IID_IOleControl, [&] {
        RequirePointer(info);
        // No mnemonics; Return and Esc are the container's.
        *info = CONTROLINFO{sizeof(CONTROLINFO), nullptr, 0, 0};
    });
}

STDMETHODIMP Control::OnMnemonic(LPMSG message) {
    return Run(IID_IOleControl, [&] { RequirePointer(message); });
}

STDMETHODIMP Control::OnAmbientPropertyChange(DISPID id) {
    return Run(IID_IOleControl, [&] { OnAmbientChanged(id); });
}

STDMETHODIMP Control::FreezeEvents(BOOL freeze) {
    if (freeze) {
        ++eventFreezes_;
    } else if (eventFreezes_ > 0) {
        --eventFreezes_;
    }
    return S_OK;
}

}  // namespace qz
