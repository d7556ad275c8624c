// The dispatcher of the tool dialogs.
#include "settings/nup_settings.h"
#include "tests/dialogs/record_dialogs.h"
#include "tests/support/error_text.h"
#include "tests/support/script.h"

#include <cstring>

namespace qz {
namespace {

constexpr wchar_t optionsKey[] = L"Software\\qzVandraExt tests";
constexpr wchar_t optionsValue[] = L"UIDialogsPluginOptions";

class DispatcherTest : public RecordDialogTest {
  protected:
    DispatcherTest() : host(MakeHost(2)) {}
    ~DispatcherTest() override { DeleteTree(HKEY_CURRENT_USER, optionsKey); }

    static void Cancel() { Press(IDCANCEL); }
    HRESULT LastResult() const {
        long result = -1;
        EXPECT_EQ(dialogs->get_LastResult(&result), S_OK);
        return result;
    }
    static std::optional<RegistryValue> Options() {
        const auto key = RegistryKey::Open(HKEY_CURRENT_USER, optionsKey);
        return key ? key->Value(optionsValue) : std::nullopt;
    }
    /// What is left of a value after a dispatcher lived and ran a dialog.
    std::optional<RegistryValue> OptionsAfterUse(const RegistryValue& before) {
        RegistryKey::Create(HKEY_CURRENT_USER, optionsKey).SetValue(optionsValue, before);
        EXPECT_EQ(host->put_SettingsKeyPath(_bstr_t(optionsKey)), S_OK);
        dialogs = Make();
        EXPECT_EQ(dialogs->put_PDF(host.Get()), S_OK);
        EXPECT_EQ(Run(qzNUpSettings, nullptr, nullptr, Cancel), S_FALSE);
        dialogs.Reset();
        return Options();
    }

