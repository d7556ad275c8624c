#include "sample/document/page_list.h"

#include <algorithm>
#include <atomic>

namespace qz::sample {

std::shared_ptr<const Picture> MakePicture(std::shared_ptr<const std::vector<uint8_t>> storage, size_t offset,
                                           size_t size) {
    static std::atomic<uint64_t> lastId = 0;
    return std::make_shared<const Picture>(Picture{++lastId, std::move(storage), offset, size});
}

int32_t PageList::NumberOf(PageId id) const {
    const auto found = std::ranges::find(pages_, id, [](const auto& page) { return page->id; });
    return found == pages_.end() ? 0 : static_cast<int32_t>(found - pages_.begin()) + 1;
}

PageId PageList::Append(Page page) {
    page.id = ++lastId_;
    pages_.push_back(std::make_unique<Page>(std::move(page)));
    return lastId_;
}

void PageList::Remove(int32_t number) {
    pages_.erase(pages_.begin() + static_cast<std::ptrdiff_t>(IndexOf(number)));
}

bool PageList::Move(int32_t first, int32_t count, int32_t target) {
    if (count == 0) return false;
    const bool fits = count > 0 && Holds(first) && count <= Count() - first + 1 && target >= 1 &&
                      target <= Count() - count + 1;
    if (!fits) throw AccessError(AccessFailure::BadValue, "The pages cannot be moved to that place");
    const auto block = pages_.begin() + (first - 1);
    if (target < first) {
        std::rotate(pages_.begin() + (target - 1), block, block + count);
    } else {
        std::rotate(block, block + count, pages_.begin() + (target - 1 + count));
    }
    return target != first;
}

}  // namespace qz::sample
