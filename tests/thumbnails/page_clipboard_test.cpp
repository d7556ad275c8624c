#include "panes/thumbnails/page_clipboard.h"
#include "transfer_fixture.h"

#include <future>
#include <thread>

namespace qz {
namespace {

class PageClipboard : public ::testing::Test {
  protected:
    ~PageClipboard() override { OleSetClipboard(nullptr); }

    static void PutText() {
        ASSERT_TRUE(OpenClipboard(nullptr));
        EmptyClipboard();
        SetClipboardData(CF_TEXT, GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, 4));
        CloseClipboard();
    }

    ComPtr<IReferenceHost> host = MakeNumberedHost(5, 1000);
};

TEST_F(PageClipboard, PagesOutliveTheHost) {
    PutPagesOnClipboard(host.Get(), {5, 2});
    EXPECT_EQ(ReferencesOf(host.Get()), 1u);
    host.Reset();
    const auto to = MakeNumberedHost(2, 5000);
    const auto data = PagesOnClipboard();
    ASSERT_TRUE(data);
    EXPECT_EQ(InsertPages(to.Get(), data.Get(), {.position = 2, .moved = {}}), 2);
    EXPECT_EQ(InsertPages(to.Get(), data.Get(), {.position = 1, .moved = {}}), 2) << "as often as one likes";
    EXPECT_EQ(Widths(to.Get()), (Pages{1004, 1001, 5000, 1004, 1001, 5001}));
    EXPECT_TRUE(IsClipboardFormatAvailable(documentFormat));
    EXPECT_TRUE(IsClipboardFormatAvailable(pagesFormat));
}

TEST_F(PageClipboard, OtherContentIsNotPages) {
    PutText();
    EXPECT_FALSE(PagesOnClipboard());
    OleSetClipboard(nullptr);
    EXPECT_FALSE(PagesOnClipboard());
}

TEST_F(PageClipboard, AFailingHostLeavesTheClipboardAlone) {
    PutText();
    host->FailOperation(_bstr_t(L"Stream.Save"), E_ACCESSDENIED);
    EXPECT_EQ(CodeOf([&] { PutPagesOnClipboard(host.Get(), {1}); }), E_ACCESSDENIED);
    EXPECT_TRUE(IsClipboardFormatAvailable(CF_TEXT));
    EXPECT_EQ(PageFlagOf(host.Get()), 1);
}

TEST_F(PageClipboard, AClipboardThatStaysOpenElsewhereIsAnError) {
    std::promise<void> opened;
    std::promise<void> enough;
    std::thread holder([&] {
        ASSERT_TRUE(OpenClipboard(nullptr));
        opened.set_value();
        enough.get_future().wait();
        CloseClipboard();
    });
    opened.get_future().wait();
    EXPECT_EQ(CodeOf([&] { PutPagesOnClipboard(host.Get(), {1}); }), CLIPBRD_E_CANT_OPEN);
    enough.set_value();
    holder.join();
    PutPagesOnClipboard(host.Get(), {1});
    EXPECT_TRUE(PagesOnClipboard());
}

}  // namespace
}  // namespace qz