    ComPtr<IReferenceHost> host;
};

TEST_F(DispatcherTest, NumbersWithoutDialogAreNotImplementedAndSaySo) {
    for (const long number : {0L, 13L, -1L, 2147483647L}) {
        const auto command = static_cast<qzPluginUIDialogsCommands>(number);
        EXPECT_EQ(dialogs->DoDialog(command), E_NOTIMPL);
        EXPECT_NE(TakeErrorText().find(std::to_wstring(number)), std::wstring::npos);
    }
    EXPECT_EQ(dialogs->DoDialog(qzAddWatermarks), E_NOTIMPL);
    EXPECT_NE(TakeErrorText().find(L"watermarks"), std::wstring::npos);
    long window = 7;
    VARIANT out = _variant_t(5L).Detach();
    EXPECT_EQ(dialogs->ShowWindow(qzPrintPreview, &window, nullptr, &out), E_NOTIMPL);
    EXPECT_EQ(dialogs->EndWindow(qzPrintPreview, &window, &out), E_NOTIMPL);
    EXPECT_EQ(window, 7);
    EXPECT_EQ(out.lVal, 5);
}

TEST_F(DispatcherTest, PasswordIsACopyAndMayBeNone) {
    BSTR password = reinterpret_cast<BSTR>(1);
    EXPECT_EQ(dialogs->get_Password(&password), S_OK);
    EXPECT_EQ(password, nullptr);
    const _bstr_t text(SysAllocStringLen(L"a\0b", 3), false);
    EXPECT_EQ(dialogs->put_Password(text), S_OK);
    ASSERT_EQ(dialogs->get_Password(&password), S_OK);
    EXPECT_EQ(std::wstring(password, SysStringLen(password)), std::wstring(L"a\0b", 3));
    SysFreeString(password);
    EXPECT_EQ(dialogs->put_Password(nullptr), S_OK);
    EXPECT_EQ(dialogs->get_Password(&password), S_OK);
    EXPECT_EQ(password, nullptr);
    EXPECT_EQ(dialogs->get_Password(nullptr), E_POINTER);
}

TEST_F(DispatcherTest, KeepsHostAndTwoPanesUntilOthersCome) {
    const ULONG before = ReferencesOf(host.Get());
    for (const auto put : {&IqzPluginUIDialogs::put_PDF, &IqzPluginUIDialogs::put_BookmarkCtrl,
                           &IqzPluginUIDialogs::put_ThumbnailsCtrl}) {
        EXPECT_EQ((dialogs.Get()->*put)(host.Get()), S_OK);
        EXPECT_EQ((dialogs.Get()->*put)(host.Get()), S_OK);
        EXPECT_EQ(ReferencesOf(host.Get()), before + 1);
        EXPECT_EQ((dialogs.Get()->*put)(nullptr), S_OK);
        EXPECT_EQ(ReferencesOf(host.Get()), before);
    }
    EXPECT_EQ(dialogs->put_LayersCtrl(host.Get()), S_OK);
    EXPECT_EQ(dialogs->put_StatusCtrl(host.Get()), S_OK);
    EXPECT_EQ(ReferencesOf(host.Get()), before);
    EXPECT_EQ(dialogs->put_PDF(host.Get()), S_OK);
    dialogs.Reset();
    EXPECT_EQ(ReferencesOf(host.Get()), before) << "let go with the object";
}

TEST_F(DispatcherTest, ParentIsDisabledWhileADialogIsOpenAndMustExist) {
    const HWND parent = CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 300, 200,
                                        nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(dialogs->put_ParentWindowHandle(HandleToLong(parent)), S_OK);
    bool disabled = false;
    EXPECT_EQ(Run(qzNUpSettings, nullptr, nullptr,
                  [&] {
                      disabled = !IsWindowEnabled(parent) && GetWindow(Window(), GW_OWNER) == parent;
                      Cancel();
                  }),
              S_FALSE);
    EXPECT_TRUE(disabled);
    EXPECT_TRUE(IsWindowEnabled(parent));
    DestroyWindow(parent);
    EXPECT_EQ(dialogs->DoDialog(qzNUpSettings), E_INVALIDARG);
    EXPECT_FALSE(TakeErrorText().empty());
}

TEST_F(DispatcherTest, OptionsAreOneByteThatIsWrittenBack) {
    const RegistryValue byte{REG_BINARY, {0x5A}};
    EXPECT_EQ(OptionsAfterUse(byte), byte);
    const RegistryValue none{REG_BINARY, {0}};
    EXPECT_EQ(OptionsAfterUse({REG_BINARY, {1, 2}}), none);
    EXPECT_EQ(OptionsAfterUse({REG_DWORD, {1, 0, 0, 0}}), none);
}

TEST_F(DispatcherTest, DocumentSettingsNeedAHost) {
    EXPECT_EQ(dialogs->DoDialog(qzDocumentSettings), E_POINTER);
    EXPECT_EQ(dialogs->put_PDF(host.Get()), S_OK);
    _variant_t out(5L);
    bool shown = false;
    const DuringModal during([&] {
        HWND window = nullptr;
        while ((window = FindWindowExW(nullptr, window, L"#32770", nullptr)) &&
               !GetDlgItem(window, QZ_DOCUMENT_TABS)) {
        }
        shown = window != nullptr;
        SendMessageW(window, WM_COMMAND, IDCANCEL, 0);
    });
    long handle = 7;
    EXPECT_EQ(dialogs->ShowWindow(qzDocumentSettings, &handle, nullptr, &out), S_OK);
    EXPECT_TRUE(shown);
    EXPECT_EQ(static_cast<long>(out), 5);
    EXPECT_EQ(handle, 7);
}

// A data out is an out-parameter: a caller's memory may hold anything.
TEST_F(DispatcherTest, DataOutIsNeverReadAndWrittenOnSuccessOnly) {
    using Caller = std::function<HRESULT(VARIANT*)>;
    long window = 7;
    const Caller callers[] = {
        [&](VARIANT* out) { return dialogs->DoDialogEx(qzNUpSettings, nullptr, out); },
        [&](VARIANT* out) { return dialogs->ShowWindow(qzNUpSettings, &window, nullptr, out); },
        [&](VARIANT* out) { return dialogs->EndWindow(qzNUpSettings, &window, out); }};
    for (const Caller& call : callers) {
        for (const unsigned char garbage : {0xCC, 0x08, 0x09, 0x0D}) {  // 0x0808: a text, by no pointer
            VARIANT out, before;
            std::memset(&out, garbage, sizeof out);
            out.vt = garbage == 0xCC ? VARTYPE{0xCCCC} : VARTYPE{garbage};
            std::memcpy(&before, &out, sizeof out);
            {
                const DuringModal during(Cancel);
                EXPECT_EQ(call(&out), S_FALSE);
            }
            EXPECT_EQ(std::memcmp(&before, &out, sizeof out), 0);
            EXPECT_EQ(LastResult(), S_FALSE);
            {
                const DuringModal during([] { Press(IDOK); });
                EXPECT_EQ(call(&out), S_OK);
            }
            zrNUpSettings record;
            Load(out, record);
            VariantClear(&out);
            EXPECT_EQ(LastResult(), S_OK);
        }
    }
    EXPECT_EQ(dialogs->DoDialog(qzAddWatermarks), E_NOTIMPL);
    EXPECT_EQ(LastResult(), E_NOTIMPL);
    EXPECT_EQ(dialogs->get_LastResult(nullptr), E_POINTER);
}

constexpr wchar_t dialogScript[] =
    LR"(
Dim result, state, kept
Sub Ask(dialogs)
    Dim out
    Set out = dialogs
    dialogs.ShowWindow 11, 0, , out
    result = dialogs.LastResult
    kept = 0
    If out Is dialogs Then kept = 1
    state = VarType(out)
End Sub
Sub AskOnly(dialogs)
    dialogs.ShowWindow 11, 0
    result = dialogs.LastResult
End Sub
Sub AskEx(dialogs)
    Dim out
    out = dialogs.DoDialogEx(11, 1)
    state = VarType(out)
    result = dialogs.LastResult
End Sub
)";

TEST_F(DispatcherTest, ScriptsLearnOfACancelAndKeepWhatTheyHold) {
    const Script script(dialogScript);
    const ULONG references = ReferencesOf(dialogs.Get());
    const auto ask = [&](const wchar_t* procedure, int button) {
        const DuringModal during([button] { Press(button); });
        EXPECT_EQ(script.Call(procedure, dialogs.Get()), S_OK) << script.Error();
        EXPECT_EQ(script.Read(L"result"), button == IDOK ? S_OK : S_FALSE);
    };
    ask(L"Ask", IDCANCEL);
    EXPECT_EQ(script.Read(L"kept"), 1);
    ask(L"Ask", IDOK);
    EXPECT_EQ(script.Read(L"kept"), 0);
    EXPECT_EQ(script.Read(L"state"), VT_UNKNOWN);
    ask(L"AskOnly", IDOK);
    ask(L"AskEx", IDCANCEL);
    EXPECT_EQ(script.Read(L"state"), VT_EMPTY);
    EXPECT_EQ(ReferencesOf(dialogs.Get()), references) << "what the variable held was let go";
}

TEST_F(DispatcherTest, DialogsOfRecordsOpenThoughTheHostFails) {
    EXPECT_EQ(host->put_SettingsKeyPath(_bstr_t(optionsKey)), S_OK);
    for (const wchar_t* operation : {L"GetLanguageId", L"SettingsKeyPath"}) {
        dialogs = Make();
        EXPECT_EQ(dialogs->put_PDF(host.Get()), S_OK);
        EXPECT_EQ(host->FailOperation(_bstr_t(operation), E_ACCESSDENIED), S_OK);
        EXPECT_EQ(Run(qzNUpSettings, nullptr, nullptr, Cancel), S_FALSE) << operation;
        EXPECT_EQ(Run(qzExportToDOCX, nullptr, nullptr, Cancel), S_FALSE) << operation;
        EXPECT_EQ(host->ClearFaults(), S_OK);
    }
}

}  // namespace
}  // namespace qz
