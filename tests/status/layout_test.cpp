// Which fields of the status bar are shown, and where.
#include "panes/status/status_layout.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

namespace qz {
namespace {

StatusLayoutRequest Request(std::int32_t width) {
    StatusLayoutRequest request;
    request.bar = {width, 24};
    request.widths = {{100, 150, 300, 20, 20, 80, 20, 20, 60}};
    request.smallestName = 50;
    request.fieldHeight = 18;
    request.gap = 4;
    return request;
}

std::set<StatusField> Shown(const StatusLayoutRequest& request) {
    const PerField<Rect> places = ArrangeStatusFields(request);
    std::set<StatusField> shown;
    for (const StatusField field : statusFields) {
        if (!places[field].Empty()) shown.insert(field);
    }
    return shown;
}

/// Within the bar, from left to right, never one over another.
void ExpectOrder(const StatusLayoutRequest& request) {
    const PerField<Rect> places = ArrangeStatusFields(request);
    std::int32_t free = 0;
    for (const StatusField field : statusFields) {
        const Rect& place = places[field];
        if (place.Empty()) continue;
        EXPECT_GE(place.left, free);
        EXPECT_GE(place.top, 0);
        EXPECT_LE(place.bottom, request.bar.height);
        free = place.right;
    }
    EXPECT_LE(free, std::max(0, request.bar.width)) << "at width " << request.bar.width;
}

TEST(StatusLayout, EverythingWithRoomToSpare) {
    using enum StatusField;
    const PerField<Rect> places = ArrangeStatusFields(Request(1000));
    EXPECT_EQ(places[PageSize], (Rect{4, 3, 104, 21}));
    EXPECT_EQ(places[ObjectCoords], (Rect{108, 3, 258, 21}));
    EXPECT_EQ(places[ObjectName], (Rect{262, 3, 562, 21}));
    EXPECT_EQ(places[PagePosition], (Rect{804, 3, 884, 21}));
    EXPECT_EQ(places[Zoom], (Rect{936, 3, 996, 21}));
}

TEST(StatusLayout, NarrowerBarsLoseTheLeastImportantFirst) {
    using enum StatusField;
    const StatusField order[] = {ObjectName, ObjectCoords, PageSize, LastPage,    FirstPage,
                                 NextPage,   PreviousPage, Zoom,     PagePosition};
    std::set<StatusField> expected(statusFields.begin(), statusFields.end());
    const StatusField* next = order;
    for (std::int32_t width = 1000; width >= -5; --width) {
        const std::set<StatusField> shown = Shown(Request(width));
        if (shown != expected) {
            ASSERT_NE(next, std::end(order));
            expected.erase(*next++);
            EXPECT_EQ(shown, expected) << "at width " << width;
        }
        ExpectOrder(Request(width));
    }
    EXPECT_TRUE(expected.empty());
}

TEST(StatusLayout, TheNameIsCutBeforeItIsDropped) {
    using enum StatusField;
    StatusLayoutRequest request = Request(600);
    const PerField<Rect> places = ArrangeStatusFields(request);
    EXPECT_GE(places[ObjectName].Width(), 50);
    EXPECT_LT(places[ObjectName].Width(), 300);
    EXPECT_EQ(places[ObjectName].right + request.gap, places[FirstPage].left);
    request.widths[ObjectName] = 30;
    EXPECT_EQ(ArrangeStatusFields(request)[ObjectName].Width(), 30)
        << "a short name needs no more than it needs";
}

TEST(StatusLayout, HiddenFieldsTakeNoRoom) {
    using enum StatusField;
    StatusLayoutRequest request = Request(1000);
    request.widths[PageSize] = 0;
    request.widths[ObjectCoords] = -7;
    const PerField<Rect> places = ArrangeStatusFields(request);
    EXPECT_TRUE(places[PageSize].Empty());
    EXPECT_EQ(places[ObjectName].left, request.gap);
}

TEST(StatusLayout, AnySizesAtAll) {
    using enum StatusField;
    std::mt19937 random(20);
    std::uniform_int_distribution<std::int32_t> bar(-10, 1200);
    std::uniform_int_distribution<std::int32_t> width(-20, 400);
    for (int i = 0; i < 5000; ++i) {
        StatusLayoutRequest request = Request(bar(random));
        request.bar.height = bar(random) / 20;
        for (std::int32_t& wanted : request.widths.values) wanted = width(random);
        request.smallestName = width(random);
        ExpectOrder(request);
        if (HasFailure()) return;
    }
    StatusLayoutRequest huge = Request(2'000'000'000);
    huge.widths.values.fill(2'000'000'000);
    ExpectOrder(huge);
}

}  // namespace
}  // namespace qz
