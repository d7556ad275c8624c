// The pane and the host's change event.
#include "pane_fixture.h"
#include "tests/support/silent_dispatch.h"

namespace qz {
namespace {

class FollowingHost : public PaneTest {
  protected:
    void SetUp() override {
        host_ = MakeHost(20);
        Activate();
        ASSERT_EQ(pane->Initialize(host_.Get()), S_OK);
        PumpMessages();
        host_->ClearLog();
    }
    long Draws() const { return CallCount(host_.Get(), L"DrawCurrentPage"); }
    long PagesRead() const { return CallCount(host_.Get(), L"GetObjectAttribute") / 3; }

    ComPtr<IReferenceHost> host_;
};

TEST_F(FollowingHost, ViewChangeAloneIsIgnored) {
    host_->RaiseChange(0x40);
    PumpMessages();
    EXPECT_EQ(CallCount(host_.Get(), L"GetPageCount"), 0);
    EXPECT_EQ(Draws(), 0);
}

TEST_F(FollowingHost, ChangedPictureIsDrawnAgainAlone) {
    host_->RaiseChange(0x10);
    EXPECT_EQ(PagesRead(), 0);
    EXPECT_EQ(Draws(), 1) << "drawn before the event returns";
}

TEST_F(FollowingHost, PageChangesRebuild) {
    for (const long flags : {0x80L, 0x100L, 0L}) {
        host_->ClearLog();
        host_->RaiseChange(flags);
        EXPECT_EQ(PagesRead(), 20) << flags;
    }
    host_->ClearLog();
    host_->DeletePage(20, 1);
    EXPECT_EQ(PagesRead(), 19);
    EXPECT_EQ(pane->ScrollPageThumbIntoView(20), E_FAIL);
    host_->AddPages(5, 12240, 15840);
    EXPECT_EQ(pane->ScrollPageThumbIntoView(24), S_OK);
}

TEST_F(FollowingHost, CurrentPageScrollsIntoView) {
    host_->SetCurrentPage(20);
    EXPECT_GT(ScrollPosition(), 0);
    host_->SetCurrentPage(1);
    EXPECT_EQ(ScrollPosition(), 0);
}

TEST_F(FollowingHost, OwnDrawingTellsNobodyAnything) {
    long before = 0;
    long after = 0;
    host_->get_EventCount(&before);
    RedrawWindow(PaneWindow(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    pane->RedrawAllThumbs();
    host_->get_EventCount(&after);
    EXPECT_EQ(before, after);
}

TEST_F(FollowingHost, NothingIsHeardAfterReset) {
    pane->Reset();
    host_->ClearLog();
    host_->RaiseChange(0x80);
    EXPECT_EQ(CallCount(host_.Get(), L""), 0);
}

/// Another component hearing the same event may take the pane away or turn it to another host.
class MeddlingSink final : public Object<MeddlingSink, SilentDispatch> {
  public:
    explicit MeddlingSink(std::function<void()> meddle) : meddle_(std::move(meddle)) {}
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        meddle_();
        return S_OK;
    }

  private:
    std::function<void()> meddle_;
};

TEST_F(FollowingHost, PaneReleasedInsideTheEvent) {
    ComPtr<IConnectionPointContainer> container;
    ComPtr<IConnectionPoint> point;
    ASSERT_EQ(host_.As(&container), S_OK);
    ASSERT_EQ(container->FindConnectionPoint(DIID__IVandraXEvents, &point), S_OK);
    DWORD cookie = 0;
    const auto sink = MakeObject<MeddlingSink>([this] {
        Close();
        pane.Reset();
    });
    // Connected first, so that it is called before the pane; and once more, to be called after another pane.
    pane->Reset();
    ASSERT_EQ(point->Advise(sink->Identity(), &cookie), S_OK);
    ASSERT_EQ(pane->Initialize(host_.Get()), S_OK);
    host_->RaiseChange(0x80);
    EXPECT_EQ(pane.Get(), nullptr);
    EXPECT_EQ(SinkCount(host_.Get()), 1);
    point->Unadvise(cookie);
}

}  // namespace
}  // namespace qz
