#include "dialogs/nup/nup_layout.h"

#include <gtest/gtest.h>

#include <map>

namespace qz {
namespace {

NUpSheet Sheet(int rows, int columns, int gap = 0) {
    NUpSheet sheet;
    sheet.rows = rows;
    sheet.columns = columns;
    sheet.gap = gap;
    return sheet;
}

/// The pages row by row, as one reads the sheet.
std::vector<int> PagesAsRead(const NUpSheet& sheet) {
    std::map<std::pair<int, int>, int> byPlace;
    const NUpLayout layout = LayOut(sheet).value();
    for (const NUpCell& cell : layout.cells) {
        byPlace[{cell.bounds.top, cell.bounds.left}] = cell.page;
    }
    std::vector<int> pages;
    for (const auto& [place, page] : byPlace) pages.push_back(page);
    return pages;
}

TEST(NUpLayout, CellsFillTheSheetButForTheGaps) {
    const NUpLayout layout = LayOut(Sheet(2, 3, 300)).value();
    EXPECT_EQ(layout.sheet, (Size{12240, 15840}));
    ASSERT_EQ(layout.cells.size(), 6u);
    EXPECT_EQ(layout.cells[0].bounds, (Rect{0, 0, 3880, 7770}));
    EXPECT_EQ(layout.cells[1].bounds, (Rect{4180, 0, 8060, 7770}));
    EXPECT_EQ(layout.cells[5].bounds, (Rect{8360, 8070, 12240, 15840}));
    EXPECT_EQ(layout.cutsDown, (std::vector{4030, 8210}));
    EXPECT_EQ(layout.cutsAcross, (std::vector{7920}));
}

TEST(NUpLayout, RemaindersNeverAddUp) {
    NUpSheet sheet = Sheet(7, 7, 11);
    sheet.paper = {1000, 999};
    const NUpLayout layout = LayOut(sheet).value();
    EXPECT_EQ(layout.cells.back().bounds.right, 1000);
    EXPECT_EQ(layout.cells.back().bounds.bottom, 999);
    for (const NUpCell& cell : layout.cells) {
        EXPECT_GE(cell.bounds.Width(), 133);
        EXPECT_LE(cell.bounds.Width(), 134);
    }
}

TEST(NUpLayout, LandscapeTurnsTheSheet) {
    NUpSheet sheet = Sheet(1, 2);
    sheet.landscape = true;
    EXPECT_EQ(LayOut(sheet).value().sheet, (Size{15840, 12240}));
    EXPECT_EQ(LayOut(sheet).value().cells[0].bounds, (Rect{0, 0, 7920, 12240}));
}

TEST(NUpLayout, OrdersPages) {
    NUpSheet sheet = Sheet(2, 3);
    EXPECT_EQ(PagesAsRead(sheet), (std::vector{1, 2, 3, 4, 5, 6}));
    sheet.rightToLeft = true;
    EXPECT_EQ(PagesAsRead(sheet), (std::vector{3, 2, 1, 6, 5, 4}));
    sheet.columnsFirst = true;
    EXPECT_EQ(PagesAsRead(sheet), (std::vector{5, 3, 1, 6, 4, 2}));
    sheet.rightToLeft = false;
    EXPECT_EQ(PagesAsRead(sheet), (std::vector{1, 3, 5, 2, 4, 6}));
}

TEST(NUpLayout, RefusesWhatHasNoRoom) {
    EXPECT_TRUE(LayOut(Sheet(1, 2, 12238)));
    EXPECT_FALSE(LayOut(Sheet(1, 2, 12239)));
    EXPECT_FALSE(LayOut(Sheet(1, 3, 2147483647)));
    EXPECT_FALSE(LayOut(Sheet(0, 1)));
    EXPECT_FALSE(LayOut(Sheet(1, 33)));
    EXPECT_FALSE(LayOut(Sheet(1, 1, -1)));
    NUpSheet flat = Sheet(1, 1);
    flat.paper.height = 0;
    EXPECT_FALSE(LayOut(flat));
}

TEST(NUpLayout, PagesLieInTheMiddleOfTheirCells) {
    const Rect cell{100, 0, 300, 400};
    EXPECT_EQ(PagePlace(cell, {100, 100}, std::nullopt), (Rect{100, 100, 300, 300}));
    EXPECT_EQ(PagePlace(cell, {100, 50}, 100), (Rect{150, 175, 250, 225}));
    EXPECT_EQ(PagePlace(cell, {100, 50}, 50), (Rect{175, 187, 225, 212}));
    EXPECT_EQ(PagePlace(cell, {1000, 1000}, 100), cell) << "cut off";
    EXPECT_EQ(FitInto({0, 5}, cell), Rect{});
    constexpr int most = 2147483647;
    EXPECT_EQ(PagePlace(cell, {most, most}, most), cell) << "sizes of damaged pages";
    EXPECT_EQ(PagePlace({-most, -most, most, most}, {most, 1}, 100), (Rect{-1073741824, -1, 1073741823, 0}));
}

TEST(NUpLayout, PicturesAreToScale) {
    const Size sheet{12240, 15840};
    const Rect picture = FitInto(sheet, {10, 20, 210, 220});
    EXPECT_EQ(picture, (Rect{33, 20, 187, 220}));
    EXPECT_EQ(Scaled({0, 0, 12240, 15840}, sheet, picture), picture);
    EXPECT_EQ(Scaled({0, 7920, 6120, 15840}, sheet, picture), (Rect{33, 120, 110, 220}));
}

}  // namespace
}  // namespace qz
