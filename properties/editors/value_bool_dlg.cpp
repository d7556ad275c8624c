// The editor of truth values.
#include "properties/editors/make_editor.h"

#include "res/dialog_ids.h"

namespace qz {

namespace {

WPARAM CheckStateOf(const _variant_t& value) {
    _variant_t truth;
    const HRESULT converted = VariantChangeType(&truth, const_cast<_variant_t*>(&value), 0, VT_BOOL);
    if (FAILED(converted)) return BST_INDETERMINATE;
    return truth.boolVal != VARIANT_FALSE ? BST_CHECKED : BST_UNCHECKED;
}

class CValueBoolDlg final : public CValueDlg {
  public:
    explicit CValueBoolDlg(Language language) noexcept;

  private:
    void ShowValue(const _variant_t* value) override;
    std::optional<_variant_t> EnteredValue() const override;
    bool OnEdited(int id, int notification) override;
};

}  // namespace

CValueBoolDlg::CValueBoolDlg(Language language) noexcept : CValueDlg(QZ_DIALOG_VALUE_BOOL, language) {}

/// The box has a third state only while it shows one.
void CValueBoolDlg::ShowValue(const _variant_t* value) {
    const WPARAM state = value ? CheckStateOf(*value) : BST_INDETERMINATE;
    SendItem(QZ_EDITOR_CHECK, BM_SETSTYLE, state == BST_INDETERMINATE ? BS_AUTO3STATE : BS_AUTOCHECKBOX,
             TRUE);
    SendItem(QZ_EDITOR_CHECK, BM_SETCHECK, state);
}

std::optional<_variant_t> CValueBoolDlg::EnteredValue() const {
    const LRESULT state = SendItem(QZ_EDITOR_CHECK, BM_GETCHECK);
    if (state == BST_INDETERMINATE) return std::nullopt;
    return _variant_t(state == BST_CHECKED);
}

bool CValueBoolDlg::OnEdited(int id, int notification) {
    if (id != QZ_EDITOR_CHECK || notification != BN_CLICKED) return false;
    SendItem(QZ_EDITOR_CHECK, BM_SETSTYLE, BS_AUTOCHECKBOX, TRUE);
    WriteNow();
    return true;
}

ValueDlgPointer MakeBoolEditor(const EditorChoice&, Language language) {
    return MakeDialog<CValueBoolDlg>(language);
}

}  // namespace qz
