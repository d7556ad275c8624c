// The dispatcher and the record dialogs that it runs, driven through their controls.
#pragma once

#include "com/registry_key.h"
#include "res/dialog_ids.h"
#include "settings/settings_store.h"
#include "tests/module/loaded_module.h"
#include "tests/support/during_modal.h"
#include "tests/support/host_under_test.h"

#include "generated/qzVandraExt.h"

#include <comdef.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace qz {

/// A test's own settings in the registry: what is there before is put aside.
class RecordDialogTest : public ::testing::Test {
  protected:
    RecordDialogTest() : key_(RegistryKey::Open(HKEY_CURRENT_USER, SettingsPlace().key)) {
        if (key_) before_ = RegistryTree::Read(*key_);
        DeleteTree(HKEY_CURRENT_USER, SettingsPlace().key);
        dialogs = Make();
    }
    ~RecordDialogTest() override {
        dialogs.Reset();
        DeleteTree(HKEY_CURRENT_USER, SettingsPlace().key);
        if (key_) before_.Write(MadeKey());
        EXPECT_EQ(module.CanUnloadNow(), S_OK);
    }

    ComPtr<IqzPluginUIDialogs> Make() const {
        ComPtr<IqzPluginUIDialogs> made;
        module.Make(CLSID_qzPluginUIDialogs, made);
        return made;
    }

    /// The dialog that this thread has open: the one with the button for defaults.
    static HWND Window() {
        HWND found = nullptr;
        while ((found = FindWindowExW(nullptr, found, L"#32770", nullptr)) &&
               (!GetDlgItem(found, QZ_SETTINGS_DEFAULTS) ||
                GetWindowThreadProcessId(found, nullptr) != GetCurrentThreadId())) {
        }
        return found;
    }
    static HWND Item(int id) { return GetDlgItem(Window(), id); }
    static void Press(int id) { SendMessageW(Item(id), BM_CLICK, 0, 0); }
    static void Enter(int id, const wchar_t* text) { SetWindowTextW(Item(id), text); }
    static bool Offered(int id) { return (GetWindowLongW(Item(id), GWL_STYLE) & WS_VISIBLE) != 0; }
    static bool Checked(int id) { return SendMessageW(Item(id), BM_GETCHECK, 0, 0) == BST_CHECKED; }
    static std::wstring Shown(int id) {
        wchar_t text[300] = L"";
        GetWindowTextW(Item(id), text, 300);
        return text;
    }

    /// Runs a command with data; the action must close the dialog.
    HRESULT Run(qzPluginUIDialogsCommands command, VARIANT* dataIn, VARIANT* dataOut,
                std::function<void()> action) const {
        const DuringModal during(std::move(action));
        return dialogs->DoDialogEx(command, dataIn, dataOut);
    }

    /// What a command handed back, from where its stream stands on.
    static void Load(const VARIANT& handedBack, zrSettings& record) {
        ASSERT_EQ(handedBack.vt, VT_UNKNOWN);
        ComPtr<IStream> stream;
        ASSERT_EQ(handedBack.punkVal->QueryInterface(IID_PPV_ARGS(&stream)), S_OK);
        EXPECT_TRUE(record.Load(stream.Get()));
    }

    LoadedModule module;
    ComPtr<IqzPluginUIDialogs> dialogs;

  private:
    /// The place, made again with the keys above it.
    static RegistryKey MadeKey() {
        const std::wstring path = SettingsPlace().key;
        for (std::size_t at = path.find(L'\\'); at != std::wstring::npos; at = path.find(L'\\', at + 1)) {
            RegistryKey::Create(HKEY_CURRENT_USER, path.substr(0, at));
        }
        return RegistryKey::Create(HKEY_CURRENT_USER, path);
    }

    std::optional<RegistryKey> key_;
    RegistryTree before_;
};

}  // namespace qz
