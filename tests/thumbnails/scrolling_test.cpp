// Scroll bar, wheel and scrolling into view.
#include "pane_fixture.h"

namespace qz {
namespace {

class Scrolling : public PaneTest {
  protected:
    void SetUp() override {
        host_ = MakeHost(100);
        Activate();
        ASSERT_EQ(pane->Initialize(host_.Get()), S_OK);
    }
    void Scroll(WORD command) { SendMessageW(PaneWindow(), WM_VSCROLL, command, 0); }
    void Wheel(short delta) { SendMessageW(PaneWindow(), WM_MOUSEWHEEL, MAKEWPARAM(0, delta), 0); }

    /// 50 rows of 110 and a gap of 10, less the last gap and 12.
    static constexpr int contentHeight = 50 * 120 - 10 - 12;
    ComPtr<IReferenceHost> host_;
};

TEST_F(Scrolling, BarSpansTheContent) {
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_ALL;
    ASSERT_TRUE(GetScrollInfo(PaneWindow(), SB_VERT, &info));
    EXPECT_EQ(info.nMax, contentHeight);
    EXPECT_EQ(info.nPage, static_cast<UINT>(paneSize.cy));
    EXPECT_TRUE(GetWindowLongW(PaneWindow(), GWL_STYLE) & WS_VSCROLL);
}

TEST_F(Scrolling, Commands) {
    Scroll(SB_LINEUP);
    EXPECT_EQ(ScrollPosition(), 0);
    Scroll(SB_LINEDOWN);
    EXPECT_EQ(ScrollPosition(), 50);
    Scroll(SB_PAGEDOWN);
    EXPECT_EQ(ScrollPosition(), 50 + paneSize.cy);
    Scroll(SB_PAGEUP);
    EXPECT_EQ(ScrollPosition(), 50);
    for (const WORD ignored : {SB_THUMBPOSITION, SB_TOP, SB_BOTTOM, SB_ENDSCROLL}) Scroll(ignored);
    EXPECT_EQ(ScrollPosition(), 50);
}

TEST_F(Scrolling, WheelCountsWholeNotches) {
    UINT lines = 3;
    SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    Wheel(-60);
    EXPECT_EQ(ScrollPosition(), 0);
    Wheel(-60);
    EXPECT_EQ(ScrollPosition(), static_cast<long>(50 * lines));
    Wheel(-240);
    EXPECT_EQ(ScrollPosition(), static_cast<long>(150 * lines));
    Wheel(120);
    EXPECT_EQ(ScrollPosition(), static_cast<long>(100 * lines));
}

TEST_F(Scrolling, InitializeStartsAtTheTop) {
    Scroll(SB_PAGEDOWN);
    ASSERT_EQ(pane->Initialize(host_.Get()), S_OK);
    EXPECT_EQ(ScrollPosition(), 0);
}

TEST_F(Scrolling, RebuildingKeepsThePosition) {
    for (int i = 0; i < 3; ++i) Scroll(SB_PAGEDOWN);
    EXPECT_EQ(pane->RedrawAllThumbs(), S_OK);
    EXPECT_EQ(ScrollPosition(), 3 * paneSize.cy);
    host_->DeletePage(100, 1);
    EXPECT_EQ(ScrollPosition(), 0) << "a change of the host scrolls to its current page";
}

TEST_F(Scrolling, PageFarDownIsReachable) {
    const auto large = MakeHost(40000);
    ASSERT_EQ(pane->Initialize(large.Get()), S_OK);
    EXPECT_EQ(pane->ScrollPageThumbIntoView(39999), S_OK);
    PumpMessages();
    EXPECT_LT(CallCount(large.Get(), L"DrawCurrentPage"), 30);
    Scroll(SB_LINEUP);
    EXPECT_GT(ScrollPosition(), 2000000) << "beyond what 16 bits carry";
}

}  // namespace
}  // namespace qz
