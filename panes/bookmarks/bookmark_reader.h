// The host's bookmarks, as members called by name.
#pragma once

#include "host/late_bound.h"
#include "panes/bookmarks/outline_walk.h"

#include <functional>
#include <memory>
#include <vector>

namespace qz {

using BookmarkEntry = OutlineEntry<ComPtr<IDispatch>>;

/// The members of the bookmarks of one host.
struct BookmarkMembers {
    LateBoundMember count{L"Count"};
    LateBoundMember item{L"Item"};
    LateBoundMember title{L"Title"};
    LateBoundMember activate{L"Activate"};
};

/// Reads bookmarks for an `OutlineWalk`.
class BookmarkReader {
  public:
    using Node = ComPtr<IDispatch>;
    using Identity = IUnknown*;

    /// `valid` is asked after each call to the host, which may have done anything meanwhile.
    BookmarkReader(std::shared_ptr<BookmarkMembers> members, std::function<bool()> valid)
        : members_(std::move(members)), valid_(std::move(valid)) {}

    /// Appends the bookmarks below `parent`. Throws the host's failure, E_POINTER for a bookmark that is
    /// missing, DISP_E_TYPEMISMATCH for answers of another kind, OutlineChanged, OutlineStopped.
    void Children(const Node& parent, std::vector<BookmarkEntry>& entries);

    /// What `valid` says now.
    bool Valid() const { return valid_(); }
    /// `goOn` is asked after each call to the host, too. It may do anything itself; when it says no, nothing
    /// more is read.
    void AskToGoOn(std::function<bool()> goOn) { goOn_ = std::move(goOn); }

    /// Not counted: `node` keeps it alive.
    Identity IdentityOf(const Node& node) const;

  private:
    void RequireValid() const;
    long CountOf(IDispatch* bookmark);
    Node ItemOf(IDispatch* parent, long index);
    std::wstring TitleOf(IDispatch* bookmark);

    std::shared_ptr<BookmarkMembers> members_;
    std::function<bool()> valid_;
    std::function<bool()> goOn_;
};

}  // namespace qz
