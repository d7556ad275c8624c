// The control in the system's own generic container (class "AtlAxWin").
#include "tests/support/system_container.h"
#include "tests/ui/test_control.h"

#include <gtest/gtest.h>

namespace qz {
namespace {

class SystemContainer : public testing::Test {
  protected:
    void SetUp() override {
        window = MakeSystemContainer(300, 200);
        ASSERT_TRUE(window);
        control = MakeObject<TestControl>();
        ComPtr<IUnknown> container;
        ASSERT_EQ(AttachToSystemContainer(control->Identity(), window, &container), S_OK);
    }
    void TearDown() override {
        if (IsWindow(window)) DestroyWindow(window);
        EXPECT_EQ(TestControl::living, control ? 1 : 0);
        control.Reset();
        EXPECT_EQ(TestControl::living, 0) << "the container still holds the control";
    }

    HWND window = nullptr;
    ComPtr<TestControl> control;
};

TEST_F(SystemContainer, ActivatesTheControlOverItsClientArea) {
    ASSERT_NE(control->WindowHandle(), nullptr);
    EXPECT_TRUE(IsChild(window, control->WindowHandle()));
    EXPECT_TRUE(IsWindowVisible(control->WindowHandle()));
    RECT client{};
    GetClientRect(window, &client);
    EXPECT_EQ(control->ClientSize().cx, client.right);
    EXPECT_EQ(control->ClientSize().cy, client.bottom);
}

TEST_F(SystemContainer, PaintsAndFollowsItsSize) {
    PumpMessages();
    EXPECT_GT(control->draws, 0);
    SetWindowPos(window, nullptr, 0, 0, 400, 350, SWP_NOMOVE | SWP_NOZORDER);
    RECT client{};
    GetClientRect(window, &client);
    EXPECT_EQ(control->ClientSize().cx, client.right);
    EXPECT_EQ(control->ClientSize().cy, client.bottom);
}

TEST_F(SystemContainer, LetsGoWhenItsWindowGoes) {
    const HWND own = control->WindowHandle();
    DestroyWindow(window);
    EXPECT_FALSE(IsWindow(own));
    EXPECT_EQ(control->WindowHandle(), nullptr);
}

}  // namespace
}  // namespace qz
