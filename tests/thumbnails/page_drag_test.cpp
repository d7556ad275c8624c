// A window that takes dropped pages, called as the system calls it and by a real drag of the mouse.
#include "panes/thumbnails/page_drag.h"
#include "panes/thumbnails/page_drop_target.h"
#include "tests/support/served_class.h"
#include "transfer_fixture.h"

#include <shlobj.h>

#include <memory>
#include <thread>

namespace qz {
namespace {

/// Notes what it is told, and does what the test says.
class Listener : public PageDropListener {
  public:
    bool accepts = true;
    Lines told;
    std::function<void()> whenHovered;
    std::function<DWORD(IDataObject*)> whenDropped;
    PageDropRegistration registration;

    bool AcceptsDrops() override { return accepts; }
    void OnDragOver(POINT at) override {
        told.push_back(L"over " + std::to_wstring(at.x) + L"," + std::to_wstring(at.y));
        if (const auto action = whenHovered) action();
    }
    void OnDragLeave() override { told.emplace_back(L"leave"); }
    DWORD OnDrop(IDataObject* data, POINT at, DWORD effect) override {
        told.push_back(L"drop " + std::to_wstring(at.x) + L"," + std::to_wstring(at.y));
        const auto action = whenDropped;
        return action ? action(data) : effect;
    }
};

/// Handles messages until the left button is down, as a view does before it starts a drag.
bool AwaitPress() {
    constexpr ULONGLONG patience = 5000;  // milliseconds
    for (const ULONGLONG start = GetTickCount64(); GetTickCount64() - start < patience; Sleep(5)) {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            DispatchMessageW(&message);
            if (message.message == WM_LBUTTONDOWN) return true;
        }
    }
    return false;
}

class PageDragTest : public ::testing::Test {
  protected:
    PageDragTest() { listener->registration = PageDropRegistration(window, *listener); }
    ~PageDragTest() override {
        listener.reset();
        DestroyWindow(window);
    }

    /// What the system calls.
    ComPtr<IDropTarget> Target() const {
        return static_cast<IDropTarget*>(GetPropW(window, L"OleDropTargetInterface"));
    }
    POINTL OnScreen(long x, long y) const {
        POINT point{x, y};
        ClientToScreen(window, &point);
        return {point.x, point.y};
    }
    /// Enters with pages; gives the effect.
    DWORD Enter(DWORD keys, DWORD allowed = DROPEFFECT_COPY | DROPEFFECT_MOVE) {
        DWORD effect = allowed;
        EXPECT_EQ(Target()->DragEnter(pages.Get(), keys, OnScreen(10, 20), &effect), S_OK);
        return effect;
    }

