// The base of the embeddable controls: everything an OLE container asks of a control that has a window of its
// own. Derived classes draw, handle messages and list their properties; see "For the derived control" below.
//
//     class qzSomeCtrl : public Object<qzSomeCtrl, Control, Dispatch<IqzSomeCtrl>, ...,
//     ConnectionPointContainer>
//
// Apartment-threaded. Every call out to the container may re-enter, deactivate, close or release the control:
// the control stays alive through its own members and looks again at its state after each such call.
#pragma once

#include "com/connection_points.h"
#include "com/object.h"
#include "ui/ambient.h"
#include "ui/in_place.h"
#include "ui/modal_owner.h"
#include "ui/saved_properties.h"
#include "ui/view_advice.h"
#include "ui/window.h"

#include <windows.h>
#include <ocidl.h>
#include <ole2.h>
#include <olectl.h>

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace qz {

/// What the registration says of every control, and GetMiscStatus too: recomposes on resize, cannot link
/// inside, inside-out, active when visible, wants its client site first.
inline constexpr DWORD controlMiscStatus = OLEMISC_RECOMPOSEONRESIZE | OLEMISC_CANTLINKINSIDE |
                                           OLEMISC_INSIDEOUT | OLEMISC_ACTIVATEWHENVISIBLE |
                                           OLEMISC_SETCLIENTSITEFIRST;
static_assert(controlMiscStatus == 131473);

class Control : public IOleObject,
                public IOleInPlaceObject,
                public IOleInPlaceActiveObject,
                public IOleControl,
                public IViewObject2,
                public IPersistStreamInit,
                public IPersistPropertyBag {
  public:
    static void* FindInterface(Control* self, REFIID iid) noexcept;

    /// Called by Object while the control is still whole: closes without saving. A derived class that has its
    /// own calls this one last.
    void FinalRelease() noexcept;

    // IOleObject
    STDMETHODIMP SetClientSite(IOleClientSite* site) override;
    STDMETHODIMP GetClientSite(IOleClientSite** site) override;
    STDMETHODIMP SetHostNames(LPCOLESTR application, LPCOLESTR document) override;
    STDMETHODIMP Close(DWORD saveOption) override;
    STDMETHODIMP SetMoniker(DWORD which, IMoniker* moniker) override;
    STDMETHODIMP GetMoniker(DWORD assign, DWORD which, IMoniker** moniker) override;
    STDMETHODIMP InitFromData(IDataObject* data, BOOL creation, DWORD reserved) override;
    STDMETHODIMP GetClipboardData(DWORD reserved, IDataObject** data) override;
    STDMETHODIMP DoVerb(LONG verb, LPMSG message, IOleClientSite* activeSite, LONG index, HWND parent,
                        LPCRECT bounds) override;
    STDMETHODIMP EnumVerbs(IEnumOLEVERB** verbs) override;
    STDMETHODIMP Update() override;
    STDMETHODIMP IsUpToDate() override;
    STDMETHODIMP GetUserClassID(CLSID* classId) override;
    STDMETHODIMP GetUserType(DWORD form, LPOLESTR* text) override;
    STDMETHODIMP SetExtent(DWORD aspect, SIZEL* extent) override;
    STDMETHODIMP GetExtent(DWORD aspect, SIZEL* extent) override;
    STDMETHODIMP Advise(IAdviseSink* sink, DWORD* cookie) override;
    STDMETHODIMP Unadvise(DWORD cookie) override;
    STDMETHODIMP EnumAdvise(IEnumSTATDATA** advises) override;
    STDMETHODIMP GetMiscStatus(DWORD aspect, DWORD* status) override;
    STDMETHODIMP SetColorScheme(LOGPALETTE* palette) override;

    // IOleWindow, IOleInPlaceObject, IOleInPlaceActiveObject
    STDMETHODIMP GetWindow(HWND* window) override;
    STDMETHODIMP ContextSensitiveHelp(BOOL enter) override;
    STDMETHODIMP InPlaceDeactivate() override;
    STDMETHODIMP UIDeactivate() override;
    STDMETHODIMP SetObjectRects(LPCRECT position, LPCRECT clip) override;
    STDMETHODIMP ReactivateAndUndo() override;
    STDMETHODIMP TranslateAccelerator(LPMSG message) override;
    STDMETHODIMP OnFrameWindowActivate(BOOL activate) override;
    STDMETHODIMP OnDocWindowActivate(BOOL activate) override;
    STDMETHODIMP ResizeBorder(LPCRECT border, IOleInPlaceUIWindow* window, BOOL isFrame) override;
    STDMETHODIMP EnableModeless(BOOL enable) override;

    // IOleControl
    STDMETHODIMP GetControlInfo(CONTROLINFO* info) override;
    STDMETHODIMP OnMnemonic(LPMSG message) override;
    STDMETHODIMP OnAmbientPropertyChange(DISPID id) override;
    STDMETHODIMP FreezeEvents(BOOL freeze) override;

    // IViewObject2
    STDMETHODIMP Draw(DWORD aspect, LONG index, void* aspectInfo, DVTARGETDEVICE* device, HDC targetDc,
                      HDC dc, LPCRECTL bounds, LPCRECTL windowBounds,
                      BOOL(STDMETHODCALLTYPE* goOn)(ULONG_PTR), ULONG_PTR goOnArgument) override;
    STDMETHODIMP GetColorSet(DWORD aspect, LONG index, void* aspectInfo, DVTARGETDEVICE* device, HDC targetDc,
                             LOGPALETTE** colours) override;
    STDMETHODIMP Freeze(DWORD aspect, LONG index, void* aspectInfo, DWORD* cookie) override;
    STDMETHODIMP Unfreeze(DWORD cookie) override;
    STDMETHODIMP SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) override;
    STDMETHODIMP GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) override;
    STDMETHODIMP GetExtent(DWORD aspect, LONG index, DVTARGETDEVICE* device, SIZEL* extent) override;

    // IPersist, IPersistStreamInit, IPersistPropertyBag
    STDMETHODIMP GetClassID(CLSID* classId) override;
    STDMETHODIMP IsDirty() override;
    STDMETHODIMP InitNew() override;
    STDMETHODIMP Load(IStream* stream) override;
    STDMETHODIMP Save(IStream* stream, BOOL clearDirty) override;
    STDMETHODIMP GetSizeMax(ULARGE_INTEGER* size) override;
    STDMETHODIMP Load(IPropertyBag* bag, IErrorLog* log) override;
    STDMETHODIMP Save(IPropertyBag* bag, BOOL clearDirty, BOOL saveAll) override;

  protected:
    Control();
    ~Control() = default;

    // For the derived control: what it must say of itself
    // ------------------------------------------------------

    virtual REFCLSID ClassId() const noexcept = 0;
    /// The control's name for people: its user type and its window's text.
    virtual std::wstring Title() const = 0;

    /// Draws the control. `bounds` starts at 0, 0 and is the client area in pixels, or, without a window, the
    /// control's extent in pixels. The base has set up `dc` so, maybe scaled or for a metafile: shift the
    /// window origin, not the viewport's, which counts in device units. GetClipBox tells what is to be
    /// painted.
    virtual void OnDraw(HDC dc, const RECT& bounds) = 0;

    // For the derived control: what it may say and do
    // ----------------------------------------------------------

    virtual SIZEL InitialExtent() const { return {5080, 5080}; }  ///< HIMETRIC.
    virtual OLE_COLOR InitialBackColor() const { return 0x80000000u | COLOR_WINDOW; }
    virtual std::span<const PersistentProperty> PersistentProperties() const { return {}; }

    /// A message of the control's window; nothing lets the base go on (painting, focus, sizes).
    virtual std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    virtual void OnWindowCreated() {}
    /// The window got another client size, pixels. Called after OnWindowCreated first.
    virtual void OnSized(SIZE client);
    /// The child window that has the focus when the control gets it; null for the control's own window.
    virtual HWND FocusChild() const noexcept { return nullptr; }
    /// True for a key message (WM_KEYDOWN, WM_SYSKEYDOWN, ...) to the control's window or a child of it that
    /// the control wants for itself, such as arrows. Tab is never asked for: see TabTarget.
    virtual bool IsInputKey(const MSG& message) const;
    /// The child window that Tab (backwards: with Shift) leads to from where the focus is; null when it
    /// leaves the control.
    virtual HWND TabTarget(bool /*backwards*/) const { return nullptr; }
    /// An ambient property changed (DISPID_UNKNOWN: several).
    virtual void OnAmbientChanged(DISPID id);
    /// Asked on Close with OLECLOSE_PROMPTSAVE when there is something to save: IDYES, IDNO or IDCANCEL. By
    /// default an embedded control saves without asking, as its container is the one that talks to the user.
    virtual int AskToSave() { return IDYES; }
    /// A message handler threw. By default the developer's debug output shows it.
    virtual void OnMessageFailed(UINT message, HRESULT code) noexcept;

    // For the derived control: services
    // ------------------------------------------------------------------------

    /// The control's window, null while not active in place.
    HWND WindowHandle() const noexcept { return window_.Handle(); }
    SIZE ClientSize() const noexcept;  ///< Pixels; the extent's size without a window.
    bool InPlaceActive() const noexcept { return place_.Active(); }
    bool UIActive() const noexcept { return place_.UIActive(); }

    /// Repaints the whole control and tells containers that draw it themselves.
    void Invalidate() noexcept;

    /// The container's ambient properties, asked anew each time.
    Ambient Ambients() const { return Ambient(place_.Site()); }
    /// False while the container is being designed; true when it does not say.
    bool UserMode() const { return Ambients().Flag(DISPID_AMBIENT_USERMODE, true); }
    IOleClientSite* ClientSite() const noexcept { return place_.Site(); }

    /// True while the container wants no events. Events due then are dropped, not kept: the state they tell
    /// of may be gone when the container thaws.
    bool EventsFrozen() const noexcept { return eventFreezes_ > 0; }

    /// Asks the container whether a bindable property may change: S_OK, or S_FALSE when it may not; the
    /// property's put member then returns S_FALSE and changes nothing.
    HRESULT RequestEdit(DISPID id);
    /// Tells that a property changed: sinks, dirty flag, view. A sink may release the control in either: a
    /// caller that goes on using its members afterwards keeps itself alive.
    void NotifyChanged(DISPID id);
    void SetDirty(bool dirty) noexcept { dirty_ = dirty; }

    /// IPropertyNotifySink's connection point, to be listed in Points().
    ConnectionPoint& PropertyNotifyPoint() noexcept { return propertyNotify_; }

    /// The stock background colour. Get: E_POINTER. Put: E_INVALIDARG for what is no OLE_COLOR, S_FALSE when
    /// the container vetoes it.
    HRESULT GetBackColor(OLE_COLOR* colour) noexcept;
    HRESULT PutBackColor(OLE_COLOR colour) noexcept;
    OLE_COLOR BackColorOle() const { return backColor_.value_or(InitialBackColor()); }
    COLORREF BackColorRef() const;

    /// What a modal window of the control stands over.
    ModalOwner OwnerOfModal() const { return {window_.Handle(), place_.Frame()}; }

    /// Shows a message box over the container's window and gives the button pressed; 0 when it could not be
    /// shown. The container is modal meanwhile, and messages are handled: look again at
    /// everything afterwards.
    int ShowMessageBox(const std::wstring& text, UINT style, const std::wstring& caption = {});

    /// The control as an IUnknown to be counted (not its identity).
    IUnknown* Self() noexcept { return static_cast<IOleObject*>(this); }

  private:
    /// The window, whose messages the control handles.
    class ClientWindow final : public Window {
      public:
        explicit ClientWindow(Control& control) noexcept : control_(control) {}

      private:
        std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
            return control_.HandleMessage(message, wParam, lParam);
        }
        void OnMessageFailed(UINT message, HRESULT code) noexcept override {
            control_.OnMessageFailed(message, code);
        }
        ComPtr<IUnknown> KeepAlive() noexcept override { return control_.Self(); }

        Control& control_;
    };

    /// Runs a member's body through the guard with the control kept alive.
    template <class Body>
    HRESULT Run(REFIID iid, Body&& body) noexcept {
        const ComPtr<IUnknown> alive = Self();
        return Guard(iid, std::forward<Body>(body));
    }

    // control_in_place.cpp
    void RunVerb(LONG verb);

    // control_keyboard.cpp
    bool Keeps(const MSG& message) const;
    bool MovesFocusWithin(const MSG& message) const;
    std::optional<LRESULT> DialogCode(const MSG* message) const;

    // control_messages.cpp
    std::optional<LRESULT> HandleMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void Anticipate(UINT message, WPARAM wParam, LPARAM lParam);
    void OnFocusGot();
    void OnFocusLost(HWND to);
    void ActivateByUser();
    std::optional<LRESULT> HandleDefault(UINT message, WPARAM wParam, LPARAM lParam);
    void Paint();

    // control_view.cpp
    void DrawInto(HDC dc, const RECT& bounds, const RECT& metafileWindow);
    void ViewChanged() noexcept;

    // control_persistence.cpp
    bool SaveOnClose(DWORD saveOption);
    void FinishLoading(SIZEL extent);

    SIZEL ExtentHimetric() const { return extent_.value_or(InitialExtent()); }

    ComPtr<IOleAdviseHolder> adviseHolder_;
    ViewAdvice viewAdvice_;
    ConnectionPoint propertyNotify_;
    ClientWindow window_{*this};
    InPlace place_{window_, *this};

    std::optional<SIZEL> extent_;
    std::optional<OLE_COLOR> backColor_;
    unsigned eventFreezes_ = 0;
    bool dirty_ = false;
    bool loaded_ = false;
};

}  // namespace qz
