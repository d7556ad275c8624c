// IViewObject2: the control drawn by its container, with or without a window.
#include "ui/control.h"

#include "ui/gdi.h"
#include "ui/platform_geometry.h"

namespace qz {

namespace {

void RequireContent(DWORD aspect, LONG index) {
    if (aspect != DVASPECT_CONTENT) Throw(DV_E_DVASPECT, L"The control shows its content only");
    if (index != -1) Throw(DV_E_LINDEX, L"The control is drawn as a whole");
}

/// Maps 0, 0 .. `size` to `bounds` of a device.
void MapToDevice(HDC dc, SIZE size, const RECT& bounds) noexcept {
    POINT corners[] = {{bounds.left, bounds.top}, {bounds.right, bounds.bottom}};
    LPtoDP(dc, corners, 2);
    ModifyWorldTransform(dc, nullptr, MWT_IDENTITY);  // fails, rightly, when there is none
    SetMapMode(dc, MM_ANISOTROPIC);
    SetWindowOrgEx(dc, 0, 0, nullptr);
    SetWindowExtEx(dc, size.cx, size.cy, nullptr);
    SetViewportOrgEx(dc, corners[0].x, corners[0].y, nullptr);
    SetViewportExtEx(dc, corners[1].x - corners[0].x, corners[1].y - corners[0].y, nullptr);
}

/// The same for an old-style metafile whose window is `window`. Its viewport belongs to whoever plays it, so
/// only the window is changed.
void MapToMetafile(HDC dc, SIZE size, const RECT& bounds, const RECT& window) noexcept {
    const int width = bounds.right - bounds.left;
    const int height = bounds.bottom - bounds.top;
    SetMapMode(dc, MM_ANISOTROPIC);
    SetWindowOrgEx(dc, MulDiv(window.left - bounds.left, size.cx, width),
                   MulDiv(window.top - bounds.top, size.cy, height), nullptr);
    SetWindowExtEx(dc, MulDiv(window.right - window.left, size.cx, width),
                   MulDiv(window.bottom - window.top, size.cy, height), nullptr);
}

RECT ToRect(const RECTL& rect) noexcept { return {rect.left, rect.top, rect.right, rect.bottom}; }

}  // namespace

STDMETHODIMP Control::Draw(DWORD aspect, LONG index, void*, DVTARGETDEVICE*, HDC, HDC dc, LPCRECTL bounds,
                           LPCRECTL windowBounds, BOOL(STDMETHODCALLTYPE* goOn)(ULONG_PTR),
                           ULONG_PTR goOnArgument) {
    return Run(IID_IViewObject, [&]() -> HRESULT {
        RequireContent(aspect, index);
        RequirePointer(bounds);
        if (!dc) Throw(E_INVALIDARG, L"There is no device context to draw into");
        if (goOn && !goOn(goOnArgument)) return E_ABORT;
        DrawInto(dc, ToRect(*bounds), ToRect(windowBounds ? *windowBounds : *bounds));
        return S_OK;
    });
}

void Control::DrawInto(HDC dc, const RECT& bounds, const RECT& metafileWindow) {
    const SIZE size = ClientSize();
    if (bounds.right == bounds.left || bounds.bottom == bounds.top || size.cx < 1 || size.cy < 1) return;
    const SavedDc saved(dc);
    if (GetObjectType(dc) == OBJ_METADC) {
        MapToMetafile(dc, size, bounds, metafileWindow);
    } else {
        MapToDevice(dc, size, bounds);
    }
    IntersectClipRect(dc, 0, 0, size.cx, size.cy);
    OnDraw(dc, RECT{0, 0, size.cx, size.cy});
}

STDMETHODIMP Control::GetColorSet(DWORD, LONG, void*, DVTARGETDEVICE*, HDC, LOGPALETTE** colours) {
    if (!colours) return E_POINTER;
    *colours = nullptr;
    return S_FALSE;  // no palette of its own
}

STDMETHODIMP Control::Freeze(DWORD, LONG, void*, DWORD* cookie) {
    if (!cookie) return E_POINTER;
    *cookie = 0;
    return E_NOTIMPL;
}

STDMETHODIMP Control::Unfreeze(DWORD) { return OLE_E_NOCONNECTION; }

STDMETHODIMP Control::SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) {
    return Run(IID_IViewObject, [&] { viewAdvice_.Set(aspects, flags, sink); });
}

STDMETHODIMP Control::GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) {
    return Run(IID_IViewObject, [&] { viewAdvice_.Get(aspects, flags, sink); });
}

STDMETHODIMP Control::GetExtent(DWORD aspect, LONG index, DVTARGETDEVICE*, SIZEL* extent) {
    return Run(IID_IViewObject2, [&] {
        RequirePointer(extent);
        *extent = {};
        RequireContent(aspect, index);
        *extent = ExtentHimetric();
    });
}

void Control::ViewChanged() noexcept { viewAdvice_.Notify(); }

}  // namespace qz
