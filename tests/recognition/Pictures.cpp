#include "recognition/Pictures.h"

#include "platform/files/FileContent.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <random>
#include <vector>
#include <vips/vips.h>

namespace orlen::Pictures {

namespace {

struct Unref {
    void operator()(gpointer object) const { g_object_unref(object); }
};
using Image = std::unique_ptr<VipsImage, Unref>;
using Pixels = std::vector<std::uint8_t>;

template <typename Operation>
Image applied(const Image& image, Operation&& operation)
{
    VipsImage* made = nullptr;
    EXPECT_EQ(operation(image.get(), &made), 0) << vips_error_buffer();
    return Image(made);
}

Pixels pixels(const Options& options)
{
    std::minstd_rand random(7); // NOLINT(cert-msc51-cpp): the same picture every time
    Pixels pixels;
    for (int y = 0; y < options.height; ++y) {
        for (int x = 0; x < options.width; ++x) {
            const std::size_t quarter =
                (y * 2 >= options.height ? 2U : 0U) + (x * 2 >= options.width ? 1U : 0U);
            for (const std::uint8_t value : options.quarters[quarter]) {
                const int noise = options.isNoisy ? static_cast<int>(random() % 64) : 0;
                pixels.push_back(static_cast<std::uint8_t>(value > 127 ? value - noise : value + noise));
            }
            if (options.alpha)
                pixels.push_back(static_cast<std::uint8_t>(*options.alpha));
        }
    }
    return pixels;
}

Image interpreted(Image image, const std::string& as)
{
    VipsInterpretation target = VIPS_INTERPRETATION_sRGB;
    if (as == "grey")
        target = VIPS_INTERPRETATION_B_W;
    else if (as == "cmyk")
        target = VIPS_INTERPRETATION_CMYK;
    else if (as == "16 bit")
        target = VIPS_INTERPRETATION_RGB16;
    else
        return image;
    return applied(
        image, [&](VipsImage* in, VipsImage** out) { return vips_colourspace(in, out, target, nullptr); });
}

std::string saved(const Image& image, const std::string& format)
{
    void* bytes = nullptr;
    std::size_t length = 0;
    EXPECT_EQ(vips_image_write_to_buffer(image.get(), format.c_str(), &bytes, &length, nullptr), 0)
        << vips_error_buffer();
    std::string text(static_cast<const char*>(bytes), length);
    g_free(bytes);
    return text;
}

Image fromPixels(const Pixels& all, PixelSize size, int bands)
{
    const Image image(vips_image_new_from_memory_copy(all.data(), all.size(), size.width, size.height, bands,
                                                      VIPS_FORMAT_UCHAR));
    return applied(image, [](VipsImage* in, VipsImage** out) {
        return vips_copy(in, out, "interpretation", VIPS_INTERPRETATION_sRGB, nullptr);
    });
}

Image fromPixels(const Options& options)
{
    return fromPixels(pixels(options), {options.width, options.height}, options.alpha ? 4 : 3);
}

} // namespace

std::string encoded(const Options& options)
{
    const Image image = interpreted(fromPixels(options), options.interpretation);
    if (options.orientation != 1)
        vips_image_set_int(image.get(), VIPS_META_ORIENTATION, options.orientation);
    if (!options.cameraMake.empty())
        vips_image_set_string(image.get(), "exif-ifd0-Make", options.cameraMake.c_str());
    return saved(image, options.format);
}

std::string png(const RgbImage& picture)
{
    return saved(fromPixels(picture.pixels, {picture.width, picture.height}, 3), ".png");
}

std::string bmp(const Options& options)
{
    const auto little = [](std::uint64_t number, unsigned bytes) {
        std::string text;
        for (unsigned i = 0; i < bytes; ++i)
            text += static_cast<char>(number >> 8 * i & 0xFFU);
        return text;
    };
    const Pixels all = pixels(options);
    std::string file = "BM" + little(0, 8) + little(54, 4) + little(40, 4) +
                       little(static_cast<std::uint32_t>(options.width), 4) +
                       little(static_cast<std::uint32_t>(-options.height), 4) + little(1, 2) + little(24, 2) +
                       std::string(24, '\0');
    for (std::size_t i = 0; i < all.size(); i += 3) {
        for (const std::size_t channel : {2U, 1U, 0U})
            file += static_cast<char>(all[i + channel]);
    }
    return file;
}

std::string animated(const std::string& format)
{
    Options first;
    Options second;
    second.quarters = {};
    const Image top = fromPixels(first);
    const Image bottom = fromPixels(second);
    const Image both = applied(top, [&](VipsImage* in, VipsImage** out) {
        return vips_join(in, bottom.get(), out, VIPS_DIRECTION_VERTICAL, nullptr);
    });
    vips_image_set_int(both.get(), VIPS_META_PAGE_HEIGHT, first.height);
    return saved(both, format);
}

std::optional<ImageDecoder::Decoded> decoded(const std::string& bytes, const PictureBound& bound)
{
    const TempHome home;
    const auto file = openFile(home.file("picture", bytes));
    return file.ok() ? ImageDecoder::decode(file.value().get(), bound) : std::nullopt;
}

Quarters quartersOf(const RgbImage& image)
{
    Quarters quarters{};
    for (std::size_t i = 0; i < quarters.size(); ++i) {
        const int y = image.height * (i < 2 ? 1 : 3) / 4;
        const int x = image.width * (i % 2 == 0 ? 1 : 3) / 4;
        std::copy_n(image.row(y) + std::ptrdiff_t{x} * 3, 3, quarters[i].begin());
    }
    return quarters;
}

int difference(const Quarters& a, const Quarters& b)
{
    int largest = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
        for (std::size_t channel = 0; channel < 3; ++channel)
            largest = std::max(largest, std::abs(a[i][channel] - b[i][channel]));
    }
    return largest;
}

} // namespace orlen::Pictures
