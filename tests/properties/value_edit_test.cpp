// Numbers, texts, files and database fields, as they are typed and chosen.
#include "tests/properties/inspector_fixture.h"
#include "tests/support/menu_answer.h"
#include "tests/support/sweep.h"

#include <commdlg.h>
#include <dlgs.h>

#include <filesystem>
#include <fstream>

namespace qz {
namespace {

class ValueEdit : public InspectorTest {
  protected:
    void InspectField() {
        const auto field = Create(typeField, L"F");
        Open();
        Inspect(field);
    }
    HWND Text() const { return Field(QZ_EDITOR_TEXT); }
    std::wstring Shown() const { return TextOf(Text()); }
    LONG_PTR Style() const { return GetWindowLongPtrW(Text(), GWL_STYLE); }
    std::wstring Written(const wchar_t* name) const {
        return std::wstring(_bstr_t(Value(L"Objects[F]", name)));
    }
    LRESULT DialogCode(WPARAM key) const {
        MSG message{Text(), WM_KEYDOWN, key, 1, 0, {}};
        return SendMessageW(Text(), WM_GETDLGCODE, key, reinterpret_cast<LPARAM>(&message));
    }
    SIZE SizeOf(HWND window) const {
        RECT bounds{};
        GetWindowRect(window, &bounds);
        return {bounds.right - bounds.left, bounds.bottom - bounds.top};
    }
};

constexpr LONG_PTR scrolling = ES_AUTOHSCROLL | ES_AUTOVSCROLL | WS_VSCROLL | WS_HSCROLL;

TEST_F(ValueEdit, WhatMakesNoNumberIsPutBack) {
    InspectField();
    ASSERT_TRUE(Choose(L"Left"));
    EXPECT_EQ(Style() & scrolling, 0);
    EXPECT_EQ(SizeOf(Text()).cx, Scaled(60));
    EXPECT_EQ(SizeOf(Text()).cy, Scaled(20));
    EXPECT_EQ(SendMessageW(Text(), EM_GETLIMITTEXT, 0, 0), 2147483646);
    Type(Text(), L"12");
    SendMessageW(Text(), EM_SETSEL, 1, 1);
    SendMessageW(Text(), WM_CHAR, L'x', 1);
    EXPECT_EQ(Shown(), L"12");
    EXPECT_EQ(SendMessageW(Text(), EM_GETSEL, 0, 0), MAKELONG(1, 1));
    SetWindowTextW(Text(), L"1.5");
    EXPECT_EQ(Shown(), L"12");
    EXPECT_EQ(Written(L"Left"), L"1440") << "not before the pause";
    LetWritingHappen();
    EXPECT_EQ(Written(L"Left"), L"12");
    host->ClearLog();
    SendMessageW(Text(), WM_CHAR, L'x', 1);
    LetWritingHappen();
    EXPECT_EQ(CallCount(host.Get(), L"UpdateView"), 0) << "a refused key starts no waiting";
    ASSERT_TRUE(Choose(L"ShadingLevel"));
    Type(Text(), L"-32769");
    EXPECT_EQ(Shown(), L"-3276") << "16 bits";
    ASSERT_TRUE(Choose(L"Rotation"));
    EXPECT_EQ(Written(L"ShadingLevel"), L"-3276") << "what waits is written, not lost";
    EXPECT_EQ(Field(QZ_EDITOR_UP_DOWN) && IsWindowVisible(Field(QZ_EDITOR_UP_DOWN)), false);
    wchar_t point[4] = L"";
    GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL, point, 4);
    Type(Text(), std::wstring(L"-1") + point + L"5" + point + L"2");
    EXPECT_EQ(Shown(), std::wstring(L"-1") + point + L"52") << "the user's separator";
    Press(Text(), VK_RETURN);
    EXPECT_FLOAT_EQ(static_cast<float>(Value(L"Objects[F]", L"Rotation")), -1.52F);
}

TEST_F(ValueEdit, ArrowsCountFromWhatTheTextSays) {
    InspectField();
    ASSERT_TRUE(Choose(L"Left"));
    const HWND arrows = Field(QZ_EDITOR_UP_DOWN);
    int least = -1, most = -1;
    SendMessageW(arrows, UDM_GETRANGE32, reinterpret_cast<WPARAM>(&least), reinterpret_cast<LPARAM>(&most));
    EXPECT_EQ(least, 0);
    EXPECT_EQ(most, 32767);
    EXPECT_EQ(Shown(), L"1440");
    Press(Text(), VK_UP);
    EXPECT_EQ(Shown(), L"1441");
    EXPECT_EQ(Written(L"Left"), L"1440") << "counts as typed";
    LetWritingHappen();
    EXPECT_EQ(Written(L"Left"), L"1441");
    const LPARAM lower = MAKELPARAM(SizeOf(arrows).cx / 2, SizeOf(arrows).cy - 3);
    SendMessageW(arrows, WM_LBUTTONDOWN, MK_LBUTTON, lower);
    SendMessageW(arrows, WM_LBUTTONUP, 0, lower);
    EXPECT_EQ(Shown(), L"1440");
    Type(Text(), L"-50");
    Press(Text(), VK_DOWN);
    EXPECT_EQ(Shown(), L"0");
    Type(Text(), L"99999");
    Press(Text(), VK_UP);
    EXPECT_EQ(Shown(), L"32767");
}

TEST_F(ValueEdit, WhatIsNoNumberYetStaysUnwritten) {
    InspectField();
    ASSERT_TRUE(Choose(L"Left"));
    Type(Text(), L"-");
    LetWritingHappen();
    SetValue(L"Objects[F]", L"Top", 5L);
    EXPECT_EQ(Shown(), L"-") << "also when the host changes something";
    EXPECT_EQ(Written(L"Left"), L"1440");
    Press(Text(), VK_ESCAPE);
    EXPECT_EQ(Shown(), L"1440");
    SetValue(L"Objects[F]", L"Left", 7L);
    EXPECT_EQ(Shown(), L"7");
}

/// The system takes no more than fits into a field that does not scroll; what stands there must survive.
TEST_F(ValueEdit, AFullFieldTakesNothingMore) {
    const auto picture = Create(typePicture, L"P");
    const std::wstring path(300, L'w');
    SetValue(L"Objects[P]", L"FileName", _variant_t(path.c_str()));
    Open();
    Inspect(picture);
    ASSERT_TRUE(Choose(L"FileName"));
    for (const WPARAM caret : {0, 5, 300}) {
        SendMessageW(Text(), EM_SETSEL, caret, static_cast<LPARAM>(caret));
        SendMessageW(Text(), WM_CHAR, L'x', 1);
        SendMessageW(Text(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L"yy"));
        EXPECT_EQ(Shown(), path) << caret;
    }
    Type(Text(), L"C:\\a.png");
    EXPECT_EQ(Shown(), L"C:\\a.png");
}

TEST_F(ValueEdit, LinesFillTheEditor) {
    InspectField();
    SetValue(L"Objects[F]", L"Text", _variant_t(L"one\ntwo"));
    ASSERT_TRUE(Choose(L"Text"));
    EXPECT_EQ(Style() & scrolling, scrolling);
    EXPECT_EQ(SizeOf(Text()).cx, SizeOf(Editor()).cx);
    EXPECT_EQ(SizeOf(Text()).cy, SizeOf(Editor()).cy - Scaled(4));
    EXPECT_EQ(Shown(), L"one\r\ntwo");
    EXPECT_NE(DialogCode(VK_RETURN) & DLGC_WANTALLKEYS, 0);
    EXPECT_EQ(DialogCode(VK_TAB) & DLGC_WANTALLKEYS, 0) << "the focus gets out again";
    EXPECT_EQ(DialogCode(VK_ESCAPE) & DLGC_WANTALLKEYS, 0);
    SendMessageW(Text(), EM_SETSEL, 4, 4);
    SetValue(L"Objects[F]", L"Top", 5L);
    EXPECT_EQ(SendMessageW(Text(), EM_GETSEL, 0, 0), MAKELONG(4, 4)) << "the caret stays";
    Type(Text(), L"a & b\r.");
    EXPECT_EQ(Shown(), L"a & b\r\n.");
    Press(Text(), VK_RETURN);
    EXPECT_EQ(Written(L"Text"), L"one\ntwo");
    ASSERT_TRUE(Choose(L"Left"));
    EXPECT_EQ(Written(L"Text"), L"a & b\r\n.");
}

/// Fills the file chooser in when it opens.
class FileAnswer {
  public:
    explicit FileAnswer(const std::wstring& path) : timer_(SetTimer(nullptr, 0, 50, &OnTimer)) {
        path_ = path;
    }
    ~FileAnswer() { KillTimer(nullptr, timer_); }

