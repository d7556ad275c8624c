// The text of an element as it is taken from a file.
#pragma once

#include <cstddef>
#include <string_view>

namespace qz {

/// What of a text between two tags is the element's value: line breaks at both ends are not, nor is the
/// indent that the writer puts between the value and the tag behind it, which is `depth` blanks: the
/// element's own depth before its end tag, one more before a child; the root's is 0. The indent is only
/// looked for behind a text that the writer may have written, one that begins with a line feed.
std::wstring_view ValueOfText(std::wstring_view text, std::size_t depth) noexcept;

/// Whether the text can be written as an element's value, nothing escaped, and the document still be read: it
/// holds no "<", no "&", no "]]>" and only characters that XML has. (Line breaks at its ends do not come
/// back.)
bool ReadsBack(std::wstring_view text) noexcept;

}  // namespace qz
