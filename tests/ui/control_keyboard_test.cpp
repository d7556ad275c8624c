#include "tests/support/held_keys.h"
#include "tests/ui/test_control.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace qz {
namespace {

class ControlKeyboard : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_EQ(container.Do(OLEIVERB_UIACTIVATE), S_OK);
        container.site->ForgetCalls();
        window = container.control->WindowHandle();
    }

    HRESULT Offer(UINT message, WPARAM key, HWND target) {
        MSG offered{};
        offered.hwnd = target;
        offered.message = message;
        offered.wParam = key;
        return container.control->TranslateAccelerator(&offered);
    }
    bool Got(UINT message) const { return std::ranges::count(container.control->messages, message) > 0; }

    Container container;
    HWND window = nullptr;
};

TEST_F(ControlKeyboard, InputKeysGoToTheControlOnly) {
    EXPECT_EQ(Offer(WM_KEYDOWN, VK_DOWN, window), S_OK);
    EXPECT_TRUE(Got(WM_KEYDOWN));
    EXPECT_FALSE(container.site->Saw("TranslateAccelerator"));
}

TEST_F(ControlKeyboard, OtherKeysAreOfferedToTheContainer) {
    EXPECT_EQ(Offer(WM_KEYDOWN, VK_TAB, window), S_FALSE);
    EXPECT_EQ(container.site->Count("TranslateAccelerator"), 1);
    container.site->answers["TranslateAccelerator"] = [] { return S_OK; };
    EXPECT_EQ(Offer(WM_KEYDOWN, VK_TAB, window), S_OK);
    // '(' is the character with the number of the down arrow key.
    EXPECT_EQ(Offer(WM_CHAR, VK_DOWN, window), S_OK);
    EXPECT_FALSE(Got(WM_KEYDOWN));
    EXPECT_FALSE(Got(WM_CHAR));
    EXPECT_EQ(container.site->Count("TranslateAccelerator"), 3);
}

TEST_F(ControlKeyboard, TellsTheContainerTheModifiers) {
    const HeldKeys held{VK_SHIFT, VK_MENU};
    Offer(WM_SYSKEYDOWN, VK_F1, window);
    EXPECT_EQ(container.site->lastModifiers, 5u);
}

TEST_F(ControlKeyboard, LeavesAloneWhatIsNotForIt) {
    EXPECT_EQ(Offer(WM_MOUSEMOVE, 0, window), S_FALSE);
    EXPECT_EQ(Offer(WM_KEYDOWN, VK_DOWN, container.window), S_FALSE);
    EXPECT_FALSE(Got(WM_KEYDOWN));
    EXPECT_EQ(container.control->TranslateAccelerator(nullptr), E_POINTER);
    container.control->UIDeactivate();
    container.site->ForgetCalls();
    EXPECT_EQ(Offer(WM_KEYDOWN, VK_DOWN, window), S_FALSE);
    EXPECT_FALSE(container.site->Saw("TranslateAccelerator"));
}

TEST_F(ControlKeyboard, FocusMakesItTheActiveObject) {
    container.control->UIDeactivate();
    SetFocus(container.window);
    container.site->ForgetCalls();
    SetFocus(window);
    EXPECT_TRUE(container.control->UIActive());
    EXPECT_EQ(container.site->Count("OnFocus(1)"), 1);
    SetFocus(container.window);
    EXPECT_EQ(container.site->Count("OnFocus(0)"), 1);
    EXPECT_TRUE(container.control->UIActive());  // the container ends that, not the focus
}

TEST_F(ControlKeyboard, ClickTakesTheFocus) {
    SetFocus(container.window);
    SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, 0);
    EXPECT_EQ(GetFocus(), window);
}

TEST_F(ControlKeyboard, DoesNotActivateItselfWhileTheContainerIsDesigned) {
    container.control->UIDeactivate();
    SetFocus(container.window);
    container.site->ambients[DISPID_AMBIENT_USERMODE] = false;
    SetFocus(window);
    EXPECT_FALSE(container.control->UIActive());
    EXPECT_TRUE(container.site->Saw("OnFocus(1)"));
}

TEST_F(ControlKeyboard, DialogLeavesItItsKeys) {
    EXPECT_EQ(SendMessageW(window, WM_GETDLGCODE, 0, 0), DLGC_WANTARROWS);
    MSG key{};
    key.hwnd = window;
    key.message = WM_KEYDOWN;
    key.wParam = VK_DOWN;
    EXPECT_EQ(SendMessageW(window, WM_GETDLGCODE, VK_DOWN, reinterpret_cast<LPARAM>(&key)), DLGC_WANTMESSAGE);
    key.wParam = VK_TAB;
    EXPECT_EQ(SendMessageW(window, WM_GETDLGCODE, VK_TAB, reinterpret_cast<LPARAM>(&key)), 0);
}

}  // namespace
}  // namespace qz
