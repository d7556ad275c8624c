#include "properties/model/window_placement.h"

#include <algorithm>

namespace qz {

namespace {

/// One direction of a rectangle, wide enough that the sums and differences of any edges fit.
struct Edges {
    std::int64_t low;
    std::int64_t high;

    std::int64_t Extent() const noexcept { return high - low; }
};

struct Limits {
    std::int64_t least;
    std::int64_t most;
};

constexpr Limits widths{400, 600};
constexpr Limits heights{300, 600};

struct Axes {
    Edges across;
    Edges down;
};

Axes AxesOf(const Rect& rect) noexcept { return {{rect.left, rect.right}, {rect.top, rect.bottom}}; }

Rect RectOf(const Axes& axes) noexcept {
    return {static_cast<std::int32_t>(axes.across.low), static_cast<std::int32_t>(axes.down.low),
            static_cast<std::int32_t>(axes.across.high), static_cast<std::int32_t>(axes.down.high)};
}

Edges Limited(const Edges& edges, const Limits& limits, int dpi) noexcept {
    const std::int64_t extent = std::clamp(edges.Extent(), limits.least * dpi / 96, limits.most * dpi / 96);
    return {edges.low, edges.low + extent};
}

Edges Inside(const Edges& edges, const Edges& desktop) noexcept {
    const std::int64_t low = std::max(std::min(edges.low, desktop.high - edges.Extent()), desktop.low);
    return {low, low + edges.Extent()};
}

/// Around the same middle, beyond both ends of what is smaller.
Edges Middle(const Edges& edges, const Edges& around) noexcept {
    const std::int64_t low = around.low + (around.Extent() - edges.Extent()) / 2;
    return {low, low + edges.Extent()};
}

Axes LimitedAxes(const Rect& window, int dpi) noexcept {
    const Axes axes = AxesOf(window);
    return {Limited(axes.across, widths, dpi), Limited(axes.down, heights, dpi)};
}

}  // namespace

Rect Clamp(const Rect& window, const Rect& desktop, int dpi) noexcept {
    const Axes limited = LimitedAxes(window, dpi);
    const Axes whole = AxesOf(desktop);
    return RectOf({Inside(limited.across, whole.across), Inside(limited.down, whole.down)});
}

Rect Centred(const Rect& window, const Rect& around, const Rect& desktop, int dpi) noexcept {
    const Axes limited = LimitedAxes(window, dpi);
    const Axes other = AxesOf(around);
    const Axes whole = AxesOf(desktop);
    return RectOf({Inside(Middle(limited.across, other.across), whole.across),
                   Inside(Middle(limited.down, other.down), whole.down)});
}

std::optional<Rect> SavedPlacement(std::optional<std::int32_t> left, std::optional<std::int32_t> right,
                                   std::optional<std::int32_t> top,
                                   std::optional<std::int32_t> bottom) noexcept {
    if (!left || !right || !top || !bottom) return std::nullopt;
    return Rect{*left, *top, *right, *bottom};
}

}  // namespace qz
