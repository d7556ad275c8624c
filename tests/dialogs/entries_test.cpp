// What users read and enter in the dialogs of settings.
#include "dialogs/common/mnemonics.h"
#include "dialogs/common/setting_field.h"

#include <gtest/gtest.h>

#include <set>

namespace qz {
namespace {

constexpr LengthManner millimetres{LengthUnit::Millimetres, L'.'};
constexpr LengthManner inches{LengthUnit::Inches, L','};

TEST(LengthText, IsShownWithItsUnit) {
    EXPECT_EQ(LengthText(1440, millimetres), L"25.4 mm");
    EXPECT_EQ(LengthText(360, millimetres), L"6.35 mm");
    EXPECT_EQ(LengthText(0, millimetres), L"0 mm");
    EXPECT_EQ(LengthText(-1440, millimetres), L"-25.4 mm");
    EXPECT_EQ(LengthText(12240, inches), L"8,5 in");
    EXPECT_EQ(LengthText(1500, inches), L"1,04 in");
    EXPECT_EQ(LengthText(7, {LengthUnit::Twips, L'.'}), L"7 tw");
}

TEST(LengthText, IsReadInAnyUnit) {
    const std::pair<const wchar_t*, std::int32_t> entries[] = {
        {L"25.4", 1440},  {L" 25,4 mm ", 1440}, {L"2.54cm", 1440}, {L"1 in", 1440}, {L"1\"", 1440},
        {L"72 pt", 1440}, {L"-3 tw", -3},       {L"+.5 in", 720},  {L"5.", 283},
    };
    for (const auto& [text, twips] : entries)
        EXPECT_EQ(LengthFromText(text, LengthUnit::Millimetres), twips) << text;
    EXPECT_EQ(LengthFromText(L"2", LengthUnit::Inches), 2880);
    for (const wchar_t* text :
         {L"", L"mm", L".", L"1 km", L"1..2", L"1 2", L"x1", L"--1", L"99999999999999999999"}) {
        EXPECT_EQ(LengthFromText(text, LengthUnit::Millimetres), std::nullopt) << text;
    }
}

TEST(SettingField, RefusesWhatTheRecordCannotHold) {
    const SettingField number{L"n", FieldKind::Number, 0, 1, 32};
    EXPECT_EQ(ValueOfEntry(number, L" 32 ", LengthUnit::Inches), FieldValue(32));
    for (const wchar_t* text : {L"0", L"33", L"", L"2.5", L"two", L"4294967297"}) {
        EXPECT_EQ(ValueOfEntry(number, text, LengthUnit::Inches), std::nullopt) << text;
    }
    const SettingField text{L"t", FieldKind::Text, 0};
    EXPECT_EQ(ValueOfEntry(text, L"a \"b\" > c", LengthUnit::Inches),
              FieldValue(std::wstring(L"a \"b\" > c")));
    EXPECT_EQ(ValueOfEntry(text, L"a < b", LengthUnit::Inches), std::nullopt);
    EXPECT_EQ(ValueOfEntry(text, L"a & b", LengthUnit::Inches), std::nullopt);
}

TEST(SettingField, MessagesAreFilledInOrder) {
    EXPECT_EQ(Filled(L"from %s to %s.", {L"%s", L"2"}), L"from %s to 2.");
    EXPECT_EQ(Filled(L"nothing", {L"1"}), L"nothing");
}

TEST(Mnemonics, AreEachTextsOwn) {
    const std::vector<std::wstring> marked = WithMnemonics({L"Abc", L"A", L"ba"}, L"B");
    EXPECT_EQ(marked[0], L"Ab&c") << "makes room";
    EXPECT_EQ(marked[1], L"&A") << "has no other";
    std::set<wchar_t> letters{L'B'};
    for (const std::wstring& text : marked) EXPECT_TRUE(letters.insert(MnemonicOf(text)).second) << text;
}

TEST(Mnemonics, PreferTheBeginningOfWords) {
    EXPECT_EQ(WithMnemonics({L"Open file", L"Other"}), (std::vector<std::wstring>{L"Open &file", L"&Other"}));
}

TEST(Mnemonics, StandBehindTextsWithoutFreeLetters) {
    EXPECT_EQ(WithMnemonics({L"幅:"}), (std::vector<std::wstring>{L"幅(&A):"}));
    EXPECT_EQ(WithMnemonics({L"x"}, L"X"), (std::vector<std::wstring>{L"x (&A)"}));
    const std::vector<std::wstring> many(40, L"あ");
    EXPECT_EQ(WithMnemonics(many).back(), L"あ") << "none is left";
}

}  // namespace
}  // namespace qz
