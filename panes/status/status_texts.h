// What the fields of the status bar say.
#pragma once

#include "host/page_size.h"
#include "host/units.h"
#include "ui/geometry.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace qz {

/// "(left,top:right,bottom) w:width, h:height" of a rectangle in twips, without decimals. In inches each edge
/// is a whole number of them, fractions dropped.
std::wstring ObjectCoordsText(const Rect& twips, LengthUnit unit);

/// "label: width x height", two decimals at most.
std::wstring PageSizeText(std::wstring_view label, const PageSize& twips, LengthUnit unit);

/// "page / count".
std::wstring PagePositionText(std::int32_t page, std::int32_t count);

/// "percent%".
std::wstring ZoomText(std::int32_t percent);

}  // namespace qz
