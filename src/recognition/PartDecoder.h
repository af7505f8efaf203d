#pragma once

#include "platform/images/PictureBound.h"
#include "recognition/BmpHeader.h"
#include "recognition/ImageDecoder.h"

#include <optional>

/// Decodes a part of a picture, to compare two pictures closely. As ImageDecoder, of which it is a part; the
/// bound names the part of the upright picture. Nothing if the part lies beside the picture.
namespace orlen::PartDecoder {

/// Of a picture that libvips reads.
[[nodiscard]] std::optional<ImageDecoder::Decoded> decode(int descriptor, const PictureBound& bound);

[[nodiscard]] std::optional<ImageDecoder::Decoded> decodeBmp(const ByteSource& bytes,
                                                             const PictureBound& bound);

} // namespace orlen::PartDecoder
