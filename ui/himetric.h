// Extents in HIMETRIC (1/100 mm), the unit of OLE, and pixels.
#pragma once

#include "ui/geometry.h"

namespace qz {

inline constexpr std::int64_t himetricPerInch = 2540;

namespace detail {
constexpr std::int32_t Scale(std::int32_t value, std::int64_t times, std::int64_t by) noexcept {
    const std::int64_t product = value * times;
    const std::int64_t rounded = (product + (product < 0 ? -by : by) / 2) / by;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(rounded, INT32_MIN, INT32_MAX));
}
}  // namespace detail

/// Rounded to the nearest; `dpi` is the pixels per inch in each direction.
constexpr Size HimetricToPixels(Size himetric, Size dpi) noexcept {
    return {detail::Scale(himetric.width, dpi.width, himetricPerInch),
            detail::Scale(himetric.height, dpi.height, himetricPerInch)};
}

constexpr Size PixelsToHimetric(Size pixels, Size dpi) noexcept {
    return {detail::Scale(pixels.width, himetricPerInch, dpi.width),
            detail::Scale(pixels.height, himetricPerInch, dpi.height)};
}

}  // namespace qz
