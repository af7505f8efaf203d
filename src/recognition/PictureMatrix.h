#pragma once

#include "platform/images/RgbImage.h"

#include <opencv2/core/mat.hpp>

namespace orlen {

/// A copy of the picture for OpenCV: three channels of 8 bits, red first. Empty for an empty picture.
[[nodiscard]] cv::Mat matrixOf(const RgbImage& image);

} // namespace orlen
