// Cut, copy and paste by the keyboard, through the system's clipboard.
#include "pages_fixture.h"

#include "panes/thumbnails/page_formats.h"
#include "tests/support/bytes_object.h"
#include "tests/support/sweep.h"

#include <algorithm>

namespace qz {
namespace {

static_assert(documentFormat == 0x201 && pagesFormat == 0x202);

class Pasting : public PagesTest {
  protected:
    void SetUp() override { EmptyTheClipboard(); }
    void TearDown() override { EmptyTheClipboard(); }

    static void EmptyTheClipboard() {
        ASSERT_TRUE(OpenClipboard(nullptr));
        EmptyClipboard();
        CloseClipboard();
    }

    /// Puts bytes on the clipboard as another program would.
    static void PutBytes(std::vector<CLIPFORMAT> formats, const std::string& bytes) {
        const auto data = MakeObject<BytesObject>(std::move(formats), bytes);
        ASSERT_EQ(OleSetClipboard(data.Get()), S_OK);
        ASSERT_EQ(OleFlushClipboard(), S_OK);
    }

    static std::string BytesOnClipboard(UINT format) {
        std::string bytes;
        if (!OpenClipboard(nullptr)) return bytes;
        if (const HGLOBAL memory = GetClipboardData(format)) {
            bytes.assign(static_cast<const char*>(GlobalLock(memory)), GlobalSize(memory));
            GlobalUnlock(memory);
        }
        CloseClipboard();
        return bytes;
    }

    /// A second document in the pane; what is on the clipboard comes from the first.
    void GoToAnotherDocument(long pages) {
        host = MakeTellingHost(pages, 5);
        ASSERT_EQ(pane->Initialize(host.Get()), S_OK);
        host->SetPageOpFlag(1);
        TakeEvents();
    }

    void ExpectHostUnharmed(long call) const {
        long flag = 0;
        long autoRefresh = 0;
        _variant_t sequence;
        host->GetPageOpFlag(&flag);
        host->GetAutoRefresh(&autoRefresh);
        host->GetObjectAttribute(_bstr_t(L"Document"), _bstr_t(L"PageSequence"), &sequence);
        EXPECT_EQ(flag, 1) << "page-operation flag, call " << call;
        EXPECT_EQ(autoRefresh, 1) << "automatic refresh, call " << call;
        const bool empty = sequence.vt == VT_EMPTY || (sequence.vt == (VT_ARRAY | VT_I4) &&
                                                       sequence.parray->rgsabound[0].cElements == 0);
        EXPECT_TRUE(empty) << "page sequence, call " << call;
    }

