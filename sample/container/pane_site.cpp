// The life of the control in its site. What the control asks of the site: pane_site_answers.cpp
#include "sample/container/pane_site.h"

#include "sample/container/dpi.h"
#include "sample/container/error_text.h"

namespace qz {

PaneSite::PaneSite(SiteOptions options) : options_(std::move(options)) {
    ambients_ = options_.ambients;
    displayName_ = options_.name;
}

void PaneSite::CreateControl(REFCLSID classId) {
    RequireSuccess(CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&object_)),
                   L"The control cannot be created (is its library registered?)");
    DWORD status = 0;
    object_->GetMiscStatus(DVASPECT_CONTENT, &status);
    const bool siteFirst = (status & OLEMISC_SETCLIENTSITEFIRST) != 0;
    if (siteFirst) RequireSuccess(object_->SetClientSite(this), L"The control refuses its site");
    Initialise();
    if (!siteFirst) RequireSuccess(object_->SetClientSite(this), L"The control refuses its site");
    object_->SetHostNames(options_.name.c_str(), nullptr);
}

/// A control that keeps no state need not be told to start afresh.
void PaneSite::Initialise() {
    ComPtr<IPersistStreamInit> persistent;
    if (FAILED(object_.As(&persistent))) return;
    const HRESULT result = persistent->InitNew();
    if (result != E_NOTIMPL) RequireSuccess(result, L"The control cannot be initialised");
}

void PaneSite::Activate(const RECT& position) {
    Place(position);
    Run(OLEIVERB_INPLACEACTIVATE, L"The control cannot be shown");
    if (!ControlWindow()) ThrowDescribed(E_FAIL, L"The control cannot be shown", L"it has no window");
}

void PaneSite::ActivateUI() { Run(OLEIVERB_UIACTIVATE, L"The control does not take the focus"); }

void PaneSite::Run(LONG verb, const wchar_t* what) {
    const ComPtr<IOleObject> object = object_;
    if (!object) ThrowDescribed(E_UNEXPECTED, what, L"it is closed");
    RequireSuccess(object->DoVerb(verb, nullptr, this, 0, options_.window, &position_), what);
}

void PaneSite::Close() noexcept {
    options_.onFocus = nullptr;
    // The control takes its leave of the site inside these calls, so the site is still whole then.
    if (const ComPtr<IOleObject> object = object_) {
        object->Close(OLECLOSE_NOSAVE);
        object->SetClientSite(nullptr);
    }
    inPlace_.Reset();
    object_.Reset();
}

void PaneSite::Place(const RECT& position) noexcept {
    position_ = position;
    if (!object_) return;
    SIZEL extent{ToHimetric(options_.window, position.right - position.left),
                 ToHimetric(options_.window, position.bottom - position.top)};
    object_->SetExtent(DVASPECT_CONTENT, &extent);  // a control of fixed size may refuse
    if (const ComPtr<IOleInPlaceObject> active = inPlace_) active->SetObjectRects(&position_, &position_);
}

void PaneSite::AmbientsChanged() noexcept {
    ComPtr<IOleControl> control;
    if (object_ && SUCCEEDED(object_.As(&control))) control->OnAmbientPropertyChange(DISPID_UNKNOWN);
}

ComPtr<IDispatch> PaneSite::Automation() const {
    ComPtr<IDispatch> automation;
    if (!object_) ThrowDescribed(E_UNEXPECTED, options_.name, L"the control is closed");
    RequireSuccess(object_.As(&automation), L"The control cannot be automated");
    return automation;
}

HWND PaneSite::ControlWindow() const noexcept {
    HWND window = nullptr;
    if (inPlace_ && FAILED(inPlace_->GetWindow(&window))) return nullptr;
    return window;
}

}  // namespace qz
