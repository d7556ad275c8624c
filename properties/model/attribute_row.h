// An attribute as the host reports it, and where it is shown.
#pragma once

#include <cstdint>
#include <string>

namespace qz {

/// The tab of all attributes, always the last.
inline constexpr wchar_t allTab = L'0';

/// The part of a category that decides on tab, list and editor alike: a character code.
constexpr wchar_t TabCodeOf(std::uint32_t category) noexcept { return static_cast<wchar_t>(category & 0xFF); }

struct AttributeRow {
    std::uint32_t category = 0;  ///< 0: not shown.
    std::uint32_t flags = 0;     ///< Bit 0 hidden, bit 1 read-only.
    std::wstring name{};
    std::int32_t index = 0;  ///< Place in the object's collection of attributes.
    std::uint32_t type = 0;  ///< See attribute_types.h.
    std::wstring description{};
};

/// Whether the inspector shows the attribute at all.
inline bool IsListed(const AttributeRow& row) noexcept { return row.category != 0 && (row.flags & 1) == 0; }

inline bool IsReadOnly(const AttributeRow& row) noexcept { return (row.flags & 2) != 0; }

/// Whether a listed attribute is listed under that tab.
inline bool IsIn(const AttributeRow& row, wchar_t tab) noexcept {
    return tab == allTab || TabCodeOf(row.category) == tab;
}

}  // namespace qz
