// A bitmap to draw into.
#pragma once

#include "ui/gdi.h"

namespace qz::bench {

/// A device context in memory with a bitmap of that size selected.
class Canvas {
  public:
    Canvas(int width, int height) : bitmap_(width, height), selected_(dc_.Get(), bitmap_.Get()) {}

    HDC Dc() const noexcept { return dc_.Get(); }

  private:
    MemoryDc dc_;
    DibSection bitmap_;
    SelectScope selected_;
};

}  // namespace qz::bench
