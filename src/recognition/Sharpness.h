#pragma once

#include "platform/images/RgbImage.h"

/// How much fine detail a picture has. Pure; any thread.
namespace orlen::Sharpness {

/// Variance of the Laplacian of the grey picture, scaled down to at most 256 pixels on the longest side and
/// to at least 8 on each. Photos out of focus lie below 22, sharp ones mostly above 100. 0 for an empty
/// picture.
[[nodiscard]] double laplacianVariance(const RgbImage& image);

} // namespace orlen::Sharpness