    void Sweep(WPARAM key, const std::function<void(long call)>& check) {
        const auto prepare = [this] {
            GoToAnotherDocument(4);
            Select({2});
            PumpMessages();
        };
        const auto step = [&] { return ControlKey(key), S_OK; };
        const auto checkAll = [&](long call, HRESULT) {
            PumpMessages();
            ExpectHostUnharmed(call);
            check(call);
            const auto count = static_cast<long>(Order().size());
            EXPECT_EQ(pane->ScrollPageThumbIntoView(count), S_OK);
            EXPECT_EQ(pane->ScrollPageThumbIntoView(count + 1), E_FAIL);
        };
        EXPECT_GT(FailEachCall([this] { return host.Get(); }, {prepare, step, checkAll}), 6);
    }
};

TEST_F(Pasting, PagesTravelBetweenDocuments) {
    Select({2, 5});
    ControlKey('C');
    EXPECT_EQ(TakeEvents(), Events{});
    GoToAnotherDocument(3);
    Select({2});
    ControlKey('V');
    EXPECT_EQ(Order(), (PageList{5, 6, 1, 4, 7})) << "after the selected page, in their order";
    EXPECT_EQ(TakeEvents(), (Events{"5:2,1,&1", "5:-1,0,&1"}));
    Select({1, 2});
    ControlKey('X');
    EXPECT_EQ(Order(), (PageList{1, 4, 7}));
    Select({3});
    ControlKey('V');
    EXPECT_EQ(Order(), (PageList{1, 4, 7, 5, 6})) << "at the end";
    ExpectHostUnharmed(0);
}

TEST_F(Pasting, ClipboardOutlivesPaneAndHost) {
    Select({3});
    ControlKey('C');
    const ULONG references = ReferencesOf(host.Get());
    pane->Reset();
    EXPECT_LT(ReferencesOf(host.Get()), references);
    EXPECT_EQ(ReferencesOf(host.Get()), 1u) << "the clipboard holds on to nothing of the document";
    Close();
    pane.Reset();
    EXPECT_NE(BytesOnClipboard(documentFormat), "");
    EXPECT_NE(BytesOnClipboard(pagesFormat), "");
    pane = MakePane();
    Activate();
    GoToAnotherDocument(2);
    Select({1});
    ControlKey('V');
    EXPECT_EQ(Order(), (PageList{5, 2, 6}));
}

TEST_F(Pasting, EitherFormatWillDo) {
    Select({4});
    ControlKey('C');
    const std::string pages = BytesOnClipboard(documentFormat);
    GoToAnotherDocument(2);
    Select({2});
    PutBytes({documentFormat}, pages);
    ControlKey('V');
    EXPECT_EQ(Order(), (PageList{5, 6, 3}));
    PutBytes({pagesFormat}, pages);
    Select({1});
    ControlKey('V');
    EXPECT_EQ(Order(), (PageList{5, 6, 3})) << "only what can be delivered as a document is pasted";
}

TEST_F(Pasting, WhatIsNoDocumentChangesNothing) {
    Select({2, 3});
    ControlKey('C');
    const std::string pages = BytesOnClipboard(documentFormat);
    GoToAnotherDocument(3);
    for (const std::string& bytes : {std::string(), std::string("no document"), pages.substr(0, 20),
                                     pages.substr(0, pages.size() / 2), std::string(5000, '\xFF')}) {
        for (const bool both : {true, false}) {
            Key(VK_ESCAPE);
            Select({2});
            TakeEvents();
            both ? PutBytes({documentFormat, pagesFormat}, bytes) : PutBytes({documentFormat}, bytes);
            ControlKey('V');
            EXPECT_EQ(Order(), (PageList{5, 6, 7})) << bytes.size();
            EXPECT_EQ(TakeEvents(), (Events{"5:2,1,&1", "5:-1,0,&1"})) << "the end is told all the same";
            ExpectHostUnharmed(0);
        }
    }
    EXPECT_EQ(host->DeletePage(1, 1), S_OK) << "nothing holds the document";
}

TEST_F(Pasting, VetoAndListenersDoings) {
    Select({2});
    ControlKey('C');
    events->answers[5] = 0;
    ControlKey('V');
    EXPECT_EQ(Order().size(), static_cast<size_t>(pageCount));
    events->answers.clear();
    const std::function<void()> doings[] = {
        [&] { pane->RedrawAllThumbs(); },
        [&] { pane->Reset(); },
        [&] { Close(); },
    };
    for (const auto& doing : doings) {
        if (!PaneWindow()) Activate();
        GoToAnotherDocument(3);
        Select({1});
        events->actions[5] = doing;
        ControlKey('V');
        events->actions.clear();
        ExpectHostUnharmed(0);
    }
    Activate();
    GoToAnotherDocument(3);
    Select({1});
    events->actions[5] = [&] {
        events->Disconnect();
        Close();
        pane.Reset();
    };
    ControlKey('V');
    EXPECT_FALSE(pane);
}

TEST_F(Pasting, HostFailsWhilePasting) {
    Select({2, 5});
    ControlKey('C');
    Sweep('V', [&](long call) {
        const PageList order = Order();
        const bool allowed = order == PageList{5, 6, 7, 8} || order == PageList{5, 6, 7, 8, 1, 4} ||
                             order == PageList{5, 6, 1, 4, 7, 8};
        EXPECT_TRUE(allowed) << "call " << call;
    });
}

TEST_F(Pasting, HostFailsWhileCuttingAndCopying) {
    Sweep('X', [&](long call) {
        const PageList order = Order();
        EXPECT_TRUE(order == (PageList{5, 6, 7, 8}) || order == (PageList{5, 7, 8})) << "call " << call;
        EXPECT_TRUE(order.size() == 4 || !BytesOnClipboard(documentFormat).empty()) << "deleted but not kept";
        EmptyTheClipboard();
    });
    PutBytes({documentFormat}, "somebody else's");
    Sweep('C', [&](long call) {
        EXPECT_EQ(Order(), (PageList{5, 6, 7, 8})) << "call " << call;
        EXPECT_NE(BytesOnClipboard(documentFormat), "") << "what was there stays when copying fails";
    });
}

}  // namespace
}  // namespace qz
