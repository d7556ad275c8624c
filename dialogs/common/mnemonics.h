// The underlined letters of a dialog's labels.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qz {

/// The texts, none of which has a mnemonic yet, each with its own one ('&' before the letter), and none of
/// the letters `taken` (capitals). Letters that begin a word are preferred. A text without a free letter gets
/// one behind it, "(&X)", as long as there are letters and digits left.
std::vector<std::wstring> WithMnemonics(const std::vector<std::wstring>& texts, std::wstring_view taken = {});

/// The mnemonic of a text as a capital; 0 when it has none.
wchar_t MnemonicOf(std::wstring_view text) noexcept;

}  // namespace qz
