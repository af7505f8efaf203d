#include "recognition/FileTraits.h"

#include <string>
#include <string_view>
#include <utility>

namespace orlen {

namespace {

/// Whether the picture's metadata has this field.
bool tells(const VipsPicture::Image& header, const char* name)
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

bool isFromCamera(const VipsPicture::Image& header)
{
    return tells(header, "exif-ifd0-Make") || tells(header, "exif-ifd2-ExposureTime") ||
           tells(header, "exif-ifd2-FocalLength");
}

std::string_view loaderOf(const VipsPicture::Image& header)
{
    const char* loader = nullptr;
    return vips_image_get_string(header.get(), VIPS_META_LOADER, &loader) == 0 ? loader : "";
}

} // namespace

PictureTraits FileTraits::of(const VipsPicture::Image& header)
{
    constexpr std::pair<std::string_view, PictureFormat> kLoaders[] = {
        {"jpeg", PictureFormat::jpeg}, {"heif", PictureFormat::heif}, {"webp", PictureFormat::webp},
        {"png", PictureFormat::png},   {"tiff", PictureFormat::tiff}, {"gif", PictureFormat::gif},
        {"jxl", PictureFormat::jxl},
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

bool FileTraits::isThumbnail(const VipsPicture::Image& header, std::int64_t madeOf)
{
    // The fields of a PNG file are named "png-comment-0-Thumb::MTime" and so on.
    struct Wanted {
        std::string time;
        bool isFound = false;
    };
    Wanted wanted{std::to_string(madeOf)};
    const auto look = [](VipsImage* image, const char* name, GValue* /*value*/, void* about) -> void* {
        const char* text = nullptr;
        if (std::string_view(name).ends_with("-Thumb::MTime") &&
            vips_image_get_string(image, name, &text) == 0 && static_cast<Wanted*>(about)->time == text)
            static_cast<Wanted*>(about)->isFound = true;
        return nullptr;
    };
    vips_image_map(header.get(), look, &wanted);
    return wanted.isFound;
}

bool FileTraits::isDrawnInLines(const VipsPicture::Image& header)
{
    return loaderOf(header).starts_with("svg") || loaderOf(header).starts_with("pdf");
}

} // namespace orlen
