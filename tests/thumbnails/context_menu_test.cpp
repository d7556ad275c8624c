// The pane's context menu.
#include "pages_fixture.h"

namespace qz {
namespace {

/// What was in the menu that came up.
struct MenuSeen {
    std::vector<std::wstring> texts;
    std::vector<bool> enabled;
    POINT corner{};
};

class ContextMenu : public PagesTest {
  protected:
    void TearDown() override {
        if (OpenClipboard(nullptr)) {
            EmptyClipboard();
            CloseClipboard();
        }
    }

    /// Asks for the menu at a screen point and chooses the entry of that id by the keyboard; 0 leaves it.
    MenuSeen Ask(LPARAM where, int entry = -1) {
        seen_ = {};
        entry_ = entry;
        const UINT_PTR timer = SetTimer(nullptr, 0, 30, &OnTimer);
        SendMessageW(PaneWindow(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(PaneWindow()), where);
        KillTimer(nullptr, timer);  // still there when no menu came up
        return seen_;
    }
    /// A point no request was made at before, since a repeated message is ignored.
    LPARAM Anew() { return MAKELPARAM(30 + ++requests_, 40); }

  private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR timer, DWORD) {
        const HWND window = FindWindowW(L"#32768", nullptr);
        if (!window) return;
        KillTimer(nullptr, timer);
        const HMENU menu = reinterpret_cast<HMENU>(SendMessageW(window, 0x01E1 /* MN_GETHMENU */, 0, 0));
        RECT place{};
        GetWindowRect(window, &place);
        seen_.corner = {place.left, place.top};
        for (int i = 0; i < GetMenuItemCount(menu); ++i) {
            wchar_t text[64] = {};
            GetMenuStringW(menu, static_cast<UINT>(i), text, 64, MF_BYPOSITION);
            seen_.texts.push_back(text);
            seen_.enabled.push_back(!(GetMenuState(menu, static_cast<UINT>(i), MF_BYPOSITION) & MF_GRAYED));
        }
        for (int i = 0; i <= entry_; ++i) PostMessageW(window, WM_KEYDOWN, VK_DOWN, 0);
        PostMessageW(window, WM_KEYDOWN, entry_ >= 0 ? VK_RETURN : VK_ESCAPE, 0);
    }

    static inline MenuSeen seen_;
    static inline int entry_ = -1;
    int requests_ = 0;
};

TEST_F(ContextMenu, EntriesFollowSelectionAndClipboard) {
    MenuSeen menu = Ask(Anew());
    EXPECT_EQ(menu.texts, (std::vector<std::wstring>{L"Cut", L"Copy", L"Paste", L"Delete"}));
    EXPECT_EQ(menu.enabled, (std::vector<bool>{false, false, false, false}));
    Select({2, 3});
    EXPECT_EQ(Ask(Anew()).enabled, (std::vector<bool>{true, true, false, true}));
    ControlKey('C');
    EXPECT_EQ(Ask(Anew()).enabled, (std::vector<bool>{true, true, true, true}));
    ControlKey('A');
    EXPECT_EQ(Ask(Anew()).enabled, (std::vector<bool>{false, true, true, false}));
    Key(VK_ESCAPE);
    EXPECT_EQ(Ask(Anew()).enabled, (std::vector<bool>{false, false, false, false}));
}

TEST_F(ContextMenu, EntriesRunTheirCommands) {
    Select({2, 3});
    Ask(Anew(), 0);
    EXPECT_EQ(Order(), (PageList{0, 3, 4, 5, 6, 7})) << "cut";
    for (const std::string& event : TakeEvents()) EXPECT_NE(event[0], '2') << "cutting is not asked about";
    Select({4});
    Ask(Anew(), 2);
    EXPECT_EQ(Order(), (PageList{0, 3, 4, 5, 1, 2, 6, 7})) << "pasted after the selected page";
    const Events transfer = TakeEvents();
    EXPECT_EQ(Events(transfer.end() - 2, transfer.end()), (Events{"5:2,1,&1", "5:-1,0,&1"}));
    Select({1});
    Ask(Anew(), 3);
    EXPECT_EQ(Order(), (PageList{3, 4, 5, 1, 2, 6, 7})) << "deleted";
    EXPECT_EQ(TakeEvents().back(), "2:&1");
}

TEST_F(ContextMenu, EventComesFirstWithSignedCoordinates) {
    events->answers[6] = 0;
    const MenuSeen menu = Ask(MAKELPARAM(static_cast<WORD>(-7), 300));
    EXPECT_TRUE(menu.texts.empty());
    EXPECT_EQ(TakeEvents(), (Events{"6:-7,300,&1"}));
    SendMessageW(PaneWindow(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(PaneWindow()),
                 MAKELPARAM(static_cast<WORD>(-7), 300));
    EXPECT_EQ(TakeEvents(), Events{}) << "the very message again";
}

TEST_F(ContextMenu, KeyboardOpensItOnTheSelectedThumbnail) {
    Select({8});
    const MenuSeen menu = Ask(-1);
    EXPECT_EQ(menu.texts.size(), 4u);
    POINT corner = menu.corner;
    ScreenToClient(PaneWindow(), &corner);
    const POINT middle = PointOn(8);
    EXPECT_LT(std::abs(corner.x - middle.x), 50);
    EXPECT_LT(std::abs(corner.y - middle.y), 60);
    EXPECT_GT(ScrollPosition(), 0) << "scrolled to, first";
}

TEST_F(ContextMenu, SettingsSwitchItOff) {
    pane->SettingsChange(0, qzThumbnailCtrlSettings_ContextMenu);
    EXPECT_TRUE(Ask(Anew()).texts.empty());
    EXPECT_EQ(TakeEvents(), Events{});
    pane->SettingsChange(1, qzThumbnailCtrlSettings_ContextMenu);
    EXPECT_EQ(Ask(Anew()).texts.size(), 4u);
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
