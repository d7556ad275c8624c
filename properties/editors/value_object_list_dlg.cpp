// The editor of the list of fields that a form action concerns.
#include "properties/editors/make_editor.h"

#include "properties/editors/confirmation_pause.h"
#include "properties/editors/listed_objects.h"
#include "properties/editors/object_gathering.h"
#include "properties/model/picker_layouts.h"
#include "res/dialog_ids.h"
#include "res/strings.h"
#include "res/text_ids.h"
#include "ui/platform_geometry.h"
#include "ui/screen.h"

#include <commctrl.h>

#include <algorithm>
#include <cstddef>
#include <unordered_set>

namespace qz {

namespace {

// The list view numbers the pictures of its check boxes: 1 is clear, 2 checked; 0 is an entry that it is just
// making.
UINT CheckState(bool checked) noexcept { return INDEXTOSTATEIMAGEMASK(checked ? 2 : 1); }

bool IsChecked(UINT state) noexcept { return (state & LVIS_STATEIMAGEMASK) == CheckState(true); }

std::unordered_set<std::wstring_view> PathsOf(const std::vector<ListedObject>& objects) {
    std::unordered_set<std::wstring_view> paths;
    for (const ListedObject& object : objects) paths.insert(object.path);
    return paths;
}

/// Lists the objects among which the user chooses, those that are in the attribute's value with a check mark.
/// A check box leaves out what is no form field. While the editor is open the document's changes are not
/// confirmed.
class CValueObjectListDlg final : public CValueDlg {
  public:
    explicit CValueObjectListDlg(Language language) noexcept;

  private:
    struct Row {
        ListedObject listed;
        bool checked = false;
    };

    void OnEditorInit() override;
    void OnSized(SIZE client) override;
    void ShowValue(const _variant_t* value) override;
    std::optional<_variant_t> EnteredValue() const override;
    bool OnEdited(int id, int notification) override;
    void OnFinished() override { pause_.reset(); }
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    void FitColumn() const;
    void Gather();
    void FillList();
    void AddChosenRows();
    void InsertRow(std::size_t row) const;
    void ShowChecks();
    void OnItemChanged(const NMLISTVIEW& change);
    void Choose(const ListedObject& object, bool chosen);

    std::vector<Row> rows_;             ///< As in the list.
    std::vector<ListedObject> chosen_;  ///< The value, in its order.
    std::shared_ptr<ConfirmationPause> pause_;
};

}  // namespace

CValueObjectListDlg::CValueObjectListDlg(Language language) noexcept
    : CValueDlg(QZ_DIALOG_VALUE_OBJECTS, language) {
    const INITCOMMONCONTROLSEX classes{sizeof(INITCOMMONCONTROLSEX), ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&classes);
}

// Window
// ------------------------------------------------------------------------------------------------------

void CValueObjectListDlg::OnEditorInit() {
    constexpr DWORD styles = LVS_EX_CHECKBOXES | LVS_EX_LABELTIP;
    SendItem(QZ_EDITOR_OBJECTS, LVM_SETEXTENDEDLISTVIEWSTYLE, styles, styles);
    LVCOLUMNW column{};
    SendItem(QZ_EDITOR_OBJECTS, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
    NameControl(Item(QZ_EDITOR_OBJECTS), LoadText(TextLanguage(), QZ_TEXT_OBJECTS));
    SendItem(QZ_EDITOR_FORM_FIELDS_ONLY, BM_SETCHECK, BST_CHECKED);
    const ComPtr<IVandraX> host = Edited().host;
    pause_ = ConfirmationPause::On(host.Get());
    Gather();
}

void CValueObjectListDlg::OnSized(SIZE client) {
    const ObjectsPlaces places =
        ArrangeObjectsEditor({{client.cx, client.cy}, WindowDpi(Handle()), Pixels({0, 8}).cy});
    PlaceItem(QZ_EDITOR_FORM_FIELDS_ONLY, ToPlatform(places.fieldsOnly));
    PlaceItem(QZ_EDITOR_OBJECTS, ToPlatform(places.list));
    FitColumn();
}

void CValueObjectListDlg::FitColumn() const {
    RECT inside{};
    GetClientRect(Item(QZ_EDITOR_OBJECTS), &inside);
    SendItem(QZ_EDITOR_OBJECTS, LVM_SETCOLUMNWIDTH, 0, inside.right);
}

std::optional<LRESULT> CValueObjectListDlg::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DESTROY) pause_.reset();
    if (message != WM_NOTIFY) return CValueDlg::OnMessage(message, wParam, lParam);
    const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
    if (header.idFrom != QZ_EDITOR_OBJECTS || header.code != LVN_ITEMCHANGED) return std::nullopt;
    OnItemChanged(*reinterpret_cast<const NMLISTVIEW*>(lParam));
    return 0;
}

