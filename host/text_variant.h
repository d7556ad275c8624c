// Texts as arguments and values for the host.
#pragma once

#include "host/bstr.h"

#include <comdef.h>

#include <string_view>

namespace qz {

/// Throws E_OUTOFMEMORY when the text cannot be allocated.
inline _variant_t TextVariant(std::wstring_view text) { return _variant_t(Bstr(text).Get()); }

}  // namespace qz
