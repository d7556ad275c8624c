// The outline: bookmarks of any depth. Nothing here recurses, so that no depth overflows the stack.
#pragma once

#include "sample/document/value.h"

#include <unordered_map>
#include <vector>

namespace qz::sample {

using BookmarkId = uint32_t;

struct Bookmark {
    BookmarkId parent = 0;
    std::vector<BookmarkId> children;
    std::wstring title;
    PageId page = 0;  // where it leads; 0: nowhere
    bool open = false;
};

class Outline {
  public:
    /// The root, which is no bookmark itself and always there.
    static constexpr BookmarkId root = 0;

    Outline() { bookmarks_[root]; }

    /// Null when the bookmark is gone.
    const Bookmark* Find(BookmarkId id) const;
    Bookmark* Find(BookmarkId id);

    /// A new bookmark as the child at that 0-based position, -1 for the last. Throws AccessError.
    BookmarkId Add(BookmarkId parent, int32_t position, std::wstring title, PageId page = 0,
                   bool open = false);

    /// Removes a bookmark and all below it. Throws AccessError for the root or a bookmark that is gone.
    void Remove(BookmarkId id);

    /// Makes a bookmark the child at that position of another parent. Throws AccessError when that is below
    /// it.
    void Move(BookmarkId id, BookmarkId parent, int32_t position);

    /// The 0-based position among its siblings.
    int32_t PositionOf(BookmarkId id) const;

    /// All bookmarks in reading order, with their levels (0: top).
    std::vector<std::pair<int32_t, BookmarkId>> InOrder() const;

    size_t Count() const { return bookmarks_.size() - 1; }

  private:
    Bookmark& Require(BookmarkId id);
    void Attach(BookmarkId id, BookmarkId parent, int32_t position);
    void Detach(BookmarkId id);
    bool IsWithin(BookmarkId id, BookmarkId ancestor) const;

    std::unordered_map<BookmarkId, Bookmark> bookmarks_;
    BookmarkId lastId_ = root;
};

}  // namespace qz::sample
