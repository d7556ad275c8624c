// IDispatch over the module's type library for a dual interface.
#pragma once

#include "com/type_info.h"

namespace qz {

/// Base of an object with the dual interface `I`: answers `I` and IDispatch.
template <class I>
class Dispatch : public I {
  public:
    static void* FindInterface(Dispatch* self, REFIID iid) noexcept {
        const bool known = iid == __uuidof(I) || iid == __uuidof(IDispatch);
        return known ? static_cast<I*>(self) : nullptr;
    }

    STDMETHODIMP GetTypeInfoCount(UINT* count) override {
        if (!count) return E_POINTER;
        *count = 1;
        return S_OK;
    }

    STDMETHODIMP GetTypeInfo(UINT index, LCID, ITypeInfo** info) override {
        if (!info) return E_POINTER;
        *info = nullptr;
        if (index != 0) return DISP_E_BADINDEX;
        return Guard(__uuidof(I), [&] { ComPtr<ITypeInfo>(Info()).CopyTo(info); });
    }

    STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
        if (iid != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
        if (!names || !ids) return E_POINTER;
        return Guard(__uuidof(I), [&] { return Info()->GetIDsOfNames(names, count, ids); });
    }

    STDMETHODIMP Invoke(DISPID id, REFIID iid, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                        EXCEPINFO* exception, UINT* badArgument) override {
        if (iid != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
        if (!parameters) return E_POINTER;
        try {
            // Script languages put objects by reference; no member of ours tells that from a plain put.
            if (flags & DISPATCH_PROPERTYPUTREF) flags = DISPATCH_PROPERTYPUT;
            // The members set IErrorInfo themselves, and the type info carries it into `exception`; a guard
            // here would overwrite it.
            const ComPtr<I> alive = this;
            const HRESULT answer =
                Info()->Invoke(static_cast<I*>(this), id, flags, parameters, result, exception, badArgument);
            // Script languages have no unsigned numbers: a colour reaches them as a long of the same bits.
            if (SUCCEEDED(answer) && result && result->vt == VT_UI4) result->vt = VT_I4;
            return answer;
        } catch (...) {
            return TurnException(__uuidof(I));
        }
    }

  protected:
    /// Uses a description loaded before: for families of many small objects, as loading one takes long.
    void ShareTypeInfo(ComPtr<ITypeInfo> info) noexcept { info_ = std::move(info); }

  private:
    ITypeInfo* Info() {
        if (!info_) info_ = LoadTypeInfo(__uuidof(I));
        return info_.Get();
    }

    ComPtr<ITypeInfo> info_;
};

}  // namespace qz
