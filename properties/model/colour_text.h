// Colours as the colour editor shows them: a palette, and a field of hexadecimal digits. A colour has red in
// its lowest byte, then green and blue, and alpha in the top byte.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qz {

/// The attribute has no colour.
inline constexpr std::uint32_t noColour = 0xFFFFFFFF;

/// Opaque white. A top byte of 0 means opaque too; with 255 in it this would be "no colour".
inline constexpr std::uint32_t opaqueWhite = 0x00FFFFFF;

/// Red, green and blue of every combination of four levels, red varying slowest and blue fastest. All are
/// opaque: alpha is 255, but for white.
extern const std::array<std::uint32_t, 64> palette;

/// The place of a colour in the palette, if it is opaque (alpha 255 or 0) and there.
std::optional<std::size_t> PaletteIndexOf(std::uint32_t colour) noexcept;

/// "AARRGGBB"; alpha is shown as FF when the top byte is 0. Empty for `noColour`.
std::wstring ColourText(std::uint32_t colour);

/// "RRGGBB" (opaque) or "AARRGGBB", in either case; nothing for any other text. Never `noColour`.
std::optional<std::uint32_t> ColourOf(std::wstring_view text) noexcept;

/// Whether the field may hold this text, typed or pasted: at most eight characters, all hexadecimal digits.
bool IsColourText(std::wstring_view text) noexcept;

}  // namespace qz
