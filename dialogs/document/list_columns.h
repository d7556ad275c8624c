// Columns of list views in report form.
#pragma once

#include "res/language.h"

#include <windows.h>

#include <span>

namespace qz {

struct ListColumn {
    unsigned textId;
    int percent;  ///< Of the list's width.
    /// The texts of the string table that it shows: like its caption, they are not cut.
    std::span<const unsigned> ownTexts{};
};

/// Gives a list view its columns; whole rows are selected. Throws when the list takes no column.
void AddColumns(HWND list, std::span<const ListColumn> columns, Language language);

}  // namespace qz