    HWND window = CreateWindowExW(WS_EX_TOPMOST, L"STATIC", L"", WS_POPUP | WS_VISIBLE | SS_NOTIFY, 40, 40,
                                  300, 300, nullptr, nullptr, nullptr, nullptr);
    std::unique_ptr<Listener> listener = std::make_unique<Listener>();
    ComPtr<IReferenceHost> host = MakeNumberedHost(3, 1000);
    ComPtr<IDataObject> pages = MakePageDataObject(host.Get(), {2});
};

TEST_F(PageDragTest, TheListenerIsToldWhereUsablePagesAre) {
    EXPECT_EQ(Enter(MK_LBUTTON), DWORD{DROPEFFECT_MOVE});
    DWORD effect = DROPEFFECT_COPY | DROPEFFECT_MOVE;
    Target()->DragOver(MK_LBUTTON | MK_CONTROL, OnScreen(-1, 30), &effect);
    EXPECT_EQ(effect, DWORD{DROPEFFECT_COPY});
    effect = DROPEFFECT_COPY | DROPEFFECT_MOVE;
    Target()->DragOver(MK_CONTROL | MK_SHIFT, OnScreen(1, 1), &effect);
    EXPECT_EQ(effect, DWORD{DROPEFFECT_NONE}) << "the source allows no link";
    Target()->DragLeave();
    EXPECT_EQ(listener->told, (Lines{L"over 10,20", L"over -1,30", L"leave"}));
    listener->told.clear();
    Enter(MK_LBUTTON);
    effect = DROPEFFECT_MOVE;
    EXPECT_EQ(Target()->Drop(pages.Get(), 0, OnScreen(5, 6), &effect), S_OK);
    EXPECT_EQ(effect, DWORD{DROPEFFECT_MOVE});
    Target()->DragLeave();
    EXPECT_EQ(listener->told, (Lines{L"over 10,20", L"drop 5,6"}));
}

TEST_F(PageDragTest, WhatIsNotWantedHasNoEffect) {
    listener->accepts = false;
    EXPECT_EQ(Enter(MK_LBUTTON), DWORD{DROPEFFECT_NONE});
    DWORD effect = DROPEFFECT_MOVE;
    EXPECT_EQ(Target()->Drop(pages.Get(), 0, OnScreen(5, 6), &effect), S_OK);
    EXPECT_EQ(effect, DWORD{DROPEFFECT_NONE});
    listener->accepts = true;
    const auto text = MakeObject<PlainData>(CF_TEXT, Bytes(4));
    for (IDataObject* const useless :
         {static_cast<IDataObject*>(text.Get()), static_cast<IDataObject*>(nullptr)}) {
        effect = DROPEFFECT_MOVE;
        EXPECT_EQ(Target()->DragEnter(useless, 0, OnScreen(1, 1), &effect), S_OK);
        EXPECT_EQ(effect, DWORD{DROPEFFECT_NONE});
        effect = DROPEFFECT_MOVE;
        EXPECT_EQ(Target()->Drop(useless, 0, OnScreen(1, 1), &effect), S_OK);
        EXPECT_EQ(effect, DWORD{DROPEFFECT_NONE});
    }
    EXPECT_EQ(Target()->DragOver(0, OnScreen(1, 1), nullptr), E_POINTER);
    EXPECT_EQ(listener->told, Lines{});
}

TEST_F(PageDragTest, FailuresOfTheListenerHaveNoEffect) {
    listener->whenHovered = [] { Throw(E_ACCESSDENIED); };
    listener->whenDropped = [](IDataObject*) -> DWORD { Throw(E_OUTOFMEMORY); };
    DWORD effect = DROPEFFECT_MOVE;
    EXPECT_EQ(Target()->DragEnter(pages.Get(), 0, OnScreen(1, 1), &effect), E_ACCESSDENIED);
    EXPECT_EQ(effect, DWORD{DROPEFFECT_NONE});
    effect = DROPEFFECT_MOVE;
    EXPECT_EQ(Target()->Drop(pages.Get(), 0, OnScreen(1, 1), &effect), E_OUTOFMEMORY);
    EXPECT_EQ(effect, DWORD{DROPEFFECT_NONE});
}

TEST_F(PageDragTest, TheListenerMayGoInsideACall) {
    const ComPtr<IDropTarget> target = Target();
    listener->whenHovered = [&] { listener.reset(); };
    EXPECT_EQ(Enter(0), DWORD{DROPEFFECT_MOVE});
    EXPECT_EQ(GetPropW(window, L"OleDropTargetInterface"), nullptr);
    DWORD effect = DROPEFFECT_MOVE;
    EXPECT_EQ(target->DragOver(0, OnScreen(1, 1), &effect), S_OK);
    EXPECT_EQ(effect, DWORD{DROPEFFECT_NONE});
    EXPECT_EQ(target->DragLeave(), S_OK);

    listener = std::make_unique<Listener>();
    listener->registration = PageDropRegistration(window, *listener);
    EXPECT_EQ(CodeOf([&] { PageDropRegistration(window, *listener); }), DRAGDROP_E_ALREADYREGISTERED);
    listener->whenDropped = [&](IDataObject*) -> DWORD {
        listener.reset();
        return DROPEFFECT_COPY;
    };
    effect = DROPEFFECT_MOVE;
    EXPECT_EQ(Target()->Drop(pages.Get(), 0, OnScreen(1, 1), &effect), S_OK);
    EXPECT_EQ(effect, DWORD{DROPEFFECT_COPY});
}

/// The user's hand, from another thread: presses at one point of the screen and lets go at another.
class Hand {
  public:
    Hand(POINTL from, POINTL to, DWORD ending = MOUSEEVENTF_LEFTUP)
        : thread_([=] {
              Move(from);
              Button(MOUSEEVENTF_LEFTDOWN);
              Sleep(200);
              for (int step = 1; step <= 4; ++step)
                  Move({from.x + (to.x - from.x) * step / 4, from.y + (to.y - from.y) * step / 4});
              Button(ending);
              Sleep(100);
              if (ending != MOUSEEVENTF_LEFTUP) Button(MOUSEEVENTF_LEFTUP);
          }) {}
    ~Hand() { thread_.join(); }

  private:
    static void Move(POINTL to) {
        SetCursorPos(to.x, to.y);
        Button(MOUSEEVENTF_MOVE);
        Sleep(50);
    }
    static void Button(DWORD flag) {
        INPUT input{};
        input.type = INPUT_MOUSE;
        input.mi.dwFlags = flag;
        SendInput(1, &input, sizeof input);
    }

