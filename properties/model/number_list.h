// Lists of whole numbers as text: "1; 2; 3".
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace qz {

/// The numbers between blanks, commas, semicolons and line breaks; none for an empty text. Nothing when a
/// piece is no whole number of the size that an attribute of this type holds: 16 bits for type 8194, 32 for
/// others.
std::optional<std::vector<std::int32_t>> NumbersOf(std::wstring_view text, std::uint32_t type);

std::wstring TextOf(std::span<const std::int32_t> numbers);

}  // namespace qz
