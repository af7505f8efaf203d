#include "support/SamplePictures.h"

#include "platform/images/RgbImage.h"
#include "recognition/Scenes.h"

#include <cstdlib>
#include <memory>
#include <vips/vips.h>

namespace orlen::SamplePictures {

namespace {

constexpr int kWidth = 360;
constexpr int kHeight = 270;

struct Unref {
    void operator()(gpointer object) const { g_object_unref(object); }
};

std::string jpeg(const RgbImage& image)
{
    const std::unique_ptr<VipsImage, Unref> pixels(vips_image_new_from_memory_copy(
        image.pixels.data(), image.pixels.size(), image.width, image.height, 3, VIPS_FORMAT_UCHAR));
    void* bytes = nullptr;
    std::size_t length = 0;
    if (vips_image_write_to_buffer(pixels.get(), ".jpg[Q=97]", &bytes, &length, nullptr) != 0)
        vips_error_exit("a sample picture");
    const std::unique_ptr<void, void (*)(void*)> owner(bytes, g_free);
    return {static_cast<const char*>(bytes), length};
}

} // namespace

std::string photograph(int number)
{
    static const int started = VIPS_INIT("orlen-sample-home");
    if (started != 0)
        vips_error_exit("sample pictures");
    const auto scene = Scenes::spots(static_cast<unsigned>(std::abs(number)));
    if (number > 0)
        return jpeg(Scenes::painted(Scenes::lit(scene, {1, 1, 1}, 4), kWidth, kHeight));
    return jpeg(Scenes::painted(Scenes::lit(scene, {0.96, 0.96, 0.96}, 0), kWidth * 5 / 6, kHeight * 5 / 6));
}

} // namespace orlen::SamplePictures
