// Lengths: the host measures in twips, 1440 to the inch; users see twips, millimetres or inches.
#pragma once

#include <cmath>
#include <cstdint>

namespace qz {

inline constexpr double twipsPerInch = 1440.0;
inline constexpr double millimetresPerInch = 25.4;

/// The codes are those of the status bar's unit property.
enum class LengthUnit : std::int32_t { Twips = 0, Millimetres = 1, Inches = 2 };

/// A length in twips expressed in `unit`. An unknown unit leaves twips.
inline double FromTwips(double twips, LengthUnit unit) noexcept {
    switch (unit) {
        case LengthUnit::Millimetres:
            return twips / twipsPerInch * millimetresPerInch;
        case LengthUnit::Inches:
            return twips / twipsPerInch;
        default:
            return twips;
    }
}

/// Rounded to two decimals, halves away from zero, as lengths are shown.
inline double RoundToShow(double value) noexcept { return std::round(value * 100.0) / 100.0; }

/// Whole millimetres to twips, truncated toward zero; 64 bits, since any 32-bit input may come.
constexpr std::int64_t TwipsFromMillimetres(std::int64_t millimetres) noexcept {
    return millimetres * 14400 / 254;
}

}  // namespace qz
