// The editor of a form action's fields: what it lists, and what a check mark does.
#include "tests/properties/inspector_fixture.h"
#include "tests/properties/object_chain.h"
#include "tests/support/sweep.h"

namespace qz {
namespace {

class ObjectListEditor : public InspectorTest {
  protected:
    ObjectListEditor() {
        host->SetCurrentPage(3);
        Create(24, L"Late");
        host->SetCurrentPage(1);
        SetValue(L"Objects[Act]", L"Fields", ObjectArray(std::span(fields).first(1)));
        SetValue(L"Document", L"AlwaysConfirmAttributeChanges", true);
        Open();
        Reopen();
    }

    void Reopen() {
        Inspect(action);
        ASSERT_TRUE(Choose(L"Fields"));
    }
    HWND List() const { return Field(QZ_EDITOR_OBJECTS); }
    std::wstring Fields() const { return NamesIn(Value(L"Objects[Act]", L"Fields")); }
    int Count() const { return static_cast<int>(SendMessageW(List(), LVM_GETITEMCOUNT, 0, 0)); }
    std::wstring TextAt(int row) const {
        wchar_t text[100] = L"";
        LVITEMW item{};
        item.pszText = text;
        item.cchTextMax = 100;
        SendMessageW(List(), LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
        return text;
    }
    /// The rows, checked ones with "+".
    std::wstring Shown() const {
        std::wstring shown;
        for (int row = 0; row < Count(); ++row) {
            const bool checked = ListView_GetCheckState(List(), row) != 0;
            shown += (checked ? L"+" : L"") + TextAt(row) + L" ";
        }
        return shown;
    }
    /// By the keyboard.
    void Toggle(int row) const {
        ListView_SetItemState(List(), row, LVIS_FOCUSED | LVIS_SELECTED, LVIS_FOCUSED | LVIS_SELECTED);
        SendMessageW(List(), WM_KEYDOWN, VK_SPACE, 1);
        SendMessageW(List(), WM_CHAR, L' ', 1);
        SendMessageW(List(), WM_KEYUP, VK_SPACE, 1);
    }
    bool Confirms() const { return static_cast<bool>(Value(L"Document", L"AlwaysConfirmAttributeChanges")); }

    const ComPtr<IDispatch> fields[2] = {Create(typeField, L"One"), Create(typeCheckBox, L"Two")};
    const ComPtr<IDispatch> frame = Create(2, L"Frame"), action = Create(typeFormAction, L"Act");
};

TEST_F(ObjectListEditor, ChecksAreWrittenAndTakenBack) {
    EXPECT_EQ(Shown(), L"+One Two Late ");
    EXPECT_FALSE(Confirms());
    Toggle(2);
    PumpMessages();
    Sleep(20);
    PumpMessages();
    EXPECT_EQ(Fields(), L"One Late ") << "as soon as the list is done with the key";
    Click(Field(QZ_EDITOR_FORM_FIELDS_ONLY));
    EXPECT_EQ(Shown(), L"+One Two +Late Frame ");
    Toggle(0);
    Toggle(3);
    Choose(L"Name");
    EXPECT_EQ(Fields(), L"Late Frame ") << "what was waiting";
    EXPECT_TRUE(Confirms());
    Reopen();
    EXPECT_EQ(Shown(), L"One Two +Late +Frame ") << "listed though no field: it is in the value";
    Toggle(0);
    LetWritingHappen();
    EXPECT_EQ(Fields(), L"Late Frame One ");
    Press(List(), VK_ESCAPE);
    EXPECT_EQ(Fields(), L"Late Frame ");
    EXPECT_EQ(Shown(), L"One Two +Late +Frame ");
    const MessageBoxAnswer no(IDNO);
    long answer = 0;
    EXPECT_EQ(pane->Closing(&answer), S_OK);
    EXPECT_TRUE(no.Shown());
    EXPECT_EQ(Fields(), L"Late Frame ") << "changes before the object was set again stay";
}

TEST_F(ObjectListEditor, ListsWhatTheHostGives) {
    ComPtr<IDispatch> page;
    ASSERT_EQ(host->GetObjectByPath(_bstr_t(L"Pages[1]"), &page), S_OK);
    Override(L"Document", L"FormFields", ObjectArray(std::span(fields).last(1)));
    Override(L"Pages[1]", L"Objects", _variant_t(7L));
    Reopen();
    EXPECT_EQ(Shown(), L"Two Late +One ") << "the host's list, the other pages, the value";
    host->ClearOverrides();
    Override(L"Objects[Two]", L"ObjectType", _variant_t(L"none"));
    Override(L"Document", L"FormFields", _variant_t());
    Reopen();
    EXPECT_EQ(Shown(), L"+One Late ");
    host->ClearOverrides();
    SetValue(L"Objects[Act]", L"Fields", ObjectArray(fields));
    ASSERT_EQ(host->RemoveObject(_bstr_t(L"Objects[One]")), S_OK);
    Override(L"Objects[Act]", L"Fields", ObjectArray(fields));
    Reopen();
    EXPECT_EQ(Shown(), L"+Two Late +<no-name> ");
    Toggle(2);
    LetWritingHappen();
    host->ClearOverrides();
    EXPECT_EQ(Fields(), L"Two ") << "what is gone can be taken out";
    for (const _variant_t& value :
         {_variant_t(), _variant_t(3L), _variant_t(L"x"), _variant_t(frame.Get())}) {
        Override(L"Objects[Act]", L"Fields", value);
        Reopen();
        EXPECT_EQ(Shown(), L"Two Late ") << value.vt;
    }
}

TEST_F(ObjectListEditor, ListsThatDifferInTheirObjectsAlone) {
    Create(typeFormAction, L"Act2");
    for (const size_t listed : {0, 1}) {
        SetValue(L"Objects[Act2]", L"Fields", ObjectArray(std::span(fields).subspan(listed, 1)));
        Select(L"Objects[Act2]");
        Select(L"Objects[Act]", true);
        Reopen();
        EXPECT_EQ(Shown(), listed == 0 ? L"+One Two Late " : L"One Two Late ");
        EXPECT_EQ(ValueCaption(), listed == 0 ? L"Value" : L"Value (several)");
    }
}

TEST_F(ObjectListEditor, RefusalsAndReadOnlyLists) {
    host->FailOperation(_bstr_t(L"Attribute.Value"), E_ACCESSDENIED);
    Toggle(1);
    {
        const MessageBoxAnswer ok(IDOK);
        LetWritingHappen();
        EXPECT_TRUE(ok.Shown());
    }
    host->ClearFaults();
    EXPECT_EQ(Shown(), L"+One +Two Late ");
    EXPECT_EQ(Fields(), L"One ");
    Toggle(2);
    LetWritingHappen();
    EXPECT_EQ(Fields(), L"One Two Late ");
    // Written by others.
    SetValue(L"Objects[Act]", L"Fields", ObjectArray(std::span(fields).last(1)));
    EXPECT_EQ(Shown(), L"One +Two Late ");
    // The names are compared without regard to case.
    Override(L"Objects[Frame]", L"ObjectType", _variant_t(typeFormAction));
    Add(L"Objects[Frame]", L"fields", L'*', 2, 8201, ObjectArray(fields));
    Inspect(frame);
    ASSERT_TRUE(Choose(L"fields"));
    EXPECT_EQ(Shown(), L"+One +Two Late ");
    EXPECT_FALSE(IsWindowEnabled(List()) || IsWindowEnabled(Field(QZ_EDITOR_FORM_FIELDS_ONLY)));
}

TEST_F(ObjectListEditor, TheHostFailsAtAnyOneCall) {
    const auto prepare = [this] {
        pane->put_Object(nullptr);
        SetValue(L"Objects[Act]", L"Fields", ObjectArray(std::span(fields).first(1)));
    };
    const auto step = [this] {
        const MessageBoxAnswer ok(IDOK);
        pane->put_Object(action.Get());
        if (Choose(L"Fields") && Editor()) {
            if (Count() > 1) Toggle(1);
            LetWritingHappen();
            Click(Field(QZ_EDITOR_FORM_FIELDS_ONLY));
        }
        Choose(L"Name");
        return S_OK;
    };
    const auto check = [this](long, HRESULT) {
        EXPECT_TRUE(Confirms());
        EXPECT_TRUE(Fields().starts_with(L"One ")) << Fields();
    };
    EXPECT_GT(FailEachCall(host.Get(), {prepare, step, check}), 60);
}

}  // namespace
}  // namespace qz
