// What the user types and presses.
#include "status_fixture.h"
#include "tests/support/menu_answer.h"

#include <algorithm>

namespace qz {
namespace {

class StatusEntering : public StatusTest {
  protected:
    void SetUp() override {
        host = MakeHost(12);
        host->SetCurrentPage(4);
        Show(host.Get());
        host->put_LogEnabled(1);
        host->ClearLog();
    }

    /// A key as a container hands it out: to the active control first.
    bool Press(WPARAM key) {
        MSG message{};
        message.hwnd = GetFocus();
        message.message = WM_KEYDOWN;
        message.wParam = key;
        message.lParam = 1;
        const ComPtr<IOleInPlaceActiveObject> active = window->Site().activeObject;
        const bool used = active && active->TranslateAccelerator(&message) == S_OK;
        if (!used) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        PumpMessages();
        return used;
    }
    void Type(StatusField field, const wchar_t* text) {
        SetFocus(Field(field));
        PumpMessages();
        for (; *text; ++text) SendMessageW(Field(field), WM_CHAR, static_cast<WPARAM>(*text), 1);
    }
    void FocusElsewhere() {
        SetFocus(window->Frame());
        PumpMessages();
    }
    void ExpectFocusGivenBack(long times) {
        long count = 0;
        for (const std::wstring& line : LogLines(host.Get())) {
            count += line.find(L"SetFocus_M") != std::wstring::npos;
        }
        EXPECT_EQ(count, times);
        host->ClearLog();
    }
    long CurrentPage() {
        long page = 0;
        host->GetCurrentPage(&page);
        return page;
    }

