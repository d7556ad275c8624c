#include "sample/document/text.h"

#include <algorithm>
#include <cstdint>
#include <cwctype>

namespace qz::sample {

namespace {

constexpr char32_t replacement = 0xFFFD;

/// Takes one character off the front of a UTF-8 text.
char32_t TakeUtf8(std::string_view& text) {
    const auto byte = [&](size_t i) { return static_cast<uint8_t>(i < text.size() ? text[i] : 0); };
    const uint8_t lead = byte(0);
    const size_t length = lead < 0x80         ? 1
                          : (lead >> 5) == 6  ? 2
                          : (lead >> 4) == 14 ? 3
                          : (lead >> 3) == 30 ? 4
                                              : 0;
    char32_t character = length == 1 ? lead : lead & (0xFF >> (length + 1));
    bool whole = length > 0;
    for (size_t i = 1; whole && i < length; ++i) {
        whole = (byte(i) >> 6) == 2;
        character = (character << 6) | (byte(i) & 0x3F);
    }
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    whole = whole && character >= smallest[length] && character <= 0x10FFFF &&
            !(character >= 0xD800 && character <= 0xDFFF);
    text.remove_prefix(whole ? length : 1);
    return whole ? character : replacement;
}

/// Takes one character off the front of a wide text.
char32_t TakeWide(std::wstring_view& text) {
    const auto unit = static_cast<char32_t>(text[0]);
    const bool pair =
        unit >= 0xD800 && unit <= 0xDBFF && text.size() > 1 && text[1] >= 0xDC00 && text[1] <= 0xDFFF;
    if (pair) {
        const char32_t low = static_cast<char32_t>(text[1]) - 0xDC00;
        text.remove_prefix(2);
        return 0x10000 + ((unit - 0xD800) << 10) + low;
    }
    text.remove_prefix(1);
    const bool lone = (unit >= 0xD800 && unit <= 0xDFFF) || unit > 0x10FFFF;
    return lone ? replacement : unit;
}

void AppendWide(std::wstring& to, char32_t character) {
    if (sizeof(wchar_t) == 2 && character > 0xFFFF) {
        to += static_cast<wchar_t>(0xD800 + ((character - 0x10000) >> 10));
        to += static_cast<wchar_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
    } else {
        to += static_cast<wchar_t>(character);
    }
}

void AppendUtf8(std::string& to, char32_t character) {
    const int following = character < 0x80 ? 0 : character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
    constexpr uint8_t leads[] = {0, 0xC0, 0xE0, 0xF0};
    to += static_cast<char>(leads[following] | (character >> (6 * following)));
    for (int i = following - 1; i >= 0; --i) to += static_cast<char>(0x80 | ((character >> (6 * i)) & 0x3F));
}

}  // namespace

std::wstring FromUtf8(std::string_view text) {
    std::wstring wide;
    wide.reserve(text.size());
    while (!text.empty()) AppendWide(wide, TakeUtf8(text));
    return wide;
}

std::string ToUtf8(std::wstring_view text) {
    std::string narrow;
    narrow.reserve(text.size());
    while (!text.empty()) AppendUtf8(narrow, TakeWide(text));
    return narrow;
}

bool EqualIgnoringCase(std::wstring_view a, std::wstring_view b) {
    return std::ranges::equal(a, b,
                              [](wchar_t x, wchar_t y) { return std::towlower(x) == std::towlower(y); });
}

}  // namespace qz::sample
