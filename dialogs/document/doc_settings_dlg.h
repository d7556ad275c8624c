// The document settings as an automation object.
#pragma once

#include "com/dispatch.h"

#include "generated/qzVandraExt.h"
#include "generated/vandra_x.h"

namespace qz {

/// See the type library for the members. Apartment-threaded.
class DocSettingsDlg final : public Object<DocSettingsDlg, Dispatch<IqzDocSettingsDlg>> {
  public:
    /// S_OK however the dialog was closed. E_INVALIDARG for what is no window, E_POINTER without a host,
    /// E_FAIL while the dialog is open.
    STDMETHODIMP DoModal(VARIANT hWndParent) override;
    /// The query's failure for what is no host; the host before is then kept. E_POINTER for null. An open
    /// dialog keeps the host it has.
    STDMETHODIMP Initialize(IDispatch* VandraX) override;

  private:
    ComPtr<IVandraX> host_;
    bool open_ = false;
};

/// The same for callers in C++: runs the dialog over a window, or none, until the user closes it. Throws the
/// query's failure for what is no host.
void RunDocSettings(IDispatch* host, HWND parent);

}  // namespace qz
