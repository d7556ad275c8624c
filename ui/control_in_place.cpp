// In-place activation: verbs, IOleInPlaceObject and the frame's side of IOleInPlaceActiveObject.
//
// Each step of an activation calls the container, which may end the activation inside that call. What ends
// one counts `stage_` up; the step under way compares and stops.
#include "ui/control.h"

#include "ui/platform_geometry.h"

namespace qz {

namespace {

/// Sets a flag for a scope.
class FlagScope {
  public:
    explicit FlagScope(bool& flag) noexcept : flag_(flag), before_(std::exchange(flag, true)) {}
    ~FlagScope() { flag_ = before_; }
    FlagScope(const FlagScope&) = delete;
    FlagScope& operator=(const FlagScope&) = delete;

  private:
    bool& flag_;
    bool before_;
};

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
            Activate();
            return ThrowIfFailed(ActivateUserInterface(),
                                 L"The container refuses to make the control the active one");
        case OLEIVERB_SHOW:
        case OLEIVERB_INPLACEACTIVATE:
            return Activate();
        case OLEIVERB_HIDE:
            LeaveUserInterface();
            ShowWindow(window_.Handle(), SW_HIDE);
            return;
        case OLEIVERB_DISCARDUNDOSTATE:
            return;
        default:
            Throw(E_NOTIMPL, L"The control does not know this verb");
    }
}

void Control::Activate() {
    if (!inPlaceActive_) ActivateInPlace();
    if (window_.Handle()) ShowWindow(window_.Handle(), SW_SHOWNA);
}

void Control::ActivateInPlace() {
    if (activating_ || leaving_) Throw(E_UNEXPECTED, L"The control is just being activated or deactivated");
    const FlagScope activating(activating_);
    if (!site_) ThrowNotActivated(L"The control has no client site");
    const unsigned stage = stage_;
    ComPtr<IOleInPlaceSite> site;
    ThrowIfFailed(site_.As(&site), L"The container has no place for active controls");
    RequireConsent(site->CanInPlaceActivate(), L"The container refuses to activate the control");
    RequireStage(stage);
    ThrowIfFailed(site->OnInPlaceActivate(), L"The container refuses to activate the control");
    inPlaceActive_ = true;
    inPlaceSite_ = site;
    try {
        RequireStage(stage);
        EnterPlace(site.Get());
    } catch (...) {
        LeaveInPlace();
        throw;
    }
    if (const ComPtr<IOleClientSite> shown = site_) shown->ShowObject();
    RequireStage(stage);
}

void Control::EnterPlace(IOleInPlaceSite* site) {
    const unsigned stage = stage_;
    HWND parent = nullptr;
    RECT position{};
    RECT clip{};
    OLEINPLACEFRAMEINFO info{};
    info.cb = sizeof info;
    ComPtr<IOleInPlaceFrame> frame;
    ComPtr<IOleInPlaceUIWindow> documentWindow;
    ThrowIfFailed(site->GetWindow(&parent), L"The container has no window for the control");
    RequireStage(stage);
    ThrowIfFailed(site->GetWindowContext(&frame, &documentWindow, &position, &clip, &info),
                  L"The container does not tell the control's place");
    RequireStage(stage);
    frame_ = frame;
    documentWindow_ = documentWindow;
    WindowOptions options;
    options.parent = parent;
    options.bounds = position;
    options.title = Title();
    window_.Create(options);
    RequireStage(stage);
    Place(position, clip);
}

/// A failure says that the container does not want it.
HRESULT Control::ActivateUserInterface() {
    // A window that is going has messages of the focus left, when its place is none of the control's any
    // more.
    if (!inPlaceActive_ || !window_.Handle() || leaving_) return OLE_E_NOT_INPLACEACTIVE;
    if (!uiActive_) {
        const std::wstring title = Title();
        const unsigned stage = stage_;
        const ComPtr<IOleInPlaceSite> site = inPlaceSite_;
        uiActive_ = true;
        const HRESULT answer = site->OnUIActivate();
        if (stage != stage_) return OLE_E_NOT_INPLACEACTIVE;
        if (FAILED(answer)) uiActive_ = false;
        if (FAILED(answer)) return answer;
        AnnounceActiveObject(this, title.c_str());
    }
    TakeFocus();
    return uiActive_ ? S_OK : OLE_E_NOT_INPLACEACTIVE;
}

