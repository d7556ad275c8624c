// Where the properties dialog stands on the desktop. Screen pixels; the desktop is that of all monitors, so
// that its left and top may be negative. Windows may be anything, as the registry has them: nothing
// overflows.
#pragma once

#include "ui/geometry.h"

#include <cstdint>
#include <optional>

namespace qz {

/// The window with a width of 400 to 600 and a height of 300 to 600 pixels, as they are at 96 dpi, its left
/// and top edges kept if it fits inside the desktop, else moved inside as far as it fits: the left and top
/// edges always are.
Rect Clamp(const Rect& window, const Rect& desktop, int dpi = 96) noexcept;

/// The window with its middle on that of `around`, which may be smaller, but inside the desktop as far as it
/// fits; its size within the same limits.
Rect Centred(const Rect& window, const Rect& around, const Rect& desktop, int dpi = 96) noexcept;

/// The rectangle saved, when all four of its edges were.
std::optional<Rect> SavedPlacement(std::optional<std::int32_t> left, std::optional<std::int32_t> right,
                                   std::optional<std::int32_t> top,
                                   std::optional<std::int32_t> bottom) noexcept;

}  // namespace qz
