#include "panes/common/tree_view.h"

#include <algorithm>

namespace qz {

namespace {

void InitTreeClass() {
    const INITCOMMONCONTROLSEX classes{sizeof(INITCOMMONCONTROLSEX), ICC_TREEVIEW_CLASSES};
    if (!InitCommonControlsEx(&classes)) Throw(E_FAIL, L"The system has no tree view");
}

}  // namespace

/// The platform checks the item to insert behind by walking the parent's children, so that only inserting the
/// last one first, each at the front, is linear there. Wine keeps the end of the list instead: there
/// appending is linear, and inserting at the front is not.
InsertionOrder FastInsertionOrder() noexcept {
    static const bool wine = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
    return wine ? InsertionOrder::Appending : InsertionOrder::LastFirst;
}

void TreeView::Create(HWND parent, const wchar_t* name, DWORD style, int id) {
    InitTreeClass();
    ChildWindow::Create(parent, {.className = WC_TREEVIEWW,
                                 .text = name,
                                 .style = style | WS_VISIBLE | WS_TABSTOP,
                                 .extendedStyle = 0,
                                 .id = id,
                                 .bounds = {}});
}

void TreeView::InsertChildren(HTREEITEM parent, std::span<TreeItem> items, InsertionOrder order) {
    const bool empty = !(parent == TVI_ROOT ? Root() : FirstChild(parent));
    if (order == InsertionOrder::Appending || !empty) {
        for (TreeItem& item : items) Insert(parent, TVI_LAST, item);
    } else {
        for (std::size_t i = items.size(); i > 0; --i) Insert(parent, TVI_FIRST, items[i - 1]);
    }
}

void TreeView::Insert(HTREEITEM parent, HTREEITEM after, TreeItem& item) {
    TVINSERTSTRUCTW insert{};
    insert.hParent = parent;
    insert.hInsertAfter = after;
    TVITEMW& made = insert.item;
    made.mask = TVIF_TEXT | TVIF_PARAM | TVIF_STATE;
    made.pszText = item.text.data();
    made.lParam = item.data;
    made.state = item.state;
    made.stateMask = item.state;
    if (item.image >= 0) {
        made.mask |= TVIF_IMAGE | TVIF_SELECTEDIMAGE;
        made.iImage = made.iSelectedImage = item.image;
    }
    item.handle =
        reinterpret_cast<HTREEITEM>(SendToClass(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
    if (!item.handle) Throw(E_OUTOFMEMORY, L"The tree takes no further item");
}

void TreeView::DeleteChildren(HTREEITEM parent) {
    if (parent == TVI_ROOT) {
        DeleteItem(TVI_ROOT);
        return;
    }
    while (const HTREEITEM child = FirstChild(parent)) DeleteItem(child);
}

bool TreeView::SelectFirst() {
    const HTREEITEM first = Selected() ? nullptr : Root();
    if (first) Select(first);
    return first != nullptr;
}

bool TreeView::Expanded(HTREEITEM item) const noexcept {
    return (SendToClass(TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(item), TVIS_EXPANDED) & TVIS_EXPANDED) !=
           0;
}

LPARAM TreeView::Data(HTREEITEM item) const {
    TVITEMW asked{};
    asked.mask = TVIF_HANDLE | TVIF_PARAM;
    asked.hItem = item;
    return SendToClass(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&asked)) ? asked.lParam : 0;
}

std::wstring TreeView::Text(HTREEITEM item) const {
    // The window tells no length: a text that fills the room is asked for again with more.
    for (std::wstring text(256, L'\0');; text.resize(text.size() * 4)) {
        TVITEMW asked{};
        asked.mask = TVIF_HANDLE | TVIF_TEXT;
        asked.hItem = item;
        asked.pszText = text.data();
        asked.cchTextMax = static_cast<int>(text.size());
        if (!Send(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&asked))) return {};
        const std::wstring_view got(asked.pszText);
        if (got.size() + 1 < text.size() || text.size() > (1u << 20)) return std::wstring(got);
    }
}

void TreeView::SetText(HTREEITEM item, const std::wstring& text) {
    TVITEMW changed{};
    changed.mask = TVIF_HANDLE | TVIF_TEXT;
    changed.hItem = item;
    changed.pszText = const_cast<wchar_t*>(text.c_str());  // the window copies it
    Send(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&changed));
}

void TreeView::SetImage(HTREEITEM item, int image) {
    TVITEMW changed{};
    changed.mask = TVIF_HANDLE | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    changed.hItem = item;
    changed.iImage = changed.iSelectedImage = image;
    SendToClass(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&changed));
}

HTREEITEM TreeView::ItemAt(POINT client, UINT* part) const {
    TVHITTESTINFO hit{};
    hit.pt = client;
    const HTREEITEM item = reinterpret_cast<HTREEITEM>(Send(TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
    if (part) *part = hit.flags;
    return item;
}

bool TreeView::ItemRect(HTREEITEM item, bool textOnly, RECT& rect) const {
    // The message takes the item in the rectangle's first bytes.
    *reinterpret_cast<HTREEITEM*>(&rect) = item;
    return Send(TVM_GETITEMRECT, textOnly, reinterpret_cast<LPARAM>(&rect)) != 0;
}

TreeRedrawScope::~TreeRedrawScope() {
    if (!IsWindow(window_)) return;
    SendMessageW(window_, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(window_, nullptr, TRUE);
}

}  // namespace qz
