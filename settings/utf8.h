// Wide text to UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace qz {

/// Appends `text`, UTF-16 or, where wide characters have 32 bits, UTF-32. What is no character (half of a
/// surrogate pair, a number beyond Unicode) becomes U+FFFD.
void AppendUtf8(std::wstring_view text, std::string& bytes);

}  // namespace qz
