// The pane in the system's own generic control host, made by class id.
#include "pane_fixture.h"
#include "tests/support/system_container.h"

namespace qz {
namespace {

using GenericHost = PaneTest;

TEST_F(GenericHost, ShowsThePagesAndFollowsItsSize) {
    const HWND window = MakeSystemContainer(paneSize.cx, paneSize.cy);
    ASSERT_NE(window, nullptr);
    ComPtr<IUnknown> container;
    ASSERT_EQ(AttachToSystemContainer(pane.Get(), window, &container), S_OK);

    const auto host = MakeHost(50);
    ASSERT_EQ(pane->Initialize(host.Get()), S_OK);
    PumpMessages();
    EXPECT_EQ(CallCount(host.Get(), L"DrawCurrentPage"), 8);
    EXPECT_EQ(PixelAt(6, 60), RGB(127, 127, 127));

    SetWindowPos(window, nullptr, 0, 0, paneSize.cx + 200, 400, SWP_NOMOVE | SWP_NOZORDER);
    PumpMessages();
    RECT client{};
    GetClientRect(PaneWindow(), &client);
    EXPECT_GT(client.right, 350);
    EXPECT_EQ(CallCount(host.Get(), L"DrawCurrentPage"), 16) << "four a row now";

    DestroyWindow(window);
    container.Reset();
    EXPECT_EQ(PaneWindow(), nullptr);
    EXPECT_EQ(pane->RedrawAllThumbs(), S_OK) << "without a window, but with its host";
}

}  // namespace
}  // namespace qz
