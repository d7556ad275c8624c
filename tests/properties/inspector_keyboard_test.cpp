// The inspector by keyboard, in its languages, and with attributes of every kind of oddity.
#include "tests/properties/inspector_fixture.h"

namespace qz {
namespace {

class InspectorKeys : public InspectorTest {
  protected:
    /// As a container that lets the active control see keys first. Whether the control took the key.
    bool Offer(HWND focus, WPARAM key, UINT message = WM_KEYDOWN) const {
        ComPtr<IOleInPlaceActiveObject> active;
        ThrowIfFailed(pane->QueryInterface(IID_PPV_ARGS(&active)));
        MSG press{};
        press.hwnd = focus;
        press.message = message;
        press.wParam = key;
        return active->TranslateAccelerator(&press) == S_OK;
    }
    void ActivateUI() const {
        ComPtr<IOleObject> object;
        ThrowIfFailed(pane->QueryInterface(IID_PPV_ARGS(&object)));
        ThrowIfFailed(object->DoVerb(OLEIVERB_UIACTIVATE, nullptr, window->Site().Client(), 0,
                                     window->Frame(), &window->Site().position));
    }
};

TEST_F(InspectorKeys, TabGoesThroughAllPartsAndOut) {
    Create(typeField, L"F");
    Open();
    Select(L"Objects[F]");
    ASSERT_TRUE(Choose(L"Locked"));
    ActivateUI();
    EXPECT_EQ(GetFocus(), Part(QZ_INSPECTOR_LIST)) << "not the editor that was just opened";
    EXPECT_TRUE(Offer(GetFocus(), VK_TAB));
    EXPECT_EQ(GetFocus(), Field(QZ_EDITOR_CHECK));
    EXPECT_FALSE(Offer(GetFocus(), VK_TAB)) << "leaves the control";
    SetFocus(Part(QZ_INSPECTOR_LIST));
    EXPECT_TRUE(Offer(GetFocus(), VK_DOWN));
    EXPECT_EQ(ChosenName(), L"Rotation");
    EXPECT_EQ(GetFocus(), Part(QZ_INSPECTOR_LIST));
    EXPECT_NE(Editor(), nullptr);
    EXPECT_FALSE(Offer(GetFocus(), VK_ESCAPE)) << "nothing to restore: the container's key";
    EXPECT_FALSE(Offer(GetFocus(), VK_RETURN));
}

TEST_F(InspectorKeys, EscapeAndTheEditorsFocusInTheList) {
    Create(typeField, L"F");
    Open();
    Select(L"Objects[F]");
    ASSERT_TRUE(Choose(L"Locked"));
    ActivateUI();
    SetFocus(Field(QZ_EDITOR_CHECK));
    Click(Field(QZ_EDITOR_CHECK));
    SetFocus(Part(QZ_INSPECTOR_LIST));
    EXPECT_TRUE(Offer(GetFocus(), VK_ESCAPE));
    EXPECT_FALSE(static_cast<bool>(Value(L"Objects[F]", L"Locked")));
    // An editor that goes gives its focus to the list.
    SetFocus(Field(QZ_EDITOR_CHECK));
    ASSERT_TRUE(Choose(L"Visible"));
    EXPECT_EQ(GetFocus(), Part(QZ_INSPECTOR_LIST));
}

TEST_F(InspectorKeys, SpeaksTheHostsLanguage) {
    Create(typeField, L"F");
    host->put_LanguageId(MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN));
    Open();
    Select(L"Objects[F]");
    EXPECT_EQ(ValueCaption(), L"Wert");
    EXPECT_EQ(Tabs().back(), L"Alle");
    ASSERT_TRUE(Choose(L"Locked"));
    EXPECT_EQ(TextOf(Field(QZ_EDITOR_CHECK)), L"&Wahr");
    host->put_LanguageId(MAKELANGID(LANG_JAPANESE, SUBLANG_JAPANESE_JAPAN));
    ASSERT_EQ(pane->put_VandraX(host.Get()), S_OK);
    Select(L"Objects[F]");
    host->RaiseChange(2);
    EXPECT_EQ(ValueCaption(), L"値");
}

TEST_F(InspectorKeys, AChangeOfLanguageGivesTheFocusBack) {
    const auto field = Create(typeField, L"F");
    Open();
    long language = LANG_GERMAN;
    for (const int part : {QZ_INSPECTOR_LIST, QZ_INSPECTOR_TABS}) {
        Inspect(field);
        ActivateUI();
        SetFocus(Part(part));
        host->put_LanguageId(MAKELANGID(language, SUBLANG_DEFAULT));
        language = LANG_FRENCH;
        ASSERT_EQ(pane->put_VandraX(host.Get()), S_OK);
        EXPECT_EQ(GetFocus(), window->Window()) << "with nothing to show there is nothing else to take it";
        Inspect(field);
        EXPECT_EQ(GetFocus(), Part(part));
    }
    EXPECT_EQ(ValueCaption(), L"Valeur");
    // A focus that has gone elsewhere meanwhile stays there.
    ASSERT_EQ(pane->put_VandraX(host.Get()), S_OK);
    SetFocus(window->Frame());
    Inspect(field);
    EXPECT_EQ(GetFocus(), window->Frame());
}

TEST_F(InspectorKeys, OddAttributesAreListedAsFarAsTheyCanBe) {
    const auto object = Create(typeFormAction, L"A");
    const std::wstring longName(200, L'n');
    Add(L"Objects[A]", L"ObjectLike", L'*', 0, 4711, L"unknown type");
    Add(L"Objects[A]", L"NoTab", L'?', 0, 11, true);
    Add(L"Objects[A]", L"Fixed", L'*', 2, 11, true);
    Add(L"Objects[A]", longName.c_str(), L'*', 0, 11, true);
    Add(L"Objects[A]", L"Zero", L'0', 0, 11, true);
    Open();
    Inspect(object);
    EXPECT_EQ(Tabs(), (Texts{L"Standard", L"Advanced", L"Actions", L"All"}));
    ASSERT_TRUE(Choose(L"ObjectLike"));
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(Description(), L"About ObjectLike");
    ASSERT_TRUE(Choose(L"NoTab")) << "under All";
    ASSERT_TRUE(Choose(L"Fixed"));
    EXPECT_FALSE(IsWindowEnabled(Field(QZ_EDITOR_CHECK)));
    ASSERT_TRUE(Choose(longName.c_str()));
    EXPECT_NE(Editor(), nullptr);
    Inspect(Create(typeFormAction, L"B"));
    EXPECT_EQ(ChosenName(), L"") << "too long to be remembered";
    // Values of every type under the editor of truth values.
    Inspect(object);
    SAFEARRAY* const array = SafeArrayCreateVector(VT_I4, 0, 3);
    _variant_t numbers;
    numbers.vt = VT_ARRAY | VT_I4;
    numbers.parray = array;
    _variant_t missing;
    missing.vt = VT_ERROR;
    missing.scode = DISP_E_PARAMNOTFOUND;
    for (const _variant_t& value :
         {_variant_t(), _variant_t(L"text"), _variant_t(2.5), missing, numbers, _variant_t(object.Get())}) {
        Override(L"Objects[A]", L"Zero", value);
        ASSERT_TRUE(Choose(L"Zero"));
        ASSERT_NE(Editor(), nullptr) << "type " << value.vt;
        Click(Field(QZ_EDITOR_CHECK));
    }
}

}  // namespace
}  // namespace qz
