#pragma once

#include "platform/images/PictureBound.h"
#include "platform/images/RgbImage.h"

namespace orlen {

enum class PictureUse {
    photo, ///< see-through parts over white
    icon,  ///< drawings in lines are pictures too and grow; see-through parts stay
};

/// A picture made small for showing it.
struct SmallPicture {
    PixelSize whole; ///< the picture in the file, upright
    RgbImage image;  ///< upright, the first frame
    /// Of an icon: how little of what lies behind each pixel shows through, 255 nothing; else empty.
    std::vector<std::uint8_t> alpha;
};

} // namespace orlen
