// The system's tree view, as the panes that show a tree use it.
#pragma once

#include "ui/child_window.h"

#include <windows.h>
#include <commctrl.h>

#include <span>
#include <string>
#include <vector>

namespace qz {

/// An item to be inserted.
struct TreeItem {
    std::wstring text;
    LPARAM data = 0;             ///< The owner's; see TVN_DELETEITEM for its end.
    int image = -1;              ///< For both the plain and the selected item; -1 for none.
    UINT state = 0;              ///< TVIS_ bits.
    HTREEITEM handle = nullptr;  ///< Given by the insertion.
};

/// The order in which many children go into a tree.
enum class InsertionOrder { Appending, LastFirst };

/// The order that takes time linear in their number on this platform.
InsertionOrder FastInsertionOrder() noexcept;

/// A tree view window. Handles are those of the window; notifications go to its parent.
class TreeView : public ChildWindow {
  public:
    /// Makes the window. `name` is what assistive tools call it.
    void Create(HWND parent, const wchar_t* name, DWORD style, int id);

    /// Inserts children, in order, behind those that the parent has (TVI_ROOT for the top). Linear in their
    /// number in the fast order, when the parent had none and redrawing is off (`TreeRedrawScope`). Throws
    /// E_OUTOFMEMORY; those inserted before stay.
    void InsertChildren(HTREEITEM parent, std::span<TreeItem> items,
                        InsertionOrder order = FastInsertionOrder());

    /// Deletes everything below an item, or everything with TVI_ROOT.
    void DeleteChildren(HTREEITEM parent);
    void DeleteItem(HTREEITEM item) { Send(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(item)); }

    HTREEITEM Root() const noexcept { return Next(TVGN_ROOT, nullptr); }
    HTREEITEM FirstChild(HTREEITEM item) const noexcept { return Next(TVGN_CHILD, item); }
    HTREEITEM NextSibling(HTREEITEM item) const noexcept { return Next(TVGN_NEXT, item); }
    HTREEITEM Parent(HTREEITEM item) const noexcept { return Next(TVGN_PARENT, item); }
    HTREEITEM Selected() const noexcept { return Next(TVGN_CARET, nullptr); }
    /// The first item when none is selected; whether it has been. Nothing in an empty tree.
    bool SelectFirst();
    void Select(HTREEITEM item) { Send(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item)); }

    bool Expanded(HTREEITEM item) const noexcept;
    /// `how` is TVE_EXPAND, TVE_COLLAPSE or TVE_TOGGLE.
    bool Expand(HTREEITEM item, UINT how) {
        return Send(TVM_EXPAND, how, reinterpret_cast<LPARAM>(item)) != 0;
    }

    LPARAM Data(HTREEITEM item) const;
    std::wstring Text(HTREEITEM item) const;
    void SetText(HTREEITEM item, const std::wstring& text);
    void SetImage(HTREEITEM item, int image);

    /// The item at a client point, null beside all; `part` (may be null) gets the TVHT_ bits.
    HTREEITEM ItemAt(POINT client, UINT* part = nullptr) const;
    /// Client pixels; false for an item that is not visible. `textOnly` leaves out indent and image.
    bool ItemRect(HTREEITEM item, bool textOnly, RECT& rect) const;

  private:
    HTREEITEM Next(UINT what, HTREEITEM item) const noexcept {
        return reinterpret_cast<HTREEITEM>(
            SendToClass(TVM_GETNEXTITEM, what, reinterpret_cast<LPARAM>(item)));
    }
    void Insert(HTREEITEM parent, HTREEITEM after, TreeItem& item);
};

/// Switches redrawing of a tree off for a scope: without it each insertion costs milliseconds. Scopes nest
/// only around different trees.
class TreeRedrawScope {
  public:
    explicit TreeRedrawScope(const TreeView& tree) noexcept : window_(tree.Handle()) {
        SendMessageW(window_, WM_SETREDRAW, FALSE, 0);
    }
    ~TreeRedrawScope();
    TreeRedrawScope(const TreeRedrawScope&) = delete;
    TreeRedrawScope& operator=(const TreeRedrawScope&) = delete;

  private:
    HWND window_;
};

}  // namespace qz