    static inline std::wstring path_, filter_;

  private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) {
        const HWND chooser = FindWindowW(L"#32770", L"Select File");
        if (!chooser || !GetDlgItem(chooser, IDOK) || path_.empty()) return;
        wchar_t filter[200] = L"";
        SendDlgItemMessageW(chooser, cmb1, CB_GETLBTEXT, 0, reinterpret_cast<LPARAM>(filter));
        filter_ = filter;
        const bool cancel = path_ == L"-";
        if (!cancel) SetDlgItemTextW(chooser, GetDlgItem(chooser, edt1) ? edt1 : cmb13, path_.c_str());
        path_.clear();
        PostMessageW(chooser, WM_COMMAND, cancel ? IDCANCEL : IDOK, 0);
    }

    UINT_PTR timer_;
};

TEST_F(ValueEdit, PicturesComeFromTheFileChooser) {
    const std::filesystem::path file = std::filesystem::temp_directory_path() / L"qz value edit.png";
    std::ofstream(file) << "x";
    const auto picture = Create(typePicture, L"F");
    SetValue(L"Objects[F]", L"FileName", _variant_t(L"no path: <>|?"));
    Open();
    Inspect(picture);
    ASSERT_TRUE(Choose(L"FileName"));
    EXPECT_EQ(Style() & scrolling, 0);
    const std::filesystem::path before = std::filesystem::current_path();
    events->TakeEvents();
    {
        const FileAnswer answer(L"-");
        Click(Field(QZ_EDITOR_BUTTON));
        EXPECT_EQ(FileAnswer::filter_, L"Image Files (*.bmp;*.jpg;*.jpeg;*.tif;*.tiff;*.png;*.gif)");
        EXPECT_EQ(Shown(), L"no path: <>|?");
        EXPECT_EQ(events->TakeEvents(), (Events{"1", "2"}));
    }
    {
        const FileAnswer answer(file.wstring());
        Type(Text(), L"typed");
        host->ClearLog();
        Press(Text(), VK_F4);
        EXPECT_EQ(Written(L"FileName"), file.wstring()) << "at once";
        EXPECT_EQ(Shown(), file.wstring());
    }
    ASSERT_TRUE(Choose(L"Name"));
    EXPECT_EQ(CallCount(host.Get(), L"UpdateView"), 1) << "the timer was stopped";
    EXPECT_EQ(std::filesystem::current_path(), before);
    std::filesystem::remove(file);
}

