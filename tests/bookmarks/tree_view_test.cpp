// The tree window, in both orders of insertion: each platform takes only one of them.
#include "panes/common/tree_view.h"

#include <gtest/gtest.h>

namespace qz {
namespace {

using Names = std::vector<std::wstring>;

class TreeViewTest : public ::testing::TestWithParam<InsertionOrder> {
  protected:
    TreeViewTest() { tree.Create(frame, L"tree", 0, 1); }
    ~TreeViewTest() override { DestroyWindow(frame); }

    /// Gives the handles.
    std::vector<HTREEITEM> Insert(HTREEITEM parent, const Names& names) {
        const TreeRedrawScope redraw(tree);
        std::vector<TreeItem> items;
        for (const std::wstring& name : names) items.push_back({.text = name, .data = name.front()});
        tree.InsertChildren(parent, items, GetParam());
        std::vector<HTREEITEM> handles;
        for (const TreeItem& item : items) {
            EXPECT_EQ(tree.Text(item.handle), item.text);
            EXPECT_EQ(tree.Data(item.handle), item.data);
            handles.push_back(item.handle);
        }
        return handles;
    }
    Names From(HTREEITEM first) const {
        Names names;
        for (HTREEITEM item = first; item; item = tree.NextSibling(item)) names.push_back(tree.Text(item));
        return names;
    }

    HWND frame = CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200, 200, nullptr,
                                 nullptr, nullptr, nullptr);
    TreeView tree;
};

TEST_P(TreeViewTest, ChildrenStandInTheirOrderBehindThoseThatAreThere) {
    const auto top = Insert(TVI_ROOT, {L"a", L"b", L"c"});
    Insert(top[1], {L"1", L"2", L"3"});
    EXPECT_TRUE(tree.Expand(top[1], TVE_EXPAND));
    Insert(top[1], {L"4", L"5"});
    Insert(TVI_ROOT, {L"d", L"e"});
    EXPECT_EQ(From(tree.Root()), (Names{L"a", L"b", L"c", L"d", L"e"}));
    EXPECT_EQ(From(tree.FirstChild(top[1])), (Names{L"1", L"2", L"3", L"4", L"5"}));
    tree.DeleteChildren(top[1]);
    Insert(top[1], {L"6", L"7"});
    EXPECT_EQ(From(tree.FirstChild(top[1])), (Names{L"6", L"7"}));
}

INSTANTIATE_TEST_SUITE_P(Orders, TreeViewTest,
                         ::testing::Values(InsertionOrder::Appending, InsertionOrder::LastFirst));

}  // namespace
}  // namespace qz
