#include "format/number_section.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

namespace qz {
namespace {

using Kind = NumberToken::Kind;

bool HoldsDigit(PatternSign sign) { return sign.Is(L'0') || sign.Is(L'#'); }

/// Without regard to case, and only when no sign of it is quoted.
bool IsGeneralNumber(std::span<const PatternSign> signs) {
    constexpr std::wstring_view name = L"general number";
    return std::ranges::equal(signs, name, [](PatternSign sign, wchar_t letter) {
        const bool upper = sign.sign >= L'A' && sign.sign <= L'Z';
        return !sign.quoted && (upper ? sign.sign - L'A' + L'a' : sign.sign) == letter;
    });
}

class SectionReader {
  public:
    explicit SectionReader(std::span<const PatternSign> signs) : signs_(signs) {
        section_.tokens.reserve(signs.size());
    }

    NumberSection Read() {
        while (at_ < signs_.size()) ReadSign();
        section_.power = (percent_ ? 2 : 0) - 3 * openCommas_;
        return std::move(section_);
    }

  private:
    enum class Part { Integer, Fraction, AfterExponent };

    void ReadSign() {
        const PatternSign sign = signs_[at_];
        if (HoldsDigit(sign) && part_ != Part::AfterExponent) return AddPlaceholder(sign);
        if (sign.Is(L'.') && part_ == Part::Integer) return AddPoint();
        if (sign.Is(L',') && CommaCounts()) return AddComma();
        if (ExponentLength() > 0) return AddExponent();
        percent_ |= sign.Is(L'%');
        Add(Kind::Text, sign.sign);
    }

    void Add(Kind kind, wchar_t sign) {
        section_.tokens.push_back({kind, sign});
        ++at_;
    }

    void AddPlaceholder(PatternSign sign) {
        if (part_ == Part::Integer) {
            ++section_.integerDigits;
            if (sign.sign == L'0' || section_.minIntegerDigits > 0) ++section_.minIntegerDigits;
            section_.grouped |= openCommas_ > 0;
            openCommas_ = 0;
            return Add(Kind::IntegerDigit, sign.sign);
        }
        ++section_.fractionDigits;
        if (sign.sign == L'0') section_.minFractionDigits = section_.fractionDigits;
        Add(Kind::FractionDigit, sign.sign);
    }

    void AddPoint() {
        part_ = Part::Fraction;
        Add(Kind::Point, L'.');
    }

    /// A comma groups or scales right behind a placeholder or another such comma, or as the first sign.
    bool CommaCounts() const {
        if (part_ != Part::Integer) return false;
        const bool afterComma = at_ > 0 && at_ == commaEnd_;
        return at_ == 0 || afterComma || HoldsDigit(signs_[at_ - 1]);
    }

    /// Groups when a placeholder of the integer part follows, else scales.
    void AddComma() {
        ++openCommas_;
        commaEnd_ = ++at_;
    }

    /// Signs of an exponent beginning here ("E+00" has 4), 0 when there is none.
    std::size_t ExponentLength() const {
        if (part_ == Part::AfterExponent || section_.integerDigits + section_.fractionDigits == 0) return 0;
        const auto rest = signs_.subspan(at_);
        if (rest.size() < 3 || !(rest[0].Is(L'E') || rest[0].Is(L'e'))) return 0;
        if (!(rest[1].Is(L'+') || rest[1].Is(L'-'))) return 0;
        std::size_t length = 2;
        while (length < rest.size() && HoldsDigit(rest[length])) ++length;
        return length > 2 ? length : 0;
    }

    void AddExponent() {
        const auto signs = signs_.subspan(at_, ExponentLength());
        section_.exponent = true;
        section_.exponentPlus = signs[1].sign == L'+';
        section_.minExponentDigits = static_cast<int>(std::ranges::count(signs, L'0', &PatternSign::sign));
        part_ = Part::AfterExponent;
        Add(Kind::Exponent, signs[0].sign);
        at_ += signs.size() - 1;
    }

    std::span<const PatternSign> signs_;
    std::size_t at_ = 0;
    std::size_t commaEnd_ = 0;
    int openCommas_ = 0;  // with no placeholder behind them yet
    Part part_ = Part::Integer;
    bool percent_ = false;
    NumberSection section_;
};

}  // namespace

bool NumberSection::ShowsNumber() const noexcept {
    return general ||
           std::ranges::any_of(tokens, [](const NumberToken& token) { return token.kind != Kind::Text; });
}

NumberSection ReadNumberSection(std::span<const PatternSign> signs) {
    if (IsGeneralNumber(signs)) {
        NumberSection section;
        section.general = true;
        return section;
    }
    return SectionReader(signs).Read();
}

}  // namespace qz