TEST_F(ValueEdit, DatabaseFieldsComeFromTheForm) {
    Create(typeCheckBox, L"Tax & duty");
    InspectField();
    SetValue(L"Objects[F]", L"DataSource", _variant_t(L"Sales"));
    ASSERT_TRUE(Choose(L"DatabaseField"));
    const HWND button = Field(QZ_EDITOR_BUTTON);
    EXPECT_EQ(TextOf(button), L"DB Field...");
    EXPECT_FALSE(IsWindowEnabled(button));
    SetValue(L"Objects[F]", L"DataTable", _variant_t(L"Orders"));
    EXPECT_TRUE(IsWindowEnabled(button));
    {
        const MenuAnswer first(1);
        Click(button);
        EXPECT_EQ(MenuAnswer::Offered(), L"Tax && duty|F|");
        EXPECT_EQ(Written(L"DatabaseField"), L"Tax & duty");
    }
    {
        const MenuAnswer none(0);
        Press(Text(), VK_DOWN, WM_SYSKEYDOWN);
        EXPECT_EQ(MenuAnswer::Offered(), L"*Tax && duty|F|");
    }
    host->FailOperation(_bstr_t(L"GetObjectAttribute"), E_FAIL);
    const MessageBoxAnswer told(IDOK);
    Click(button);
    EXPECT_TRUE(told.Shown());
    host->ClearFaults();
    EXPECT_EQ(Written(L"DatabaseField"), L"Tax & duty");
}

