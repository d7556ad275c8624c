// The editor with a text field: numbers, texts, files, fields of a database.
#pragma once

#include "properties/editors/entry_field.h"
#include "properties/editors/value_dlg.h"
#include "properties/model/edit_rules.h"

#include <vector>

namespace qz {

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

}  // namespace qz
