#pragma once

#include "platform/images/PictureTraits.h"
#include "recognition/VipsPicture.h"

/// What a picture's header tells of its file. Pure; one thread.
namespace orlen::FileTraits {

/// As far as the file tells; the pixels tell the rest.
[[nodiscard]] PictureTraits of(const VipsPicture::Image& header);

/// Whether it is vector graphics.
[[nodiscard]] bool isDrawnInLines(const VipsPicture::Image& header);

} // namespace orlen::FileTraits