// All editors of typed values
// ------------------------------------------------------------------------------------------------------

constexpr const wchar_t* typedValues[] = {L"Left",        L"ShadingLevel", L"Rotation",      L"Name",
                                          L"Text",        L"Expression",   L"DatabaseField", L"BorderStyle",
                                          L"BorderWidth", L"ShadingStops", L"TabStops"};

_variant_t Square() {
    SAFEARRAYBOUND bounds[] = {{2, 0}, {2, 0}};
    _variant_t square;
    square.parray = SafeArrayCreate(VT_I4, 2, bounds);
    square.vt = VT_ARRAY | VT_I4;
    return square;
}

TEST_F(ValueEdit, AnyValueOpensAnyEditor) {
    InspectField();
    _variant_t error;
    error.vt = VT_ERROR;
    error.scode = E_FAIL;
    _variant_t object(host.Get());
    const _variant_t values[] = {_variant_t(),
                                 error,
                                 Square(),
                                 object,
                                 _variant_t(L"7"),
                                 _variant_t(L"seven"),
                                 _variant_t(7L),
                                 _variant_t(1e300),
                                 _variant_t(true),
                                 _variant_t(7LL << 40),
                                 Value(L"Document", L"FormFields"),
                                 Value(L"Objects[F]", L"TabStops")};
    for (const wchar_t* name : typedValues) {
        for (const _variant_t& value : values) {
            SCOPED_TRACE(std::wstring(name));
            Override(L"Objects[F]", name, value);
            ASSERT_TRUE(Choose(name));
            ASSERT_NE(Text(), nullptr) << value.vt;
            if (value.vt == VT_EMPTY || value.vt == VT_ERROR || value.vt == VT_DISPATCH) {
                EXPECT_EQ(Shown(), L"") << value.vt;
            }
            if (value.vt == VT_I4 || (value.vt == VT_BSTR && std::wstring(_bstr_t(value)) == L"7")) {
                EXPECT_EQ(Shown(), L"7");
            }
            host->ClearOverrides();
        }
    }
}

TEST_F(ValueEdit, SomeOfTheSelectionLacksTheAttributeOrIsNotTold) {
    const auto field = Create(typeField, L"F");
    Create(typeField, L"G");
    Add(L"Objects[F]", L"Own", L'*', 0, 3, 1L);
    Open();
    Select(L"Objects[G]");
    Select(L"Objects[F]", true);
    Inspect(field);
    ASSERT_TRUE(Choose(L"Own"));
    ASSERT_NE(Editor(), nullptr);
    EXPECT_EQ(Shown(), L"1");
    Type(Text(), L"5");
    LetWritingHappen();
    EXPECT_EQ(static_cast<long>(Value(L"Objects[F]", L"Own")), 5);
    host->FailOperation(_bstr_t(L"SelectedObjects"), E_NOTIMPL);
    _variant_t current;
    ASSERT_EQ(host->GetCurrentObject(&current), S_OK);
    Inspect(current.pdispVal);
    ASSERT_TRUE(Choose(L"Left"));
    Type(Text(), L"7");
    ASSERT_TRUE(Choose(L"Top"));
    EXPECT_EQ(static_cast<long>(Value(L"Objects[F]", L"Left")), 7);
    EXPECT_EQ(static_cast<long>(Value(L"Objects[G]", L"Left")), 7);
}

