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

/// Where `before` of `all` shares of a length end; parts so made fill it without a gap.
int PartStart(int length, int before, int all) {
    return static_cast<int>(static_cast<long long>(length) * before / all);
}

int ShareOf(const DockRequest& request, size_t pane) {
    return request.shares.empty() ? 1 : request.shares[pane];
}

/// The shares of a side's panes, those up to `end` only.
int SharesUpTo(const DockRequest& request, DockSide side, size_t end) {
    int shares = 0;
    for (size_t pane = 0; pane < end; ++pane) {
        if (request.panes[pane] == side) shares += ShareOf(request, pane);
    }
    return shares;
}

Area PlaceOf(const DockRequest& request, const Area& dock, size_t pane) {
    const DockSide side = request.panes[pane];
    const bool across = side == DockSide::Bottom;
    const int length = across ? dock.width : dock.height;
    const int all = SharesUpTo(request, side, request.panes.size());
    const int start = PartStart(length, SharesUpTo(request, side, pane), all);
    const int part = PartStart(length, SharesUpTo(request, side, pane + 1), all) - start;
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

    for (size_t pane = 0; pane < request.panes.size(); ++pane) {
        layout.panes.push_back(PlaceOf(request, docks[request.panes[pane]], pane));
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
