// JPEG and PNG pictures as pixels, decoded by the system.
#pragma once

#include "com/object.h"
#include "sample/document/page_list.h"
#include "sample/document/scaled_picture.h"

#include <wincodec.h>

namespace qz::sample {

class PictureDecoder {
  public:
    /// Throws when the picture is damaged or of an unknown kind.
    Raster Decode(const Picture& picture);

  private:
    IWICImagingFactory* Factory();

    ComPtr<IWICImagingFactory> factory_;
};

}  // namespace qz::sample
