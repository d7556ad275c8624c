// What the user does with the pane, and the events that he causes.
#include "layers_fixture.h"
#include "tests/support/during_modal.h"
#include "tests/support/menu_answer.h"

namespace qz {
namespace {

class LayersUsing : public LayersTest {};

TEST_F(LayersUsing, CheckMarkTogglesInOneSuspendedRefresh) {
    Configure(L"ABcDE", L"(A)[(B)[(D)](c)](E)");
    Open();
    Click(L"A", Part::Check);
    EXPECT_EQ(TakeWrites(), L"( -A -B -D )");
    EXPECT_EQ(Items(), L"-A[-B[-D] -c] +E");
    EXPECT_EQ(HostStates(), L"-A-B-c-D+E");
    Click(L"A", Part::Check);
    EXPECT_EQ(TakeWrites(), L"( +A +B +D )");
    Click(L"E", Part::Check);
    EXPECT_EQ(TakeWrites(), L"( -E )");
    long refresh = 0;
    host->GetAutoRefresh(&refresh);
    EXPECT_EQ(refresh, 1);
}

TEST_F(LayersUsing, OnlyTheCheckMarkToggles) {
    Configure(L"AB", L"(A)[(B)](Heading)[(B)](Bare)");
    Open();
    for (const Part part : {Part::Row, Part::Text, Part::Expand}) Click(L"A", part);
    Click(L"Heading", Part::Text);
    Click(L"Heading", Part::Check);
    Click(L"Bare", Part::Check);
    EXPECT_EQ(TakeWrites(), L"");
    EXPECT_EQ(Items(), L"+A[+B] *Heading[+B] *Bare");
}

TEST_F(LayersUsing, ExpandMarkAndDoubleClick) {
    Configure(L"AB", L"(A)[(B)](Heading)[(A)]");
    Open();
    Click(L"A", Part::Expand);
    EXPECT_TRUE(Expanded(L"A"));
    Click(L"A", Part::Text, WM_LBUTTONDBLCLK);
    EXPECT_FALSE(Expanded(L"A"));
    Click(L"A", Part::Check, WM_LBUTTONDBLCLK);
    Click(L"A", Part::Row, WM_LBUTTONDBLCLK);
    EXPECT_FALSE(Expanded(L"A"));
    Click(L"Heading", Part::Text, WM_LBUTTONDBLCLK);
    EXPECT_TRUE(Expanded(L"Heading"));
    EXPECT_EQ(TakeWrites(), L"");
}

TEST_F(LayersUsing, KeysMoveExpandAndToggle) {
    Configure(L"ABCd", L"(A)[(B)](C)(d)");
    Connect();
    Open();
    Key(VK_HOME);
    EXPECT_EQ(Selected(), Item(L"A"));
    Key(VK_SPACE);
    EXPECT_EQ(HostStates(), L"-A-B+C-d");
    SendMessageW(Tree(), WM_KEYDOWN, VK_SPACE, 0x40000001);
    EXPECT_EQ(HostStates(), L"-A-B+C-d") << "a key held down toggles once";
    Key(VK_SPACE);
    Key(VK_RIGHT);
    EXPECT_TRUE(Expanded(L"A"));
    Key(VK_DOWN);
    EXPECT_EQ(Selected(), Item(L"B"));
    Key(VK_END);
    EXPECT_EQ(Selected(), Item(L"d"));
    SendMessageW(Tree(), WM_CHAR, L'c', 1);
    EXPECT_EQ(Selected(), Item(L"C"));
    EXPECT_EQ(events->TakeEvents(), Events(3, "1:&1"));
}

TEST_F(LayersUsing, SelectionMayBeVetoed) {
    Configure(L"AB", L"(A)(B)");
    Connect();
    Open();
    Click(L"A", Part::Text);
    EXPECT_EQ(Selected(), Item(L"A"));
    Click(L"A", Part::Row);
    EXPECT_EQ(events->TakeEvents(), Events{"1:&1"}) << "selected already";
    events->answers[1] = 0;
    events->answers[3] = 0;  // no menu
    Click(L"B", Part::Row);
    Key(VK_DOWN);
    Click(L"B", Part::Text, WM_RBUTTONDOWN);
    EXPECT_EQ(Selected(), Item(L"A"));
    Click(L"B", Part::Check);
    EXPECT_EQ(HostStates(), L"+A-B") << "no selection is needed to toggle";
    EXPECT_EQ(pane->Refresh(), S_OK);
    EXPECT_EQ(Selected(), Item(L"A")) << "kept";
}

TEST_F(LayersUsing, LayerBelowAHiddenOneIsRefused) {
    Configure(L"aB", L"(a)[(B)]");
    HostState(L"B", L"OFF");
    Connect();
    Open();
    events->answers[2] = 0;
    Click(L"B", Part::Check);
    EXPECT_EQ(events->TakeEvents(), Events{"2:1,&1"});
    EXPECT_EQ(TakeWrites(), L"");
    events->answers.clear();
    static std::wstring message;
    message.clear();
    SetTimer(nullptr, 0, 30, [](HWND, UINT, UINT_PTR timer, DWORD) {
        const HWND box = FindWindowW(L"#32770", nullptr);
        if (!box) return;
        KillTimer(nullptr, timer);
        wchar_t text[200] = {};
        GetDlgItemTextW(box, 0xFFFF, text, 200);
        message = text;
        PostMessageW(box, WM_COMMAND, IDOK, 0);
    });
    Click(L"B", Part::Check);
    EXPECT_EQ(message, L"This layer cannot be shown because the layer above it is hidden.");
    Click(L"a", Part::Check);
    Click(L"B", Part::Check);
    EXPECT_EQ(HostStates(), L"+a+B");
}

TEST_F(LayersUsing, LockedRefusesEveryChange) {
    Configure(L"AB", L"(A)(B)");
    Open();
    Click(L"A", Part::Check);
    pane->put_Locked(1);
    Click(L"B", Part::Check);
    Key(VK_HOME);
    Key(VK_SPACE);
    EXPECT_EQ(pane->ResetToInitialVisibility(), E_ACCESSDENIED);
    EXPECT_NE(TakeErrorText(), L"");
    EXPECT_EQ(HostStates(), L"-A+B");
    EXPECT_EQ(Selected(), Item(L"A")) << "looking is free";
    pane->put_Locked(0);
    EXPECT_EQ(pane->ResetToInitialVisibility(), S_OK);
    EXPECT_EQ(HostStates(), L"+A+B");
}

TEST_F(LayersUsing, PropertiesOpenADialogOnTheLayer) {
    Configure(L"A", L"(A)");
    Open();
    EXPECT_EQ(pane->LayerProperties(), E_FAIL) << "no layer is selected";
    EXPECT_NE(TakeErrorText(), L"");
    Click(L"A", Part::Text);
    wchar_t caption[100] = L"";
    const DuringModal during([&] {
        const HWND dialog = GetAncestor(GetActiveWindow(), GA_ROOT);
        GetWindowTextW(dialog, caption, 100);
        SendMessageW(dialog, WM_CLOSE, 0, 0);
    });
    EXPECT_EQ(pane->LayerProperties(), S_OK);
    EXPECT_STREQ(caption, L"Properties for: A");
}

class LayersMenu : public LayersTest {
  protected:
    /// What the menu on an item offers, by key (without a text) on the selected one; runs one of its entries.
    std::wstring Ask(const std::wstring& text, int entry = 0) const {
        const MenuAnswer answer(entry);
        if (text.empty()) {
            SendMessageW(Tree(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(Tree()), -1);
        } else {
            Click(text, Part::Text, WM_RBUTTONDOWN);
        }
        return answer.Offered();
    }
};

TEST_F(LayersMenu, EntriesRunTheirCommands) {
    Configure(L"ABcD", L"(A)[(B)](c)(D)");
    Open();
    EXPECT_EQ(Ask(L"D", 1),
              L"Show Only This Layer|Show All Layers|Hide All Layers|Reset to Initial "
              L"Visibility|Properties...|");
    EXPECT_EQ(Selected(), Item(L"D"));
    EXPECT_EQ(TakeWrites(), L"( -A -B )");
    Ask(L"c", 2);
    EXPECT_EQ(HostStates(), L"+A+B+c+D");
    Ask(L"A", 3);
    EXPECT_EQ(HostStates(), L"-A-B-c-D");
    Ask(L"c", 4);
    EXPECT_EQ(HostStates(), L"+A+B-c+D");
}

TEST_F(LayersMenu, GreyedWithNothingToDo) {
    Configure(L"A", L"(Heading)[(A)]");
    Open();
    EXPECT_TRUE(Ask(L"Heading").starts_with(L"~Show Only This Layer|Show All Layers|Hide"));
    pane->put_Locked(1);
    EXPECT_TRUE(Ask(L"").starts_with(L"~Show Only This Layer|~Show All Layers|~Hide All Layers|~Reset"));
    pane->put_ListLayers(qzLayersCtrlListLayers_None);
    EXPECT_NE(Ask(L""), L"") << "an empty tree";
}

TEST_F(LayersMenu, GreyedWhereTheContainerRefusedTheSelection) {
    Configure(L"AB", L"(A)(B)");
    Connect();
    Open();
    Click(L"A", Part::Text);
    events->answers[1] = 0;
    const std::wstring menu = Ask(L"B", 1);
    EXPECT_TRUE(menu.starts_with(L"~Show Only This Layer|Show All Layers|")) << testing::PrintToString(menu);
    EXPECT_TRUE(menu.ends_with(L"|~Properties...|")) << testing::PrintToString(menu);
    EXPECT_EQ(HostStates(), L"+A+B");
    EXPECT_EQ(Selected(), Item(L"A"));
    EXPECT_TRUE(Ask(L"A").starts_with(L"Show Only This Layer|")) << "on the selected one";
    EXPECT_TRUE(Ask(L"").starts_with(L"Show Only This Layer|")) << "by key";
}

TEST_F(LayersMenu, EventComesFirst) {
    Configure(L"A", L"(A)");
    Connect();
    Open();
    events->answers[3] = 0;
    const LPARAM place = MAKELPARAM(static_cast<WORD>(-7), 30);
    SendMessageW(Tree(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(Tree()), place);
    EXPECT_EQ(events->TakeEvents(), Events{"3:-7,30,&1"});
    SendMessageW(window->Window(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(Tree()), place);
    EXPECT_EQ(events->TakeEvents(), Events{}) << "the very message again";
}

// In every event its listener closes, lets go or resets the pane.
TEST_F(LayersUsing, ListenersMayEndThePane) {
    for (const bool ends : {true, false}) {
        for (const DISPID event : {1, 2, 3, 4}) {
            module.Make(CLSID_qzLayersCtrl, pane);
            host = MakeHost(1);
            Configure(L"aB", L"(a)[(B)](a)");
            HostState(L"B", L"OFF");
            Connect();
            Open();
            Click(L"a", Part::Expand);
            bool called = false;
            events->actions[event == 4 ? 1 : event] = [&] {
                called = true;
                if (!ends) {
                    pane->Reset();
                    return;
                }
                events->Disconnect();
                End();
            };
            if (event == 1) Click(L"a", Part::Text);
            if (event == 2) Click(L"B", Part::Check);
            if (event == 3) SendMessageW(Tree(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(Tree()), event);
            if (event == 4) Key(VK_END);
            EXPECT_TRUE(called) << event;
            events->actions.clear();
            events->Disconnect();
            End();
        }
    }
}

}  // namespace
}  // namespace qz
