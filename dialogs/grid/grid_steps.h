// The step of the editing grid as the user enters it.
#pragma once

#include <cstdint>
#include <string_view>

namespace qz {

/// The codes of the unit list.
enum class GridUnit : long { Twips = 1, Millimeters = 2, Inches = 3 };

/// The number that the text begins with: its leading digits; 0 when there are none, the largest of 32 bits
/// when they say more.
std::int32_t StepsOf(std::wstring_view text) noexcept;

/// The step in twips, fractions dropped; the largest of 32 bits when it is more. 0 for a code that is no
/// unit.
std::int32_t StepsInTwips(std::int32_t steps, GridUnit unit) noexcept;

}  // namespace qz
