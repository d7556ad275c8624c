// BSTRs as they come in and go out; null stands for the empty text.
#pragma once

#include "com/error.h"

#include <string_view>

namespace qz {

/// The characters of a text, as long as it lives.
inline std::wstring_view TextView(BSTR text) noexcept { return {text ? text : L"", SysStringLen(text)}; }

/// A new BSTR that the caller owns. Throws E_OUTOFMEMORY.
inline BSTR MakeText(std::wstring_view text) {
    const BSTR made = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    if (!made) Throw(E_OUTOFMEMORY);
    return made;
}

}  // namespace qz
