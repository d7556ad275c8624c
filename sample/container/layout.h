// Where the docked panes, the splitters and the centre lie: sizes in, rectangles out. All lengths in pixels.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

namespace qz {

/// A rectangle of a window's client area.
struct Area {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    constexpr bool Empty() const { return width <= 0 || height <= 0; }
    constexpr bool Contains(int x, int y) const {
        return x >= left && x < left + width && y >= top && y < top + height;
    }
    friend constexpr bool operator==(const Area&, const Area&) = default;
};

enum class DockSide { Left, Right, Bottom };
inline constexpr std::array dockSides = {DockSide::Left, DockSide::Right, DockSide::Bottom};

/// One value for each side.
template <class T>
struct PerSide {
    std::array<T, dockSides.size()> values{};

    constexpr T& operator[](DockSide side) { return values[static_cast<size_t>(side)]; }
    constexpr const T& operator[](DockSide side) const { return values[static_cast<size_t>(side)]; }
};

/// What the layout starts from.
struct DockRequest {
    int width = 0;  ///< The room to share out.
    int height = 0;
    /// The side of each pane. The panes of one side share it in their order.
    std::span<const DockSide> panes;
    /// How large the part of each pane is, relative to the others of its side; empty: equal parts.
    std::span<const int> shares;
    /// Width of the left and right side, height of the bottom; shrunk when the centre would get too small.
    PerSide<int> extents;
    int splitter = 0;        ///< Width of the gap between a side and the centre.
    PerSide<bool> fixed;     ///< Sides of an extent that the user cannot change: they have no splitter.
    int smallestCentre = 0;  ///< Width and height that the centre keeps as long as there is room.
};

/// The bottom side runs along the whole width, the left and right ones stand on it.
struct DockLayout {
    Area centre;
    PerSide<Area> splitters;  ///< Empty for a side without panes or of fixed extent.
    std::vector<Area> panes;  ///< In the order of the request.
};

DockLayout Arrange(const DockRequest& request);

/// The extent a side gets when its splitter's middle is dragged to a point: at least `smallest`, and leaving
/// the centre its smallest size.
int ExtentAt(const DockRequest& request, DockSide side, int x, int y, int smallest);

}  // namespace qz
