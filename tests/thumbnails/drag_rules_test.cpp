#include "panes/thumbnails/drag_rules.h"

#include <gtest/gtest.h>

#include <vector>

namespace qz {
namespace {

TEST(DragRules, NinePixelsEitherWayStartADrag) {
    constexpr Point press{100, 100};
    for (const Point still : {Point{108, 92}, Point{92, 108}, press}) EXPECT_FALSE(DragStarts(press, still));
    for (const Point moved : {Point{109, 100}, Point{91, 100}, Point{100, 109}, Point{100, 91}})
        EXPECT_TRUE(DragStarts(press, moved));
    EXPECT_TRUE(DragStarts({INT32_MIN, 0}, {INT32_MAX, 0}));
}

TEST(DragRules, KeysChooseAmongWhatTheSourceAllows) {
    using namespace drop_effect;
    constexpr std::uint32_t any = copy | move | link;
    struct Row {
        std::uint32_t keys, allowed, effect;
    };
    const Row rows[] = {
        {0, any, move},      {0, copy, copy},         {0, link, none},        {0, none, none},
        {8, any, copy},      {8, move, none},         {4, any, move},         {4, copy, none},
        {12, any, link},     {12, copy | move, none}, {1, copy | move, move}, {1 | 8, copy | move, copy},
        {1 | 12, any, link},
    };
    for (const Row& row : rows)
        EXPECT_EQ(DropEffectFor(row.keys, row.allowed), row.effect) << row.keys << " of " << row.allowed;
}

TEST(DragRules, ButtonsAndEscapeEndTheDrag) {
    EXPECT_EQ(NextDragStep(false, 1), DragStep::GoOn);
    EXPECT_EQ(NextDragStep(false, 1 | 4 | 8), DragStep::GoOn);
    EXPECT_EQ(NextDragStep(false, 8), DragStep::Drop);
    for (const std::uint32_t second : {0x2u, 0x10u})
        EXPECT_EQ(NextDragStep(false, 1 | second), DragStep::Cancel);
    EXPECT_EQ(NextDragStep(false, 2), DragStep::Cancel);
    EXPECT_EQ(NextDragStep(true, 0), DragStep::Cancel);
}

TEST(DragRules, TheEdgesScroll) {
    struct Row {
        std::int32_t y, height, step;
    };
    const Row rows[] = {{-5, 400, -10}, {29, 400, -10}, {30, 400, 0},  {370, 400, 0},
                        {371, 400, 10}, {399, 400, 10}, {400, 400, 0}, {20, 40, -10}};
    for (const Row& row : rows) EXPECT_EQ(AutoScrollStep(row.y, row.height), row.step) << row.y;
}

TEST(DragRules, SheetsCascade) {
    const std::vector<Size> three{{85, 110}, {110, 85}, {10, 10}};
    const Cascade cascade = LayOutCascade(three);
    EXPECT_EQ(cascade.size, (Size{114, 114}));
    EXPECT_EQ(cascade.sheets, 3u);
    EXPECT_EQ(cascade.PlaceOf(2), (Point{4, 4}));
    EXPECT_EQ(cascade.HotSpot(), (Point{57, 57}));
    EXPECT_EQ(LayOutCascade({&three[0], 1}).size, (Size{85, 110}));
    // Neither the sheets left out nor their sizes make the picture larger.
    std::vector<Size> many(5000, Size{85, 110});
    many.back() = {9000, 9000};
    EXPECT_EQ(LayOutCascade(many).size, (Size{85 + 62, 110 + 62}));
    EXPECT_TRUE(LayOutCascade({}).Empty());
    EXPECT_TRUE(LayOutCascade(std::vector<Size>(3)).Empty());
}

}  // namespace
}  // namespace qz
