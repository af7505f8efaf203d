#include "recognition/PartDecoder.h"

#include "recognition/BmpReader.h"
#include "recognition/FileTraits.h"
#include "recognition/ImageLimits.h"
#include "recognition/VipsPicture.h"

#include <algorithm>
#include <cstdint>

namespace orlen {

namespace {

using ImageDecoder::Decoded;
using VipsPicture::Image;

/// Where a part of the upright picture is stored, by the orientation as EXIF numbers it.
PixelRect storedPart(const PixelRect& part, PixelSize stored, int orientation)
{
    const int fromRight = stored.width - part.x - part.width;
    const int fromBottom = stored.height - part.y - part.height;
    const int sidewaysFromRight = stored.width - part.y - part.height;
    const int sidewaysFromBottom = stored.height - part.x - part.width;
    switch (orientation) {
    case 2:
        return {fromRight, part.y, part.width, part.height};
    case 3:
        return {fromRight, fromBottom, part.width, part.height};
    case 4:
        return {part.x, fromBottom, part.width, part.height};
    case 5:
        return {part.y, part.x, part.height, part.width};
    case 6:
        return {part.y, sidewaysFromBottom, part.height, part.width};
    case 7:
        return {sidewaysFromRight, sidewaysFromBottom, part.height, part.width};
    case 8:
        return {sidewaysFromRight, part.x, part.height, part.width};
    default:
        return part;
    }
}

Image cutOut(const Image& image, const PixelRect& part)
{
    return VipsPicture::applied(image, [&part](VipsImage* in, VipsImage** out) {
        return vips_extract_area(in, out, part.x, part.y, part.width, part.height, nullptr);
    });
}

} // namespace

/// Rows are read one after the other and only the part is held, but by formats that are stored as a whole.
std::optional<Decoded> PartDecoder::decode(int descriptor, const PictureBound& bound)
{
    const VipsPicture::Owned<VipsSource> source(vips_source_new_from_descriptor(descriptor));
    if (!source)
        return std::nullopt;
    const Image stored(
        vips_image_new_from_source(source.get(), "", "access", VIPS_ACCESS_SEQUENTIAL, nullptr));
    if (!stored || FileTraits::isDrawnInLines(stored))
        return std::nullopt;
    Decoded decoded{.width = vips_image_get_width(stored.get()),
                    .height = vips_image_get_height(stored.get()),
                    .isSideways = vips_image_get_orientation_swap(stored.get()) != 0};
    const PixelRect part = bound.part->within(decoded.upright());
    if (!ImageLimits::allow(decoded.width, decoded.height) || part.isEmpty())
        return std::nullopt;
    const PixelRect place =
        storedPart(part, {decoded.width, decoded.height}, vips_image_get_orientation(stored.get()));
    const PixelSize box = decoded.isSideways ? bound.turned().size : bound.size;
    const Image small =
        VipsPicture::asRgb(VipsPicture::scaledDown(cutOut(stored, place), box), PictureUse::photo);
    const Image upright = VipsPicture::upright(small);
    if (!upright)
        return std::nullopt;
    decoded.small = VipsPicture::pixelsOf(upright);
    return decoded;
}

/// A large picture is shrunk first, to fit into memory.
std::optional<Decoded> PartDecoder::decodeBmp(const ByteSource& bytes, const PictureBound& bound)
{
    constexpr int kLongest = 5'000;
    const auto picture = BmpReader::read(bytes, {{kLongest, kLongest}});
    if (!picture)
        return std::nullopt;
    Decoded decoded{.width = picture->width, .height = picture->height};
    const PixelRect part = bound.part->within(decoded.upright());
    const auto scaled = [](int length, int to, int from) {
        return static_cast<int>(std::int64_t{length} * to / from);
    };
    const RgbImage& small = picture->small;
    PixelRect place{scaled(part.x, small.width, picture->width),
                    scaled(part.y, small.height, picture->height),
                    std::max(1, scaled(part.width, small.width, picture->width)),
                    std::max(1, scaled(part.height, small.height, picture->height))};
    place = place.within({small.width, small.height});
    if (part.isEmpty() || place.isEmpty())
        return std::nullopt;
    const Image cut = VipsPicture::scaledDown(cutOut(VipsPicture::imageOf(small), place), bound.size);
    if (!cut)
        return std::nullopt;
    decoded.small = VipsPicture::pixelsOf(cut);
    return decoded;
}

} // namespace orlen
