// The pane's tie to the host, and the reading of the host's outline into the tree.
#include "panes/bookmarks/bookmark_control.h"

#include "com/scope.h"
#include "host/auto_refresh.h"
#include "host/host_calls.h"
#include "panes/common/asked_by_user.h"
#include "res/strings.h"
#include "res/text_ids.h"
#include "ui/progress.h"

#include <optional>
#include <utility>

namespace qz {

namespace {

constexpr DISPID sizeToZero = 2;

[[noreturn]] void ThrowReplaced() { Throw(E_FAIL, L"The outline was replaced while it was being read"); }

}  // namespace

/// While it lasts the host does not refresh itself, and what it tells is not followed.
class BookmarkControl::HostSilence {
  public:
    HostSilence(BookmarkControl& pane, const ShownDocument& shown) : pane_(pane), shown_(shown) { Begin(); }

    void End() noexcept {
        suspended_.reset();
        ours_.reset();
    }
    /// Nothing for a host that is no longer the pane's.
    void Resume() {
        if (!shown_.HostLeft()) Begin();
    }

  private:
    void Begin() {
        ours_.emplace(pane_);
        suspended_.emplace(shown_.Host().Get());
    }

    BookmarkControl& pane_;
    ShownDocument shown_;
    std::optional<OwnHostCalls> ours_;
    std::optional<qzVandraAutoRefresh> suspended_;
};

/// Shows how far a walk through every level is, and lets the user end it.
class BookmarkControl::ReadingProgress {
  public:
    using Walk = OutlineWalk<BookmarkReader, BookmarkTree>;

    /// `silence`, where there is one, is broken whenever messages are handled.
    ReadingProgress(BookmarkControl& pane, const Walk& walk, HostSilence* silence)
        : pane_(pane),
          walk_(walk),
          silence_(silence),
          progress_(std::in_place, pane.OwnerOfModal(), pane.TextLanguage(),
                    LoadText(pane.TextLanguage(), QZ_TEXT_READING_BOOKMARKS)) {}
    ~ReadingProgress() {
        const ScopedValue turn(pane_.othersTurn_, true);
        progress_.reset();
    }
    ReadingProgress(const ReadingProgress&) = delete;
    ReadingProgress& operator=(const ReadingProgress&) = delete;

    bool GoOn() {
        if (!progress_->Due()) return true;
        if (silence_) silence_->End();
        bool goesOn = false;
        {
            const ScopedValue turn(pane_.othersTurn_, true);
            goesOn = progress_->GoOn(walk_.Share());
        }
        if (silence_) silence_->Resume();
        return goesOn;
    }

  private:
    BookmarkControl& pane_;
    const Walk& walk_;
    HostSilence* silence_;
    std::optional<Progress> progress_;
};

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
    const ShownDocument shown = Shown();
    const ChangeFlags changes = ChangesOf(shown.Host().Get());
    const bool modeChanged = changes.Any(change::mode);
    const long mode = modeChanged ? ModeOf(shown.Host().Get()) : 0;
    if (shown.HostLeft()) return;  // another one was attached meanwhile, and read
    if (modeChanged) documentMode_ = mode;
    if (changes.Any(change::outline)) Rebuild(oneLevel);
}

// Rebuilding
// ---------------------------------------------------------------------------------------------------

/// A rebuild inside a rebuild, which only a call out can ask for, is left undone. S_FALSE when the user has
/// ended it.
HRESULT BookmarkControl::Rebuild(const OutlineLimits& limits) {
    if (othersTurn_) {
        refreshAsked_ = true;
        return S_OK;
    }
    const ShownDocument shown = Shown();
    if (!shown.Host() || refreshing_) return S_OK;
    return EndableByRefresh([&] {
        const ScopedValue refreshing(refreshing_, true);
        return ReadOutline(shown, limits);
    });
}

/// Runs a reading. When a refresh was asked for in its midst, that ends it, is made now, and the result is
/// S_FALSE.
template <class Reading>
HRESULT BookmarkControl::EndableByRefresh(Reading&& reading) {
    HRESULT result = S_OK;
    try {
        result = reading();
    } catch (...) {
        if (!refreshAsked_) throw;
    }
    if (!std::exchange(refreshAsked_, false)) return result;
    Rebuild(oneLevel);
    return S_FALSE;
}

