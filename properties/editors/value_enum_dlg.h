// The editor of enumerations.
#pragma once

#include "properties/editors/choice_buttons.h"
#include "properties/editors/entry_field.h"
#include "properties/editors/value_dlg.h"
#include "ui/wheel.h"

namespace qz {

/// The choices, and a field for their numbers and those between. An entry that can no longer become such a
/// number is put back at once, one before the first choice when it is to be written or the field is left: "1"
/// is on the way to "15". An attribute without labels takes any number. What does not fit into the editor is
/// scrolled.
class CValueEnumDlg final : public CValueDlg {
  public:
    /// `real`: the choices need not be whole numbers.
    CValueEnumDlg(bool real, Language language) noexcept;

  private:
    void OnEditorInit() override;
    void OnSized(SIZE client) override;
    void ShowValue(const _variant_t* value) override;
    std::optional<_variant_t> EnteredValue() const override;
    bool OnEdited(int id, int notification) override;
    bool KeepsWhatIsNoValue() const override { return false; }
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    std::optional<double> EnteredNumber() const;
    std::optional<double> ShownNumber(const VARIANT& value) const;
    void OnTyped();
    void CheckNumber(std::optional<double> number) const;
    void Choose(std::size_t index);

    void ScrollTo(int position);
    void OnScrollBar(WORD command);
    void OnWheel(int delta);
    void ShowFocus();
    SIZE Visible() const noexcept;

    bool real_;
    std::vector<Choice> choices_;
    ChoiceButtons buttons_;
    EntryField field_;
    ChoicePlaces places_;
    WheelAccumulator wheel_;
    int scrolled_ = 0;  ///< Pixels.
};

}  // namespace qz
