// The inspector and its host: what is selected, what vanishes, what a host without offers.
#include "tests/properties/inspector_fixture.h"
#include "tests/support/during_modal.h"
#include "tests/support/heap_blocks.h"
#include "tests/support/sweep.h"

namespace qz {
namespace {

class InspectorFollows : public InspectorTest {
  protected:
    std::wstring SelectionName() const {
        BSTR name = nullptr;
        EXPECT_EQ(pane->get_SelectionName(&name), S_OK);
        const std::wstring text(name, SysStringLen(name));
        SysFreeString(name);
        return text;
    }
    std::wstring InspectedPath() const {
        ComPtr<IDispatch> object;
        EXPECT_EQ(pane->get_Object(&object), S_OK);
        if (!object) return L"";
        DISPID id = 0;
        wchar_t name[] = L"Path";
        LPOLESTR names = name;
        EXPECT_EQ(object->GetIDsOfNames(IID_NULL, &names, 1, 0, &id), S_OK);
        _variant_t path;
        DISPPARAMS none{};
        EXPECT_EQ(object->Invoke(id, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, &path, nullptr, nullptr),
                  S_OK);
        return std::wstring(_bstr_t(path));
    }
};

TEST_F(InspectorFollows, ShowsWhatIsSelected) {
    Create(typeField, L"F");
    Create(typeCheckBox, L"C");
    Open();
    EXPECT_EQ(SelectionName(), L"<no-object>");
    events->TakeEvents();
    Select(L"Objects[F]");
    EXPECT_EQ(InspectedPath(), L"Objects[F]");
    EXPECT_EQ(SelectionName(), L"F");
    EXPECT_EQ(events->TakeEvents(), Events{"3"});
    Select(L"Objects[C]", true);
    EXPECT_EQ(InspectedPath(), L"Objects[C]");
    EXPECT_EQ(events->TakeEvents(), Events{"3"}) << "from one object to another";
    EXPECT_EQ(SelectionName(), L"<multiple-selection>");
    ASSERT_TRUE(Choose(L"Checked"));
    ASSERT_EQ(host->RemoveObject(_bstr_t(L"Objects[C]")), S_OK);
    EXPECT_EQ(InspectedPath(), L"Objects[F]") << "what is left selected";
    ASSERT_EQ(host->RemoveObject(_bstr_t(L"Objects[F]")), S_OK);
    EXPECT_EQ(SelectionName(), L"<no-object>");
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_FALSE(IsWindowVisible(Inner()));
}

TEST_F(InspectorFollows, TheSameObjectAgainIsNoNewsButStartsAnew) {
    const auto field = Create(typeField, L"F"), other = Create(typeField, L"G");
    SetValue(L"Document", L"AlwaysConfirmAttributeChanges", 1L);
    Open();
    Inspect(other);
    Inspect(field);
    EXPECT_EQ(events->TakeEvents(), (Events{"3", "3"}));
    for (const bool wrapped : {false, true}) {
        ComPtr<IDispatch> again = field;
        if (wrapped) {
            ASSERT_EQ(host->GetObjectByPath(_bstr_t(L"Objects[F]"), &again), S_OK);
        }
        ASSERT_TRUE(Choose(L"Locked"));
        Click(Field(QZ_EDITOR_CHECK));
        Add(L"Objects[F]", wrapped ? L"Second" : L"First", L'*', 0, 8, _variant_t(L"x"));
        const size_t before = Names().size();
        Inspect(again);
        EXPECT_EQ(Names().size(), before + 1);
        EXPECT_EQ(events->TakeEvents(), Events{});
        long answer = 99;
        EXPECT_EQ(pane->Closing(&answer), S_OK);
        EXPECT_EQ(answer, 99) << "no change is left to ask about";
    }
    // Another object at the path of one that is gone.
    ASSERT_EQ(host->RemoveObject(_bstr_t(L"Objects[G]")), S_OK);
    Inspect(field);
    host->SetAutoRefresh(0);
    ASSERT_EQ(host->RemoveObject(_bstr_t(L"Objects[F]")), S_OK);
    events->TakeEvents();
    Inspect(Create(typeField, L"F"));
    EXPECT_EQ(events->TakeEvents(), Events{"3"});
    host->SetAutoRefresh(1);
}

TEST_F(InspectorFollows, AnotherObjectOrHostIsSetInsideAnyOneCall) {
    const auto field = Create(typeField, L"F"), other = Create(typeField, L"G"),
               third = Create(typeField, L"H");
    const auto otherHost = MakeHost(1);
    Create(typeCheckBox, L"C");
    Open();
    Select(L"Objects[C]");
    const std::function<void()> steps[] = {[&] { host->RaiseChange(2); }, [&] { host->RaiseChange(0x400); },
                                           [&] { pane->put_Object(third.Get()); },
                                           [&] { Choose(L"Visible"); },
                                           [&] {
                                               long answer = 0;
                                               pane->Closing(&answer);
                                           }};
    for (const bool exchangesHost : {false, true}) {
        for (const std::function<void()>& step : steps) {
            EXPECT_GT(InterruptEachCall(
                          host.Get(),
                          [&] {
                              if (exchangesHost) ThrowIfFailed(pane->put_VandraX(host.Get()));
                              Inspect(field);
                              ASSERT_TRUE(Choose(L"Locked"));
                              Click(Field(QZ_EDITOR_CHECK));
                              events->TakeEvents();
                          },
                          step,
                          [&] {
                              EXPECT_EQ(exchangesHost ? pane->put_VandraX(otherHost.Get())
                                                      : pane->put_Object(other.Get()),
                                        S_OK);
                          },
                          [&] {
                              ComPtr<IDispatch> attached;
                              ASSERT_EQ(pane->get_VandraX(&attached), S_OK);
                              EXPECT_TRUE(SameObject(attached, exchangesHost ? otherHost : host));
                              EXPECT_EQ(InspectedPath(), exchangesHost ? L"" : L"Objects[G]");
                              EXPECT_EQ(events->TakeEvents(), Events{"3"});
                          }),
                      0);
        }
    }
}

TEST_F(InspectorFollows, EventsLeaveNothingBehind) {
    Create(typeField, L"F");
    Open();
    Select(L"Objects[F]");
    const auto raise = [&](int times) {
        for (int i = 0; i < times; ++i) host->RaiseChange(0);
        PumpMessages();
        return HeapBlocksInUse();
    };
    // Not the editor of fonts: it has labels, and Wine forgets a few bytes of each.
    for (const wchar_t* name : {L"Left", L"BorderStyle", L"Visible", L"TabStops"}) {
        ASSERT_TRUE(Choose(name));
        constexpr int times = 10;
        const std::size_t before = raise(3);
        EXPECT_LT(raise(times), before + times) << name;
    }
}

TEST_F(InspectorFollows, ObjectsThatAreNotSelectedStayUntilTheyVanish) {
    const auto field = Create(typeField, L"F");
    Create(typeField, L"Other");
    Open();
    Inspect(field);
    ASSERT_TRUE(Choose(L"Locked"));
    SetValue(L"Objects[F]", L"Locked", _variant_t(true));
    EXPECT_EQ(SendMessageW(Field(QZ_EDITOR_CHECK), BM_GETCHECK, 0, 0), BST_CHECKED) << "written by others";
    ASSERT_EQ(host->RemoveObject(_bstr_t(L"Objects[Other]")), S_OK);
    EXPECT_EQ(InspectedPath(), L"Objects[F]");
    ASSERT_EQ(host->RemoveObject(_bstr_t(L"Objects[F]")), S_OK);
    EXPECT_EQ(InspectedPath(), L"");
}

TEST_F(InspectorFollows, SeveralObjectsAreWrittenTogether) {
    Create(typeField, L"F");
    Create(typeField, L"G");
    const auto apart = Create(typeField, L"Apart");
    SetValue(L"Document", L"AlwaysConfirmAttributeChanges", 1L);
    SetValue(L"Objects[G]", L"Locked", _variant_t(true));
    Open();
    Select(L"Objects[F]");
    Select(L"Objects[G]", true);
    ASSERT_TRUE(Choose(L"Visible"));
    EXPECT_EQ(ValueCaption(), L"Value");
    ASSERT_TRUE(Choose(L"Locked"));
    EXPECT_EQ(ValueCaption(), L"Value (several)");
    EXPECT_EQ(SendMessageW(Field(QZ_EDITOR_CHECK), BM_GETCHECK, 0, 0), BST_INDETERMINATE);
    Click(Field(QZ_EDITOR_CHECK));
    EXPECT_EQ(ValueCaption(), L"Value") << "of all from now on";
    Click(Field(QZ_EDITOR_CHECK));
    EXPECT_TRUE(static_cast<bool>(Value(L"Objects[F]", L"Locked")));
    EXPECT_TRUE(static_cast<bool>(Value(L"Objects[G]", L"Locked")));
    {
        const MessageBoxAnswer no(IDNO);
        long answer = 0;
        EXPECT_EQ(pane->Closing(&answer), S_OK);
        EXPECT_EQ(answer, IDNO);
        EXPECT_EQ(no.Text(), L"Attribute changes were made. Do you want to keep the changes?");
        EXPECT_EQ(no.Caption(), L"Attribute Changes Confirmation...");
    }
    EXPECT_FALSE(static_cast<bool>(Value(L"Objects[F]", L"Locked")));
    EXPECT_TRUE(static_cast<bool>(Value(L"Objects[G]", L"Locked")));
    // Inspected without being selected: written alone.
    Inspect(apart);
    ASSERT_TRUE(Choose(L"Locked"));
    Click(Field(QZ_EDITOR_CHECK));
    EXPECT_TRUE(static_cast<bool>(Value(L"Objects[Apart]", L"Locked")));
    EXPECT_FALSE(static_cast<bool>(Value(L"Objects[F]", L"Locked")));
}

TEST_F(InspectorFollows, WriteBackCallsTheHostInOrder) {
    Create(typeField, L"F");
    Open();
    Select(L"Objects[F]");
    ASSERT_TRUE(Choose(L"Locked"));
    host->put_LogEnabled(1);
    host->ClearLog();
    Click(Field(QZ_EDITOR_CHECK));
    host->put_LogEnabled(0);
    Texts writes;
    for (const std::wstring& line : LogLines(host.Get())) {
        const std::wstring name = line.substr(0, line.find(L' '));
        if (name != L"GetChangeFlags" && name != L"Attribute.Reading" && name != L"Object.Path")
            writes.push_back(line);
    }
    EXPECT_EQ(writes,
              (Texts{L"Attribute.Value", L"GetSelectionCount", L"Object.Redraw", L"Object.Redraw 1",
                     L"Attribute.Value True", L"Object.Redraw 0", L"UpdateView 1024, 1", L"Object.Refresh"}));
}

TEST_F(InspectorFollows, ChangesStayUnlessTheDocumentWantsTheQuestion) {
    Create(typeField, L"F");
    Open();
    Select(L"Objects[F]");
    ASSERT_TRUE(Choose(L"Locked"));
    Click(Field(QZ_EDITOR_CHECK));
    long answer = 99;
    EXPECT_EQ(pane->Closing(&answer), S_OK);
    EXPECT_EQ(answer, 99);
    EXPECT_EQ(pane->Closing(nullptr), E_POINTER);
    SetValue(L"Document", L"AlwaysConfirmAttributeChanges", 1L);
    {
        const MessageBoxAnswer cancel(IDCANCEL);
        EXPECT_EQ(pane->Closing(&answer), S_OK);
        EXPECT_EQ(answer, IDCANCEL);
        EXPECT_NE(Editor(), nullptr) << "the editor is back";
        EXPECT_EQ(InspectedPath(), L"Objects[F]");
    }
    {
        const MessageBoxAnswer yes(IDYES);
        EXPECT_EQ(pane->Closing(&answer), S_OK);
        EXPECT_EQ(answer, IDYES);
    }
    EXPECT_TRUE(static_cast<bool>(Value(L"Objects[F]", L"Locked")));
    EXPECT_EQ(InspectedPath(), L"");
    ComPtr<IDispatch> hostOfPane;
    EXPECT_EQ(pane->get_VandraX(&hostOfPane), S_OK);
    EXPECT_EQ(hostOfPane.Get(), nullptr);
    EXPECT_EQ(events->TakeEvents(), (Events{"3", "1", "2", "1", "2", "3"}));
}

TEST_F(InspectorFollows, TheQuestionIsAboutTheObjectItWasAskedFor) {
    Create(typeField, L"F");
    Create(typeField, L"G");
    SetValue(L"Document", L"AlwaysConfirmAttributeChanges", 1L);
    Open();
    Select(L"Objects[F]");
    ASSERT_TRUE(Choose(L"Locked"));
    Click(Field(QZ_EDITOR_CHECK));
    const DuringModal during([&] {
        Select(L"Objects[G]");
        PostMessageW(FindWindowW(L"#32770", L"Attribute Changes Confirmation..."), WM_COMMAND, IDNO, 0);
    });
    long answer = 0;
    EXPECT_EQ(pane->Closing(&answer), S_OK);
    EXPECT_EQ(answer, IDNO);
    EXPECT_FALSE(static_cast<bool>(Value(L"Objects[F]", L"Locked")));
    EXPECT_EQ(InspectedPath(), L"Objects[G]");
}

TEST_F(InspectorFollows, ObjectsMayComeBeforeTheHostAndTheWindow) {
    const auto field = Create(typeField, L"F");
    Inspect(field);
    ASSERT_EQ(pane->put_VandraX(host.Get()), S_OK);
    EXPECT_EQ(SelectionName(), L"<no-object>") << "a host starts without";
    Inspect(field);
    host->FailOperation(_bstr_t(L"Object.Attributes"), E_FAIL);
    window.emplace(pane.Get(), SIZE{320, 480});
    EXPECT_EQ(Names(), Texts());
    host->ClearFaults();
    Inspect(field);
    EXPECT_NE(Names(), Texts());
}

TEST_F(InspectorFollows, HostFailsAtAnyOneCall) {
    Create(typeField, L"F");
    SetValue(L"Document", L"AlwaysConfirmAttributeChanges", 1L);
    Open();
    const auto prepare = [this] {
        pane->put_Object(nullptr);
        host->SelectObjects(0);
    };
    const auto step = [this] {
        const MessageBoxAnswer no(IDNO);
        host->SelectObject(_bstr_t(L"Objects[F]"), 0);
        if (Choose(L"Locked") && Editor()) Click(Field(QZ_EDITOR_CHECK));
        long answer = 0;
        pane->Closing(&answer);
        return S_OK;
    };
    EXPECT_GT(FailEachCall(host.Get(), {prepare, step}), 20);
}

TEST_F(InspectorFollows, WhatIsNoHostOrObjectIsRefused) {
    Open();
    EXPECT_EQ(pane->put_Object(nullptr), S_OK);
    const auto attribute = ComPtr<IDispatch>(events.Get());
    EXPECT_NE(pane->put_Object(attribute.Get()), S_OK);
    EXPECT_NE(TakeErrorText(), L"");
    EXPECT_EQ(InspectedPath(), L"");
    EXPECT_EQ(pane->put_VandraX(attribute.Get()), E_NOINTERFACE);
    EXPECT_EQ(pane->get_VandraX(nullptr), E_POINTER);
    EXPECT_EQ(pane->get_Object(nullptr), E_POINTER);
    EXPECT_EQ(pane->get_SelectionName(nullptr), E_POINTER);
    EXPECT_EQ(SelectionName(), L"<no-object>");
}

}  // namespace
}  // namespace qz
