#pragma once

#include "platform/images/FeaturePrint.h"
#include "platform/images/RgbImage.h"

#include <optional>

/// Makes feature prints. Pure; any thread.
namespace orlen::PrintMaker {

/// The print of an upright thumbnail. Nothing for a picture without structure, such as a plain colour.
[[nodiscard]] std::optional<FeaturePrint> printOf(const RgbImage& image);

} // namespace orlen::PrintMaker
