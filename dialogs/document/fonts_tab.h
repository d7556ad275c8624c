// The tab with a document's fonts.
#pragma once

#include "dialogs/document/doc_settings_tab.h"
#include "dialogs/document/font_rows.h"
#include "ui/child_keys.h"

#include <commctrl.h>

#include <array>
#include <optional>
#include <vector>

namespace qz {

/// Only the rows in view cost time.
class CDocSettingsDlgTab4 final : public CDocSettingsDlgTab, private ChildKeyListener {
  public:
    CDocSettingsDlgTab4(const SettingsSource& source, Language language) noexcept;

  private:
    void OnInit() override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    bool WantsKey(HWND control, UINT message, WPARAM key) override;
    void OnKey(HWND control, UINT message, WPARAM key) override;

    void Fill() override;
    void Write() override {}  // a choice is written at once
    void ReadFonts();
    /// Nothing for an object without a font's name.
    std::optional<FontRow> ReadFont(IDispatch* font);
    _variant_t ReadName(IDispatch* font);
    void ShowFonts();

    std::optional<LRESULT> OnListNotification(const NMHDR& header, LPARAM details);
    void TellText(NMLVDISPINFOW& details) const;
    LRESULT FindRow(const NMLVFINDITEMW& details) const;
    void SortBy(FontColumn column);
    void ShowOrder() const;
    std::optional<std::size_t> SelectedFont() const noexcept;
    void Select(std::size_t font) const;
    void ChooseEmbedding(std::size_t font);
    const std::wstring& TextOf(std::size_t font, FontColumn column) const;

    std::vector<ComPtr<IDispatch>> fonts_;
    std::vector<FontRow> rows_;        ///< Of the fonts, in the document's order.
    std::vector<std::size_t> places_;  ///< The fonts in the order of the list.
    std::optional<FontOrder> order_;   ///< Nothing: as the document has them.
    std::array<std::wstring, embeddingLevelCount> levels_;
    ChildKeys keys_{*this};
};

}  // namespace qz
