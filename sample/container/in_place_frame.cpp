#include "sample/container/in_place_frame.h"

#include <cstring>
#include <utility>

namespace qz {

void InPlaceFrame::Detach() noexcept {
    shell_ = nullptr;
    activeControl_.Reset();
    activeObject_.Reset();
}

void InPlaceFrame::OnUIActivate(IOleInPlaceObject* object) noexcept {
    if (activeControl_.Get() == object) return;
    const ComPtr<IOleInPlaceObject> before = std::exchange(activeControl_, object);
    if (before) before->UIDeactivate();
}

void InPlaceFrame::OnUIDeactivate(IOleInPlaceObject* object) noexcept {
    if (activeControl_.Get() == object) activeControl_.Reset();
}

void InPlaceFrame::DeactivateUI() noexcept { OnUIActivate(nullptr); }

bool InPlaceFrame::OfferKey(MSG& message) noexcept {
    const ComPtr<IOleInPlaceActiveObject> active = activeObject_;
    return active && active->TranslateAccelerator(&message) == S_OK;
}

void InPlaceFrame::OnFrameActivated(bool active) noexcept {
    if (const ComPtr<IOleInPlaceActiveObject> object = activeObject_) object->OnFrameWindowActivate(active);
}

STDMETHODIMP InPlaceFrame::GetWindow(HWND* window) {
    if (!window) return E_POINTER;
    *window = shell_ ? shell_->FrameWindow() : nullptr;
    return *window ? S_OK : E_FAIL;
}

STDMETHODIMP InPlaceFrame::ContextSensitiveHelp(BOOL) { return S_OK; }

STDMETHODIMP InPlaceFrame::GetBorder(LPRECT border) {
    if (!border) return E_POINTER;
    *border = {};
    return INPLACE_E_NOTOOLSPACE;
}

STDMETHODIMP InPlaceFrame::RequestBorderSpace(LPCBORDERWIDTHS widths) {
    return widths ? INPLACE_E_NOTOOLSPACE : E_POINTER;
}

STDMETHODIMP InPlaceFrame::SetBorderSpace(LPCBORDERWIDTHS widths) {
    const BORDERWIDTHS none{};
    const bool wantsRoom = widths && memcmp(widths, &none, sizeof none) != 0;
    return wantsRoom ? INPLACE_E_NOTOOLSPACE : S_OK;
}

STDMETHODIMP InPlaceFrame::SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR) {
    const ComPtr<IOleInPlaceActiveObject> before = std::exchange(activeObject_, object);
    return S_OK;
}

STDMETHODIMP InPlaceFrame::InsertMenus(HMENU, LPOLEMENUGROUPWIDTHS widths) {
    if (!widths) return E_POINTER;
    *widths = {};
    return S_OK;
}

STDMETHODIMP InPlaceFrame::SetMenu(HMENU, HOLEMENU, HWND) { return S_OK; }

STDMETHODIMP InPlaceFrame::RemoveMenus(HMENU) { return S_OK; }

STDMETHODIMP InPlaceFrame::SetStatusText(LPCOLESTR text) {
    return Guard(IID_IOleInPlaceFrame, [&] {
        if (shell_) shell_->ShowStatus(text ? text : L"");
    });
}

/// The one modeless window of the program is a dialog of another control, which may well be used meanwhile.
STDMETHODIMP InPlaceFrame::EnableModeless(BOOL) { return S_OK; }

STDMETHODIMP InPlaceFrame::TranslateAccelerator(LPMSG message, WORD) {
    return Guard(IID_IOleInPlaceFrame, [&]() -> HRESULT {
        RequirePointer(message);
        return UseKey(*message) ? S_OK : S_FALSE;
    });
}

}  // namespace qz