    std::thread thread_;
};

/// Draws pictures of drags as the system's helper does, which no Wine has: as the source's side it keeps the
/// bitmap.
class PictureHelper final : public Object<PictureHelper, IDragSourceHelper, IDropTargetHelper> {
  public:
    ~PictureHelper() override { DeleteObject(image.hbmpDragImage); }

    SHDRAGIMAGE image{};
    HRESULT answer = S_OK;
    Lines told;

    STDMETHODIMP InitializeFromBitmap(SHDRAGIMAGE* given, IDataObject*) override {
        if (SUCCEEDED(answer)) image = *given;
        told.emplace_back(L"picture");
        return answer;
    }
    STDMETHODIMP InitializeFromWindow(HWND, POINT*, IDataObject*) override { return E_NOTIMPL; }
    STDMETHODIMP DragEnter(HWND window, IDataObject*, POINT* at, DWORD effect) override {
        return Tell(IsWindow(window) ? L"enter" : L"enter nothing", *at, effect);
    }
    STDMETHODIMP DragLeave() override {
        told.emplace_back(L"leave");
        return S_OK;
    }
    STDMETHODIMP DragOver(POINT* at, DWORD effect) override { return Tell(L"over", *at, effect); }
    STDMETHODIMP Drop(IDataObject*, POINT* at, DWORD effect) override { return Tell(L"drop", *at, effect); }
    STDMETHODIMP Show(BOOL show) override {
        told.emplace_back(show ? L"show" : L"hide");
        return S_OK;
    }

  private:
    HRESULT Tell(const wchar_t* what, POINT at, DWORD effect) {
        told.push_back(what + (L" " + std::to_wstring(at.x)) + L"," + std::to_wstring(at.y) + L" " +
                       std::to_wstring(effect));
        return S_OK;
    }
};

TEST_F(PageDragTest, ThePictureFollowsWhereThePagesAre) {
    const auto helper = MakeObject<PictureHelper>();
    const ServedClass served(CLSID_DragDropHelper, helper->Identity());
    listener->registration.ShowImage(false);
    EXPECT_EQ(Enter(0), DWORD{DROPEFFECT_MOVE});
    listener->registration.ShowImage(false);
    listener->registration.ShowImage(true);
    DWORD effect = DROPEFFECT_COPY | DROPEFFECT_MOVE;
    EXPECT_EQ(Target()->DragOver(MK_CONTROL, OnScreen(11, 21), &effect), S_OK);
    EXPECT_EQ(Target()->DragLeave(), S_OK);
    listener->registration.ShowImage(true);
    EXPECT_EQ(Enter(0), DWORD{DROPEFFECT_MOVE});
    effect = DROPEFFECT_MOVE;
    EXPECT_EQ(Target()->Drop(pages.Get(), 0, OnScreen(12, 22), &effect), S_OK);
    // The window stands at 40, 40; its picture is touched only while the pages are over it.
    EXPECT_EQ(helper->told, (Lines{L"enter 50,60 2", L"hide", L"show", L"over 51,61 1", L"leave",
                                   L"enter 50,60 2", L"drop 52,62 2"}));
}

TEST_F(PageDragTest, TheSystemKeepsTheBitmapThatItTakes) {
    for (const HRESULT answer : {S_OK, E_NOTIMPL}) {
        const auto helper = MakeObject<PictureHelper>();
        helper->answer = answer;
        const ServedClass served(CLSID_DragDropHelper, helper->Identity());
        DragPicture picture{DibSection(20, 30), {10, 15}};
        std::ranges::fill(picture.pixels.Pixels(), DWORD{0xFF0000FF});
        {
            const Hand hand(OnScreen(20, 20), OnScreen(100, 120), MOUSEEVENTF_RIGHTDOWN);
            ASSERT_TRUE(AwaitPress());
            DragPages(host.Get(), {2}, DROPEFFECT_COPY, picture);
        }
        mouse_event(MOUSEEVENTF_RIGHTUP, 0, 0, 0, 0);
        ASSERT_FALSE(helper->told.empty());
        EXPECT_EQ(helper->told.front(), L"picture");
        if (FAILED(answer)) continue;
        EXPECT_EQ(helper->image.sizeDragImage.cx, 20);
        EXPECT_EQ(helper->image.sizeDragImage.cy, 30);
        EXPECT_EQ(helper->image.ptOffset.x, 10);
        EXPECT_EQ(helper->image.ptOffset.y, 15);
        const MemoryDc memory;
        const SelectScope selected(memory.Get(), helper->image.hbmpDragImage);
        EXPECT_EQ(GetPixel(memory.Get(), 19, 29), RGB(0, 0, 255)) << "still there";
    }
}

}  // namespace
}  // namespace qz
