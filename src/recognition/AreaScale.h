#pragma once

#include "platform/images/RgbImage.h"

#include <vector>

/// Scaling by area: every new pixel is the mean of the old ones that it covers, parts of pixels counted by
/// their share. Pure; any thread.
namespace orlen::AreaScale {

/// Red, green, blue of each pixel, 0 to 255, rows from the top. The picture is stretched to exactly this
/// size, which may also be larger; nothing when either is empty.
[[nodiscard]] std::vector<float> scaled(const RgbImage& image, int width, int height);

/// As scaled, as the eye's brightness: 0 to 255.
[[nodiscard]] std::vector<float> scaledGrey(const RgbImage& image, int width, int height);

} // namespace orlen::AreaScale
