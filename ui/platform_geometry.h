// The platform's points, sizes and rectangles as our value types and back.
#pragma once

#include "ui/geometry.h"

#include <windows.h>

#include <bit>
#include <cstddef>

namespace qz {

static_assert(sizeof(Point) == sizeof(POINT) && offsetof(Point, y) == offsetof(POINT, y));
static_assert(sizeof(Size) == sizeof(SIZE) && offsetof(Size, height) == offsetof(SIZE, cy));
static_assert(sizeof(Rect) == sizeof(RECT) && offsetof(Rect, top) == offsetof(RECT, top) &&
              offsetof(Rect, right) == offsetof(RECT, right) &&
              offsetof(Rect, bottom) == offsetof(RECT, bottom));

constexpr POINT ToPlatform(const Point& point) noexcept { return std::bit_cast<POINT>(point); }
constexpr SIZE ToPlatform(const Size& size) noexcept { return std::bit_cast<SIZE>(size); }
constexpr RECT ToPlatform(const Rect& rect) noexcept { return std::bit_cast<RECT>(rect); }
constexpr Point FromPlatform(const POINT& point) noexcept { return std::bit_cast<Point>(point); }
constexpr Size FromPlatform(const SIZE& size) noexcept { return std::bit_cast<Size>(size); }
constexpr Rect FromPlatform(const RECT& rect) noexcept { return std::bit_cast<Rect>(rect); }

}  // namespace qz
