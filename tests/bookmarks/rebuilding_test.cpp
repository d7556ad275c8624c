// Attaching and rebuilding: what the tree shows, which calls the host gets, and when SizeToZero comes.
#include "outline_fixture.h"

namespace qz {
namespace {

using Events = std::vector<std::string>;

class Rebuilding : public OutlineTest {
  protected:
    long AutoRefresh() const {
        long flag = -1;
        host->GetAutoRefresh(&flag);
        return flag;
    }
};

TEST_F(Rebuilding, InitializeShowsTheTopLevelCollapsed) {
    ShowOutline();
    EXPECT_EQ(Shown(), L"A+ B C+");
    const HTREEITEM placeholder = Next(TVGN_CHILD, Next(TVGN_ROOT));
    EXPECT_EQ(Item(placeholder).lParam, 0);
    EXPECT_EQ(Next(TVGN_NEXT, placeholder), nullptr);
    EXPECT_EQ(Next(TVGN_CARET), nullptr);
    EXPECT_EQ(events->TakeEvents(), Events{});
    EXPECT_EQ(AutoRefresh(), 1);

    const auto other = MakeHost(1);
    EXPECT_EQ(pane->Initialize(other.Get()), S_OK);
    EXPECT_EQ(SinkCount(host.Get()), 0);
    EXPECT_EQ(SinkCount(other.Get()), 1);
    EXPECT_EQ(Shown(), L"");
    EXPECT_EQ(events->TakeEvents(), Events{"2"});
}

TEST_F(Rebuilding, AnEmptyOutlineRaisesOneSizeToZeroEachTime) {
    Show();
    EXPECT_EQ(pane->Initialize(host.Get()), S_OK);
    EXPECT_EQ(events->TakeEvents(), Events{"2"});
    EXPECT_EQ(pane->Refresh(), S_OK);
    EXPECT_EQ(events->TakeEvents(), Events{"2"});
    EXPECT_EQ(pane->ExpandAll(), S_OK);
    EXPECT_EQ(events->TakeEvents(), Events{"2"});
    host->RaiseChange(0x8000);
    EXPECT_EQ(events->TakeEvents(), Events{"2"});
}

TEST_F(Rebuilding, TheHostsChangesAreFollowedByTheirFlags) {
    ShowOutline();
    Expand(Find(L"A"));
    host->ClearLog();
    host->RaiseChange(0x1);
    EXPECT_EQ(CallCount(host.Get(), L"GetDocumentMode"), 1);
    host->RaiseChange(0x7FFE);
    EXPECT_EQ(CallCount(host.Get(), L"GetDocumentMode"), 1);
    EXPECT_EQ(CallCount(host.Get(), L"GetBookmarks"), 0);
    EXPECT_EQ(Shown(), L"A[A1+ A2] B C+");
    AddBookmark(root.Get(), L"D");
    EXPECT_EQ(Shown(), L"A+ B C+ D");
    EXPECT_EQ(AutoRefresh(), 1);
}

TEST_F(Rebuilding, WithoutAWindowTheTreeIsFilledWhenItComes) {
    AddSmallOutline();
    ASSERT_EQ(pane->Initialize(host.Get()), S_OK);
    EXPECT_EQ(events->TakeEvents(), Events{});
    EXPECT_EQ(pane->ExpandAll(), S_OK);
    EXPECT_EQ(pane->CollapseAll(), S_OK);
    Show();
    EXPECT_EQ(Shown(), L"A+ B C+");
    window.reset();
    Show();
    EXPECT_EQ(Shown(), L"A+ B C+");
}

TEST_F(Rebuilding, EveryBookmarkIsGivenBack) {
    AddSmallOutline();
    host->SetAutoRefresh(0);  // no change events while the references are counted
    const ULONG before = ReferencesOf(host.Get());
    Show();
    ASSERT_EQ(pane->Initialize(host.Get()), S_OK);
    ASSERT_EQ(pane->ExpandAll(), S_OK);
    auto* const bookmark = reinterpret_cast<IUnknown*>(Item(Find(L"A1a")).lParam);
    bookmark->AddRef();
    EXPECT_EQ(ReferencesOf(bookmark), 2u) << "an item counts its bookmark once";
    EXPECT_EQ(pane->Refresh(), S_OK);
    EXPECT_EQ(ReferencesOf(bookmark), 1u);
    bookmark->Release();

    ASSERT_EQ(pane->ExpandAll(), S_OK);
    auto* const another = reinterpret_cast<IUnknown*>(Item(Find(L"C1")).lParam);
    another->AddRef();
    window.reset();
    EXPECT_EQ(ReferencesOf(another), 1u) << "the window went";
    another->Release();
    events->Disconnect();
    pane.Reset();
    EXPECT_EQ(ReferencesOf(host.Get()), before);
}

TEST_F(Rebuilding, WhatIsNoHostIsRefused) {
    ShowOutline();
    EXPECT_EQ(pane->Initialize(nullptr), E_INVALIDARG);
    EXPECT_NE(TakeErrorText(), L"");
    EXPECT_EQ(pane->Initialize(root.Get()), E_NOINTERFACE);
    EXPECT_EQ(pane->InitializeV(_variant_t(5L)), E_INVALIDARG);
    EXPECT_EQ(pane->InitializeV(_variant_t()), E_INVALIDARG);
    EXPECT_EQ(pane->InitializeV(_variant_t(static_cast<IDispatch*>(nullptr))), E_INVALIDARG);
    EXPECT_EQ(Shown(), L"A+ B C+") << "the pane keeps the host it has";

    IDispatch* held = host.Get();
    VARIANT reference{};
    reference.vt = VT_BYREF | VT_DISPATCH;
    reference.ppdispVal = &held;
    EXPECT_EQ(pane->InitializeV(reference), S_OK);
    EXPECT_EQ(pane->InitializeV(_variant_t(static_cast<IUnknown*>(host.Get()))), S_OK);
    EXPECT_EQ(SinkCount(host.Get()), 1);
}

TEST_F(Rebuilding, ASinkMayDoAnythingInSizeToZero) {
    Show();
    events->actions[2] = [this] { EXPECT_EQ(pane->Refresh(), S_OK); };
    EXPECT_EQ(pane->Initialize(host.Get()), S_OK);
    EXPECT_EQ(events->TakeEvents(), Events{"2"}) << "a rebuild does not contain another";
    const auto other = MakeHost(1);
    events->actions[2] = [&] {
        events->actions.clear();
        EXPECT_EQ(pane->Initialize(other.Get()), S_OK);
    };
    pane->Refresh();
    EXPECT_EQ(SinkCount(other.Get()), 1);
    EXPECT_EQ(SinkCount(host.Get()), 0);
    EXPECT_EQ(AutoRefresh(), 1);
    events->actions[2] = [this] {
        events->Disconnect();
        window.reset();
        pane.Reset();
    };
    IqzBookmarkCtrl* const last = pane.Get();
    last->Refresh();
    EXPECT_EQ(SinkCount(other.Get()), 0);
}

}  // namespace
}  // namespace qz
