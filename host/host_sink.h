// The object that hears the host's events.
#pragma once

#include "host/host_binding.h"

namespace qz {

/// Passes the host's change event (dispatch id 5) on and ignores all others. The host may hold it longer than
/// the component lives; `Disconnect` makes it deaf.
class HostSink : public Object<HostSink, IDispatch> {
  public:
    explicit HostSink(HostListener& listener) noexcept : listener_(&listener) {}

    void Disconnect() noexcept { listener_ = nullptr; }

    STDMETHODIMP QueryInterface(REFIID iid, void** result) override;
    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo** info) override;
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override;
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override;

  private:
    HostListener* listener_;
};

}  // namespace qz