TEST_F(ValueEdit, WhatCannotBeRestoredCanBeTriedAgain) {
    InspectField();
    ASSERT_TRUE(Choose(L"Left"));
    Type(Text(), L"9");
    LetWritingHappen();
    host->FailOperation(_bstr_t(L"Attribute.Value"), E_ACCESSDENIED);
    {
        const MessageBoxAnswer told(IDOK);
        Press(Text(), VK_ESCAPE);
        EXPECT_TRUE(told.Shown());
    }
    host->ClearFaults();
    EXPECT_EQ(static_cast<long>(Value(L"Objects[F]", L"Left")), 9);
    Press(Text(), VK_ESCAPE);
    EXPECT_EQ(static_cast<long>(Value(L"Objects[F]", L"Left")), 1440);
}

TEST_F(ValueEdit, ReadOnlyValuesCanOnlyBeLookedAt) {
    const auto field = Create(typeField, L"F");
    Add(L"Objects[F]", L"Fixed number", L'*', 2, 3, 5L);
    Add(L"Objects[F]", L"Fixed file", L'*', 2, 515, _variant_t(L"a.png"));
    Add(L"Objects[F]", L"Fixed field", L'*', 2, 8711, _variant_t(L"a"));
    Add(L"Objects[F]", L"Fixed choice", L'*', 2, 512, 1L, L"1 One|2 Two");
    Add(L"Objects[F]", L"Fixed list", L'*', 2, 8195, _variant_t(L"1 2"));
    SetValue(L"Objects[F]", L"DataSource", _variant_t(L"Sales"));
    SetValue(L"Objects[F]", L"DataTable", _variant_t(L"Orders"));
    Open();
    Inspect(field);
    for (const wchar_t* name :
         {L"Fixed number", L"Fixed file", L"Fixed field", L"Fixed choice", L"Fixed list"}) {
        ASSERT_TRUE(Choose(name));
        EXPECT_NE(Style() & ES_READONLY, 0) << name;
        const std::wstring before = Shown();
        Press(Text(), VK_UP);
        Press(Text(), VK_F4);
        SetValue(L"Objects[F]", L"Top", 5L);
        EXPECT_EQ(Shown(), before);
        for (const int id : {QZ_EDITOR_BUTTON, QZ_EDITOR_UP_DOWN, QZ_EDITOR_CHOICES}) {
            EXPECT_FALSE(Field(id) && IsWindowEnabled(Field(id)) && IsWindowVisible(Field(id))) << name << id;
        }
    }
}

TEST_F(ValueEdit, TheHostFailsAtAnyOneCall) {
    const auto field = Create(typeField, L"F");
    Open();
    SetValue(L"Objects[F]", L"DataSource", _variant_t(L"Sales"));
    SetValue(L"Objects[F]", L"DataTable", _variant_t(L"Orders"));
    for (const wchar_t* name : {L"DatabaseField", L"BorderStyle"}) {
        const auto prepare = [&] {
            Inspect(field);  // who does not answer has vanished for the inspector
            ASSERT_TRUE(Choose(L"Locked"));
        };
        const auto step = [&] {
            const MessageBoxAnswer told(IDOK);
            const MenuAnswer chosen(1);
            Choose(name);
            if (Editor()) {
                Type(Text(), L"3");
                LetWritingHappen();
                if (IsWindowEnabled(Field(QZ_EDITOR_BUTTON))) Click(Field(QZ_EDITOR_BUTTON));
                Type(Text(), L"99");
                LetWritingHappen();
                Press(Text(), VK_ESCAPE);
            }
            return S_OK;
        };
        EXPECT_GT(FailEachCall(host.Get(), {prepare, step}), 20) << name;
    }
}

}  // namespace
}  // namespace qz
