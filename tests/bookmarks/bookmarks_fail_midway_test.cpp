// A host that fails at any one call of a step.
#include "outline_fixture.h"

#include "tests/support/sweep.h"

namespace qz {
namespace {

class BookmarksFailMidway : public OutlineTest {
  protected:
    /// What must hold after any step, failed or not.
    void CheckNothingIsLost(long number) {
        host->ClearFaults();
        long automatic = 0;
        host->GetAutoRefresh(&automatic);
        EXPECT_EQ(automatic, 1) << "after failing call " << number;
        for (HTREEITEM item = Next(TVGN_ROOT); item; item = Next(TVGN_NEXT, item)) {
            const HTREEITEM child = Next(TVGN_CHILD, item);
            if (child && !Item(child).lParam) {
                EXPECT_EQ(Next(TVGN_NEXT, child), nullptr) << "a placeholder is alone";
            }
        }
        EXPECT_EQ(pane->Refresh(), S_OK) << "after failing call " << number;
        EXPECT_EQ(Shown(), L"A+ B C+");
    }

    /// `fatal`: how many of the calls, the first ones, the step does not get over; the rest it does.
    void Sweep(const std::function<HRESULT()>& step, std::optional<long> fatal = std::nullopt) {
        const auto told = [&step] {
            const HRESULT result = step();
            return result == E_FAIL ? planned : result;  // of a bookmark's failure a general one
        };
        const auto check = [&](long call, HRESULT result) {
            EXPECT_EQ(FAILED(result), fatal ? call > 0 && call <= *fatal : FAILED(result));
            CheckNothingIsLost(call);
        };
        EXPECT_GE(FailEachCall(host.Get(), {.step = told, .check = check}), fatal.value_or(5));
    }
};

TEST_F(BookmarksFailMidway, RefreshAndExpandAll) {
    ShowOutline();
    // GetAutoRefresh, SetAutoRefresh, state, mode, root, then Count and Item, Title, Count of each.
    Sweep([this] { return pane->Refresh(); }, 5 + 1 + 3 * 3);
    // Below the top level a failure leaves just that bookmark unread.
    Sweep([this] { return pane->ExpandAll(); }, 5 + 1 + 3 * 3);
}

TEST_F(BookmarksFailMidway, AFailedSubtreeHasOnePlaceholderAndTheRestIsExpanded) {
    ShowOutline();
    bool failedBelow = false;
    for (long number = 16; number < 32; ++number) {
        host->ClearLog();
        host->FailCall(number, planned);
        ASSERT_EQ(pane->ExpandAll(), S_OK);
        host->ClearFaults();
        const std::wstring shown = Shown();
        const bool whole = shown == L"A[A1[A1a] A2] B C[C1]";
        failedBelow = failedBelow || !whole;
        EXPECT_TRUE(whole || shown == L"A[A1+ A2] B C[C1]" || shown == L"A[A1[A1a] A2] B C+" ||
                    shown == L"A[A1+ A2] B C[C1]" || shown == L"A+ B C[C1]")
            << number;
    }
    EXPECT_TRUE(failedBelow);
}

TEST_F(BookmarksFailMidway, AFailedExpansionCanBeTriedAgain) {
    ShowOutline();
    for (long number = 1; number <= 7; ++number) {
        host->FailCall(number, planned);
        Expand(Find(L"A"));
        EXPECT_EQ(Shown(), L"A+ B C+") << number;
        host->FailCall(1, planned);
        ClickButtonOf(Find(L"A"));
        EXPECT_EQ(Shown(), L"A+ B C+");
        host->ClearFaults();
        Expand(Find(L"A"));
        EXPECT_EQ(Shown(), L"A[A1+ A2] B C+") << number;
        pane->Refresh();
    }
}

TEST_F(BookmarksFailMidway, InitializeAndTheHostsEvent) {
    ShowOutline();
    const auto other = MakeHost(1);
    Sweep([this] {
        const HRESULT result = pane->Initialize(host.Get());
        if (SinkCount(host.Get()) == 0) {
            EXPECT_EQ(Shown(), L"") << "nothing is left of a host that is gone";
            host->ClearFaults();
            EXPECT_EQ(pane->Initialize(host.Get()), S_OK);
        }
        return result;
    });
    Sweep([this] { return host->RaiseChange(0x8001); });
}

TEST_F(BookmarksFailMidway, AnotherHostIsAttachedInsideAnyOneCall) {
    ShowOutline();
    const auto other = MakeHost(2);
    ComPtr<IDispatch> outline;
    ComPtr<IHostBookmark> otherRoot;
    ASSERT_EQ(other->GetBookmarks(&outline), S_OK);
    ASSERT_EQ(outline.As(&otherRoot), S_OK);
    AddBookmark(AddBookmark(otherRoot.Get(), L"X").Get(), L"X1");
    const std::function<void()> steps[] = {[&] { pane->Initialize(host.Get()); }, [&] { pane->ExpandAll(); },
                                           [&] { host->RaiseChange(0x8001); }, [&] { Expand(Find(L"A")); },
                                           [&] {
                                               SendMessageW(Tree(), TVM_SELECTITEM, TVGN_CARET,
                                                            reinterpret_cast<LPARAM>(Find(L"A")));
                                               SendMessageW(Tree(), WM_KEYDOWN, VK_MULTIPLY, 1);
                                           }};
    for (const std::function<void()>& step : steps) {
        EXPECT_GT(InterruptEachCall(
                      host.Get(), [&] { ASSERT_EQ(pane->Initialize(host.Get()), S_OK); }, step,
                      [&] { EXPECT_EQ(pane->Initialize(other.Get()), S_OK); },
                      [&] {
                          EXPECT_EQ(Shown(), L"X+");
                          EXPECT_EQ(SinkCount(host.Get()), 0);
                          long automatic = 0;
                          host->GetAutoRefresh(&automatic);
                          EXPECT_EQ(automatic, 1);
                      }),
                  5);
    }
}

}  // namespace
}  // namespace qz
