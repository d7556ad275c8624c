// The editor of action chains: buttons and keys, the confirmation held off meanwhile, undo, failures.
#include "tests/properties/inspector_fixture.h"
#include "tests/properties/object_chain.h"
#include "tests/support/during_modal.h"
#include "tests/support/held_keys.h"
#include "tests/support/menu_answer.h"
#include "tests/support/sweep.h"

namespace qz {
namespace {

class ActionsEditor : public InspectorTest {
  protected:
    ActionsEditor() {
        SetValue(L"Objects[B]", L"Description", L"Second");
        SetValue(L"Objects[F]", L"NextActions", ObjectArray(actions));
        SetValue(L"Document", L"AlwaysConfirmAttributeChanges", true);
        Open();
        Reopen();
    }

    void Reopen() {
        Inspect(field);
        ASSERT_TRUE(Choose(L"NextActions"));
    }
    HWND List() const { return Field(QZ_EDITOR_ACTIONS); }
    std::wstring Chain(const wchar_t* path = L"Objects[F]") const {
        return NamesIn(Value(path, L"NextActions"));
    }
    /// What the list shows, the entry selected in brackets.
    std::wstring Shown() const {
        std::wstring shown;
        const LRESULT selected = SendMessageW(List(), LB_GETCURSEL, 0, 0);
        for (LRESULT i = 0; i < SendMessageW(List(), LB_GETCOUNT, 0, 0); ++i) {
            wchar_t text[100] = L"";
            SendMessageW(List(), LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
            shown += (i == selected ? L"[" : L"") + std::wstring(text) + (i == selected ? L"] " : L" ");
        }
        return shown;
    }
    void ChooseAction(int entry) const {
        SendMessageW(List(), LB_SETCURSEL, static_cast<WPARAM>(entry), 0);
        SendMessageW(Editor(), WM_COMMAND, MAKEWPARAM(QZ_EDITOR_ACTIONS, LBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(List()));
    }
    /// The buttons that can be pressed, by their numbers.
    std::wstring Enabled() const {
        std::wstring enabled;
        for (int id = QZ_EDITOR_ADD_ACTION; id <= QZ_EDITOR_MOVE_ACTION_DOWN; ++id) {
            if (IsWindowEnabled(Field(id))) enabled += std::to_wstring(id - QZ_EDITOR_ADD_ACTION);
        }
        return enabled;
    }
    void PressControl(WPARAM key) const {
        const HeldKeys held{VK_CONTROL};
        Press(List(), key);
    }
    bool Confirms() const { return static_cast<bool>(Value(L"Document", L"AlwaysConfirmAttributeChanges")); }

    const ComPtr<IDispatch> actions[3] = {Create(52, L"A"), Create(46, L"B"), Create(50, L"C")};
    const ComPtr<IDispatch> field = Create(typeField, L"F"), other = Create(typeField, L"G");
};

TEST_F(ActionsEditor, ChangesTheChainByButtonsAndKeys) {
    EXPECT_EQ(Shown(), L"[A] Second C ");
    EXPECT_EQ(TextOf(Field(QZ_EDITOR_TEXT)), L"A (qzObjectTypeActionJavaScript)");
    EXPECT_EQ(Enabled(), L"0124");
    ChooseAction(1);
    EXPECT_EQ(TextOf(Field(QZ_EDITOR_TEXT)), L"B (qzObjectTypeActionGoTo)");
    Click(Field(QZ_EDITOR_MOVE_ACTION_DOWN));
    EXPECT_EQ(Chain(), L"A C B ");
    EXPECT_EQ(Shown(), L"A C [Second] ");
    EXPECT_EQ(Enabled(), L"0123");
    PressControl(VK_UP);
    PressControl(VK_UP);
    PressControl(VK_UP);
    EXPECT_EQ(Chain(), L"B A C ");
    {
        const MessageBoxAnswer no(IDNO);
        Press(List(), VK_DELETE);
        EXPECT_EQ(no.Text(), L"Are you sure you want to remove the selected action?");
    }
    EXPECT_EQ(Chain(), L"B A C ");
    for (int i = 0; i < 3; ++i) {
        events->TakeEvents();
        const MessageBoxAnswer yes(IDYES);
        Click(Field(QZ_EDITOR_REMOVE_ACTION));
        EXPECT_TRUE(yes.Shown());
        EXPECT_EQ(events->TakeEvents(), (Events{"1", "2"}));
    }
    EXPECT_EQ(Chain(), L"");
    EXPECT_EQ(Enabled(), L"0");
    EXPECT_EQ(TextOf(Field(QZ_EDITOR_TEXT)), L"");
    const MessageBoxAnswer no(IDNO);
    long answer = 0;
    EXPECT_EQ(pane->Closing(&answer), S_OK);
    EXPECT_EQ(Chain(), L"A B C ") << "all taken back";
}

TEST_F(ActionsEditor, AddsWhatTheMenuOffers) {
    const HWND add = Field(QZ_EDITOR_ADD_ACTION);
    const auto chooseNew = [](int entry, const std::function<void()>& open) {
        const MenuAnswer chosen(entry);
        open();
    };
    chooseNew(0, [&] { Click(add); });
    EXPECT_EQ(MenuAnswer::Offered(),
              L"qzObjectTypeActionForm|qzObjectTypeActionGoTo|qzObjectTypeActionHide|"
              L"qzObjectTypeActionJavaScript|");
    RECT button{};
    GetWindowRect(add, &button);
    EXPECT_EQ(MenuAnswer::Corner().x, button.left);
    EXPECT_EQ(MenuAnswer::Corner().y, button.bottom + 2);
    EXPECT_EQ(Chain(), L"A B C ");
    chooseNew(1, [&] { Click(add); });
    chooseNew(2, [&] { Press(List(), VK_INSERT); });
    chooseNew(3, [&] { Press(List(), VK_F4); });
    chooseNew(4, [&] { Click(add); });
    EXPECT_EQ(Chain(), L"A B C myNewFormAction myNewGotoAction myNewHideAction myNewJSAction ");
    EXPECT_EQ(TextOf(Field(QZ_EDITOR_TEXT)), L"myNewJSAction (qzObjectTypeActionJavaScript)");
    Press(List(), VK_ESCAPE);
    EXPECT_EQ(Chain(), L"A B C ");
    host->FailOperation(_bstr_t(L"CreateObject"), E_ACCESSDENIED);
    const MessageBoxAnswer ok(IDOK);
    chooseNew(1, [&] { Click(add); });
    EXPECT_TRUE(ok.Shown());
    EXPECT_EQ(Shown(), L"[A] Second C ");
}

TEST_F(ActionsEditor, EditsAnActionInADialogOfItsOwn) {
    ChooseAction(1);
    events->TakeEvents();
    bool confirmed = true;
    const auto edit = [&](const wchar_t* text) {
        const DuringModal during([&, text] {
            HWND dialog = nullptr;
            while ((dialog = FindWindowExW(nullptr, dialog, WC_DIALOG, nullptr)) &&
                   !GetDlgItem(dialog, QZ_PROPERTIES_PIN)) {
            }
            EXPECT_EQ(TextOf(dialog), L"Properties for: B");
            const HWND control = FindWindowExW(dialog, nullptr, L"qzVandraExt.Window", nullptr);
            const HWND inner = FindWindowExW(control, nullptr, WC_DIALOG, nullptr);
            const HWND list = GetDlgItem(inner, QZ_INSPECTOR_LIST);
            confirmed = Confirms();
            SendMessageW(list, LB_SELECTSTRING, static_cast<WPARAM>(-1),
                         reinterpret_cast<LPARAM>(L"Description"));
            SendMessageW(inner, WM_COMMAND, MAKEWPARAM(QZ_INSPECTOR_LIST, LBN_SELCHANGE),
                         reinterpret_cast<LPARAM>(list));
            const HWND editor = FindWindowExW(inner, nullptr, WC_DIALOG, nullptr);
            Type(GetDlgItem(editor, QZ_EDITOR_TEXT), text);
            SendMessageW(dialog, WM_COMMAND, IDOK, 0);
        });
        Click(Field(QZ_EDITOR_EDIT_ACTION));
    };
    edit(L"Changed");
    EXPECT_FALSE(confirmed);
    EXPECT_EQ(Shown(), L"A [Changed] C ");
    EXPECT_EQ(events->TakeEvents(), (Events{"1", "2"}));
    EXPECT_FALSE(Confirms()) << "the editor is open still";
    Inspect(field);
    EXPECT_EQ(ChosenName(), L"NextActions") << "what the dialog chose is forgotten";
    ChooseAction(1);
    edit(L"Again");
    const MessageBoxAnswer no(IDNO);
    long answer = 0;
    EXPECT_EQ(pane->Closing(&answer), S_OK);
    EXPECT_TRUE(no.Shown());
    EXPECT_EQ(Value(L"Objects[B]", L"Description"), _variant_t(L"Changed")) << "taken back with the rest";
}

TEST_F(ActionsEditor, ConfirmationIsHeldOffAsLongAsAnyIsOpen) {
    EXPECT_FALSE(Confirms());
    ComPtr<IqzPropCtrl> second;
    module.Make(CLSID_qzPropCtrl, second);
    {
        const PaneWindow another(second.Get(), {320, 480});
        ASSERT_EQ(second->put_VandraX(host.Get()), S_OK);
        ASSERT_EQ(second->put_Object(field.Get()), S_OK);
        Choose(L"Name");
        EXPECT_FALSE(Confirms()) << "the other inspector shows the chain, too";
    }
    second->put_VandraX(nullptr);
    EXPECT_TRUE(Confirms());
    Reopen();
    EXPECT_FALSE(Confirms());
    DestroyWindow(Editor());
    EXPECT_TRUE(Confirms());
    Reopen();
    ASSERT_EQ(host->RemoveObject(_bstr_t(L"Objects[F]")), S_OK);
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_TRUE(Confirms());
    SetValue(L"Document", L"AlwaysConfirmAttributeChanges", false);
    Inspect(other);
    ASSERT_TRUE(Choose(L"NextActions"));
    Choose(L"Name");
    EXPECT_FALSE(Confirms());
}

TEST_F(ActionsEditor, SeveralObjectsReadOnlyOnesAndRefusals) {
    SetValue(L"Objects[G]", L"NextActions", ObjectArray(actions));
    Select(L"Objects[G]");
    Select(L"Objects[F]", true);
    Reopen();
    EXPECT_EQ(Shown(), L"[A] Second C ") << "the same chain in both";
    Click(Field(QZ_EDITOR_MOVE_ACTION_DOWN));
    EXPECT_EQ(Chain(), L"B A C ");
    EXPECT_EQ(Chain(L"Objects[G]"), L"B A C ");
    SetValue(L"Objects[G]", L"NextActions", ObjectArray(std::span(actions)));
    Reopen();
    EXPECT_EQ(Shown(), L"") << "as many actions, but in another order";
    EXPECT_EQ(ValueCaption(), L"Value (several)");
    Click(Field(QZ_EDITOR_MOVE_ACTION_DOWN));
    EXPECT_EQ(Chain(), L"B A C ");
    EXPECT_EQ(Chain(L"Objects[G]"), L"A B C ");
    Select(L"Objects[F]");
    Reopen();
    host->FailOperation(_bstr_t(L"Attribute.Value"), E_ACCESSDENIED);
    {
        const MessageBoxAnswer ok(IDOK);
        Click(Field(QZ_EDITOR_MOVE_ACTION_DOWN));
        EXPECT_TRUE(ok.Shown());
    }
    EXPECT_EQ(Shown(), L"A [Second] C ") << "what the user did stays";
    host->ClearFaults();
    EXPECT_EQ(Chain(), L"B A C ");
    Add(L"Objects[F]", L"Fixed", L'N', 2, 8201, ObjectArray(actions));
    Inspect(field);
    ASSERT_TRUE(Choose(L"Fixed"));
    EXPECT_EQ(Shown(), L"[A] Second C ");
    EXPECT_EQ(Enabled(), L"");
    EXPECT_FALSE(IsWindowEnabled(List()));
    EXPECT_EQ(IsWindowEnabled(Field(QZ_EDITOR_ACTION_RESERVED)) ||
                  IsWindowVisible(Field(QZ_EDITOR_ACTION_RESERVED)),
              FALSE);
}

TEST_F(ActionsEditor, AnyTypeOfValueOpens) {
    ASSERT_EQ(host->RemoveObject(_bstr_t(L"Objects[A]")), S_OK);
    _variant_t numbers(L""), mixed, error;
    numbers.Clear();
    numbers.vt = VT_ARRAY | VT_I4;
    numbers.parray = SafeArrayCreateVector(VT_I4, 0, 3);
    mixed.vt = VT_ARRAY | VT_VARIANT;
    mixed.parray = SafeArrayCreateVector(VT_VARIANT, 0, 2);
    _variant_t element(actions[1].Get());
    LONG index = 1;
    ASSERT_EQ(SafeArrayPutElement(mixed.parray, &index, &element), S_OK);
    error.vt = VT_ERROR;
    const struct {
        _variant_t value;
        const wchar_t* shown;
    } cases[] = {{numbers, L""},
                 {mixed, L"[Second] "},
                 {error, L""},
                 {_variant_t(), L""},
                 {_variant_t(7L), L""},
                 {_variant_t(L"text"), L""},
                 {_variant_t(actions[1].Get()), L""},
                 {ObjectArray(actions), L"[<no-name>] Second C "}};
    for (const auto& [value, shown] : cases) {
        Override(L"Objects[F]", L"NextActions", value);
        Reopen();
        EXPECT_EQ(Shown(), shown) << value.vt;
        host->ClearOverrides();
    }
    // An action that is gone can be taken out.
    const MessageBoxAnswer yes(IDYES);
    Click(Field(QZ_EDITOR_REMOVE_ACTION));
    EXPECT_EQ(Chain(), L"B C ");
}

TEST_F(ActionsEditor, TheHostFailsAtAnyOneCall) {
    const auto prepare = [this] {
        pane->put_Object(nullptr);
        SetValue(L"Objects[F]", L"NextActions", ObjectArray(actions));
    };
    const auto step = [this] {
        const MessageBoxAnswer ok(IDOK);
        pane->put_Object(field.Get());
        if (Choose(L"NextActions") && Editor()) {
            ChooseAction(1);
            Click(Field(QZ_EDITOR_MOVE_ACTION_UP));
        }
        Choose(L"Name");
        return S_OK;
    };
    const auto check = [this](long, HRESULT) {
        EXPECT_TRUE(Confirms());
        const std::wstring chain = Chain();
        EXPECT_TRUE(chain == L"A B C " || chain == L"B A C ") << chain;
    };
    EXPECT_GT(FailEachCall(host.Get(), {prepare, step, check}), 60);
}

}  // namespace
}  // namespace qz
