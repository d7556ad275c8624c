#include "dialogs/document/size_texts.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cwchar>
#include <limits>

namespace qz {

namespace {

constexpr std::int64_t most = std::numeric_limits<std::int32_t>::max();
constexpr std::int64_t least = std::numeric_limits<std::int32_t>::min();

constexpr std::int64_t twipsInInch = 1440;
constexpr std::int64_t tenthsInInch = 254;

/// The number that the text begins with, blanks before it skipped; 0 when there is none.
std::int64_t WholeNumber(const std::wstring& text) noexcept {
    return std::clamp<std::int64_t>(std::wcstoll(text.c_str(), nullptr, 10), least, most);
}

std::int64_t WholePart(const std::wstring& text) noexcept {
    const double number = std::wcstod(text.c_str(), nullptr);
    if (std::isnan(number)) return 0;
    return static_cast<std::int64_t>(
        std::clamp(std::trunc(number), static_cast<double>(least), static_cast<double>(most)));
}

/// Two decimals after a full stop, whatever the locale.
std::wstring HundredthsText(std::int64_t hundredths) {
    const std::int64_t size = std::abs(hundredths);
    std::wstring decimals = std::to_wstring(100 + size % 100);
    decimals[0] = L'.';
    return (hundredths < 0 ? L"-" : L"") + std::to_wstring(size / 100) + decimals;
}

std::int32_t TwipsOf(std::int64_t number, SizeUnit unit) noexcept {
    switch (unit) {
        case SizeUnit::TenthsOfMillimeters:
            return Scaled(number, twipsInInch, tenthsInInch);
        case SizeUnit::Inches:
            return Scaled(number, twipsInInch, 1);
        default:
            return Scaled(number, 1, 1);
    }
}

}  // namespace

std::int32_t Scaled(std::int64_t number, std::int64_t by, std::int64_t per) noexcept {
    // Beyond this the result is out of range in any case.
    const std::int64_t largest = std::numeric_limits<std::int64_t>::max() / 2 / by;
    const std::int64_t product = std::clamp(number, -largest, largest) * by;
    const std::int64_t half = product < 0 ? -per / 2 : per / 2;
    return static_cast<std::int32_t>(std::clamp((product + half) / per, least, most));
}

std::int32_t TwipsOfTenths(std::int32_t tenthsOfMillimeters) noexcept {
    return TwipsOf(tenthsOfMillimeters, SizeUnit::TenthsOfMillimeters);
}

std::wstring SizeText(std::int32_t twips, SizeUnit unit) {
    const std::int32_t tenths = Scaled(twips, tenthsInInch, twipsInInch);
    if (unit == SizeUnit::TenthsOfMillimeters) return std::to_wstring(tenths);
    if (unit != SizeUnit::Inches) return std::to_wstring(twips);
    return HundredthsText(Scaled(tenths, 100, tenthsInInch));
}

std::int32_t SizeOf(const std::wstring& text, SizeUnit unit) noexcept {
    return TwipsOf(unit == SizeUnit::Inches ? WholePart(text) : WholeNumber(text), unit);
}

std::int32_t MarginOf(const std::wstring& text, SizeUnit unit) noexcept {
    return TwipsOf(WholeNumber(text), unit);
}

}  // namespace qz
