#include "ui/in_place.h"

#include "com/error.h"
#include "com/scope.h"
#include "ui/platform_geometry.h"

#include <utility>

namespace qz {

namespace {

[[noreturn]] void ThrowNotActivated(const wchar_t* text) { Throw(OLE_E_NOT_INPLACEACTIVE, text); }

/// S_FALSE is a refusal as well as a failure is.
void RequireConsent(HRESULT answer, const wchar_t* text) {
    ThrowIfFailed(answer, text);
    if (answer != S_OK) ThrowNotActivated(text);
}

/// The part of a window outside `clip` is cut off.
void ClipWindow(HWND window, const Rect& position, const Rect& clip) noexcept {
    HRGN region = nullptr;
    const Rect visible = position.Intersected(clip);
    if (visible != position) {
        const Rect inside = visible.Empty() ? Rect{} : visible.Moved(-position.left, -position.top);
        region = CreateRectRgn(inside.left, inside.top, inside.right, inside.bottom);
        if (!region) return;  // shown unclipped rather than not at all
    }
    if (!SetWindowRgn(window, region, TRUE) && region) DeleteObject(region);
}

}  // namespace

ComPtr<IOleClientSite> InPlace::PutSite(IOleClientSite* site) noexcept {
    End();
    return std::exchange(site_, site);
}

ComPtr<IOleControlSite> InPlace::SiteOfControl() const noexcept {
    ComPtr<IOleControlSite> site;
    if (!site_ || FAILED(site_.As(&site))) return nullptr;
    return site;
}

// Active in place
// --------------------------------------------------------------------------------------------------

void InPlace::Activate(const std::wstring& title) {
    if (!active_) Enter(title);
    if (window_.Handle()) ShowWindow(window_.Handle(), SW_SHOWNA);
}

void InPlace::Enter(const std::wstring& title) {
    if (entering_ || leaving_) Throw(E_UNEXPECTED, L"The control is just being activated or deactivated");
    const ScopedValue entering(entering_, true);
    if (!site_) ThrowNotActivated(L"The control has no client site");
    const unsigned stage = stage_;
    ComPtr<IOleInPlaceSite> place;
    ThrowIfFailed(site_.As(&place), L"The container has no place for active controls");
    RequireConsent(place->CanInPlaceActivate(), L"The container refuses to activate the control");
    RequireStage(stage);
    ThrowIfFailed(place->OnInPlaceActivate(), L"The container refuses to activate the control");
    active_ = true;
    place_ = place;
    try {
        RequireStage(stage);
        MakeWindow(place.Get(), title);
    } catch (...) {
        Leave();
        throw;
    }
    if (const ComPtr<IOleClientSite> shown = site_) shown->ShowObject();
    RequireStage(stage);
}

void InPlace::MakeWindow(IOleInPlaceSite* place, const std::wstring& title) {
    const unsigned stage = stage_;
    HWND parent = nullptr;
    RECT position{};
    RECT clip{};
    OLEINPLACEFRAMEINFO info{};
    info.cb = sizeof info;
    ComPtr<IOleInPlaceFrame> frame;
    ComPtr<IOleInPlaceUIWindow> documentWindow;
    ThrowIfFailed(place->GetWindow(&parent), L"The container has no window for the control");
    RequireStage(stage);
    ThrowIfFailed(place->GetWindowContext(&frame, &documentWindow, &position, &clip, &info),
                  L"The container does not tell the control's place");
    RequireStage(stage);
    frame_ = frame;
    documentWindow_ = documentWindow;
    WindowOptions options;
    options.parent = parent;
    options.bounds = position;
    options.title = title;
    window_.Create(options);
    RequireStage(stage);
    MoveTo(position, clip);
}

void InPlace::RequireStage(unsigned stage) const {
    if (stage != stage_) ThrowNotActivated(L"The container ended the activation while it was under way");
}

void InPlace::Leave() noexcept {
    if (!active_) return;
    ++stage_;
    active_ = false;
    ComPtr<IOleInPlaceSite> place;
    {
        const ScopedValue leaving(leaving_, true);
        TellFocus(false);  // the window loses it, if at all, when the site is to hear nothing any more
        LeaveUserInterface();
        place = std::exchange(place_, nullptr);
        frame_.Reset();
        documentWindow_.Reset();
        window_.Destroy();
    }
    if (place) place->OnInPlaceDeactivate();
}

void InPlace::End() noexcept {
    ++stage_;
    Leave();
}

void InPlace::MoveTo(const RECT& position, const RECT& clip) noexcept {
    const Rect place = FromPlatform(position);
    ClipWindow(window_.Handle(), place, FromPlatform(clip));
    SetWindowPos(window_.Handle(), nullptr, place.left, place.top, place.Width(), place.Height(),
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

// Active in the user interface
// --------------------------------------------------------------------------------------------------

HRESULT InPlace::ActivateUserInterface(const std::wstring& title) {
    // A window that is going has messages of the focus left, when its place is none of the control's any
    // more.
    if (!active_ || !window_.Handle() || leaving_) return OLE_E_NOT_INPLACEACTIVE;
    if (!uiActive_) {
        const unsigned stage = stage_;
        const ComPtr<IOleInPlaceSite> place = place_;
        uiActive_ = true;
        const HRESULT answer = place->OnUIActivate();
        if (stage != stage_) return OLE_E_NOT_INPLACEACTIVE;
        if (FAILED(answer)) uiActive_ = false;
        if (FAILED(answer)) return answer;
        Announce(&activeObject_, title.c_str());
    }
    TakeFocus();
    return uiActive_ ? S_OK : OLE_E_NOT_INPLACEACTIVE;
}

/// `active` null: the control is the active one no longer.
void InPlace::Announce(IOleInPlaceActiveObject* active, const wchar_t* title) noexcept {
    const ComPtr<IOleInPlaceFrame> frame = frame_;
    const ComPtr<IOleInPlaceUIWindow> documentWindow = documentWindow_;
    for (IOleInPlaceUIWindow* window :
         {static_cast<IOleInPlaceUIWindow*>(frame.Get()), documentWindow.Get()}) {
        if (!window || uiActive_ != (active != nullptr)) continue;
        window->SetActiveObject(active, title);
        if (active && uiActive_) window->SetBorderSpace(nullptr);  // the container keeps its own tools
    }
}

void InPlace::LeaveUserInterface() noexcept {
    if (!uiActive_) return;
    ++stage_;
    uiActive_ = false;
    const ComPtr<IOleInPlaceSite> place = place_;
    {
        const ScopedValue leaving(leaving_, true);
        Announce(nullptr, nullptr);
    }
    if (place) place->OnUIDeactivate(FALSE);
}

// Focus
// --------------------------------------------------------------------------------------------------

bool InPlace::Owns(HWND window) const noexcept {
    const HWND own = window_.Handle();
    return own && window && (window == own || IsChild(own, window));
}

void InPlace::TakeFocus() noexcept {
    if (window_.Handle() && !Owns(GetFocus())) SetFocus(window_.Handle());
}

void InPlace::TellFocus(bool has) noexcept {
    if (std::exchange(focusTold_, has) == has) return;  // it went from one window of the control to another
    if (const ComPtr<IOleControlSite> site = SiteOfControl()) site->OnFocus(has);
}

}  // namespace qz
