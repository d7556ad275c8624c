#include "properties/model/category_tabs.h"
#include "properties/model/inspector_memory.h"
#include "properties/model/selection_caption.h"

#include "tests/properties/ignoring_case.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

namespace qz {
namespace {

std::wstring TabsFor(std::initializer_list<AttributeRow> rows) {
    const std::vector<AttributeRow> all(rows);
    const std::vector<wchar_t> tabs = TabsOf(all);
    return {tabs.begin(), tabs.end()};
}

TEST(AttributeTabs, ComeInTheOrderOfTheirFirstAttributes) {
    EXPECT_EQ(TabsFor({{L'T', 0}, {L'*', 0}, {L'T', 0}, {L'A', 2}}), L"T*A0");
    EXPECT_EQ(TabsFor({{L'M', 1}, {0, 0}, {L'Z', 0}, {L'0', 0}, {0x100, 0}}), L"0");
    EXPECT_EQ(TabsFor({{L'E' | 0x4100, 0}, {L'E', 0}}), L"E0") << "the low byte decides";
}

TEST(AttributeTabs, AllShowsWhatNoTabShowsButNothingHidden) {
    const AttributeRow unknown{L'Z', 0};
    EXPECT_TRUE(IsListed(unknown) && IsIn(unknown, allTab) && !IsIn(unknown, L'E'));
    EXPECT_TRUE(IsIn({L'E' | 0x4100, 2}, L'E'));
    EXPECT_FALSE(IsListed({L'E', 3}));
    EXPECT_FALSE(IsListed({0, 0}));
    EXPECT_TRUE(IsReadOnly({L'E', 2}) && !IsReadOnly({L'E', 1}));
}

TEST(AttributeTabs, TheRememberedOneIsSelectedOrTheLast) {
    const wchar_t tabs[] = {L'T', L'E', L'0'};
    EXPECT_EQ(TabToSelect(tabs, L'E'), 1U);
    EXPECT_EQ(TabToSelect(tabs, L'A'), 2U);
    EXPECT_EQ(TabToSelect(tabs, L'E' | 0x10000), 2U);
    EXPECT_EQ(TabToSelect({}, L'E'), 0U);
}

TEST(InspectorMemory, KeepsNamesOfLessThan128Characters) {
    InspectorMemory memory;
    EXPECT_EQ(memory.Category(), std::uint32_t{L'0'});
    const std::wstring longest(127, L'n');
    memory.SetName(longest);
    EXPECT_EQ(memory.Name(), longest);
    memory.SetName(longest + L'n');
    EXPECT_EQ(memory.Name(), L"");
}

TEST(InspectorMemory, FindsANameInAnyCaseButNoEmptyOne) {
    const std::wstring names[] = {L"", L"Left", L"WIDTH", L"width"};
    EXPECT_EQ(FindName(names, L"Width", EqualIgnoringCase), 2U);
    EXPECT_EQ(FindName(names, L"Widt", EqualIgnoringCase), std::nullopt);
    EXPECT_EQ(FindName(names, L"", EqualIgnoringCase), std::nullopt);
}

TEST(SelectionCaption, NamesOneObjectOnly) {
    EXPECT_EQ(SelectionCaption(false, 3, L"a"), L"<no-object>");
    EXPECT_EQ(SelectionCaption(true, 2, L"a"), L"<multiple-selection>");
    EXPECT_EQ(SelectionCaption(true, 1, L""), L"<no-name>");
    EXPECT_EQ(SelectionCaption(true, 1, L"a"), L"a");
    EXPECT_EQ(SelectionCaption(true, 0, L""), L"") << "nothing is selected: the name as it is";
    EXPECT_EQ(SelectionCaption(true, std::nullopt, L"a"), L"a");
}

}  // namespace
}  // namespace qz
