#include "sample/container/layout.h"

#include <algorithm>

namespace qz {

namespace {

bool InUse(const DockRequest& request, DockSide side) {
    return std::ranges::find(request.panes, side) != request.panes.end();
}

/// What a side takes away from the centre, without and with its splitter.
int Wanted(const DockRequest& request, DockSide side) {
    return InUse(request, side) ? std::max(0, request.extents[side]) : 0;
}

int Gap(const DockRequest& request, DockSide side) {
    return InUse(request, side) && !request.fixed[side] ? request.splitter : 0;
}

/// The extents that fit: the bottom is cut to the room there is, left and right shrink in proportion.
PerSide<int> Fit(const DockRequest& request) {
    using enum DockSide;
    PerSide<int> extents;
    const int tallest = request.height - request.smallestCentre - Gap(request, Bottom);
    extents[Bottom] = std::clamp(Wanted(request, Bottom), 0, std::max(0, tallest));

    const int left = Wanted(request, Left);
    const int right = Wanted(request, Right);
    const int widest = request.width - request.smallestCentre - Gap(request, Left) - Gap(request, Right);
    const int room = std::clamp(left + right, 0, std::max(0, widest));
    const bool fits = room == left + right;
    extents[Left] = fits ? left : static_cast<int>(static_cast<long long>(room) * left / (left + right));
    extents[Right] = room - extents[Left];
    return extents;
}

/// Part `index` of `count` equal parts of a length; the parts fill it without a gap.
int PartStart(int length, size_t index, size_t count) {
    return static_cast<int>(static_cast<long long>(length) * static_cast<long long>(index) /
                            static_cast<long long>(count));
}

Area Share(const Area& dock, DockSide side, size_t index, size_t count) {
    const bool across = side == DockSide::Bottom;
    const int length = across ? dock.width : dock.height;
    const int start = PartStart(length, index, count);
    const int part = PartStart(length, index + 1, count) - start;
    return across ? Area{dock.left + start, dock.top, part, dock.height}
                  : Area{dock.left, dock.top + start, dock.width, part};
}

}  // namespace

DockLayout Arrange(const DockRequest& request) {
    using enum DockSide;
    const PerSide<int> extents = Fit(request);
    const int bottomGap = Gap(request, Bottom);
    const int upper = std::max(0, request.height - extents[Bottom] - bottomGap);
    const int leftGap = Gap(request, Left);
    const int rightGap = Gap(request, Right);
    const int rightStart = request.width - extents[Right];

    PerSide<Area> docks;
    docks[Left] = {0, 0, extents[Left], upper};
    docks[Right] = {rightStart, 0, extents[Right], upper};
    docks[Bottom] = {0, upper + bottomGap, request.width, extents[Bottom]};

    DockLayout layout;
    layout.splitters[Left] = {extents[Left], 0, leftGap, upper};
    layout.splitters[Right] = {rightStart - rightGap, 0, rightGap, upper};
    layout.splitters[Bottom] = {0, upper, request.width, bottomGap};
    const int centreStart = extents[Left] + leftGap;
    layout.centre = {centreStart, 0, std::max(0, rightStart - rightGap - centreStart), upper};

    PerSide<size_t> placed;
    for (const DockSide side : request.panes) {
        const auto count = static_cast<size_t>(std::ranges::count(request.panes, side));
        layout.panes.push_back(Share(docks[side], side, placed[side]++, count));
    }
    return layout;
}

int ExtentAt(const DockRequest& request, DockSide side, int x, int y, int smallest) {
    using enum DockSide;
    const int half = request.splitter / 2;
    if (side == Bottom) {
        const int largest = request.height - request.smallestCentre - request.splitter;
        return std::clamp(request.height - y - half, smallest, std::max(smallest, largest));
    }
    const DockSide other = side == Left ? Right : Left;
    const int taken = Wanted(request, other) + Gap(request, other);
    const int largest = request.width - taken - request.smallestCentre - request.splitter;
    const int wanted = side == Left ? x - half : request.width - x - half;
    return std::clamp(wanted, smallest, std::max(smallest, largest));
}

}  // namespace qz
