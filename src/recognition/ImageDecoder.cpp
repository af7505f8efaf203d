#include "recognition/ImageDecoder.h"

#include "platform/files/FileContent.h"
#include "recognition/BmpReader.h"
#include "recognition/FileTraits.h"
#include "recognition/ImageLimits.h"
#include "recognition/PartDecoder.h"
#include "recognition/Samples.h"
#include "recognition/VipsPicture.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdlib>
#include <limits>
#include <string>
#include <utility>

#if VIPS_MAJOR_VERSION == 8 && VIPS_MINOR_VERSION < 15
#include <vips/vector.h>
#define ORLEN_VIPS_WRITES_CODE
#endif

namespace orlen::ImageDecoder {

namespace {

using VipsPicture::Image;
using VipsPicture::Owned;

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

bool isDocument(const Start& start)
{
    return start == Start{'%', 'P', 'D', 'F'};
}

struct Wanted {
    PixelSize box; ///< in stored orientation
    PictureUse use;
    bool mayGrow;
    int jpegFactor = 1; ///< the reduction that its decoder does; 1 for other formats
};

/// How far the decoder of JPEG shrinks a picture, which takes blocks of pixels together: the filter that
/// comes after it needs twice the size at least.
int jpegFactor(PixelSize picture, PixelSize box)
{
    constexpr int kMost = 8;
    const int factor =
        std::max(picture.width / std::max(1, box.width), picture.height / std::max(1, box.height));
    return static_cast<int>(std::bit_floor(static_cast<unsigned>(std::clamp(factor / 2, 1, kMost))));
}

/// As `shrunk` for whole JPEG in plain colours, only faster, which matters for large ones; absent for others.
Image shrunkJpeg(VipsSource* source, const Wanted& wanted)
{
    const std::string options = "[fail_on=truncated,shrink=" + std::to_string(wanted.jpegFactor) + ']';
    const Image loaded(
        vips_image_new_from_source(source, options.c_str(), "access", VIPS_ACCESS_SEQUENTIAL, nullptr));
    const bool isPlain = loaded && vips_image_get_bands(loaded.get()) == VipsPicture::kColours &&
                         vips_image_get_format(loaded.get()) == VIPS_FORMAT_UCHAR &&
                         vips_image_get_interpretation(loaded.get()) == VIPS_INTERPRETATION_sRGB;
    return isPlain ? VipsPicture::scaledDownFast(VipsPicture::inMemory(loaded), wanted.box) : nullptr;
}

/// Small, in sRGB, in stored orientation and fully in memory. The loader gets its options as text because
/// libvips 8.14 does not pass the strictness on for a source.
Image shrunk(VipsSource* source, const Wanted& wanted, const char* loaderOptions)
{
    VipsImage* made = nullptr;
    if (vips_thumbnail_source(source, &made, wanted.box.width, "height", wanted.box.height, "size",
                              wanted.mayGrow ? VIPS_SIZE_BOTH : VIPS_SIZE_DOWN, "no_rotate", TRUE,
                              "option_string", loaderOptions, nullptr) != 0)
        return nullptr;
    return VipsPicture::inMemory(VipsPicture::asRgb(Image(made), wanted.use));
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
    if (Image whole = wanted.jpegFactor > 1 ? shrunkJpeg(source, wanted) : nullptr)
        return whole;
    if (Image whole = shrunk(source, wanted, "[fail_on=truncated]"))
        return whole;
    isDamaged = true;
    Image damaged = shrunk(source, wanted, "");
    return damaged && !lacksItsEnd(damaged) ? std::move(damaged) : nullptr;
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

std::optional<Decoded> decodeBmp(int descriptor, const PictureBound& bound, PictureUse use)
{
    auto picture = BmpReader::read(bytesOf(descriptor), enlarged(bound));
    if (!picture)
        return std::nullopt;
    Decoded decoded{.width = picture->width, .height = picture->height};
    decoded.traits = {
        .format = PictureFormat::bmp, .isDamaged = !picture->isComplete, .hasPalette = picture->hasPalette};
    const Image small = VipsPicture::scaledDown(VipsPicture::imageOf(picture->small),
                                                bound.box({picture->width, picture->height}));
    if (!small)
        return std::nullopt;
    decoded.small = VipsPicture::pixelsOf(small);
    if (use == PictureUse::icon)
        decoded.alpha.assign(decoded.small.pixels.size() / VipsPicture::kColours,
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
        decoded.traits = FileTraits::of(header);
        isDrawing = FileTraits::isDrawnInLines(header);
        if (bound.madeOf && !FileTraits::isThumbnail(header, *bound.madeOf))
            return std::nullopt;
        decoded.pages = use == PictureUse::page ? vips_image_get_n_pages(header.get()) : 0;
    }
    if (!ImageLimits::allow(decoded.width, decoded.height) || (isDrawing && use == PictureUse::photo))
        return std::nullopt;
    const bool isShrunkSoftly = decoded.traits.format == PictureFormat::webp;
    const PixelSize box = boxOf(decoded, isShrunkSoftly ? enlarged(bound) : bound);
    Wanted wanted{box, use, isDrawing};
    if (decoded.traits.format == PictureFormat::jpeg && use == PictureUse::photo)
        wanted.jpegFactor = jpegFactor({decoded.width, decoded.height}, box);
    Image stored = bestEffort(source.get(), wanted, decoded.traits.isDamaged);
    if (isShrunkSoftly)
        stored = VipsPicture::scaledDown(stored, boxOf(decoded, bound));
    const Image upright = VipsPicture::upright(stored);
    if (!upright)
        return std::nullopt;
    VipsPicture::Pixels pixels = VipsPicture::allPixelsOf(upright);
    decoded.small = std::move(pixels.colours);
    decoded.alpha = std::move(pixels.alpha);
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
    for (const char* loader : {"VipsForeignLoadJpeg", "VipsForeignLoadPng", "VipsForeignLoadHeif",
                               "VipsForeignLoadTiff", "VipsForeignLoadWebp", "VipsForeignLoadNsgif",
                               "VipsForeignLoadJxl", "VipsForeignLoadSvg", "VipsForeignLoadPdf"})
        vips_operation_block_set(loader, FALSE);
    warmUp();
}

std::optional<Decoded> decode(int descriptor, const PictureBound& bound, PictureUse use)
{
    const std::optional<Start> start = startOf(descriptor);
    if (!start || isDocument(*start) != (use == PictureUse::page))
        return std::nullopt;
    if (bound.part) {
        auto part = isBmp(*start) ? PartDecoder::decodeBmp(bytesOf(descriptor), bound)
                                  : PartDecoder::decode(descriptor, bound);
        vips_error_clear();
        return part;
    }
    if (isBmp(*start) && bound.madeOf)
        return std::nullopt;
    auto decoded = isBmp(*start) ? decodeBmp(descriptor, bound, use) : decodeOther(descriptor, bound, use);
    vips_error_clear();
    if (decoded)
        cutToMiddle(decoded->small, bound.shown({decoded->small.width, decoded->small.height}));
    return decoded;
}

} // namespace orlen::ImageDecoder
