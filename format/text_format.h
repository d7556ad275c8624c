// Texts by a pattern such as @@@-@@. docs/formatting.md tells the language.
#pragma once

#include "format/pattern_sections.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace qz {

/// How a user's language writes a text in capitals or in small letters.
struct LetterCase {
    std::wstring (*upper)(std::wstring_view text);
    std::wstring (*lower)(std::wstring_view text);
};

/// A pattern read once, for any number of texts. Any text is a pattern.
class TextFormat {
  public:
    explicit TextFormat(std::wstring_view pattern);

    std::wstring Format(std::wstring_view text, const LetterCase& letterCase) const;

  private:
    enum class Case { AsIs, Upper, Lower };
    struct Section {
        explicit Section(std::span<const PatternSign> signs);

        std::vector<PatternSign> signs;  // without those that only set what follows
        int placeholders = 0;
        Case letters = Case::AsIs;
        bool fromLeft = false;
        bool takesText = false;  // without placeholders: the text follows
    };

    static std::wstring Fill(const Section& section, std::wstring_view text);

    std::vector<Section> sections_;  // for texts, and for empty ones
};

}  // namespace qz
