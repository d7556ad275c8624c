// UTF-8 and wide texts; wide characters are UTF-16 on Windows and UTF-32 elsewhere.
#pragma once

#include <string>
#include <string_view>

namespace qz::sample {

/// Broken sequences become U+FFFD.
std::wstring FromUtf8(std::string_view text);

/// Lone surrogates become U+FFFD, so that the result is always well formed.
std::string ToUtf8(std::wstring_view text);

/// Equal without regard to the case of letters.
bool EqualIgnoringCase(std::wstring_view a, std::wstring_view b);

}  // namespace qz::sample
