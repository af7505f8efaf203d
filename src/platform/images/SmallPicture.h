#pragma once

#include "platform/images/PictureBound.h"
#include "platform/images/RgbImage.h"

namespace orlen {

enum class PictureUse {
    photo, ///< transparent parts over white
    page,  ///< the first page of a document, which is scaled up, too; and of nothing else
    icon,  ///< vector graphics are allowed and scaled up; transparency is kept
};

/// A picture made small for display.
struct SmallPicture {
    PixelSize whole; ///< the picture in the file, upright; of a page, in points
    RgbImage image;  ///< upright, the first frame
    int pages = 0;   ///< of a document
    /// Opacity of each pixel of an icon, 255 is opaque; empty for a photo.
    std::vector<std::uint8_t> alpha;
};

} // namespace orlen
