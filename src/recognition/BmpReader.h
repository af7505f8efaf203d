#pragma once

#include "platform/images/PictureBound.h"
#include "platform/images/RgbImage.h"
#include "recognition/BmpHeader.h"

#include <optional>

/// Reads BMP files: of 1, 4, 8, 16, 24 and 32 bits, run-length coded ones of 8 bits, from the bottom up and
/// from the top down. The bytes are untrusted; memory is bounded by the small picture and one row. Any
/// thread.
namespace orlen::BmpReader {

struct Picture {
    int width = 0;  ///< pixels of the whole picture
    int height = 0; ///< as width
    RgbImage small;
};

/// Shrunk into the bound's box. Nothing when it is no such file or too much of it is missing.
[[nodiscard]] std::optional<Picture> read(const ByteSource& source, const PictureBound& bound);

} // namespace orlen::BmpReader
