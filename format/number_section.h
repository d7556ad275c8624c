// One section of a number pattern, read once.
#pragma once

#include "format/pattern_sections.h"

#include <span>
#include <vector>

namespace qz {

struct NumberToken {
    enum class Kind { Text, IntegerDigit, Point, FractionDigit, Exponent };
    Kind kind;
    wchar_t sign;  // what a Text shows, and the letter of an Exponent
};

struct NumberSection {
    std::vector<NumberToken> tokens;
    int integerDigits = 0;     // placeholders before the decimal point
    int minIntegerDigits = 0;  // of these, the ones that show a zero where the number has no digit
    int fractionDigits = 0;
    int minFractionDigits = 0;
    int minExponentDigits = 0;
    int power = 0;  // of ten that the number is multiplied by: a percent sign and scaling commas
    bool grouped = false;
    bool exponent = false;
    bool exponentPlus = false;  // a sign also before an exponent that is not negative
    bool general = false;       // "General Number": no tokens

    /// False when the section is text only, which any number takes as it is.
    bool ShowsNumber() const noexcept;
};

/// Never fails: what means nothing where it stands is shown as text.
NumberSection ReadNumberSection(std::span<const PatternSign> signs);

}  // namespace qz
