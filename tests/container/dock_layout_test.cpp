#include "sample/container/layout.h"

#include <gtest/gtest.h>

using namespace qz;
using enum DockSide;

namespace {

DockRequest Request(std::span<const DockSide> panes) {
    DockRequest request;
    request.width = 1000;
    request.height = 600;
    request.panes = panes;
    request.extents[Left] = 200;
    request.extents[Right] = 250;
    request.extents[Bottom] = 100;
    request.splitter = 5;
    request.smallestCentre = 150;
    return request;
}

long long AreaOf(const Area& area) { return area.Empty() ? 0 : 1LL * area.width * area.height; }

/// Everything together covers the client area exactly when nothing overlaps and nothing sticks out.
void ExpectTiled(const DockRequest& request, const DockLayout& layout) {
    std::vector<Area> all = layout.panes;
    all.push_back(layout.centre);
    all.insert(all.end(), layout.splitters.values.begin(), layout.splitters.values.end());
    long long sum = 0;
    for (const Area& area : all) {
        if (area.Empty()) continue;
        EXPECT_GE(area.left, 0);
        EXPECT_GE(area.top, 0);
        EXPECT_LE(area.left + area.width, request.width);
        EXPECT_LE(area.top + area.height, request.height);
        sum += AreaOf(area);
    }
    EXPECT_EQ(sum, 1LL * request.width * request.height);
}

}  // namespace

TEST(DockLayout, AFixedSideHasNoSplitter) {
    const DockSide panes[] = {Left, Bottom};
    DockRequest request = Request(panes);
    request.fixed[Bottom] = true;
    const DockLayout layout = Arrange(request);
    EXPECT_EQ(layout.panes[1], (Area{0, 500, 1000, 100}));
    EXPECT_TRUE(layout.splitters[Bottom].Empty());
    ExpectTiled(request, layout);
}

TEST(DockLayout, SidesStandOnTheBottom) {
    const DockSide panes[] = {Right, Left, Bottom};
    const DockRequest request = Request(panes);
    const DockLayout layout = Arrange(request);
    EXPECT_EQ(layout.panes[0], (Area{750, 0, 250, 495}));
    EXPECT_EQ(layout.panes[1], (Area{0, 0, 200, 495}));
    EXPECT_EQ(layout.panes[2], (Area{0, 500, 1000, 100}));
    EXPECT_EQ(layout.centre, (Area{205, 0, 540, 495}));
    EXPECT_EQ(layout.splitters[Right], (Area{745, 0, 5, 495}));
    ExpectTiled(request, layout);
}

TEST(DockLayout, PanesOfOneSideShareItWithoutGaps) {
    const DockSide panes[] = {Left, Left, Left, Bottom, Bottom};
    DockRequest request = Request(panes);
    request.width = 1001;
    request.height = 601;
    ExpectTiled(request, Arrange(request));
}

TEST(DockLayout, TooLittleRoomShrinksTheSidesNotTheCentre) {
    const DockSide panes[] = {Left, Right, Bottom};
    DockRequest request = Request(panes);
    request.width = 340;
    request.height = 200;
    const DockLayout layout = Arrange(request);
    EXPECT_EQ(layout.centre.width, 150);
    EXPECT_EQ(layout.centre.height, 150);
    EXPECT_LT(layout.panes[0].width, layout.panes[1].width) << "in proportion";
    ExpectTiled(request, layout);
}

TEST(DockLayout, NoRoomAtAllGivesNoNegativeSizes) {
    const DockSide panes[] = {Left, Right, Bottom};
    DockRequest request = Request(panes);
    request.width = 0;
    request.height = 0;
    const DockLayout layout = Arrange(request);
    for (const Area& pane : layout.panes) {
        EXPECT_GE(pane.width, 0);
        EXPECT_GE(pane.height, 0);
    }
    EXPECT_GE(layout.centre.width, 0);
    EXPECT_GE(layout.centre.height, 0);
}

TEST(DockLayout, DraggedSplitterFollowsThePointerWithinLimits) {
    const DockSide panes[] = {Left, Right, Bottom};
    for (const DockSide side : dockSides) {
        DockRequest request = Request(panes);
        request.extents[side] = ExtentAt(request, side, 420, 300, 80);
        const Area splitter = Arrange(request).splitters[side];
        EXPECT_TRUE(splitter.Contains(side == Bottom ? 0 : 420, side == Bottom ? 300 : 0));
    }
    DockRequest request = Request(panes);
    const int smallest = ExtentAt(request, Left, -50, 0, 80);
    EXPECT_EQ(smallest, 80);
    request.extents[Left] = ExtentAt(request, Left, 5000, 0, 80);
    EXPECT_EQ(Arrange(request).centre.width, request.smallestCentre);
}
