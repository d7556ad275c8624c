#include "properties/model/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace qz {

namespace {

template <class Number>
std::optional<Number> NumberIn(std::wstring_view text) {
    std::string ascii;
    for (const wchar_t character : text) {
        if (character < L'!' || character > L'~') return std::nullopt;
        ascii += static_cast<char>(character);
    }
    Number number{};
    const char* const end = ascii.data() + ascii.size();
    const auto [stop, error] = std::from_chars(ascii.data(), end, number);
    return error == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

/// Room for the smallest number of double precision: its fraction begins with more than 300 zeros.
template <class Number, class... Precision>
std::wstring FixedText(Number number, Precision... precision) {
    std::array<char, 512> buffer;
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                            std::chars_format::fixed, precision...);
    return error == std::errc() ? std::wstring(buffer.data(), end) : std::wstring();
}

}  // namespace

std::wstring_view Trimmed(std::wstring_view text) noexcept {
    constexpr std::wstring_view blanks = L" \t\r\n\v\f";
    const std::size_t first = std::min(text.find_first_not_of(blanks), text.size());
    return text.substr(first, text.find_last_not_of(blanks) + 1 - first);
}

std::optional<std::int32_t> WholeNumberOf(std::wstring_view text) { return NumberIn<std::int32_t>(text); }

std::optional<double> DecimalNumberOf(std::wstring_view text) {
    const std::optional<double> number = NumberIn<double>(text);
    return number && std::isfinite(*number) ? number : std::nullopt;
}

std::wstring ShortestText(double number) {
    const bool inRange = std::abs(number) <= std::numeric_limits<float>::max();
    if (inRange && static_cast<float>(number) == number) return FixedText(static_cast<float>(number));
    return FixedText(number);
}

std::wstring RoundedText(double number, int decimals) { return FixedText(number, decimals); }

}  // namespace qz
