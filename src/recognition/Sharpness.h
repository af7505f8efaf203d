#pragma once

#include "platform/images/RgbImage.h"

/// How sharp a picture is. Pure; any thread.
namespace orlen::Sharpness {

/// Variance of the Laplacian of the grey picture, scaled down to at most 256 pixels on the longest side and
/// at least 8 on each. Out-of-focus photos score below 22, sharp ones mostly above 100. 0 for an empty
/// picture.
[[nodiscard]] double laplacianVariance(const RgbImage& image);

} // namespace orlen::Sharpness
