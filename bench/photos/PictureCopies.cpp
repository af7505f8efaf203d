#include "PictureCopies.h"

#include <vips/vips.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace orlen {

namespace {

using PictureCopies::Kind;

struct Unref {
    void operator()(VipsImage* image) const { g_object_unref(image); }
};
using Image = std::unique_ptr<VipsImage, Unref>;

constexpr Kind kKinds[] = {
    {"three quarters of the size", "0.75", ".jpg[Q=95,strip]"},
    {"half the size", "0.5", ".jpg[Q=90,strip]"},
    {"a quarter of the size", "0.25", ".jpg[Q=90,strip]"},
    {"half the size, sharpened", "0.5 sharpened", ".jpg[Q=95]"},
    {"JPEG 95", "", ".jpg[Q=95,strip]"},
    {"JPEG 85", "", ".jpg[Q=85]"},
    {"JPEG 60", "", ".jpg[Q=60]"},
    {"JPEG 30", "", ".jpg[Q=30]"},
    {"progressive JPEG 75", "", ".jpg[Q=75,interlace]"},
    {"sharpened, JPEG 80", "sharpened", ".jpg[Q=80]"},
    {"sharpened, JPEG 95", "sharpened", ".jpg[Q=95,strip]"},
    {"grey JPEG 95", "grey", ".jpg[Q=95]"},
    {"grey PNG", "grey", ".png"},
    {"dithered GIF", "", ".gif"},
    {"dithered PNG", "", ".png[palette,dither=1]"},
    {"cut at 97 %", "", ".jpg[Q=92]", 0.97},
    {"cut at 60 %", "", ".jpg[Q=92]", 0.60},
    {"without camera data", "", ".jpg[Q=92,strip]", 1, true},
    {"WebP 80", "", ".webp[Q=80,strip]"},
    {"AVIF 60", "", ".avif[Q=60,strip,effort=1]"},
    {"PNG", "", ".png[strip]", 1, true},
    {"BMP", "", ".bmp", 1, true},
    {"TIFF", "", ".tif[strip,compression=lzw]", 1, true},
};

constexpr Kind kCaptioned[] = {
    {"large caption", "caption 12", ".jpg[Q=92]"},
    {"small caption", "caption 30", ".jpg[Q=92]"},
};

Image fromBytes(const std::string& bytes)
{
    return Image(vips_image_new_from_buffer(bytes.data(), bytes.size(), "", nullptr));
}

template <typename Operation>
Image applied(const Image& image, Operation operation)
{
    VipsImage* made = nullptr;
    return image && operation(image.get(), &made) == 0 ? Image(made) : nullptr;
}

std::string saved(const Image& image, const char* format)
{
    void* bytes = nullptr;
    std::size_t size = 0;
    if (!image || vips_image_write_to_buffer(image.get(), format, &bytes, &size, nullptr) != 0)
        return {};
    const std::unique_ptr<void, void (*)(void*)> memory(bytes, g_free);
    return {static_cast<const char*>(bytes), size};
}

Image inked(const Image& image, const Image& mask, double level)
{
    return applied(image, [&](VipsImage* in, VipsImage** out) {
        const std::array<double, 3> colour{level, level, level};
        VipsImage* ink = vips_image_new_from_image(in, colour.data(), 3);
        const int result = vips_ifthenelse(mask.get(), ink, in, out, "blend", TRUE, nullptr);
        g_object_unref(ink);
        return result;
    });
}

/// White letters of that share of the picture's height, near its lower edge.
Image captioned(const Image& image, int share)
{
    const int height = vips_image_get_height(image.get()) / share;
    const Image letters = applied(image, [&](VipsImage* in, VipsImage** out) {
        return vips_text(out, "ONE DOES NOT SIMPLY", "font", "sans bold", "width",
                         vips_image_get_width(in) * 3 / 4, "height", height, nullptr);
    });
    const Image placed = applied(letters, [&](VipsImage* in, VipsImage** out) {
        return vips_embed(in, out, vips_image_get_width(image.get()) / 8,
                          vips_image_get_height(image.get()) - 2 * height, vips_image_get_width(image.get()),
                          vips_image_get_height(image.get()), nullptr);
    });
    // With a dark rim, so that they show on white as well.
    const Image rim = applied(placed, [&](VipsImage* in, VipsImage** out) {
        return vips_gaussblur(in, out, 1.0 + height / 20.0, nullptr);
    });
    return inked(inked(image, rim, 0), placed, 255);
}

Image changed(Image image, std::string_view change)
{
    if (change.starts_with("0."))
        image = applied(image, [&](VipsImage* in, VipsImage** out) {
            return vips_resize(in, out, g_ascii_strtod(change.data(), nullptr), nullptr);
        });
    if (change.ends_with("sharpened"))
        image = applied(image, [](VipsImage* in, VipsImage** out) {
            return vips_sharpen(in, out, "sigma", 1.0, "m2", 4.0, nullptr);
        });
    if (change == "grey")
        image = applied(image, [](VipsImage* in, VipsImage** out) {
            return vips_colourspace(in, out, VIPS_INTERPRETATION_B_W, nullptr);
        });
    if (change.starts_with("caption "))
        image = captioned(image, atoi(change.substr(8).data()));
    return image;
}

std::string littleEndian(std::uint32_t number)
{
    std::string bytes;
    for (const unsigned shift : {0U, 8U, 16U, 24U})
        bytes += static_cast<char>(number >> shift & 0xFFU);
    return bytes;
}

RgbImage pixelsOf(const Image& image)
{
    std::size_t size = 0;
    const std::unique_ptr<void, void (*)(void*)> memory(vips_image_write_to_memory(image.get(), &size),
                                                        g_free);
    const auto* first = static_cast<const std::uint8_t*>(memory.get());
    return {vips_image_get_width(image.get()), vips_image_get_height(image.get()), {first, first + size}};
}

} // namespace

