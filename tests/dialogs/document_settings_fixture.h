// The document settings from the built DLL, on the reference host.
#pragma once

#include "res/dialog_ids.h"
#include "tests/module/loaded_module.h"
#include "tests/properties/object_chain.h"
#include "tests/support/during_modal.h"
#include "tests/support/host_under_test.h"
#include "tests/support/message_box_answer.h"

#include "generated/qzVandraExt.h"

#include <windows.h>
#include <commctrl.h>
#include <comdef.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace qz {

class DocumentSettingsTest : public ::testing::Test {
  protected:
    DocumentSettingsTest() {
        module.Make(CLSID_qzDocSettingsDlg, dialog);
        EXPECT_EQ(dialog->Initialize(host.Get()), S_OK);
        owner = CreateWindowExW(0, L"STATIC", L"owner", WS_POPUP | WS_VISIBLE, 0, 0, 500, 400, nullptr,
                                nullptr, nullptr, nullptr);
    }
    ~DocumentSettingsTest() override {
        dialog.Reset();
        DestroyWindow(owner);
        EXPECT_EQ(module.CanUnloadNow(), S_OK);
    }

    /// The dialog that is open and has that control; one that has been ended is hidden.
    static HWND DialogWith(int id, bool hiddenToo = false) {
        HWND found = nullptr;
        while ((found = FindWindowExW(nullptr, found, WC_DIALOG, nullptr)) &&
               !(GetDlgItem(found, id) && (hiddenToo || IsWindowVisible(found)))) {
        }
        return found;
    }
    /// On a slow machine the action comes before the system has shown the dialog.
    static void Uncover(int id) { ShowWindow(DialogWith(id, true), SW_SHOW); }
    static HWND Window() { return DialogWith(QZ_DOCUMENT_TABS); }
    static HWND EmbeddingWindow() { return DialogWith(QZ_FONT_EMBED_NONE); }
    /// A control of the window or of any of its tabs.
    static HWND Item(int id) {
        const HWND window = Window();
        HWND item = GetDlgItem(window, id);
        for (HWND tab = GetWindow(window, GW_CHILD); tab && !item; tab = GetWindow(tab, GW_HWNDNEXT)) {
            item = GetDlgItem(tab, id);
        }
        return item;
    }
    static LRESULT Send(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return SendMessageW(Item(id), message, wParam, lParam);
    }
    static void Press(int id) { Send(id, BM_CLICK); }
    static void Enter(int id, const std::wstring& text) { SetWindowTextW(Item(id), text.c_str()); }
    static std::wstring Shown(int id) {
        std::wstring text(5000, L'\0');
        text.resize(static_cast<size_t>(GetWindowTextW(Item(id), text.data(), 5000)));
        return text;
    }
    static bool Ticked(int id) { return Send(id, BM_GETCHECK) == BST_CHECKED; }
    static LRESULT Chosen(int id) { return Send(id, CB_GETCURSEL); }
    /// As the user does.
    static void Choose(int id, int entry) {
        Send(id, CB_SETCURSEL, static_cast<WPARAM>(entry));
        SendMessageW(GetParent(Item(id)), WM_COMMAND, MAKEWPARAM(id, CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(Item(id)));
    }
    static std::wstring Cell(int list, int row, int column) {
        wchar_t text[600] = L"";
        LVITEMW item{};
        item.iSubItem = column;
        item.pszText = text;
        item.cchTextMax = 600;
        Send(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
        return text;
    }
    static LRESULT Rows(int list) { return Send(list, LVM_GETITEMCOUNT); }
    static LRESULT ShownTab() { return Send(QZ_DOCUMENT_TABS, TCM_GETCURSEL); }

    /// Runs the dialog; what the action leaves open is cancelled.
    void Run(const std::function<void()>& action) const {
        const DuringModal during([&] {
            Uncover(QZ_DOCUMENT_TABS);
            action();
            if (Window()) SendMessageW(Window(), WM_COMMAND, IDCANCEL, 0);
        });
        EXPECT_EQ(dialog->DoModal(_variant_t(HandleToLong(owner))), S_OK);
    }

    _variant_t Value(const wchar_t* attribute, const wchar_t* path = L"Document") const {
        _variant_t value;
        EXPECT_EQ(host->GetObjectAttribute(_bstr_t(path), _bstr_t(attribute), &value), S_OK);
        return value;
    }
    long Number(const wchar_t* attribute, const wchar_t* path = L"Document") const {
        return static_cast<long>(Value(attribute, path));
    }
    std::wstring Text(const wchar_t* attribute) const {
        const _bstr_t text(Value(attribute));
        return text.length() ? std::wstring(text, text.length()) : std::wstring();
    }
    void Set(const wchar_t* attribute, const _variant_t& value, const wchar_t* path = L"Document") const {
        EXPECT_EQ(host->SetObjectAttribute(_bstr_t(path), _bstr_t(attribute), value), S_OK);
    }
    void Override(const wchar_t* attribute, const _variant_t& value) const {
        EXPECT_EQ(host->OverrideAttribute(_bstr_t(L"Document"), _bstr_t(attribute), value), S_OK);
    }

    LoadedModule module;
    ComPtr<IReferenceHost> host = MakeHost(3);
    ComPtr<IqzDocSettingsDlg> dialog;
    HWND owner = nullptr;
};

}  // namespace qz
