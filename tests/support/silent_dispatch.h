// An automation interface that knows no names, to be given what a test needs of it.
#pragma once

#include "com/object.h"

namespace qz {

/// For the interface list of an `Object`.
struct SilentDispatch : IDispatch {
    static void* FindInterface(SilentDispatch* self, REFIID iid) noexcept {
        return iid == IID_IDispatch ? static_cast<IDispatch*>(self) : nullptr;
    }
    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        return E_NOTIMPL;
    }
};

}  // namespace qz
