// Lists of objects as attributes of the reference host hold them.
#pragma once

#include "com/safe_array.h"
#include "host/array_elements.h"

#include "generated/reference_host.h"

#include <comdef.h>

#include <span>
#include <string>

namespace qz {

inline _variant_t ObjectArray(std::span<const ComPtr<IDispatch>> objects) {
    VARIANT array{};
    array.parray = MakeObjectArray(objects).Detach();
    array.vt = VT_ARRAY | VT_DISPATCH;
    return {array, false};
}

/// Their names, each with a blank behind it; "?" for one that is gone.
inline std::wstring NamesIn(const _variant_t& list) {
    std::wstring names;
    for (const _variant_t& element : ElementsOf(list)) {
        ComPtr<IHostObject> object;
        BSTR name = nullptr;
        const bool told = element.vt == VT_DISPATCH &&
                          SUCCEEDED(element.pdispVal->QueryInterface(IID_PPV_ARGS(&object))) &&
                          SUCCEEDED(object->get_Name(&name));
        names += (told ? std::wstring(_bstr_t(name, false)) : L"?") + L" ";
    }
    return names;
}

}  // namespace qz
