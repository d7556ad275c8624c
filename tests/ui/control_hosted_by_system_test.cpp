// The control in the system's own generic container (class "AtlAxWin").
#include "tests/ui/test_control.h"

#include <gtest/gtest.h>

namespace qz {
namespace {

using InitFunction = BOOL(WINAPI*)();
using AttachFunction = HRESULT(WINAPI*)(IUnknown* control, HWND window, IUnknown** container);
using GetFunction = HRESULT(WINAPI*)(HWND window, IUnknown** control);

template <class Function>
Function Find(HMODULE module, const char* name) {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

class SystemContainer : public testing::Test {
  protected:
    void SetUp() override {
        atl = LoadLibraryW(L"atl.dll");
        if (!atl) GTEST_SKIP() << "this system has no atl.dll";
        static const bool registered = Find<InitFunction>(atl, "AtlAxWinInit")();  // only once in a process
        ASSERT_TRUE(registered);
        window = CreateWindowExW(0, L"AtlAxWin", nullptr, WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 300, 200,
                                 nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
        ASSERT_TRUE(window);
        control = MakeObject<TestControl>();
        ComPtr<IUnknown> container;
        ASSERT_EQ(Find<AttachFunction>(atl, "AtlAxAttachControl")(control->Identity(), window, &container),
                  S_OK);
    }
    void TearDown() override {
        if (IsWindow(window)) DestroyWindow(window);
        EXPECT_EQ(TestControl::living, control ? 1 : 0);
        control.Reset();
        EXPECT_EQ(TestControl::living, 0) << "the container still holds the control";
    }

    HMODULE atl = nullptr;
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

TEST_F(SystemContainer, IsFoundFromItsWindow) {
    ComPtr<IUnknown> found;
    ASSERT_EQ(Find<GetFunction>(atl, "AtlAxGetControl")(window, &found), S_OK);
    EXPECT_EQ(found.Get(), control->Identity());
    EXPECT_TRUE(control->UserMode());
}

TEST_F(SystemContainer, LetsGoWhenItsWindowGoes) {
    const HWND own = control->WindowHandle();
    DestroyWindow(window);
    EXPECT_FALSE(IsWindow(own));
    EXPECT_EQ(control->WindowHandle(), nullptr);
}

}  // namespace
}  // namespace qz
