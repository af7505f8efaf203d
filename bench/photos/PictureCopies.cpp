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
    {"large caption", "caption 12", ".jpg[Q=92]"},         {"small caption", "caption 30", ".jpg[Q=92]"},
    {"words across the middle", "words 10", ".jpg[Q=92]"}, {"caption bar over it", "bar 8", ".jpg[Q=92]"},
    {"caption bar above it", "above 8", ".jpg[Q=92]"},     {"sticker", "sticker 6", ".jpg[Q=92]"},
    {"signature", "signature 25", ".jpg[Q=92]"},
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

struct Place {
    int x;
    int y;
};

/// Letters of that height, white on a black picture as large as the image.
Image lettering(const Image& image, const char* words, const char* font, int height, Place place)
{
    const Image letters = applied(image, [&](VipsImage* in, VipsImage** out) {
        return vips_text(out, words, "font", font, "width", vips_image_get_width(in) * 3 / 4, "height",
                         height, nullptr);
    });
    return applied(letters, [&](VipsImage* in, VipsImage** out) {
        return vips_embed(in, out, place.x, place.y, vips_image_get_width(image.get()),
                          vips_image_get_height(image.get()), nullptr);
    });
}

/// White letters with a dark rim, so that they show on white as well.
Image captioned(const Image& image, const Image& letters, int height)
{
    const Image rim = applied(letters, [&](VipsImage* in, VipsImage** out) {
        return vips_gaussblur(in, out, 1.0 + height / 20.0, nullptr);
    });
    return inked(inked(image, rim, 0), letters, 255);
}

/// A white strip with black letters.
Image barred(const Image& image, int height, int top)
{
    constexpr std::array kWhite{255.0, 255.0, 255.0};
    const Image strip = applied(image, [&](VipsImage* in, VipsImage** out) {
        return vips_draw_rect(in, const_cast<double*>(kWhite.data()), 3, 0, top, vips_image_get_width(in),
                              2 * height, "fill", TRUE, nullptr) == 0
                   ? vips_copy(in, out, nullptr)
                   : -1;
    });
    const Place place{vips_image_get_width(image.get()) / 8, top + height / 2};
    return inked(strip, lettering(strip, "when the weather is fine again", "sans", height, place), 0);
}

/// A face of a few circles.
Image withSticker(const Image& image, int radius)
{
    constexpr std::array kYellow{250.0, 210.0, 40.0};
    constexpr std::array kBlack{20.0, 20.0, 20.0};
    const int x = vips_image_get_width(image.get()) * 2 / 3;
    const int y = vips_image_get_height(image.get()) / 3;
    return applied(image, [&](VipsImage* in, VipsImage** out) {
        const auto circle = [&](const std::array<double, 3>& ink, int dx, int dy, int size) {
            return vips_draw_circle(in, const_cast<double*>(ink.data()), 3, x + dx, y + dy, size, "fill",
                                    TRUE, nullptr);
        };
        circle(kBlack, 0, 0, radius + radius / 12);
        circle(kYellow, 0, 0, radius);
        circle(kBlack, -radius / 3, -radius / 4, radius / 6);
        circle(kBlack, radius / 3, -radius / 4, radius / 6);
        circle(kBlack, 0, radius / 3, radius / 3);
        return vips_copy(in, out, nullptr);
    });
}

/// What the change is called, and the share of the picture's height that it is large.
Image drawnOver(const Image& image, std::string_view change, int share)
{
    const int width = vips_image_get_width(image.get());
    const int height = vips_image_get_height(image.get());
    const int size = height / share;
    const auto captionAt = [&](int y) {
        return lettering(image, "ONE DOES NOT SIMPLY", "sans bold", size, {width / 8, y});
    };
    if (change == "caption")
        return captioned(image, captionAt(height - 2 * size), size);
    if (change == "words")
        return captioned(image, captionAt(height / 2), size);
    if (change == "bar")
        return barred(image, size, height - 2 * size);
    if (change == "sticker")
        return withSticker(image, size);
    if (change == "signature")
        return captioned(
            image, lettering(image, "A. Painter", "serif italic", size, {width * 3 / 4, height - 2 * size}),
            size);
    const Image larger = applied(image, [&](VipsImage* in, VipsImage** out) {
        return vips_embed(in, out, 0, 2 * size, width, height + 2 * size, nullptr);
    });
    return barred(larger, size, 0);
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
    const std::size_t space = change.find(' ');
    if (space != std::string_view::npos && change.front() != '0')
        image = drawnOver(Image(vips_image_copy_memory(image.get())), change.substr(0, space),
                          std::atoi(change.substr(space + 1).data()));
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
