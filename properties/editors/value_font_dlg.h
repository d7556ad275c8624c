// The editor of fonts.
#pragma once

#include "properties/editors/value_dlg.h"
#include "properties/model/font_value.h"

namespace qz {

/// A font as properties/model/font_value.h packs it into a text. The list offers the faces of the document's
/// fonts; others can be typed or taken from the system's dialog.
///
/// A font is written as a whole. A field that is empty stands for what the inspected object has; of several
/// objects with different fonts too, so that what is entered for them gives all of them its font. The other
/// controls show that as soon as one is touched.
class CValueFontDlg final : public CValueDlg {
  public:
    explicit CValueFontDlg(Language language) noexcept;

    /// Opens the system's dialog, or the list of faces if the focus is there.
    void OpenPicker() override;

  private:
    void OnEditorInit() override;
    void OnSized(SIZE client) override;
    void ShowValue(const _variant_t* value) override;
    std::optional<_variant_t> EnteredValue() const override;
    bool OnEdited(int id, int notification) override;

    void FillFaces();
    /// Shows `font_` in all controls but the one that was just touched, if any.
    void ShowFont(int touched);
    void ShowFace();
    void ShowSize();
    void ShowMark(int id, bool set);
    /// Ends the state in which the controls show nothing.
    void Complete(int touched);

    bool OnFaceEdited(int notification);
    void TakeListedFace();
    void ChooseInSystemDialog();
    FontValue StartOfChoice() const;

    /// What the controls say; nothing when the size is none.
    std::optional<FontValue> Entered() const;
    bool Marked(int id, bool before) const;

    FontValue font_;      ///< Of the inspected object.
    std::wstring face_;   ///< Entered; empty for that of `font_`.
    bool mixed_ = false;  ///< The controls show nothing, as several objects differ.
};

}  // namespace qz
