// The pane's tie to the host, and the reading of the host's outline into the tree.
#include "panes/bookmarks/bookmark_control.h"

#include "host/auto_refresh.h"

namespace qz {

namespace {

constexpr DISPID sizeToZero = 2;

/// What changed in the host that concerns the pane.
constexpr long modeChanged = 0x1;
constexpr long outlineChanged = 0x8000;

/// The next item in reading order; null after the last.
HTREEITEM NextInOrder(const TreeView& tree, HTREEITEM item) {
    if (const HTREEITEM child = tree.FirstChild(item)) return child;
    for (; item; item = tree.Parent(item)) {
        if (const HTREEITEM sibling = tree.NextSibling(item)) return sibling;
    }
    return nullptr;
}

[[noreturn]] void ThrowReplaced() { Throw(E_FAIL, L"The outline was replaced while it was being read"); }

/// Marks the time in which the tree is being rebuilt.
class RefreshingScope {
  public:
    explicit RefreshingScope(bool& flag) noexcept : flag_(flag) { flag_ = true; }
    ~RefreshingScope() { flag_ = false; }
    RefreshingScope(const RefreshingScope&) = delete;
    RefreshingScope& operator=(const RefreshingScope&) = delete;

  private:
    bool& flag_;
};

}  // namespace

// The host
// -----------------------------------------------------------------------------------------------------

void BookmarkControl::ShowDocument() {
    members_ = std::make_shared<BookmarkMembers>();
    refreshing_ = false;  // a rebuild that is under way reads from the host before this one, and will end
    if (tree_) SetWindowTextW(tree_.Handle(), Title().c_str());
    Rebuild(oneLevel);
}

void BookmarkControl::ForgetDocument() {
    documentMode_ = 0;
    bookmarkState_ = 0;
    tree_.Clear();
}

void BookmarkControl::FollowHost() {
    const ComPtr<IVandraX> host = Host();
    long flags = 0;
    long mode = 0;
    ThrowIfFailed(host->GetChangeFlags(&flags), L"The host does not tell what changed");
    if (flags & modeChanged) {
        ThrowIfFailed(host->GetDocumentMode(&mode), L"The host does not tell its mode");
    }
    if (!SameObject(Host(), host)) return;  // another one was attached meanwhile, and read
    if (flags & modeChanged) documentMode_ = mode;
    if (flags & outlineChanged) Rebuild(oneLevel);
}

// Rebuilding
// ---------------------------------------------------------------------------------------------------

/// A rebuild inside a rebuild, which only a call out can ask for, is left undone.
void BookmarkControl::Rebuild(const OutlineLimits& limits) {
    const ComPtr<IVandraX> host = Host();
    if (!host || refreshing_) return;
    const RefreshingScope refreshing(refreshing_);
    const OwnHostCalls ours(*this);
    const qzVandraAutoRefresh suspended(host.Get());
    if (!SameObject(Host(), host)) ThrowReplaced();  // what the tree shows is another host's by now
    ReadOutline(host, limits);
}

void BookmarkControl::ReadOutline(const ComPtr<IVandraX>& host, const OutlineLimits& limits) {
    tree_.Clear();
    const BookmarkReader reader = MakeReader(host);
    long state = 0;
    long mode = 0;
    ComPtr<IDispatch> root;
    ThrowIfFailed(host->GetBookmarkState(&state), L"The host does not tell the state of its bookmarks");
    ThrowIfFailed(host->GetDocumentMode(&mode), L"The host does not tell its mode");
    ThrowIfFailed(host->GetBookmarks(&root), L"The host does not give its bookmarks");
    if (!root) Throw(E_FAIL, L"The host has no outline");
    if (!reader.Valid()) ThrowReplaced();
    bookmarkState_ = state;
    documentMode_ = mode;
    if (!BuildTree(root.Get(), reader, limits)) {
        events_.Raise(sizeToZero);
    } else if (tree_) {
        tree_.Select(nullptr);
    }
}

/// False when there is no bookmark. Without a window the outline is only looked at: the tree is filled when
/// it is made.
bool BookmarkControl::BuildTree(IDispatch* root, BookmarkReader reader, const OutlineLimits& limits) {
    try {
        if (!tree_) {
            std::vector<BookmarkEntry> entries;
            reader.Children(root, entries);
            return !entries.empty();
        }
        const TreeRedrawScope still(tree_);
        OutlineWalk walk(reader, tree_, limits);
        walk.TopLevel(root, TVI_ROOT);
        return tree_.Root() != nullptr;
    } catch (const OutlineChanged&) {
        ThrowReplaced();
    } catch (const ComError& error) {
        Rethrow(E_FAIL, error.text);
    }
}

/// A reader that stops when the host or the tree is no longer what it is now.
BookmarkReader BookmarkControl::MakeReader(const ComPtr<IVandraX>& host) const {
    return BookmarkReader(members_, [this, host, version = tree_.Version()] {
        return SameObject(Host(), host) && tree_.Version() == version;
    });
}

// Expanding, collapsing, activating
// ----------------------------------------------------------------------------

bool BookmarkControl::ReadBelow(HTREEITEM item) {
    const ComPtr<IVandraX> host = Host();
    const ComPtr<IDispatch> bookmark = tree_.BookmarkOf(item);
    if (!host || !bookmark) return false;
    const HRESULT result = Guard(__uuidof(IqzBookmarkCtrl), [&] {
        BookmarkReader reader = MakeReader(host);
        const TreeRedrawScope still(tree_);
        OutlineWalk(reader, tree_, oneLevel).Below(bookmark, item);
    });
    if (FAILED(result)) MessageBeep(MB_ICONWARNING);
    return SUCCEEDED(result);
}

void BookmarkControl::ExpandBelow(HTREEITEM item) {
    const ComPtr<IVandraX> host = Host();
    const ComPtr<IDispatch> bookmark = tree_.BookmarkOf(item);
    if (!host || !bookmark || !tree_.FirstChild(item)) return;
    const TreeRedrawScope still(tree_);
    tree_.Forget(item);
    BookmarkReader reader = MakeReader(host);
    OutlineWalk(reader, tree_, everyLevel).Below(bookmark, item);
    tree_.Open(item);
}

void BookmarkControl::Collapse() {
    if (!Host() || !tree_) return;
    const TreeRedrawScope still(tree_);
    tree_.Expand(nullptr, TVE_COLLAPSE);
    for (HTREEITEM item = tree_.Root(); item; item = NextInOrder(tree_, item)) {
        if (tree_.Expanded(item)) tree_.Expand(item, TVE_COLLAPSE);
    }
}

void BookmarkControl::ActivateItem(HTREEITEM item) {
    const ComPtr<IDispatch> bookmark = tree_.BookmarkOf(item);
    const std::shared_ptr<BookmarkMembers> members = members_;
    if (!Host() || !bookmark) return;
    try {
        members->activate.Call(bookmark.Get());
    } catch (...) {
        MessageBeep(MB_ICONWARNING);  // the user has asked for it and is told that it failed
        throw;
    }
}

}  // namespace qz
