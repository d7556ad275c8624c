// The image lists of the bookmark pane.
#pragma once

#include "panes/bookmarks/icon_shapes.h"

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

  private:
    HIMAGELIST handle_ = nullptr;
};

/// The images of a style, in the order of `BookmarkImage`, at the screen's resolution. Throws when the system
/// makes none.
ImageList MakeBookmarkImages(IconStyle style, COLORREF ink);

}  // namespace qz
