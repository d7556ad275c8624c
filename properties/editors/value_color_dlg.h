// The editor of colors: a palette, and a field of hexadecimal digits.
#pragma once

#include "properties/editors/colour_field.h"
#include "properties/editors/colour_palette.h"
#include "properties/editors/value_dlg.h"

namespace qz {

/// A color as properties/model/colour_text.h tells it. What is typed is a color when it has six or eight
/// digits; an empty field is none, the button for that writes "no color".
class CValueColorDlg final : public CValueDlg {
  public:
    explicit CValueColorDlg(Language language);
    ~CValueColorDlg() override;

    /// Moves the focus to the palette.
    void OpenPicker() override;

  private:
    void OnEditorInit() override;
    void OnSized(SIZE client) override;
    void ShowValue(const _variant_t* value) override;
    std::optional<_variant_t> EnteredValue() const override;
    bool OnEdited(int id, int notification) override;
    bool KeepsReturn(HWND control) const override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    void OnTyped();
    void Choose(std::uint32_t colour);
    void ShowColour(std::optional<std::uint32_t> colour);
    void DrawPreview(const DRAWITEMSTRUCT& item) const;

    ColourPalette palette_;
    ColourField field_;
    std::optional<std::uint32_t> colour_;  ///< Nothing while the field holds no color.
    std::wstring text_;                    ///< Of the field, before the change under way.
};

}  // namespace qz
