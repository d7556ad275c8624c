#include "host/host_sink.h"

namespace qz {

namespace {
constexpr DISPID changedEvent = 5;
}

STDMETHODIMP HostSink::QueryInterface(REFIID iid, void** result) {
    // A host asks a sink for its event interface, which is IDispatch under another id.
    return Object::QueryInterface(iid == DIID__IVandraXEvents ? __uuidof(IDispatch) : iid, result);
}

STDMETHODIMP HostSink::GetTypeInfoCount(UINT* count) {
    if (!count) return E_POINTER;
    *count = 0;
    return S_OK;
}

STDMETHODIMP HostSink::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
    if (info) *info = nullptr;
    return E_NOTIMPL;
}

STDMETHODIMP HostSink::GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) { return DISP_E_UNKNOWNNAME; }

STDMETHODIMP HostSink::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) {
    const ComPtr<HostSink> alive = this;
    if (id == changedEvent && listener_) listener_->OnHostChanged();
    return S_OK;
}

}  // namespace qz