HRESULT BookmarkControl::ReadOutline(const ShownDocument& shown, const OutlineLimits& limits) {
    const ComPtr<IVandraX>& host = shown.Host();
    HostSilence silence(*this, shown);
    if (shown.HostLeft()) ThrowReplaced();  // what the tree shows is another host's by now
    tree_.Clear();
    const BookmarkReader reader = MakeReader(host);
    long state = 0;
    ComPtr<IDispatch> root;
    ThrowIfFailed(host->GetBookmarkState(&state), L"The host does not tell the state of its bookmarks");
    const long mode = ModeOf(host.Get());
    ThrowIfFailed(host->GetBookmarks(&root), L"The host does not give its bookmarks");
    if (!root) Throw(E_FAIL, L"The host has no outline");
    if (!reader.Valid()) ThrowReplaced();
    bookmarkState_ = state;
    documentMode_ = mode;
    const OutlineOutcome outcome = BuildTree(root.Get(), reader, silence, limits);
    if (outcome.empty && outcome.whole) {
        Events().Raise(sizeToZero);
    } else if (tree_) {
        tree_.Select(nullptr);
    }
    return outcome.whole ? S_OK : S_FALSE;
}

/// Without a window the outline is only looked at: the tree is filled when it is made.
BookmarkControl::OutlineOutcome BookmarkControl::BuildTree(IDispatch* root, BookmarkReader reader,
                                                           HostSilence& silence,
                                                           const OutlineLimits& limits) {
    try {
        if (!tree_) {
            std::vector<BookmarkEntry> entries;
            reader.Children(root, entries);
            return {entries.empty(), true};
        }
        const TreeRedrawScope still(tree_);
        OutlineWalk walk(reader, tree_, limits);
        std::optional<ReadingProgress> progress;
        if (limits.levels > oneLevel.levels) {
            progress.emplace(*this, walk, &silence);
            reader.AskToGoOn([&progress] { return progress->GoOn(); });
        }
        walk.TopLevel(root, TVI_ROOT);
        return {!tree_.Root(), !walk.Stopped()};
    } catch (const OutlineChanged&) {
        ThrowReplaced();
    } catch (const ComError& error) {
        Rethrow(E_FAIL, error.text);
    }
}

/// A reader that stops when the host or the tree is no longer what it is now.
BookmarkReader BookmarkControl::MakeReader(const ComPtr<IVandraX>& host) const {
    return BookmarkReader(members_, [this, shown = Shown(host)] { return !shown.Stale() && !refreshAsked_; });
}

// Expanding, collapsing, activating
// ----------------------------------------------------------------------------

bool BookmarkControl::ReadBelow(HTREEITEM item) {
    const ComPtr<IVandraX> host = Host();
    const ComPtr<IDispatch> bookmark = tree_.BookmarkOf(item);
    if (!host || !bookmark || othersTurn_) return false;
    const HRESULT result = Run([&] {
        AskedByUser([&] {
            BookmarkReader reader = MakeReader(host);
            const TreeRedrawScope still(tree_);
            OutlineWalk(reader, tree_, oneLevel).Below(bookmark, item);
        });
    });
    return SUCCEEDED(result);
}

void BookmarkControl::ExpandBelow(HTREEITEM item) {
    const ComPtr<IVandraX> host = Host();
    const ComPtr<IDispatch> bookmark = tree_.BookmarkOf(item);
    if (!host || !bookmark || !tree_.FirstChild(item) || othersTurn_) return;
    EndableByRefresh([&]() -> HRESULT {
        const TreeRedrawScope still(tree_);
        tree_.Forget(item);
        BookmarkReader reader = MakeReader(host);
        OutlineWalk walk(reader, tree_, everyLevel);
        ReadingProgress progress(*this, walk, nullptr);
        reader.AskToGoOn([&progress] { return progress.GoOn(); });
        walk.Below(bookmark, item);
        if (!tree_.Unread(item)) tree_.Open(item);
        return S_OK;
    });
}

void BookmarkControl::ActivateItem(HTREEITEM item) {
    const ComPtr<IDispatch> bookmark = tree_.BookmarkOf(item);
    const std::shared_ptr<BookmarkMembers> members = members_;
    if (!Host() || !bookmark) return;
    AskedByUser([&] { members->activate.Call(bookmark.Get()); });
}

}  // namespace qz
