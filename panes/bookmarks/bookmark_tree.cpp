#include "panes/bookmarks/bookmark_tree.h"

#include "ui/keys.h"

#include <windowsx.h>

#include <algorithm>
#include <utility>

namespace qz {

namespace {

constexpr int treeId = 1;
constexpr DWORD treeStyle =
    TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_SHOWSELALWAYS | WS_CLIPSIBLINGS;

/// Items for bookmarks, each of which counts its bookmark. Those that the window has not taken let it go.
class CountedItems {
  public:
    explicit CountedItems(std::vector<BookmarkEntry>& entries) {
        items_.reserve(entries.size());
        for (BookmarkEntry& entry : entries) {
            IDispatch* const bookmark = entry.node.Get();
            items_.push_back({.text = std::move(entry.title),
                              .data = reinterpret_cast<LPARAM>(bookmark),
                              .image = entry.hasChildren ? bookmarkCollapsed : bookmarkLeaf});
            bookmark->AddRef();
        }
    }
    ~CountedItems() {
        for (const TreeItem& item : items_) {
            if (!item.handle) reinterpret_cast<IDispatch*>(item.data)->Release();
        }
    }
    CountedItems(const CountedItems&) = delete;
    CountedItems& operator=(const CountedItems&) = delete;

    std::span<TreeItem> Items() noexcept { return items_; }

