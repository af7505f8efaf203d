#pragma once

#include "recognition/RgbImage.h"

#include <optional>

/// Reads pictures for recognition. Pictures are untrusted and decoding them may crash, hang or need memory
/// without limit: only the recognizer, a process with limits, calls this (see ImageWorkers).
namespace orlen::ImageDecoder {

/// Longest side of a thumbnail, in pixels.
inline constexpr int kThumbnailSide = 512;

struct Decoded {
    int width = 0;  ///< pixels of the whole picture as its header tells them; 0 when unknown
    int height = 0; ///< as width; not swapped for a picture that is stored lying on its side
    /// Whether the file says what camera made it, or for how long it was exposed.
    bool isFromCamera = false;
    /// Upright, never larger than the picture, the first frame, see-through parts over white.
    RgbImage thumbnail;
};

/// Once per process, before the first picture: allows the known formats only.
void prepare();

/// The picture in an open file, told by its content. Nothing when it is no picture of a known format, is
/// damaged beyond use, or larger than any picture should be. One thread.
[[nodiscard]] std::optional<Decoded> decode(int descriptor);

} // namespace orlen::ImageDecoder
