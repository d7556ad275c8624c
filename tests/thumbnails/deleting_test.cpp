// Deleting the selected pages.
#include "pages_fixture.h"
#include "tests/support/sweep.h"

#include <algorithm>

namespace qz {
namespace {

class Deleting : public PagesTest {
  protected:
    /// The host's log without reading and drawing: what the pane changes.
    std::vector<std::wstring> Changes() const {
        std::vector<std::wstring> lines = LogLines(host.Get());
        std::erase_if(lines, [](const std::wstring& line) {
            return !line.starts_with(L"DeletePage") && !line.starts_with(L"UpdateView") &&
                   !line.starts_with(L"SetCurrentPage");
        });
        return lines;
    }
};

TEST_F(Deleting, GoesFromTheHighestDownAndUpdatesTheView) {
    SetFocus(PaneWindow());
    host->SetCurrentPage(5);
    Select({2, 7, 4});
    host->put_LogEnabled(1);
    host->ClearLog();
    TakeEvents();
    Key(VK_DELETE);
    EXPECT_EQ(Order(), (PageList{0, 2, 4, 5, 7}));
    EXPECT_EQ(TakeEvents(), (Events{"2:&1"}));
    std::vector<std::wstring> changes = Changes();
    std::erase_if(changes, [](const std::wstring& line) { return line.starts_with(L"SetCurrentPage"); });
    EXPECT_EQ(changes, (std::vector<std::wstring>{L"DeletePage 7, 1", L"DeletePage 4, 1", L"DeletePage 2, 1",
                                                  L"UpdateView 128, 1", L"UpdateView 0, 0"}));
    EXPECT_EQ(Selected(), PageList{});
    EXPECT_EQ(GetFocus(), PaneWindow());
    const POINT current = PointOn(3);  // it was page 5
    EXPECT_EQ(PixelAt(current.x - 45 + 6 - 4, current.y), RGB(255, 0, 0));
    long autoRefresh = 0;
    host->GetAutoRefresh(&autoRefresh);
    EXPECT_EQ(autoRefresh, 1);
}

TEST_F(Deleting, OthersAreToldOnceAndThePaneReadsOnce) {
    const ComPtr<IqzThumbnailCtrl> other = MakePane();
    ASSERT_EQ(other->Initialize(host.Get()), S_OK);
    Select({2, 4, 6});
    host->ClearLog();
    Key(VK_DELETE);
    EXPECT_EQ(CallCount(host.Get(), L"GetObjectAttribute"), 2 * 3 * 5)
        << "each pane has read the five pages once";
    EXPECT_EQ(other->ScrollPageThumbIntoView(5), S_OK);
    EXPECT_EQ(other->ScrollPageThumbIntoView(6), E_FAIL);
    other->Reset();
}

TEST_F(Deleting, ContainerMayVeto) {
    Select({2});
    events->answers[2] = 0;
    Key(VK_DELETE);
    EXPECT_EQ(Order().size(), static_cast<size_t>(pageCount));
    EXPECT_EQ(Selected(), (PageList{2}));
}

TEST_F(Deleting, OnePageMustRemain) {
    ControlKey('A');
    const std::wstring box = BoxDuring([&] { Key(VK_DELETE); });
    EXPECT_EQ(box, L"Deleting all pages of the document is not allowed - at least one page must remain");
    EXPECT_EQ(TakeEvents(), (Events{"4:2,&1"}));
    events->answers[4] = 0;
    EXPECT_EQ(BoxDuring([&] { Key(VK_DELETE); }), L"");
    EXPECT_EQ(Order().size(), static_cast<size_t>(pageCount));
    Key(VK_ESCAPE);
    TakeEvents();
    Key(VK_DELETE);
    EXPECT_EQ(TakeEvents(), Events{}) << "nothing is selected";
}

TEST_F(Deleting, ListenersMayDoAnythingInsideTheEvent) {
    const std::function<void()> doings[] = {
        [&] { pane->RedrawAllThumbs(); },
        [&] { pane->Reset(); },
        [&] { host->DeletePage(1, 1); },
        [&] { Close(); },
    };
    for (const auto& doing : doings) {
        if (!PaneWindow()) Activate();
        host = MakeTellingHost(pageCount);
        pane->Initialize(host.Get());
        Select({5});
        events->actions[2] = doing;
        Key(VK_DELETE);
        const PageList order = Order();
        EXPECT_EQ(std::ranges::count(order, 4), PaneWindow() ? 1 : 0)
            << "page numbers taken before the records changed are not used";
    }
    events->actions.clear();
}

TEST_F(Deleting, HostFailsMidway) {
    const auto prepare = [this] {
        host = MakeTellingHost(pageCount);
        host->SetCurrentPage(2);
        ASSERT_EQ(pane->Initialize(host.Get()), S_OK);
        PumpMessages();
        Select({4, 6, 7});
        PumpMessages();
    };
    const auto step = [this] { return Key(VK_DELETE), S_OK; };
    const auto check = [this](long, HRESULT) {
        long autoRefresh = 0;
        host->GetAutoRefresh(&autoRefresh);
        EXPECT_EQ(autoRefresh, 1);
        EXPECT_EQ(CurrentPage(), 2);
        const PageList order = Order();
        const bool prefixOfWork = order == PageList{0, 1, 2, 3, 4, 5, 6, 7} ||
                                  order == PageList{0, 1, 2, 3, 4, 5, 7} ||
                                  order == PageList{0, 1, 2, 3, 4, 7} || order == PageList{0, 1, 2, 4, 7};
        EXPECT_TRUE(prefixOfWork);
        EXPECT_EQ(pane->ScrollPageThumbIntoView(static_cast<long>(order.size())), S_OK);
        EXPECT_EQ(pane->ScrollPageThumbIntoView(static_cast<long>(order.size()) + 1), E_FAIL)
            << "the pane shows what the host holds";
    };
    EXPECT_GT(FailEachCall([this] { return host.Get(); }, {prepare, step, check}), 20);
}

}  // namespace
}  // namespace qz
