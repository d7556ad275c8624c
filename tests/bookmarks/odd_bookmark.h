// A bookmark of a host that is not what it should be.
#pragma once

#include "com/object.h"
#include "tests/support/silent_dispatch.h"

#include <comdef.h>

#include <functional>
#include <string>

namespace qz {

/// A bookmark that answers whatever it is told to.
class OddBookmark final : public Object<OddBookmark, SilentDispatch> {
  public:
    _variant_t count{0L};
    _variant_t title{L"odd"};
    std::function<_variant_t(long)> item = [](long) { return _variant_t(); };
    std::function<void()> onCount = [] {};

    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override {
        const std::wstring name = names[0];
        *ids = name == L"Count" ? 1 : name == L"Item" ? 0 : name == L"Title" ? 2 : DISPID_UNKNOWN;
        return *ids == DISPID_UNKNOWN ? DISP_E_UNKNOWNNAME : S_OK;
    }
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT* result, EXCEPINFO*,
                        UINT*) override {
        if (id == 1) {
            const std::function<void()> action = onCount;
            action();
        }
        if (id == 0 && parameters->cArgs != 1) return DISP_E_BADPARAMCOUNT;
        _variant_t answer = id == 1 ? count : id == 2 ? title : item(parameters->rgvarg[0].lVal);
        return VariantCopy(result, &answer);
    }
};

}  // namespace qz
