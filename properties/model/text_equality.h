// How texts are compared without regard to case. The platform knows the letters of all scripts, so the
// comparison is handed in.
#pragma once

#include <string_view>

namespace qz {

using TextEquality = bool (*)(std::wstring_view, std::wstring_view);

}  // namespace qz
