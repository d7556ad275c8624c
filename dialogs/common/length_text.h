// Lengths as the user reads and enters them.
#pragma once

#include "host/units.h"
#include "res/language.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qz {

/// How lengths are shown to a user.
struct LengthManner {
    LengthUnit unit = LengthUnit::Millimetres;
    wchar_t decimalSign = L'.';
};

/// The sign before the decimals in a language.
wchar_t DecimalSignOf(Language language) noexcept;

/// A length with its unit, rounded to two decimals and without zeros at their end: "25.4 mm".
std::wstring LengthText(std::int32_t twips, const LengthManner& manner);

/// The twips that a text of LengthText's kind tells, rounded. Either decimal sign is read; the unit may be
/// mm, cm, in, ", pt or tw, and without one it is `unit`. Nothing for other texts and beyond 32 bits.
std::optional<std::int32_t> LengthFromText(std::wstring_view text, LengthUnit unit);

/// The number that a text consists of, with blanks around it. Nothing for other texts and beyond 32 bits.
std::optional<std::int32_t> WholeNumberFromText(std::wstring_view text);

}  // namespace qz
