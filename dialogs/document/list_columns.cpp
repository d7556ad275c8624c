#include "dialogs/document/list_columns.h"

#include "com/error.h"
#include "dialogs/document/column_widths.h"
#include "res/strings.h"
#include "ui/screen.h"

#include <commctrl.h>

#include <algorithm>

namespace qz {

namespace {

constexpr int marginsAt96 = 14;  // pixels that a cell has beside its text

int NeededWidth(HWND list, const ListColumn& column, Language language) {
    const auto widthOf = [&](unsigned textId) {
        const std::wstring text = LoadText(language, textId);
        return static_cast<int>(
            SendMessageW(list, LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(text.c_str())));
    };
    int widest = widthOf(column.textId);
    for (const unsigned textId : column.ownTexts) widest = std::max(widest, widthOf(textId));
    return widest + MulDiv(marginsAt96, WindowDpi(list), 96);
}

std::vector<int> WidthsOf(HWND list, std::span<const ListColumn> columns, Language language) {
    std::vector<ColumnWish> wishes;
    for (const ListColumn& column : columns) {
        wishes.push_back({column.percent, NeededWidth(list, column, language)});
    }
    RECT client{};
    GetClientRect(list, &client);
    return ColumnWidths(client.right - GetSystemMetrics(SM_CXVSCROLL), wishes);
}

}  // namespace

void AddColumns(HWND list, std::span<const ListColumn> columns, Language language) {
    SendMessageW(list, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    const std::vector<int> widths = WidthsOf(list, columns, language);
    for (std::size_t place = 0; place < columns.size(); ++place) {
        std::wstring text = LoadText(language, columns[place].textId);
        LVCOLUMNW column{};
        column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
        column.pszText = text.data();
        column.cx = widths[place];
        column.iSubItem = static_cast<int>(place);
        if (SendMessageW(list, LVM_INSERTCOLUMNW, place, reinterpret_cast<LPARAM>(&column)) < 0) {
            Throw(E_OUTOFMEMORY, L"A list takes no column");
        }
    }
}

}  // namespace qz
