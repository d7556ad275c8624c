// Numbers as text by a pattern such as #,##0.00;(#,##0.00);"zero". docs/formatting.md tells the language.
#pragma once

#include "format/decimal_number.h"
#include "format/number_section.h"

#include <string>
#include <string_view>
#include <vector>

namespace qz {

/// The signs written for the '.' and ',' of a pattern.
struct NumberSeparators {
    wchar_t decimal = L'.';
    wchar_t thousands = L',';
};

/// A pattern read once, for any number of values. Any text is a pattern; the empty one is "General Number".
class NumberFormat {
  public:
    explicit NumberFormat(std::wstring_view pattern);

    /// What is not finite becomes "NaN", "Infinity" or "-Infinity" under every pattern.
    std::wstring Format(DecimalNumber number, NumberSeparators separators) const;
    std::wstring Format(double number, NumberSeparators separators) const {
        return Format(DecimalNumber(number), separators);
    }

  private:
    enum SectionIndex { Positive, Negative, Zero };
    bool Has(SectionIndex index) const noexcept;
    const NumberSection& SectionFor(const DecimalNumber& number) const noexcept;
    const NumberSection& ZeroSection() const noexcept { return sections_[Has(Zero) ? Zero : Positive]; }

    std::vector<NumberSection> sections_;  // an empty one stands for the first
};

}  // namespace qz
