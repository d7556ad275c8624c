// Outlines that take longer to read than a user waits without being told, and what happens meanwhile.
#include "odd_bookmark.h"
#include "outline_fixture.h"
#include "tests/support/dialog_fit.h"
#include "tests/support/during_modal.h"

#include "ui/progress_pace.h"

namespace qz {
namespace {

HWND ProgressOf(HWND owner) {
    HWND window = nullptr;
    do {
        window = FindWindowExW(nullptr, window, L"#32770", nullptr);
    } while (window && GetWindow(window, GW_OWNER) != owner);
    return window;
}

/// Two bookmarks, below each one without end, always another object. The fifth read takes the time after
/// which the user is told.
class LongReading : public OutlineTest {
  protected:
    LongReading() {
        top->count = 2L;
        top->item = deeper;
        Show();
        override.emplace(host.Get(), top.Get());
        EXPECT_EQ(pane->Initialize(host.Get()), S_OK);
    }
    ~LongReading() override {
        override.reset();
        top->item = nullptr;
    }

    /// Runs a reading; `meanwhile` when the user is told. Within it the container is disabled, at the end
    /// not.
    HRESULT Read(const std::function<HRESULT()>& reading, const std::function<void()>& meanwhile) {
        bool told = false;
        reads = 0;
        HRESULT result = E_UNEXPECTED;
        {
            const HWND frame = window->Frame();
            const DuringModal during([&] {
                told = ProgressOf(frame) && !IsWindowEnabled(frame);
                meanwhile();
            });
            result = reading();
            EXPECT_FALSE(IsWindow(frame) && (ProgressOf(frame) || !IsWindowEnabled(frame)));
        }
        EXPECT_TRUE(told);
        return result;
    }
    HRESULT ExpandAll(const std::function<void()>& meanwhile) {
        const ComPtr<IqzBookmarkCtrl> kept = pane;
        return Read([&] { return kept->ExpandAll(); }, meanwhile);
    }
    HWND Progress() const { return ProgressOf(window->Frame()); }
    void Cancel() const { SendDlgItemMessageW(Progress(), IDCANCEL, BM_CLICK, 0, 0); }

    long reads = 0;
    std::function<_variant_t(long)> deeper = [this](long) {
        if (++reads == 5) Sleep(ProgressPace::patience + 50);
        const auto made = MakeObject<OddBookmark>();
        made->count = 1L;
        made->item = deeper;
        return _variant_t(static_cast<IDispatch*>(made.Get()));
    };
    ComPtr<OddBookmark> top = MakeObject<OddBookmark>();
    std::optional<OutlineOverride> override;
};

TEST_F(LongReading, CancelledKeepsWhatWasRead) {
    ASSERT_EQ(host->put_LanguageId(0x407), S_OK);
    SetFocus(Tree());
    EXPECT_EQ(ExpandAll([this] {
                  EXPECT_TRUE(CutOffTexts(Progress()).empty());
                  EXPECT_EQ(window->Site().Count("EnableModeless(0)"), 1);
                  EXPECT_EQ(window->Site().Count("EnableModeless(1)"), 0);
                  Cancel();
              }),
              S_FALSE);
    EXPECT_EQ(window->Site().Count("EnableModeless(1)"), 1);
    EXPECT_EQ(GetFocus(), Tree());
    const std::wstring shown = Shown();
    EXPECT_EQ(shown.substr(0, 8), L"odd[odd[");
    EXPECT_EQ(shown.substr(shown.size() - 6), L"] odd+") << "what was not come to is unread: " << shown;
    EXPECT_NE(shown.find(L"odd+]"), std::wstring::npos);
    EXPECT_EQ(events->TakeEvents(), std::vector<std::string>{});
    long automatic = 0;
    host->GetAutoRefresh(&automatic);
    EXPECT_EQ(automatic, 1);
    EXPECT_EQ(pane->Refresh(), S_OK);
    EXPECT_EQ(Shown(), L"odd+ odd+");
}

TEST_F(LongReading, TheAsteriskIsCancelledByEscape) {
    SendMessageW(Tree(), TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(Next(TVGN_ROOT)));
    Read(
        [&] {
            SendMessageW(Tree(), WM_KEYDOWN, VK_MULTIPLY, 0);
            return S_OK;
        },
        [this] { PostMessageW(Progress(), WM_KEYDOWN, VK_ESCAPE, 0); });
    const std::wstring shown = Shown();
    EXPECT_EQ(shown.substr(0, 8), L"odd[odd[");
    EXPECT_EQ(shown.substr(shown.size() - 6), L"] odd+");
}

TEST_F(LongReading, NothingElseIsReadUntilARefreshEndsIt) {
    const std::function<void()> askers[] = {
        [this] { EXPECT_EQ(pane->Refresh(), S_OK); },
        [this] { EXPECT_EQ(host->RaiseChange(0x8000), S_OK); },
    };
    for (const auto& ask : askers) {
        EXPECT_EQ(ExpandAll([&] {
                      const std::wstring before = Shown();
                      EXPECT_EQ(pane->ExpandAll(), S_FALSE);
                      EXPECT_EQ(pane->CollapseAll(), S_FALSE);
                      const HTREEITEM last = Next(TVGN_NEXT, Next(TVGN_ROOT));
                      EXPECT_FALSE(Expand(last));
                      SendMessageW(Tree(), TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(last));
                      SendMessageW(Tree(), WM_KEYDOWN, VK_MULTIPLY, 0);
                      EXPECT_EQ(Shown(), before);
                      ask();
                      EXPECT_EQ(Shown(), before) << "not yet";
                  }),
                  S_FALSE);
        EXPECT_EQ(Shown(), L"odd+ odd+");
    }
}

TEST_F(LongReading, AnotherHostEndsIt) {
    const auto other = MakeHost(1);
    EXPECT_EQ(ExpandAll([&] {
                  override.reset();
                  ComPtr<IDispatch> outline;
                  ComPtr<IHostBookmark> root;
                  ASSERT_EQ(other->GetBookmarks(&outline), S_OK);
                  ASSERT_EQ(outline.As(&root), S_OK);
                  AddBookmark(root.Get(), L"other");
                  EXPECT_EQ(pane->Initialize(other.Get()), S_OK);
              }),
              S_FALSE);
    EXPECT_EQ(Shown(), L"other");
    EXPECT_EQ(SinkCount(host.Get()), 0);
}

TEST_F(LongReading, ThePaneMayGo) {
    EXPECT_EQ(ExpandAll([this] {
                  events->Disconnect();
                  window.reset();
                  pane.Reset();
              }),
              E_FAIL);
    long automatic = 0;
    host->GetAutoRefresh(&automatic);
    EXPECT_EQ(automatic, 1);
}

TEST(ProgressPace, ShowsAfterASecondAndThenFromTimeToTime) {
    ProgressPace pace(5'000);
    EXPECT_FALSE(pace.Due(5'999));
    EXPECT_TRUE(pace.Due(6'000));
    EXPECT_TRUE(pace.Due(9'000)) << "until it has been shown";
    pace.Shown(9'000);
    EXPECT_FALSE(pace.Due(9'049));
    EXPECT_TRUE(pace.Due(9'050));
}

}  // namespace
}  // namespace qz
