// What is on the screen, and what it costs the host.
#include "pane_fixture.h"
#include "tests/support/resolution.h"

#include <set>

namespace qz {
namespace {

constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF grey = RGB(127, 127, 127);
constexpr COLORREF white = RGB(255, 255, 255);

using Painting = PaneTest;

TEST_F(Painting, DrawsOnlyWhatIsSeenAndKeepsIt) {
    const auto host = MakeHost(100);
    Activate();
    ASSERT_EQ(pane->Initialize(host.Get()), S_OK);
    PumpMessages();
    // 220 pixels take two thumbnails of 85 a row, 400 pixels four rows of 110 and a gap.
    EXPECT_EQ(CallCount(host.Get(), L"DrawCurrentPage"), 8);
    RedrawWindow(PaneWindow(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_EQ(CallCount(host.Get(), L"DrawCurrentPage"), 8);
    EXPECT_EQ(pane->RedrawAllThumbs(), S_OK);
    EXPECT_EQ(CallCount(host.Get(), L"DrawCurrentPage"), 16);
}

TEST_F(Painting, FramesLabelAndBackground) {
    const auto host = MakeHost(4);
    Activate();
    pane->put_BackColor(RGB(10, 200, 30));
    host->SetCurrentPage(2);
    ASSERT_EQ(pane->Initialize(host.Get()), S_OK);
    PumpMessages();
    // The second thumbnail lies at 95, 0 in the content and 6 further in the window.
    constexpr int left = 95 + 6;
    constexpr int top = 6;
    EXPECT_EQ(PixelAt(left - 3, top + 50), red);
    EXPECT_EQ(PixelAt(left + 85 + 2, top + 50), red);
    EXPECT_EQ(PixelAt(left, top + 50), grey);
    EXPECT_EQ(PixelAt(6, top + 50), grey);
    EXPECT_EQ(PixelAt(6 - 3, top + 50), RGB(10, 200, 30)) << "the first page is not the current one";
    EXPECT_EQ(PixelAt(6 + 2, top + 2), white) << "the label's box";
    host->SetCurrentPage(1);
    PumpMessages();
    EXPECT_EQ(PixelAt(6 - 3, top + 50), red);
    EXPECT_EQ(PixelAt(left + 85 + 2, top + 50), RGB(10, 200, 30));
}

TEST_F(Painting, NewFactorShowsOnlyAfterARebuild) {
    const auto host = MakeHost(100);
    pane->put_ThumbSizeFactor(20);
    Activate();
    ASSERT_EQ(pane->Initialize(host.Get()), S_OK);
    const auto other = MakePane();  // sets the factor of all panes back to 14
    host->put_LogEnabled(1);
    const auto scales = [&] {
        host->ClearLog();
        SendMessageW(PaneWindow(), WM_VSCROLL, SB_PAGEDOWN, 0);
        PumpMessages();
        std::set<std::wstring> found;
        for (const std::wstring& line : LogLines(host.Get())) {
            if (line.rfind(L"DrawCurrentPage", 0) == 0) found.insert(line.substr(line.rfind(L' ') + 1));
        }
        return found;
    };
    EXPECT_EQ(scales(), std::set<std::wstring>{L"20"});
    EXPECT_EQ(pane->RedrawAllThumbs(), S_OK);
    EXPECT_EQ(scales(), std::set<std::wstring>{L"14"});
}

TEST_F(Painting, PageThatCannotBeDrawnIsTriedAgain) {
    const auto host = MakeHost(1);
    Activate();
    host->FailOperation(_bstr_t(L"DrawCurrentPage"), E_FAIL);
    ASSERT_EQ(pane->Initialize(host.Get()), S_OK);
    PumpMessages();
    EXPECT_EQ(PixelAt(6, 60), grey) << "an empty sheet stands for the page";
    host->ClearFaults();
    host->ClearLog();
    RedrawWindow(PaneWindow(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    RedrawWindow(PaneWindow(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_EQ(CallCount(host.Get(), L"DrawCurrentPage"), 1);
}

TEST_F(Painting, DrawsWithoutAWindowScaledToTheContainersBounds) {
    constexpr COLORREF green = RGB(0, 255, 0);
    const auto host = MakeHost(3);
    pane->put_BackColor(green);
    ASSERT_EQ(pane->Initialize(host.Get()), S_OK);
    ComPtr<IViewObject2> view;
    ASSERT_EQ(pane.As(&view), S_OK);
    const HDC screen = GetDC(nullptr);
    const HDC dc = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, 2 * Scaled(200), 2 * Scaled(200));
    const HGDIOBJ before = SelectObject(dc, bitmap);
    // Its extent of 5080 is two inches: twice as large here.
    const RECTL bounds{0, 0, 2 * Scaled(192), 2 * Scaled(192)};
    EXPECT_EQ(view->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, dc, &bounds, nullptr, nullptr, 0),
              S_OK);
    EXPECT_EQ(CallCount(host.Get(), L"DrawCurrentPage"), 3);
    EXPECT_EQ(GetPixel(dc, 2 * 3, 2 * 60), red);
    EXPECT_EQ(GetPixel(dc, 2 * (6 + 85 + 3), 2 * 60), red);
    EXPECT_NE(GetPixel(dc, 2 * (6 + 80), 2 * 90), green) << "the picture is scaled with its frame";
    EXPECT_EQ(GetPixel(dc, 2 * (6 + 85 + 7), 2 * 90), green);
    SelectObject(dc, before);
    DeleteObject(bitmap);
    DeleteDC(dc);
    ReleaseDC(nullptr, screen);
}

}  // namespace
}  // namespace qz
