#include "properties/model/number_list.h"

#include "properties/model/edit_rules.h"
#include "properties/model/number_text.h"

#include <algorithm>

namespace qz {

std::optional<std::vector<std::int32_t>> NumbersOf(std::wstring_view text, std::uint32_t type) {
    constexpr std::wstring_view separators = L" \t\r\n,;";
    std::vector<std::int32_t> numbers;
    for (;;) {
        text.remove_prefix(std::min(text.find_first_not_of(separators), text.size()));
        if (text.empty()) return numbers;
        const std::wstring_view piece = text.substr(0, text.find_first_of(separators));
        const std::optional<std::int32_t> number = WholeNumberOf(piece);
        if (!number || !ValueFits(type, *number)) return std::nullopt;
        numbers.push_back(*number);
        text.remove_prefix(piece.size());
    }
}

std::wstring TextOf(std::span<const std::int32_t> numbers) {
    std::wstring text;
    for (const std::int32_t number : numbers) {
        if (!text.empty()) text += L"\r\n";
        text += std::to_wstring(number);
    }
    return text;
}

}  // namespace qz
