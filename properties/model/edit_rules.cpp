#include "properties/model/edit_rules.h"

#include "properties/model/attribute_types.h"
#include "properties/model/number_text.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace qz {

namespace {

constexpr std::wstring_view digitsAndMinus = L"0123456789-";

bool IsRealTyped(std::wstring_view text, wchar_t separator) {
    const std::size_t first = text.find(separator);
    if (text.substr(0, first).find_first_not_of(digitsAndMinus) != std::wstring_view::npos) return false;
    return first == std::wstring_view::npos || text.find(separator, first + 1) == std::wstring_view::npos;
}

template <class Number>
bool InRange(double value) {
    using Limits = std::numeric_limits<Number>;
    return value >= Limits::lowest() && value <= Limits::max();
}

}  // namespace

bool IsAccepted(EditMode mode, std::wstring_view text, wchar_t decimalSeparator) noexcept {
    switch (mode) {
        case EditMode::Integer:
            return text.find_first_not_of(digitsAndMinus) == std::wstring_view::npos;
        case EditMode::Real:
            return IsRealTyped(text, decimalSeparator);
        default:
            return true;
    }
}

bool MayBecome(EditMode mode, std::uint32_t type, std::wstring_view before, std::wstring_view after,
               wchar_t decimalSeparator) {
    if (!IsAccepted(mode, after, decimalSeparator)) return !IsAccepted(mode, before, decimalSeparator);
    const auto fits = [&](std::wstring_view text) {
        const std::optional<double> number = RealOf(text, decimalSeparator);
        return !number || ValueFits(type, *number);
    };
    return fits(after) || !fits(before);
}

std::optional<std::int32_t> IntegerOf(std::wstring_view text) { return WholeNumberOf(Trimmed(text)); }

std::optional<double> RealOf(std::wstring_view text, wchar_t decimalSeparator) {
    std::wstring number(Trimmed(text));
    // A full stop that is not the user's separator separates nothing, or "1.500" would be one and a half.
    if (decimalSeparator != L'.' && number.find(L'.') != std::wstring::npos) return std::nullopt;
    std::ranges::replace(number, decimalSeparator, L'.');
    return DecimalNumberOf(number);
}

bool ValueFits(std::uint32_t type, double value) noexcept {
    switch (type) {
        case attribute_type::int16:
        case attribute_type::shortList:
            return InRange<std::int16_t>(value);
        case attribute_type::int32:
        case attribute_type::longList:
        case attribute_type::wholeChoice:
            return InRange<std::int32_t>(value);
        case attribute_type::real:
            return InRange<float>(value);
        default:
            return true;
    }
}

std::int32_t Stepped(std::optional<std::int32_t> number, std::int32_t step) noexcept {
    const std::int64_t sum = std::int64_t{number.value_or(0)} + step;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(sum, 0, greatestStep));
}

std::wstring FieldLines(std::wstring_view text) {
    std::wstring lines;
    wchar_t before = 0;
    for (const wchar_t character : text) {
        const bool endsPair = character == L'\n' && before == L'\r';
        const bool breaks = character == L'\r' || character == L'\n';
        if (breaks && !endsPair) lines += L"\r\n";
        if (!breaks) lines += character;
        before = character;
    }
    return lines;
}

std::wstring TextOf(double value, wchar_t decimalSeparator) {
    if (!std::isfinite(value)) return {};
    std::wstring text = ShortestText(value);
    std::ranges::replace(text, L'.', decimalSeparator);
    return text;
}

}  // namespace qz