    ComPtr<IReferenceHost> host;
};

TEST_F(StatusEntering, EnterGoesToThePage) {
    Type(PagePosition, L"9");
    EXPECT_EQ(Text(PagePosition), L"9") << "what is typed replaces what was there";
    EXPECT_TRUE(Press(VK_RETURN)) << "before the container's own use of the key";
    EXPECT_EQ(CurrentPage(), 9);
    EXPECT_EQ(Text(PagePosition), L"9 / 12");
    const auto lines = LogLines(host.Get());
    const auto given = std::ranges::find_if(
        lines, [](const std::wstring& line) { return line.find(L"SetFocus_M") != std::wstring::npos; });
    ASSERT_NE(given, lines.end());
    EXPECT_NE(given->find(L"Document"), std::wstring::npos) << "it is an attribute of the document";
    ExpectFocusGivenBack(1);
}

TEST_F(StatusEntering, TheHostsViewReallyGetsTheFocus) {
    host->ShowIn(static_cast<long>(reinterpret_cast<INT_PTR>(window->Frame())));
    long view = 0;
    host->get_ViewWindow(&view);
    Type(PagePosition, L"2");
    Press(VK_RETURN);
    EXPECT_EQ(GetFocus(), reinterpret_cast<HWND>(static_cast<INT_PTR>(view)));
    host->ShowIn(0);
}

TEST_F(StatusEntering, OutOfRangeIsClampedAndNonsenseRefused) {
    Type(PagePosition, L"99");
    Press(VK_RETURN);
    EXPECT_EQ(CurrentPage(), 12);
    Type(PagePosition, L"twelve");
    Press(VK_RETURN);
    EXPECT_EQ(Text(PagePosition), L"12 / 12");
    long zoom = 0;
    Type(Zoom, L"5");
    Press(VK_RETURN);
    host->GetZoom(&zoom);
    EXPECT_EQ(zoom, 10);
    Type(Zoom, L"250 %");
    Press(VK_RETURN);
    host->GetZoom(&zoom);
    EXPECT_EQ(zoom, 250);
    EXPECT_EQ(Text(Zoom), L"250%");
    Type(Zoom, L"big");
    Press(VK_RETURN);
    EXPECT_EQ(Text(Zoom), L"250%");
    EXPECT_EQ(CallCount(host.Get(), L"SetZoom"), 2);
    ExpectFocusGivenBack(5);
}

TEST_F(StatusEntering, EscapeRestores) {
    Type(PagePosition, L"9");
    EXPECT_TRUE(Press(VK_ESCAPE));
    EXPECT_EQ(Text(PagePosition), L"4 / 12");
    FocusElsewhere();
    EXPECT_EQ(CallCount(host.Get(), L"SetCurrentPage"), 0);
    ExpectFocusGivenBack(1);
}

TEST_F(StatusEntering, LeavingTheBarApplies) {
    Type(PagePosition, L"7");
    FocusElsewhere();
    EXPECT_EQ(CurrentPage(), 7);
    ExpectFocusGivenBack(1);
    SetFocus(Field(Zoom));
    FocusElsewhere();
    ExpectFocusGivenBack(0);  // nothing was changed: whatever the user went to keeps the focus
}

TEST_F(StatusEntering, WithinTheBarTheFocusStaysUntilItIsLeft) {
    Type(PagePosition, L"7");
    EXPECT_TRUE(Press(VK_TAB));
    EXPECT_EQ(CurrentPage(), 7);
    EXPECT_EQ(GetFocus(), Field(NextPage));
    ExpectFocusGivenBack(0);
    FocusElsewhere();
    ExpectFocusGivenBack(1);
}

TEST_F(StatusEntering, TabGoesFromFieldToFieldAndOut) {
    SetFocus(Field(FirstPage));
    for (const StatusField field : {PreviousPage, PagePosition, NextPage, LastPage, Zoom}) {
        EXPECT_TRUE(Press(VK_TAB));
        EXPECT_EQ(GetFocus(), Field(field)) << static_cast<int>(field);
    }
    EXPECT_FALSE(Press(VK_TAB)) << "the container's";
    host->SetCurrentPage(1);
    SetFocus(Field(FirstPage));
    Press(VK_TAB);
    EXPECT_EQ(GetFocus(), Field(PagePosition)) << "a disabled button is passed over";
}

TEST_F(StatusEntering, AChangeOfTheHostDoesNotTakeTheTypedTextAway) {
    Type(PagePosition, L"1");
    host->SetCurrentPage(6);
    host->SetZoom(77);
    EXPECT_EQ(Text(PagePosition), L"1");
    EXPECT_EQ(Text(Zoom), L"77%");
    SendMessageW(Field(PagePosition), WM_CHAR, L'1', 1);
    Press(VK_RETURN);
    EXPECT_EQ(CurrentPage(), 11);
    Type(PagePosition, L"2");
    host->SetCurrentPage(3);
    Press(VK_ESCAPE);
    EXPECT_EQ(Text(PagePosition), L"3 / 12") << "the text now, not the one before";
}

TEST_F(StatusEntering, ButtonsStep) {
    struct Row {
        StatusField button;
        long page;
    };
    constexpr Row rows[] = {
        {NextPage, 5}, {PreviousPage, 4}, {LastPage, 12}, {PreviousPage, 11}, {FirstPage, 1}};
    for (const Row& row : rows) {
        SendMessageW(Field(row.button), BM_CLICK, 0, 0);
        EXPECT_EQ(CurrentPage(), row.page);
    }
    EXPECT_FALSE(Enabled(PreviousPage));
    // Two quick clicks are two steps.
    const LPARAM point = MAKELPARAM(5, 5);
    for (const UINT down : {WM_LBUTTONDOWN, WM_LBUTTONDBLCLK}) {
        SendMessageW(Field(NextPage), down, MK_LBUTTON, point);
        SendMessageW(Field(NextPage), WM_LBUTTONUP, 0, point);
    }
    EXPECT_EQ(CurrentPage(), 3);
    // A button that goes out while it has the focus passes the focus on.
    SetFocus(Field(LastPage));
    SetFocus(Field(NextPage));
    host->SetCurrentPage(12);
    EXPECT_EQ(GetFocus(), Field(PagePosition));
}

TEST_F(StatusEntering, AFailingHostLeavesTheField) {
    host->FailOperation(_bstr_t(L"SetCurrentPage"), E_FAIL);
    host->FailOperation(_bstr_t(L"SetZoom"), E_FAIL);
    Type(PagePosition, L"9");
    Press(VK_RETURN);
    EXPECT_EQ(Text(PagePosition), L"4 / 12");
    Type(Zoom, L"60");
    Press(VK_RETURN);
    EXPECT_EQ(Text(Zoom), L"100%");
    SendMessageW(Field(NextPage), BM_CLICK, 0, 0);
    EXPECT_EQ(Text(PagePosition), L"4 / 12");
    ExpectFocusGivenBack(2);
}

TEST_F(StatusEntering, UnitFromTheMenu) {
    const MenuAnswer inches(3);
    RECT place{};
    GetWindowRect(Field(PageSize), &place);
    POINT point{place.left + 5, place.top + 5};
    ScreenToClient(window->Window(), &point);
    SendMessageW(window->Window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
    EXPECT_EQ(Text(PageSize), L"Page: 8.5 x 11");
    ExpectFocusGivenBack(1);
}

}  // namespace
}  // namespace qz
