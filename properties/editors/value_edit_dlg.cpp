// The editor with a text field: numbers, texts, files, fields of a database.
#include "properties/editors/make_editor.h"

#include "format/user_locale.h"
#include "host/attributes.h"
#include "host/object_path.h"
#include "com/text.h"
#include "properties/editors/entry_field.h"
#include "ui/choose_file.h"
#include "ui/popup_menu.h"
#include "properties/editors/shown_value.h"
#include "properties/model/attribute_types.h"
#include "properties/model/edit_rules.h"
#include "properties/model/entry_layouts.h"
#include "properties/model/picture_filter.h"
#include "res/dialog_ids.h"
#include "res/strings.h"
#include "res/text_ids.h"
#include "ui/gdi.h"
#include "ui/plain_label.h"
#include "ui/platform_geometry.h"
#include "ui/screen.h"

#include <commctrl.h>

#include <algorithm>
#include <vector>

namespace qz {

namespace {

constexpr DWORD linesStyle =
    ES_MULTILINE | ES_WANTRETURN | ES_AUTOVSCROLL | ES_AUTOHSCROLL | WS_VSCROLL | WS_HSCROLL;

/// Menu ids have 16 bits.
constexpr std::size_t mostMenuEntries = 0xFFFF;

/// What the field takes, and what stands beside it, depends on the mode. Numbers are typed and shown with the
/// decimal separator of the user's locale; an entry that makes no number is put back. The button of a
/// database field offers the names of the document's form fields, if the object has a data source and a
/// table.
class CValueEditDlg final : public CValueDlg {
  public:
    CValueEditDlg(EditMode mode, Language language) noexcept;

    /// Opens the file chooser or the menu of fields.
    void OpenPicker() override;

  private:
    void OnEditorInit() override;
    void OnSized(SIZE client) override;
    void ShowValue(const _variant_t* value) override;
    std::optional<_variant_t> EnteredValue() const override;
    bool OnEdited(int id, int notification) override;
    bool KeepsReturn(HWND control) const override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    bool HoldsNumber() const noexcept { return mode_ == EditMode::Integer || mode_ == EditMode::Real; }
    bool HasButton() const noexcept { return mode_ == EditMode::File || mode_ == EditMode::DatabaseField; }
    std::wstring ShownTextOf(const VARIANT& value) const;
    std::optional<_variant_t> EnteredNumber() const;
    int ButtonWidth() const;
    bool HasDatabase() const;
    void OnTyped();
    void Step(int step);
    void ChoosePicture();
    void ChooseField();
    std::vector<std::wstring> FieldNames() const;
    void Enter(const std::wstring& text);

