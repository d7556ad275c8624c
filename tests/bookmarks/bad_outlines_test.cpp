// Hosts whose bookmarks are not what they should be.
#include "odd_bookmark.h"
#include "outline_fixture.h"

namespace qz {
namespace {

class BadOutlines : public OutlineTest {
  protected:
    BadOutlines() {
        top->count = 1L;
        top->item = [this](long) { return _variant_t(static_cast<IDispatch*>(child.Get())); };
    }
    HRESULT Initialize() {
        const OutlineOverride given(host.Get(), top.Get());
        return pane->Initialize(host.Get());
    }
    /// What Initialize answers leaves a text when it fails, the pane attached and the host as it was.
    void ExpectFailure(const char* what) {
        SetErrorInfo(0, nullptr);
        EXPECT_EQ(Initialize(), E_FAIL) << what;
        EXPECT_NE(TakeErrorText(), L"") << what;
        EXPECT_EQ(SinkCount(host.Get()), 1) << what;
        long automatic = 0;
        host->GetAutoRefresh(&automatic);
        EXPECT_EQ(automatic, 1) << what;
        EXPECT_EQ(events->TakeEvents(), std::vector<std::string>{}) << what;
    }

    ComPtr<OddBookmark> top = MakeObject<OddBookmark>();
    ComPtr<OddBookmark> child = MakeObject<OddBookmark>();
};

TEST_F(BadOutlines, WrongAnswersEndTheRebuild) {
    Show();
    top->count = _variant_t(L"many");
    ExpectFailure("a count that is no number");
    top->count = 2L;
    top->item = [this](long i) {
        return i == 0 ? _variant_t(static_cast<IDispatch*>(child.Get()))
                      : _variant_t(static_cast<IDispatch*>(nullptr));
    };
    ExpectFailure("a missing bookmark");
    EXPECT_EQ(Shown(), L"odd") << "what was read until then stays";
    top->item = [](long) { return _variant_t(7L); };
    ExpectFailure("a number for a bookmark");
    top->item = [](long) { return _variant_t(); };
    ExpectFailure("nothing for a bookmark");
    top->item = [this](long) { return _variant_t(static_cast<IDispatch*>(child.Get())); };
    top->count = 1L;
    child->title = _variant_t(static_cast<IDispatch*>(child.Get()));
    ExpectFailure("an object for a title");
    child->title = _variant_t();
    const OutlineOverride none(host.Get(), nullptr);
    EXPECT_EQ(pane->Refresh(), E_FAIL) << "no root";
}

TEST_F(BadOutlines, OddButUsableAnswers) {
    Show();
    top->count = _variant_t(L"1");
    child->count = -5L;
    child->title = _variant_t(12L);
    EXPECT_EQ(Initialize(), S_OK);
    EXPECT_EQ(Shown(), L"12") << "a negative count is none";
    VARIANT null{};
    null.vt = VT_NULL;
    child->title = null;
    EXPECT_EQ(Initialize(), S_OK);
    EXPECT_EQ(TextOf(Next(TVGN_ROOT)), L"");
    EXPECT_NE(Next(TVGN_ROOT), nullptr);
    top->count = -1L;
    EXPECT_EQ(Initialize(), S_OK);
    EXPECT_EQ(events->TakeEvents(), std::vector<std::string>{"2"});
    top->item = nullptr;
}

TEST_F(BadOutlines, OutlinesThatContainThemselvesEnd) {
    Show();
    child->count = 1L;
    child->item = [this](long) { return _variant_t(static_cast<IDispatch*>(child.Get())); };
    ASSERT_EQ(Initialize(), S_OK);
    EXPECT_EQ(Shown(), L"odd+");
    {
        const OutlineOverride given(host.Get(), top.Get());
        EXPECT_EQ(pane->ExpandAll(), S_OK);
        EXPECT_EQ(Shown(), L"odd[odd+]");
        Expand(Next(TVGN_CHILD, Next(TVGN_ROOT)));
        EXPECT_EQ(Shown(), L"odd[odd[odd+]]") << "the user may go on";
    }
    // A new object for every call: only the depth ends it.
    child->count = 0L;
    std::function<_variant_t(long)> deeper = [&](long) {
        const auto made = MakeObject<OddBookmark>();
        made->count = 1L;
        made->item = deeper;
        return _variant_t(static_cast<IDispatch*>(made.Get()));
    };
    top->item = deeper;
    const OutlineOverride given(host.Get(), top.Get());
    EXPECT_EQ(pane->ExpandAll(), S_OK);
    EXPECT_EQ(pane->CollapseAll(), S_OK);
    EXPECT_EQ(pane->Refresh(), S_OK);
    EXPECT_EQ(Shown(), L"odd+");
    child->item = nullptr;
    top->item = nullptr;
}

TEST_F(BadOutlines, BookmarksThatTurnOnThePane) {
    ShowOutline();
    const ComPtr<IqzBookmarkCtrl> kept = pane;
    child->count = 1L;
    child->item = [](long) {
        const auto leaf = MakeObject<OddBookmark>();
        return _variant_t(static_cast<IDispatch*>(leaf.Get()));
    };
    const OutlineOverride given(host.Get(), top.Get());
    const auto once = [&](std::function<void()> action) {
        child->onCount = [this, action] {
            child->onCount = [] {};
            action();
        };
    };
    once([&] { EXPECT_EQ(pane->Refresh(), S_OK); });
    EXPECT_EQ(pane->Refresh(), S_OK);
    EXPECT_EQ(Shown(), L"odd+") << "nothing is there twice";
    once([&] { EXPECT_EQ(pane->Initialize(host.Get()), S_OK); });
    EXPECT_EQ(pane->Refresh(), E_FAIL) << "the tree is the other one's";
    EXPECT_EQ(Shown(), L"odd+");
    once([&] { EXPECT_EQ(pane->Refresh(), S_OK); });
    Expand(Next(TVGN_ROOT));
    EXPECT_EQ(Shown(), L"odd+") << "the item that was being expanded is gone";
    once([&] { Expand(Next(TVGN_ROOT)); });
    Expand(Next(TVGN_ROOT));
    EXPECT_EQ(Shown(), L"odd[odd]");
    pane->Refresh();
    once([&] { window.reset(); });
    Expand(Next(TVGN_ROOT));
    EXPECT_FALSE(window);
    Show();
    once([&] {
        events->Disconnect();
        window.reset();
        pane.Reset();
    });
    kept->Refresh();
    child->item = nullptr;
    top->item = nullptr;
}

}  // namespace
}  // namespace qz
