#pragma once

#include "platform/images/RgbImage.h"

#include <vector>

/// Scales by area: each new pixel is the mean of the old ones it covers, weighted by how much of them it
/// covers. Pure; any thread.
namespace orlen::AreaScale {

/// Red, green and blue from 0 to 255, rows from the top. The picture is stretched to exactly this size, up or
/// down; empty if either is empty.
[[nodiscard]] std::vector<float> scaled(const RgbImage& image, int width, int height);

/// The same as perceived brightness, 0 to 255.
[[nodiscard]] std::vector<float> scaledGrey(const RgbImage& image, int width, int height);

} // namespace orlen::AreaScale
