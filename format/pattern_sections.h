// What all format patterns have in common: quoted text, escaped signs and sections.
#pragma once

#include <span>
#include <string_view>
#include <vector>

namespace qz {

/// One sign of a pattern, and whether it was quoted or escaped and so stands for itself.
struct PatternSign {
    wchar_t sign;
    bool quoted;

    /// Whether this is `wanted` as a sign of the pattern language.
    bool Is(wchar_t wanted) const noexcept { return !quoted && sign == wanted; }
};

/// Resolves "..." and backslashes. An open quote reaches to the end; a backslash at the end quotes nothing.
std::vector<PatternSign> ReadPattern(std::wstring_view pattern);

/// The parts between semicolons, at least one; they point into `signs`.
std::vector<std::span<const PatternSign>> SplitSections(std::span<const PatternSign> signs);

}  // namespace qz
