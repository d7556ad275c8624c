#include "properties/model/category_tabs.h"

#include "res/text_ids.h"

#include <algorithm>
#include <iterator>

namespace qz {

namespace {

constexpr CategoryTab table[] = {
    {L'*', QZ_TEXT_CATEGORY_STANDARD}, {L'A', QZ_TEXT_CATEGORY_ADVANCED}, {L'B', QZ_TEXT_CATEGORY_BORDERS},
    {L'C', QZ_TEXT_CATEGORY_FILLS},    {L'D', QZ_TEXT_CATEGORY_DATA},     {L'E', QZ_TEXT_CATEGORY_TEXT},
    {L'F', QZ_TEXT_CATEGORY_SHADING},  {L'G', QZ_TEXT_CATEGORY_GROUP_1},  {L'H', QZ_TEXT_CATEGORY_GROUP_2},
    {L'I', QZ_TEXT_CATEGORY_DYNAMIC},  {L'M', QZ_TEXT_CATEGORY_METHODS},  {L'N', QZ_TEXT_CATEGORY_ACTIONS},
    {L'S', QZ_TEXT_CATEGORY_SECTION},  {L'T', QZ_TEXT_CATEGORY_CAPTION},  {L'X', QZ_TEXT_CATEGORY_METADATA},
    {allTab, QZ_TEXT_CATEGORY_ALL},
};

}  // namespace

std::span<const CategoryTab> CategoryTabs() noexcept { return table; }

unsigned TextIdOfTab(wchar_t code) noexcept {
    const CategoryTab* const found = std::ranges::find(table, code, &CategoryTab::code);
    return found == std::end(table) ? 0 : found->textId;
}

std::vector<wchar_t> TabsOf(std::span<const AttributeRow> rows) {
    std::vector<wchar_t> codes;
    for (const AttributeRow& row : rows) {
        const wchar_t code = TabCodeOf(row.category);
        // A category of "All" makes no second tab of that name.
        if (!IsListed(row) || code == allTab || TextIdOfTab(code) == 0) continue;
        if (std::ranges::find(codes, code) == codes.end()) codes.push_back(code);
    }
    codes.push_back(allTab);
    return codes;
}

std::size_t TabToSelect(std::span<const wchar_t> tabs, std::uint32_t remembered) noexcept {
    if (tabs.empty()) return 0;
    const auto found =
        std::ranges::find(tabs, remembered, [](wchar_t code) { return static_cast<std::uint32_t>(code); });
    return found == tabs.end() ? tabs.size() - 1 : static_cast<std::size_t>(found - tabs.begin());
}

}  // namespace qz
