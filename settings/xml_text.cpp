#include "settings/xml_text.h"

#include <algorithm>

namespace qz {

namespace {

bool EndsInBlanks(std::wstring_view text, std::size_t count) noexcept {
    if (count > text.size()) return false;
    return text.substr(text.size() - count).find_first_not_of(L' ') == std::wstring_view::npos;
}

}  // namespace

std::wstring_view ValueOfText(std::wstring_view text, std::size_t depth) noexcept {
    constexpr std::wstring_view lineBreaks = L"\r\n";
    if (text.starts_with(L'\n') && EndsInBlanks(text, depth)) text.remove_suffix(depth);
    text.remove_prefix(std::min(text.find_first_not_of(lineBreaks), text.size()));
    return text.substr(0, text.find_last_not_of(lineBreaks) + 1);
}

}  // namespace qz
