// The choices of an enumeration, each a label that begins with its number, as "2 Dashed".
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace qz {

struct Choice {
    std::wstring label;
    double number = 0;
};

/// The choices in their order. The number is what the leading digits say, with `real` the leading digits and
/// points. A label that begins with none, or with a whole number beyond 32 bits, could not be chosen and is
/// left out.
std::vector<Choice> ChoicesOf(std::span<const std::wstring> labels, bool real);

/// The number typed (its first 31 characters), when it lies between the first and the last choice's, which
/// are in ascending order; both included. Written as in the labels: with a full stop. Nothing for any other
/// text.
std::optional<double> TypedChoice(std::wstring_view text, std::span<const Choice> choices, bool real);

/// Whether typing on can make such a number of a text: "1" is on the way to 15, "159" no longer is.
bool MayBecomeChoice(std::wstring_view text, std::span<const Choice> choices, bool real);

}  // namespace qz
