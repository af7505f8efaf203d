#pragma once

#include "platform/images/FeaturePrint.h"

#include <vector>

/// Makes the tile of a feature print. Pure; any thread.
namespace orlen::FineTile {

/// What is finer than a few pixels in a grey square of FeaturePrint::kTileSide pixels; 128 is no structure.
[[nodiscard]] FeaturePrint::Tile tileOf(const std::vector<float>& grey);

} // namespace orlen::FineTile
