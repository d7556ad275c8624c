// The number tables of docs/formatting.md, and the ends of the range.
#include "format/number_format.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace qz {
namespace {

constexpr NumberSeparators english{L'.', L','};

struct NumberCase {
    double number;
    const wchar_t* pattern;
    std::wstring text;
};

template <std::size_t count>
void ExpectNumbers(const NumberCase (&cases)[count]) {
    for (const NumberCase& c : cases) {
        EXPECT_EQ(NumberFormat(c.pattern).Format(c.number, english), c.text)
            << c.number << L" as " << c.pattern;
    }
}

TEST(NumberFormat, Digits) {
    ExpectNumbers({{5, L"000", L"005"},
                   {5, L"0#", L"05"},
                   {1234.5, L"0", L"1235"},
                   {0, L"#", L""},
                   {12.5, L"#", L"13"},
                   {-1234.5, L"#", L"-1235"},
                   {5, L"0.##", L"5."},
                   {5.25, L"0.0##", L"5.25"},
                   {5, L"0.0##", L"5.0"},
                   {0.5, L"#.00", L".50"},
                   {12.5, L".00", L"12.50"},
                   {123456789, L"000-00-0000", L"123-45-6789"},
                   {12345678901, L"000-00-0000", L"12345-67-8901"},
                   {12, L"###-##", L"-12"},
                   {0.1234, L"0.00-00", L"0.12-34"}});
}

TEST(NumberFormat, GroupingScalingPercent) {
    ExpectNumbers({{1234567.891, L"#,###.00", L"1,234,567.89"},
                   {0, L"#,###.00", L".00"},
                   {999.995, L"#,##0.00", L"1,000.00"},
                   {1234, L"0000,000", L"0,001,234"},
                   {1234567, L",0", L"1,234,567"},
                   {1234567, L"0,", L"1235"},
                   {1234567, L"#,##0.0,,", L"1,234,567.0,,"},
                   {1234567, L"0.0,", L"1234567.0,"},
                   {1234567, L"#,##0,.0", L"1,234.6"},
                   {1234567890, L"0,,.00", L"1234.57"},
                   {1234567, L"0 , 0", L"123456 , 7"},
                   {0.1234, L"0.0%", L"12.3%"},
                   {0.285, L"0%", L"29%"},
                   {0.5, L"0%%", L"50%%"},
                   {12.3, L"0.0\\%", L"12.3%"}});
}

TEST(NumberFormat, Sections) {
    constexpr auto three = L"#,##0.00;(#,##0.00);\"zero\"";
    ExpectNumbers({{1234.5, three, L"1,234.50"},
                   {-1234.5, three, L"(1,234.50)"},
                   {0, three, L"zero"},
                   {0.001, three, L"zero"},
                   {-0.001, three, L"zero"},
                   {-0.001, L"0.00;(0.00)", L"0.00"},
                   {-0.001, L"0.00", L"0.00"},
                   {-0.0, L"0.0", L"0.0"},
                   {-5, L"0;;\\z", L"-5"},
                   {0, L"0;", L"0"},
                   {5, L";(0)", L""},
                   {0.3, L"\"up\";\"down\";\"level\"", L"up"},
                   {-0.3, L"\"up\";\"down\";\"level\"", L"down"},
                   {-5, L"\"text\"", L"text"},
                   {-5, L"$0.00", L"-$5.00"},
                   {5, L"0\";\"0", L"0;5"},
                   {7, L"0;1;2;3;4", L"7"}});
}

TEST(NumberFormat, Exponent) {
    ExpectNumbers({{1234567.891, L"0.00E+00", L"1.23E+06"},
                   {-0.00123, L"0.00e-0", L"-1.23e-3"},
                   {1230, L"0.00E-00", L"1.23E03"},
                   {9.999, L"0.00E+00", L"1.00E+01"},
                   {12345, L"##0.0E+0", L"123.5E+2"},
                   {12.5, L".00E+0", L".13E+2"},
                   {0, L"0.00E+00", L"0.00E+00"},
                   {1e100, L"0E+0", L"1E+100"},
                   {5, L"E+00", L"E+05"},
                   {5, L"0E+", L"5E+"},
                   {5, L"0E+0 0.#", L"5E+0 0.#"}});
}

TEST(NumberFormat, GeneralNumber) {
    ExpectNumbers({{1234.5, L"General Number", L"1234.5"},
                   {-0.0001, L"general number", L"-0.0001"},
                   {0, L"", L"0"},
                   {0.1 + 0.2, L"", L"0.3"},
                   {0.00001, L"", L"1E-05"},
                   {123456789012345, L"", L"123456789012345"},
                   {1e15, L"", L"1E+15"},
                   {-1.5e-300, L"", L"-1.5E-300"},
                   {-3, L"0;General Number", L"3"},
                   {3, L"\"General\" Number", L"General Number"}});
}

TEST(NumberFormat, RoundsTheDecimalValueHalfAwayFromZero) {
    ExpectNumbers({{2.675, L"0.00", L"2.68"},
                   {1.005, L"0.00", L"1.01"},
                   {-1.005, L"0.00", L"-1.01"},
                   {0.5, L"0", L"1"},
                   {0.05, L"0.0", L"0.1"},
                   {0.04999, L"0.0", L"0.0"},
                   {0.05, L"0", L"0"},
                   {9.995, L"0.00", L"10.00"}});
    EXPECT_EQ(NumberFormat(L"0.0######").Format(DecimalNumber(0.1f), english), L"0.1");
}

TEST(NumberFormat, EndsOfTheRange) {
    EXPECT_EQ(NumberFormat(L"0").Format(1e308, english), L"1" + std::wstring(308, L'0'));
    const std::wstring grouped =
        NumberFormat(L"#,##0.00%").Format(-std::numeric_limits<double>::max(), english);
    EXPECT_EQ(grouped.substr(0, 10), L"-17,976,93");
    EXPECT_EQ(grouped.size(), 1 + 311 + 103 + 4);  // sign, digits, groups, fraction and percent sign
    ExpectNumbers({{std::numeric_limits<double>::denorm_min(), L"0.0E+0", L"5.0E-324"},
                   {std::numeric_limits<double>::denorm_min(), L"0.00", L"0.00"},
                   {std::numeric_limits<double>::infinity(), L"0.00", L"Infinity"},
                   {-std::numeric_limits<double>::infinity(), L"0;\"minus\"", L"-Infinity"},
                   {std::nan(""), L"\"text\"", L"NaN"}});
}

TEST(NumberFormat, SeparatorsActOnTheOutput) {
    EXPECT_EQ(NumberFormat(L"#,##0.00\".,\"").Format(1234.5, {L',', L'.'}), L"1.234,50.,");
    EXPECT_EQ(NumberFormat(L"General Number").Format(1.5, {L',', L'.'}), L"1,5");
}

TEST(NumberFormat, MalformedPatternsRenderWhatTheyCan) {
    ExpectNumbers({{12.5, L"0.0\"open", L"12.5open"},
                   {12.5, L"0.0\\", L"12.5"},
                   {12.5, L"0.0.0", L"12.5.0"},
                   {12.5, L"\"\"", L""},
                   {12.5, L";;;", L""},
                   {12500, L",.0", L"12.5"}});
    const std::wstring many(100000, L'0');
    EXPECT_EQ(NumberFormat(many).Format(1, english).size(), many.size());
    EXPECT_EQ(NumberFormat(L"0" + std::wstring(100000, L',')).Format(1e308, english), L"0");
}

}  // namespace
}  // namespace qz
