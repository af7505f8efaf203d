#pragma once

#include "platform/images/RgbImage.h"

/// The line of small signs at the top of a phone's screen: the time on the left, reception and battery on the
/// right. Pure; any thread.
namespace orlen::StatusBar {

/// Whether an upright picture, as high as a phone, begins with such a line.
[[nodiscard]] bool isOn(const RgbImage& image);

} // namespace orlen::StatusBar
