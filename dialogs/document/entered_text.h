// What a field of text is written as.
#pragma once

#include <cstddef>
#include <string>

namespace qz {

/// What the field was filled from while it still shows what it showed then, so that nothing is lost that a
/// control cannot show; else what it shows now, at most so many characters.
inline std::wstring EnteredText(const std::wstring& now, const std::wstring& shown,
                                const std::wstring& source, std::size_t most) {
    return now == shown ? source : now.substr(0, most);
}

}  // namespace qz
