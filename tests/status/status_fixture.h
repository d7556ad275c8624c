// The status bar as a user meets it: from the built DLL, in a real window, on the reference host.
#pragma once

#include "panes/status/status_field_window.h"
#include "tests/module/loaded_module.h"
#include "tests/support/error_text.h"
#include "tests/support/host_under_test.h"
#include "tests/support/pane_window.h"
#include "tests/support/resolution.h"

#include "generated/qzVandraExt.h"

#include <gtest/gtest.h>

#include <memory>

namespace qz {

class StatusTest : public ::testing::Test {
  protected:
    using enum StatusField;

    static SIZE Wide() { return {Scaled(900), Scaled(26)}; }

    StatusTest() { module.Make(CLSID_qzStatusCtrl, bar); }
    ~StatusTest() override {
        window.reset();
        bar.Reset();
        EXPECT_EQ(module.CanUnloadNow(), S_OK) << "an object of the module is still alive";
    }

    /// Shows a host's document in a window.
    void Show(IReferenceHost* host, SIZE size = Wide()) {
        window = std::make_unique<PaneWindow>(bar.Get(), size);
        ASSERT_EQ(bar->Initialize(host), S_OK);
    }

    HWND Field(StatusField field) const { return GetDlgItem(window->Window(), ChildId(field)); }
    bool Visible(StatusField field) const { return IsWindowVisible(Field(field)) != FALSE; }
    bool Enabled(StatusField field) const { return IsWindowEnabled(Field(field)) != FALSE; }
    /// Also of another program's window, as assistive tools and testers read it.
    std::wstring Text(StatusField field) const {
        wchar_t text[300];
        SendMessageW(Field(field), WM_GETTEXT, std::size(text), reinterpret_cast<LPARAM>(text));
        return text;
    }

    /// A new object on the current page, selected.
    static ComPtr<IDispatch> SelectNew(IReferenceHost* host, const wchar_t* name, const RECT& twips) {
        constexpr long picture = 7;
        ComPtr<IDispatch> object;
        ThrowIfFailed(host->CreateObject(picture, _bstr_t(name), &object));
        const _bstr_t path((L"Objects[" + std::wstring(name) + L"]").c_str());
        const auto put = [&](const wchar_t* attribute, LONG value) {
            ThrowIfFailed(host->SetObjectAttribute(path, _bstr_t(attribute), _variant_t(value)));
        };
        put(L"Left", twips.left);
        put(L"Top", twips.top);
        put(L"Right", twips.right);
        put(L"Bottom", twips.bottom);
        ThrowIfFailed(host->SelectObject(path, 0));
        return object;
    }

    LoadedModule module;
    ComPtr<IqzStatusCtrl> bar;
    std::unique_ptr<PaneWindow> window;
};

}  // namespace qz
