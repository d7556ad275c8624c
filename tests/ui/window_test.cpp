#include "ui/window.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace qz {
namespace {

class TestWindow final : public Window {
  public:
    std::function<std::optional<LRESULT>(UINT)> handler;
    std::vector<UINT> seen;
    std::vector<HRESULT> failures;

    void CreatePopup() {
        WindowOptions options;
        options.style = WS_POPUP;
        options.bounds = {0, 0, 10, 10};
        Create(options);
    }

  private:
    std::optional<LRESULT> OnMessage(UINT message, WPARAM, LPARAM) override {
        seen.push_back(message);
        return handler ? handler(message) : std::nullopt;
    }
    void OnMessageFailed(UINT, HRESULT code) noexcept override { failures.push_back(code); }
};

TEST(WindowBase, IsBoundFromTheFirstMessageToTheLast) {
    TestWindow window;
    window.CreatePopup();
    const HWND handle = window.Handle();
    EXPECT_EQ(window.seen.front(), static_cast<UINT>(WM_NCCREATE));
    EXPECT_THROW(window.CreatePopup(), ComError);
    DestroyWindow(handle);
    EXPECT_EQ(window.seen.back(), static_cast<UINT>(WM_NCDESTROY));
    EXPECT_EQ(window.Handle(), nullptr);
    window.CreatePopup();  // may be made again
    EXPECT_NE(window.Handle(), nullptr);
}

TEST(WindowBase, NothingEscapesAHandler) {
    TestWindow window;
    window.CreatePopup();
    window.handler = [](UINT message) -> std::optional<LRESULT> {
        if (message == WM_APP) Throw(E_ACCESSDENIED, L"no");
        if (message == WM_APP + 1) throw 5;
        if (message == WM_GETTEXTLENGTH) throw std::bad_alloc();
        return {};
    };
    EXPECT_EQ(SendMessageW(window.Handle(), WM_APP, 0, 0), 0);
    EXPECT_EQ(SendMessageW(window.Handle(), WM_APP + 1, 0, 0), 0);
    EXPECT_EQ(SendMessageW(window.Handle(), WM_GETTEXTLENGTH, 0, 0), 0);
    EXPECT_EQ(window.failures, (std::vector<HRESULT>{E_ACCESSDENIED, E_FAIL, E_OUTOFMEMORY}));
}

TEST(WindowBase, FailureWhileBeingMadeIsAFailureToMakeIt) {
    for (const UINT at : {WM_NCCREATE, WM_CREATE}) {
        TestWindow window;
        window.handler = [at](UINT message) -> std::optional<LRESULT> {
            if (message == at) Throw(E_OUTOFMEMORY);
            return {};
        };
        EXPECT_THROW(window.CreatePopup(), ComError);
        EXPECT_EQ(window.Handle(), nullptr);
        window.handler = nullptr;
        window.CreatePopup();
        EXPECT_NE(window.Handle(), nullptr);
    }
}

TEST(WindowBase, DestroyInsideAHandlerIsDoneOnce) {
    TestWindow window;
    window.CreatePopup();
    window.handler = [&](UINT message) -> std::optional<LRESULT> {
        if (message == WM_CLOSE || message == WM_DESTROY) window.Destroy();
        return {};
    };
    SendMessageW(window.Handle(), WM_CLOSE, 0, 0);
    EXPECT_EQ(window.Handle(), nullptr);
    EXPECT_EQ(std::count(window.seen.begin(), window.seen.end(), static_cast<UINT>(WM_DESTROY)), 1);
}

}  // namespace
}  // namespace qz
