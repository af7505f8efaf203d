#pragma once

#include "platform/images/RgbImage.h"

#include <vector>

/// What a picture lacks. Pure; any thread.
namespace orlen::PlainPicture {

/// Whether all colours are shades of grey, up to what re-encoding adds.
[[nodiscard]] bool isGrey(const RgbImage& image);

/// Whether there is no more to see than noise on a plain background.
[[nodiscard]] bool isFlat(const RgbImage& image);
/// The same for the brightness, 0 to 255, of a picture scaled to a print's side or so.
[[nodiscard]] bool isFlat(const std::vector<float>& grey);

} // namespace orlen::PlainPicture
