#include "format/number_format.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <string>

namespace qz {
namespace {

using Kind = NumberToken::Kind;

/// Writes one section. The number comes scaled and rounded, the exponent taken out of it.
class SectionWriter {
  public:
    SectionWriter(const NumberSection& section, const DecimalNumber& number, NumberSeparators separators)
        : section_(section),
          number_(number),
          separators_(separators),
          nextPlace_(std::max(number.IntegerDigits(), section.minIntegerDigits) - 1),
          openPlaceholders_(section.integerDigits),
          openFractions_(std::max(number.FractionDigits(), section.minFractionDigits)) {}

    void Write(int exponent, std::wstring& out) {
        for (const NumberToken& token : section_.tokens) {
            switch (token.kind) {
                case Kind::Text:
                    out += token.sign;
                    break;
                case Kind::IntegerDigit:
                    WriteIntegers(--openPlaceholders_, out);
                    break;
                case Kind::Point:
                    WritePoint(out);
                    break;
                case Kind::FractionDigit:
                    WriteFraction(out);
                    break;
                case Kind::Exponent:
                    WriteExponent(token.sign, exponent, out);
                    break;
            }
        }
    }

  private:
    /// All digits down to `lastPlace`: the first placeholder takes those that have none of their own.
    void WriteIntegers(int lastPlace, std::wstring& out) {
        for (; nextPlace_ >= lastPlace; --nextPlace_) {
            out += number_.Digit(nextPlace_);
            if (section_.grouped && nextPlace_ > 0 && nextPlace_ % 3 == 0) out += separators_.thousands;
        }
    }

    void WritePoint(std::wstring& out) {
        if (section_.integerDigits == 0) WriteIntegers(0, out);
        out += separators_.decimal;
    }

    void WriteFraction(std::wstring& out) {
        ++fractions_;
        if (fractions_ <= openFractions_) out += number_.Digit(-fractions_);
    }

    void WriteExponent(wchar_t letter, int exponent, std::wstring& out) const {
        const std::wstring digits = std::to_wstring(std::abs(exponent));
        out += letter;
        if (exponent < 0) out += L'-';
        if (exponent >= 0 && section_.exponentPlus) out += L'+';
        const auto wanted = static_cast<std::size_t>(section_.minExponentDigits);
        if (digits.size() < wanted) out.append(wanted - digits.size(), L'0');
        out += digits;
    }

    const NumberSection& section_;
    const DecimalNumber& number_;
    NumberSeparators separators_;
    int nextPlace_;         // of the integer digits still to write
    int openPlaceholders_;  // of the integer part
    int openFractions_;     // digits that the fraction shows
    int fractions_ = 0;
};

/// Takes the exponent out, so that as many integer digits remain as the section has placeholders.
int TakeExponent(const NumberSection& section, DecimalNumber& number) {
    if (number.IsZero()) return 0;
    int exponent = number.IntegerDigits() - section.integerDigits;
    number.Shift(-exponent);
    number.RoundToPlaces(section.fractionDigits);
    const int carried = number.IntegerDigits() - section.integerDigits;  // 9.99 became 10.0
    if (carried > 0) number.Shift(-carried);
    return exponent + carried;
}

/// Up to 15 significant digits, with an exponent below 0.0001 and from 1E+15 on.
void WriteGeneral(DecimalNumber number, NumberSeparators separators, std::wstring& out) {
    constexpr int precision = 15;
    number.RoundToDigits(precision);
    NumberSection section;
    section.exponent =
        !number.IsZero() && (number.IntegerDigits() > precision || number.IntegerDigits() < -3);
    section.integerDigits = section.minIntegerDigits = 1;
    section.fractionDigits = precision;
    section.minExponentDigits = 2;
    section.exponentPlus = true;
    const int exponent = section.exponent ? TakeExponent(section, number) : 0;
    section.tokens.push_back({Kind::IntegerDigit, L'0'});
    if (number.FractionDigits() > 0) section.tokens.push_back({Kind::Point, L'.'});
    section.tokens.insert(section.tokens.end(), static_cast<std::size_t>(number.FractionDigits()),
                          {Kind::FractionDigit, L'#'});
    if (section.exponent) section.tokens.push_back({Kind::Exponent, L'E'});
    SectionWriter(section, number, separators).Write(exponent, out);
}

std::wstring NotFinite(const DecimalNumber& number) {
    if (number.IsNan()) return L"NaN";
    return number.IsNegative() ? L"-Infinity" : L"Infinity";
}

}  // namespace

NumberFormat::NumberFormat(std::wstring_view pattern) {
    const std::vector<PatternSign> signs = ReadPattern(pattern.empty() ? L"General Number" : pattern);
    for (const auto section : SplitSections(signs)) sections_.push_back(ReadNumberSection(section));
}

bool NumberFormat::Has(SectionIndex index) const noexcept {
    return sections_.size() > index && (sections_[index].general || !sections_[index].tokens.empty());
}

const NumberSection& NumberFormat::SectionFor(const DecimalNumber& number) const noexcept {
    if (number.IsZero()) return ZeroSection();
    return sections_[number.IsNegative() && Has(Negative) ? Negative : Positive];
}

std::wstring NumberFormat::Format(DecimalNumber number, NumberSeparators separators) const {
    if (!number.IsFinite()) return NotFinite(number);
    const NumberSection* section = &SectionFor(number);
    number.Shift(section->power);
    int exponent = 0;
    if (section->exponent) {
        exponent = TakeExponent(*section, number);
    } else if (section->ShowsNumber() && !section->general) {
        number.RoundToPlaces(section->fractionDigits);
        if (number.IsZero()) section = &ZeroSection();
    }
    std::wstring out;
    out.reserve(section->tokens.size() + 24);  // most numbers: one allocation
    const bool ownSign = section != &sections_[Positive] || !section->ShowsNumber();
    if (number.IsNegative() && !number.IsZero() && !ownSign) out += L'-';
    if (section->general) {
        WriteGeneral(number, separators, out);
    } else {
        SectionWriter(*section, number, separators).Write(exponent, out);
    }
    return out;
}

}  // namespace qz
