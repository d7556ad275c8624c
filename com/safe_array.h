// Owner of a SAFEARRAY and access to its elements.
#pragma once

#include "com/object.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <utility>

namespace qz {

/// Owns a SAFEARRAY.
class SafeArray {
  public:
    SafeArray() = default;
    explicit SafeArray(SAFEARRAY* array) noexcept : array_(array) {}
    SafeArray(SafeArray&& other) noexcept : array_(std::exchange(other.array_, nullptr)) {}
    SafeArray& operator=(SafeArray&& other) noexcept {
        std::swap(array_, other.array_);
        return *this;
    }
    ~SafeArray() {
        if (array_) SafeArrayDestroy(array_);
    }

    SAFEARRAY* Get() const noexcept { return array_; }
    SAFEARRAY* Detach() noexcept { return std::exchange(array_, nullptr); }

  private:
    SAFEARRAY* array_ = nullptr;
};

/// Access to the elements while the array is locked.
template <class T>
class SafeArrayView {
  public:
    explicit SafeArrayView(SAFEARRAY* array) : array_(array) {
        ThrowIfFailed(SafeArrayAccessData(array, reinterpret_cast<void**>(&data_)));
    }
    ~SafeArrayView() { SafeArrayUnaccessData(array_); }
    SafeArrayView(const SafeArrayView&) = delete;
    SafeArrayView& operator=(const SafeArrayView&) = delete;

    /// The elements of a one-dimensional array.
    std::span<T> Elements() const noexcept { return {data_, array_->rgsabound[0].cElements}; }

  private:
    SAFEARRAY* array_;
    T* data_ = nullptr;
};

/// A one-dimensional array of `count` zeroed elements, lower bound 0.
inline SafeArray MakeSafeArray(VARTYPE type, size_t count) {
    SafeArray array(SafeArrayCreateVector(type, 0, static_cast<ULONG>(count)));
    if (!array.Get()) Throw(E_OUTOFMEMORY);
    return array;
}

/// An array of object references; each is counted once more.
inline SafeArray MakeObjectArray(std::span<const ComPtr<IDispatch>> objects) {
    SafeArray array = MakeSafeArray(VT_DISPATCH, objects.size());
    const SafeArrayView<IDispatch*> view(array.Get());
    for (size_t i = 0; i < objects.size(); ++i) objects[i].CopyTo(&view.Elements()[i]);
    return array;
}

/// An array of 32-bit integers.
inline SafeArray MakeLongArray(std::span<const long> values) {
    SafeArray array = MakeSafeArray(VT_I4, values.size());
    const SafeArrayView<long> view(array.Get());
    std::copy(values.begin(), values.end(), view.Elements().begin());
    return array;
}

/// The same as variants: script languages read the elements of no other arrays.
inline SafeArray MakeVariantArray(std::span<const long> values) {
    SafeArray array = MakeSafeArray(VT_VARIANT, values.size());
    const SafeArrayView<VARIANT> view(array.Get());
    for (size_t i = 0; i < values.size(); ++i) {
        view.Elements()[i].vt = VT_I4;
        view.Elements()[i].lVal = values[i];
    }
    return array;
}

}  // namespace qz
