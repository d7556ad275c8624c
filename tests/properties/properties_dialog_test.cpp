// The properties dialog in real windows: opening, object list, place, pin, closing.
#include "com/registry_key.h"
#include "tests/properties/inspector_fixture.h"
#include "tests/support/during_modal.h"
#include "tests/support/window_picture.h"

namespace qz {
namespace {

constexpr wchar_t placeKey[] = L"software\\Tarvel Technologies\\qzPropertiesDlg";

class PropertiesDialogTest : public InspectorTest {
  protected:
    PropertiesDialogTest() {
        DeleteTree(HKEY_CURRENT_USER, placeKey);
        module.Make(CLSID_qzPropertiesDlg, dialog);
        field = Create(typeField, L"F");
        EXPECT_EQ(dialog->put_VandraX(host.Get()), S_OK);
        EXPECT_EQ(dialog->put_Object(field.Get()), S_OK);
        EXPECT_EQ(dialog->put_AlwaysVisible(1), S_OK);
        owner = CreateWindowExW(0, L"STATIC", L"owner", WS_POPUP | WS_VISIBLE, 0, 0, 500, 400, nullptr,
                                nullptr, nullptr, nullptr);
    }
    ~PropertiesDialogTest() override {
        dialog.Reset();
        DestroyWindow(owner);
        DeleteTree(HKEY_CURRENT_USER, placeKey);
    }

