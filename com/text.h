// Texts as they come in and go out. A null BSTR stands for the empty text.
#pragma once

#include "com/error.h"

#include <cwchar>
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

/// A new text in task memory that the caller owns, null-terminated. Throws E_OUTOFMEMORY.
inline LPOLESTR MakeTaskText(std::wstring_view text) {
    auto* const made = static_cast<LPOLESTR>(CoTaskMemAlloc((text.size() + 1) * sizeof(wchar_t)));
    if (!made) Throw(E_OUTOFMEMORY);
    std::wmemcpy(made, text.data(), text.size());
    made[text.size()] = L'\0';
    return made;
}

}  // namespace qz
