#include "dialogs/common/length_text.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace qz {

namespace {

struct UnitName {
    std::wstring_view name;
    double twips;
};

constexpr UnitName unitNames[] = {
    {L"mm", twipsPerInch / millimetresPerInch},
    {L"cm", twipsPerInch / millimetresPerInch * 10},
    {L"in", twipsPerInch},
    {L"\"", twipsPerInch},
    {L"pt", 20},
    {L"tw", 1},
};

std::wstring_view NameOf(LengthUnit unit) noexcept {
    switch (unit) {
        case LengthUnit::Millimetres:
            return L"mm";
        case LengthUnit::Inches:
            return L"in";
        default:
            return L"tw";
    }
}

std::wstring_view Trimmed(std::wstring_view text) noexcept {
    const std::size_t first = text.find_first_not_of(L" \t");
    if (first == std::wstring_view::npos) return {};
    return text.substr(first, text.find_last_not_of(L" \t") - first + 1);
}

std::optional<double> TwipsOf(std::wstring_view unitName, LengthUnit unit) noexcept {
    const std::wstring_view name = unitName.empty() ? NameOf(unit) : unitName;
    const auto* const found = std::ranges::find(unitNames, name, &UnitName::name);
    return found == std::end(unitNames) ? std::nullopt : std::optional(found->twips);
}

bool IsDigit(wchar_t sign) noexcept { return sign >= L'0' && sign <= L'9'; }

/// Takes a number off the front of a text. Nothing when there is none.
std::optional<double> TakeNumber(std::wstring_view& text) noexcept {
    const bool negative = text.starts_with(L'-');
    if (negative || text.starts_with(L'+')) text.remove_prefix(1);
    double number = 0, place = 0;  // place: of the digit behind the decimal sign, 0 before there is one
    bool digits = false;
    for (; !text.empty(); text.remove_prefix(1)) {
        const wchar_t sign = text.front();
        if (IsDigit(sign)) {
            digits = true;
            number = place > 0 ? number + (sign - L'0') * place : number * 10 + (sign - L'0');
            place /= 10;
        } else if ((sign == L'.' || sign == L',') && place == 0) {
            place = 0.1;
        } else {
            break;
        }
    }
    if (!digits) return std::nullopt;
    return negative ? -number : number;
}

std::optional<std::int32_t> Rounded(double number) noexcept {
    const double rounded = std::round(number);
    if (std::abs(rounded) > std::numeric_limits<std::int32_t>::max()) return std::nullopt;
    return static_cast<std::int32_t>(rounded);
}

}  // namespace

wchar_t DecimalSignOf(Language language) noexcept {
    return language == Language::English || language == Language::Japanese ? L'.' : L',';
}

std::wstring LengthText(std::int32_t twips, const LengthManner& manner) {
    const auto hundredths =
        static_cast<std::int64_t>(std::llround(std::abs(FromTwips(twips, manner.unit)) * 100));
    std::wstring text = twips < 0 && hundredths != 0 ? L"-" : L"";
    text += std::to_wstring(hundredths / 100);
    if (const std::int64_t decimals = hundredths % 100) {
        text += manner.decimalSign;
        text += static_cast<wchar_t>(L'0' + decimals / 10);
        if (decimals % 10) text += static_cast<wchar_t>(L'0' + decimals % 10);
    }
    return text + L' ' + std::wstring(NameOf(manner.unit));
}

std::optional<std::int32_t> LengthFromText(std::wstring_view text, LengthUnit unit) {
    text = Trimmed(text);
    const std::optional<double> number = TakeNumber(text);
    const std::optional<double> factor = TwipsOf(Trimmed(text), unit);
    if (!number || !factor) return std::nullopt;
    return Rounded(*number * *factor);
}

std::optional<std::int32_t> WholeNumberFromText(std::wstring_view text) {
    text = Trimmed(text);
    const bool whole = text.find_first_of(L".,") == std::wstring_view::npos;
    const std::optional<double> number = TakeNumber(text);
    if (!whole || !number || !text.empty()) return std::nullopt;
    return Rounded(*number);
}

}  // namespace qz
