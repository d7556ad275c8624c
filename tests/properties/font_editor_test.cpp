// The editor of fonts: its fields, and the system's dialog.
#include "tests/properties/inspector_fixture.h"

#include <dlgs.h>

#include <functional>

namespace qz {
namespace {

/// Does something in the system's dialog for fonts when this thread shows it, in place of the user.
class FontDialogUser {
  public:
    explicit FontDialogUser(std::function<void(HWND)> action) : action_(std::move(action)) {
        current_ = this;
        timer_ = SetTimer(nullptr, 0, 20, &OnTimer);
    }
    ~FontDialogUser() {
        KillTimer(nullptr, timer_);
        current_ = nullptr;
    }
    FontDialogUser(const FontDialogUser&) = delete;
    FontDialogUser& operator=(const FontDialogUser&) = delete;

    bool Seen() const noexcept { return seen_; }

  private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) {
        const auto isOurs = [](HWND dialog) {
            return GetWindowThreadProcessId(dialog, nullptr) == GetCurrentThreadId() &&
                   GetDlgItem(dialog, cmb3);
        };
        HWND dialog = nullptr;
        while ((dialog = FindWindowExW(nullptr, dialog, WC_DIALOG, nullptr)) && !isOurs(dialog)) {
        }
        if (!dialog || current_->seen_) return;
        current_->seen_ = true;
        current_->action_(dialog);
    }

    static inline FontDialogUser* current_ = nullptr;
    std::function<void(HWND)> action_;
    UINT_PTR timer_ = 0;
    bool seen_ = false;
};

class FontEditor : public InspectorTest {
  protected:
    FontEditor() { Open(); }

    void Reopen(const wchar_t* font = nullptr) {
        if (font) SetValue(L"Objects[F]", L"Font", font);
        Inspect(field);
        ASSERT_TRUE(Choose(L"Font"));
    }
    HWND Face() const { return Field(QZ_EDITOR_FACE); }
    HWND FaceText() const { return FindWindowExW(Face(), nullptr, L"Edit", nullptr); }
    /// A key that also is a character, in the field of the list.
    void PressTyped(WPARAM key) const {
        SendMessageW(FaceText(), WM_KEYDOWN, key, 1);
        SendMessageW(FaceText(), WM_CHAR, key, 1);
        SendMessageW(FaceText(), WM_KEYUP, key, 1);
    }
    HWND Size() const { return Field(QZ_EDITOR_SIZE); }
    std::wstring Font(const wchar_t* path = L"Objects[F]") const {
        const _variant_t value = Value(path, L"Font");
        EXPECT_EQ(value.vt, VT_BSTR);
        return value.vt == VT_BSTR ? std::wstring(_bstr_t(value)) : std::wstring();
    }
    /// A letter for each box: set, cleared, neither.
    std::string Marks() const {
        std::string marks;
        for (const int id : {QZ_EDITOR_BOLD, QZ_EDITOR_ITALIC, QZ_EDITOR_UNDERLINE, QZ_EDITOR_STRIKE_OUT}) {
            marks += "-x?"[SendMessageW(Field(id), BM_GETCHECK, 0, 0)];
        }
        return marks;
    }
    std::wstring Shown() const { return TextOf(Face()) + L"/" + TextOf(Size()); }
    void GiveFonts(std::initializer_list<const wchar_t*> families) {
        SAFEARRAY* fonts = SafeArrayCreateVector(VT_DISPATCH, 0, static_cast<ULONG>(families.size()));
        LONG index = 0;
        for (const wchar_t* family : families) {
            // Any object that has the attribute will do for a font.
            const std::wstring name = L"T" + std::to_wstring(index);
            const auto object = Create(typePicture, name.c_str());
            Add((L"Objects[" + name + L"]").c_str(), L"BaseName", L'*', 0, 14, family);
            SafeArrayPutElement(fonts, &index, object.Get());
            ++index;
        }
        _variant_t value;
        value.vt = VT_ARRAY | VT_DISPATCH;
        value.parray = fonts;
        Override(L"Document", L"Fonts", value);
    }

