// Texts of others as labels.
#pragma once

#include <string>
#include <string_view>

namespace qz {

/// A text as a button or a menu shows it unchanged: no "&" in it marks a mnemonic.
inline std::wstring PlainLabel(std::wstring_view text) {
    std::wstring label;
    for (const wchar_t character : text) label.append(character == L'&' ? 2 : 1, character);
    return label;
}

}  // namespace qz
