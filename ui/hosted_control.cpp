#include "ui/hosted_control.h"

namespace qz {

/// The least that a control asks of its container.
class HostedControl::Site final : public Object<Site, IOleClientSite, Chain<IOleInPlaceSite, IOleWindow>,
                                                Chain<IOleInPlaceFrame, IOleInPlaceUIWindow>> {
  public:
    explicit Site(HWND window) noexcept : window_(window) {}

    RECT bounds{};

    IOleClientSite* Client() noexcept { return this; }

    // IOleWindow, of the site and of the frame
    STDMETHODIMP GetWindow(HWND* window) override {
        if (!window) return E_POINTER;
        *window = window_;
        return S_OK;
    }
    STDMETHODIMP ContextSensitiveHelp(BOOL) override { return S_OK; }

    // IOleClientSite
    STDMETHODIMP SaveObject() override { return S_OK; }
    STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker** moniker) override {
        if (moniker) *moniker = nullptr;
        return E_NOTIMPL;
    }
    STDMETHODIMP GetContainer(IOleContainer** container) override {
        if (container) *container = nullptr;
        return E_NOINTERFACE;
    }
    STDMETHODIMP ShowObject() override { return S_OK; }
    STDMETHODIMP OnShowWindow(BOOL) override { return S_OK; }
    STDMETHODIMP RequestNewObjectLayout() override { return E_NOTIMPL; }

    // IOleInPlaceSite
    STDMETHODIMP CanInPlaceActivate() override { return S_OK; }
    STDMETHODIMP OnInPlaceActivate() override { return S_OK; }
    STDMETHODIMP OnUIActivate() override { return S_OK; }
    STDMETHODIMP GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, LPRECT position,
                                  LPRECT clip, LPOLEINPLACEFRAMEINFO info) override {
        if (!frame || !document || !position || !clip || !info) return E_POINTER;
        ComPtr<IOleInPlaceFrame>(this).CopyTo(frame);
        *document = nullptr;
        *position = *clip = bounds;
        info->fMDIApp = FALSE;
        info->hwndFrame = window_;
        info->haccel = nullptr;
        info->cAccelEntries = 0;
        return S_OK;
    }
    STDMETHODIMP Scroll(SIZE) override { return S_FALSE; }
    STDMETHODIMP OnUIDeactivate(BOOL) override { return S_OK; }
    STDMETHODIMP OnInPlaceDeactivate() override { return S_OK; }
    STDMETHODIMP DiscardUndoState() override { return S_OK; }
    STDMETHODIMP DeactivateAndUndo() override { return S_OK; }
    STDMETHODIMP OnPosRectChange(LPCRECT) override { return S_OK; }

    // IOleInPlaceUIWindow, IOleInPlaceFrame
    STDMETHODIMP GetBorder(LPRECT) override { return INPLACE_E_NOTOOLSPACE; }
    STDMETHODIMP RequestBorderSpace(LPCBORDERWIDTHS) override { return INPLACE_E_NOTOOLSPACE; }
    STDMETHODIMP SetBorderSpace(LPCBORDERWIDTHS) override { return S_OK; }
    STDMETHODIMP SetActiveObject(IOleInPlaceActiveObject*, LPCOLESTR) override { return S_OK; }
    STDMETHODIMP InsertMenus(HMENU, LPOLEMENUGROUPWIDTHS) override { return E_NOTIMPL; }
    STDMETHODIMP SetMenu(HMENU, HOLEMENU, HWND) override { return S_OK; }
    STDMETHODIMP RemoveMenus(HMENU) override { return E_NOTIMPL; }
    STDMETHODIMP SetStatusText(LPCOLESTR) override { return S_OK; }
    STDMETHODIMP EnableModeless(BOOL) override { return S_OK; }
    STDMETHODIMP TranslateAccelerator(LPMSG, WORD) override { return S_FALSE; }

  private:
    HWND window_;
};

HostedControl::HostedControl() noexcept = default;

HostedControl::~HostedControl() { Close(); }

void HostedControl::Open(IUnknown* control, HWND parent, const RECT& bounds) {
    if (control_) Throw(E_UNEXPECTED, L"There is a control already");
    ThrowIfFailed(control->QueryInterface(IID_PPV_ARGS(&control_)));
    site_ = MakeObject<Site>(parent);
    site_->bounds = bounds;
    try {
        ThrowIfFailed(control_->SetClientSite(site_->Client()), L"The control takes no site");
        ThrowIfFailed(
            control_->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, site_->Client(), 0, parent, &bounds),
            L"The control does not become active");
    } catch (...) {
        Close();
        throw;
    }
}

void HostedControl::Close() noexcept {
    const ComPtr<IOleObject> control = std::move(control_);
    control_ = nullptr;
    if (!control) return;
    control->Close(OLECLOSE_NOSAVE);
    control->SetClientSite(nullptr);
    site_ = nullptr;
}

void HostedControl::Move(const RECT& bounds) noexcept {
    ComPtr<IOleInPlaceObject> inPlace;
    if (!control_ || FAILED(control_.As(&inPlace))) return;
    site_->bounds = bounds;
    inPlace->SetObjectRects(&bounds, &bounds);
}

HWND HostedControl::Window() const noexcept {
    ComPtr<IOleWindow> inPlace;
    HWND window = nullptr;
    if (control_ && SUCCEEDED(control_.As(&inPlace))) inPlace->GetWindow(&window);
    return window;
}

}  // namespace qz