    ComPtr<IDispatch> field = Create(typeField, L"F");
};

TEST_F(FontEditor, FieldsAreShownAndWritten) {
    Reopen(L"Courier; 10.25; 900; 1; 0; 0");
    EXPECT_EQ(Shown(), L"Courier/10.2");
    EXPECT_EQ(Marks(), "xx--");
    Click(Field(QZ_EDITOR_UNDERLINE));
    EXPECT_EQ(Font(), L"Courier; 10.25; 900; 1; 1; 0") << "what is not touched stays as exact as it was";
    Click(Field(QZ_EDITOR_BOLD));
    EXPECT_EQ(Font(), L"Courier; 10.25; 400; 1; 1; 0");
    Click(Field(QZ_EDITOR_BOLD));
    Click(Field(QZ_EDITOR_ITALIC));
    Click(Field(QZ_EDITOR_STRIKE_OUT));
    EXPECT_EQ(Font(), L"Courier; 10.25; 900; 0; 1; 1") << "bold as it was opened with";
    Type(Size(), L"12,5");
    Type(FaceText(), L"Times");
    EXPECT_EQ(Font(), L"Courier; 10.25; 900; 0; 1; 1") << "typed";
    LetWritingHappen();
    EXPECT_EQ(Font(), L"Times; 12.5; 900; 0; 1; 1");
    for (const wchar_t* size : {L"-3", L"big", L"0"}) {
        Type(Size(), size);
        LetWritingHappen();
        EXPECT_EQ(Font(), L"Times; 12.5; 900; 0; 1; 1") << size;
        EXPECT_EQ(TextOf(Size()), size);
    }
    Press(Size(), VK_ESCAPE);
    EXPECT_EQ(Font(), L"Courier; 10.25; 900; 1; 0; 0");
    EXPECT_EQ(Shown(), L"Courier/10.2");
    Reopen(L"");
    EXPECT_EQ(Shown(), L"/10.0");
    EXPECT_EQ(Marks(), "----");
}

TEST_F(FontEditor, TheDocumentsFamiliesAreListedOnce) {
    GiveFonts({L"Zapf", L"Arial", L"zapf", L"", L"ARIAL", L"Courier"});
    Reopen(L"Arial; 10; 400; 0; 0; 0");
    Texts faces;
    for (LRESULT i = 0; i < SendMessageW(Face(), CB_GETCOUNT, 0, 0); ++i) {
        wchar_t text[100] = L"";
        SendMessageW(Face(), CB_GETLBTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
        faces.emplace_back(text);
    }
    EXPECT_EQ(faces, (Texts{L"Zapf", L"Arial", L"Courier"}));
    SetFocus(FaceText());
    Press(FaceText(), VK_DOWN, WM_SYSKEYDOWN);
    ASSERT_TRUE(SendMessageW(Face(), CB_GETDROPPEDSTATE, 0, 0));
    Press(FaceText(), VK_DOWN);
    PressTyped(VK_ESCAPE);
    EXPECT_FALSE(SendMessageW(Face(), CB_GETDROPPEDSTATE, 0, 0));
    EXPECT_EQ(Font(), L"Arial; 10; 400; 0; 0; 0") << "looked at and left";
    EXPECT_EQ(TextOf(Face()), L"Arial");
    SendMessageW(Face(), CB_SHOWDROPDOWN, TRUE, 0);
    SendMessageW(Face(), CB_SETCURSEL, 2, 0);
    PressTyped(VK_RETURN);
    EXPECT_EQ(Font(), L"Courier; 10; 400; 0; 0; 0");
    // A host that does not tell the fonts leaves the field to be typed into.
    Override(L"Document", L"Fonts", L"none");
    Reopen();
    ASSERT_NE(Editor(), nullptr);
    EXPECT_EQ(SendMessageW(Face(), CB_GETCOUNT, 0, 0), 0);
}

TEST_F(FontEditor, TheSystemsDialogStartsFromTheFontAndGivesOne) {
    Reopen(L"Tahoma; 12; 700; 0; 1; 0");
    std::wstring started;
    {
        const FontDialogUser user([&](HWND dialog) {
            wchar_t text[100] = L"";
            GetDlgItemTextW(dialog, cmb1, text, 100);
            started = text;
            GetDlgItemTextW(dialog, cmb3, text, 100);
            started += std::wstring(L"/") + text;
            SendDlgItemMessageW(dialog, chx1, BM_CLICK, 0, 0);
            Type(FindWindowExW(GetDlgItem(dialog, cmb3), nullptr, L"Edit", nullptr), L"17");
            PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
        });
        Press(Size(), VK_F4);
        EXPECT_TRUE(user.Seen());
    }
    EXPECT_EQ(started, L"Tahoma/12");
    EXPECT_EQ(Font(), L"Tahoma; 12; 700; 0; 1; 0") << "cancelled";
    {
        const FontDialogUser user([&](HWND dialog) {
            SendDlgItemMessageW(dialog, chx1, BM_CLICK, 0, 0);
            Type(FindWindowExW(GetDlgItem(dialog, cmb3), nullptr, L"Edit", nullptr), L"17");
            PostMessageW(dialog, WM_COMMAND, IDOK, 0);
        });
        Click(Field(QZ_EDITOR_BUTTON));
    }
    EXPECT_EQ(Font(), L"Tahoma; 17; 700; 0; 1; 1");
    EXPECT_EQ(Shown(), L"Tahoma/17.0");
    EXPECT_EQ(Marks(), "x-xx");
}

TEST_F(FontEditor, WithoutAFaceTheSystemsDialogStartsFromTheDocumentsFont) {
    SetValue(L"Document", L"DefaultFont", L"Tahoma; 9; 400; 1; 0; 0");
    Reopen(L"");
    {
        const FontDialogUser user([](HWND dialog) { PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0); });
        Click(Field(QZ_EDITOR_BUTTON));
        EXPECT_TRUE(user.Seen());
    }
    EXPECT_EQ(Font(), L"");
    EXPECT_EQ(Shown(), L"/10.0") << "the value before";
    {
        const FontDialogUser user([](HWND dialog) { PostMessageW(dialog, WM_COMMAND, IDOK, 0); });
        Click(Field(QZ_EDITOR_BUTTON));
    }
    EXPECT_EQ(Font(), L"Tahoma; 9; 400; 1; 0; 0");
    // The inspector ends while the dialog is open.
    {
        const FontDialogUser user([this](HWND dialog) {
            EXPECT_EQ(pane->put_Object(nullptr), S_OK);
            PostMessageW(dialog, WM_COMMAND, IDOK, 0);
        });
        Press(Size(), VK_F4);
        EXPECT_TRUE(user.Seen());
    }
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(Font(), L"Tahoma; 9; 400; 1; 0; 0");
}

TEST_F(FontEditor, DifferentFontsGetTheInspectedOnesWhenSomethingIsEntered) {
    Create(typeField, L"G");
    SetValue(L"Objects[G]", L"Font", L"Symbol; 8; 700; 0; 0; 0");
    Select(L"Objects[F]");
    Select(L"Objects[G]", true);
    Reopen(L"Courier; 14; 400; 1; 0; 0");
    EXPECT_EQ(Shown(), L"/");
    EXPECT_EQ(Marks(), "????");
    Type(Size(), L"20");
    EXPECT_EQ(Shown(), L"Courier/20") << "the rest of what will be written";
    EXPECT_EQ(Marks(), "-x--");
    LetWritingHappen();
    EXPECT_EQ(Font(), L"Courier; 20; 400; 1; 0; 0");
    EXPECT_EQ(Font(L"Objects[G]"), L"Courier; 20; 400; 1; 0; 0");
}

}  // namespace
}  // namespace qz
