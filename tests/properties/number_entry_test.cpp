#include "properties/model/choices.h"
#include "properties/model/edit_rules.h"
#include "properties/model/number_list.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <string>
#include <vector>

namespace qz {
namespace {

TEST(EditRules, FieldsTakeWhatMayBecomeTheirValue) {
    for (const wchar_t* text : {L"", L"-", L"-15", L"1-2"}) {
        EXPECT_TRUE(IsAccepted(EditMode::Integer, text, L'.')) << text;
    }
    for (const wchar_t* text : {L"1.5", L" 1", L"+1", L"\u0661"}) {
        EXPECT_FALSE(IsAccepted(EditMode::Integer, text, L'.')) << text;
    }
    for (const wchar_t* text : {L"", L"-1.5", L".", L"1.5e3"}) {
        EXPECT_TRUE(IsAccepted(EditMode::Real, text, L'.')) << text;
    }
    for (const wchar_t* text : {L"1.5.2", L"1,5", L"e", L"1..", L"1e5"}) {
        EXPECT_FALSE(IsAccepted(EditMode::Real, text, L'.')) << text;
    }
    EXPECT_TRUE(IsAccepted(EditMode::Real, L"1,5.2", L','));
    EXPECT_FALSE(IsAccepted(EditMode::Real, L"1.5", L','));
    for (const EditMode mode : {EditMode::Lines, EditMode::File, EditMode::DatabaseField}) {
        EXPECT_TRUE(IsAccepted(mode, L"any\r\ntext..", L'.'));
    }
}

TEST(EditRules, OnlyAWholeTextIsANumber) {
    EXPECT_EQ(IntegerOf(L" -15\r\n"), -15);
    EXPECT_EQ(IntegerOf(L"2147483647"), 2147483647);
    EXPECT_EQ(IntegerOf(L"-2147483648"), std::numeric_limits<std::int32_t>::min());
    for (const wchar_t* text : {L"", L" ", L"-", L"1-2", L"--1", L"1 2", L"2147483648", L"1.5", L"\u0661"}) {
        EXPECT_EQ(IntegerOf(text), std::nullopt) << text;
    }
    EXPECT_EQ(RealOf(L" -1,5 ", L','), -1.5);
    EXPECT_EQ(RealOf(L",5", L','), 0.5);
    EXPECT_EQ(RealOf(L"5.", L'.'), 5.0);
    EXPECT_EQ(RealOf(L"1.5e3", L'.'), 1500.0);
    for (const wchar_t* text : {L"", L"-", L",", L"1,5,2", L"1.5", L"1,5x", L"inf", L"nan", L"1,0e999"}) {
        EXPECT_EQ(RealOf(text, L','), std::nullopt) << text;
    }
}

TEST(EditRules, NumbersFitTheirTypes) {
    const struct {
        std::uint32_t type;
        double most, tooMuch;
    } cases[] = {{2, 32767, 32768},
                 {2, -32768, -32769},
                 {8194, 32767, 32768},
                 {3, 2147483647, 2147483648},
                 {8195, 2147483647, 2147483648},
                 {4, FLT_MAX, DBL_MAX},
                 {4, -FLT_MAX, -DBL_MAX}};
    for (const auto& [type, most, tooMuch] : cases) {
        EXPECT_TRUE(ValueFits(type, most)) << type;
        EXPECT_FALSE(ValueFits(type, tooMuch)) << type;
    }
    EXPECT_TRUE(ValueFits(8197, DBL_MAX));
}

TEST(EditRules, EntriesMayNotBreakATextButMayMendIt) {
    EXPECT_TRUE(MayBecome(EditMode::Integer, 2, L"1", L"1-", L'.'));
    EXPECT_FALSE(MayBecome(EditMode::Integer, 2, L"1", L"1.5", L'.'));
    EXPECT_FALSE(MayBecome(EditMode::Integer, 2, L"3276", L"32768", L'.'));
    EXPECT_TRUE(MayBecome(EditMode::Integer, 3, L"3276", L"32768", L'.'));
    EXPECT_FALSE(MayBecome(EditMode::Integer, 3, L"", L"99999999999999999999", L'.'));
    EXPECT_TRUE(MayBecome(EditMode::Integer, 2, L"700000", L"70000", L'.'));
    EXPECT_FALSE(MayBecome(EditMode::Integer, 2, L"700000", L"700000x", L'.'));
    EXPECT_FALSE(MayBecome(EditMode::Real, 4, L"1,5", L"1,5,", L','));
}

TEST(EditRules, ArrowsStayInTheirRange) {
    EXPECT_EQ(Stepped(std::nullopt, 1), 1);
    EXPECT_EQ(Stepped(-50, -1), 0);
    EXPECT_EQ(Stepped(2147483647, 2147483647), 32767);
}

TEST(EditRules, LinesEndAsFieldsNeedThem) {
    EXPECT_EQ(FieldLines(L"\na\rb\r\nc\n\rd\r"), L"\r\na\r\nb\r\nc\r\n\r\nd\r\n");
}

TEST(EditRules, ShownNumbersCanBeTypedAndReadBack) {
    EXPECT_EQ(TextOf(0.1F, L','), L"0,1") << "single precision, come as a double";
    EXPECT_EQ(TextOf(0.1, L','), L"0,1");
    EXPECT_EQ(TextOf(100000, L'.'), L"100000");
    EXPECT_EQ(TextOf(-12.5, L'.'), L"-12.5");
    EXPECT_EQ(TextOf(INFINITY, L'.'), L"");
    for (const float value : {0.0F, 1.0F / 3, -1e-7F, 1e10F, FLT_MAX, FLT_MIN, FLT_TRUE_MIN, 16777217.0F}) {
        const std::wstring text = TextOf(value, L',');
        EXPECT_TRUE(IsAccepted(EditMode::Real, text, L',')) << text;
        EXPECT_EQ(static_cast<float>(RealOf(text, L',').value_or(NAN)), value) << text;
    }
    for (const double value : {1.0 / 3, DBL_MAX, DBL_TRUE_MIN, -1e-300}) {
        EXPECT_EQ(RealOf(TextOf(value, L','), L','), value);
    }
}

std::vector<double> NumbersIn(std::initializer_list<std::wstring> labels, bool real) {
    const std::vector<std::wstring> all(labels);
    std::vector<double> numbers;
    for (const Choice& choice : ChoicesOf(all, real)) numbers.push_back(choice.number);
    return numbers;
}

TEST(Choices, AreTheNumbersThatLabelsBeginWith) {
    using Numbers = std::vector<double>;
    EXPECT_EQ(NumbersIn({L"0 None", L"2Dashed", L"10", L"1.5 x"}, false), (Numbers{0, 2, 10, 1}));
    EXPECT_EQ(NumbersIn({L"0.5 pt", L"1 pt", L"1.5.2", L"2.", L".5"}, true), (Numbers{0.5, 1, 1.5, 2, 0.5}));
    EXPECT_EQ(NumbersIn({L"", L"None", L"-1 None", L"99999999999"}, false), Numbers{});
    EXPECT_EQ(NumbersIn({L".", L"..5", L"pt"}, true), Numbers{});
}

TEST(Choices, TypedNumbersLieBetweenTheFirstAndTheLast) {
    const std::vector<Choice> choices{{L"2 Two", 2}, {L"5 Five", 5}, {L"9 Nine", 9}};
    EXPECT_EQ(TypedChoice(L" 2", choices, false), 2);
    EXPECT_EQ(TypedChoice(L"9", choices, false), 9);
    EXPECT_EQ(TypedChoice(L"7", choices, false), 7) << "none of the choices, but between them";
    EXPECT_EQ(TypedChoice(L"8.75", choices, true), 8.75);
    EXPECT_EQ(TypedChoice(std::wstring(30, L'0') + L"55", choices, false), 5) << "31 characters are read";
    for (const wchar_t* text : {L"", L"1", L"10", L"8.5", L"5x", L"-5"}) {
        EXPECT_EQ(TypedChoice(text, choices, false), std::nullopt) << text;
    }
    EXPECT_EQ(TypedChoice(L"9.01", choices, true), std::nullopt);
    EXPECT_EQ(TypedChoice(L"0", {}, false), std::nullopt);
    for (const wchar_t* text : {L"", L"1", L"9"}) EXPECT_TRUE(MayBecomeChoice(text, choices, false)) << text;
    for (const wchar_t* text : {L"10", L"1.", L"x"})
        EXPECT_FALSE(MayBecomeChoice(text, choices, false)) << text;
    EXPECT_TRUE(MayBecomeChoice(L".", choices, true));
    EXPECT_FALSE(MayBecomeChoice(L"9.5", choices, true));
}

TEST(NumberList, ReadsWhatItWritesAndOtherSeparators) {
    using Numbers = std::vector<std::int32_t>;
    EXPECT_EQ(NumbersOf(L" 1;2,\r\n-3\t4 ;", 8195), (Numbers{1, 2, -3, 4}));
    EXPECT_EQ(NumbersOf(L"", 8195), Numbers{});
    EXPECT_EQ(NumbersOf(L" ;\r\n", 8195), Numbers{});
    const Numbers numbers{-2147483647 - 1, 0, 2147483647};
    EXPECT_EQ(TextOf(numbers), L"-2147483648\r\n0\r\n2147483647");
    EXPECT_EQ(NumbersOf(TextOf(numbers), 8195), numbers);
}

TEST(NumberList, IsNothingWhenOnePieceIsNoNumberOfItsSize) {
    for (const wchar_t* text : {L"1; x", L"1; 2.5", L"1 - 2", L"+1", L"2147483648", L"1;\u00A02"}) {
        EXPECT_EQ(NumbersOf(text, 8195), std::nullopt) << text;
    }
    EXPECT_EQ(NumbersOf(L"32768", 8194), std::nullopt);
    EXPECT_TRUE(NumbersOf(L"32767 -32768", 8194) && NumbersOf(L"32768", 8195));
}

}  // namespace
}  // namespace qz
