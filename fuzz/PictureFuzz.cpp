#include "Require.h"
#include "platform/files/UniqueFd.h"
#include "recognition/ImageDecoder.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/mman.h>
#include <unistd.h>
#include <vector>
#include <vips/vips.h>

// One program per format, told by the saver that makes its seeds: mutations of a small whole picture reach
// further into a decoder than noise does.

namespace {

constexpr int kWidth = 24;
constexpr int kHeight = 16;

/// What each saver is asked for beside its defaults.
constexpr std::array kVariants{ORLEN_FUZZ_VARIANTS};

void saveSeed(int bands, const std::string& path)
{
    std::vector<std::uint8_t> pixels;
    for (int i = 0; i < kWidth * kHeight * bands; ++i)
        pixels.push_back(static_cast<std::uint8_t>(i * 7));
    VipsImage* const image =
        vips_image_new_from_memory(pixels.data(), pixels.size(), kWidth, kHeight, bands, VIPS_FORMAT_UCHAR);
    require(image != nullptr);
    constexpr int kTurned = 6;
    vips_image_set_int(image, VIPS_META_ORIENTATION, kTurned);
    // A saver that cannot take these colours leaves one seed less.
    (void)vips_image_write_to_file(image, path.c_str(), nullptr);
    g_object_unref(image);
}

std::string seedFolder()
{
    std::string folder = (std::filesystem::temp_directory_path() / "orlen-fuzz-XXXXXX").string();
    require(::mkdtemp(folder.data()) != nullptr);
    int number = 0;
    for (const char* variant : kVariants) {
        for (const int bands : {1, 3, 4})
            saveSeed(bands, folder + "/" + std::to_string(++number) + variant);
    }
    return folder;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    require(VIPS_INIT("fuzz") == 0);
    static std::vector<char*> arguments(*argv, *argv + *argc);
    // Files are tried again by themselves.
    if (std::none_of(arguments.begin() + 1, arguments.end(),
                     [](const char* path) { return std::filesystem::is_regular_file(path); })) {
        static std::string seeds = seedFolder();
        arguments.push_back(seeds.data());
    }
    *argc = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    *argv = arguments.data();
    orlen::ImageDecoder::prepare();
    return 0;
}

/// Whatever a file holds, the small picture is whole and no larger than asked for.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr int kSide = 32;
    const orlen::UniqueFd file(::memfd_create("picture", MFD_CLOEXEC));
    require(file.isOpen() && ::write(file.get(), data, size) == static_cast<ssize_t>(size));
    const bool isIcon = size % 2 == 0;
    const auto picture = orlen::ImageDecoder::decode(
        file.get(), {{kSide, kSide}}, isIcon ? orlen::PictureUse::icon : orlen::PictureUse::photo);
    if (!picture)
        return 0;
    const orlen::RgbImage& image = picture->small;
    require(picture->width > 0 && picture->height > 0 && image.width > 0 && image.height > 0);
    require(image.width <= kSide && image.height <= kSide);
    require(image.pixels.size() == orlen::RgbImage::byteCount(image.width, image.height));
    require(picture->alpha.size() == (isIcon ? image.pixels.size() / 3 : 0));
    return 0;
}
