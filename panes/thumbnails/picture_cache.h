// The page pictures already drawn, within a budget of memory.
#pragma once

#include "panes/thumbnails/thumbnail_layout.h"

#include <cstdint>
#include <list>
#include <unordered_map>
#include <vector>

namespace qz {

/// A drawn thumbnail: rows from the top, 32 bits a pixel (blue in the lowest byte, the top byte unused).
/// Plain memory: thousands of them would exhaust the process's GDI handles, and selecting a bitmap for every
/// copy costs several times the copy.
struct Picture {
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::vector<std::uint32_t> pixels;

    std::size_t Bytes() const noexcept { return pixels.size() * sizeof(std::uint32_t); }
};

/// Pictures by page index, least recently used ones dropped first.
class PictureCache {
  public:
    static constexpr std::size_t defaultBudget = std::size_t{64} * 1024 * 1024;

    explicit PictureCache(std::size_t budgetBytes = defaultBudget) noexcept : budget_(budgetBytes) {}

    std::size_t Budget() const noexcept { return budget_; }
    std::size_t Bytes() const noexcept { return bytes_; }
    std::size_t Count() const noexcept { return entries_.size(); }

    /// The picture of a page, or null; counts as a use. Valid until the cache is changed.
    const Picture* Use(std::size_t index);

    /// Keeps a picture, replacing an older one of that page; counts as a use.
    const Picture& Keep(std::size_t index, Picture picture);

    void Drop(std::size_t index);
    void Clear();

    /// Drops the least recently used pictures outside `visible` until the rest is within the budget.
    void Trim(const IndexRange& visible);

  private:
    struct Entry {
        std::size_t index;
        Picture picture;
    };
    using Entries = std::list<Entry>;  // most recently used first

    void Erase(Entries::iterator entry);

    std::size_t budget_;
    std::size_t bytes_ = 0;
    Entries entries_;
    std::unordered_map<std::size_t, Entries::iterator> byIndex_;
};

}  // namespace qz
