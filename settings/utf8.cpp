#include "settings/utf8.h"

#include <cstddef>

namespace qz {

namespace {

constexpr char32_t replacement = 0xFFFD;

constexpr bool IsHighSurrogate(char32_t unit) noexcept { return unit >= 0xD800 && unit < 0xDC00; }
constexpr bool IsLowSurrogate(char32_t unit) noexcept { return unit >= 0xDC00 && unit < 0xE000; }

/// The character at `place`, which moves behind it.
char32_t TakeCharacter(std::wstring_view text, std::size_t& place) noexcept {
    const auto unit = static_cast<char32_t>(text[place++]);
    if (IsHighSurrogate(unit) && place < text.size()) {
        const auto low = static_cast<char32_t>(text[place]);
        if (IsLowSurrogate(low)) {
            ++place;
            return 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
        }
    }
    const bool character = !IsHighSurrogate(unit) && !IsLowSurrogate(unit) && unit <= 0x10FFFF;
    return character ? unit : replacement;
}

void AppendCharacter(char32_t character, std::string& bytes) {
    const auto trailing = [&](int shift) {
        bytes += static_cast<char>(0x80 | ((character >> shift) & 0x3F));
    };
    if (character < 0x80) {
        bytes += static_cast<char>(character);
    } else if (character < 0x800) {
        bytes += static_cast<char>(0xC0 | (character >> 6));
        trailing(0);
    } else if (character < 0x10000) {
        bytes += static_cast<char>(0xE0 | (character >> 12));
        trailing(6);
        trailing(0);
    } else {
        bytes += static_cast<char>(0xF0 | (character >> 18));
        trailing(12);
        trailing(6);
        trailing(0);
    }
}

}  // namespace

void AppendUtf8(std::wstring_view text, std::string& bytes) {
    for (std::size_t place = 0; place < text.size();) AppendCharacter(TakeCharacter(text, place), bytes);
}

}  // namespace qz
