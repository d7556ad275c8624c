// The place of one control: everything an OLE control may ask of its container.
#pragma once

#include "sample/container/ambient_properties.h"
#include "sample/container/in_place_frame.h"

#include <ocidl.h>
#include <ole2.h>
#include <oleidl.h>

#include <functional>
#include <memory>
#include <string>

namespace qz {

struct SiteOptions {
    ComPtr<InPlaceFrame> frame;
    HWND window = nullptr;  ///< The parent of the control's window.
    std::shared_ptr<const AmbientValues> ambients;
    std::wstring name;                  ///< What the control is called in the program's messages.
    std::function<void(bool)> onFocus;  ///< Called when the control gets or loses the focus; may be empty.
};

/// Creates a control, keeps it active in place, and ends it. The control counts a reference to its site: call
/// Close before letting go of either.
class PaneSite final : public Object<PaneSite, IOleClientSite, IOleControlSite,
                                     Chain<IOleInPlaceSite, IOleWindow>, AmbientProperties> {
  public:
    explicit PaneSite(SiteOptions options);

    /// Creates a control of that class in its initial state, without a window yet. Throws.
    void CreateControl(REFCLSID classId);
    /// Shows the control in a rectangle of the parent's client area. Throws when it has no window then.
    void Activate(const RECT& position);
    void Close() noexcept;

    /// Moves the control; remembered for the activation before that.
    void Place(const RECT& position) noexcept;
    /// Gives the control the focus and the first say about keys. Throws.
    void ActivateUI();
    /// The ambient values have changed.
    void AmbientsChanged() noexcept;

    /// The control's automation interface; throws when it has none.
    ComPtr<IDispatch> Automation() const;
    HWND ControlWindow() const noexcept;

    // IOleClientSite
    STDMETHODIMP SaveObject() override;
    STDMETHODIMP GetMoniker(DWORD assign, DWORD which, IMoniker** moniker) override;
    STDMETHODIMP GetContainer(IOleContainer** container) override;
    STDMETHODIMP ShowObject() override;
    STDMETHODIMP OnShowWindow(BOOL show) override;
    STDMETHODIMP RequestNewObjectLayout() override;

    // IOleControlSite
    STDMETHODIMP OnControlInfoChanged() override;
    STDMETHODIMP LockInPlaceActive(BOOL lock) override;
    STDMETHODIMP GetExtendedControl(IDispatch** control) override;
    STDMETHODIMP TransformCoords(POINTL* himetric, POINTF* pixels, DWORD flags) override;
    STDMETHODIMP TranslateAccelerator(MSG* message, DWORD modifiers) override;
    STDMETHODIMP OnFocus(BOOL got) override;
    STDMETHODIMP ShowPropertyFrame() override;

    // IOleInPlaceSite
    STDMETHODIMP GetWindow(HWND* window) override;
    STDMETHODIMP ContextSensitiveHelp(BOOL enter) override;
    STDMETHODIMP CanInPlaceActivate() override;
    STDMETHODIMP OnInPlaceActivate() override;
    STDMETHODIMP OnUIActivate() override;
    STDMETHODIMP GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, LPRECT position,
                                  LPRECT clip, LPOLEINPLACEFRAMEINFO info) override;
    STDMETHODIMP Scroll(SIZE extent) override;
    STDMETHODIMP OnUIDeactivate(BOOL undoable) override;
    STDMETHODIMP OnInPlaceDeactivate() override;
    STDMETHODIMP DiscardUndoState() override;
    STDMETHODIMP DeactivateAndUndo() override;
    STDMETHODIMP OnPosRectChange(LPCRECT position) override;

  private:
    void Initialise();
    void Run(LONG verb, const wchar_t* what);

    SiteOptions options_;
    ComPtr<IOleObject> object_;
    ComPtr<IOleInPlaceObject> inPlace_;  ///< While the control is active in place.
    RECT position_{};
};

}  // namespace qz
