// The bracketed lists in which a document's layer configuration is written, such as "(A)[(B)(C)](D)".
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace qz {

/// A name keeps at most so many characters.
inline constexpr std::size_t longestLayerName = 259;

/// The tree has at most so many levels: a tree view recurses when it deletes, and the stack has an end.
inline constexpr std::size_t mostLayerLevels = 4'000;

/// No item: the top of the tree.
inline constexpr std::size_t noItem = static_cast<std::size_t>(-1);

/// A name in the order of layers, and the place of the one it stands below.
struct OrderedName {
    std::wstring name;
    std::size_t parent = noItem;

    bool operator==(const OrderedName&) const = default;
};

/// The three functions take any text whatever: what is outside parentheses and no bracket is skipped,
/// brackets and parentheses need not be balanced, a name without end is none. In a name all but letters,
/// digits, blank,
/// "-", ":" and "_" is dropped, parentheses and brackets too. One pass, no recursion.

/// The tree, each item before those below it. An opening bracket makes the last item the parent of what
/// follows, a closing one goes back to that parent's own. Names nested deeper than the tree has levels stand
/// on its last one.
std::vector<OrderedName> ParseLayerOrder(std::wstring_view text);

/// The names in each bracketed group; of nested brackets the innermost. Names outside brackets are skipped.
std::vector<std::vector<std::wstring>> ParseLayerGroups(std::wstring_view text);

/// The names, whatever the brackets.
std::vector<std::wstring> ParseLayerNames(std::wstring_view text);

}  // namespace qz
