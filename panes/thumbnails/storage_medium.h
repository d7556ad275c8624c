// An owner of a STGMEDIUM.
#pragma once

#include <objidl.h>
#include <ole2.h>

#include <utility>

namespace qz {

/// Owns what a data object handed out, and releases it as the medium itself says.
class StorageMedium {
  public:
    StorageMedium() = default;
    /// Takes a medium over.
    explicit StorageMedium(const STGMEDIUM& medium) noexcept : medium_(medium) {}
    StorageMedium(StorageMedium&& other) noexcept : medium_(other.Detach()) {}
    StorageMedium& operator=(StorageMedium&& other) noexcept {
        std::swap(medium_, other.medium_);
        return *this;
    }
    ~StorageMedium() { ReleaseStgMedium(&medium_); }

    const STGMEDIUM& Get() const noexcept { return medium_; }
    /// Where a callee puts a medium; there must be none yet.
    STGMEDIUM* Out() noexcept { return &medium_; }
    STGMEDIUM Detach() noexcept { return std::exchange(medium_, STGMEDIUM{}); }

  private:
    STGMEDIUM medium_{};
};

}  // namespace qz
