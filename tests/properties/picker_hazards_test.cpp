// What hosts and selections do to the editors of colors, fonts and formats.
#include "tests/properties/inspector_fixture.h"
#include "tests/support/sweep.h"

#include <functional>

#include <functional>
#include <map>
#include <vector>

namespace qz {
namespace {

/// One of the editors, and something typed into it.
struct Picker {
    const wchar_t* attribute;
    long type;
    int field;
    _variant_t before;
    const wchar_t *shown, *typed;
    _variant_t after;
};

void PrintTo(const Picker& picker, std::ostream* out) { *out << "type " << picker.type; }

class PickerHazards : public InspectorTest, public ::testing::WithParamInterface<Picker> {
  protected:
    PickerHazards() {
        SetValue(L"Objects[F]", picker.attribute, picker.before);
        SetValue(L"Objects[G]", picker.attribute, picker.before);
        Open();
    }

    void Reopen() {
        Inspect(field);
        ASSERT_TRUE(Choose(picker.attribute));
        ASSERT_NE(Editor(), nullptr);
    }
    HWND Text() const { return Field(picker.field); }
    void Enter() const {
        Type(Text(), picker.typed);
        LetWritingHappen();
    }
    _variant_t Now(const wchar_t* path = L"Objects[F]") const { return Value(path, picker.attribute); }