/// `active` null: the control is the active one no longer.
void Control::AnnounceActiveObject(IOleInPlaceActiveObject* active, const wchar_t* title) noexcept {
    const ComPtr<IOleInPlaceFrame> frame = frame_;
    const ComPtr<IOleInPlaceUIWindow> documentWindow = documentWindow_;
    for (IOleInPlaceUIWindow* window :
         {static_cast<IOleInPlaceUIWindow*>(frame.Get()), documentWindow.Get()}) {
        if (!window || uiActive_ != (active != nullptr)) continue;
        window->SetActiveObject(active, title);
        if (active && uiActive_) window->SetBorderSpace(nullptr);  // the container keeps its own tools
    }
}

void Control::LeaveUserInterface() noexcept {
    if (!uiActive_) return;
    ++stage_;
    uiActive_ = false;
    const ComPtr<IOleInPlaceSite> site = inPlaceSite_;
    {
        const FlagScope leaving(leaving_);
        AnnounceActiveObject(nullptr, nullptr);
    }
    if (site) site->OnUIDeactivate(FALSE);
}

void Control::LeaveInPlace() noexcept {
    if (!inPlaceActive_) return;
    ++stage_;
    inPlaceActive_ = false;
    ComPtr<IOleInPlaceSite> site;
    {
        const FlagScope leaving(leaving_);
        TellFocus(false);  // the window loses it, if at all, when the site is to hear nothing any more
        LeaveUserInterface();
        site = std::exchange(inPlaceSite_, nullptr);
        frame_.Reset();
        documentWindow_.Reset();
        window_.Destroy();
    }
    if (site) site->OnInPlaceDeactivate();
}

void Control::RequireStage(unsigned stage) const {
    if (stage != stage_) ThrowNotActivated(L"The container ended the activation while it was under way");
}

void Control::Place(const RECT& position, const RECT& clip) {
    const Rect place = FromPlatform(position);
    ClipWindow(window_.Handle(), place, FromPlatform(clip));
    SetWindowPos(window_.Handle(), nullptr, place.left, place.top, place.Width(), place.Height(),
                 SWP_NOZORDER | SWP_NOACTIVATE);
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
    return Run(IID_IOleInPlaceObject, [&] {
        ++stage_;
        LeaveInPlace();
    });
}

STDMETHODIMP Control::UIDeactivate() {
    return Run(IID_IOleInPlaceObject, [&] { LeaveUserInterface(); });
}

STDMETHODIMP Control::SetObjectRects(LPCRECT position, LPCRECT clip) {
    return Run(IID_IOleInPlaceObject, [&] {
        RequirePointer(position);
        if (position->right < position->left || position->bottom < position->top) {
            Throw(E_INVALIDARG, L"The control's rectangle is turned inside out");
        }
        // Without a window there is nothing to move; activation asks for the place again.
        if (window_.Handle()) Place(*position, clip ? *clip : *position);
    });
}

int Control::ShowMessageBox(const std::wstring& text, UINT style, const std::wstring& caption) {
    const ComPtr<IUnknown> alive = Self();
    const ModelessPause pause(frame_);
    const HWND window = window_.Handle();
    return MessageBoxW(window ? GetAncestor(window, GA_ROOT) : nullptr, text.c_str(), caption.c_str(), style);
}

STDMETHODIMP Control::ReactivateAndUndo() { return INPLACE_E_NOTUNDOABLE; }

STDMETHODIMP Control::OnFrameWindowActivate(BOOL) { return S_OK; }

STDMETHODIMP Control::OnDocWindowActivate(BOOL) { return S_OK; }

STDMETHODIMP Control::ResizeBorder(LPCRECT, IOleInPlaceUIWindow*, BOOL) { return S_OK; }

STDMETHODIMP Control::EnableModeless(BOOL) { return S_OK; }

}  // namespace qz
