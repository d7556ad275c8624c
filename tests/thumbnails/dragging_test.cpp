// Pages dragged by the mouse: within the pane, between panes, to another program's drop target.
#include "pages_fixture.h"

#include <ole2.h>

#include <algorithm>
#include <atomic>
#include <thread>

namespace qz {
namespace {

/// The user's hands on mouse and keyboard, in a thread of their own: dragging does not return to the test.
class Hands {
  public:
    static void Wait() { Sleep(25); }
    static void MoveTo(POINT screen) {
        SetCursorPos(screen.x, screen.y);
        Wait();
    }
    static void Button(DWORD flags) {
        INPUT input{};
        input.type = INPUT_MOUSE;
        input.mi.dwFlags = flags;
        SendInput(1, &input, sizeof input);
        Wait();
    }
    static void Key(WORD key, bool down) {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = key;
        input.ki.dwFlags = down ? 0 : KEYEVENTF_KEYUP;
        SendInput(1, &input, sizeof input);
        Wait();
    }
    /// In several steps, as a hand does.
    static void Glide(POINT from, POINT to) {
        constexpr int steps = 6;
        for (int i = 1; i <= steps; ++i) {
            MoveTo({from.x + (to.x - from.x) * i / steps, from.y + (to.y - from.y) * i / steps});
        }
        MoveTo({to.x + 1, to.y});
    }
};

/// A pane beside the first, on a document of its own.
class OtherPane {
  public:
    OtherPane(ComPtr<IqzThumbnailCtrl> made, ComPtr<IReferenceHost> itsHost, SIZE size)
        : pane(std::move(made)), host(std::move(itsHost)) {
        frame_ = CreateWindowExW(0, L"STATIC", L"other", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, left, 0,
                                 size.cx, size.cy, nullptr, nullptr, nullptr, nullptr);
        site_ = MakeObject<ControlSite>(frame_);
        site_->position = {0, 0, size.cx, size.cy};
        ThrowIfFailed(pane.As(&object_));
        ThrowIfFailed(object_->SetClientSite(site_->Client()));
        ThrowIfFailed(
            object_->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, site_->Client(), 0, frame_, &site_->position));
        ThrowIfFailed(pane->Initialize(host.Get()));
    }
    ~OtherPane() {
        object_->Close(OLECLOSE_NOSAVE);
        object_->SetClientSite(nullptr);
        DestroyWindow(frame_);
    }
    OtherPane(const OtherPane&) = delete;
    OtherPane& operator=(const OtherPane&) = delete;

    static POINT PointOn(long page) { return {left + (page - 1) % 2 * 95 + 45, (page - 1) / 2 * 120 + 55}; }

    ComPtr<IqzThumbnailCtrl> pane;
    ComPtr<IReferenceHost> host;

  private:
    static constexpr int left = 300;
    HWND frame_;
    ComPtr<ControlSite> site_;
    ComPtr<IOleObject> object_;
};

/// Another program's drop target: takes what it is given as a copy.
class ForeignTarget final : public Object<ForeignTarget, IDropTarget> {
  public:
    STDMETHODIMP DragEnter(IDataObject*, DWORD, POINTL, DWORD* effect) override { return Say(effect); }
    STDMETHODIMP DragOver(DWORD, POINTL, DWORD* effect) override { return Say(effect); }
    STDMETHODIMP DragLeave() override { return S_OK; }
    STDMETHODIMP Drop(IDataObject* data, DWORD, POINTL, DWORD* effect) override {
        FORMATETC format{0x201, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
        STGMEDIUM medium{};
        got = data->GetData(&format, &medium);
        if (SUCCEEDED(got)) bytes = GlobalSize(medium.hGlobal);
        ReleaseStgMedium(&medium);
        return Say(effect);
    }

    DWORD wanted = DROPEFFECT_COPY;
    HRESULT got = E_UNEXPECTED;
    size_t bytes = 0;

  private:
    HRESULT Say(DWORD* effect) const {
        *effect &= wanted;
        return S_OK;
    }
};

class Dragging : public PagesTest {
  protected:
    /// Keys go to the foreground.
    void SetUp() override { SetForegroundWindow(GetAncestor(PaneWindow(), GA_ROOT)); }