// The list
// ------------------------------------------------------------------------------------------------------

/// Nothing is shown before all is there.
void CValueObjectListDlg::Gather() {
    const bool fieldsOnly = SendItem(QZ_EDITOR_FORM_FIELDS_ONLY, BM_GETCHECK) == BST_CHECKED;
    const HCURSOR before = SetCursor(LoadCursorW(nullptr, IDC_WAIT));
    std::vector<ListedObject> gathered = GatherObjects(EditedAttribute(Edited()), fieldsOnly);
    SetCursor(before);
    if (!Handle()) return;
    rows_.clear();
    for (ListedObject& object : gathered) rows_.push_back({std::move(object)});
    FillList();
}

void CValueObjectListDlg::FillList() {
    SendItem(QZ_EDITOR_OBJECTS, WM_SETREDRAW, FALSE);
    SendItem(QZ_EDITOR_OBJECTS, LVM_DELETEALLITEMS);
    SendItem(QZ_EDITOR_OBJECTS, LVM_SETITEMCOUNT, rows_.size());
    for (std::size_t row = 0; row < rows_.size(); ++row) InsertRow(row);
    AddChosenRows();
    ShowChecks();
    SendItem(QZ_EDITOR_OBJECTS, WM_SETREDRAW, TRUE);
    InvalidateRect(Item(QZ_EDITOR_OBJECTS), nullptr, TRUE);
    FitColumn();  // there may be a scroll bar now
}

void CValueObjectListDlg::InsertRow(std::size_t row) const {
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    item.iItem = static_cast<int>(row);
    item.pszText = const_cast<wchar_t*>(rows_[row].listed.label.c_str());  // only reads it
    if (SendItem(QZ_EDITOR_OBJECTS, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item)) < 0) {
        Throw(E_OUTOFMEMORY, L"The list of objects takes no more");
    }
}

/// What the value holds is listed, wherever it comes from: it shall not be lost unseen.
void CValueObjectListDlg::AddChosenRows() {
    std::unordered_set<std::wstring> listed;
    for (const Row& row : rows_) listed.insert(row.listed.path);
    for (const ListedObject& object : chosen_) {
        if (!listed.insert(object.path).second) continue;
        rows_.push_back({object});
        InsertRow(rows_.size() - 1);
    }
}

void CValueObjectListDlg::ShowChecks() {
    const auto paths = PathsOf(chosen_);
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        Row& row = rows_[i];
        const bool checked = paths.contains(row.listed.path);
        if (std::exchange(row.checked, checked) == checked) continue;
        LVITEMW item{};
        item.stateMask = LVIS_STATEIMAGEMASK;
        item.state = CheckState(checked);
        SendItem(QZ_EDITOR_OBJECTS, LVM_SETITEMSTATE, i, reinterpret_cast<LPARAM>(&item));
    }
}

// The value
// ------------------------------------------------------------------------------------------------------

void CValueObjectListDlg::ShowValue(const _variant_t* value) {
    const std::shared_ptr<HostMembers> members = Edited().members;
    std::vector<ListedObject> chosen;
    if (value) {
        for (const auto& object : ObjectsIn(*value)) chosen.push_back(ListByName(members->objects, object));
    }
    if (!Handle()) return;
    chosen_ = std::move(chosen);
    AddChosenRows();
    ShowChecks();
}

std::optional<_variant_t> CValueObjectListDlg::EnteredValue() const { return ToObjectArray(chosen_); }

bool CValueObjectListDlg::OnEdited(int id, int notification) {
    if (id != QZ_EDITOR_FORM_FIELDS_ONLY || notification != BN_CLICKED) return false;
    Gather();
    return true;
}

/// Writes when the list view is done with its click: writing may end it.
void CValueObjectListDlg::OnItemChanged(const NMLISTVIEW& change) {
    const auto row = static_cast<std::size_t>(change.iItem);
    if (!(change.uChanged & LVIF_STATE) || change.iItem < 0 || row >= rows_.size()) return;
    const bool checked = IsChecked(change.uNewState);
    if (!(change.uNewState & LVIS_STATEIMAGEMASK) || rows_[row].checked == checked) return;
    rows_[row].checked = checked;
    Choose(rows_[row].listed, checked);
    WriteLater();
    WriteSoon();
}

void CValueObjectListDlg::Choose(const ListedObject& object, bool chosen) {
    if (chosen)
        chosen_.push_back(object);
    else
        std::erase_if(chosen_, [&](const ListedObject& other) { return IsSame(other, object); });
}

ValueDlgPointer MakeObjectListEditor(const EditorChoice&, Language language) {
    return MakeDialog<CValueObjectListDlg>(language);
}

}  // namespace qz
