// Decoded pictures, kept within a number of bytes: the least recently used go first.
#pragma once

#include "sample/document/scaled_picture.h"

#include <cstddef>
#include <cstdint>
#include <list>
#include <memory>

namespace qz::sample {

class RasterCache {
  public:
    explicit RasterCache(size_t limit) : limit_(limit) {}

    /// Null when the picture of that id is not kept.
    std::shared_ptr<const Raster> Find(uint64_t id) {
        for (auto entry = entries_.begin(); entry != entries_.end(); ++entry) {
            if (entry->id != id) continue;
            entries_.splice(entries_.begin(), entries_, entry);
            return entry->raster;
        }
        return nullptr;
    }

    /// Keeps a picture, the newest even when it exceeds the limit alone.
    void Add(uint64_t id, std::shared_ptr<const Raster> raster) {
        size_ += Size(*raster);
        entries_.push_front({id, std::move(raster)});
        while (size_ > limit_ && entries_.size() > 1) {
            size_ -= Size(*entries_.back().raster);
            entries_.pop_back();
        }
    }

    size_t BytesKept() const { return size_; }

  private:
    struct Entry {
        uint64_t id;
        std::shared_ptr<const Raster> raster;
    };

    static size_t Size(const Raster& raster) { return raster.pixels.size() * sizeof(uint32_t); }

    size_t limit_;
    size_t size_ = 0;
    std::list<Entry> entries_;
};

}  // namespace qz::sample
