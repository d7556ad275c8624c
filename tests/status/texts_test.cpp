// The fields' texts in every unit.
#include "panes/status/status_texts.h"

#include <gtest/gtest.h>

#include <limits>

namespace qz {
namespace {

constexpr auto twips = LengthUnit::Twips;
constexpr auto millimetres = LengthUnit::Millimetres;
constexpr auto inches = LengthUnit::Inches;
constexpr auto unknown = static_cast<LengthUnit>(7);
constexpr std::int32_t largest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t smallest = std::numeric_limits<std::int32_t>::min();

TEST(StatusTexts, ObjectCoords) {
    struct Row {
        Rect rect;
        LengthUnit unit;
        const wchar_t* text;
    };
    const Row rows[] = {
        {{720, 1000, 2161, 3001}, twips, L"(720,1000:2161,3001) w:1441, h:2001"},
        {{720, 1000, 2161, 3001}, unknown, L"(720,1000:2161,3001) w:1441, h:2001"},
        // Whole inches: each edge is cut toward zero before the sizes are taken.
        {{2879, -1439, 5760, 1439}, inches, L"(1,0:4,0) w:3, h:0"},
        {{-2881, -2880, 2881, 2880}, inches, L"(-2,-2:2,2) w:4, h:4"},
        // Millimetres keep their fractions until they are shown: 3.53, 7.06 and their difference 3.53.
        {{200, 0, 400, 1440}, millimetres, L"(4,0:7,25) w:4, h:25"},
        // Halves go to the even neighbour: 63.5, 190.5.
        {{3600, 10800, 3600, 10800}, millimetres, L"(64,190:64,190) w:0, h:0"},
        // Never "-0".
        {{-20, -1, 20, 0}, millimetres, L"(0,0:0,0) w:1, h:0"},
        {{smallest, 0, largest, 0}, twips, L"(-2147483648,0:2147483647,0) w:4294967295, h:0"},
    };
    for (const Row& row : rows) EXPECT_EQ(ObjectCoordsText(row.rect, row.unit), row.text);
}

TEST(StatusTexts, PageSize) {
    struct Row {
        PageSize size;
        LengthUnit unit;
        const wchar_t* text;
    };
    const Row rows[] = {
        {{11906, 16838}, twips, L"Seite: 11906 x 16838"},
        {{11906, 16838}, unknown, L"Seite: 11906 x 16838"},
        {{11906, 16838}, millimetres, L"Seite: 210.01 x 297"},
        {{11906, 16838}, inches, L"Seite: 8.27 x 11.69"},
        {{1440, 2160}, inches, L"Seite: 1 x 1.5"},
        {{180, -180}, inches, L"Seite: 0.13 x -0.13"},  // 0.125: halves away from zero
        {{-7, 7}, inches, L"Seite: 0 x 0"},
        {{0, 1234567}, twips, L"Seite: 0 x 1.23457e+06"},
    };
    for (const Row& row : rows) EXPECT_EQ(PageSizeText(L"Seite", row.size, row.unit), row.text);
}

TEST(StatusTexts, PositionAndZoom) {
    EXPECT_EQ(PagePositionText(3, 412), L"3 / 412");
    EXPECT_EQ(PagePositionText(0, 0), L"0 / 0");
    EXPECT_EQ(ZoomText(150), L"150%");
}

}  // namespace
}  // namespace qz
