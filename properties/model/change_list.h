// The changes made since an object was opened, to be taken back when the user does not want them kept.
#pragma once

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

namespace qz {

/// `Change` is copyable. Used from one thread; it must outlive the calls made to it.
template <class Change>
class ChangeList {
  public:
    void Add(Change change) { records_.push_back({nextId_++, std::move(change)}); }
    bool Empty() const noexcept { return records_.empty(); }

    void Clear() noexcept {
        records_.clear();
        ++generation_;
    }

    /// Calls `undo(change)`, the newest first, until no change is left. What it throws ends that and goes on
    /// to the caller; the change that could not be taken back and the older ones stay. `undo` may call any
    /// function of the list: after `Clear` no more is taken back, not even what was added since.
    template <class Undo>
    void TakeBack(Undo&& undo) {
        const std::uint64_t generation = generation_;
        while (generation == generation_ && !records_.empty()) {
            const Record newest = records_.back();
            undo(newest.change);
            Remove(newest.id);
        }
    }

  private:
    struct Record {
        std::uint64_t id;
        Change change;
    };

    // By its id, as it need no longer be the last one, nor be there at all.
    void Remove(std::uint64_t id) {
        const auto found = std::ranges::lower_bound(records_, id, {}, &Record::id);
        if (found != records_.end() && found->id == id) records_.erase(found);
    }

    std::vector<Record> records_;
    std::uint64_t nextId_ = 0;
    std::uint64_t generation_ = 0;
};

}  // namespace qz
