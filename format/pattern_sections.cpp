#include "format/pattern_sections.h"

#include <algorithm>
#include <cstddef>

namespace qz {

std::vector<PatternSign> ReadPattern(std::wstring_view pattern) {
    std::vector<PatternSign> signs;
    signs.reserve(pattern.size());
    bool inQuotes = false;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        if (pattern[i] == L'"') {
            inQuotes = !inQuotes;
        } else if (pattern[i] == L'\\' && !inQuotes) {
            if (++i < pattern.size()) signs.push_back({pattern[i], true});
        } else {
            signs.push_back({pattern[i], inQuotes});
        }
    }
    return signs;
}

std::vector<std::span<const PatternSign>> SplitSections(std::span<const PatternSign> signs) {
    std::vector<std::span<const PatternSign>> sections;
    for (;;) {
        const auto end = std::ranges::find_if(signs, [](PatternSign sign) { return sign.Is(L';'); });
        const auto length = static_cast<std::size_t>(end - signs.begin());
        sections.push_back(signs.first(length));
        if (end == signs.end()) return sections;
        signs = signs.subspan(length + 1);
    }
}

}  // namespace qz
