// Items that are named by ids within their collection.
#pragma once

#include "com/object.h"

#include <comdef.h>

#include <limits>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace qz {

/// The collection that an item is in, as the item sees it.
class IdKeeper {
  public:
    /// Throws E_INVALIDARG when another item has the id.
    virtual void ChangeId(long from, long to) = 0;

  protected:
    ~IdKeeper() = default;
};

/// Base of an item. It does not keep its collection alive; without one it takes any id.
class NumberedItem {
  public:
    long Id() const noexcept { return id_; }

    void ChangeId(long id) {
        if (const auto keeper = keeper_.lock()) keeper->ChangeId(id_, id);
        id_ = id;
    }

    void Join(std::weak_ptr<IdKeeper> keeper, long id) noexcept {
        keeper_ = std::move(keeper);
        id_ = id;
    }
    void Leave() noexcept { keeper_.reset(); }

  private:
    long id_ = 0;
    std::weak_ptr<IdKeeper> keeper_;
};

/// Holds items of class T by ascending ids. New ids count up from 0 and are never given twice. T is a
/// NumberedItem with the static text `noun`, what an item is called in errors. Owned by a shared pointer.
template <class T>
class NumberedItems final : public IdKeeper, public std::enable_shared_from_this<NumberedItems<T>> {
  public:
    long Count() const noexcept { return static_cast<long>(items_.size()); }

    /// Throws E_FAIL when an item has the highest id of all.
    void Add(const ComPtr<T>& item) {
        if (nextId_ > std::numeric_limits<long>::max()) {
            Throw(E_FAIL, L"There is no higher id for another " + Noun());
        }
        const long id = static_cast<long>(nextId_);
        items_.emplace(id, item);
        ++nextId_;
        item->Join(this->weak_from_this(), id);
    }

    /// Throws DISP_E_BADINDEX.
    const ComPtr<T>& At(long id) const {
        const auto found = items_.find(id);
        if (found == items_.end()) ThrowUnknown(id);
        return found->second;
    }

    /// Throws DISP_E_BADINDEX.
    void Remove(long id) {
        const auto removed = items_.extract(id);
        if (!removed) ThrowUnknown(id);
        removed.mapped()->Leave();
    }

    void ChangeId(long from, long to) override {
        if (from == to) return;
        if (items_.contains(to)) {
            Throw(E_INVALIDARG, L"Another " + Noun() + L" has the id " + std::to_wstring(to));
        }
        auto node = items_.extract(from);
        node.key() = to;
        items_.insert(std::move(node));
        if (to >= nextId_) nextId_ = to + 1LL;
    }

    /// Every item as an object reference.
    std::vector<_variant_t> All() const {
        std::vector<_variant_t> all;
        all.reserve(items_.size());
        for (const auto& [id, item] : items_) all.emplace_back(static_cast<IDispatch*>(item.Get()));
        return all;
    }

  private:
    static std::wstring Noun() { return T::noun; }

    [[noreturn]] static void ThrowUnknown(long id) {
        Throw(DISP_E_BADINDEX, L"There is no " + Noun() + L" with the id " + std::to_wstring(id));
    }

    std::map<long, ComPtr<T>> items_;
    long long nextId_ = 0;  // one more than the highest id that was ever taken
};

}  // namespace qz
