// What the user types into the status bar.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace qz {

/// The zooms that a host takes, in percent.
inline constexpr std::int32_t smallestZoom = 10;
inline constexpr std::int32_t largestZoom = 1000;

/// The page that a text such as "5" or "5 / 12" names, brought into 1..`count`; none for any other text, or
/// in a document without pages. What stands behind the slash is not looked at, but must be a number.
std::optional<std::int32_t> ParsePage(std::wstring_view text, std::int32_t count);

/// The zoom in percent that a text such as "75" or "75 %" names, brought into the range that hosts take; none
/// for any other text.
std::optional<std::int32_t> ParseZoom(std::wstring_view text);

}  // namespace qz
