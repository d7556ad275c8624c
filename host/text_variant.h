// Texts as arguments and values for the host.
#pragma once

#include "host/bstr.h"

#include <comdef.h>

#include <string_view>

namespace qz {

/// The text may hold nulls. Throws E_OUTOFMEMORY when it cannot be allocated.
inline _variant_t TextVariant(std::wstring_view text) {
    VARIANT value{};
    value.vt = VT_BSTR;
    value.bstrVal = Bstr(text).Detach();
    return {value, false};
}

}  // namespace qz
