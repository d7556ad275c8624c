// The editor of lists of numbers.
#include "properties/editors/make_editor.h"

#include "com/safe_array.h"
#include "host/array_elements.h"
#include "properties/editors/entry_field.h"
#include "properties/editors/shown_value.h"
#include "properties/model/edit_rules.h"
#include "properties/model/entry_layouts.h"
#include "properties/model/number_list.h"
#include "res/dialog_ids.h"
#include "ui/platform_geometry.h"
#include "ui/screen.h"

#include <limits>

namespace qz {

namespace {

/// Nothing unless every element is a number of 32 bits.
std::optional<std::wstring> ListText(const VARIANT& value) {
    std::vector<std::int32_t> numbers;
    for (const _variant_t& element : ElementsOf(value)) {
        const std::optional<std::int64_t> number = ShownInteger(element);
        if (!number || !std::in_range<std::int32_t>(*number)) return std::nullopt;
        numbers.push_back(static_cast<std::int32_t>(*number));
    }
    return TextOf(numbers);
}

std::wstring ShownList(const VARIANT& value, std::uint32_t type) {
    if (const std::optional<std::wstring> text = ShownText(value)) {
        const std::optional<std::vector<std::int32_t>> numbers = NumbersOf(*text, type);
        return numbers ? TextOf(*numbers) : FieldLines(*text);
    }
    std::optional<std::wstring> list;
    // An array of more than one dimension, or of no numbers, is shown as none.
    Guard(IID_NULL, [&] { list = ListText(value); });
    return list.value_or(std::wstring());
}

/// The list as a text, one number a line: see properties/model/number_list.h. A text that is no such list is
/// not written, and stays.
class CValueFStringDlg final : public CValueDlg {
  public:
    explicit CValueFStringDlg(Language language) noexcept;

  private:
    void OnEditorInit() override;
    void OnSized(SIZE client) override;
    void ShowValue(const _variant_t* value) override;
    std::optional<_variant_t> EnteredValue() const override;
    bool OnEdited(int id, int notification) override;
    bool KeepsReturn(HWND control) const override { return control == field_.Handle(); }

    EntryField field_;
};

}  // namespace

CValueFStringDlg::CValueFStringDlg(Language language) noexcept : CValueDlg(QZ_DIALOG_VALUE_LIST, language) {}

void CValueFStringDlg::OnEditorInit() {
    field_.AttachTo(Item(QZ_EDITOR_TEXT));
    NameControl(field_.Handle(), Edited().row.name);
}

void CValueFStringDlg::OnSized(SIZE client) {
    const FieldPlaces places = ArrangeField(EditMode::Lines, {FromPlatform(client), WindowDpi(Handle()), 0});
    PlaceItem(QZ_EDITOR_TEXT, ToPlatform(places.text));
}

void CValueFStringDlg::ShowValue(const _variant_t* value) {
    field_.Show(value ? ShownList(*value, Edited().row.type) : std::wstring());
}

std::optional<_variant_t> CValueFStringDlg::EnteredValue() const {
    const std::optional<std::vector<std::int32_t>> numbers = NumbersOf(field_.Text(), Edited().row.type);
    if (!numbers) return std::nullopt;
    const std::vector<long> values(numbers->begin(), numbers->end());
    _variant_t list;
    list.parray = MakeLongArray(values).Detach();
    list.vt = VT_ARRAY | VT_I4;
    return list;
}

bool CValueFStringDlg::OnEdited(int id, int notification) {
    if (id != QZ_EDITOR_TEXT || notification != EN_CHANGE) return false;
    WriteLater();
    return true;
}

ValueDlgPointer MakeValueListEditor(const EditorChoice&, Language language) {
    return MakeDialog<CValueFStringDlg>(language);
}

}  // namespace qz
