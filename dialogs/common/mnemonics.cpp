#include "dialogs/common/mnemonics.h"

#include <algorithm>
#include <array>

namespace qz {

namespace {

constexpr std::wstring_view letters = L"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
constexpr std::size_t none = static_cast<std::size_t>(-1);

/// The place of a sign among the letters, whatever its case.
std::size_t LetterOf(wchar_t sign) noexcept {
    const wchar_t capital = sign >= L'a' && sign <= L'z' ? static_cast<wchar_t>(sign - L'a' + L'A') : sign;
    return letters.find(capital);
}

/// Where a text's letters first stand, those that begin a word in front.
std::vector<std::size_t> Candidates(std::wstring_view text) {
    std::vector<std::size_t> starts, others;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (LetterOf(text[at]) == none) continue;
        const bool start = at == 0 || text[at - 1] == L' ';
        (start ? starts : others).push_back(at);
    }
    starts.insert(starts.end(), others.begin(), others.end());
    return starts;
}

/// Gives as many texts as possible a letter of their own: a text may take the letter of another one that
/// finds a further one for itself.
class Assignment {
  public:
    Assignment(const std::vector<std::wstring>& texts, std::wstring_view taken)
        : places_(texts.size(), none) {
        owner_.fill(none);
        for (const wchar_t letter : taken) {
            if (const std::size_t at = LetterOf(letter); at != none) owner_[at] = reserved;
        }
        for (const std::wstring& text : texts) candidates_.push_back(Candidates(text));
        for (std::size_t text = 0; text < texts.size(); ++text) {
            std::array<bool, letters.size()> seen{};
            Place(texts, text, seen);
        }
    }

    /// Where the mnemonic of a text stands in it; `none` when it has none.
    std::size_t PlaceOf(std::size_t text) const noexcept { return places_[text]; }

    /// A letter that no text has, taken from now on; 0 when all are.
    wchar_t TakeFree() noexcept {
        const auto free = std::ranges::find(owner_, none);
        if (free == owner_.end()) return 0;
        *free = reserved;
        return letters[static_cast<std::size_t>(free - owner_.begin())];
    }

  private:
    static constexpr std::size_t reserved = none - 1;

    bool Place(const std::vector<std::wstring>& texts, std::size_t text,
               std::array<bool, letters.size()>& seen) {
        for (const std::size_t at : candidates_[text]) {
            const std::size_t letter = LetterOf(texts[text][at]);
            if (seen[letter] || owner_[letter] == reserved) continue;
            seen[letter] = true;
            if (owner_[letter] != none && !Place(texts, owner_[letter], seen)) continue;
            owner_[letter] = text;
            places_[text] = at;
            return true;
        }
        return false;
    }

    std::vector<std::vector<std::size_t>> candidates_;
    std::vector<std::size_t> places_;
    std::array<std::size_t, letters.size()> owner_{};
};

std::wstring WithLetterBehind(std::wstring text, wchar_t letter) {
    const std::size_t end = text.find_last_not_of(L" :") + 1;
    const bool spaced = end > 0 && text[end - 1] < 0x2E80;  // not behind a sign of Japanese
    text.insert(end, (spaced ? L" (&" : L"(&") + std::wstring(1, letter) + L")");
    return text;
}

}  // namespace

std::vector<std::wstring> WithMnemonics(const std::vector<std::wstring>& texts, std::wstring_view taken) {
    Assignment assignment(texts, taken);
    std::vector<std::wstring> marked = texts;
    for (std::size_t text = 0; text < texts.size(); ++text) {
        const std::size_t at = assignment.PlaceOf(text);
        if (at != none)
            marked[text].insert(at, 1, L'&');
        else if (const wchar_t letter = assignment.TakeFree())
            marked[text] = WithLetterBehind(texts[text], letter);
    }
    return marked;
}

wchar_t MnemonicOf(std::wstring_view text) noexcept {
    const std::size_t at = text.find(L'&');
    if (at == std::wstring_view::npos || at + 1 >= text.size()) return 0;
    const std::size_t letter = LetterOf(text[at + 1]);
    return letter == none ? 0 : letters[letter];
}

}  // namespace qz
