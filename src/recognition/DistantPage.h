#pragma once

#include "platform/images/PictureBound.h"
#include "platform/images/RgbImage.h"

#include <optional>

/// A page that lies far away: a small bright sheet on a darker ground. Pure; any thread.
namespace orlen::DistantPage {

/// The part of the picture that shows something of that shape, with a little of the ground around it. Whether
/// it is a page at all does not show from afar.
[[nodiscard]] std::optional<PixelRect> partOf(const RgbImage& image);

} // namespace orlen::DistantPage
