// Automation dates as calendar fields.
#pragma once

#include <optional>

namespace qz {

struct DateTime {
    int year;            // 100 to 9999
    unsigned month;      // 1 to 12
    unsigned day;        // 1 to 31
    unsigned weekday;    // 0 is Sunday
    unsigned dayOfYear;  // 1 to 366
    unsigned hour, minute, second;
};

/// An automation date counts days from 30 December 1899. The day is its whole part, also of a negative one;
/// the fraction counts forward from that day's midnight, whatever the sign. Rounded to the nearest second,
/// but not past the end of the year 9999. Nothing for what is outside the years 100 to 9999.
std::optional<DateTime> ToDateTime(double serial) noexcept;

}  // namespace qz
