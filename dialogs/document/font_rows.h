// The fonts of a document as they are listed.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace qz {

inline constexpr int embeddingLevelCount = 3;
inline constexpr int partialEmbedding = 1;

struct FontRow {
    std::wstring name;
    std::wstring type;
    int level = 0;  ///< 0 not embedded, 1 partially, 2 fully.
    std::wstring encoding;

    bool operator==(const FontRow&) const = default;
};

/// Whether the name is that of a part of a font: "+" with something after it.
bool IsSubsetName(std::wstring_view name) noexcept;

/// The level that an attribute's value means; what is no level is none.
int EmbeddingLevel(long value) noexcept;

enum class FontColumn { Name, Type, Embedding, Encoding };

struct FontOrder {
    FontColumn column = FontColumn::Name;
    bool descending = false;
};

/// Compares two texts as the user's language orders them: less than, equal to or greater than 0.
using TextComparison = std::function<int(const std::wstring&, const std::wstring&)>;

/// The places of the rows, in that order; rows that are equal in it stay as they are.
std::vector<std::size_t> SortedPlaces(const std::vector<FontRow>& rows, FontOrder order,
                                      const TextComparison& compare);

}  // namespace qz