  private:
    std::vector<TreeItem> items_;
};

}  // namespace

void BookmarkTree::Create(HWND parent, const wchar_t* name) {
    TreeView::Create(parent, name, treeStyle, treeId);
    parents_.clear();
    contents_.Next();
}

// Items
// --------------------------------------------------------------------------------------------------------

void BookmarkTree::Clear() {
    contents_.Next();
    if (!Handle()) return;
    const TreeRedrawScope still(*this);
    DeleteBelow(TVI_ROOT);
}

/// The bookmarks are let go of when the window has finished, as a last release may call back.
void BookmarkTree::DeleteBelow(HTREEITEM item) {
    ++deleting_;
    DeleteChildren(item);
    if (--deleting_ > 0) return;
    const std::vector<ComPtr<IDispatch>> last = std::exchange(deleted_, {});
}

ComPtr<IDispatch> BookmarkTree::BookmarkOf(HTREEITEM item) const {
    return reinterpret_cast<IDispatch*>(Data(item));
}

bool BookmarkTree::Unread(HTREEITEM item) const {
    const HTREEITEM child = FirstChild(item);
    return child && !Data(child);
}

void BookmarkTree::Forget(HTREEITEM item) {
    Expand(item, TVE_COLLAPSE);
    DeleteBelow(item);
    parents_.erase(item);
    LeaveUnread(item);
}

std::vector<HTREEITEM> BookmarkTree::Insert(HTREEITEM under, std::vector<BookmarkEntry>& entries) {
    if (under != TVI_ROOT) DeleteBelow(under);
    std::vector<HTREEITEM> places;
    places.reserve(entries.size());
    CountedItems counted(entries);
    try {
        InsertChildren(under, counted.Items());
    } catch (...) {
        DeleteBelow(under);
        throw;
    }
    for (const TreeItem& item : counted.Items()) places.push_back(item.handle);
    if (under != TVI_ROOT && !places.empty()) parents_[under] = ++lastRead_;
    return places;
}

void BookmarkTree::LeaveUnread(HTREEITEM item) {
    TreeItem placeholder{.text = {}, .image = bookmarkLeaf};
    InsertChildren(item, {&placeholder, 1});
}

/// Once for every parent of a large outline, hence by the shortest way.
void BookmarkTree::Open(HTREEITEM item) {
    opening_ = true;
    SendToClass(TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(item));
    opening_ = false;
    ShowImage(item);
}

/// In the order of reading, which has outer items before inner ones: collapsing what is seen costs more.
void BookmarkTree::CollapseAll() {
    Expand(nullptr, TVE_COLLAPSE);
    std::vector<std::pair<HTREEITEM, std::uint64_t>> parents(parents_.begin(), parents_.end());
    std::ranges::sort(parents, {}, &std::pair<HTREEITEM, std::uint64_t>::second);
    const Stage::Mark shown = contents_.Now();
    for (const auto& [item, turn] : parents) {
        if (shown.Stale()) return;  // somebody else who looks at the messages has emptied the tree
        if (Expanded(item)) Expand(item, TVE_COLLAPSE);
    }
}

void BookmarkTree::ShowImage(HTREEITEM item) {
    if (!FirstChild(item)) return SetImage(item, bookmarkLeaf);
    SetImage(item, Expanded(item) ? bookmarkExpanded : bookmarkCollapsed);
}

void BookmarkTree::OnDeleted(HTREEITEM item, LPARAM data) {
    parents_.erase(item);
    IDispatch* const bookmark = reinterpret_cast<IDispatch*>(data);
    if (!bookmark) return;
    contents_.Next();
    if (!deleting_) {
        bookmark->Release();
        return;
    }
    deleted_.emplace_back();
    *deleted_.back().GetAddressOf() = bookmark;
}

// Messages
// -----------------------------------------------------------------------------------------------------

std::optional<LRESULT> BookmarkTree::OnNotify(const NMHDR& header) {
    if (!Handle() || header.hwndFrom != Handle()) return std::nullopt;
    const auto& change = reinterpret_cast<const NMTREEVIEWW&>(header);
    switch (header.code) {
        case TVN_DELETEITEMW:
            OnDeleted(change.itemOld.hItem, change.itemOld.lParam);
            return 0;
        case TVN_ITEMEXPANDINGW:
            // Whatever way has led here: an item is not expanded to show its placeholder.
            return (change.action & TVE_EXPAND) && !opening_ && !EnsureRead(change.itemNew.hItem);
        case TVN_ITEMEXPANDEDW:
            if (!opening_) ShowImage(change.itemNew.hItem);
            return 0;
        default:
            return std::nullopt;
    }
}

std::optional<LRESULT> BookmarkTree::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const ComPtr<IUnknown> alive = listener_.KeepAlive();
    switch (message) {
        case TVM_EXPAND:
            return OnExpand(wParam, lParam);
        case WM_LBUTTONDOWN:
            return OnButton({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
        case WM_LBUTTONDBLCLK:
            return OnDoubleClick({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
        case WM_KEYDOWN:
            return OnKey(wParam);
        case WM_CHAR:
            if (wParam == VK_RETURN) return 0;  // taken by its WM_KEYDOWN; the window would beep
            return std::nullopt;
        default:
            return std::nullopt;
    }
}

std::optional<LRESULT> BookmarkTree::OnExpand(WPARAM wParam, LPARAM lParam) {
    const auto item = reinterpret_cast<HTREEITEM>(lParam);
    if (!item) return std::nullopt;
    if ((wParam & TVE_EXPAND) && !Expanded(item) && !EnsureRead(item)) return 0;
    const HWND window = Handle();
    const LRESULT result = DefSubclassProc(window, TVM_EXPAND, wParam, lParam);
    ShowImage(item);
    return result;
}

/// A press on an item's expand button.
std::optional<LRESULT> BookmarkTree::OnButton(POINT point) {
    UINT part = 0;
    const HTREEITEM item = ItemAt(point, &part);
    const bool expands = item && (part & TVHT_ONITEMBUTTON) && !Expanded(item);
    if (expands && !EnsureRead(item)) return 0;
    return std::nullopt;
}

std::optional<LRESULT> BookmarkTree::OnDoubleClick(POINT point) {
    UINT part = 0;
    const HTREEITEM item = ItemAt(point, &part);
    if (!item || !(part & TVHT_ONITEM)) return OnButton(point);
    listener_.ActivateItem(item);
    return 0;
}

/// While no item is selected, as after the tree was filled, a key that moves the selection begins at the
/// first one. The window would do nothing.
std::optional<LRESULT> BookmarkTree::OnKey(WPARAM key) {
    if (IsNavigationKey(key) && SelectFirst()) return 0;
    const HTREEITEM item = Selected();
    if (!item) return std::nullopt;
    switch (key) {
        case VK_RETURN:
            listener_.ActivateItem(item);
            return 0;
        case VK_MULTIPLY:
            listener_.ExpandBelow(item);
            return 0;
        case VK_RIGHT:
        case VK_ADD:
            if (!Expanded(item) && !EnsureRead(item)) return 0;
            return std::nullopt;
        default:
            return std::nullopt;
    }
}

/// False when the item must not be expanded now: its children cannot be read, or it is gone.
bool BookmarkTree::EnsureRead(HTREEITEM item) {
    if (!Unread(item)) return true;
    const Stage::Mark shown = contents_.Now();
    return listener_.ReadBelow(item) && Handle() && !shown.Stale();
}

}  // namespace qz
