// The vertical scroll position and its limits.
#pragma once

#include <algorithm>
#include <cstdint>

namespace qz {

/// What limits the scroll position: the content's and the client area's height in pixels.
struct ScrollLimits {
    std::int32_t contentHeight;
    std::int32_t clientHeight;

    /// Every new position passes here: the upper limit first, then the lower.
    constexpr std::int32_t Clamp(std::int64_t position) const noexcept {
        const std::int64_t highest = std::int64_t{contentHeight} - clientHeight + 16;
        return static_cast<std::int32_t>(std::max<std::int64_t>(std::min(position, highest), 0));
    }
};

inline constexpr std::int32_t scrollLine = 50;  ///< pixels that a line command scrolls

/// The position that brings the span from `top` over `height` pixels and the gap below it into view, changing
/// `position` as little as needed; a span above the view ends up at its top.
constexpr std::int32_t ScrolledIntoView(std::int32_t position, std::int32_t top, std::int32_t height,
                                        const ScrollLimits& limits) noexcept {
    const std::int64_t bottom = std::int64_t{top} + height + 10;
    if (top < position) return limits.Clamp(top);
    if (bottom > std::int64_t{position} + limits.clientHeight)
        return limits.Clamp(bottom - limits.clientHeight);
    return limits.Clamp(position);
}

}  // namespace qz
