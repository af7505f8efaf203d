#include "recognition/VipsPicture.h"

#include "recognition/LanczosScale.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace orlen {

namespace {

int overWhite(VipsImage* in, VipsImage** out)
{
    const std::array<double, VipsPicture::kColours> colour{255, 255, 255};
    VipsArrayDouble* background = vips_array_double_new(colour.data(), VipsPicture::kColours);
    const int result = vips_flatten(in, out, "background", background, nullptr);
    vips_area_unref(VIPS_AREA(background));
    return result;
}

} // namespace

VipsPicture::Image VipsPicture::inMemory(const Image& image)
{
    return Image(image ? vips_image_copy_memory(image.get()) : nullptr);
}

VipsPicture::Image VipsPicture::asRgb(const Image& image, PictureUse use)
{
    Image rgb = applied(image, [](VipsImage* in, VipsImage** out) {
        return vips_colourspace(in, out, VIPS_INTERPRETATION_sRGB, nullptr);
    });
    const bool hasAlpha = rgb && vips_image_hasalpha(rgb.get()) != 0;
    if (!hasAlpha && use == PictureUse::icon)
        rgb = applied(rgb, [](VipsImage* in, VipsImage** out) { return vips_addalpha(in, out, nullptr); });
    if (hasAlpha && use != PictureUse::icon)
        rgb = applied(rgb, overWhite);
    const int bands = use == PictureUse::icon ? kColours + 1 : kColours;
    rgb = applied(rgb, [bands](VipsImage* in, VipsImage** out) {
        return vips_extract_band(in, out, 0, "n", bands, nullptr);
    });
    return applied(rgb, [](VipsImage* in, VipsImage** out) { return vips_cast_uchar(in, out, nullptr); });
}

VipsPicture::Image VipsPicture::scaledDown(const Image& image, PixelSize box)
{
    return inMemory(applied(image, [box](VipsImage* in, VipsImage** out) {
        return vips_thumbnail_image(in, out, box.width, "height", box.height, "size", VIPS_SIZE_DOWN,
                                    "no_rotate", TRUE, nullptr);
    }));
}

VipsPicture::Image VipsPicture::scaledDownFast(const Image& image, PixelSize box)
{
    if (!image)
        return nullptr;
    const PixelSize size{vips_image_get_width(image.get()), vips_image_get_height(image.get())};
    const double factor =
        std::max(static_cast<double>(size.width) / box.width, static_cast<double>(size.height) / box.height);
    const auto shrunk = [factor](int side) {
        return std::max(1, static_cast<int>(std::lround(side / factor)));
    };
    if (factor <= 1)
        return inMemory(image);
    const auto* start = static_cast<const std::uint8_t*>(vips_image_get_data(image.get()));
    const RgbImage small = LanczosScale::scaledDown({start, size}, {shrunk(size.width), shrunk(size.height)});
    Image copy = inMemory(imageOf(small));
    if (copy)
        vips_image_set_int(copy.get(), VIPS_META_ORIENTATION, vips_image_get_orientation(image.get()));
    return copy;
}

VipsPicture::Image VipsPicture::upright(const Image& image)
{
    return inMemory(
        applied(image, [](VipsImage* in, VipsImage** out) { return vips_autorot(in, out, nullptr); }));
}

VipsPicture::Image VipsPicture::imageOf(const RgbImage& picture)
{
    const Image bare(vips_image_new_from_memory(picture.pixels.data(), picture.pixels.size(), picture.width,
                                                picture.height, kColours, VIPS_FORMAT_UCHAR));
    return applied(bare, [](VipsImage* in, VipsImage** out) {
        return vips_copy(in, out, "interpretation", VIPS_INTERPRETATION_sRGB, nullptr);
    });
}

RgbImage VipsPicture::pixelsOf(const Image& image)
{
    const auto* start = static_cast<const std::uint8_t*>(vips_image_get_data(image.get()));
    return {vips_image_get_width(image.get()),
            vips_image_get_height(image.get()),
            {start, start + VIPS_IMAGE_SIZEOF_IMAGE(image.get())}};
}

VipsPicture::Pixels VipsPicture::allPixelsOf(const Image& image)
{
    const int bands = vips_image_get_bands(image.get());
    if (bands == kColours)
        return {pixelsOf(image), {}};
    const auto* start = static_cast<const std::uint8_t*>(vips_image_get_data(image.get()));
    const auto* const end = start + VIPS_IMAGE_SIZEOF_IMAGE(image.get());
    Pixels all{{vips_image_get_width(image.get()), vips_image_get_height(image.get()), {}}, {}};
    for (const std::uint8_t* pixel = start; pixel != end; pixel += bands) {
        all.colours.pixels.insert(all.colours.pixels.end(), pixel, pixel + kColours);
        all.alpha.push_back(pixel[kColours]);
    }
    return all;
}

} // namespace orlen
