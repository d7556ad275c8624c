// The bookmark pane from the built DLL, in a window, on the reference host, and its tree as another program
// reads it.
#pragma once

#include "tests/module/loaded_module.h"
#include "tests/support/error_text.h"
#include "tests/support/event_recorder.h"
#include "tests/support/host_under_test.h"
#include "tests/support/pane_window.h"

#include "generated/qzVandraExt.h"

#include <windows.h>
#include <commctrl.h>
#include <gtest/gtest.h>

#include <functional>
#include <optional>

namespace qz {

/// A new bookmark below another.
ComPtr<IHostBookmark> AddBookmark(IHostBookmark* parent, const wchar_t* title, long page = 0);

class OutlineTest : public ::testing::Test {
  protected:
    OutlineTest();
    ~OutlineTest() override;

    /// "A" with "A1" ("A1a") and "A2", "B", "C" with "C1".
    void AddSmallOutline();
    void Show() { window.emplace(pane.Get(), SIZE{200, 300}); }
    void ShowOutline();

    HWND Tree() const { return window->Child(WC_TREEVIEWW); }
    HTREEITEM Next(UINT what, HTREEITEM item = nullptr) const;
    HTREEITEM Find(const std::wstring& title) const;
    std::wstring TextOf(HTREEITEM item) const;
    TVITEMW Item(HTREEITEM item) const;
    bool Expand(HTREEITEM item, UINT how = TVE_EXPAND) const {
        return SendMessageW(Tree(), TVM_EXPAND, how, reinterpret_cast<LPARAM>(item)) != 0;
    }
    /// The whole tree in one line, as "A[A1 A2] B+": below an expanded item its children stand in brackets, a
    /// collapsed one has "+" when it is unread and "-" when its children are there.
    std::wstring Shown() const { return ShownBelow(Next(TVGN_ROOT)); }
    POINT PointOn(HTREEITEM item) const;
    void ClickButtonOf(HTREEITEM item) const;

    LoadedModule module;
    ComPtr<IqzBookmarkCtrl> pane;
    ComPtr<IReferenceHost> host = MakeHost(9);
    ComPtr<IHostBookmark> root;
    ComPtr<EventRecorder> events = MakeObject<EventRecorder>();
    std::optional<PaneWindow> window;

  private:
    std::wstring ShownBelow(HTREEITEM first) const;
};

/// Lets the host give any object as its outline for a scope.
class OutlineOverride {
  public:
    OutlineOverride(IVandraX* host, IDispatch* root);
    ~OutlineOverride();
    OutlineOverride(const OutlineOverride&) = delete;
    OutlineOverride& operator=(const OutlineOverride&) = delete;

  private:
    void Patch(void* entry) const;

    void** slot_;
    void* before_;
};

}  // namespace qz
