#include "dialogs/document/list_columns.h"

#include "com/error.h"
#include "res/strings.h"

#include <commctrl.h>

namespace qz {

void AddColumns(HWND list, std::span<const ListColumn> columns, Language language) {
    SendMessageW(list, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    RECT client{};
    GetClientRect(list, &client);
    const int width = client.right - GetSystemMetrics(SM_CXVSCROLL);
    int place = 0;
    for (const ListColumn& each : columns) {
        std::wstring text = LoadText(language, each.textId);
        LVCOLUMNW column{};
        column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
        column.pszText = text.data();
        column.cx = width * each.percent / 100;
        column.iSubItem = place;
        const auto index = static_cast<WPARAM>(place++);
        if (SendMessageW(list, LVM_INSERTCOLUMNW, index, reinterpret_cast<LPARAM>(&column)) < 0) {
            Throw(E_OUTOFMEMORY, L"A list takes no column");
        }
    }
}

}  // namespace qz
