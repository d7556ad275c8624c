// The document settings: the dialog as a whole, information and security.
#include "tests/dialogs/document_settings_fixture.h"
#include "tests/support/sweep.h"
#include "tests/support/dialog_fit.h"
#include "tests/support/event_recorder.h"
#include "tests/support/held_keys.h"

#include <tuple>

namespace qz {
namespace {

/// Every attribute that the dialog writes.
constexpr const wchar_t* writable[] = {L"Title",       L"Subject",       L"Author",      L"Creator",
                                       L"Keywords",    L"Producer",      L"Security",    L"Landscape",
                                       L"PaperSize",   L"Width",         L"Length",      L"PaperBin",
                                       L"TopMargin",   L"LeftMargin",    L"RightMargin", L"BottomMargin",
                                       L"Permissions", L"OwnerPassword", L"UserPassword"};

class DocumentDialogTest : public DocumentSettingsTest {
  protected:
    std::vector<_variant_t> Everything() const {
        std::vector<_variant_t> values;
        for (const wchar_t* attribute : writable) values.push_back(Value(attribute));
        return values;
    }
    long EventCount() const {
        long count = 0;
        EXPECT_EQ(host->get_EventCount(&count), S_OK);
        return count;
    }
    void Protect(const wchar_t* ownerPassword, const wchar_t* user, long permissions) const {
        EXPECT_EQ(host->Encrypt128(_bstr_t(ownerPassword), _bstr_t(user), permissions), S_OK);
        EXPECT_EQ(host->ClearLog(), S_OK);
    }
    static void EnterPassword(int id, const std::wstring& text) {
        Enter(id, text);
        Enter(id + 1, text);
    }
    long EncryptCalls() const {
        return CallCount(host.Get(), L"Encrypt") + CallCount(host.Get(), L"Encrypt128");
    }
};

TEST_F(DocumentDialogTest, ShowsWhatTheDocumentSays) {
    Set(L"Title", L"{\\rtf1 \x3042}");
    Set(L"Producer", L"last");
    const auto inform = [&](const wchar_t* name, wchar_t category, const _variant_t& value) {
        EXPECT_EQ(host->AddAttribute(_bstr_t(L"DocInfo"), _bstr_t(name), category, 0, 14, _bstr_t(L""),
                                     _bstr_t(L""), value),
                  S_OK);
    };
    inform(L"Company", L'I', L"Ours");
    inform(L"Empty", L'I', L"");
    inform(L"Other", L'A', L"not listed");
    inform(L"Year", L'I', L"1999");
    Protect(L"own", L"use", 4 + 32);
    Run([&] {
        EXPECT_EQ(Shown(QZ_INFO_TITLE), L"{\\rtf1 \x3042}");
        EXPECT_EQ(Shown(QZ_INFO_PRODUCER), L"last");
        EXPECT_EQ(Rows(QZ_INFO_FURTHER), 2);
        EXPECT_EQ(Cell(QZ_INFO_FURTHER, 0, 0), L"Company");
        EXPECT_EQ(Cell(QZ_INFO_FURTHER, 0, 1), L"Ours");
        EXPECT_EQ(Cell(QZ_INFO_FURTHER, 1, 1), L"1999");
        EXPECT_EQ(Chosen(QZ_SECURITY_LEVEL), 2);
        EXPECT_EQ(Shown(QZ_SECURITY_OWNER), L"own");
        EXPECT_EQ(Shown(QZ_SECURITY_USER_CONFIRMATION), L"use");
        EXPECT_EQ(std::tuple(Ticked(234), Ticked(235), Ticked(236), Ticked(237)),
                  std::tuple(false, true, false, true));
        EXPECT_EQ(ShownTab(), 0);
        EXPECT_FALSE(IsWindowEnabled(owner));
    });
    EXPECT_TRUE(IsWindowEnabled(owner));
}

TEST_F(DocumentDialogTest, NeitherCancelNorOkWithoutEditsChangesAnything) {
    Set(L"Title", (std::wstring(600, L'x') + L"\r\nsecond line").c_str());
    Set(L"PaperSize", 9L);
    Set(L"Width", 11905L);
    Set(L"PaperBin", 99L);
    Set(L"TopMargin", 721L);
    Set(L"MeasurementUnit", 1L);
    Protect(std::wstring(2000, L'p').c_str(), L"use", -60);
    const std::vector<_variant_t> before = Everything();
    const long events = EventCount();
    int widths = 0;
    EXPECT_EQ(host->ClearLog(), S_OK);
    EXPECT_EQ(host->put_LogEnabled(1), S_OK);
    Run([] {
        Enter(QZ_INFO_TITLE, L"edited");
        Press(QZ_SETUP_LANDSCAPE);
        Press(IDCANCEL);
    });
    for (const std::wstring& line : LogLines(host.Get())) EXPECT_EQ(line.find(L"edited"), line.npos);
    EXPECT_EQ(Everything(), before);
    EXPECT_EQ(host->ClearLog(), S_OK);
    Run([] { Press(IDOK); });
    // Only read: written, it would go to all pages.
    for (const std::wstring& line : LogLines(host.Get())) {
        widths += line.find(L"Width") != line.npos;
    }
    EXPECT_EQ(widths, 1);
    EXPECT_EQ(Everything(), before);
    EXPECT_EQ(EventCount(), events);
    EXPECT_EQ(EncryptCalls(), 0);
}

TEST_F(DocumentDialogTest, InformationIsWrittenInOrderUntilAWriteFails) {
    EXPECT_EQ(host->put_LogEnabled(1), S_OK);
    const auto enter = [] {
        for (int field = QZ_INFO_TITLE; field <= QZ_INFO_PRODUCER; ++field) {
            Enter(field, L"new " + std::to_wstring(field));
        }
    };
    Run([&] {
        enter();
        // Nothing is read before it is written: the third call writes the author.
        EXPECT_EQ(host->FailCall(3, E_ACCESSDENIED), S_OK);
        const MessageBoxAnswer told(IDOK);
        Press(IDOK);
        EXPECT_TRUE(told.Shown());
        EXPECT_EQ(told.Caption(), L"Error...");
        EXPECT_NE(Window(), nullptr);
        EXPECT_EQ(Shown(QZ_INFO_KEYWORDS), L"new 514");
    });
    EXPECT_EQ(host->ClearFaults(), S_OK);
    EXPECT_EQ(Text(L"Subject"), L"new 511");
    EXPECT_EQ(Text(L"Author"), L"");
    EXPECT_EQ(Text(L"Keywords"), L"");
    Run([&] {
        enter();
        Enter(QZ_INFO_KEYWORDS, std::wstring(600, L'k'));
        EXPECT_EQ(host->ClearLog(), S_OK);
        Press(IDOK);
    });
    EXPECT_EQ(Text(L"Keywords"), std::wstring(512, L'k'));
    const std::vector<std::wstring> lines = LogLines(host.Get());
    ASSERT_GE(lines.size(), 6u);
    EXPECT_NE(lines[0].find(L"new 510"), std::wstring::npos) << testing::PrintToString(lines[0]);
    EXPECT_NE(lines[5].find(L"new 515"), std::wstring::npos) << testing::PrintToString(lines[5]);
}

TEST_F(DocumentDialogTest, SecurityIsAppliedByItsLevel) {
    Run([] {
        Choose(QZ_SECURITY_LEVEL, 1);
        EnterPassword(QZ_SECURITY_OWNER, L"first");
        Press(IDOK);
    });
    EXPECT_EQ(CallCount(host.Get(), L"Encrypt"), 1);
    EXPECT_EQ(Number(L"Security"), 40);
    EXPECT_EQ(Text(L"OwnerPassword"), L"first");
    Run([] {
        Choose(QZ_SECURITY_LEVEL, 2);
        Press(IDOK);
    });
    EXPECT_EQ(Number(L"Security"), 40) << "a level alone";
    Run([] {
        Choose(QZ_SECURITY_LEVEL, 2);
        EnterPassword(QZ_SECURITY_USER, std::wstring(1500, L'u'));
        Press(IDOK);
    });
    EXPECT_EQ(Number(L"Security"), 128);
    EXPECT_EQ(Text(L"UserPassword"), std::wstring(1024, L'u'));
    EXPECT_EQ(Text(L"OwnerPassword"), L"first");
    Run([] {
        Choose(QZ_SECURITY_LEVEL, 0);
        EnterPassword(QZ_SECURITY_USER, L"");
        Press(IDOK);
    });
    EXPECT_EQ(Number(L"Security"), 0);
    EXPECT_EQ(Text(L"OwnerPassword"), L"");
}

TEST_F(DocumentDialogTest, PermissionsAreGrantedNeverWithdrawn) {
    Protect(L"own", L"", 8 + 1024);
    Run([] {
        Press(QZ_SECURITY_ALLOW_MODIFYING);
        EXPECT_FALSE(Ticked(QZ_SECURITY_ALLOW_MODIFYING));
        Press(IDOK);
    });
    EXPECT_EQ(EncryptCalls(), 0);
    Run([] {
        Press(QZ_SECURITY_ALLOW_MODIFYING);
        Press(QZ_SECURITY_ALLOW_COPYING);
        Press(IDOK);
    });
    EXPECT_EQ(EncryptCalls(), 1);
    EXPECT_EQ(Number(L"Permissions"), 8 + 1024 + 16);
}

TEST_F(DocumentDialogTest, PasswordsMustBeConfirmed) {
    for (const int field : {QZ_SECURITY_OWNER, QZ_SECURITY_USER}) {
        Run([&] {
            Enter(field, L"secret");
            Enter(field + 1, L"Secret");
            Press(IDOK);
            EXPECT_NE(Window(), nullptr);
            EXPECT_EQ(ShownTab(), 1);
            EXPECT_EQ(GetFocus(), Item(field + 1));
            EXPECT_EQ(Shown(field), L"secret");
        });
    }
    EXPECT_EQ(EncryptCalls(), 0);
}

// The document has a level that the list does not know, or does not tell its level.
TEST_F(DocumentDialogTest, ProtectionIsNotTakenAwayWithoutAChoice) {
    Protect(L"own", L"use", 4);
    for (const bool told : {true, false}) {
        Override(L"Security", told ? _variant_t(256L) : _variant_t(L"secret"));
        Run([&] {
            EXPECT_EQ(Chosen(QZ_SECURITY_LEVEL), CB_ERR);
            EXPECT_EQ(Shown(QZ_SECURITY_LEVEL_HINT).find(L"256") != std::wstring::npos, told);
            EXPECT_EQ(host->ClearOverrides(), S_OK);
            Press(QZ_SECURITY_ALLOW_COPYING);
            const MessageBoxAnswer shown(IDOK);
            Press(IDOK);
            EXPECT_EQ(shown.Text(),
                      L"Choose a security level. Without one, passwords and permissions are not changed.");
            EXPECT_EQ(ShownTab(), 1);
            EXPECT_EQ(GetFocus(), Item(QZ_SECURITY_LEVEL));
            EXPECT_EQ(EncryptCalls(), 0);
            if (told) return;
            Choose(QZ_SECURITY_LEVEL, 2);
            Press(IDOK);
            EXPECT_EQ(Window(), nullptr) << "with a choice it goes on";
        });
    }
    EXPECT_EQ(EncryptCalls(), 1);
    EXPECT_EQ(Number(L"Security"), 128);
    EXPECT_EQ(Number(L"Permissions"), 4 + 16);
    EXPECT_EQ(Text(L"OwnerPassword"), L"own");
    Override(L"Security", 256L);
    Run([] { Press(IDOK); });
    EXPECT_EQ(EncryptCalls(), 1) << "with nothing changed there is nothing to choose";
}

TEST_F(DocumentDialogTest, ARefusedProtectionIsTold) {
    Run([&] {
        EXPECT_EQ(host->FailOperation(_bstr_t(L"Encrypt128"), E_ACCESSDENIED), S_OK);
        Choose(QZ_SECURITY_LEVEL, 2);
        EnterPassword(QZ_SECURITY_OWNER, L"own");
        Enter(QZ_SETUP_WIDTH, L"1");
        const MessageBoxAnswer told(IDOK);
        Press(IDOK);
        EXPECT_EQ(told.Text(),
                  L"Document should be opened with owner password\nin order to modify the security");
        EXPECT_EQ(ShownTab(), 1);
    });
    EXPECT_EQ(Number(L"Width"), 12240) << "the tabs after it are not written";
}

TEST_F(DocumentDialogTest, EveryCallMayFail) {
    Protect(L"own", L"use", 4);
    long fill = 0;
    Run([&] { EXPECT_EQ(host->get_CallCount(nullptr, &fill), S_OK); });
    ASSERT_GT(fill, 20);
    for (long call = 1; call <= fill; ++call) {
        if (!IsSwept(call) && call < fill) continue;
        const std::vector<_variant_t> before = Everything();
        EXPECT_EQ(host->FailCall(call, E_FAIL), S_OK);
        Run([&] {
            EXPECT_EQ(host->ClearFaults(), S_OK);
            const MessageBoxAnswer told(IDOK);
            Press(IDOK);
        });
        EXPECT_EQ(Everything(), before) << "call " << call << " of the fill";
    }
    for (long call = 1; call <= 25; ++call) {
        if (!IsSwept(call)) continue;
        Run([&] {
            EnterPassword(QZ_SECURITY_USER, L"user " + std::to_wstring(call));
            EXPECT_EQ(host->FailCall(call, E_FAIL), S_OK);
            const MessageBoxAnswer told(IDOK);
            Press(IDOK);
            EXPECT_EQ(told.Shown(), Window() != nullptr) << "call " << call << " of OK";
        });
        EXPECT_EQ(host->ClearFaults(), S_OK);
    }
}

TEST_F(DocumentDialogTest, TheWindowMayGoAtAnyWrite) {
    for (int write = 1; write <= 4; ++write) {
        const auto sink = MakeObject<EventRecorder>();
        sink->Connect(host.Get(), DIID__IVandraXEvents);
        const HWND parent = CreateWindowExW(0, L"STATIC", L"parent", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr,
                                            nullptr, nullptr);
        int left = write;
        sink->actions[5] = [&] {
            if (--left == 0) DestroyWindow(parent);
        };
        {
            const DuringModal during([&] {
                Uncover(QZ_DOCUMENT_TABS);
                Enter(QZ_INFO_TITLE, L"title " + std::to_wstring(write));
                Enter(QZ_INFO_KEYWORDS, L"keywords " + std::to_wstring(write));
                EnterPassword(QZ_SECURITY_USER, L"user " + std::to_wstring(write));
                Choose(QZ_SETUP_PAPER, 8 + write);
                Press(IDOK);
            });
            dialog->DoModal(_variant_t(HandleToLong(parent)));
        }
        sink->Disconnect();
        EXPECT_EQ(Window(), nullptr);
        EXPECT_EQ(Text(L"Keywords"), L"keywords " + std::to_wstring(write)) << "taken before the first call";
        EXPECT_EQ(Text(L"OwnerPassword"), L"");
    }
}

TEST_F(DocumentDialogTest, TheOwnerIsDisabledMeanwhileAndTheEndOfTheProgramIsPassedOn) {
    {
        const DuringModal during([&] {
            EXPECT_FALSE(IsWindowEnabled(owner));
            EXPECT_TRUE(IsChild(Window(), GetFocus()));
            PostQuitMessage(7);
        });
        EXPECT_EQ(dialog->DoModal(_variant_t(HandleToLong(owner))), S_OK);
    }
    MSG message{};
    ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 7u);
    EXPECT_TRUE(IsWindowEnabled(owner));
    EXPECT_EQ(GetActiveWindow(), owner);
    EnableWindow(owner, FALSE);
    Run([] {});
    EXPECT_FALSE(IsWindowEnabled(owner)) << "as it was before";
}

TEST_F(DocumentDialogTest, BadParentsAndHosts) {
    EXPECT_EQ(dialog->DoModal(_variant_t(L"no window")), E_INVALIDARG);
    EXPECT_EQ(dialog->DoModal(_variant_t(0x7FFFFFF0L)), E_INVALIDARG);
    EXPECT_EQ(dialog->Initialize(nullptr), E_POINTER);
    const auto noHost = MakeObject<EventRecorder>();
    EXPECT_EQ(dialog->Initialize(noHost.Get()), E_NOINTERFACE);
    const ULONG references = ReferencesOf(host.Get());
    Run([&] { EXPECT_EQ(dialog->DoModal(_variant_t()), E_FAIL) << "is open already"; });
    EXPECT_EQ(ReferencesOf(host.Get()), references);
    EXPECT_EQ(host->FailOperation(_bstr_t(L"GetObjectByPath"), E_FAIL), S_OK);
    Run([&] {
        const MessageBoxAnswer told(IDOK);
        Press(IDOK);
        EXPECT_TRUE(told.Shown()) << "without a document";
    });
}

TEST_F(DocumentDialogTest, ValuesOfAnyType) {
    _variant_t array;
    array.vt = VT_ARRAY | VT_I4;
    array.parray = SafeArrayCreateVector(VT_I4, 0, 3);
    _variant_t null;
    null.vt = VT_NULL;
    for (const _variant_t& value :
         {array, null, _variant_t(), _variant_t(1e300), _variant_t(L"text"), _variant_t(host.Get())}) {
        for (const wchar_t* attribute : {L"Title", L"Security", L"Permissions", L"MeasurementUnit",
                                         L"PaperSize", L"Width", L"PaperBin", L"Fonts"}) {
            Override(attribute, value);
            Run([] { EXPECT_NE(Window(), nullptr); });
            EXPECT_EQ(host->ClearOverrides(), S_OK);
        }
    }
}

TEST_F(DocumentDialogTest, TabGoesFromFieldToField) {
    Set(L"Title", L"title");
    Run([] {
        SetFocus(Item(QZ_INFO_TITLE));
        std::vector<int> visited;
        for (int step = 0; step < 10; ++step) {
            MSG key{GetFocus(), WM_KEYDOWN, VK_TAB, 0, 0, {}};
            EXPECT_TRUE(IsDialogMessageW(Window(), &key));
            visited.push_back(GetDlgCtrlID(GetFocus()));
        }
        EXPECT_EQ(visited, (std::vector<int>{QZ_INFO_SUBJECT, QZ_INFO_AUTHOR, QZ_INFO_CREATOR,
                                             QZ_INFO_KEYWORDS, QZ_INFO_PRODUCER, QZ_INFO_FURTHER, IDOK,
                                             IDCANCEL, QZ_DOCUMENT_TABS, QZ_INFO_TITLE}));
        EXPECT_EQ(Shown(QZ_INFO_TITLE), L"title");
    });
}

TEST_F(DocumentDialogTest, ControlWithTabGoesFromTabToTab) {
    const auto press = [](WPARAM key, std::initializer_list<int> held) {
        const HeldKeys keys(held);
        MSG message{GetFocus(), WM_KEYDOWN, key, 0, 0, {}};
        EXPECT_TRUE(IsDialogMessageW(Window(), &message));
        return ShownTab();
    };
    Run([&] {
        SetFocus(Item(QZ_INFO_TITLE));
        EXPECT_EQ(press(VK_TAB, {VK_CONTROL}), 1);
        EXPECT_EQ(GetFocus(), Item(QZ_SECURITY_LEVEL));
        EXPECT_EQ(press(VK_NEXT, {VK_CONTROL}), 2);
        EXPECT_EQ(press(VK_TAB, {VK_CONTROL, VK_SHIFT}), 1);
        SetFocus(Item(IDOK));
        EXPECT_EQ(press(VK_PRIOR, {VK_CONTROL}), 0);
        EXPECT_EQ(press(VK_PRIOR, {VK_CONTROL}), 3);
        EXPECT_EQ(GetFocus(), Item(IDOK));
    });
}

TEST_F(DocumentDialogTest, FitsInEveryLanguage) {
    Override(L"Security", 65535L);  // named in the longer of the two hints
    for (const long language : {0x0409, 0x0407, 0x0C0A, 0x040C, 0x0410, 0x0411, 0x041D}) {
        EXPECT_EQ(host->put_LanguageId(language), S_OK);
        Run([&] {
            EXPECT_EQ(CutOffTexts(Window()), std::vector<std::wstring>()) << language;
            for (int tab = 0; tab < 4; ++tab) {
                Send(QZ_DOCUMENT_TABS, TCM_SETCURFOCUS, static_cast<WPARAM>(tab));
                EXPECT_EQ(BadMnemonics(Window()), std::vector<std::wstring>()) << language << ", tab " << tab;
            }
        });
    }
}

}  // namespace
}  // namespace qz
