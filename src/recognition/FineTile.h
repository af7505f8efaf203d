#pragma once

#include "platform/images/FeaturePrint.h"

#include <vector>

/// Makes the tile of a feature print. Pure; any thread.
namespace orlen::FineTile {

/// The structure finer than a few pixels in a grey square of FeaturePrint::kTileSide pixels; 128 means none.
[[nodiscard]] FeaturePrint::Tile tileOf(const std::vector<float>& grey);

} // namespace orlen::FineTile
