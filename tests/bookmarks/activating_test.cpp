// Going where a bookmark leads, and what may happen meanwhile.
#include "outline_fixture.h"

namespace qz {
namespace {

class Activating : public OutlineTest {
  protected:
    long Page() const {
        long page = 0;
        host->GetCurrentPage(&page);
        return page;
    }
    void Select(const wchar_t* title) const {
        SendMessageW(Tree(), TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(Find(title)));
    }
    void Press(WPARAM key) const {
        SendMessageW(Tree(), WM_KEYDOWN, key, 0);
        SendMessageW(Tree(), WM_KEYUP, key, 0);
    }
    void DoubleClick(const wchar_t* title) const {
        const POINT at = PointOn(Find(title));
        const LPARAM place = MAKELPARAM(at.x, at.y);
        PostMessageW(Tree(), WM_LBUTTONUP, 0, place);  // the tree waits for it inside the press
        SendMessageW(Tree(), WM_LBUTTONDOWN, MK_LBUTTON, place);
        PumpMessages();
        SendMessageW(Tree(), WM_LBUTTONDBLCLK, MK_LBUTTON, place);
    }
};

TEST_F(Activating, ByEnterAndDoubleClick) {
    ShowOutline();
    Press(VK_RETURN);
    EXPECT_EQ(Page(), 1) << "nothing is selected";
    Select(L"B");
    EXPECT_EQ(Page(), 1) << "selecting alone goes nowhere";
    Press(VK_RETURN);
    EXPECT_EQ(Page(), 6);
    DoubleClick(L"A");
    EXPECT_EQ(Page(), 2);
    EXPECT_EQ(Shown(), L"A+ B C+") << "a double click does not expand as well";
    EXPECT_EQ(CallCount(host.Get(), L"SetAutoRefresh"), 2) << "only the first rebuild's";
}

TEST_F(Activating, MovingBeginsAtTheFirstItemWhenNoneIsSelected) {
    ShowOutline();
    for (const WPARAM key : {VK_RETURN, VK_MULTIPLY, VK_ADD, VK_BACK}) {
        Press(key);
        EXPECT_EQ(Next(TVGN_CARET), nullptr) << key;
    }
    EXPECT_EQ(Shown(), L"A+ B C+");
    for (const WPARAM key : {VK_DOWN, VK_UP, VK_HOME, VK_END, VK_NEXT, VK_PRIOR, VK_LEFT, VK_RIGHT}) {
        SendMessageW(Tree(), TVM_SELECTITEM, TVGN_CARET, 0);
        Press(key);
        EXPECT_EQ(TextOf(Next(TVGN_CARET)), L"A") << key;
    }
    EXPECT_EQ(Shown(), L"A+ B C+") << "and nothing is expanded";
    Press(VK_DOWN);
    EXPECT_EQ(TextOf(Next(TVGN_CARET)), L"B");
}

TEST_F(Activating, AHostThatFailsOrChangesTheOutline) {
    ShowOutline();
    host->FailOperation(_bstr_t(L"Bookmark.Activate"), E_FAIL);
    Select(L"B");
    Press(VK_RETURN);
    EXPECT_EQ(Page(), 1);
    host->ClearFaults();

    // Whoever hears of the new page replaces the outline, the pane with it, while the key is being handled.
    const auto listener = MakeObject<EventRecorder>();
    listener->Connect(host.Get(), __uuidof(_IVandraXEvents));
    listener->actions[5] = [&] {
        listener->actions.clear();
        AddBookmark(root.Get(), L"D");
    };
    Press(VK_RETURN);
    EXPECT_EQ(Page(), 6);
    EXPECT_EQ(Shown(), L"A+ B C+ D");

    listener->actions[5] = [&] {
        listener->actions.clear();
        events->Disconnect();
        window.reset();
        pane.Reset();
    };
    DoubleClick(L"A");
    EXPECT_EQ(Page(), 2);
    EXPECT_EQ(SinkCount(host.Get()), 1);
    listener->Disconnect();
}

TEST_F(Activating, TheTreeHasTheFocusAndItsKeys) {
    ShowOutline();
    Select(L"A");
    ComPtr<IOleObject> object;
    ComPtr<IOleInPlaceActiveObject> active;
    ASSERT_EQ(pane.As(&object), S_OK);
    ASSERT_EQ(pane.As(&active), S_OK);
    ASSERT_EQ(object->DoVerb(OLEIVERB_UIACTIVATE, nullptr, window->Site().Client(), 0, window->Frame(),
                             &window->Site().position),
              S_OK);
    EXPECT_EQ(GetFocus(), Tree());
    const auto takes = [&](WPARAM key) {
        MSG message{Tree(), WM_KEYDOWN, key, 0, 0, {}};
        return active->TranslateAccelerator(&message) == S_OK;
    };
    EXPECT_TRUE(takes(VK_DOWN));
    EXPECT_EQ(TextOf(Next(TVGN_CARET)), L"B");
    EXPECT_TRUE(takes(VK_RETURN));
    EXPECT_EQ(Page(), 6);
    EXPECT_FALSE(takes(VK_TAB));
    EXPECT_FALSE(takes(VK_F5));
}

}  // namespace
}  // namespace qz