std::string PictureCopies::original(const RgbImage& image, Camera camera)
{
    const Image pixels(vips_image_new_from_memory(image.pixels.data(), image.pixels.size(), image.width,
                                                  image.height, 3, VIPS_FORMAT_UCHAR));
    const Image picture = applied(pixels, [](VipsImage* in, VipsImage** out) {
        return vips_copy(in, out, "interpretation", VIPS_INTERPRETATION_sRGB, nullptr);
    });
    if (camera == Camera::noted)
        vips_image_set_string(picture.get(), "exif-ifd0-Make", "Maker");
    return saved(picture, ".jpg[Q=92]");
}

std::span<const Kind> PictureCopies::all()
{
    return kKinds;
}

std::span<const Kind> PictureCopies::captioned()
{
    return kCaptioned;
}

std::string PictureCopies::copied(const std::string& original, const Kind& kind)
{
    const Image picture = fromBytes(original);
    if (std::string_view(kind.saved) == ".bmp")
        return asBmp(pixelsOf(picture));
    std::string bytes =
        saved(changed(Image(applied(picture, [](VipsImage* in,
                                                VipsImage** out) { return vips_copy(in, out, nullptr); })),
                      kind.change),
              kind.saved);
    bytes.resize(static_cast<std::size_t>(static_cast<double>(bytes.size()) * kind.share));
    return bytes;
}

std::string PictureCopies::asBmp(const RgbImage& image)
{
    constexpr std::uint32_t kHeader = 54;
    const std::size_t row = (static_cast<std::size_t>(image.width) * 3 + 3) / 4 * 4;
    const std::size_t size = kHeader + row * static_cast<std::size_t>(image.height);
    std::string bytes =
        "BM" + littleEndian(static_cast<std::uint32_t>(size)) + littleEndian(0) + littleEndian(kHeader) +
        littleEndian(40) + littleEndian(static_cast<std::uint32_t>(image.width)) +
        littleEndian(static_cast<std::uint32_t>(image.height)) + littleEndian(1U | 24U << 16U);
    bytes.resize(size);
    for (int y = 0; y < image.height; ++y) {
        char* to = bytes.data() + kHeader + row * static_cast<std::size_t>(image.height - 1 - y);
        const std::uint8_t* from = image.row(y);
        for (int x = 0; x < image.width; ++x, from += 3) {
            for (const int channel : {2, 1, 0})
                *to++ = static_cast<char>(from[channel]);
        }
    }
    return bytes;
}

} // namespace orlen
