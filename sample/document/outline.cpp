#include "sample/document/outline.h"

#include <algorithm>
#include <utility>

namespace qz::sample {

const Bookmark* Outline::Find(BookmarkId id) const {
    const auto found = bookmarks_.find(id);
    return found == bookmarks_.end() ? nullptr : &found->second;
}

Bookmark* Outline::Find(BookmarkId id) { return const_cast<Bookmark*>(std::as_const(*this).Find(id)); }

Bookmark& Outline::Require(BookmarkId id) {
    if (Bookmark* bookmark = Find(id)) return *bookmark;
    throw AccessError(AccessFailure::NoSuchObject, "The bookmark is no longer there");
}

BookmarkId Outline::Add(BookmarkId parent, int32_t position, std::wstring title, PageId page, bool open) {
    Require(parent);
    const BookmarkId id = lastId_ + 1;
    bookmarks_[id] = {parent, {}, std::move(title), page, open};
    try {
        Attach(id, parent, position);
    } catch (...) {
        bookmarks_.erase(id);
        throw;
    }
    return lastId_ = id;
}

void Outline::Attach(BookmarkId id, BookmarkId parent, int32_t position) {
    std::vector<BookmarkId>& siblings = Require(parent).children;
    const auto count = static_cast<int32_t>(siblings.size());
    if (position < -1 || position > count) {
        throw AccessError(AccessFailure::BadValue, "There is no such place among the bookmarks");
    }
    siblings.insert(siblings.begin() + (position == -1 ? count : position), id);
    Require(id).parent = parent;
}

void Outline::Detach(BookmarkId id) { std::erase(Require(Require(id).parent).children, id); }

void Outline::Remove(BookmarkId id) {
    Require(id);
    if (id == root) throw AccessError(AccessFailure::NotAllowed, "The root of the outline cannot be removed");
    Detach(id);
    std::vector<BookmarkId> doomed{id};
    for (size_t i = 0; i < doomed.size(); ++i) {
        const std::vector<BookmarkId> children = std::move(Require(doomed[i]).children);
        doomed.insert(doomed.end(), children.begin(), children.end());
        bookmarks_.erase(doomed[i]);
    }
}

bool Outline::IsWithin(BookmarkId id, BookmarkId ancestor) const {
    while (id != ancestor && id != root) id = Find(id)->parent;
    return id == ancestor;
}

void Outline::Move(BookmarkId id, BookmarkId parent, int32_t position) {
    Require(id);
    Require(parent);
    if (IsWithin(parent, id)) {
        throw AccessError(AccessFailure::NotAllowed, "A bookmark cannot be moved below itself");
    }
    const BookmarkId oldParent = Find(id)->parent;
    const int32_t oldPosition = PositionOf(id);
    Detach(id);
    try {
        Attach(id, parent, position);
    } catch (...) {
        Attach(id, oldParent, oldPosition);
        throw;
    }
}

int32_t Outline::PositionOf(BookmarkId id) const {
    const Bookmark* bookmark = Find(id);
    if (!bookmark || id == root) return -1;
    const std::vector<BookmarkId>& siblings = Find(bookmark->parent)->children;
    return static_cast<int32_t>(std::ranges::find(siblings, id) - siblings.begin());
}

std::vector<std::pair<int32_t, BookmarkId>> Outline::InOrder() const {
    std::vector<std::pair<int32_t, BookmarkId>> order;
    std::vector<std::pair<int32_t, BookmarkId>> pending{{-1, root}};
    while (!pending.empty()) {
        const auto [level, id] = pending.back();
        pending.pop_back();
        if (id != root) order.emplace_back(level, id);
        const std::vector<BookmarkId>& children = Find(id)->children;
        for (auto child = children.rbegin(); child != children.rend(); ++child)
            pending.emplace_back(level + 1, *child);
    }
    return order;
}

}  // namespace qz::sample
