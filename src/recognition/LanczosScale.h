#pragma once

#include "platform/images/PictureBound.h"
#include "platform/images/RgbImage.h"

#include <cstdint>

/// Scales down with the Lanczos filter of three lobes (C. E. Duchon, "Lanczos Filtering in One and Two
/// Dimensions", 1979), widened by the factor of the reduction so that nothing finer than the new pixels is
/// left. Pure; any thread.
namespace orlen::LanczosScale {

/// The picture as three bytes per pixel, without gaps between its rows.
struct Pixels {
    const std::uint8_t* start = nullptr;
    PixelSize size;
};

/// Stretched to exactly this size, which is no larger than the picture's; empty if either is empty.
[[nodiscard]] RgbImage scaledDown(const Pixels& picture, PixelSize size);

} // namespace orlen::LanczosScale