    EditMode mode_;
    wchar_t separator_ = L'.';
    EntryField field_;
};

}  // namespace

CValueEditDlg::CValueEditDlg(EditMode mode, Language language) noexcept
    : CValueDlg(QZ_DIALOG_VALUE_EDIT, language), mode_(mode) {}

// Controls
// ------------------------------------------------------------------------------------------------------

void CValueEditDlg::OnEditorInit() {
    separator_ = UserSeparators().decimal;
    field_.Create(Handle(), QZ_EDITOR_TEXT, mode_ == EditMode::Lines ? linesStyle : 0);
    NameControl(field_.Handle(), Edited().row.name);
    if (mode_ == EditMode::Integer) {
        SendItem(QZ_EDITOR_UP_DOWN, UDM_SETBUDDY, reinterpret_cast<WPARAM>(field_.Handle()));
        SendItem(QZ_EDITOR_UP_DOWN, UDM_SETRANGE32, 0, greatestStep);
    }
    if (mode_ == EditMode::File) {
        SetItemText(QZ_EDITOR_BUTTON, L"...");
        NameControl(Item(QZ_EDITOR_BUTTON), LoadText(TextLanguage(), QZ_TEXT_SELECT_FILE));
    }
}

int CValueEditDlg::ButtonWidth() const {
    const HWND button = Item(QZ_EDITOR_BUTTON);
    const std::wstring text = WindowText(button);
    const WindowDc dc(button);
    const auto font = reinterpret_cast<HFONT>(SendMessageW(Handle(), WM_GETFONT, 0, 0));
    const SelectScope selected(dc.Get(), font);
    SIZE extent{};
    GetTextExtentPoint32W(dc.Get(), text.data(), static_cast<int>(text.size()), &extent);
    return static_cast<int>(extent.cx) + MulDiv(12, WindowDpi(Handle()), 96);
}

void CValueEditDlg::OnSized(SIZE client) {
    const FieldMetrics metrics{FromPlatform(client), WindowDpi(Handle()), HasButton() ? ButtonWidth() : 0};
    const FieldPlaces places = ArrangeField(mode_, metrics);
    PlaceItem(QZ_EDITOR_TEXT, ToPlatform(places.text));
    PlaceItem(QZ_EDITOR_UP_DOWN, ToPlatform(places.upDown));
    PlaceItem(QZ_EDITOR_BUTTON, ToPlatform(places.button));
}

// Value
// ------------------------------------------------------------------------------------------------------

std::wstring CValueEditDlg::ShownTextOf(const VARIANT& value) const {
    if (mode_ == EditMode::Integer) {
        const std::optional<std::int64_t> number = ShownInteger(value);
        return number ? std::to_wstring(*number) : std::wstring();
    }
    if (mode_ == EditMode::Real) {
        const std::optional<double> number = ShownReal(value);
        return number ? TextOf(*number, separator_) : std::wstring();
    }
    const std::wstring text = ShownText(value).value_or(std::wstring());
    return mode_ == EditMode::Lines ? FieldLines(text) : text;
}

void CValueEditDlg::ShowValue(const _variant_t* value) {
    field_.Show(value ? ShownTextOf(*value) : std::wstring());
    if (mode_ == EditMode::DatabaseField) EnableItem(QZ_EDITOR_BUTTON, HasDatabase() && !ReadOnly());
}

std::optional<_variant_t> CValueEditDlg::EnteredValue() const {
    if (HoldsNumber()) return EnteredNumber();
    return TextVariant(field_.Text());
}

std::optional<_variant_t> CValueEditDlg::EnteredNumber() const {
    const std::uint32_t type = Edited().row.type;
    const std::wstring text = field_.Text();
    if (mode_ == EditMode::Real) {
        const std::optional<double> number = RealOf(text, separator_);
        if (!number || !ValueFits(type, *number)) return std::nullopt;
        return _variant_t(static_cast<float>(*number));
    }
    const std::optional<std::int32_t> number = IntegerOf(text);
    if (!number || !ValueFits(type, *number)) return std::nullopt;
    if (type == attribute_type::int16) return _variant_t(static_cast<short>(*number));
    return _variant_t(static_cast<long>(*number));
}

// Entries
// ------------------------------------------------------------------------------------------------------

bool CValueEditDlg::KeepsReturn(HWND control) const {
    return mode_ == EditMode::Lines && control == field_.Handle();
}

bool CValueEditDlg::OnEdited(int id, int notification) {
    if (id == QZ_EDITOR_TEXT && notification == EN_CHANGE) {
        OnTyped();
        return true;
    }
    if (id == QZ_EDITOR_TEXT && notification == EN_MAXTEXT) {
        MessageBeep(MB_OK);  // the field has no room for what was typed
        return true;
    }
    if (id == QZ_EDITOR_BUTTON && notification == BN_CLICKED) {
        OpenPicker();
        return true;
    }
    return false;
}

std::optional<LRESULT> CValueEditDlg::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NOTIFY) {
        const auto& notification = *reinterpret_cast<const NMUPDOWN*>(lParam);
        if (notification.hdr.idFrom == QZ_EDITOR_UP_DOWN && notification.hdr.code == UDN_DELTAPOS) {
            Step(notification.iDelta);
            return 1;  // the field is set: what the text says counts, not the arrows' own position
        }
    }
    return CValueDlg::OnMessage(message, wParam, lParam);
}

