// Keys that are down while others are pressed.
#pragma once

#include <windows.h>

#include <initializer_list>

namespace qz {

/// The thread takes these keys, and no others, for down until the scope ends.
class HeldKeys {
  public:
    explicit HeldKeys(std::initializer_list<int> down) {
        GetKeyboardState(before_);
        BYTE keys[256] = {};
        for (const int key : down) keys[key] = 0x80;
        SetKeyboardState(keys);
    }
    ~HeldKeys() { SetKeyboardState(before_); }
    HeldKeys(const HeldKeys&) = delete;
    HeldKeys& operator=(const HeldKeys&) = delete;

  private:
    BYTE before_[256] = {};
};

}  // namespace qz
