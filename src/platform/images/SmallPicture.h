#pragma once

#include "platform/images/PictureBound.h"
#include "platform/images/RgbImage.h"

namespace orlen {

/// A picture made small for showing it.
struct SmallPicture {
    PixelSize whole; ///< the picture in the file, upright
    RgbImage image;  ///< upright, the first frame, see-through parts over white
};

} // namespace orlen