    _variant_t Owner() const { return _variant_t(HandleToLong(owner)); }
    static HWND Window() {
        HWND found = nullptr;
        while ((found = FindWindowExW(nullptr, found, WC_DIALOG, nullptr)) &&
               !GetDlgItem(found, QZ_PROPERTIES_PIN)) {
        }
        return found;
    }
    static RECT Place() {
        RECT place{};
        GetWindowRect(Window(), &place);
        return place;
    }
    static SIZE Size() {
        const RECT place = Place();
        return {place.right - place.left, place.bottom - place.top};
    }
    static std::optional<long> Saved(const wchar_t* name) {
        const auto key = RegistryKey::Open(HKEY_CURRENT_USER, placeKey);
        const auto value = key ? key->Value(name) : std::nullopt;
        if (!value || value->type != REG_DWORD) return std::nullopt;
        long number = 0;
        memcpy(&number, value->bytes.data(), sizeof number);
        return number;
    }
    static void Save(long left, long top, long right, long bottom) {
        const RegistryKey key = RegistryKey::Create(HKEY_CURRENT_USER, placeKey);
        const auto set = [&](const wchar_t* name, long number) {
            RegistryValue value{REG_DWORD, std::vector<BYTE>(sizeof number)};
            memcpy(value.bytes.data(), &number, sizeof number);
            key.SetValue(name, value);
        };
        set(L"left", left), set(L"top", top), set(L"right", right), set(L"bottom", bottom);
    }
    /// The inspector's inner dialog within the window.
    static HWND InnerDialog() {
        const HWND control = FindWindowExW(Window(), nullptr, L"qzVandraExt.Window", nullptr);
        return FindWindowExW(control, nullptr, WC_DIALOG, nullptr);
    }
    static size_t Listed() {
        return static_cast<size_t>(SendDlgItemMessageW(InnerDialog(), QZ_INSPECTOR_LIST, LB_GETCOUNT, 0, 0));
    }
    static void ChooseObject(int entry) {
        const HWND list = GetDlgItem(Window(), QZ_PROPERTIES_OBJECTS);
        SendMessageW(list, CB_SETCURSEL, static_cast<WPARAM>(entry), 0);
        SendMessageW(Window(), WM_COMMAND, MAKEWPARAM(QZ_PROPERTIES_OBJECTS, CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(list));
    }
    static void Press(int id) { SendMessageW(GetDlgItem(Window(), id), BM_CLICK, 0, 0); }

    ComPtr<IqzPropertiesDlg> dialog;
    ComPtr<IDispatch> field;
    HWND owner = nullptr;
};

TEST_F(PropertiesDialogTest, ModelessShowsObjectsOfItsList) {
    EXPECT_EQ(dialog->InitObjectList(), S_FALSE);
    EXPECT_EQ(dialog->AddObject(_bstr_t(L"Document")), S_FALSE);
    ASSERT_EQ(dialog->DoModeless(Owner()), S_OK);
    const HWND window = Window();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(TextOf(window), L"Properties for: F");
    Select(L"Objects[F]");
    Create(typeField, L"G");
    Select(L"Objects[G]", true);
    EXPECT_EQ(TextOf(window), L"Properties for: <multiple-selection>");
    Select(L"Objects[F]");
    EXPECT_EQ(TextOf(window), L"Properties for: F");
    EXPECT_GT(Listed(), 20u);
    EXPECT_EQ(dialog->DoModeless(Owner()), S_OK);
    EXPECT_EQ(Window(), window) << "the same one again";
    EXPECT_EQ(dialog->InitObjectList(), S_OK);
    EXPECT_EQ(dialog->AddObject(_bstr_t(L"Document")), S_OK);
    EXPECT_EQ(dialog->AddObject(_bstr_t(L"Nothing")), S_OK);
    EXPECT_EQ(SendDlgItemMessageW(window, QZ_PROPERTIES_OBJECTS, CB_GETCOUNT, 0, 0), 3);
    ChooseObject(1);
    EXPECT_EQ(CallCount(host.Get(), L"SelectObjects"), 1);
    EXPECT_GE(CallCount(host.Get(), L"Object.Update"), 1);
    EXPECT_NE(TextOf(window), L"Properties for: F");
    EXPECT_NE(TextOf(window), L"Properties for: <no-object>");
    ChooseObject(2);
    EXPECT_EQ(TextOf(window), L"Properties for: <no-object>");
    EXPECT_EQ(Listed(), 0u);
    Press(IDCANCEL);
    EXPECT_EQ(Window(), nullptr);
    EXPECT_EQ(dialog->DoModeless(Owner()), S_OK) << "once more";
    EXPECT_NE(Window(), nullptr);
}

TEST_F(PropertiesDialogTest, PlaceIsKeptWithinLimits) {
    Save(60, 120, 2060, 220);
    ASSERT_EQ(dialog->DoModeless(Owner()), S_OK);
    EXPECT_EQ(Size().cx, Scaled(600));
    EXPECT_EQ(Size().cy, Scaled(300));
    EXPECT_EQ(Place().left, 60);
    SetWindowPos(Window(), nullptr, 40, 50, 450, 500, SWP_NOZORDER);
    RECT sizing{10, 10, 2000, 100};
    SendMessageW(Window(), WM_SIZING, WMSZ_RIGHT, reinterpret_cast<LPARAM>(&sizing));
    EXPECT_EQ(sizing.right - sizing.left, Scaled(600));
    EXPECT_EQ(sizing.bottom - sizing.top, Scaled(300));
    // The inspector takes what is below the row of buttons.
    RECT inspector{}, client{};
    GetWindowRect(FindWindowExW(Window(), nullptr, L"qzVandraExt.Window", nullptr), &inspector);
    GetClientRect(Window(), &client);
    EXPECT_EQ(inspector.right - inspector.left, client.right);
    EXPECT_EQ(OldPixels(Window()), 0);
    SetWindowPos(Window(), nullptr, 40, 50, 590, 500, SWP_NOZORDER);
    EXPECT_EQ(OldPixels(Window()), 0) << "made wider";
    SetWindowPos(Window(), nullptr, 40, 50, 450, 500, SWP_NOZORDER);
    Press(IDOK);
    EXPECT_EQ(Saved(L"left"), 60) << "saved when the object goes, not before";
    dialog.Reset();
    EXPECT_EQ(Saved(L"left"), 40);
    EXPECT_EQ(Saved(L"top"), 50);
    EXPECT_EQ(Saved(L"right"), 490);
    EXPECT_EQ(Saved(L"bottom"), 550);
}

TEST_F(PropertiesDialogTest, StandsInTheMiddleOfASmallerOwnerToo) {
    SetWindowPos(owner, nullptr, 600, 500, 120, 80, SWP_NOZORDER);
    ASSERT_EQ(dialog->DoModeless(Owner()), S_OK);
    EXPECT_NEAR((Place().left + Place().right) / 2, 660, 1);
    EXPECT_NEAR((Place().top + Place().bottom) / 2, 540, 1);
}

TEST_F(PropertiesDialogTest, KeysOfAMenuAreNotTheDialogs) {
    ASSERT_EQ(dialog->DoModeless(Owner()), S_OK);
    SetFocus(GetDlgItem(InnerDialog(), QZ_INSPECTOR_LIST));
    const HMENU menu = CreatePopupMenu();
    AppendMenuW(menu, MF_STRING, 1, L"Entry");
    const DuringModal during([] { PostMessageW(GetFocus(), WM_KEYDOWN, VK_ESCAPE, 0); });
    EXPECT_EQ(TrackPopupMenu(menu, TPM_RETURNCMD, 10, 10, 0, Window(), nullptr), FALSE);
    DestroyMenu(menu);
    PumpMessages();
    EXPECT_NE(Window(), nullptr);
}

TEST_F(PropertiesDialogTest, PlaceIsNotSavedWhenNotWanted) {
    Save(5000, 120, 5500, 520);
    EXPECT_EQ(dialog->put_Options(static_cast<qzPropertiesDlgOptions>(qzPropertiesDlgOptions_NoSavePosition |
                                                                      qzPropertiesDlgOptions_NoObjectsList)),
              S_OK);
    ASSERT_EQ(dialog->DoModeless(Owner()), S_OK);
    EXPECT_EQ(Place().right, GetSystemMetrics(SM_CXVIRTUALSCREEN)) << "shifted until it fits";
    EXPECT_FALSE(IsWindowEnabled(GetDlgItem(Window(), QZ_PROPERTIES_OBJECTS)));
    SetWindowPos(Window(), nullptr, 40, 50, 450, 500, SWP_NOZORDER);
    dialog.Reset();
    EXPECT_EQ(Window(), nullptr);
    EXPECT_EQ(Saved(L"left"), 5000);
}

TEST_F(PropertiesDialogTest, UnpinnedClosesWhenItIsLeft) {
    ASSERT_EQ(dialog->DoModeless(Owner()), S_OK);
    SendMessageW(Window(), WM_ACTIVATE, WA_INACTIVE, 0);
    PumpMessages();
    ASSERT_NE(Window(), nullptr) << "pinned";
    Press(QZ_PROPERTIES_PIN);
    long pinned = 1;
    EXPECT_EQ(dialog->get_AlwaysVisible(&pinned), S_OK);
    EXPECT_EQ(pinned, 0);
    SendMessageW(Window(), WM_ACTIVATE, WA_INACTIVE, 0);
    PumpMessages();
    EXPECT_EQ(Window(), nullptr);
}

TEST_F(PropertiesDialogTest, ModalAsksBeforeItCloses) {
    SetValue(L"Document", L"AlwaysConfirmAttributeChanges", 1L);
    bool stayed = false, ownerDisabled = false;
    const DuringModal during([&] {
        const HWND list = GetDlgItem(InnerDialog(), QZ_INSPECTOR_LIST);
        const LRESULT entry = SendMessageW(list, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                           reinterpret_cast<LPARAM>(L"Locked"));
        SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(entry), 0);
        SendMessageW(InnerDialog(), WM_COMMAND, MAKEWPARAM(QZ_INSPECTOR_LIST, LBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(list));
        const HWND editor = FindWindowExW(InnerDialog(), nullptr, WC_DIALOG, nullptr);
        SendDlgItemMessageW(editor, QZ_EDITOR_CHECK, BM_CLICK, 0, 0);
        ownerDisabled = !IsWindowEnabled(owner);
        {
            const MessageBoxAnswer cancel(IDCANCEL);
            Press(IDOK);
            stayed = cancel.Shown() && Window() != nullptr;
        }
        const MessageBoxAnswer no(IDNO);
        Press(IDCANCEL);
        EXPECT_TRUE(no.Shown());
    });
    EXPECT_EQ(dialog->DoModal(Owner()), S_OK);
    EXPECT_TRUE(stayed);
    EXPECT_TRUE(ownerDisabled);
    EXPECT_TRUE(IsWindowEnabled(owner));
    EXPECT_FALSE(static_cast<bool>(Value(L"Objects[F]", L"Locked"))) << "taken back";
}

TEST_F(PropertiesDialogTest, BadParentsAndDyingObjects) {
    EXPECT_EQ(dialog->DoModeless(_variant_t(L"no window")), E_INVALIDARG);
    EXPECT_EQ(dialog->DoModal(_variant_t(0x7FFFFFF0L)), E_INVALIDARG);
    EXPECT_EQ(dialog->get_Options(nullptr), E_POINTER);
    EXPECT_EQ(dialog->put_Object(events.Get()), S_OK) << "is refused when it is to be shown";
    EXPECT_EQ(dialog->DoModeless(Owner()), E_FAIL);
    EXPECT_NE(TakeErrorText(), L"");
    EXPECT_TRUE(FAILED(dialog->DoModal(Owner())));
    EXPECT_NE(TakeErrorText(), L"");
    EXPECT_EQ(dialog->put_Object(field.Get()), S_OK);
    ASSERT_EQ(dialog->DoModeless(_variant_t()), S_OK);
    EXPECT_EQ(dialog->DoModal(Owner()), E_FAIL) << "is open already";
    ASSERT_EQ(host->RemoveObject(_bstr_t(L"Objects[F]")), S_OK);
    EXPECT_EQ(TextOf(Window()), L"Properties for: <no-object>");
    EXPECT_EQ(dialog->put_VandraX(nullptr), S_OK);
    EXPECT_EQ(Listed(), 0u);
}

}  // namespace
}  // namespace qz
