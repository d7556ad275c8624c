#include "settings/xml_values.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <locale>
#include <sstream>
#include <system_error>
#include <utility>

namespace qz {

namespace {

/// A number's sign and what follows it, as far as it is ASCII.
struct SignedText {
    bool negative = false;
    std::string digits;
};

SignedText SplitSign(std::wstring_view text) {
    SignedText split;
    text.remove_prefix(std::min(text.find_first_not_of(L" \t\r\n\v\f"), text.size()));
    if (text.starts_with(L'-') || text.starts_with(L'+')) {
        split.negative = text.front() == L'-';
        text.remove_prefix(1);
    }
    // A second sign, which the conversion would take, is no number.
    if (text.starts_with(L'-')) return split;
    for (const wchar_t character : text) {
        if (character < L'!' || character > L'~') break;
        split.digits += static_cast<char>(character);
    }
    return split;
}

bool IsHexadecimal(std::string_view digits) noexcept {
    return digits.size() > 2 && digits[0] == '0' && (digits[1] == 'x' || digits[1] == 'X') &&
           std::string_view("0123456789abcdefABCDEF.").find(digits[2]) != std::string_view::npos;
}

// A double's range is exceeded upwards by numbers of at least 1, downwards by those below.
double BeyondRange(const std::string& digits) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    // A stream reads no hexadecimal numbers; the sign of the exponent tells.
    if (IsHexadecimal(digits)) return digits.find('-') == std::string::npos ? infinity : 0.0;
    std::istringstream stream(digits);
    stream.imbue(std::locale::classic());
    double nearest = 0;
    stream >> nearest;
    return nearest >= 1 ? infinity : 0.0;
}

double MagnitudeFrom(const std::string& digits) {
    const bool hexadecimal = IsHexadecimal(digits);
    const char* end = digits.data() + digits.size();
    double value = 0;
    const auto [stop, error] =
        std::from_chars(digits.data() + (hexadecimal ? 2 : 0), end, value,
                        hexadecimal ? std::chars_format::hex : std::chars_format::general);
    if (error != std::errc::result_out_of_range) return value;
    return BeyondRange(std::string(digits.data(), stop));
}

std::optional<std::uint32_t> HexDigit(wchar_t character) noexcept {
    if (character >= L'0' && character <= L'9') return character - L'0';
    if (character >= L'a' && character <= L'f') return character - L'a' + 10;
    if (character >= L'A' && character <= L'F') return character - L'A' + 10;
    return std::nullopt;
}

template <typename Number>
std::wstring Print(Number value) {
    std::wostringstream stream;
    stream.imbue(std::locale::classic());
    stream << value;
    return std::move(stream).str();
}

}  // namespace

bool BoolFromText(std::wstring_view text) noexcept { return text.starts_with(L't'); }

std::optional<std::uint32_t> ColourFromText(std::wstring_view text) noexcept {
    if ((text.size() != 7 && text.size() != 9) || text.front() != L'#') return std::nullopt;
    std::uint32_t colour = text.size() == 7 ? 0xFF : 0;
    for (const wchar_t character : text.substr(1)) {
        const std::optional<std::uint32_t> digit = HexDigit(character);
        if (!digit) return std::nullopt;
        colour = colour << 4 | *digit;
    }
    return colour;
}

float FloatFromText(std::wstring_view text) {
    const SignedText split = SplitSign(text);
    const auto magnitude = static_cast<float>(MagnitudeFrom(split.digits));
    return split.negative ? -magnitude : magnitude;
}

std::int32_t IntegerFromText(std::wstring_view text) {
    const SignedText split = SplitSign(text);
    const std::string signedDigits = (split.negative ? "-" : "") + split.digits;
    std::int32_t value = 0;
    const auto [stop, error] =
        std::from_chars(signedDigits.data(), signedDigits.data() + signedDigits.size(), value);
    if (error != std::errc::result_out_of_range) return value;
    using Limits = std::numeric_limits<std::int32_t>;
    return split.negative ? Limits::min() : Limits::max();
}

std::wstring TextFromInteger(std::int32_t value) { return Print(value); }

std::wstring TextFromFloat(float value) { return Print(value); }

}  // namespace qz
