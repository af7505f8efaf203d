#pragma once

#include "platform/images/PictureBound.h"
#include "platform/images/PictureTraits.h"
#include "platform/images/SmallPicture.h"

#include <optional>

/// Decodes pictures at reduced size. Pictures are untrusted, and decoding them may crash, hang or exhaust
/// memory, so only the recognizer, a process with limits, calls this (see ImageWorkers).
namespace orlen::ImageDecoder {

/// The size recognition works on.
inline constexpr PictureBound kForRecognition{{512, 512}, PictureBound::Fit::inside};

struct Decoded {
    int width = 0;  ///< pixels of the whole picture according to its header; 0 if unknown
    int height = 0; ///< as width
    /// Whether it is stored sideways: upright, width and height are swapped.
    bool isSideways = false;
    /// As far as the file tells; the pixels tell the rest.
    PictureTraits traits;
    /// Upright, the first frame, never enlarged unless it is vector graphics.
    RgbImage small;
    std::vector<std::uint8_t> alpha; ///< as in SmallPicture
    int pages = 0;                   ///< of a document

    /// The size of the whole picture once upright.
    [[nodiscard]] PixelSize upright() const
    {
        return isSideways ? PixelSize{height, width} : PixelSize{width, height};
    }
};

/// Call once per process, before the first picture: allows only the known formats, and opens all files that
/// decoding will ever need.
void prepare();

/// The picture in an open file, or the part of it that the bound names; its format is detected from the
/// content. Nothing if it is not a known format, is damaged beyond use, or is larger than any picture should
/// be. One thread.
[[nodiscard]] std::optional<Decoded> decode(int descriptor, const PictureBound& bound,
                                            PictureUse use = PictureUse::photo);

} // namespace orlen::ImageDecoder
