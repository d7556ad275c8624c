// The fields of the export to DOCX and how they lie in the dialog.
#pragma once

#include "dialogs/common/setting_field.h"

#include <span>

namespace qz {

/// One for each key of the record, in the record's order.
std::span<const SettingField> DocxFields() noexcept;

/// The fields whose keys begin with `sections`.
struct DocxPage {
    std::wstring_view sections;
    unsigned titleId;
};

std::span<const DocxPage> DocxPages() noexcept;
/// Where a field's page stands among the pages.
std::size_t DocxPageOf(const SettingField& field) noexcept;

/// The check without which a field has no meaning: the one it names, else that which enables its section;
/// null when there is none.
const SettingField* DocxGateOf(const SettingField& field) noexcept;

/// The rows of each of a page's two columns.
inline constexpr int docxRowsInColumn = 12;

}  // namespace qz
