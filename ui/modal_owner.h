// Over what a component shows a modal window.
#pragma once

#include "com/object.h"

#include <windows.h>
#include <oleidl.h>

namespace qz {

struct ModalOwner {
    HWND window = nullptr;  ///< Any window of the component; what is modal is so over its top-level one.
    ComPtr<IOleInPlaceFrame> frame;  ///< The container's, to be told; null for none.
};

/// Has the container disable its modeless windows for a scope. Both ends are calls out.
class ModelessPause {
  public:
    explicit ModelessPause(ComPtr<IOleInPlaceFrame> frame) : frame_(std::move(frame)) {
        if (frame_) frame_->EnableModeless(FALSE);
    }
    ~ModelessPause() {
        if (frame_) frame_->EnableModeless(TRUE);
    }
    ModelessPause(const ModelessPause&) = delete;
    ModelessPause& operator=(const ModelessPause&) = delete;

  private:
    ComPtr<IOleInPlaceFrame> frame_;  ///< The same one is told of the end.
};

}  // namespace qz
