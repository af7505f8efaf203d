#pragma once

#include "platform/images/RgbImage.h"
#include "platform/images/SmallPicture.h"

#include <cstdint>
#include <memory>
#include <vector>
#include <vips/vips.h>

/// Pictures in the hands of libvips, and what is done to them on the way to our own pixels. Absent pictures
/// are allowed everywhere and stay absent. One thread each.
namespace orlen::VipsPicture {

struct Unref {
    void operator()(gpointer object) const { g_object_unref(object); }
};
template <typename Type>
using Owned = std::unique_ptr<Type, Unref>;
using Image = Owned<VipsImage>;

inline constexpr int kColours = 3;

/// Applies a call that turns one image into another; absent when it fails.
template <typename Operation>
Image applied(const Image& image, Operation&& operation)
{
    VipsImage* made = nullptr;
    if (!image || operation(image.get(), &made) != 0)
        return nullptr;
    return Image(made);
}

/// With all its pixels computed.
[[nodiscard]] Image inMemory(const Image& image);

/// Any colour space and depth as 8-bit sRGB: a photo over white, an icon with its alpha.
[[nodiscard]] Image asRgb(const Image& image, PictureUse use);

/// Fits into the box, in memory; never larger than it was.
[[nodiscard]] Image scaledDown(const Image& image, PixelSize box);

/// The same for three bands in memory, with the filter of libvips in less than half of its time; stays as it
/// is when it fits. Keeps the note how it is turned, and no other.
[[nodiscard]] Image scaledDownFast(const Image& image, PixelSize box);

/// Turned as its notes say, in memory.
[[nodiscard]] Image upright(const Image& image);

/// Borrows the pixels.
[[nodiscard]] Image imageOf(const RgbImage& picture);

/// Of an image in memory, in three bands.
[[nodiscard]] RgbImage pixelsOf(const Image& image);

struct Pixels {
    RgbImage colours;
    std::vector<std::uint8_t> alpha; ///< empty if it has none
};
/// Of an image in memory, in three bands or four.
[[nodiscard]] Pixels allPixelsOf(const Image& image);

} // namespace orlen::VipsPicture
