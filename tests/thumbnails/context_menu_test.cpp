// The pane's context menu.
#include "pages_fixture.h"
#include "tests/support/menu_answer.h"

namespace qz {
namespace {

class ContextMenu : public PagesTest {
  protected:
    void TearDown() override {
        if (OpenClipboard(nullptr)) {
            EmptyClipboard();
            CloseClipboard();
        }
    }

    /// What the menu offers; runs one of its entries. Nothing without a menu.
    std::wstring Ask(LPARAM where, int entry = 0) const {
        const MenuAnswer answer(entry);
        SendMessageW(PaneWindow(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(PaneWindow()), where);
        return answer.Offered();
    }
    /// A place that was not asked for before: the very message again is no request.
    LPARAM Anew() { return MAKELPARAM(30 + ++requests_, 40); }

  private:
    int requests_ = 0;
};

TEST_F(ContextMenu, EntriesFollowSelectionAndClipboard) {
    EXPECT_EQ(Ask(Anew()), L"~Cut|~Copy|~Paste|~Delete|");
    Select({2, 3});
    EXPECT_EQ(Ask(Anew()), L"Cut|Copy|~Paste|Delete|");
    ControlKey('C');
    EXPECT_EQ(Ask(Anew()), L"Cut|Copy|Paste|Delete|");
    ControlKey('A');
    EXPECT_EQ(Ask(Anew()), L"~Cut|Copy|Paste|~Delete|");
    Key(VK_ESCAPE);
    EXPECT_EQ(Ask(Anew()), L"~Cut|~Copy|~Paste|~Delete|");
}

TEST_F(ContextMenu, EntriesRunTheirCommands) {
    Select({2, 3});
    Ask(Anew(), 1);
    EXPECT_EQ(Order(), (PageList{0, 3, 4, 5, 6, 7})) << "cut";
    for (const std::string& event : TakeEvents()) EXPECT_NE(event[0], '2') << "cutting is not asked about";
    Select({4});
    Ask(Anew(), 3);
    EXPECT_EQ(Order(), (PageList{0, 3, 4, 5, 1, 2, 6, 7})) << "pasted after the selected page";
    const Events transfer = TakeEvents();
    EXPECT_EQ(Events(transfer.end() - 2, transfer.end()), (Events{"5:2,1,&1", "5:-1,0,&1"}));
    Select({1});
    Ask(Anew(), 4);
    EXPECT_EQ(Order(), (PageList{3, 4, 5, 1, 2, 6, 7})) << "deleted";
    EXPECT_EQ(TakeEvents().back(), "2:&1");
}

TEST_F(ContextMenu, EventComesFirstWithSignedCoordinates) {
    events->answers[6] = 0;
    EXPECT_EQ(Ask(MAKELPARAM(static_cast<WORD>(-7), 300)), L"");
    EXPECT_EQ(TakeEvents(), (Events{"6:-7,300,&1"}));
    SendMessageW(PaneWindow(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(PaneWindow()),
                 MAKELPARAM(static_cast<WORD>(-7), 300));
    EXPECT_EQ(TakeEvents(), Events{}) << "the very message again";
}

TEST_F(ContextMenu, KeyboardOpensItOnTheSelectedThumbnail) {
    Select({8});
    EXPECT_NE(Ask(-1), L"");
    POINT corner = MenuAnswer::Corner();
    ScreenToClient(PaneWindow(), &corner);
    const POINT middle = PointOn(8);
    EXPECT_LT(std::abs(corner.x - middle.x), 50);
    EXPECT_LT(std::abs(corner.y - middle.y), 60);
    EXPECT_GT(ScrollPosition(), 0) << "scrolled to, first";
}

TEST_F(ContextMenu, SettingsSwitchItOff) {
    pane->SettingsChange(0, qzThumbnailCtrlSettings_ContextMenu);
    EXPECT_EQ(Ask(Anew()), L"");
    EXPECT_EQ(TakeEvents(), Events{});
    pane->SettingsChange(1, qzThumbnailCtrlSettings_ContextMenu);
    EXPECT_NE(Ask(Anew()), L"");
}

TEST_F(ContextMenu, ListenerMayEndThePane) {
    events->actions[6] = [&] {
        events->Disconnect();
        Close();
        pane.Reset();
    };
    Ask(Anew());
    EXPECT_FALSE(pane);
}

}  // namespace
}  // namespace qz
