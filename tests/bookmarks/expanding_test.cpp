// Expanding and collapsing: by message, by the user, and all at once.
#include "outline_fixture.h"

namespace qz {
namespace {

using Expanding = OutlineTest;

TEST_F(Expanding, ChildrenAreReadOnTheFirstExpansionOnly) {
    ShowOutline();
    host->ClearLog();
    EXPECT_TRUE(Expand(Find(L"A")));
    EXPECT_EQ(Shown(), L"A[A1+ A2] B C+");
    EXPECT_EQ(CallCount(host.Get(), L"Bookmark.Item"), 2);
    EXPECT_TRUE(Expand(Find(L"A"), TVE_COLLAPSE));
    EXPECT_EQ(Shown(), L"A- B C+");
    EXPECT_TRUE(Expand(Find(L"A"), TVE_TOGGLE));
    EXPECT_EQ(Shown(), L"A[A1+ A2] B C+");
    EXPECT_EQ(CallCount(host.Get(), L"Bookmark.Item"), 2);
}

TEST_F(Expanding, TheUserExpandsByButtonAndKeys) {
    ShowOutline();
    ClickButtonOf(Find(L"A"));
    EXPECT_EQ(Shown(), L"A[A1+ A2] B C+");
    ClickButtonOf(Find(L"A"));
    EXPECT_EQ(Shown(), L"A- B C+");
    SendMessageW(Tree(), TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(Find(L"C")));
    SendMessageW(Tree(), WM_KEYDOWN, VK_RIGHT, 0);
    EXPECT_EQ(Shown(), L"A- B C[C1]");
    SendMessageW(Tree(), TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(Find(L"A")));
    SendMessageW(Tree(), WM_KEYDOWN, VK_MULTIPLY, 0);
    EXPECT_EQ(Shown(), L"A[A1[A1a] A2] B C[C1]");
}

TEST_F(Expanding, ImagesFollowTheState) {
    ShowOutline();
    const auto image = [this](const wchar_t* title) { return Item(Find(title)).iImage; };
    const int collapsed = image(L"A");
    const int leaf = image(L"B");
    EXPECT_NE(collapsed, leaf);
    EXPECT_EQ(Item(Next(TVGN_CHILD, Find(L"A"))).iImage, leaf) << "the placeholder";
    Expand(Find(L"A"));
    const int expanded = image(L"A");
    EXPECT_NE(expanded, collapsed);
    EXPECT_NE(expanded, leaf);
    EXPECT_EQ(Item(Find(L"A")).iSelectedImage, expanded);
    EXPECT_EQ(image(L"A1"), collapsed);
    Expand(Find(L"A"), TVE_COLLAPSE);
    EXPECT_EQ(image(L"A"), collapsed);
    ClickButtonOf(Find(L"A"));
    EXPECT_EQ(image(L"A"), expanded);
    EXPECT_EQ(pane->ExpandAll(), S_OK);
    EXPECT_EQ(image(L"A1"), expanded);
    EXPECT_EQ(pane->CollapseAll(), S_OK);
    EXPECT_EQ(image(L"A1"), collapsed);
}

TEST_F(Expanding, AllAndNone) {
    ShowOutline();
    EXPECT_EQ(pane->ExpandAll(), S_OK);
    EXPECT_EQ(Shown(), L"A[A1[A1a] A2] B C[C1]");
    EXPECT_EQ(Next(TVGN_CARET), nullptr);
    EXPECT_EQ(pane->CollapseAll(), S_OK);
    EXPECT_EQ(Shown(), L"A- B C-");
    EXPECT_FALSE(Item(Find(L"A1")).state & TVIS_EXPANDED) << "also where nobody sees it";
    EXPECT_EQ(pane->Refresh(), S_OK);
    EXPECT_EQ(Shown(), L"A+ B C+");
}

TEST_F(Expanding, ABookmarkThatHasLostItsChildrenBecomesALeaf) {
    ShowOutline();
    host->SetAutoRefresh(0);  // the pane is not told
    ComPtr<IDispatch> c;
    root->get_Item(2, &c);
    ComPtr<IDispatch> c1;
    ComPtr<IHostBookmark> lost;
    ComPtr<IHostBookmark> parent;
    ASSERT_EQ(c.As(&parent), S_OK);
    parent->get_Item(0, &c1);
    ASSERT_EQ(c1.As(&lost), S_OK);
    lost->Remove();
    Expand(Find(L"C"));
    EXPECT_EQ(Shown(), L"A+ B C");
    EXPECT_EQ(Item(Find(L"C")).iImage, Item(Find(L"B")).iImage);
}

}  // namespace
}  // namespace qz
