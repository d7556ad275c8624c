// The kinds of files that a picture can be chosen from.
#pragma once

#include <string>
#include <string_view>

namespace qz {

/// The filter of a file chooser: the label with the list of patterns in brackets, then the list, each ended
/// with a null, and a further null at the end, which is one of the string's characters.
std::wstring PictureFilter(std::wstring_view label);

}  // namespace qz
