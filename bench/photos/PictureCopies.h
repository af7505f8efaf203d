#pragma once

#include "platform/images/RgbImage.h"

#include <span>
#include <string>

/// Copies of a picture as files: as messengers, editors and converters leave them beside the original.
namespace orlen::PictureCopies {

enum class Camera { noted, unknown };

/// The picture as a camera would store it: JPEG of quality 92, with or without the camera's name.
[[nodiscard]] std::string original(const RgbImage& image, Camera camera);

struct Kind {
    const char* name;
    const char* change;    ///< what happens to the pixels
    const char* saved;     ///< ending with the saver's options
    double share = 1;      ///< of the file's bytes that are left
    bool isAsGood = false; ///< without camera data to lose, it is no worse than the original
};
[[nodiscard]] std::span<const Kind> all();
/// With a caption over the picture: these are no copies.
[[nodiscard]] std::span<const Kind> captioned();

/// The bytes of a copy of an original; empty if it cannot be made here.
[[nodiscard]] std::string copied(const std::string& original, const Kind& kind);

/// The same pixels in a BMP file.
[[nodiscard]] std::string asBmp(const RgbImage& image);

} // namespace orlen::PictureCopies
