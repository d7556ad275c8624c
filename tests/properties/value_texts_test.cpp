#include "properties/model/font_value.h"
#include "properties/model/object_types.h"

#include <gtest/gtest.h>

namespace qz {
namespace {

TEST(FontValue, ReadsWhatItWrites) {
    const FontValue font{L"Times New Roman", 12.5, FontValue::boldWeight, true, false, true};
    EXPECT_EQ(TextOf(font), L"Times New Roman; 12.5; 700; 1; 0; 1");
    EXPECT_EQ(FontOf(TextOf(font)), font);
    EXPECT_EQ(TextOf(FontOf(L"Arial; 10; 400; 0; 0; 0")), L"Arial; 10; 400; 0; 0; 0");
    FontValue odd = font;
    odd.face = L"A;B";
    EXPECT_EQ(FontOf(TextOf(odd)).size, font.size) << "the face must not shift the other fields";
}

TEST(FontValue, FieldsMayBeMissingOrMakeNoSense) {
    EXPECT_EQ(FontOf(L""), FontValue{});
    EXPECT_EQ(FontOf(L" Arial ;8"), (FontValue{.face = L"Arial", .size = 8}));
    EXPECT_EQ(FontOf(L";;700;True;;-1;more;1"),
              (FontValue{.weight = 700, .italic = true, .strikeOut = true}));
    for (const wchar_t* text :
         {L";x;y;z", L";0;-1", L";-12;1001;0.5", L";1e99;4000000000", L";12,5;bold;False", L";nan;;"}) {
        EXPECT_EQ(FontOf(text), FontValue{}) << text;
    }
}

TEST(FontValue, SizesHaveOneDecimal) {
    EXPECT_EQ(TextOfSize(10), L"10.0");
    EXPECT_EQ(TextOfSize(8.25), L"8.2");
    EXPECT_EQ(TextOfSize(9.96), L"10.0");
    EXPECT_EQ(SizeOf(L" 10.5 "), 10.5);
    for (const wchar_t* text : {L"", L"0", L"-1", L"10,5", L"12pt"})
        EXPECT_EQ(SizeOf(text), std::nullopt) << text;
}

TEST(ObjectTypes, AreReadInTheirOrder) {
    const ObjectTypeNames names(L"/53ActionForm/1Line/46Go To");
    EXPECT_EQ(names.Pairs(),
              (std::vector<ObjectTypeName>{{53, L"ActionForm"}, {1, L"Line"}, {46, L"Go To"}}));
    EXPECT_EQ(names.NameOf(46), L"Go To");
    EXPECT_EQ(names.NameOf(5), L"");
}

TEST(ObjectTypes, MalformedPiecesAreSkipped) {
    const ObjectTypeNames names(L"9Before//Line/7/-3Minus/99999999999Far/2Frame/2Twice/");
    EXPECT_EQ(names.NameOf(2), L"Frame");
    EXPECT_EQ(names.Pairs().size(), 2U);
    EXPECT_TRUE(ObjectTypeNames(L"").Pairs().empty());
}

}  // namespace
}  // namespace qz
