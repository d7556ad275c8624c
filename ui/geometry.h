// Points, sizes and rectangles as plain values, so that layout code needs no platform header. Their layout
// equals that of the platform's own; see ui/platform_geometry.h.
#pragma once

#include <algorithm>
#include <cstdint>

namespace qz {

/// A length given in pixels at 96 dpi, at another resolution.
constexpr std::int32_t Scaled(std::int32_t pixelsAt96, std::int32_t dpi) noexcept {
    return pixelsAt96 * dpi / 96;
}

struct Point {
    std::int32_t x = 0;
    std::int32_t y = 0;

    friend constexpr bool operator==(const Point&, const Point&) = default;
};

struct Size {
    std::int32_t width = 0;
    std::int32_t height = 0;

    friend constexpr bool operator==(const Size&, const Size&) = default;
};

/// A rectangle; right and bottom are the first column and row outside.
struct Rect {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;

    static constexpr Rect At(Point origin, Size size) noexcept {
        return {origin.x, origin.y, origin.x + size.width, origin.y + size.height};
    }

    constexpr std::int32_t Width() const noexcept { return right - left; }
    constexpr std::int32_t Height() const noexcept { return bottom - top; }
    constexpr Point Origin() const noexcept { return {left, top}; }
    constexpr Size Extent() const noexcept { return {Width(), Height()}; }
    constexpr bool Empty() const noexcept { return right <= left || bottom <= top; }

    constexpr bool Contains(Point point) const noexcept {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }
    /// The rectangle moved by dx, dy.
    constexpr Rect Moved(std::int32_t dx, std::int32_t dy) const noexcept {
        return {left + dx, top + dy, right + dx, bottom + dy};
    }
    /// The rectangle grown on every side (shrunk when negative).
    constexpr Rect Grown(std::int32_t by) const noexcept {
        return {left - by, top - by, right + by, bottom + by};
    }
    constexpr bool Intersects(const Rect& other) const noexcept {
        return std::max(left, other.left) < std::min(right, other.right) &&
               std::max(top, other.top) < std::min(bottom, other.bottom);
    }
    /// The common part; an all-zero rectangle when there is none.
    constexpr Rect Intersected(const Rect& other) const noexcept {
        if (!Intersects(other)) return {};
        return {std::max(left, other.left), std::max(top, other.top), std::min(right, other.right),
                std::min(bottom, other.bottom)};
    }

    friend constexpr bool operator==(const Rect&, const Rect&) = default;
};

}  // namespace qz
