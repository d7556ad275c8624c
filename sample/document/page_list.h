// The pages of a document, in order. Page numbers are 1-based.
#pragma once

#include "sample/document/value.h"

#include <memory>
#include <vector>

namespace qz::sample {

/// A page's picture as it was stored (JPEG or PNG); part of a buffer that pictures share.
struct Picture {
    uint64_t id = 0;  // unique in the process
    std::shared_ptr<const std::vector<uint8_t>> storage;
    size_t offset = 0;
    size_t size = 0;
};

/// Makes a picture with an id of its own.
std::shared_ptr<const Picture> MakePicture(std::shared_ptr<const std::vector<uint8_t>> storage, size_t offset,
                                           size_t size);

/// Lengths in twips, as the page is displayed.
struct Page {
    PageId id = 0;  // given by the list
    int32_t width = 0;
    int32_t height = 0;
    bool landscape = false;
    int16_t paperBin = 1;
    int32_t paperSize = 0;  // 1-based paper code, 0 for none of them
    int32_t topMargin = 0;
    int32_t bottomMargin = 0;
    int32_t leftMargin = 0;
    int32_t rightMargin = 0;
    std::shared_ptr<const Picture> picture;  // none: the host draws a page of its own
};

/// Members throw AccessError (BadValue) for numbers outside the list.
class PageList {
  public:
    int32_t Count() const { return static_cast<int32_t>(pages_.size()); }
    bool Holds(int32_t number) const { return number >= 1 && number <= Count(); }

    const Page& At(int32_t number) const { return *pages_[IndexOf(number)]; }
    Page& At(int32_t number) { return *pages_[IndexOf(number)]; }

    /// The number of a page, 0 when it is gone.
    int32_t NumberOf(PageId id) const;

    /// Appends the page under a new id, which it returns.
    PageId Append(Page page);

    void Remove(int32_t number);

    /// Moves `count` pages from `first` on so that the block then starts at number `target`. False when that
    /// changes nothing.
    bool Move(int32_t first, int32_t count, int32_t target);

  private:
    size_t IndexOf(int32_t number) const {
        if (!Holds(number)) throw AccessError(AccessFailure::BadValue, "There is no page of that number");
        return static_cast<size_t>(number) - 1;
    }

    std::vector<std::unique_ptr<Page>> pages_;  // pointers: taking one out of a long list is cheap
    PageId lastId_ = 0;
};

}  // namespace qz::sample