    const Picker picker = GetParam();
    ComPtr<IDispatch> field = Create(typeField, L"F"), other = Create(typeField, L"G");
};

TEST_P(PickerHazards, SeveralObjectsAreWrittenTogetherAndTakenBack) {
    SetValue(L"Document", L"AlwaysConfirmAttributeChanges", true);
    Select(L"Objects[F]");
    Select(L"Objects[G]", true);
    Reopen();
    EXPECT_EQ(TextOf(Text()), picker.shown);
    SetValue(L"Objects[G]", picker.attribute, picker.after);
    Reopen();
    EXPECT_EQ(TextOf(Text()), L"");
    LetWritingHappen();
    EXPECT_EQ(Now(), picker.before) << "nothing was entered";
    Enter();
    EXPECT_EQ(Now(), picker.after);
    EXPECT_EQ(Now(L"Objects[G]"), picker.after);
    SetValue(L"Objects[G]", picker.attribute, picker.before);
    const MessageBoxAnswer no(IDNO);
    long answer = 0;
    EXPECT_EQ(pane->Closing(&answer), S_OK);
    EXPECT_EQ(Now(), picker.before);
    EXPECT_EQ(Now(L"Objects[G]"), picker.after) << "what it had when the entry was written";
}

TEST_P(PickerHazards, AFailedWriteKeepsTheText) {
    Reopen();
    host->FailOperation(_bstr_t(L"Attribute.Value"), E_ACCESSDENIED);
    Type(Text(), picker.typed);
    {
        const MessageBoxAnswer ok(IDOK);
        LetWritingHappen();
        EXPECT_TRUE(ok.Shown());
    }
    host->ClearFaults();
    EXPECT_EQ(TextOf(Text()), picker.typed);
    EXPECT_EQ(Now(), picker.before);
    Type(Text(), picker.typed);
    Press(Text(), VK_RETURN);
    EXPECT_EQ(Now(), picker.after);
    Press(Text(), VK_ESCAPE);
    EXPECT_EQ(Now(), picker.before);
    EXPECT_EQ(TextOf(Text()), picker.shown);
}

TEST_P(PickerHazards, ReadOnlyIsOnlyRead) {
    Add(L"Objects[F]", L"Fixed", L'*', 2, picker.type, picker.before);
    Inspect(field);
    ASSERT_TRUE(Choose(L"Fixed"));
    ASSERT_NE(Editor(), nullptr);
    EXPECT_EQ(TextOf(Text()), picker.shown);
    Type(Text(), picker.typed);
    Press(Text(), VK_F4);
    LetWritingHappen();
    EXPECT_EQ(TextOf(Text()), picker.shown);
    for (HWND child = GetWindow(Editor(), GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        const bool entered = (GetWindowLongW(child, GWL_STYLE) & (WS_TABSTOP | ES_READONLY)) == WS_TABSTOP;
        EXPECT_FALSE(entered && IsWindowEnabled(child)) << GetDlgCtrlID(child);
    }
    if (picker.type == 513) SendMessageW(Field(QZ_EDITOR_COLOR_BOXES), WM_LBUTTONDOWN, MK_LBUTTON, 0);
    EXPECT_EQ(Value(L"Objects[F]", L"Fixed"), picker.before);
}

TEST_P(PickerHazards, AnyTypeOfValueOpens) {
    _variant_t array;
    array.vt = VT_ARRAY | VT_I4;
    array.parray = SafeArrayCreateVector(VT_I4, 0, 3);
    _variant_t unsignedNumber(0x80FFFFFFul), error, null;
    error.vt = VT_ERROR;
    error.scode = E_FAIL;
    null.vt = VT_NULL;
    const _variant_t values[] = {array,
                                 unsignedNumber,
                                 error,
                                 null,
                                 _variant_t(),
                                 _variant_t(1e300),
                                 _variant_t(4294967295.0),
                                 _variant_t(true),
                                 _variant_t(L"; ;;x;\x3042;"),
                                 _variant_t(std::wstring(5000, L'f').c_str()),
                                 _variant_t(other.Get()),
                                 _variant_t(static_cast<IDispatch*>(nullptr), false)};
    for (const _variant_t& value : values) {
        Override(L"Objects[F]", picker.attribute, value);
        Reopen();
        host->ClearOverrides();
        Enter();
        EXPECT_EQ(Now().vt, picker.after.vt) << value.vt;
        SetValue(L"Objects[F]", picker.attribute, picker.before);
    }
}

TEST_P(PickerHazards, TheEditorEndsWhileAFailureIsTold) {
    host->FailOperation(_bstr_t(L"Attribute.Value"), E_FAIL);
    events->actions[1] = [this] { EXPECT_EQ(pane->put_Object(nullptr), S_OK); };
    const auto enterByKeys = [this] {
        Type(Text(), picker.typed);
        Press(Text(), VK_RETURN);
    };
    const auto click = [this](int id) {
        SendMessageW(Field(id), WM_LBUTTONDOWN, MK_LBUTTON, 0);
        if (Field(id)) SendMessageW(Field(id), WM_LBUTTONUP, 0, 0);
    };
    const std::map<long, int> buttons = {
        {513, QZ_EDITOR_COLOR_BOXES}, {514, QZ_EDITOR_BOLD}, {15, QZ_EDITOR_FORMATS}};
    std::vector<std::function<void()>> ways{enterByKeys};
    if (buttons.contains(picker.type)) ways.emplace_back([&] { click(buttons.at(picker.type)); });
    for (const std::function<void()>& enter : ways) {
        host->ClearFaults();
        Reopen();
        host->FailOperation(_bstr_t(L"Attribute.Value"), E_FAIL);
        const MessageBoxAnswer ok(IDOK);
        enter();
        EXPECT_TRUE(ok.Shown());
        EXPECT_EQ(Editor(), nullptr);
    }
    host->ClearFaults();
    EXPECT_EQ(Now(), picker.before);
}

TEST_P(PickerHazards, TheHostFailsAtAnyOneCall) {
    Select(L"Objects[F]");
    Select(L"Objects[G]", true);
    const auto prepare = [this] {
        Inspect(field);  // who does not answer has vanished for the inspector
        Choose(L"Name");
    };
    const auto step = [this] {
        const MessageBoxAnswer ok(IDOK);
        if (Choose(picker.attribute) && Editor()) Enter();
        if (Editor()) Type(Text(), picker.typed);
        Choose(L"Name");
        return S_OK;
    };
    const auto check = [this](long, HRESULT) {
        EXPECT_TRUE(Now() == picker.before || Now() == picker.after);
        SetValue(L"Objects[F]", picker.attribute, picker.before);
    };
    EXPECT_GT(FailEachCall(host.Get(), {prepare, step, check}), 10);
}

INSTANTIATE_TEST_SUITE_P(Editors, PickerHazards,
                         ::testing::Values(Picker{L"FillColor", 513, QZ_EDITOR_TEXT, 255L, L"FFFF0000",
                                                  L"0000FF", static_cast<long>(0xFFFF0000)},
                                           Picker{L"Font", 514, QZ_EDITOR_SIZE, L"Courier; 14; 400; 0; 0; 0",
                                                  L"14.0", L"20", L"Courier; 20; 400; 0; 0; 0"},
                                           Picker{L"Format", 15, QZ_EDITOR_TEXT, L"#", L"#", L"0.0", L"0.0"},
                                           Picker{L"Left", 3, QZ_EDITOR_TEXT, 1440L, L"1440", L"3", 3L},
                                           Picker{L"BorderStyle", 512, QZ_EDITOR_TEXT, 1L, L"1", L"3", 3L},
                                           Picker{L"DatabaseField", 8711, QZ_EDITOR_TEXT, L"a", L"a", L"b",
                                                  L"b"}));

}  // namespace
}  // namespace qz
