#include "settings/xml_values.h"

#include "settings/xml_text.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <locale>

namespace qz {
namespace {

TEST(XmlValues, Bools) {
    for (const wchar_t* text : {L"t", L"true", L"tx"}) EXPECT_TRUE(BoolFromText(text)) << text;
    for (const wchar_t* text : {L"", L"T", L"1", L"f", L" t"}) EXPECT_FALSE(BoolFromText(text)) << text;
}

TEST(XmlValues, Colours) {
    EXPECT_EQ(ColourFromText(L"#010203"), 0xFF010203U);
    EXPECT_EQ(ColourFromText(L"#00aBcDeF"), 0x00ABCDEFU);
    EXPECT_EQ(ColourFromText(L"#FFFFFFFF"), 0xFFFFFFFFU);
    for (const wchar_t* text :
         {L"", L"#", L"#0102030", L"0010203", L"#01020g", L"#-10203", L"#0x0203", L" #10203"}) {
        EXPECT_EQ(ColourFromText(text), std::nullopt) << text;
    }
}

TEST(XmlValues, Floats) {
    constexpr float infinity = std::numeric_limits<float>::infinity();
    const struct {
        const wchar_t* text;
        float value;
    } cases[] = {{L"", 0},
                 {L"x", 0},
                 {L" \n1.5x", 1.5F},
                 {L"+2", 2},
                 {L"+-2", 0},
                 {L"--2", 0},
                 {L"-2.5e1", -25},
                 {L"5em", 5},
                 {L"1,5", 1},
                 {L".5", 0.5F},
                 {L"0x10", 16},
                 {L"0x", 0},
                 {L"1e400", infinity},
                 {L"-1e39", -infinity},
                 {L"1e-400", 0},
                 {L"-inf", -infinity},
                 {L"0x1p9999", infinity},
                 {L"3\u0664", 3},
                 {L"1 2", 1},
                 {L"0.1", 0.1F}};
    for (const auto& [text, value] : cases) EXPECT_EQ(FloatFromText(text), value) << text;
    EXPECT_TRUE(std::isnan(FloatFromText(L"nan")));
}

TEST(XmlValues, Integers) {
    const struct {
        const wchar_t* text;
        std::int32_t value;
    } cases[] = {{L"", 0},
                 {L"12240", 12240},
                 {L" -7 ", -7},
                 {L"+7", 7},
                 {L"--7", 0},
                 {L"+-7", 0},
                 {L"010", 10},
                 {L"0x10", 0},
                 {L"1.9", 1},
                 {L"abc", 0},
                 {L"2147483648", 2147483647},
                 {L"-2147483648", std::numeric_limits<std::int32_t>::min()},
                 {L"-99999999999999999999", std::numeric_limits<std::int32_t>::min()}};
    for (const auto& [text, value] : cases) EXPECT_EQ(IntegerFromText(text), value) << text;
}

struct CommaAndDots : std::numpunct<wchar_t> {
    wchar_t do_decimal_point() const override { return L','; }
    wchar_t do_thousands_sep() const override { return L'.'; }
    std::string do_grouping() const override { return "\3"; }
};

TEST(XmlValues, NumbersAreWrittenWithoutTheUsersLocale) {
    const std::locale before = std::locale::global(std::locale(std::locale(), new CommaAndDots));
    EXPECT_EQ(TextFromInteger(-1234567), L"-1234567");
    EXPECT_EQ(TextFromInteger(std::uint8_t{65}), L"65") << "a byte is a number";
    EXPECT_EQ(TextFromFloat(1234.5F), L"1234.5");
    EXPECT_EQ(TextFromFloat(0.1F), L"0.1");
    EXPECT_EQ(TextFromFloat(1e10F), L"1e+10");
    EXPECT_EQ(FloatFromText(L"1234.5"), 1234.5F);
    std::locale::global(before);
}

TEST(XmlText, LosesLineBreaksAndTheWritersIndent) {
    EXPECT_EQ(ValueOfText(L"\n\r\nabc\r\n\n", 3), L"abc");
    EXPECT_EQ(ValueOfText(L"\nabc  ", 2), L"abc");
    EXPECT_EQ(ValueOfText(L"\nabc ", 2), L"abc ") << "not the writer's";
    EXPECT_EQ(ValueOfText(L"abc  ", 2), L"abc  ") << "did not begin with a line feed";
    EXPECT_EQ(ValueOfText(L"\n  abc\t ", 1), L"  abc\t");
    EXPECT_EQ(ValueOfText(L"\nabc    ", 2), L"abc  ") << "blanks of the value's own stay";
    EXPECT_EQ(ValueOfText(L"\nabc\n  ", 2), L"abc");
    EXPECT_EQ(ValueOfText(L"\n\n", 0), L"");
    EXPECT_EQ(ValueOfText(L"", 1), L"");
    EXPECT_EQ(ValueOfText(L"\n", 1), L"");
}

}  // namespace
}  // namespace qz
