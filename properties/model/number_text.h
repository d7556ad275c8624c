// Numbers as texts, with a full stop and whatever the user's locale.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qz {

/// Without the blanks, tabs and line breaks at both ends.
std::wstring_view Trimmed(std::wstring_view text) noexcept;

/// The number that the whole text is. Nothing for a number beyond 32 bits, a plus sign or blanks.
std::optional<std::int32_t> WholeNumberOf(std::wstring_view text);

/// As above, with a fraction and an exponent. Nothing for a number too large or too small, nor for infinity.
std::optional<double> DecimalNumberOf(std::wstring_view text);

/// The shortest text without exponent that reads back as the same number, in single precision if that holds
/// the number exactly.
std::wstring ShortestText(double number);

/// With this many decimals.
std::wstring RoundedText(double number, int decimals);

}  // namespace qz
