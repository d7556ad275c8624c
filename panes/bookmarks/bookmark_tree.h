// The tree of the bookmark pane: items that hold bookmarks of the host, read when they are expanded.
#pragma once

#include "panes/bookmarks/bookmark_reader.h"
#include "panes/common/stage.h"
#include "panes/common/tree_view.h"

#include <cstdint>
#include <unordered_map>

namespace qz {

/// What the tree asks of the pane. Each may call the host, which may do anything to the pane and the tree.
class BookmarkTreeListener {
  public:
    /// Reads what is below an unread item. False when that failed and the item cannot be expanded.
    virtual bool ReadBelow(HTREEITEM item) = 0;
    /// Reads and expands everything below an item.
    virtual void ExpandBelow(HTREEITEM item) = 0;
    /// The user wants to go where a bookmark leads.
    virtual void ActivateItem(HTREEITEM item) = 0;
    /// What the tree is a part of; counted during every call.
    virtual ComPtr<IUnknown> KeepAlive() noexcept = 0;

  protected:
    ~BookmarkTreeListener() = default;
};

/// The images of items, as indexes into the image list.
enum BookmarkImage : int { bookmarkExpanded, bookmarkCollapsed, bookmarkLeaf, bookmarkImageCount };

/// Each item holds its bookmark with one counted reference, which goes when the item goes. An item that has
/// children not yet read has one child without a bookmark, its placeholder. Children are read before the
/// window sees the message that expands their item, so that the host, which may have the tree emptied, is not
/// called from within the window's own work.
class BookmarkTree final : public TreeView {
  public:
    using Place = HTREEITEM;

    explicit BookmarkTree(BookmarkTreeListener& listener) noexcept : listener_(listener) {}

    void Create(HWND parent, const wchar_t* name);

    /// Deletes all items.
    void Clear();

    /// Another one after bookmarks have gone from the tree: items known before may be gone too.
    const Stage& Contents() const noexcept { return contents_; }

    /// Null for a placeholder.
    ComPtr<IDispatch> BookmarkOf(HTREEITEM item) const;
    bool Unread(HTREEITEM item) const;
    /// Makes an item unread again.
    void Forget(HTREEITEM item);
    /// Collapses every item. Costs what was read into, not every leaf.
    void CollapseAll();

    // For `OutlineWalk`
    /// Puts bookmarks under an item in place of its placeholder, or under TVI_ROOT. Moves the titles away.
    /// Throws E_OUTOFMEMORY; then nothing is under the item.
    std::vector<HTREEITEM> Insert(HTREEITEM under, std::vector<BookmarkEntry>& entries);
    void LeaveUnread(HTREEITEM item);
    /// Expands an item whose children are all there.
    void Open(HTREEITEM item);

    /// The window's notifications, as far as they are about items; nothing for others.
    std::optional<LRESULT> OnNotify(const NMHDR& header);

  private:
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    std::optional<LRESULT> OnExpand(WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> OnButton(POINT point);
    std::optional<LRESULT> OnDoubleClick(POINT point);
    std::optional<LRESULT> OnKey(WPARAM key);
    bool EnsureRead(HTREEITEM item);
    void OnDeleted(HTREEITEM item, LPARAM data);
    void DeleteBelow(HTREEITEM item);
    void ShowImage(HTREEITEM item);

    BookmarkTreeListener& listener_;
    Stage contents_;
    bool opening_ = false;  ///< `Open` is at work: nothing is to be read, and it sets the image itself.
    int deleting_ = 0;      ///< Deletions of the tree's own under way; their bookmarks gather in `deleted_`.
    std::vector<ComPtr<IDispatch>> deleted_;
    /// Items whose children were read, as no others can be expanded, each with its turn in the reading.
    std::unordered_map<HTREEITEM, std::uint64_t> parents_;
    std::uint64_t lastRead_ = 0;
};

}  // namespace qz
