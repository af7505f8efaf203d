#pragma once

#include "platform/images/PictureBound.h"
#include "platform/images/SmallPicture.h"

#include <optional>

/// Reads pictures, made small. Pictures are untrusted and decoding them may crash, hang or need memory
/// without limit: only the recognizer, a process with limits, calls this (see ImageWorkers).
namespace orlen::ImageDecoder {

/// What recognition looks at.
inline constexpr PictureBound kForRecognition{{512, 512}, PictureBound::Fit::inside};

struct Decoded {
    int width = 0;  ///< pixels of the whole picture as its header tells them; 0 when unknown
    int height = 0; ///< as width
    /// Whether it is stored lying on its side: upright, width and height are the other way round.
    bool isSideways = false;
    /// Whether the file says what camera made it, or for how long it was exposed.
    bool isFromCamera = false;
    /// Upright, never larger than the picture unless that is drawn in lines, the first frame.
    RgbImage small;
    std::vector<std::uint8_t> alpha; ///< as a small picture has it

    /// The size of the whole picture when it is upright.
    [[nodiscard]] PixelSize upright() const
    {
        return isSideways ? PixelSize{height, width} : PixelSize{width, height};
    }
};

/// Once per process, before the first picture: allows the known formats only, and opens all files that
/// decoding them will ever need.
void prepare();

/// The picture in an open file, told by its content. Nothing when it is no picture of a known format, is
/// damaged beyond use, or larger than any picture should be. One thread.
[[nodiscard]] std::optional<Decoded> decode(int descriptor, const PictureBound& bound,
                                            PictureUse use = PictureUse::photo);

} // namespace orlen::ImageDecoder
