// The texts that name host objects and their attributes.
#pragma once

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace qz {

inline constexpr wchar_t documentPath[] = L"Document";
inline constexpr wchar_t informationPath[] = L"DocInfo";

/// "Pages[n]" for a 1-based page number, in a buffer of its own: no allocation.
class PagePath {
  public:
    explicit PagePath(std::int32_t page) noexcept {
        constexpr std::string_view prefix = "Pages[";
        char digits[16];
        const char* const end = std::to_chars(digits, digits + sizeof digits, page).ptr;
        wchar_t* out = std::copy(prefix.begin(), prefix.end(), text_);
        out = std::copy(static_cast<const char*>(digits), end, out);
        *out++ = L']';
        length_ = static_cast<std::size_t>(out - text_);
    }

    operator std::wstring_view() const noexcept { return {text_, length_}; }

  private:
    wchar_t text_[24];
    std::size_t length_;
};

/// "Layers[name]".
inline std::wstring LayerPath(std::wstring_view name) { return L"Layers[" + std::wstring(name) + L"]"; }

}  // namespace qz
