// Lists of whole numbers as text, one a line.
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

/// With the line breaks of a field of several lines: one long line would be laid out again for each part of
/// it.
std::wstring TextOf(std::span<const std::int32_t> numbers);

}  // namespace qz
