#pragma once

#include "platform/images/PictureBound.h"
#include "platform/images/RgbImage.h"
#include "recognition/BmpHeader.h"

#include <optional>

/// Reads BMP files of 1, 4, 8, 16, 24 and 32 bits, and run-length encoded ones of 8 bits, stored bottom-up or
/// top-down. Untrusted input; memory is bounded by the small picture and one row. Any thread.
namespace orlen::BmpReader {

struct Picture {
    int width = 0;  ///< pixels of the whole picture
    int height = 0; ///< as width
    RgbImage small;
    bool isComplete = true; ///< no row is missing
    bool hasPalette = false;
};

/// The picture shrunk into the bound's box. Nothing if it is not such a file or too much of it is missing.
[[nodiscard]] std::optional<Picture> read(const ByteSource& source, const PictureBound& bound);

} // namespace orlen::BmpReader
