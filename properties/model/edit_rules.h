// What may be typed into the text field of an editor, and what it means.
#pragma once

#include "properties/model/editor_choice.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qz {

/// Characters that a text field takes.
inline constexpr std::size_t editTextLimit = 2147483646;

/// The greatest number that the arrows beside a field lead to; the least is 0.
inline constexpr std::int32_t greatestStep = 32767;

/// Whether a field may hold this text, which need not be a value yet: "-" may become one.
bool IsAccepted(EditMode mode, std::wstring_view text, wchar_t decimalSeparator) noexcept;

/// Whether an entry may turn one text of a field into another: not from one that the field may hold into one
/// that it may not, be it for its characters or for a number beyond the range of the attribute's type. A text
/// that the field should not hold in the first place may be worked at.
bool MayBecome(EditMode mode, std::uint32_t type, std::wstring_view before, std::wstring_view after,
               wchar_t decimalSeparator);

/// The number that the whole text is, blanks around it aside; nothing when it is none or exceeds 32 bits.
std::optional<std::int32_t> IntegerOf(std::wstring_view text);

/// As above, for numbers with a decimal separator and an exponent; always finite.
std::optional<double> RealOf(std::wstring_view text, wchar_t decimalSeparator);

/// Whether a number lies within the range of an attribute of this type: 16 and 32 bits for whole numbers and
/// lists of them, single precision for reals. True for types that hold no such numbers.
bool ValueFits(std::uint32_t type, double value) noexcept;

/// The number that the arrows beside a field lead to from the one in it (none: from 0), within 0 and
/// greatestStep.
std::int32_t Stepped(std::optional<std::int32_t> number, std::int32_t step) noexcept;

/// A text with its line breaks, however they are written, as a field of several lines needs them.
std::wstring FieldLines(std::wstring_view text);

/// The shortest text without exponent that reads back as the same number. A number of single precision is
/// written as one, thus "0.1" rather than what is left of it in double precision. Empty when not finite.
std::wstring TextOf(double value, wchar_t decimalSeparator);

}  // namespace qz
