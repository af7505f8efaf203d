#pragma once

#include <cstdint>

namespace orlen {

enum class PictureFormat : std::uint8_t { other, jpeg, heif, webp, png, tiff, gif, bmp, jxl };

/// What tells copies of one picture apart, besides their size.
struct PictureTraits {
    PictureFormat format = PictureFormat::other;
    bool isDamaged = false;    ///< only part of it could be read
    bool isFlat = false;       ///< one colour with at most some noise: nothing that could be out of focus
    bool isGrey = false;       ///< has no colours
    bool hasPalette = false;   ///< stored in 256 colours at most
    bool isFromCamera = false; ///< the file names a camera or an exposure time

    friend bool operator==(const PictureTraits&, const PictureTraits&) = default;
};

} // namespace orlen
