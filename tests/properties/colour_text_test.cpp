#include "properties/model/colour_text.h"

#include <gtest/gtest.h>

#include <set>

namespace qz {
namespace {

TEST(ColourText, ShowsAlphaRedGreenBlue) {
    EXPECT_EQ(ColourText(0x80030201), L"80010203");
    EXPECT_EQ(ColourText(0x00030201), L"FF010203");
    EXPECT_EQ(ColourText(opaqueWhite), L"FFFFFFFF");
    EXPECT_EQ(ColourText(noColour), L"");
}

TEST(ColourText, IsReadWithSixOrEightDigits) {
    EXPECT_EQ(ColourOf(L"00FF00"), 0xFF00FF00U);
    EXPECT_EQ(ColourOf(L"80FF0000"), 0x800000FFU);
    EXPECT_EQ(ColourOf(L"abCDef"), 0xFFEFCDABU);
    for (const wchar_t* text :
         {L"", L"FFF", L"FFFFF", L"1234567", L"123456789", L"00FF0G", L"-0FF00", L"0x1234"}) {
        EXPECT_EQ(ColourOf(text), std::nullopt) << text;
    }
}

TEST(ColourText, WhiteIsNeverNoColour) {
    EXPECT_EQ(ColourOf(L"FFFFFF"), opaqueWhite);
    EXPECT_EQ(ColourOf(L"ffffffff"), opaqueWhite);
    EXPECT_EQ(palette[63], opaqueWhite);
    EXPECT_EQ(PaletteIndexOf(noColour), std::nullopt);
}

TEST(ColourText, FieldTakesEightHexadecimalDigits) {
    for (const wchar_t* text : {L"", L"a", L"09afAF09"}) EXPECT_TRUE(IsColourText(text)) << text;
    for (const wchar_t* text : {L"123456789", L"g", L" 1", L"\uFF11", L"@", L"`", L"/", L":"}) {
        EXPECT_FALSE(IsColourText(text)) << text;
    }
}

TEST(Palette, RedVariesSlowestAndBlueFastest) {
    EXPECT_EQ(palette[0], 0xFF000000U);
    EXPECT_EQ(palette[1], 0xFF550000U);
    EXPECT_EQ(palette[4], 0xFF005500U);
    EXPECT_EQ(palette[16], 0xFF000055U);
    EXPECT_EQ(palette[62], 0xFFAAFFFFU);
    EXPECT_EQ(std::set<std::uint32_t>(palette.begin(), palette.end()).size(), 64U);
}

TEST(Palette, FindsItsColoursWhenTheyAreOpaque) {
    for (std::size_t i = 0; i < palette.size(); ++i) {
        EXPECT_EQ(PaletteIndexOf(palette[i]), i);
        EXPECT_EQ(PaletteIndexOf(palette[i] & 0x00FFFFFF), i);
        EXPECT_EQ(ColourOf(ColourText(palette[i])), palette[i]);
    }
    EXPECT_EQ(PaletteIndexOf(0x80550000), std::nullopt);
    EXPECT_EQ(PaletteIndexOf(0xFF560000), std::nullopt);
}

}  // namespace
}  // namespace qz