void CValueEditDlg::OnTyped() {
    // Only numbers have rules; a long text is not copied at every key.
    if (HoldsNumber()) {
        if (!MayBecome(mode_, Edited().row.type, field_.Accepted(), field_.Text(), separator_)) {
            MessageBeep(MB_OK);
            WithoutNotifications([this] { field_.Revert(); });
            return;
        }
        field_.Accept();
    }
    WriteLater();
}

/// Counts as typed.
void CValueEditDlg::Step(int step) {
    if (ReadOnly()) return;
    SetItemText(QZ_EDITOR_TEXT, std::to_wstring(Stepped(IntegerOf(field_.Text()), step)));
}

void CValueEditDlg::OpenPicker() {
    if (!HasButton() || !IsWindowEnabled(Item(QZ_EDITOR_BUTTON))) return;
    Attempt([this] {
        if (mode_ == EditMode::File)
            ChoosePicture();
        else
            ChooseField();
    });
}

void CValueEditDlg::ChoosePicture() {
    std::optional<std::wstring> path;
    {
        const ChildDialogScope modal(Site());
        if (!Handle()) return;
        const FileQuestion question{LoadText(TextLanguage(), QZ_TEXT_SELECT_FILE),
                                    PictureFilter(LoadText(TextLanguage(), QZ_TEXT_IMAGE_FILES)),
                                    field_.Text()};
        path = ChooseFile(GetAncestor(Handle(), GA_ROOT), question);
    }
    if (path) Enter(*path);
}

void CValueEditDlg::Enter(const std::wstring& text) {
    if (!Handle()) return;
    WithoutNotifications([&] { field_.Show(text); });
    WriteNow();
}

// Fields of a database
// ------------------------------------------------------------------------------------------------------

bool CValueEditDlg::HasDatabase() const {
    const auto told = [this](const wchar_t* name) {
        std::wstring text;
        // An object without the attribute has no database.
        Guard(IID_NULL, [&] { text = ToText(ReadObjectAttribute(name)); });
        return !text.empty();
    };
    return told(L"DataSource") && told(L"DataTable");
}

/// The names of the document's form fields, each once, in the document's order.
std::vector<std::wstring> CValueEditDlg::FieldNames() const {
    const ComPtr<IVandraX> host = Edited().host;
    const std::shared_ptr<HostMembers> members = Edited().members;
    std::vector<std::wstring> names;
    for (const ComPtr<IDispatch>& field : ObjectsOf(ReadAttribute(host.Get(), documentPath, L"FormFields"))) {
        std::wstring name = members->objects.Name(field.Get());
        const bool offered = !name.empty() && std::ranges::find(names, name) == names.end();
        if (offered && names.size() < mostMenuEntries) names.push_back(std::move(name));
    }
    return names;
}

void CValueEditDlg::ChooseField() {
    const std::vector<std::wstring> names = FieldNames();
    if (!Handle()) return;
    PopupMenu menu;
    UINT id = 0;
    for (const std::wstring& name : names) menu.Append(++id, PlainLabel(name));
    if (names.empty()) menu.Append(1, LoadText(TextLanguage(), QZ_TEXT_NO_FORM_FIELDS), false);
    const auto current = std::ranges::find(names, field_.Text());
    if (current != names.end()) menu.CheckOne(1, id, static_cast<UINT>(current - names.begin()) + 1);
    RECT button{};
    GetWindowRect(Item(QZ_EDITOR_BUTTON), &button);
    const UINT chosen = menu.Track(Handle(), {button.left, button.bottom});
    if (chosen > 0 && chosen <= names.size()) Enter(names[chosen - 1]);
}

ValueDlgPointer MakeEditEditor(const EditorChoice& choice, Language language) {
    return MakeDialog<CValueEditDlg>(choice.mode, language);
}

}  // namespace qz
