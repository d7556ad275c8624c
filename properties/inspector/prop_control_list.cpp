// The inspector's tabs, its list of attributes, and the editor of the one chosen.
#include "properties/inspector/prop_control.h"

#include "host/attributes.h"
#include "properties/model/category_tabs.h"
#include "properties/model/editor_choice.h"
#include "properties/editors/make_editor.h"
#include "properties/model/inspector_memory.h"
#include "ui/platform_geometry.h"
#include "ui/properties_door.h"

namespace qz {

namespace {

/// One for all inspectors of the process.
InspectorMemory& Memory() {
    static InspectorMemory memory;
    return memory;
}

bool EqualIgnoringCase(std::wstring_view one, std::wstring_view other) {
    return CompareStringOrdinal(one.data(), static_cast<int>(one.size()), other.data(),
                                static_cast<int>(other.size()), TRUE) == CSTR_EQUAL;
}

/// What the list needs of an attribute; the rest is read when it is chosen.
AttributeRow ReadListRow(HostAttributes& attributes, IDispatch* attribute) {
    AttributeRow row;
    row.category = static_cast<std::uint32_t>(attributes.Category(attribute));
    if (row.category == 0) return row;
    row.flags = static_cast<std::uint32_t>(attributes.Flags(attribute));
    if (!IsListed(row)) return row;
    row.name = attributes.Name(attribute);
    row.index = static_cast<std::int32_t>(attributes.Index(attribute));
    return row;
}

AttributeRow ReadRow(HostAttributes& attributes, IDispatch* attribute) {
    AttributeRow row = ReadListRow(attributes, attribute);
    row.type = static_cast<std::uint32_t>(attributes.Type(attribute));
    row.description = attributes.Description(attribute);
    return row;
}

/// The type of an object that may have none.
std::optional<std::int32_t> ObjectTypeOf(HostObjects& objects, IDispatch* object) {
    std::optional<std::int32_t> type;
    Guard(IID_NULL, [&] { type = ToLong(objects.Attribute(object, L"ObjectType")); });
    return type;
}

/// The object's type decides on the attributes only that nothing else decides on.
EditorChoice ChooseEditorOf(const EditedAttribute& edited) {
    const AttributeRow& row = edited.row;
    const auto choose = [&](std::optional<std::int32_t> type) {
        return ChooseEditor(row.type, row.category, row.name, type, EqualIgnoringCase);
    };
    const EditorChoice choice = choose(std::nullopt);
    if (choice.kind != EditorKind::None) return choice;
    return choose(ObjectTypeOf(edited.members->objects, edited.object.Get()));
}

}  // namespace

// Tabs and list
// ------------------------------------------------------------------------------------------------------

/// Shows the object's tabs and attributes, and opens the editor of the attribute chosen last.
void PropControl::ShowObject() {
    if (!DialogWindow()) return;
    const Stage::Mark shown = Contents().Now();
    ShowDialog(ShowsObject());
    if (shown.Stale() || !DialogWindow()) return;  // the container was told of the focus
    Invalidate();
    ListRefill refill(dialog_);
    dialog_->SetDescription({});
    if (!ShowsObject()) return dialog_->RemoveTabs();
    std::vector<AttributeRow> rows;
    const HRESULT read = Guard(IID_NULL, [&] { rows = ReadRows(); });
    if (shown.Stale() || !DialogWindow() || !object_) return;
    if (FAILED(read)) {
        dialog_->RemoveTabs();
        Rethrow(read, TakeErrorText(read));
    }
    const std::vector<wchar_t> tabs = TabsOf(rows);
    dialog_->SetTabs(tabs, TabToSelect(tabs, Memory().Category()));
    FillList(rows, std::move(refill));
}

/// The attributes that can be listed. A host that fails on the way ends the list there; one that gives no
/// attributes at all is E_FAIL.
std::vector<AttributeRow> PropControl::ReadRows() {
    std::vector<AttributeRow> rows;
    const ComPtr<IDispatch> object = object_;
    const std::shared_ptr<HostMembers> members = members_;
    if (!object || !members) return rows;
    ComPtr<IDispatch> attributes;
    if (FAILED(Guard(IID_NULL, [&] { attributes = members->objects.Attributes(object.Get()); }))) {
        Throw(E_FAIL, L"The object does not give its attributes");
    }
    Guard(IID_NULL, [&] {
        ForEachItem(attributes.Get(), [&](const VARIANT& item) {
            AttributeRow row = ReadListRow(members->attributes, RequireAttribute(item).Get());
            if (IsListed(row)) rows.push_back(std::move(row));
            return true;
        });
    });
    return rows;
}

void PropControl::FillList(const std::vector<AttributeRow>& rows, ListRefill refill) {
    const wchar_t tab = dialog_->CurrentTab();
    Memory().SetCategory(static_cast<std::uint32_t>(tab));
    dialog_->ClearList();  // reading the rows may have let another filling in
    std::vector<std::wstring> names;
    for (const AttributeRow& row : rows) {
        if (!IsIn(row, tab)) continue;
        dialog_->AppendRow(row.name, row.index);
        names.push_back(row.name);
    }
    refill.End();
    ChooseRemembered(names);
}

void PropControl::ChooseRemembered(const std::vector<std::wstring>& names) {
    const auto entry = FindName(names, Memory().Name(), EqualIgnoringCase);
    if (entry)
        dialog_->Choose(*entry);
    else
        Memory().ForgetName();
}

void PropControl::OnTabChosen() {
    const Stage::Mark shown = Contents().Now();
    CloseEditor();
    if (shown.Stale() || !DialogWindow()) return;
    ListRefill refill(dialog_);
    dialog_->SetDescription({});
    const std::vector<AttributeRow> rows = ReadRows();
    if (!shown.Stale() && DialogWindow()) FillList(rows, std::move(refill));
}

void PropControl::OnAttributeChosen() {
    CloseEditor();
    if (!DialogWindow()) return;
    const std::optional<std::wstring> name = dialog_->ChosenName();
    Memory().SetName(name.value_or(std::wstring()));
    dialog_->SetDescription({});
    const std::optional<long> index = dialog_->ChosenIndex();
    if (index) OpenEditor(*index);
}

// The editor
// ------------------------------------------------------------------------------------------------------

void PropControl::OpenEditor(long index) {
    const Stage::Mark before = editors_.Now();
    EditedAttribute edited{Host(), members_, object_, nullptr, {}, changes_};
    if (!edited.host || !edited.members || !edited.object) return;
    HostObjects& objects = edited.members->objects;
    edited.attribute = RequireAttribute(ItemOf(objects.Attributes(edited.object.Get()).Get(), index));
    edited.row = ReadRow(edited.members->attributes, edited.attribute.Get());
    if (before.Stale() || !DialogWindow()) return;
    dialog_->SetDescription(edited.row.description);
    const EditorChoice choice = ChooseEditorOf(edited);
    const ValueDlgPointer editor = MakeEditor(choice, dialogLanguage_);
    if (!editor || before.Stale() || !DialogWindow()) return;
    editor->SetInputs(std::move(edited), *this);
    const HWND focus = GetFocus();
    editor->Create(DialogWindow());
    if (before.Stale()) return;  // the host closed it while it was being opened
    editor_ = editor;
    ShowEditor(editor);
    if (GetFocus() != focus && focus) SetFocus(focus);
}

void PropControl::ShowEditor(const ValueDlgPointer& editor) {
    dialog_->SetSeveralValues(editor->ShowsSeveralValues());
    PlaceEditor();
}

void PropControl::PlaceEditor() {
    if (!editor_ || !DialogWindow()) return;
    const RECT bounds = dialog_->EditorBounds();
    // Behind the list in the order of the Tab key, but above the frame around it, which would cover it.
    SetWindowPos(editor_->Handle(), dialog_->BeforeEditor(), bounds.left, bounds.top,
                 bounds.right - bounds.left, bounds.bottom - bounds.top, SWP_NOACTIVATE);
    // Without room it is out of the keyboard's way too.
    ShowChild(editor_->Handle(), !IsRectEmpty(&bounds));
}

/// What waits in the editor is written first. That may run anything: look again at all afterwards.
void PropControl::CloseEditor() {
    editors_.Next();
    const ValueDlgPointer editor = std::exchange(editor_, nullptr);
    if (!editor) return;
    const HWND focus = GetFocus();
    const bool hadFocus = editor->Handle() && focus && IsChild(editor->Handle(), focus);
    editor->Finish();
    editor->Destroy();
    if (!DialogWindow()) return;
    dialog_->SetSeveralValues(false);
    if (hadFocus) SetFocus(dialog_->List());
}

// Keys come from the list itself, past the dialog's messages; what follows may release the control.

void PropControl::OnPickerKey() {
    const ComPtr<IUnknown> alive = Identity();
    const ValueDlgPointer editor = editor_;
    if (editor && editor->Handle()) editor->OpenPicker();
}

void PropControl::OnRestoreKey() {
    const ComPtr<IUnknown> alive = Identity();
    const ValueDlgPointer editor = editor_;
    if (editor) editor->Restore();
}

void PropControl::OpeningChildDialog() { Events().Raise(1); }

void PropControl::ClosingChildDialog() { Events().Raise(2); }

void PropControl::ValuesChanged() {
    if (editor_ && DialogWindow()) dialog_->SetSeveralValues(editor_->ShowsSeveralValues());
}

int PropControl::ShowMessage(const std::wstring& text, const std::wstring& caption, UINT style) {
    return ShowMessageBox(text, style, caption);
}

void PropControl::EditObject(IDispatch* object) {
    const ComPtr<IVandraX> host = Host();
    const PropertiesRequest request{
        .host = host.Get(),
        .object = object,
        .owner = WindowHandle(),
        .options = qzPropertiesDlgOptions_NoObjectsList | qzPropertiesDlgOptions_NoSavePosition,
        .changes = changes_};
    const ChildDialogScope modal(static_cast<ValueDlgSite&>(*this));
    ShowProperties(request);
    // The dialog's inspector has remembered its own choices for all.
    if (!DialogWindow()) return;
    Memory().SetCategory(static_cast<std::uint32_t>(dialog_->CurrentTab()));
    Memory().SetName(dialog_->ChosenName().value_or(std::wstring()));
}

}  // namespace qz
