#include "properties/model/colour_text.h"

#include <algorithm>

namespace qz {

namespace {

constexpr std::uint32_t opaque = 0xFF000000;
constexpr std::uint32_t alphaMask = 0xFF000000;

/// Red and blue change places: from the order in which colours are written to that in which they are held,
/// and back.
constexpr std::uint32_t Swapped(std::uint32_t colour) {
    return (colour & 0xFF00FF00) | (colour & 0xFF) << 16 | (colour >> 16 & 0xFF);
}

constexpr std::uint32_t WithoutNone(std::uint32_t colour) {
    return colour == noColour ? opaqueWhite : colour;
}

constexpr std::array<std::uint32_t, 64> MakePalette() {
    constexpr std::uint32_t step = 85;
    std::array<std::uint32_t, 64> colours{};
    for (std::uint32_t i = 0; i < colours.size(); ++i) {
        const std::uint32_t red = i / 16 * step;
        const std::uint32_t green = i / 4 % 4 * step;
        const std::uint32_t blue = i % 4 * step;
        colours[i] = WithoutNone(opaque | blue << 16 | green << 8 | red);
    }
    return colours;
}

std::optional<std::uint32_t> HexDigit(wchar_t character) noexcept {
    if (character >= L'0' && character <= L'9') return character - L'0';
    if (character >= L'a' && character <= L'f') return character - L'a' + 10;
    if (character >= L'A' && character <= L'F') return character - L'A' + 10;
    return std::nullopt;
}

}  // namespace

constexpr std::array<std::uint32_t, 64> palette = MakePalette();

std::optional<std::size_t> PaletteIndexOf(std::uint32_t colour) noexcept {
    const std::uint32_t alpha = colour & alphaMask;
    if (colour == noColour || (alpha != 0 && alpha != opaque)) return std::nullopt;
    const auto found = std::ranges::find(palette, WithoutNone(colour | opaque));
    if (found == palette.end()) return std::nullopt;
    return static_cast<std::size_t>(found - palette.begin());
}

std::wstring ColourText(std::uint32_t colour) {
    if (colour == noColour) return {};
    const std::uint32_t shown = Swapped((colour & alphaMask) == 0 ? colour | opaque : colour);
    std::wstring text;
    for (int shift = 28; shift >= 0; shift -= 4) text += L"0123456789ABCDEF"[shown >> shift & 0xF];
    return text;
}

std::optional<std::uint32_t> ColourOf(std::wstring_view text) noexcept {
    if (text.size() != 6 && text.size() != 8) return std::nullopt;
    std::uint32_t colour = text.size() == 6 ? 0xFF : 0;
    for (const wchar_t character : text) {
        const std::optional<std::uint32_t> digit = HexDigit(character);
        if (!digit) return std::nullopt;
        colour = colour << 4 | *digit;
    }
    return WithoutNone(Swapped(colour));
}

bool IsColourText(std::wstring_view text) noexcept {
    return text.size() <= 8 &&
           std::ranges::all_of(text, [](wchar_t character) { return HexDigit(character).has_value(); });
}

}  // namespace qz
