#include "panes/thumbnails/picture_cache.h"

#include <iterator>
#include <utility>

namespace qz {

const Picture* PictureCache::Use(std::size_t index) {
    const auto found = byIndex_.find(index);
    if (found == byIndex_.end()) return nullptr;
    entries_.splice(entries_.begin(), entries_, found->second);
    return &found->second->picture;
}

const Picture& PictureCache::Keep(std::size_t index, Picture picture) {
    Drop(index);
    entries_.push_front({index, std::move(picture)});
    try {
        byIndex_.emplace(index, entries_.begin());
    } catch (...) {
        entries_.pop_front();
        throw;
    }
    bytes_ += entries_.front().picture.Bytes();
    return entries_.front().picture;
}

void PictureCache::Drop(std::size_t index) {
    const auto found = byIndex_.find(index);
    if (found != byIndex_.end()) Erase(found->second);
}

void PictureCache::Clear() {
    byIndex_.clear();
    entries_.clear();
    bytes_ = 0;
}

void PictureCache::Trim(const IndexRange& visible) {
    auto entry = entries_.end();
    while (bytes_ > budget_ && entry != entries_.begin()) {
        const auto oldest = std::prev(entry);
        if (visible.Contains(oldest->index)) {
            entry = oldest;  // passed over
        } else {
            Erase(oldest);  // `entry` stays behind it
        }
    }
}

void PictureCache::Erase(Entries::iterator entry) {
    bytes_ -= entry->picture.Bytes();
    byIndex_.erase(entry->index);
    entries_.erase(entry);
}

}  // namespace qz
