#include "recognition/ImageDecoder.h"

#include "platform/files/FileContent.h"
#include "recognition/BmpReader.h"
#include "recognition/ImageLimits.h"
#include "recognition/Samples.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>
#include <memory>
#include <string_view>
#include <utility>
#include <vips/vips.h>

#if VIPS_MAJOR_VERSION == 8 && VIPS_MINOR_VERSION < 15
#include <vips/vector.h>
#define ORLEN_VIPS_WRITES_CODE
#endif

namespace orlen::ImageDecoder {

namespace {

struct Unref {
    void operator()(gpointer object) const { g_object_unref(object); }
};
template <typename Type>
using Owned = std::unique_ptr<Type, Unref>;
using Image = Owned<VipsImage>;

constexpr int kColours = 3;

/// Applies a call that turns one image into another; absent in, absent out.
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

/// Enough bytes to detect any format; with fewer it is not a picture, and libvips does not accept empty
/// input.
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

/// Whether the picture's metadata has this field.
bool tells(const Image& header, const char* name)
{
    const char* value = nullptr;
    if (vips_image_get_typeof(header.get(), name) == 0 ||
        vips_image_get_string(header.get(), name, &value) != 0)
        return false;
    // The value, and its storage type in brackets; an empty value leaves only the brackets.
    const std::string_view text(value);
    const std::size_t first = text.find_first_not_of(' ');
    return first != std::string_view::npos && text[first] != '(';
}

bool isFromCamera(const Image& header)
{
    return tells(header, "exif-ifd0-Make") || tells(header, "exif-ifd2-ExposureTime") ||
           tells(header, "exif-ifd2-FocalLength");
}

std::string_view loaderOf(const Image& header)
{
    const char* loader = nullptr;
    return vips_image_get_string(header.get(), VIPS_META_LOADER, &loader) == 0 ? loader : "";
}

bool isDrawnInLines(const Image& header)
{
    return loaderOf(header).starts_with("svg");
}

PictureTraits traitsOf(const Image& header)
{
    constexpr std::pair<std::string_view, PictureFormat> kLoaders[] = {
        {"jpeg", PictureFormat::jpeg}, {"heif", PictureFormat::heif}, {"webp", PictureFormat::webp},
        {"png", PictureFormat::png},   {"tiff", PictureFormat::tiff}, {"gif", PictureFormat::gif},
    };
    PictureTraits traits{.isFromCamera = isFromCamera(header)};
    for (const auto& [loader, format] : kLoaders) {
        if (loaderOf(header).starts_with(loader))
            traits.format = format;
    }
    // The second is the name since libvips 8.15.
    for (const char* field : {"palette-bit-depth", "palette"})
        traits.hasPalette = traits.hasPalette || vips_image_get_typeof(header.get(), field) != 0;
    return traits;
}

/// Any colour space and depth as 8-bit sRGB: a photo over white, an icon with its alpha.
Image asRgb(const Image& image, PictureUse use)
{
    Image rgb = applied(image, [](VipsImage* in, VipsImage** out) {
        return vips_colourspace(in, out, VIPS_INTERPRETATION_sRGB, nullptr);
    });
    const bool hasAlpha = rgb && vips_image_hasalpha(rgb.get()) != 0;
    if (!hasAlpha && use == PictureUse::icon)
        rgb = applied(rgb, [](VipsImage* in, VipsImage** out) { return vips_addalpha(in, out, nullptr); });
    if (hasAlpha && use == PictureUse::photo) {
        rgb = applied(rgb, [](VipsImage* in, VipsImage** out) {
            const std::array<double, kColours> colour{255, 255, 255};
            VipsArrayDouble* background = vips_array_double_new(colour.data(), kColours);
            const int result = vips_flatten(in, out, "background", background, nullptr);
            vips_area_unref(VIPS_AREA(background));
            return result;
        });
    }
    const int bands = use == PictureUse::icon ? kColours + 1 : kColours;
    rgb = applied(rgb, [bands](VipsImage* in, VipsImage** out) {
        return vips_extract_band(in, out, 0, "n", bands, nullptr);
    });
    return applied(rgb, [](VipsImage* in, VipsImage** out) { return vips_cast_uchar(in, out, nullptr); });
}

struct Wanted {
    PixelSize box; ///< in stored orientation
    PictureUse use;
    bool mayGrow;
};

/// Small, in sRGB, in stored orientation and fully in memory. The loader gets its options as text because
/// libvips 8.14 does not pass the strictness on for a source.
Image shrunk(VipsSource* source, const Wanted& wanted, const char* loaderOptions)
{
    VipsImage* made = nullptr;
    if (vips_thumbnail_source(source, &made, wanted.box.width, "height", wanted.box.height, "size",
                              wanted.mayGrow ? VIPS_SIZE_BOTH : VIPS_SIZE_DOWN, "no_rotate", TRUE,
                              "option_string", loaderOptions, nullptr) != 0)
        return nullptr;
    const Image rgb = asRgb(Image(made), wanted.use);
    return rgb ? Image(vips_image_copy_memory(rgb.get())) : nullptr;
}

/// Whether so many rows at the end have one colour that they were never stored: decoders fill in what a file
/// lacks.
bool lacksItsEnd(const Image& image)
{
    const int height = vips_image_get_height(image.get());
    const auto length = static_cast<std::ptrdiff_t>(VIPS_IMAGE_SIZEOF_LINE(image.get()));
    const int bands = vips_image_get_bands(image.get());
    const auto* start = static_cast<const std::uint8_t*>(vips_image_get_data(image.get()));
    const std::uint8_t* const end = start + length * height;
    const std::uint8_t* const filling = end - bands;
    int missing = 0;
    for (const std::uint8_t* row = end - length; row >= start; row -= length, ++missing) {
        bool isFilling = true;
        for (std::ptrdiff_t at = 0; at < length && isFilling; at += bands)
            isFilling = std::equal(row + at, row + at + bands, filling);
        if (!isFilling)
            break;
    }
    return missing > ImageLimits::kLargestMissingShare * height;
}

/// Many damaged files are complete except for a few rows or spots, and deserve a second, lenient try.
Image bestEffort(VipsSource* source, const Wanted& wanted, bool& isDamaged)
{
    if (Image whole = shrunk(source, wanted, "[fail_on=truncated]"))
        return whole;
    isDamaged = true;
    Image damaged = shrunk(source, wanted, "");
    return damaged && !lacksItsEnd(damaged) ? std::move(damaged) : nullptr;
}

/// Of an image in memory, in three bands.
RgbImage pixelsOf(const Image& image)
{
    const auto* start = static_cast<const std::uint8_t*>(vips_image_get_data(image.get()));
    return {vips_image_get_width(image.get()),
            vips_image_get_height(image.get()),
            {start, start + VIPS_IMAGE_SIZEOF_IMAGE(image.get())}};
}

/// Borrows the pixels.
Image imageOf(const RgbImage& picture)
{
    const Image bare(vips_image_new_from_memory(picture.pixels.data(), picture.pixels.size(), picture.width,
                                                picture.height, kColours, VIPS_FORMAT_UCHAR));
    return applied(bare, [](VipsImage* in, VipsImage** out) {
        return vips_copy(in, out, "interpretation", VIPS_INTERPRETATION_sRGB, nullptr);
    });
}

/// The pixels, and their alpha if they have it.
void store(Decoded& decoded, const Image& image)
{
    const int bands = vips_image_get_bands(image.get());
    if (bands == kColours) {
        decoded.small = pixelsOf(image);
        return;
    }
    const auto* start = static_cast<const std::uint8_t*>(vips_image_get_data(image.get()));
    const auto* const end = start + VIPS_IMAGE_SIZEOF_IMAGE(image.get());
    decoded.small = {vips_image_get_width(image.get()), vips_image_get_height(image.get()), {}};
    std::vector<std::uint8_t>& pixels = decoded.small.pixels;
    for (const std::uint8_t* pixel = start; pixel != end; pixel += bands) {
        pixels.insert(pixels.end(), pixel, pixel + kColours);
        decoded.alpha.push_back(pixel[kColours]);
    }
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

/// Room for the filter that most formats are shrunk with. The mean over pixels, which the readers of BMP and
/// WebP take, is softer: the same picture would look less sharp.
PictureBound enlarged(const PictureBound& bound)
{
    constexpr int kFactor = 4;
    constexpr int kLongest = 2048; // it has to fit into memory
    const auto larger = [=](int side) { return std::max(side, std::min(side * kFactor, kLongest)); };
    return {{larger(bound.size.width), larger(bound.size.height)}, bound.fit};
}

Image scaledDown(const Image& image, PixelSize box)
{
    const Image small = applied(image, [box](VipsImage* in, VipsImage** out) {
        return vips_thumbnail_image(in, out, box.width, "height", box.height, "size", VIPS_SIZE_DOWN,
                                    "no_rotate", TRUE, nullptr);
    });
    return small ? Image(vips_image_copy_memory(small.get())) : nullptr;
}

std::optional<Decoded> decodeBmp(int descriptor, const PictureBound& bound, PictureUse use)
{
    auto picture = BmpReader::read(bytesOf(descriptor), enlarged(bound));
    if (!picture)
        return std::nullopt;
    Decoded decoded{.width = picture->width, .height = picture->height};
    decoded.traits = {
        .format = PictureFormat::bmp, .isDamaged = !picture->isComplete, .hasPalette = picture->hasPalette};
    const Image small = scaledDown(imageOf(picture->small), bound.box({picture->width, picture->height}));
    if (!small)
        return std::nullopt;
    decoded.small = pixelsOf(small);
    if (use == PictureUse::icon)
        decoded.alpha.assign(decoded.small.pixels.size() / kColours,
                             std::numeric_limits<std::uint8_t>::max());
    return decoded;
}

/// The size a picture is shrunk to in stored orientation.
PixelSize boxOf(const Decoded& picture, const PictureBound& bound)
{
    return (picture.isSideways ? bound.turned() : bound).box({picture.width, picture.height});
}

std::optional<Decoded> decodeOther(int descriptor, const PictureBound& bound, PictureUse use)
{
    const Owned<VipsSource> source(vips_source_new_from_descriptor(descriptor));
    if (!source)
        return std::nullopt;
    Decoded decoded;
    bool isDrawing = false;
    if (const Image header{
            vips_image_new_from_source(source.get(), "", "access", VIPS_ACCESS_SEQUENTIAL, nullptr)}) {
        decoded.width = vips_image_get_width(header.get());
        decoded.height = vips_image_get_height(header.get());
        decoded.isSideways = vips_image_get_orientation_swap(header.get()) != 0;
        decoded.traits = traitsOf(header);
        isDrawing = isDrawnInLines(header);
    }
    if (!ImageLimits::allow(decoded.width, decoded.height) || (isDrawing && use == PictureUse::photo))
        return std::nullopt;
    const bool isShrunkSoftly = decoded.traits.format == PictureFormat::webp;
    const PixelSize box = boxOf(decoded, isShrunkSoftly ? enlarged(bound) : bound);
    Image stored = bestEffort(source.get(), {box, use, isDrawing}, decoded.traits.isDamaged);
    if (isShrunkSoftly)
        stored = scaledDown(stored, boxOf(decoded, bound));
    Image upright =
        applied(stored, [](VipsImage* in, VipsImage** out) { return vips_autorot(in, out, nullptr); });
    if (upright)
        upright.reset(vips_image_copy_memory(upright.get()));
    if (!upright)
        return std::nullopt;
    store(decoded, upright);
    return decoded;
}

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
    return applied(image, [&part](VipsImage* in, VipsImage** out) {
        return vips_extract_area(in, out, part.x, part.y, part.width, part.height, nullptr);
    });
}

/// Rows are read one after the other and only the part is held, but by formats that are stored as a whole.
std::optional<Decoded> decodePartOfOther(int descriptor, const PictureBound& bound)
{
    const Owned<VipsSource> source(vips_source_new_from_descriptor(descriptor));
    if (!source)
        return std::nullopt;
    const Image stored(
        vips_image_new_from_source(source.get(), "", "access", VIPS_ACCESS_SEQUENTIAL, nullptr));
    if (!stored || isDrawnInLines(stored))
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
    const Image small = asRgb(scaledDown(cutOut(stored, place), box), PictureUse::photo);
    const Image upright =
        applied(small, [](VipsImage* in, VipsImage** out) { return vips_autorot(in, out, nullptr); });
    const Image held(upright ? vips_image_copy_memory(upright.get()) : nullptr);
    if (!held)
        return std::nullopt;
    store(decoded, held);
    return decoded;
}

/// A large picture is shrunk first, to fit into memory.
std::optional<Decoded> decodePartOfBmp(int descriptor, const PictureBound& bound)
{
    constexpr int kLongest = 5'000;
    const auto picture = BmpReader::read(bytesOf(descriptor), {{kLongest, kLongest}});
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
    const Image cut = scaledDown(cutOut(imageOf(small), place), bound.size);
    if (!cut)
        return std::nullopt;
    decoded.small = pixelsOf(cut);
    return decoded;
}

/// Decoders load their parts when they see their first picture. Its header is enough for that, and starts no
/// thread.
void warmUp()
{
    for (const std::span<const std::uint8_t> sample : Samples::all()) {
        const Owned<VipsSource> source(vips_source_new_from_memory(sample.data(), sample.size()));
        const Image header(source ? vips_image_new_from_source(source.get(), "", nullptr) : nullptr);
    }
    vips_error_clear();
}

} // namespace

void prepare()
{
    if (VIPS_INIT("orlen-recognizer") != 0)
        std::abort();
    vips_concurrency_set(1);
    vips_cache_set_max(0);
#ifdef ORLEN_VIPS_WRITES_CODE
    // These versions generate code per picture, into files in the home folder if they can; reading is as fast
    // without.
    vips_vector_set_enabled(FALSE);
#endif
    // By content, not by name: what is not listed here is not a picture, whatever its name says.
    vips_operation_block_set("VipsForeignLoad", TRUE);
    for (const char* loader :
         {"VipsForeignLoadJpeg", "VipsForeignLoadPng", "VipsForeignLoadHeif", "VipsForeignLoadTiff",
          "VipsForeignLoadWebp", "VipsForeignLoadNsgif", "VipsForeignLoadSvg"})
        vips_operation_block_set(loader, FALSE);
    warmUp();
}

std::optional<Decoded> decode(int descriptor, const PictureBound& bound, PictureUse use)
{
    const std::optional<Start> start = startOf(descriptor);
    if (!start)
        return std::nullopt;
    if (bound.part) {
        auto decoded =
            isBmp(*start) ? decodePartOfBmp(descriptor, bound) : decodePartOfOther(descriptor, bound);
        vips_error_clear();
        return decoded;
    }
    auto decoded = isBmp(*start) ? decodeBmp(descriptor, bound, use) : decodeOther(descriptor, bound, use);
    vips_error_clear();
    if (decoded)
        cutToMiddle(decoded->small, bound.shown({decoded->small.width, decoded->small.height}));
    return decoded;
}

} // namespace orlen::ImageDecoder
