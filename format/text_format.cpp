#include "format/text_format.h"

#include <cstddef>

namespace qz {
namespace {

bool HoldsCharacter(PatternSign sign) { return sign.Is(L'@') || sign.Is(L'&'); }

/// The characters of a text; the two halves of a surrogate pair are one.
std::vector<std::wstring_view> Characters(std::wstring_view text) {
    const auto isUnit = [&](std::size_t at, unsigned first) {
        return at < text.size() && (static_cast<unsigned>(text[at]) & ~0x3FFu) == first;
    };
    std::vector<std::wstring_view> characters;
    for (std::size_t i = 0; i < text.size(); i += characters.back().size()) {
        const bool pair = isUnit(i, 0xD800) && isUnit(i + 1, 0xDC00);
        characters.push_back(text.substr(i, pair ? 2 : 1));
    }
    return characters;
}

/// Deals the characters out to the placeholders of a section.
class TextDealer {
  public:
    TextDealer(std::wstring_view text, int placeholders, bool fromLeft)
        : characters_(Characters(text)), open_(placeholders) {
        const int surplus = static_cast<int>(characters_.size()) - placeholders;
        missing_ = !fromLeft && surplus < 0 ? -surplus : 0;
        surplusFirst_ = !fromLeft && surplus > 0 ? surplus : 0;
    }

    /// What the next placeholder shows.
    void Deal(bool blankWhenMissing, std::wstring& out) {
        for (; surplusFirst_ > 0; --surplusFirst_) out += characters_[next_++];
        const bool missing = missing_ > 0 || next_ == characters_.size();
        if (missing_ > 0) --missing_;
        if (!missing) {
            out += characters_[next_++];
        } else if (blankWhenMissing) {
            out += L' ';
        }
        if (--open_ > 0) return;
        while (next_ < characters_.size()) out += characters_[next_++];
    }

  private:
    std::vector<std::wstring_view> characters_;
    std::size_t next_ = 0;
    int open_;              // placeholders still to come
    int missing_ = 0;       // placeholders that are passed over before the first character
    int surplusFirst_ = 0;  // characters that stand before the one of the first placeholder
};

}  // namespace

TextFormat::Section::Section(std::span<const PatternSign> all) {
    for (const PatternSign sign : all) {
        const bool upper = sign.Is(L'>'), lower = sign.Is(L'<'), left = sign.Is(L'!');
        if (upper) letters = Case::Upper;
        if (lower) letters = Case::Lower;
        fromLeft |= left;
        takesText |= upper || lower || left;
        if (!upper && !lower && !left) signs.push_back(sign);
        if (HoldsCharacter(sign)) ++placeholders;
    }
    takesText &= placeholders == 0;
}

TextFormat::TextFormat(std::wstring_view pattern) {
    const std::vector<PatternSign> signs = ReadPattern(pattern);
    for (const auto section : SplitSections(signs)) sections_.emplace_back(section);
}

std::wstring TextFormat::Fill(const Section& section, std::wstring_view text) {
    TextDealer dealer(text, section.placeholders, section.fromLeft);
    std::wstring out;
    for (const PatternSign sign : section.signs) {
        if (HoldsCharacter(sign)) {
            dealer.Deal(sign.sign == L'@', out);
        } else {
            out += sign.sign;
        }
    }
    if (section.takesText) out += text;
    return out;
}

std::wstring TextFormat::Format(std::wstring_view text, const LetterCase& letterCase) const {
    const Section& section = sections_[text.empty() && sections_.size() > 1 ? 1 : 0];
    switch (section.letters) {
        case Case::Upper:
            return Fill(section, letterCase.upper(text));
        case Case::Lower:
            return Fill(section, letterCase.lower(text));
        case Case::AsIs:
            break;
    }
    return Fill(section, text);
}

}  // namespace qz
