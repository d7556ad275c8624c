// Values as the simple XML document writes them, whatever the user's locale.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qz {

/// True for every text that begins with "t".
bool BoolFromText(std::wstring_view text) noexcept;

/// "#RRGGBB" or "#AARRGGBB" to 0xAARRGGBB, alpha 255 when it is absent; nothing for any other text.
std::optional<std::uint32_t> ColourFromText(std::wstring_view text) noexcept;

/// Leading white space is passed over and what follows the number ignored; 0 when there is none.
/// Decimal, hexadecimal after "0x", "inf" and "nan". A number too large is infinite.
float FloatFromText(std::wstring_view text);

/// As above, decimal only; a number too large becomes the nearest of 32 bits.
std::int32_t IntegerFromText(std::wstring_view text);

inline const wchar_t* TextFromBool(bool value) noexcept { return value ? L"t" : L"f"; }

std::wstring TextFromInteger(std::int32_t value);

/// Six significant digits.
std::wstring TextFromFloat(float value);

}  // namespace qz
