#include "PhotoFolder.h"

#include <vips/vips.h>

#include <filesystem>
#include <fstream>
#include <memory>

namespace orlen {

namespace {

struct Unref {
    void operator()(VipsImage* image) const { g_object_unref(image); }
};
using Image = std::unique_ptr<VipsImage, Unref>;

std::optional<RgbImage> pixelsOf(const Image& image)
{
    VipsImage* converted = nullptr;
    if (!image || vips_colourspace(image.get(), &converted, VIPS_INTERPRETATION_sRGB, nullptr) != 0)
        return std::nullopt;
    Image colours(converted);
    if (vips_image_hasalpha(colours.get())) {
        const std::unique_ptr<VipsArrayDouble, void (*)(VipsArrayDouble*)> white(
            vips_array_double_newv(1, 255.0), [](VipsArrayDouble* a) { vips_area_unref(VIPS_AREA(a)); });
        VipsImage* flat = nullptr;
        if (vips_flatten(colours.get(), &flat, "background", white.get(), nullptr) != 0)
            return std::nullopt;
        colours.reset(flat);
    }
    VipsImage* bytes = nullptr;
    if (vips_cast_uchar(colours.get(), &bytes, nullptr) != 0)
        return std::nullopt;
    const Image last(bytes);
    std::size_t size = 0;
    const std::unique_ptr<void, void (*)(void*)> memory(vips_image_write_to_memory(last.get(), &size),
                                                        g_free);
    RgbImage result{
        .width = vips_image_get_width(bytes), .height = vips_image_get_height(bytes), .pixels = {}};
    if (!memory || size != RgbImage::byteCount(result.width, result.height))
        return std::nullopt;
    const auto* first = static_cast<const std::uint8_t*>(memory.get());
    result.pixels.assign(first, first + size);
    return result;
}

} // namespace

std::vector<PhotoFolder::Photo> PhotoFolder::photosOf(const std::string& folder)
{
    std::vector<Photo> photos;
    std::ifstream table(folder + "/labels.csv");
    for (std::string line; std::getline(table, line);) {
        const std::filesystem::path file = line.substr(0, line.find(','));
        const std::string place = file.begin()->string();
        const std::string parent = file.parent_path().filename().string();
        const std::string name = file.filename().string();
        if (place == "sequences")
            photos.push_back({.file = file.string(), .kind = name.substr(0, name.find('-'))});
        else if (place == "develop" && parent != "photo-small")
            photos.push_back({.file = file.string(), .kind = parent});
    }
    return photos;
}

std::optional<RgbImage> PhotoFolder::read(const std::string& path)
{
    return pixelsOf(Image(vips_image_new_from_file(path.c_str(), nullptr)));
}

RgbImage PhotoFolder::asJpeg(const RgbImage& image, int quality)
{
    const Image picture(vips_image_new_from_memory(image.pixels.data(), image.pixels.size(), image.width,
                                                   image.height, 3, VIPS_FORMAT_UCHAR));
    void* jpeg = nullptr;
    std::size_t size = 0;
    if (vips_jpegsave_buffer(picture.get(), &jpeg, &size, "Q", quality, nullptr) != 0)
        return {};
    const std::unique_ptr<void, void (*)(void*)> memory(jpeg, g_free);
    return pixelsOf(Image(vips_image_new_from_buffer(jpeg, size, "", nullptr))).value_or(RgbImage{});
}

} // namespace orlen
