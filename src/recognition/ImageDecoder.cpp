#include "recognition/ImageDecoder.h"

#include "platform/FileContent.h"
#include "recognition/BmpReader.h"
#include "recognition/ImageLimits.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <vips/vips.h>

namespace orlen::ImageDecoder {

namespace {

struct Unref {
    void operator()(gpointer object) const { g_object_unref(object); }
};
template <typename Type>
using Owned = std::unique_ptr<Type, Unref>;
using Image = Owned<VipsImage>;

constexpr int kColours = 3;

/// Applies a call that makes an image of another; absent in, absent out.
template <typename Operation>
Image applied(const Image& image, Operation&& operation)
{
    VipsImage* made = nullptr;
    if (!image || operation(image.get(), &made) != 0)
        return nullptr;
    return Image(made);
}

ByteSource bytesOf(int descriptor)
{
    return [descriptor](std::int64_t offset, std::span<std::uint8_t> buffer) {
        const auto got = readAt(descriptor, offset, std::as_writable_bytes(buffer));
        return got.ok() ? got.value() : std::size_t{0};
    };
}

/// Enough bytes to tell any format; fewer are no picture, and libvips cannot take none at all.
using Start = std::array<std::uint8_t, 4>;

std::optional<Start> startOf(int descriptor)
{
    Start start{};
    return bytesOf(descriptor)(0, start) == start.size() ? std::optional(start) : std::nullopt;
}

bool isBmp(const Start& start)
{
    return start[0] == 'B' && start[1] == 'M';
}

std::optional<Decoded> decodeBmp(int descriptor, const PictureBound& bound)
{
    auto picture = BmpReader::read(bytesOf(descriptor), bound);
    if (!picture)
        return std::nullopt;
    return Decoded{picture->width, picture->height, false, false, std::move(picture->small)};
}

/// Whether the picture's own description of how it was taken has this.
bool tells(const Image& header, const char* name)
{
    const char* value = nullptr;
    if (vips_image_get_typeof(header.get(), name) == 0 ||
        vips_image_get_string(header.get(), name, &value) != 0)
        return false;
    // The value, and in brackets how it is stored: an empty one leaves the brackets alone.
    const std::string_view text(value);
    const std::size_t first = text.find_first_not_of(' ');
    return first != std::string_view::npos && text[first] != '(';
}

bool isFromCamera(const Image& header)
{
    return tells(header, "exif-ifd0-Make") || tells(header, "exif-ifd2-ExposureTime") ||
           tells(header, "exif-ifd2-FocalLength");
}

/// Colours of any kind and depth as sRGB of 8 bits over white.
Image asRgb(const Image& image)
{
    Image rgb = applied(image, [](VipsImage* in, VipsImage** out) {
        return vips_colourspace(in, out, VIPS_INTERPRETATION_sRGB, nullptr);
    });
    if (rgb && vips_image_hasalpha(rgb.get()) != 0) {
        rgb = applied(rgb, [](VipsImage* in, VipsImage** out) {
            const std::array<double, kColours> colour{255, 255, 255};
            VipsArrayDouble* background = vips_array_double_new(colour.data(), kColours);
            const int result = vips_flatten(in, out, "background", background, nullptr);
            vips_area_unref(VIPS_AREA(background));
            return result;
        });
    }
    rgb = applied(rgb, [](VipsImage* in, VipsImage** out) {
        return vips_extract_band(in, out, 0, "n", kColours, nullptr);
    });
    return applied(rgb, [](VipsImage* in, VipsImage** out) { return vips_cast_uchar(in, out, nullptr); });
}

/// Small, in sRGB, lying as it is stored, and wholly in memory. The loader gets its options as text: for a
/// source libvips 8.14 does not hand on how strict it has to be.
Image shrunk(VipsSource* source, PixelSize box, const char* loaderOptions)
{
    VipsImage* made = nullptr;
    if (vips_thumbnail_source(source, &made, box.width, "height", box.height, "size", VIPS_SIZE_DOWN,
                              "no_rotate", TRUE, "option_string", loaderOptions, nullptr) != 0)
        return nullptr;
    const Image rgb = asRgb(Image(made));
    return rgb ? Image(vips_image_copy_memory(rgb.get())) : nullptr;
}

/// Whether so many rows at the end are of one and the same colour that they were never there: decoders fill
/// up what a file lacks.
bool lacksItsEnd(const Image& image)
{
    const int height = vips_image_get_height(image.get());
    const auto length = static_cast<std::ptrdiff_t>(VIPS_IMAGE_SIZEOF_LINE(image.get()));
    const auto* start = static_cast<const std::uint8_t*>(vips_image_get_data(image.get()));
    const std::uint8_t* const end = start + length * height;
    const std::uint8_t* const filling = end - kColours;
    int missing = 0;
    for (const std::uint8_t* row = end - length; row >= start; row -= length, ++missing) {
        bool isFilling = true;
        for (std::ptrdiff_t at = 0; at < length && isFilling; at += kColours)
            isFilling = std::equal(row + at, row + at + kColours, filling);
        if (!isFilling)
            break;
    }
    return missing > ImageLimits::kLargestMissingShare * height;
}

/// Many damaged files are whole but for a few rows or spots, and worth a second, forgiving try.
Image bestEffort(VipsSource* source, PixelSize box)
{
    if (Image whole = shrunk(source, box, "[fail_on=truncated]"))
        return whole;
    Image damaged = shrunk(source, box, "");
    return damaged && !lacksItsEnd(damaged) ? std::move(damaged) : nullptr;
}

RgbImage pixelsOf(const Image& image)
{
    const auto* start = static_cast<const std::uint8_t*>(vips_image_get_data(image.get()));
    return {vips_image_get_width(image.get()),
            vips_image_get_height(image.get()),
            {start, start + VIPS_IMAGE_SIZEOF_IMAGE(image.get())}};
}

void cutToMiddle(RgbImage& image, PixelSize size)
{
    if (size == PixelSize{image.width, image.height})
        return;
    RgbImage middle{size.width, size.height, {}};
    middle.pixels.reserve(RgbImage::byteCount(size.width, size.height));
    const int left = (image.width - size.width) / 2;
    const int top = (image.height - size.height) / 2;
    for (int y = 0; y < size.height; ++y) {
        const std::uint8_t* const start = image.row(top + y) + RgbImage::byteCount(left, 1);
        middle.pixels.insert(middle.pixels.end(), start, start + RgbImage::byteCount(size.width, 1));
    }
    image = std::move(middle);
}

/// The size that a picture is shrunk into while it still lies as it is stored.
PixelSize boxOf(const Decoded& picture, const PictureBound& bound)
{
    return (picture.isLying ? bound.turned() : bound).box({picture.width, picture.height});
}

std::optional<Decoded> decodeOther(int descriptor, const PictureBound& bound)
{
    const Owned<VipsSource> source(vips_source_new_from_descriptor(descriptor));
    if (!source)
        return std::nullopt;
    Decoded decoded;
    if (const Image header{
            vips_image_new_from_source(source.get(), "", "access", VIPS_ACCESS_SEQUENTIAL, nullptr)}) {
        decoded.width = vips_image_get_width(header.get());
        decoded.height = vips_image_get_height(header.get());
        decoded.isLying = vips_image_get_orientation_swap(header.get()) != 0;
        decoded.isFromCamera = isFromCamera(header);
    }
    if (!ImageLimits::allow(decoded.width, decoded.height))
        return std::nullopt;
    const Image lying = bestEffort(source.get(), boxOf(decoded, bound));
    Image upright =
        applied(lying, [](VipsImage* in, VipsImage** out) { return vips_autorot(in, out, nullptr); });
    if (upright)
        upright.reset(vips_image_copy_memory(upright.get()));
    if (!upright)
        return std::nullopt;
    decoded.small = pixelsOf(upright);
    return decoded;
}

} // namespace

void prepare()
{
    if (VIPS_INIT("orlen-recognizer") != 0)
        std::abort();
    vips_concurrency_set(1);
    vips_cache_set_max(0);
    // By content, not by name: what is not listed here is no picture, whatever its name promises.
    vips_operation_block_set("VipsForeignLoad", TRUE);
    for (const char* loader : {"VipsForeignLoadJpeg", "VipsForeignLoadPng", "VipsForeignLoadHeif",
                               "VipsForeignLoadTiff", "VipsForeignLoadWebp", "VipsForeignLoadNsgif"})
        vips_operation_block_set(loader, FALSE);
}

std::optional<Decoded> decode(int descriptor, const PictureBound& bound)
{
    const std::optional<Start> start = startOf(descriptor);
    if (!start)
        return std::nullopt;
    auto decoded = isBmp(*start) ? decodeBmp(descriptor, bound) : decodeOther(descriptor, bound);
    vips_error_clear();
    if (decoded)
        cutToMiddle(decoded->small, bound.shown({decoded->small.width, decoded->small.height}));
    return decoded;
}

} // namespace orlen::ImageDecoder
