// The property inspector as a user meets it: from the built DLL, in a real window, on the reference host.
#pragma once

#include "res/dialog_ids.h"
#include "tests/module/loaded_module.h"
#include "tests/support/error_text.h"
#include "tests/support/event_recorder.h"
#include "tests/support/host_under_test.h"
#include "tests/support/message_box_answer.h"
#include "tests/support/pane_window.h"
#include "tests/support/resolution.h"

#include "generated/qzVandraExt.h"

#include <windows.h>
#include <commctrl.h>
#include <comdef.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace qz {

/// Object types of the reference host that tests inspect.
inline constexpr long typeField = 6;
inline constexpr long typePicture = 7;
inline constexpr long typeCheckBox = 21;
inline constexpr long typeFormAction = 53;

class InspectorTest : public ::testing::Test {
  protected:
    using Texts = std::vector<std::wstring>;
    using Events = std::vector<std::string>;

    InspectorTest();
    ~InspectorTest() override;

    /// Opens the inspector in a window and gives it the host.
    void Open(SIZE size = {Scaled(320), Scaled(480)});
    /// Closes the window and lets the inspector go.
    void End();

    /// A new object on the current page, its path "Objects[name]".
    ComPtr<IDispatch> Create(long type, const wchar_t* name) const;
    void Add(const wchar_t* path, const wchar_t* name, wchar_t category, long flags, long type,
             const _variant_t& value, const wchar_t* choices = L"") const;
    void Inspect(const ComPtr<IDispatch>& object) const { ASSERT_EQ(pane->put_Object(object.Get()), S_OK); }
    void Select(const wchar_t* path, bool keepOthers = false) const {
        ASSERT_EQ(host->SelectObject(_bstr_t(path), keepOthers), S_OK);
    }
    _variant_t Value(const wchar_t* path, const wchar_t* attribute) const;
    void SetValue(const wchar_t* path, const wchar_t* attribute, const _variant_t& value) const;
    void Override(const wchar_t* path, const wchar_t* attribute, const _variant_t& value) const;

    HWND Inner() const { return window ? window->Child(WC_DIALOG) : nullptr; }
    HWND Part(int id) const { return GetDlgItem(Inner(), id); }
    Texts Tabs() const;
    int SelectedTab() const;
    /// With the notifications of a click.
    void ChooseTab(int index) const;
    Texts Names() const;
    std::wstring ChosenName() const;
    /// Selects an entry as a click does. False when it is not listed.
    bool Choose(const wchar_t* name) const;
    std::wstring Description() const { return TextOf(Part(QZ_INSPECTOR_DESCRIPTION)); }
    std::wstring ValueCaption() const { return TextOf(Part(QZ_INSPECTOR_VALUE)); }

    /// The open editor's dialog; null when there is none.
    HWND Editor() const { return FindWindowExW(Inner(), nullptr, WC_DIALOG, nullptr); }
    HWND Field(int id) const { return GetDlgItem(Editor(), id); }
    static std::wstring TextOf(HWND control);
    /// As a user who types it: selects all, then sends the characters.
    void Type(HWND field, const std::wstring& text) const;
    void Click(HWND button) const { SendMessageW(button, BM_CLICK, 0, 0); }
    /// Lets the time of the delayed write pass.
    void LetWritingHappen() const { SendMessageW(Editor(), WM_TIMER, 100, 0); }
    void Press(HWND control, WPARAM key, UINT message = WM_KEYDOWN) const;

    LoadedModule module;
    ComPtr<IReferenceHost> host = MakeHost(3);
    ComPtr<IqzPropCtrl> pane;
    ComPtr<EventRecorder> events = MakeObject<EventRecorder>();
    std::optional<PaneWindow> window;
};

}  // namespace qz
