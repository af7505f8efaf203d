#pragma once

#include "platform/images/PictureTraits.h"
#include "recognition/VipsPicture.h"

#include <cstdint>

/// What a picture's header tells of its file. Pure; one thread.
namespace orlen::FileTraits {

/// As far as the file tells; the pixels tell the rest.
[[nodiscard]] PictureTraits of(const VipsPicture::Image& header);

/// Whether it is a thumbnail by the freedesktop standard, made of a file that was last changed then, in
/// seconds since 1970.
[[nodiscard]] bool isThumbnail(const VipsPicture::Image& header, std::int64_t madeOf);

/// Whether it is vector graphics.
[[nodiscard]] bool isDrawnInLines(const VipsPicture::Image& header);

} // namespace orlen::FileTraits
