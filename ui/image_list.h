// An owner of an image list.
#pragma once

#include <windows.h>
#include <commctrl.h>

#include <utility>

namespace qz {

/// Owns an image list; empty by default.
class ImageList {
  public:
    ImageList() = default;
    explicit ImageList(HIMAGELIST handle) noexcept : handle_(handle) {}
    ImageList(ImageList&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
    ImageList& operator=(ImageList&& other) noexcept {
        std::swap(handle_, other.handle_);
        return *this;
    }
    ~ImageList() {
        if (handle_) ImageList_Destroy(handle_);
    }

    HIMAGELIST Get() const noexcept { return handle_; }
    explicit operator bool() const noexcept { return handle_ != nullptr; }

  private:
    HIMAGELIST handle_ = nullptr;
};

}  // namespace qz