    /// Lets the hands do something while this thread handles its messages.
    static void While(const std::function<void()>& hands) {
        std::atomic<bool> done = false;
        std::thread thread([&] {
            hands();
            done = true;
        });
        while (!done) {
            PumpMessages();
            Sleep(1);
        }
        thread.join();
        PumpMessages();
    }
    static void Drag(POINT from, POINT to, WORD key = 0) {
        While([=] {
            Hands::MoveTo(from);
            Hands::Button(MOUSEEVENTF_LEFTDOWN);
            if (key) Hands::Key(key, true);  // the pane has the focus by now
            Hands::Glide(from, to);
            // Wine's display driver takes a key that no keyboard holds for released when the pointer moves.
            if (key) Hands::Key(key, true);
            Hands::Button(MOUSEEVENTF_LEFTUP);
            if (key) Hands::Key(key, false);
        });
    }
    void Drag(long from, long to, WORD key = 0) const { Drag(ScreenPointOn(from), ScreenPointOn(to), key); }
};

TEST_F(Dragging, MovesWithinTheDocument) {
    host->SetPageOpFlag(1);
    Drag(2, 5);
    EXPECT_EQ(Order(), (PageList{0, 2, 3, 4, 1, 5, 6, 7}));
    EXPECT_EQ(TakeEvents(), (Events{"5:2,1,&1", "5:-1,0,&1"})) << "no question about deleting";
    Select({4, 5, 6});
    Drag(5, 1);
    EXPECT_EQ(Order(), (PageList{0, 4, 1, 5, 2, 3, 6, 7})) << "a block, upwards";
    Select({2, 3});
    Drag(2, 3);
    EXPECT_EQ(Order(), (PageList{0, 4, 1, 5, 2, 3, 6, 7})) << "onto itself";
    long flag = 0;
    host->GetPageOpFlag(&flag);
    EXPECT_EQ(flag, 1);
}

TEST_F(Dragging, StartsBeyondEightPixels) {
    const POINT from = ScreenPointOn(3);
    Drag(from, {from.x + 7, from.y});  // and one more in the end
    EXPECT_EQ(TakeEvents(), (Events{"1:3,&1", "3:3"})) << "a click with an unsteady hand";
    Drag(from, {from.x + 30, from.y});
    EXPECT_EQ(TakeEvents(), (Events{"5:2,1,&1", "5:-1,0,&1"}));
    EXPECT_EQ(Order(), (PageList{0, 1, 2, 3, 4, 5, 6, 7})) << "dropped where it was";
    pane->SettingsChange(0, qzThumbnailCtrlSettings_PageMoveOrDragAndDrop);
    Drag(2, 5);
    EXPECT_EQ(Order(), (PageList{0, 1, 2, 3, 4, 5, 6, 7}));
}

TEST_F(Dragging, OnlyARangeWithoutGapsMoves) {
    Select({2, 4});
    EXPECT_EQ(BoxDuring([&] { Drag(2, 5); }),
              L"Sorry, you may only move around a contiguous range of pages.");
    EXPECT_EQ(TakeEvents(), (Events{"4:1,&1"}));
    EXPECT_EQ(Order(), (PageList{0, 1, 2, 3, 4, 5, 6, 7}));
    Drag(2, 5, VK_CONTROL);
    EXPECT_EQ(Order(), (PageList{0, 1, 2, 3, 4, 1, 3, 5, 6, 7})) << "copying needs no range";
}

TEST_F(Dragging, BetweenTwoDocuments) {
    OtherPane other(MakePane(), MakeTellingHost(2, 6), paneSize);
    Select({2, 3});
    Drag(ScreenPointOn(2), OtherPane::PointOn(1));
    EXPECT_EQ(OrderOf(other.host.Get()), (PageList{6, 1, 2, 7}));
    EXPECT_EQ(Order(), (PageList{0, 3, 4, 5, 6, 7})) << "moved: gone here, without a question";
    EXPECT_EQ(TakeEvents(), Events{});
    Drag(OtherPane::PointOn(4), ScreenPointOn(1), VK_CONTROL);
    EXPECT_EQ(OrderOf(other.host.Get()), (PageList{6, 1, 2, 7}));
    EXPECT_EQ(Order(), (PageList{0, 7, 3, 4, 5, 6, 7}));
}

TEST_F(Dragging, BetweenTwoPanesOfOneDocument) {
    OtherPane other(MakePane(), host, paneSize);
    Drag(ScreenPointOn(2), OtherPane::PointOn(4));
    EXPECT_EQ(Order(), (PageList{0, 2, 3, 1, 4, 5, 6, 7})) << "moved, not doubled and not lost";
}

TEST_F(Dragging, TheLastPageStays) {
    OtherPane other(MakePane(), MakeTellingHost(1, 9), paneSize);
    ControlKey('A');
    EXPECT_NE(BoxDuring([&] { Drag(ScreenPointOn(2), OtherPane::PointOn(1)); }), L"");
    EXPECT_EQ(TakeEvents(), (Events{"4:2,&1"}));
    EXPECT_EQ(Order().size(), static_cast<size_t>(pageCount));
    EXPECT_EQ(OrderOf(other.host.Get()).size(), static_cast<size_t>(pageCount) + 1);
}

TEST_F(Dragging, ShowsTheTargetAndScrollsAtTheEdge) {
    const POINT from = ScreenPointOn(2);
    const POINT to = ScreenPointOn(3);
    const POINT paper{PointOn(3).x + 25, PointOn(3).y + 53};  // white, below the page's lines
    const COLORREF before = PixelAt(paper.x, paper.y);
    COLORREF over = before;
    long scrolled = 0;
    While([&] {
        Hands::MoveTo(from);
        Hands::Button(MOUSEEVENTF_LEFTDOWN);
        Hands::Glide(from, to);
        over = PixelAt(paper.x, paper.y);
        for (int i = 0; i < 6; ++i) Hands::MoveTo({to.x + i, 390});
        scrolled = ScrollPosition();
        Hands::Key(VK_ESCAPE, true);
        Hands::Key(VK_ESCAPE, false);
        Hands::Button(MOUSEEVENTF_LEFTUP);
    });
    EXPECT_EQ(over, before ^ RGB(255, 255, 255));
    EXPECT_GE(scrolled, 30);
    pane->ScrollPageThumbIntoView(1);
    PumpMessages();
    EXPECT_EQ(PixelAt(paper.x, paper.y), before) << "the mark goes with the drag";
}

TEST_F(Dragging, ToAnotherProgram) {
    const HWND window =
        CreateWindowExW(WS_EX_TOPMOST, L"STATIC", L"target", WS_POPUP | WS_VISIBLE | SS_NOTIFY, 600, 0, 100,
                        100, nullptr, nullptr, nullptr, nullptr);
    const ComPtr<ForeignTarget> target = MakeObject<ForeignTarget>();
    ASSERT_EQ(RegisterDragDrop(window, target.Get()), S_OK);
    Select({2, 3});
    Drag(ScreenPointOn(2), {650, 50});
    EXPECT_EQ(target->got, S_OK);
    EXPECT_GT(target->bytes, 100u);
    EXPECT_EQ(Order().size(), static_cast<size_t>(pageCount)) << "it took a copy";
    target->wanted = DROPEFFECT_MOVE;
    Drag(ScreenPointOn(2), {650, 50});
    EXPECT_EQ(Order(), (PageList{0, 3, 4, 5, 6, 7})) << "it took the pages themselves";
    RevokeDragDrop(window);
    DestroyWindow(window);
}

TEST_F(Dragging, AFailingHostKeepsThePages) {
    const ComPtr<IReferenceHost> failing = MakeTellingHost(2, 6);
    OtherPane other(MakePane(), failing, paneSize);
    for (const wchar_t* operation : {L"InsertPagesFromStream", L"MovePages", L"SetAutoRefresh"}) {
        failing->FailOperation(_bstr_t(operation), E_FAIL);
        Select({2});
        Drag(ScreenPointOn(2), OtherPane::PointOn(1));
        EXPECT_EQ(Order(), (PageList{0, 1, 2, 3, 4, 5, 6, 7})) << operation;
        failing->ClearFaults();
        Key(VK_ESCAPE);
    }
}

TEST_F(Dragging, ListenersMayDoAnythingInsideADrop) {
    const std::function<void()> doings[] = {
        [&] { pane->RedrawAllThumbs(); },
        [&] { pane->Reset(); },
        [&] { Close(); },
    };
    for (const auto& doing : doings) {
        if (!PaneWindow()) Activate();
        host = MakeTellingHost(pageCount);
        pane->Initialize(host.Get());
        events->actions[5] = doing;
        Drag(2, 5);
        events->actions.clear();
        PageList order = Order();
        std::ranges::sort(order);
        order.erase(std::unique(order.begin(), order.end()), order.end());
        EXPECT_EQ(order, (PageList{0, 1, 2, 3, 4, 5, 6, 7})) << "no page is lost";
    }
    Activate();
    pane->Initialize(host.Get());
    events->actions[5] = [&] {
        events->Disconnect();
        Close();
        pane.Reset();
    };
    Drag(2, 5);
    EXPECT_FALSE(pane);
}

}  // namespace
}  // namespace qz
