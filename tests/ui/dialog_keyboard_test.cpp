// The keyboard's way through windows that hide, that are disabled, and in which there is nothing to stop at.
#include "tests/support/held_keys.h"
#include "ui/dialog_keyboard.h"

#include <gtest/gtest.h>

namespace qz {
namespace {

/// A dialog with a button, a child dialog with two more, and a last button.
class DialogKeyboard : public ::testing::Test {
  protected:
    DialogKeyboard() {
        SetFocus(first);
        SetForegroundWindow(dialog);
    }
    ~DialogKeyboard() override { DestroyWindow(dialog); }

    static HWND MakeDialog(HWND parent, DWORD style, DWORD extended) {
        const struct {
            DLGTEMPLATE dialog;
            WORD menu, windowClass, title;
        } made{{style | WS_VISIBLE, extended, 0, 0, 0, 100, 100}, 0, 0, 0};
        return CreateDialogIndirectW(GetModuleHandleW(nullptr), &made.dialog, parent,
                                     [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return FALSE; });
    }
    static HWND MakeButton(HWND parent) {
        return CreateWindowExW(0, L"BUTTON", L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 0, 0, 10, 10, parent,
                               nullptr, nullptr, nullptr);
    }
    bool Press(WPARAM key) const {
        MSG message{};
        message.hwnd = GetFocus();
        message.message = WM_KEYDOWN;
        message.wParam = key;
        return HandleDialogMessage(dialog, message);
    }
    bool Entered() const { return (GetWindowLongW(inner, GWL_EXSTYLE) & WS_EX_CONTROLPARENT) != 0; }

    const HeldKeys none{};
    const HWND dialog = MakeDialog(nullptr, WS_POPUP, 0);
    const HWND first = MakeButton(dialog);
    const HWND inner = MakeDialog(dialog, WS_CHILD | DS_CONTROL, WS_EX_CONTROLPARENT);
    const HWND one = MakeButton(inner), other = MakeButton(inner);
    const HWND last = MakeButton(dialog);
};

TEST_F(DialogKeyboard, StopsAreFoundInOrder) {
    const TabStops around = FindTabStops(dialog, inner);
    EXPECT_EQ(around.first, first);
    EXPECT_EQ(around.before, first);
    EXPECT_EQ(around.after, last) << "past all that lies inside";
    EXPECT_EQ(around.last, last);
    EXPECT_EQ(FindTabStops(dialog, one).after, other);
    EXPECT_EQ(FindTabStops(dialog, last).before, other);
    EXPECT_EQ(FindTabStops(last).first, nullptr);
}

TEST_F(DialogKeyboard, WhatGoesGivesTheFocusOnAndTheDialogItsStyleUp) {
    SetFocus(one);
    EnableChild(one, false);
    EXPECT_EQ(GetFocus(), other);
    EXPECT_TRUE(Entered());
    ShowChild(other, false);
    EXPECT_EQ(GetFocus(), last);
    EXPECT_FALSE(Entered());
    EXPECT_TRUE(Press(VK_TAB));
    EXPECT_EQ(GetFocus(), first);
    EXPECT_TRUE(Press(VK_TAB));
    EXPECT_EQ(GetFocus(), last);
    EnableChild(one, true);
    EXPECT_TRUE(Entered());
    SetFocus(one);
    PostMessageW(one, WM_SYSCHAR, L'Q', 1 << 29);
    ShowChild(inner, false);
    EXPECT_EQ(GetFocus(), last);
    MSG lost;
    EXPECT_FALSE(PeekMessageW(&lost, one, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE));
}

TEST_F(DialogKeyboard, AWalkWithoutEndIsRefused) {
    ShowWindow(one, SW_HIDE);
    EnableWindow(other, FALSE);
    EXPECT_FALSE(Press(VK_TAB)) << "the inner dialog has nothing to stop at";
    EXPECT_EQ(GetFocus(), first);
    EXPECT_TRUE(Press(VK_ESCAPE)) << "leads nowhere";
    FitControlParent(inner);
    EXPECT_TRUE(Press(VK_TAB));
    EXPECT_EQ(GetFocus(), last);
    EnableWindow(other, TRUE);
    FitControlParent(inner);
    SetFocus(one);
    ASSERT_EQ(GetFocus(), one) << "hidden";
    EXPECT_TRUE(Press(VK_TAB));
    EXPECT_EQ(GetFocus(), other) << "from the first stop on";
    SetFocus(first);
    for (const HWND stop : {first, inner, last}) EnableWindow(stop, FALSE);
    EXPECT_FALSE(Press(VK_TAB));
}

// A character may still be on its way to a control when that is hidden.
TEST_F(DialogKeyboard, ACharacterForWhatIsHiddenIsSearchedForNowhere) {
    for (const auto leave : {ShowChild, EnableChild}) {
        leave(inner, false);
        for (const UINT character : {WM_CHAR, WM_SYSCHAR}) {
            MSG message{};
            message.hwnd = one;
            message.message = character;
            message.wParam = L'Q';
            EXPECT_FALSE(HandleDialogMessage(dialog, message));
        }
        leave(inner, true);
    }
}

}  // namespace
}  // namespace qz
