// The layers pane as a user meets it: from the built DLL, in a real window, on the reference host.
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

#include <optional>

namespace qz {

class LayersTest : public ::testing::Test {
  protected:
    using Events = std::vector<std::string>;

    LayersTest();
    ~LayersTest() override;

    /// Gives the host layers of these names, those that begin with a small letter hidden, and a
    /// configuration.
    void Configure(const std::wstring& names, const std::wstring& order, const std::wstring& groups = L"",
                   const std::wstring& on = L"", const std::wstring& off = L"");
    void SetConfiguration(const wchar_t* attribute, const std::wstring& text);
    /// Opens the pane in a window and attaches it.
    void Open();
    void Connect();
    /// Closes the window and lets the pane go.
    void End();

    HWND Tree() const { return window ? window->Child(WC_TREEVIEWW) : nullptr; }
    /// The items as a text client sees them: "+A[-b *Heading]" for a visible, a hidden layer, a heading.
    std::wstring Items() const;
    HTREEITEM Item(const std::wstring& text) const;
    HTREEITEM Selected() const { return Next(TVGN_CARET, nullptr); }
    bool Expanded(const std::wstring& text) const;
    /// The text's rectangle; its item is scrolled into view first.
    RECT TextRect(const std::wstring& text) const;

    enum class Part { Row, Check, Expand, Text };
    void Click(const std::wstring& text, Part part, UINT message = WM_LBUTTONDOWN) const;
    void Key(WPARAM key) const;
    /// "+A-b": the states in the host, of all layers given by Configure.
    std::wstring HostStates() const;
    void HostState(const wchar_t* name, const wchar_t* state) const;
    /// What was written to layers since the last call: "+A -B", the suspensions of refresh as "(" and ")".
    std::wstring TakeWrites() const;

    HTREEITEM Next(UINT what, HTREEITEM item) const {
        return reinterpret_cast<HTREEITEM>(
            SendMessageW(Tree(), TVM_GETNEXTITEM, what, reinterpret_cast<LPARAM>(item)));
    }

    LoadedModule module;
    ComPtr<IReferenceHost> host = MakeHost(3);
    ComPtr<IqzLayersCtrl> pane;
    ComPtr<EventRecorder> events = MakeObject<EventRecorder>();
    std::optional<PaneWindow> window;

  private:
    std::wstring Describe(HTREEITEM first) const;
    HTREEITEM Find(HTREEITEM first, const std::wstring& text) const;
    std::wstring Text(HTREEITEM item) const;
    UINT Mark(HTREEITEM item) const;

    std::wstring names_;
};

}  // namespace qz
