// Typed page numbers and zooms.
#include "panes/status/status_entry.h"

#include <gtest/gtest.h>

namespace qz {
namespace {

constexpr std::int32_t none = -1;

struct Row {
    const wchar_t* text;
    std::int32_t value;
};

TEST(StatusEntry, Page) {
    constexpr Row rows[] = {
        {L"7", 7},
        {L"  7 ", 7},
        {L"7 / 40", 7},
        {L"7/40", 7},
        {L"7 /99", 7},
        {L"007", 7},
        {L"+7", 7},
        {L"７／４０", 7},
        {L"\x3000"
         L"7\xA0",
         7},  // wide and hard blanks
        {L"40", 40},
        {L"41", 40},
        {L"0", 1},
        {L"-3", 1},
        {L"4294967297", 40},  // would be 1 in 32 bits
        {L"99999999999999999999999", 40},
        {L"", none},
        {L" ", none},
        {L"seven", none},
        {L"7a", none},
        {L"7 8", none},
        {L"7.5", none},
        {L"7 /", none},
        {L"/ 40", none},
        {L"7 / x", none},
        {L"- 7", none},
        {L"--7", none},
        {L"7 / 40 / 2", none},
        {L"7%", none},
    };
    for (const Row& row : rows) EXPECT_EQ(ParsePage(row.text, 40).value_or(none), row.value) << row.text;
    EXPECT_EQ(ParsePage(L"1", 0), std::nullopt);
    EXPECT_EQ(ParsePage(L"1", -5), std::nullopt);
}

TEST(StatusEntry, Zoom) {
    constexpr Row rows[] = {
        {L"80", 80},     {L"80%", 80},    {L" 80 % ", 80},  {L"８０％", 80},  {L"9", 10},
        {L"10", 10},     {L"1000", 1000}, {L"1001%", 1000}, {L"-80", 10},     {L"99999999999999", 1000},
        {L"", none},     {L"%", none},    {L"80%%", none},  {L"80% x", none}, {L"x80", none},
        {L"80.5", none}, {L"8 0", none},
    };
    for (const Row& row : rows) EXPECT_EQ(ParseZoom(row.text).value_or(none), row.value) << row.text;
}

}  // namespace
}  // namespace qz
