// The editor of lists of numbers.
#pragma once

#include "properties/editors/entry_field.h"
#include "properties/editors/value_dlg.h"

namespace qz {

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

}  // namespace qz
