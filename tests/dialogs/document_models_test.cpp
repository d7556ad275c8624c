// What the document settings decide without a window.
#include "dialogs/document/column_widths.h"
#include "dialogs/document/entered_text.h"
#include "dialogs/document/font_rows.h"
#include "dialogs/document/page_setup.h"
#include "dialogs/document/security_rules.h"

#include <gtest/gtest.h>

#include <limits>

namespace qz {
namespace {

constexpr auto mm = SizeUnit::TenthsOfMillimeters;
constexpr auto inchSizes = SizeUnit::Inches;
constexpr auto twips = SizeUnit::Twips;

TEST(PaperSizes, HasItsBoundsAndItsQuirks) {
    EXPECT_EQ(PaperSizeOf(0), std::nullopt);
    EXPECT_EQ(PaperSizeOf(-1), std::nullopt);
    EXPECT_EQ(PaperSizeOf(69), std::nullopt);
    EXPECT_EQ(PaperSizeOf(1), (PaperSize{2159, 2794}));
    EXPECT_EQ(PaperSizeOf(68), (PaperSize{3220, 4450}));
    EXPECT_EQ(PaperSizeOf(21), (PaperSize{1143, 2635})) << "the last that has its own name's size";
    EXPECT_EQ(PaperSizeOf(23), (PaperSize{1206, 2794})) << "the size of Envelope #12";
    EXPECT_EQ(PaperSizeOf(34), (PaperSize{2500, 2530}));
    EXPECT_EQ(PaperSizeOf(56), (PaperSize{2286, 3048}));
    EXPECT_EQ(PaperSizeOf(57), (PaperSize{2270, 3560})) << "its own name's size again";
}

TEST(SizeTexts, ScaledNumbersStickAtTheEndsOf32Bits) {
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    constexpr std::int32_t largest = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(Scaled(5, 1, 2), 3);
    EXPECT_EQ(Scaled(-5, 1, 2), -3);
    for (const std::int64_t number : {most, most / 1440, std::int64_t{1} << 40}) {
        EXPECT_EQ(Scaled(number, 1440, 254), largest) << number;
        EXPECT_EQ(Scaled(-number - 1, 1440, 254), -largest - 1) << number;
    }
}

TEST(SizeTexts, ShowTwipsInTheUnit) {
    EXPECT_EQ(SizeText(16838, mm), L"2970");
    EXPECT_EQ(SizeText(12240, inchSizes), L"8.50");
    EXPECT_EQ(SizeText(1442, inchSizes), L"1.00");
    EXPECT_EQ(SizeText(72, inchSizes), L"0.05");
    EXPECT_EQ(SizeText(-1440, inchSizes), L"-1.00");
    EXPECT_EQ(SizeText(-720, inchSizes), L"-0.50");
    EXPECT_EQ(SizeText(12345, twips), L"12345");
    EXPECT_EQ(SizeText(77, static_cast<SizeUnit>(9)), L"77");
    EXPECT_EQ(SizeText(2147483647, mm), L"378792254");
}

TEST(SizeTexts, AreReadWithTheirTruncations) {
    EXPECT_EQ(SizeOf(L"2970", mm), 16838);
    EXPECT_EQ(SizeOf(L"2100.9", mm), 11906);
    EXPECT_EQ(SizeOf(L"8.99", inchSizes), 11520);
    EXPECT_EQ(SizeOf(L"0.99", inchSizes), 0);
    EXPECT_EQ(SizeOf(L"-8.99", inchSizes), -11520);
    EXPECT_EQ(SizeOf(L"12240", twips), 12240);
    EXPECT_EQ(MarginOf(L"2.9", inchSizes), 2880);
    EXPECT_EQ(MarginOf(L"254", mm), 1440);
    EXPECT_EQ(MarginOf(L"3 cm", twips), 3);
}

TEST(SizeTexts, SurviveAnyText) {
    for (const SizeUnit unit : {mm, inchSizes, twips, static_cast<SizeUnit>(-1)}) {
        for (const wchar_t* text : {L"", L"abc", L"--4", L"nan", L"."}) {
            EXPECT_EQ(SizeOf(text, unit), 0);
            EXPECT_EQ(MarginOf(text, unit), 0);
        }
        EXPECT_EQ(SizeOf(L"99999999999999999999999", unit), 2147483647);
        EXPECT_EQ(MarginOf(L"-99999999999999999999999", unit), -2147483647 - 1);
    }
    EXPECT_EQ(SizeOf(L"1e300", inchSizes), 2147483647);
    EXPECT_EQ(SizeOf(L"-inf", inchSizes), -2147483647 - 1);
}

/// Everything read, A4 and its bin, sizes that no unit but twips shows exactly.
SetupValues ReadA4() { return {0, 9, 11905, 16837, 3, 721, 722, 723, 724}; }

TEST(PageSetup, WhatIsLeftAloneIsWrittenAsItWasRead) {
    for (const SizeUnit unit : {mm, inchSizes, twips}) {
        const PageSetup setup(unit, ReadA4());
        EXPECT_EQ(setup.Shown().paper, 9);
        EXPECT_EQ(setup.Written(setup.Shown()), ReadA4());
    }
    // Out of range, and not read at all.
    const SetupValues strange{1, 0, 5000, 70000, 99, -5, 0, 0, std::nullopt};
    const PageSetup setup(inchSizes, strange);
    EXPECT_EQ(setup.Shown().paper, 0);
    EXPECT_EQ(setup.Shown().bin, 0);
    SetupValues expected = strange;
    expected[PaperPlace] = std::nullopt;
    EXPECT_EQ(setup.Written(setup.Shown()), expected);
    const PageSetup empty(twips, SetupValues{});
    EXPECT_EQ(empty.Written(empty.Shown()), SetupValues{});
}

TEST(PageSetup, PapersLieOnTheirSideCustomSizesDoNot) {
    PageSetup setup(mm, ReadA4());
    SetupEntries now = setup.Shown();
    now.landscape = true;
    SetupValues written = setup.Written(now);
    EXPECT_EQ(written[LandscapePlace], 1);
    EXPECT_EQ(written[PaperPlace], 9);
    EXPECT_EQ(written[WidthPlace], 16838);
    EXPECT_EQ(written[LengthPlace], 11906);
    now.paper = 0;
    now.sizes[WidthPlace] = L"1000";
    written = setup.Written(now);
    EXPECT_EQ(written[PaperPlace], std::nullopt);
    EXPECT_EQ(written[WidthPlace], 5669);
    EXPECT_EQ(written[LengthPlace], 16837) << "not edited";
}

TEST(PageSetup, AChosenPaperGivesItsSize) {
    PageSetup setup(inchSizes, ReadA4());
    setup.ChoosePaper(1);
    SetupEntries now = setup.Shown();
    now.paper = 1;
    EXPECT_EQ(now.sizes[WidthPlace], L"8.50");
    EXPECT_EQ(setup.Written(now)[WidthPlace], 12240);
    EXPECT_EQ(setup.Written(now)[LengthPlace], 15840);
    setup.ChoosePaper(0);
    now.paper = 0;
    EXPECT_EQ(setup.Written(now)[WidthPlace], 12240) << "shown, but not edited: no fraction is lost";
    now.sizes[WidthPlace] = L"8.5";
    EXPECT_EQ(setup.Written(now)[WidthPlace], 11520);
    // The paper that it had, chosen on purpose.
    PageSetup again(twips, ReadA4());
    EXPECT_FALSE(again.Edited(again.Shown()));
    again.ChoosePaper(9);
    EXPECT_TRUE(again.Edited(again.Shown()));
    EXPECT_EQ(again.Written([&] {
        SetupEntries entries = again.Shown();
        entries.paper = 9;
        return entries;
    }())[WidthPlace],
              11906);
}

TEST(SecurityRules, ChangesNothingUnlessAPasswordOrAPermissionChanges) {
    const Protection document{128, L"o", L"u", -64};
    Protection entered = document;
    EXPECT_EQ(ProtectionToApply(document, entered), std::nullopt);
    entered.level = 40;
    EXPECT_EQ(ProtectionToApply(document, entered), std::nullopt) << "a level alone";
    entered.permissions = Granted(document.permissions, allowPrinting);
    EXPECT_EQ(entered.permissions, -60);
    EXPECT_EQ(ProtectionToApply(document, entered), entered);
    entered.level = 0;
    EXPECT_EQ(ProtectionToApply(document, entered), Protection{}) << "taken away";
    entered.level = std::nullopt;
    EXPECT_EQ(ProtectionToApply(document, entered), entered) << "not taken away: none is chosen";
    entered = document;
    entered.user.clear();
    EXPECT_EQ(ProtectionToApply(document, entered), entered);
    EXPECT_EQ(LevelOf(0x70000 + 128), 128);
    EXPECT_EQ(Granted(8 | 1024, 0), 8 | 1024) << "nothing is withdrawn";
}

TEST(EnteredText, KeepsWhatAFieldCannotShow) {
    EXPECT_EQ(EnteredText(L"one line", L"one line", L"one line\r\ntwo", 4), L"one line\r\ntwo");
    EXPECT_EQ(EnteredText(L"another", L"one line", L"one line\r\ntwo", 4), L"anot");
    EXPECT_EQ(EnteredText(L"", L"x", L"x", 4), L"");
}

TEST(ColumnWidths, AreSharesButNoLessThanIsNeeded) {
    using Widths = std::vector<int>;
    const auto widths = [](int list, std::vector<ColumnWish> wishes) { return ColumnWidths(list, wishes); };
    EXPECT_EQ(widths(200, {{40, 50}, {35, 70}, {25, 50}}), (Widths{80, 70, 50}));
    EXPECT_EQ(widths(200, {{40, 50}, {35, 70}, {25, 75}}), (Widths{55, 70, 75})) << "from who has most";
    EXPECT_EQ(widths(200, {{40, 20}, {35, 20}, {25, 140}}), (Widths{20, 40, 140})) << "from several";
    EXPECT_EQ(widths(100, {{50, 80}, {50, 90}}), (Widths{80, 90})) << "wider than the list";
    EXPECT_EQ(widths(0, {}), Widths());
}

TEST(FontRows, SubsetsLevelsAndOrder) {
    EXPECT_TRUE(IsSubsetName(L"ABCDEF+Arial"));
    EXPECT_TRUE(IsSubsetName(L"+x"));
    EXPECT_FALSE(IsSubsetName(L"Arial+"));
    EXPECT_FALSE(IsSubsetName(L"Arial"));
    EXPECT_EQ(EmbeddingLevel(2), 2);
    EXPECT_EQ(EmbeddingLevel(3), 0);
    EXPECT_EQ(EmbeddingLevel(-1), 0);
    const std::vector<FontRow> rows = {{L"b", L"T", 1, L"x"}, {L"a", L"T", 2, L"x"}, {L"c", L"S", 1, L"x"}};
    const auto places = [&](FontColumn column, bool descending) {
        return SortedPlaces(rows, {column, descending},
                            [](const std::wstring& l, const std::wstring& r) { return l.compare(r); });
    };
    using Places = std::vector<std::size_t>;
    EXPECT_EQ(places(FontColumn::Name, false), (Places{1, 0, 2}));
    EXPECT_EQ(places(FontColumn::Name, true), (Places{2, 0, 1}));
    EXPECT_EQ(places(FontColumn::Type, false), (Places{2, 0, 1}));
    EXPECT_EQ(places(FontColumn::Embedding, true), (Places{1, 0, 2}));
    EXPECT_EQ(places(FontColumn::Encoding, true), (Places{0, 1, 2}));
}

}  // namespace
}  // namespace qz
