// The tabs of the inspector: one for each category that an object's attributes have.
#pragma once

#include "properties/model/attribute_row.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace qz {

struct CategoryTab {
    wchar_t code;
    unsigned textId;  ///< Of the label in the string table.
};

/// Every tab there is, "All" last.
std::span<const CategoryTab> CategoryTabs() noexcept;

/// The string id of a tab's label; 0 for a code that has no tab.
unsigned TextIdOfTab(wchar_t code) noexcept;

/// The codes of the tabs that these attributes need, in the order in which their categories first occur, and
/// "All" behind them. Attributes that are not listed count for nothing; those of a category without tab are
/// under "All" only.
std::vector<wchar_t> TabsOf(std::span<const AttributeRow> rows);

/// The index of the tab of the category remembered, of the last tab when there is none; 0 without tabs.
std::size_t TabToSelect(std::span<const wchar_t> tabs, std::uint32_t remembered) noexcept;

}  // namespace qz
