#pragma once

#include "recognition/BmpHeader.h"
#include "recognition/RgbImage.h"

#include <optional>

/// Reads BMP files: of 1, 4, 8, 16, 24 and 32 bits, run-length coded ones of 8 bits, from the bottom up and
/// from the top down. The bytes are untrusted; memory is bounded by the thumbnail and one row. Any thread.
namespace orlen::BmpReader {

struct Picture {
    int width = 0;  ///< pixels of the whole picture
    int height = 0; ///< as width
    RgbImage thumbnail;
};

/// Shrunk to at most `side` pixels on the longest side. Nothing when it is no such file or too much of it is
/// missing.
[[nodiscard]] std::optional<Picture> read(const ByteSource& source, int side);

} // namespace orlen::BmpReader
