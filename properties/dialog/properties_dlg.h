// The properties dialog as an automation object.
#pragma once

#include "com/class_info.h"
#include "com/dispatch.h"
#include "properties/dialog/properties_window.h"
#include "ui/properties_door.h"

#include <memory>

namespace qz {

/// See the type library for the members. The window goes with the last reference to the object; its place is
/// saved then. Apartment-threaded.
class PropertiesDlg final : public Object<PropertiesDlg, Dispatch<IqzPropertiesDlg>> {
  public:
    void FinalRelease() noexcept;

    STDMETHODIMP get_AlwaysVisible(long* pVal) override;
    STDMETHODIMP put_AlwaysVisible(long newVal) override;
    /// E_INVALIDARG for what is no window; E_FAIL while the dialog is open already, and when it cannot be
    /// made.
    STDMETHODIMP DoModal(VARIANT hWndParent) override;
    STDMETHODIMP DoModeless(VARIANT hWndParent) override;
    STDMETHODIMP put_VandraX(IDispatch* newVal) override;
    STDMETHODIMP put_Object(IDispatch* newVal) override;
    /// S_FALSE without a window.
    STDMETHODIMP InitObjectList() override;
    STDMETHODIMP AddObject(BSTR Name) override;
    STDMETHODIMP get_Options(qzPropertiesDlgOptions* pVal) override;
    /// Acts on the next window.
    STDMETHODIMP put_Options(qzPropertiesDlgOptions newVal) override;

    /// Serves what is asked through the properties door with a dialog of its own.
    static void Serve(const PropertiesRequest& request);
    static void OpenDoor() noexcept { propertiesDoor = Serve; }

  private:
    bool Open() const noexcept { return window_ && window_->Handle(); }
    void Attach(IDispatch* host);
    void MakeWindow();
    void ShowModal(HWND parent);

    PropertiesState state_;
    std::shared_ptr<PropertiesWindow> window_;
};

}  // namespace qz
