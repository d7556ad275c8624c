// The IEnum... objects of COM over a snapshot of items.
#pragma once

#include "com/object.h"

#include <algorithm>
#include <memory>
#include <new>
#include <vector>

namespace qz {

/// A copy policy tells how an item goes out (`Copy`, which throws on failure) and how a copy already handed
/// out is taken back (`Undo`).
struct CopyVariant {
    static void Copy(VARIANT& to, const VARIANT& from) {
        VariantInit(&to);
        ThrowIfFailed(VariantCopy(&to, const_cast<VARIANT*>(&from)));  // only reads it
    }
    static void Undo(VARIANT& item) noexcept { VariantClear(&item); }
};

template <class I>
struct CopyReference {
    static void Copy(I*& to, const ComPtr<I>& from) { from.CopyTo(&to); }
    static void Undo(I*& item) noexcept {
        item->Release();
        item = nullptr;
    }
};

/// An enumerator of interface `Enum` that hands out `Out`, kept as `Kept` (which must be copyable and release
/// itself). Clones share the snapshot. E_POINTER for null slots, S_FALSE when fewer items are left than
/// asked.
template <class Enum, class Out, class Kept, class Policy>
class Enumerator : public Object<Enumerator<Enum, Out, Kept, Policy>, Enum> {
  public:
    using Items = std::shared_ptr<const std::vector<Kept>>;

    explicit Enumerator(std::vector<Kept> items)
        : items_(std::make_shared<const std::vector<Kept>>(std::move(items))) {}
    Enumerator(Items items, size_t next) : items_(std::move(items)), next_(next) {}

    STDMETHODIMP Next(ULONG count, Out* out, ULONG* fetched) override {
        if (fetched) *fetched = 0;
        if (!out || (!fetched && count != 1)) return E_POINTER;
        return Guard(__uuidof(Enum), [&]() -> HRESULT {
            const ULONG given = static_cast<ULONG>(std::min<size_t>(count, items_->size() - next_));
            Give(out, given);
            next_ += given;
            if (fetched) *fetched = given;
            return given == count ? S_OK : S_FALSE;
        });
    }

    STDMETHODIMP Skip(ULONG count) override {
        const size_t skipped = std::min<size_t>(count, items_->size() - next_);
        next_ += skipped;
        return skipped == count ? S_OK : S_FALSE;
    }

    STDMETHODIMP Reset() override {
        next_ = 0;
        return S_OK;
    }

    STDMETHODIMP Clone(Enum** clone) override {
        if (!clone) return E_POINTER;
        *clone = nullptr;
        return Guard(__uuidof(Enum), [&] { *clone = MakeObject<Enumerator>(items_, next_).Detach(); });
    }

  private:
    void Give(Out* out, ULONG count) {
        ULONG done = 0;
        try {
            for (; done < count; ++done) Policy::Copy(out[done], (*items_)[next_ + done]);
        } catch (...) {
            while (done > 0) Policy::Undo(out[--done]);
            throw;
        }
    }

    Items items_;
    size_t next_ = 0;
};

}  // namespace qz
