// A comparison without regard to case, good for the letters of the tests.
#pragma once

#include <algorithm>
#include <cwctype>
#include <string_view>

namespace qz {

inline bool EqualIgnoringCase(std::wstring_view a, std::wstring_view b) {
    return std::ranges::equal(
        a, b, {}, [](wchar_t x) { return std::towlower(x); }, [](wchar_t x) { return std::towlower(x); });
}

}  // namespace qz
