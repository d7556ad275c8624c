#include "dialogs/grid/grid_steps.h"

#include "host/units.h"

#include <algorithm>
#include <limits>

namespace qz {

namespace {

constexpr std::int64_t mostSteps = std::numeric_limits<std::int32_t>::max();

std::int32_t Clamped(std::int64_t twips) noexcept {
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(twips, -mostSteps - 1, mostSteps));
}

}  // namespace

std::int32_t StepsOf(std::wstring_view text) noexcept {
    std::int64_t number = 0;
    for (const wchar_t sign : text) {
        if (sign < L'0' || sign > L'9') break;
        number = std::min(number * 10 + (sign - L'0'), mostSteps);
    }
    return static_cast<std::int32_t>(number);
}

std::int32_t StepsInTwips(std::int32_t steps, GridUnit unit) noexcept {
    switch (unit) {
        case GridUnit::Twips:
            return steps;
        case GridUnit::Inches:
            return Clamped(std::int64_t{steps} * 1440);
        case GridUnit::Millimeters:
            return Clamped(TwipsFromMillimetres(steps));
    }
    return 0;
}

}  // namespace qz
