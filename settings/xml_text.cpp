#include "settings/xml_text.h"

#include <algorithm>

namespace qz {

namespace {

bool EndsInBlanks(std::wstring_view text, std::size_t count) noexcept {
    if (count > text.size()) return false;
    return text.substr(text.size() - count).find_first_not_of(L' ') == std::wstring_view::npos;
}

// Halves of surrogate pairs are written as U+FFFD.
bool IsXmlCharacter(wchar_t character) noexcept {
    const auto unit = static_cast<unsigned>(character);
    return unit == '\t' || unit == '\n' || unit == '\r' || (unit >= 0x20 && unit != 0xFFFE && unit != 0xFFFF);
}

}  // namespace

std::wstring_view ValueOfText(std::wstring_view text, std::size_t depth) noexcept {
    constexpr std::wstring_view lineBreaks = L"\r\n";
    if (text.starts_with(L'\n') && EndsInBlanks(text, depth)) text.remove_suffix(depth);
    text.remove_prefix(std::min(text.find_first_not_of(lineBreaks), text.size()));
    return text.substr(0, text.find_last_not_of(lineBreaks) + 1);
}

bool ReadsBack(std::wstring_view text) noexcept {
    constexpr auto npos = std::wstring_view::npos;
    return text.find_first_of(L"<&") == npos && text.find(L"]]>") == npos &&
           std::all_of(text.begin(), text.end(), IsXmlCharacter);
}

}  // namespace qz
