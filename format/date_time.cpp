#include "format/date_time.h"

#include <chrono>
#include <cmath>

namespace qz {
namespace {

using std::chrono::days;
using std::chrono::sys_days;

constexpr sys_days firstDay{std::chrono::year{100} / 1 / 1};
constexpr sys_days lastDay{std::chrono::year{9999} / 12 / 31};
constexpr sys_days dayZero{std::chrono::year{1899} / 12 / 30};

DateTime Fields(sys_days day, unsigned seconds) noexcept {
    const std::chrono::year_month_day date{day};
    const sys_days newYear{date.year() / 1 / 1};
    return {.year = int{date.year()},
            .month = unsigned{date.month()},
            .day = unsigned{date.day()},
            .weekday = std::chrono::weekday{day}.c_encoding(),
            .dayOfYear = static_cast<unsigned>((day - newYear).count()) + 1,
            .hour = seconds / 3600,
            .minute = seconds / 60 % 60,
            .second = seconds % 60};
}

}  // namespace

std::optional<DateTime> ToDateTime(double serial) noexcept {
    constexpr unsigned secondsOfDay = 24 * 60 * 60;
    const double wholeDays = std::trunc(serial);
    const bool inRange =
        wholeDays >= (firstDay - dayZero).count() && wholeDays <= (lastDay - dayZero).count();
    if (!inRange) return std::nullopt;  // nor is what is not a number
    sys_days day = dayZero + days{static_cast<int>(wholeDays)};
    auto seconds = static_cast<unsigned>(std::lround(std::abs(serial - wholeDays) * secondsOfDay));
    if (seconds == secondsOfDay) {
        const bool last = day == lastDay;
        seconds = last ? secondsOfDay - 1 : 0;
        if (!last) day += days{1};
    }
    return Fields(day, seconds);
}

}  // namespace qz
