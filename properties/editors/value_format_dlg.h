// The editor of format strings.
#pragma once

#include "format/formatter.h"
#include "properties/editors/value_dlg.h"

#include <string_view>
#include <vector>

namespace qz {

/// Any text is a format. Those that the formatter offers for the object's kind of data are listed, all when
/// its "DataType" is no category of the formatter's or cannot be read. A sample of that kind shows what the
/// format does while it is typed.
class CValueFormatDlg final : public CValueDlg {
  public:
    explicit CValueFormatDlg(Language language) noexcept;

    /// Moves the focus to the list.
    void OpenPicker() override;

  private:
    void OnEditorInit() override;
    void OnSized(SIZE client) override;
    void ShowValue(const _variant_t* value) override;
    std::optional<_variant_t> EnteredValue() const override;
    bool OnEdited(int id, int notification) override;

    struct OfferedFormat {
        std::wstring_view text;
        std::size_t category;
    };

    void FillList();
    /// What the field holds is marked in the list, if it is there, and applied to the sample.
    void ShowPreview();
    const OfferedFormat* Offered(std::wstring_view text) const noexcept;

    ComPtr<Formatter> formatter_;
    std::optional<std::size_t>
        category_;  ///< Of the object's data; nothing when it is none of the formatter's.
    std::vector<OfferedFormat> offered_;
    bool mixed_ = false;  ///< The field shows nothing, as several objects differ; an empty text is a value.
};

}  // namespace qz
