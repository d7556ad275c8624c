// A host that fails at any one call: for every call of a step there is a run in which just that call fails.
#include "layers_fixture.h"

#include "tests/support/sweep.h"

#include <functional>

namespace qz {
namespace {

class LayersHostFails : public LayersTest {
  protected:
    void SetUp() override { Configure(L"ABcD", L"(A)[(B)(c)](D)(Heading)", L"[(c)(D)]", L"(A)", L"(c)"); }

    void Sweep(const std::function<HRESULT()>& step, int fewest) {
        const auto check = [this](long call, HRESULT) {
            PumpMessages();
            long refresh = 0;
            host->GetAutoRefresh(&refresh);
            EXPECT_EQ(refresh, 1);
            CheckShown(static_cast<int>(call));
        };
        EXPECT_GE(FailEachCall(host.Get(), {.step = step, .check = check}), fewest);
    }
    /// Every mark in the tree is the host's state.
    void CheckShown(int number) {
        const std::wstring items = Items();
        const std::wstring states = HostStates();
        for (std::size_t i = 0; i < states.size(); i += 2) {
            const std::size_t at = items.find(states[i + 1]);
            if (at == std::wstring::npos || items[at - 1] == L'*') continue;
            EXPECT_EQ(items[at - 1], states[i])
                << "failing call " << number << " layer " << char(states[i + 1]);
        }
    }
};

TEST_F(LayersHostFails, Refresh) {
    Open();
    Sweep([&] { return pane->Refresh(); }, 10);
    EXPECT_EQ(Items(), L"+A[+B -c] +D *Heading");
}

TEST_F(LayersHostFails, Initialize) {
    window.emplace(pane.Get(), SIZE{200, 200});
    const ULONG before = ReferencesOf(host.Get());
    Sweep(
        [&] {
            pane->Reset();
            EXPECT_EQ(ReferencesOf(host.Get()), before);
            return pane->Initialize(host.Get());
        },
        12);
}

TEST_F(LayersHostFails, Toggling) {
    Open();
    Sweep(
        [&] {
            Click(L"A", Part::Check);
            return S_OK;
        },
        4);
    Sweep(
        [&] {
            pane->ResetToInitialVisibility();
            host->ClearFaults();
            host->FailCall(1 + static_cast<int>(CallCount(host.Get(), L"")) % 4, planned);
            Click(L"D", Part::Check);
            return S_OK;
        },
        1);
}

TEST_F(LayersHostFails, FollowingAChange) {
    Open();
    pane->put_ListLayers(qzLayersCtrlListLayers_ForCurrentPage);
    FailEachCall(host.Get(), {.step = [this] { return host->RaiseChange(0xFFFF), S_OK; },
                              .check =
                                  [this](long, HRESULT) {
                                      host->RaiseChange(0xFFFF);
                                      EXPECT_EQ(Items(), L"+A[+B -c] +D");
                                  }});
}

TEST_F(LayersHostFails, AnotherHostIsAttachedInsideAnyOneCall) {
    Open();
    ASSERT_EQ(pane->put_ListLayers(qzLayersCtrlListLayers_ForCurrentPage), S_OK);
    const auto other = MakeHost(1);
    ThrowIfFailed(other->AddLayer(_bstr_t(L"X"), _bstr_t(L"X"), 1));
    const auto writes = [&] { return CallCount(host.Get(), L"SetObjectAttribute"); };
    long written = 0;
    const std::function<void()> steps[] = {
        [&] { pane->Initialize(host.Get()); }, [&] { host->RaiseChange(0xFFFF); },
        [&] { Click(L"A", Part::Check); }, [&] { pane->ResetToInitialVisibility(); }};
    for (const std::function<void()>& step : steps) {
        InterruptEachCall(
            host.Get(), [&] { ASSERT_EQ(pane->Initialize(host.Get()), S_OK); }, step,
            [&] {
                EXPECT_EQ(pane->Initialize(other.Get()), S_OK);
                written = writes();
            },
            [&] {
                EXPECT_EQ(Items(), L"+X");
                EXPECT_EQ(writes(), written) << "a host that was let go is written to";
                EXPECT_EQ(SinkCount(host.Get()), 0);
            });
    }
}

// A host that comes back into the pane, or ends it, while it is being written to.
TEST_F(LayersHostFails, HostEndsThePaneWhileItWrites) {
    Open();
    const ComPtr<EventRecorder> other = MakeObject<EventRecorder>();
    other->Connect(host.Get(), DIID__IVandraXEvents);
    bool once = true;
    other->actions[5] = [&] {
        if (std::exchange(once, false)) pane->Refresh();
    };
    Click(L"A", Part::Check);
    EXPECT_FALSE(once);
    CheckShown(0);
    other->actions[5] = [&] {
        other->Disconnect();
        End();
    };
    Click(L"A", Part::Check);
    EXPECT_FALSE(pane);
    other->Disconnect();
}

}  // namespace
}  // namespace qz
