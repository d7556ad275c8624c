// An owner of a BSTR for calls into the host.
#pragma once

#include "com/error.h"

#include <string_view>
#include <utility>

namespace qz {

/// Owns a BSTR. Throws E_OUTOFMEMORY when the text cannot be allocated.
class Bstr {
  public:
    explicit Bstr(std::wstring_view text)
        : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {
        if (!text_) Throw(E_OUTOFMEMORY);
    }
    Bstr(Bstr&& other) noexcept : text_(std::exchange(other.text_, nullptr)) {}
    Bstr& operator=(Bstr&& other) noexcept {
        std::swap(text_, other.text_);
        return *this;
    }
    ~Bstr() { SysFreeString(text_); }

    BSTR Get() const noexcept { return text_; }
    /// The caller owns it from now on.
    BSTR Detach() noexcept { return std::exchange(text_, nullptr); }

  private:
    BSTR text_;
};

}  // namespace qz
