#include "dialogs/grid/grid_steps.h"

#include <algorithm>
#include <limits>

namespace qz {

namespace {

constexpr std::int64_t most = std::numeric_limits<std::int32_t>::max();
constexpr std::int64_t least = std::numeric_limits<std::int32_t>::min();

constexpr std::int64_t twipsInInch = 1440;
constexpr std::int64_t tenTwipsInInch = 14400;
constexpr std::int64_t tenthsOfMillimeterInInch = 254;

std::int32_t Clamped(std::int64_t number) noexcept {
    return static_cast<std::int32_t>(std::clamp(number, least, most));
}

}  // namespace

std::int32_t StepsOf(std::wstring_view text) noexcept {
    std::int64_t number = 0;
    for (const wchar_t sign : text) {
        if (sign < L'0' || sign > L'9') break;
        number = std::min(number * 10 + (sign - L'0'), most);
    }
    return static_cast<std::int32_t>(number);
}

std::int32_t StepsInTwips(std::int32_t steps, GridUnit unit) noexcept {
    switch (unit) {
        case GridUnit::Twips:
            return steps;
        case GridUnit::Inches:
            return Clamped(steps * twipsInInch);
        case GridUnit::Millimeters:
            return Clamped(steps * tenTwipsInInch / tenthsOfMillimeterInInch);
    }
    return 0;
}

}  // namespace qz
