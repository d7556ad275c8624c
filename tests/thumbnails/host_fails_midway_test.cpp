// A host that fails at any one call: for every call of a step there is a run in which just that call fails.
#include "pane_fixture.h"

#include "tests/support/sweep.h"

#include <functional>

namespace qz {
namespace {

class HostFailsMidway : public PaneTest {
  protected:
    /// What must hold after any step, failed or not.
    void CheckNothingIsLost(IReferenceHost* host, long number) {
        long autoRefresh = 0;
        long page = 0;
        host->GetAutoRefresh(&autoRefresh);
        host->GetCurrentPage(&page);
        EXPECT_EQ(autoRefresh, 1) << "after failing call " << number;
        EXPECT_EQ(page, 2) << "after failing call " << number;
        long initialized = -1;
        pane->get_IsInitialized(&initialized);
        EXPECT_EQ(initialized, SinkCount(host)) << "after failing call " << number;
    }

    /// What the pane shows, every few pixels.
    std::vector<COLORREF> Pixels() {
        PumpMessages();
        std::vector<COLORREF> pixels;
        const HDC dc = GetDC(PaneWindow());
        for (int y = 0; y < paneSize.cy; y += 4) {
            for (int x = 0; x < paneSize.cx; x += 20) pixels.push_back(GetPixel(dc, x, y));
        }
        ReleaseDC(PaneWindow(), dc);
        return pixels;
    }

    void Sweep(IReferenceHost* host, const std::function<HRESULT()>& step) {
        const auto check = [&](long call, HRESULT) {
            PumpMessages();
            CheckNothingIsLost(host, call);
        };
        EXPECT_GT(FailEachCall(host, {.step = step, .check = check}), 5);
    }
};

TEST_F(HostFailsMidway, Initialize) {
    Activate();
    const auto host = MakeHost(4);
    host->SetCurrentPage(2);
    const ULONG before = ReferencesOf(host.Get());
    Sweep(host.Get(), [&] {
        pane->Reset();
        EXPECT_EQ(ReferencesOf(host.Get()), before);
        return pane->Initialize(host.Get());
    });
    pane->Reset();
    EXPECT_EQ(ReferencesOf(host.Get()), before);
}

TEST_F(HostFailsMidway, RedrawAllThumbs) {
    Activate();
    const auto host = MakeHost(4);
    host->SetCurrentPage(2);
    ASSERT_EQ(pane->Initialize(host.Get()), S_OK);
    Sweep(host.Get(), [&] { return pane->RedrawAllThumbs(); });
    EXPECT_EQ(pane->ScrollPageThumbIntoView(4), S_OK);
}

TEST_F(HostFailsMidway, HostChange) {
    Activate();
    const auto host = MakeHost(4);
    host->SetCurrentPage(2);
    ASSERT_EQ(pane->Initialize(host.Get()), S_OK);
    FailEachCall(host.Get(), {.step =
                                  [&] {
                                      host->RaiseChange(0x80);
                                      PumpMessages();
                                      return S_OK;
                                  },
                              .check =
                                  [&](long call, HRESULT) {
                                      CheckNothingIsLost(host.Get(), call);
                                      host->RaiseChange(0x80);
                                      EXPECT_EQ(pane->ScrollPageThumbIntoView(4), S_OK);
                                  }});
}

TEST_F(HostFailsMidway, AnotherHostIsAttachedInsideAnyOneCall) {
    Activate();
    const auto host = MakeHost(3), other = MakeHost(2);
    other->SetCurrentPage(1);
    ASSERT_EQ(pane->Initialize(other.Get()), S_OK);
    const std::vector<COLORREF> shown = Pixels();
    const std::function<void()> steps[] = {[&] { pane->Initialize(host.Get()); },
                                           [&] { pane->RedrawAllThumbs(); }, [&] { host->RaiseChange(0x80); },
                                           [&] { host->RaiseChange(0x1); },
                                           [&] {
                                               SendMessageW(PaneWindow(), WM_KEYDOWN, VK_HOME, 1);
                                               SendMessageW(PaneWindow(), WM_KEYDOWN, VK_RETURN, 1);
                                           }};
    for (const std::function<void()>& step : steps) {
        EXPECT_GT(InterruptEachCall(
                      host.Get(),
                      [&] {
                          host->SetCurrentPage(2);
                          ASSERT_EQ(pane->Initialize(host.Get()), S_OK);
                      },
                      step, [&] { EXPECT_EQ(pane->Initialize(other.Get()), S_OK); },
                      [&] {
                          SendMessageW(PaneWindow(), WM_KEYDOWN, VK_ESCAPE, 1);  // selects nothing
                          EXPECT_EQ(pane->ScrollPageThumbIntoView(3), E_FAIL);
                          EXPECT_EQ(Pixels(), shown) << "pages and the current one are the new host's";
                          EXPECT_EQ(SinkCount(host.Get()), 0);
                      }),
                  1);
    }
}

TEST_F(HostFailsMidway, PartOfThePagesStays) {
    const auto host = MakeHost(10);
    host->OverrideAttribute(_bstr_t(L"Pages[4]"), _bstr_t(L"Length"), _variant_t(L"not a number"));
    EXPECT_EQ(pane->Initialize(host.Get()), DISP_E_TYPEMISMATCH);
    EXPECT_NE(TakeErrorText(), L"");
    long initialized = 0;
    pane->get_IsInitialized(&initialized);
    EXPECT_EQ(initialized, 1);
    EXPECT_EQ(pane->ScrollPageThumbIntoView(3), S_OK);
    EXPECT_EQ(pane->ScrollPageThumbIntoView(4), E_FAIL);
    _variant_t noContents;
    host->GetObjectAttribute(_bstr_t(L"Document"), _bstr_t(L"GetPagePtrNoReadContents"), &noContents);
    EXPECT_EQ(noContents.boolVal, VARIANT_TRUE) << "left set when reading the pages fails";

    host->FailOperation(_bstr_t(L"GetPageCount"), E_FAIL);
    EXPECT_EQ(pane->RedrawAllThumbs(), E_FAIL);
    EXPECT_EQ(pane->ScrollPageThumbIntoView(1), E_FAIL)
        << "the records are gone before the pages are counted";
    host->ClearFaults();
    host->ClearOverrides();
    EXPECT_EQ(pane->RedrawAllThumbs(), S_OK);
    EXPECT_EQ(pane->ScrollPageThumbIntoView(10), S_OK);
}

}  // namespace
}  // namespace qz
