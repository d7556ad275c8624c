// The date tables of docs/formatting.md, and the ends of the range.
#include "format/date_format.h"

#include "format/date_time.h"

#include <gtest/gtest.h>

#include <limits>

namespace qz {
namespace {

const DateNames names{
    .months = {L"January", L"February", L"March", L"April", L"May", L"June", L"July", L"August", L"September",
               L"October", L"November", L"December"},
    .shortMonths = {L"Jan", L"Feb", L"Mar", L"Apr", L"May", L"Jun", L"Jul", L"Aug", L"Sep", L"Oct", L"Nov",
                    L"Dec"},
    .days = {L"Sunday", L"Monday", L"Tuesday", L"Wednesday", L"Thursday", L"Friday", L"Saturday"},
    .shortDays = {L"Sun", L"Mon", L"Tue", L"Wed", L"Thu", L"Fri", L"Sat"}};

constexpr double seconds = 1.0 / 86400;
constexpr double march5 = 37320;                         // 2002-03-05, a Tuesday
constexpr double afternoon = march5 + 54367 * seconds;   // 15:06:07
constexpr double pastMidnight = march5 + 367 * seconds;  // 00:06:07
constexpr double firstDay = -657434, lastDay = 2958465;  // 100-01-01 and 9999-12-31

struct Case {
    double serial;
    const wchar_t* pattern;
    std::wstring text;
};

template <std::size_t count>
void ExpectAll(const Case (&cases)[count]) {
    for (const Case& c : cases) {
        EXPECT_EQ(DateFormat(c.pattern).Format(c.serial, names), c.text) << c.serial << L" as " << c.pattern;
    }
}

TEST(DateFormat, Tokens) {
    ExpectAll({{march5, L"d dd ddd dddd", L"5 05 Tue Tuesday"},
               {march5, L"m mm mmm mmmm", L"3 03 Mar March"},
               {march5, L"yy yyy yyyy", L"02 2002 2002"},
               {march5, L"y", L"64"},
               {march5, L"ddddd mmmmmm yyyyyy", L"Tuesday March 2002"},
               {afternoon, L"h hh H HH", L"15 15 15 15"},
               {afternoon, L"h hh H HH T", L"3 03 15 15 PM"},
               {afternoon, L"M MM S SS", L"6 06 7 07"},
               {pastMidnight, L"h:MM T", L"12:06 AM"},
               {march5 + 0.5, L"h T", L"12 PM"},
               {pastMidnight, L"h HH", L"0 00"}});
}

TEST(DateFormat, PredefinedAndQuoted) {
    ExpectAll({{march5, L"dddd/mmm/yyyy", L"Tuesday/Mar/2002"},
               {march5, L"dd\\m\\yyyy", L"05my2002"},
               {march5, L"mm/dd/yyyy", L"03/05/2002"},
               {afternoon, L"hh:MM:SS", L"15:06:07"},
               {afternoon, L"HH:MM:SS", L"15:06:07"},
               {afternoon, L"HH:MM:SS T", L"15:06:07 PM"},
               {afternoon, L"dd/mm/yyyy hh:MM:SS T", L"05/03/2002 03:06:07 PM"},
               {afternoon, L"hh \"T\"", L"15 T"},
               {march5, L"d\"d\"d", L"5d5"},
               {march5, L"\"day d", L"day d"},
               {march5, L"d;x\\", L"5;x"}});
}

TEST(DateFormat, NegativeSerialsCountTheFractionForward) {
    ExpectAll({{-1.25, L"yyyy-mm-dd HH:MM", L"1899-12-29 06:00"},
               {-0.25, L"yyyy-mm-dd HH:MM", L"1899-12-30 06:00"},
               {0, L"yyyy-mm-dd ddd", L"1899-12-30 Sat"},
               {-1.9999999, L"yyyy-mm-dd HH:MM:SS", L"1899-12-30 00:00:00"},
               {firstDay, L"yyyy-mm-dd ddd", L"0100-01-01 Fri"},
               {firstDay - 0.75, L"yyyy-mm-dd HH:MM", L"0100-01-01 18:00"}});
}

TEST(DateFormat, RoundsSecondsBeforeSplitting) {
    ExpectAll({{march5 + 59.6 * seconds, L"HH:MM:SS", L"00:01:00"},
               {march5 + 59.4 * seconds, L"HH:MM", L"00:00"},
               {36584 + 0.9999999, L"yyyy-mm-dd HH:MM:SS", L"2000-02-29 00:00:00"},
               {lastDay + 0.9999999, L"yyyy-mm-dd HH:MM:SS", L"9999-12-31 23:59:59"}});
}

TEST(DateFormat, OutsideTheCalendarIsNoText) {
    for (const double serial : {firstDay - 1, lastDay + 1, 1e300, -std::numeric_limits<double>::infinity(),
                                std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_FALSE(DateFormat(L"yyyy").Format(serial, names)) << serial;
    }
}

TEST(DateTime, EverySerialDayFollowsTheOneBefore) {
    DateTime before = *ToDateTime(firstDay);
    for (double serial = firstDay + 1; serial <= lastDay; ++serial) {
        const DateTime now = *ToDateTime(serial);
        ASSERT_EQ(now.weekday, (before.weekday + 1) % 7) << serial;
        const bool nextDay = now.month == before.month && now.day == before.day + 1;
        const bool nextMonth = now.day == 1 && now.month == before.month % 12 + 1 && before.day >= 28;
        ASSERT_TRUE(nextDay || nextMonth) << serial;
        ASSERT_EQ(now.dayOfYear, now.year == before.year ? before.dayOfYear + 1 : 1) << serial;
        before = now;
    }
    EXPECT_EQ(before.year, 9999);
    EXPECT_EQ(before.dayOfYear, 365u);
}

}  // namespace
}  // namespace qz
