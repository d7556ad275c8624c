// Texts as they come in and go out. A null BSTR stands for the empty text.
#pragma once

#include "com/error.h"

#include <comdef.h>

#include <cwchar>
#include <string_view>
#include <utility>

namespace qz {

/// The characters of a text, as long as it lives.
inline std::wstring_view TextView(BSTR text) noexcept { return {text ? text : L"", SysStringLen(text)}; }

/// A new BSTR that the caller owns. It may hold nulls. Throws E_OUTOFMEMORY.
inline BSTR MakeText(std::wstring_view text) {
    const BSTR made = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    if (!made) Throw(E_OUTOFMEMORY);
    return made;
}

/// Owns a BSTR that a call takes as its argument. Throws E_OUTOFMEMORY when it cannot be made.
class Bstr {
  public:
    explicit Bstr(std::wstring_view text) : text_(MakeText(text)) {}
    Bstr(Bstr&& other) noexcept : text_(std::exchange(other.text_, nullptr)) {}
    Bstr& operator=(Bstr&& other) noexcept {
        std::swap(text_, other.text_);
        return *this;
    }
    ~Bstr() { SysFreeString(text_); }

    BSTR Get() const noexcept { return text_; }

  private:
    BSTR text_;
};

/// A text as an argument or value of a late-bound call. Throws E_OUTOFMEMORY.
inline _variant_t TextVariant(std::wstring_view text) {
    VARIANT value{};
    value.bstrVal = MakeText(text);
    value.vt = VT_BSTR;
    return {value, false};
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
