#include "properties/model/choices.h"

#include "properties/model/number_text.h"

namespace qz {

namespace {

std::optional<double> NumberOf(std::wstring_view text, bool real) {
    if (real) return DecimalNumberOf(text);
    return WholeNumberOf(text);
}

/// What the label begins with, up to a second point, which is none of the number.
std::wstring_view NumberBefore(std::wstring_view label, bool real) {
    std::wstring_view number =
        label.substr(0, label.find_first_not_of(real ? L"0123456789." : L"0123456789"));
    const std::size_t point = number.find(L'.');
    if (point != std::wstring_view::npos) number = number.substr(0, number.find(L'.', point + 1));
    return number;
}

constexpr std::size_t charactersRead = 31;

}  // namespace

std::vector<Choice> ChoicesOf(std::span<const std::wstring> labels, bool real) {
    std::vector<Choice> choices;
    for (const std::wstring& label : labels) {
        const std::optional<double> number = NumberOf(NumberBefore(label, real), real);
        if (number) choices.push_back({label, *number});
    }
    return choices;
}

std::optional<double> TypedChoice(std::wstring_view text, std::span<const Choice> choices, bool real) {
    if (choices.empty()) return std::nullopt;
    const std::optional<double> number = NumberOf(Trimmed(text.substr(0, charactersRead)), real);
    const bool between = number && *number >= choices.front().number && *number <= choices.back().number;
    return between ? number : std::nullopt;
}

bool MayBecomeChoice(std::wstring_view text, std::span<const Choice> choices, bool real) {
    const std::wstring_view typed = Trimmed(text.substr(0, charactersRead));
    if (typed.empty() || choices.empty()) return true;
    const std::optional<double> number = NumberOf(typed, real);
    return number ? *number <= choices.back().number : real && typed == L".";
}

}  // namespace qz
