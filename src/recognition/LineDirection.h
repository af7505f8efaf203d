#pragma once

#include "platform/images/RgbImage.h"

/// How the lines of letters on a picture run. Pure; any thread.
namespace orlen::LineDirection {

/// Whether dark letters form lines from top to bottom rather than from left to right, as on a page that lies
/// on its side. Without letters the answer means nothing.
[[nodiscard]] bool isSideways(const RgbImage& image);

/// The picture a quarter turn clockwise.
[[nodiscard]] RgbImage turned(const RgbImage& image);

} // namespace orlen::LineDirection
