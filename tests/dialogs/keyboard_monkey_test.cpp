// Every dialog under keys pressed at random: it comes to an end, and the keyboard always has a way through
// it.
#include "tests/dialogs/record_dialogs.h"
#include "tests/support/keyboard_monkey.h"
#include "tests/support/pane_window.h"

#include <commctrl.h>

#include <array>

namespace qz {
namespace {

class Monkey : public RecordDialogTest {
  protected:
    Monkey() {
        owner = CreateWindowExW(0, L"STATIC", L"owner", WS_POPUP | WS_VISIBLE, 0, 0, 500, 400, nullptr,
                                nullptr, nullptr, nullptr);
    }
    ~Monkey() override { DestroyWindow(owner); }

    template <class Interface>
    ComPtr<Interface> MakeDialog(REFCLSID classId) const {
        ComPtr<Interface> made;
        module.Make(classId, made);
        return made;
    }
    _variant_t Owner() const { return _variant_t(HandleToLong(owner)); }

    ComPtr<IReferenceHost> host = MakeHost(3);
    HWND owner;
    KeyboardMonkey monkey;
};

TEST_F(Monkey, Grid) {
    const auto grid = MakeDialog<IqzGridUnitsDlg>(CLSID_qzGridUnitsDlg);
    monkey.Play([&] { ASSERT_EQ(grid->DoModal(), S_OK); });
}

TEST_F(Monkey, DocumentSettings) {
    const auto settings = MakeDialog<IqzDocSettingsDlg>(CLSID_qzDocSettingsDlg);
    ASSERT_EQ(settings->Initialize(host.Get()), S_OK);
    monkey.Play([&] { ASSERT_EQ(settings->DoModal(Owner()), S_OK); });
}

TEST_F(Monkey, NUp) {
    monkey.Play([&] { ASSERT_HRESULT_SUCCEEDED(dialogs->DoDialog(qzNUpSettings)); });
}

TEST_F(Monkey, Docx) {
    monkey.Play([&] { ASSERT_HRESULT_SUCCEEDED(dialogs->DoDialog(qzExportToDOCX)); });
}

/// An attribute to begin with; by its name alone when the reference host has it.
struct Edited {
    const wchar_t* name;
    long type;
    _variant_t value;
    const wchar_t* choices;
};

/// The properties dialog over a form action that has an attribute twice, once read-only.
class PropertiesMonkey : public Monkey {
  protected:
    PropertiesMonkey() {
        ThrowIfFailed(host->CreateObject(53, _bstr_t(L"A"), &object));
        ThrowIfFailed(host->CreateObject(21, _bstr_t(L"F"), &other));
        properties = MakeDialog<IqzPropertiesDlg>(CLSID_qzPropertiesDlg);
        ThrowIfFailed(properties->put_VandraX(host.Get()));
        ThrowIfFailed(properties->put_AlwaysVisible(1));
        ThrowIfFailed(properties->put_Options(qzPropertiesDlgOptions_NoSavePosition));
        properties->InitObjectList();
        for (const wchar_t* path : {L"Document", L"Nothing", L"Objects[A]", L"Objects[F]"})
            properties->AddObject(_bstr_t(path));
    }

    void Add(const wchar_t* name, long flags, const Edited& edited) const {
        ThrowIfFailed(host->AddAttribute(_bstr_t(L"Objects[A]"), _bstr_t(name), L'*', flags, edited.type,
                                         _bstr_t(L""), _bstr_t(edited.choices), edited.value));
    }

    static HWND Find(HWND parent, int id) {
        struct Search {
            int id;
            HWND found;
        } search{id, nullptr};
        EnumChildWindows(
            parent,
            [](HWND child, LPARAM context) -> BOOL {
                auto& wanted = *reinterpret_cast<Search*>(context);
                if (GetDlgCtrlID(child) == wanted.id) wanted.found = child;
                return !wanted.found;
            },
            reinterpret_cast<LPARAM>(&search));
        return search.found;
    }
    /// In the dialog that has the focus.
    static void Choose(const wchar_t* name) {
        const HWND list = Find(GetAncestor(GetFocus(), GA_ROOT), QZ_INSPECTOR_LIST);
        const auto text = reinterpret_cast<LPARAM>(name);
        const LRESULT entry = SendMessageW(list, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), text);
        if (entry < 0) return;
        SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(entry), 0);
        SendMessageW(GetParent(list), WM_COMMAND, MAKEWPARAM(QZ_INSPECTOR_LIST, LBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(list));
    }
    void Inspect(IDispatch* inspected) const { EXPECT_HRESULT_SUCCEEDED(properties->put_Object(inspected)); }
    void ShowModal() const {
        Inspect(object.Get());
        ASSERT_EQ(properties->DoModal(Owner()), S_OK);
    }
    void ShowModeless() const {
        Inspect(object.Get());
        ASSERT_EQ(properties->DoModeless(Owner()), S_OK);
        const HWND window = GetActiveWindow();
        while (IsWindow(window)) {
            PumpMessages();
            MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
        }
    }

    ComPtr<IDispatch> object, other;
    ComPtr<IqzPropertiesDlg> properties;
};

TEST_F(PropertiesMonkey, ModalOverObjectsThatComeAndGo) {
    int turn = 0;
    monkey.distraction = [&] {
        Inspect(std::array{object.Get(), other.Get(), static_cast<IDispatch*>(nullptr)}[turn++ % 3]);
    };
    monkey.Play([this] { ShowModal(); });
}

TEST_F(PropertiesMonkey, Modeless) {
    int turn = 0;
    monkey.distraction = [&] {
        if (turn++ % 2) return Inspect(object.Get());
        EXPECT_EQ(host->SelectObject(_bstr_t(L"Objects[F]"), turn % 4 == 1), S_OK);
    };
    monkey.Play([this] { ShowModeless(); });
}

class EditorMonkey : public PropertiesMonkey, public ::testing::WithParamInterface<Edited> {};

TEST_P(EditorMonkey, EditableAndReadOnly) {
    const Edited& edited = GetParam();
    if (edited.type) {
        Add(edited.name, 0, edited);
        Add(L"Fixed", 2, edited);
    }
    bool fixed = false;
    monkey.TakePart(4);
    monkey.distraction = [&] {
        Choose(std::exchange(fixed, !fixed) && edited.type ? L"Fixed" : edited.name);
    };
    monkey.Play([this] { ShowModal(); });
}

const Edited editors[] = {{L"Whole", 3, 5L, L""},
                          {L"Real", 4, 2.5, L""},
                          {L"Truth", 11, true, L""},
                          {L"Lines", 14, L"some\r\nlines", L""},
                          {L"Format", 15, L"0.00", L""},
                          {L"Choice", 512, 1L, L"1=One;2=Two;3=Three"},
                          {L"Colour", 513, 255L, L""},
                          {L"Font", 514, L"Arial", L""},
                          {L"File", 515, L"picture.png", L""},
                          {L"Numbers", 8195, L"", L""},
                          {L"Database", 8711, L"", L""},
                          {L"Fields", 0, {}, L""},
                          {L"NextActions", 0, {}, L""}};

INSTANTIATE_TEST_SUITE_P(Editors, EditorMonkey, ::testing::ValuesIn(editors), [](const auto& test) {
    const std::wstring name = test.param.name;
    return std::string(name.begin(), name.end());
});

}  // namespace
}  // namespace qz
